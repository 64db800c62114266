#include <gtest/gtest.h>

#include <climits>
#include <memory>
#include <vector>

#include "colormodel/CColorboxCol.h"
#include "colormodel/Geometry.h"
#include "support/TestHost.h"

namespace lumo {
namespace {

// Cells added from a shared table, whose bounds a control stores by position: what is
// stored reads back whole through the cell object, made before or after the store, and
// what is changed through an object nobody holds any more stays changed.
struct StoredBounds {
  Rect bounds;
  bool hitAtBottomRight;
};

class TableCells : public ::testing::TestWithParam<StoredBounds> {
 protected:
  static Rect BoundsOf(const CellPtr& cell) {
    return {cell->BoundLeft(), cell->BoundTop(), cell->BoundRight(), cell->BoundBottom()};
  }

  testing::TestHost host;
  CColorboxCol cells{host.Errors()};
  FaceTable table = std::make_shared<const std::vector<CellFace>>(
      std::vector<CellFace>{{"a", 1, 0, 0, false}, {"b", 2, 3, 4, true}, {"c", 3, 0, 0, false}});
};

TEST_P(TableCells, KeepStoredBoundsWholeAndTheirObjectsOnceMade) {
  const Rect b = GetParam().bounds;
  cells.AddAll(table);
  cells.AddAll(table);
  const CellPtr early = cells.Item(5);
  cells.SetBounds(2, b.Left, b.Top, b.Right, b.Bottom);
  cells.SetBounds(5, b.Left, b.Top, b.Right, b.Bottom);
  const CellPtr late = cells.Item(2);
  EXPECT_EQ(BoundsOf(late), b);
  EXPECT_EQ(BoundsOf(early), b);
  EXPECT_EQ(cells.Item(2), late);
  EXPECT_EQ((std::vector<std::int32_t>{late->Index(), early->Index(), late->X(), late->Y()}),
            (std::vector<std::int32_t>{2, 5, 3, 4}));
  EXPECT_TRUE(late->IsLarge() && late->Name() == "b" && cells.Face(5).Name == "b");
  EXPECT_EQ(cells.GetObject(b.Right, b.Bottom), GetParam().hitAtBottomRight ? late : nullptr);
  cells.Item(3)->SetBounds(b.Left, b.Top, b.Right, b.Bottom);  // objects only the list holds
  cells.Item(6)->SetName("renamed");
  cells.Item(1);
  EXPECT_EQ(BoundsOf(cells.Item(3)), b);
  EXPECT_EQ(cells.Item(6)->Name(), "renamed");
  cells.Remove(1);
  EXPECT_EQ((std::vector<std::int32_t>{late->Index(), early->Index(), cells.Count()}),
            (std::vector<std::int32_t>{1, 4, 5}));
  EXPECT_EQ(cells.Item(4), early);
  EXPECT_EQ(cells.Face(2).Name, "c");
  EXPECT_TRUE(host.Messages.Shown.empty());
}

INSTANTIATE_TEST_SUITE_P(AnyRange, TableCells,
                         ::testing::Values(StoredBounds{{10, 20, 22, 32}, true}, StoredBounds{{-5, -7, 250, 248}, true},
                                           StoredBounds{{0, 1, 256, 12}, true},
                                           StoredBounds{{40000, 5, 40012, 17}, true},
                                           StoredBounds{{-32768, 32767, -32768, 32767}, true},
                                           StoredBounds{{INT_MIN, 1, INT_MAX, 1}, true},
                                           StoredBounds{{30, 30, 20, 20}, false}));

}  // namespace
}  // namespace lumo
