#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "colormodel/CColorboxCol.h"
#include "support/TestHost.h"

namespace lumo {
namespace {

using testing::TestHost;

class CellCollection : public ::testing::Test {
 protected:
  TestHost host;
  CColorboxCol cells{host.Errors()};

  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& cell : cells) names.push_back(cell->Name());
    return names;
  }
  std::string LastMessage() const {
    return host.Messages.Shown.empty() ? std::string() : host.Messages.Shown.back().Prompt;
  }
};

TEST_F(CellCollection, AddRemoveAndClearKeepOrderIndicesAndParents) {
  const CellPtr a = cells.Add("a", 0, 1, 2);
  const CellPtr b = cells.Add("b", 0xFF, 3, 4, true);
  const CellPtr c = cells.Add("c", 0xFF, 0, 0);
  EXPECT_EQ(cells.NewIndex(), 3);
  EXPECT_EQ((std::vector<std::int32_t>{a->X(), a->Y(), b->X(), b->Y()}), (std::vector<std::int32_t>{1, 2, 3, 4}));
  EXPECT_TRUE(b->IsLarge() && !a->IsLarge());
  EXPECT_EQ(cells.Item(1), a);
  EXPECT_EQ(c->Index(), 3);  // by identity: b has the same colour
  cells.Remove(2);
  EXPECT_EQ(Names(), (std::vector<std::string>{"a", "c"}));
  EXPECT_EQ(cells.NewIndex(), 0);
  EXPECT_EQ(b->Parent(), nullptr);
  EXPECT_EQ(c->Index(), 2);
  EXPECT_EQ(a->Parent(), &cells);
  cells.Clear();
  cells.Clear();
  EXPECT_EQ(cells.Count(), 0);
  EXPECT_TRUE(a->Parent() == nullptr && c->Parent() == nullptr);
  EXPECT_TRUE(host.Messages.Shown.empty());
}

TEST_F(CellCollection, IndexFollowsRemovalsAndIgnoresAParentSetByHand) {
  for (const char* name : {"a", "b", "c", "d"}) cells.Add(name, 0, 0, 0);
  const CellPtr last = cells.Item(4);
  cells.Remove(1);
  cells.Remove(2);
  EXPECT_EQ(last->Index(), 2);
  CColorboxCol other(host.Errors());
  const CellPtr stranger = other.Add("s", 0, 0, 0);
  stranger->SetParent(&cells);  // named as a parent, yet not among its cells
  EXPECT_EQ(stranger->Index(), 0);
  last->SetParent(&other);
  EXPECT_EQ(last->Index(), 0);
  EXPECT_TRUE(host.Messages.Shown.empty());
}

TEST_F(CellCollection, BadPositionsAndRemovedCellsAreReportedNotThrown) {
  const CellPtr kept = cells.Add("a", 1, 0, 0);
  for (std::int32_t bad : {0, 2, -1}) {
    EXPECT_EQ(cells.Item(bad), nullptr) << bad;
    EXPECT_EQ(LastMessage(), "Error Number: 9\r\nModule: CColorboxCol\r\nProcedure: Item\r\n\r\nIndex out of range\r\n");
  }
  host.Messages.Shown.clear();
  cells.Remove(5);  // reported by Item
  EXPECT_EQ(cells.Count(), 1);
  EXPECT_EQ(cells.NewIndex(), 1);
  EXPECT_EQ(host.Messages.Shown.size(), 1u);
  cells.Remove(1);
  EXPECT_EQ(kept->Index(), 0);
  EXPECT_EQ(LastMessage(), "Error Number: 91\r\nModule: CColorboxEl\r\nProcedure: Index\r\n\r\nObject not set\r\n");
}

TEST_F(CellCollection, CellsOutliveTheirListWithoutAParent) {
  CellPtr kept;
  {
    CColorboxCol shortLived(host.Errors());
    kept = shortLived.Add("a", 1, 0, 0);
  }
  EXPECT_EQ(kept->Parent(), nullptr);
}

struct ClosestCase {
  std::vector<OLE_COLOR> colors;
  OLE_COLOR target;
  std::int32_t found;  // 1-based; 0 when nothing is found
};

class FindClosest : public CellCollection, public ::testing::WithParamInterface<ClosestCase> {};

// By the difference of the packed numbers (not of the components), strictly less than
// 2^30, so the earliest of equal distances wins.
TEST_P(FindClosest, ComparesPackedNumbersAndTheEarliestOfEqualsWins) {
  for (const OLE_COLOR color : GetParam().colors) cells.Add("", color, 0, 0);
  const CellPtr cell = cells.FindClosest(GetParam().target);
  EXPECT_EQ(cell ? cell->Index() : 0, GetParam().found);
  EXPECT_TRUE(host.Messages.Shown.empty());
}

INSTANTIATE_TEST_SUITE_P(Targets, FindClosest,
                         ::testing::Values(ClosestCase{{0, 0xFF}, 0x010000, 2}, ClosestCase{{10, 30, 20}, 20, 3},
                                           ClosestCase{{10, 30, 20}, 25, 2}, ClosestCase{{10, 30, 20}, 15, 1},
                                           ClosestCase{{}, 0, 0}, ClosestCase{{1 << 30}, 0, 0},
                                           ClosestCase{{1 << 30}, 1, 1}));

TEST_F(CellCollection, FindClosestReportsOverflowForSystemColours) {
  cells.Add("White", 0xFFFFFF, 0, 0);
  EXPECT_EQ(cells.FindClosest(static_cast<OLE_COLOR>(0x80000010)), nullptr);
  EXPECT_EQ(LastMessage(), "Error Number: 6\r\nModule: CColorboxCol\r\nProcedure: FindClosest\r\n\r\nOverflow\r\n");
}

TEST_F(CellCollection, HitTestUsesInclusiveBoundsTheFirstHitWinsAndUndrawnCellsSitAtTheOrigin) {
  const CellPtr left = cells.Add("left", 1, 0, 0);
  const CellPtr right = cells.Add("right", 2, 0, 0);
  const CellPtr undrawn = cells.Add("undrawn", 3, 5, 5);
  left->SetBounds(10, 10, 22, 22);
  right->SetBounds(22, 10, 34, 22);
  const std::vector<std::pair<Point, CellPtr>> hits{
      {{10, 10}, left}, {{22, 22}, left}, {{23, 15}, right}, {{34, 22}, right}, {{35, 22}, nullptr},
      {{9, 15}, nullptr}, {{15, 23}, nullptr}, {{0, 0}, undrawn}, {{1, 0}, nullptr}};
  for (const auto& [p, cell] : hits) EXPECT_EQ(cells.GetObject(p.X, p.Y), cell) << p.X << "," << p.Y;
}

TEST_F(CellCollection, SearchByExactColourFindsTheFirst) {
  cells.Add("first", 0xFF6666, 0, 0);
  cells.Add("second", 0xFF6666, 0, 0);
  EXPECT_EQ(cells.GetObjectByColor(0xFF6666)->Name(), "first");
  EXPECT_EQ(cells.GetObjectByColor(0xFF6667), nullptr);
  EXPECT_TRUE(cells.ColorExists(0xFF6666));
  EXPECT_FALSE(cells.ColorExists(0));
}

}  // namespace
}  // namespace lumo
