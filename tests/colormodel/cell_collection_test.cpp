#include <gtest/gtest.h>

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

  std::vector<OLE_COLOR> Colors() const {
    std::vector<OLE_COLOR> colors;
    for (const auto& cell : cells) colors.push_back(cell->Color());
    return colors;
  }
  std::string LastMessage() const {
    return host.Messages.Shown.empty() ? std::string() : host.Messages.Shown.back().Prompt;
  }
};

TEST_F(CellCollection, AddKeepsOrderSetsFieldsAndNewIndex) {
  const CellPtr first = cells.Add("Black", 0, 1, 2);
  cells.Add("", 0xFF, 3, 4, true);
  cells.Add("White", 0xFFFFFF, 0, 0);
  EXPECT_EQ(cells.Count(), 3);
  EXPECT_EQ(cells.NewIndex(), 3);
  EXPECT_EQ(Colors(), (std::vector<OLE_COLOR>{0, 0xFF, 0xFFFFFF}));
  EXPECT_EQ(first->Name(), "Black");
  EXPECT_EQ(first->X(), 1);
  EXPECT_EQ(first->Y(), 2);
  EXPECT_FALSE(first->IsLarge());
  EXPECT_TRUE(cells.Item(2)->IsLarge());
  EXPECT_EQ(first->Parent(), &cells);
  EXPECT_EQ(cells.Item(1), first);
}

TEST_F(CellCollection, RemoveShiftsLaterCellsClearsParentAndNewIndex) {
  cells.Add("a", 1, 0, 0);
  const CellPtr second = cells.Add("b", 2, 0, 0);
  const CellPtr third = cells.Add("c", 3, 0, 0);
  cells.Remove(2);
  EXPECT_EQ(cells.NewIndex(), 0);
  EXPECT_EQ(Colors(), (std::vector<OLE_COLOR>{1, 3}));
  EXPECT_EQ(second->Parent(), nullptr);
  EXPECT_EQ(third->Index(), 2);
  EXPECT_TRUE(host.Messages.Shown.empty());
}

TEST_F(CellCollection, IndexIsByIdentityNotByEqualColour) {
  cells.Add("x", 0xFF6666, 0, 0);
  const CellPtr twin = cells.Add("y", 0xFF6666, 0, 0);
  EXPECT_EQ(twin->Index(), 2);
}

TEST_F(CellCollection, IndexOfARemovedCellReportsAndAnswersZero) {
  const CellPtr cell = cells.Add("a", 1, 0, 0);
  cells.Remove(1);
  EXPECT_EQ(cell->Index(), 0);
  EXPECT_EQ(LastMessage(), "Error Number: 91\r\nModule: CColorboxEl\r\nProcedure: Index\r\n\r\nObject not set\r\n");
}

TEST_F(CellCollection, ItemOutOfRangeReportsNineAndAnswersNoCell) {
  cells.Add("a", 1, 0, 0);
  for (std::int32_t bad : {0, 2, -1}) {
    host.Messages.Shown.clear();
    EXPECT_EQ(cells.Item(bad), nullptr) << bad;
    EXPECT_EQ(LastMessage(), "Error Number: 9\r\nModule: CColorboxCol\r\nProcedure: Item\r\n\r\nIndex out of range\r\n")
        << bad;
  }
}

TEST_F(CellCollection, RemoveOfAnInvalidPositionLeavesTheListUnchanged) {
  cells.Add("a", 1, 0, 0);
  cells.Remove(5);
  EXPECT_EQ(cells.Count(), 1);
  EXPECT_EQ(cells.NewIndex(), 1);
  EXPECT_FALSE(host.Messages.Shown.empty());
}

TEST_F(CellCollection, ClearEmptiesAndDetachesEveryCell) {
  const CellPtr a = cells.Add("a", 1, 0, 0);
  const CellPtr b = cells.Add("b", 2, 0, 0);
  cells.Clear();
  EXPECT_EQ(cells.Count(), 0);
  EXPECT_EQ(a->Parent(), nullptr);
  EXPECT_EQ(b->Parent(), nullptr);
  EXPECT_EQ(cells.NewIndex(), 0);
}

TEST_F(CellCollection, ClearOfAnEmptyListLeavesNewIndexAlone) {
  CColorboxCol empty(host.Errors());
  empty.Clear();
  EXPECT_EQ(empty.NewIndex(), 0);
  EXPECT_TRUE(host.Messages.Shown.empty());
}

TEST_F(CellCollection, CellsOutliveTheirListWithoutAParent) {
  CellPtr kept;
  {
    CColorboxCol shortLived(host.Errors());
    kept = shortLived.Add("a", 1, 0, 0);
  }
  EXPECT_EQ(kept->Parent(), nullptr);
}

TEST_F(CellCollection, FindClosestUsesThePackedDifference) {
  cells.Add("Black", 0x000000, 0, 0);
  cells.Add("Red", 0x0000FF, 0, 0);
  // Blue 1 is 65536 from black but only 65281 from red.
  EXPECT_EQ(cells.FindClosest(0x010000)->Name(), "Red");
}

TEST_F(CellCollection, FindClosestPrefersTheEarliestOfEqualDistances) {
  cells.Add("low", 10, 0, 0);
  cells.Add("high", 30, 0, 0);
  cells.Add("exact-later", 20, 0, 0);
  EXPECT_EQ(cells.FindClosest(20)->Name(), "exact-later");
  EXPECT_EQ(cells.FindClosest(25)->Name(), "high");
  EXPECT_EQ(cells.FindClosest(15)->Name(), "low");  // 5 from both low and exact-later
}

TEST_F(CellCollection, FindClosestAnswersNothingWhenEmptyOrTooFar) {
  EXPECT_EQ(cells.FindClosest(0), nullptr);
  cells.Add("far", 1 << 30, 0, 0);
  EXPECT_EQ(cells.FindClosest(0), nullptr);  // exactly 2^30 away: not strictly less
  EXPECT_NE(cells.FindClosest(1), nullptr);
  EXPECT_TRUE(host.Messages.Shown.empty());
}

TEST_F(CellCollection, FindClosestReportsOverflowForSystemColours) {
  cells.Add("White", 0xFFFFFF, 0, 0);
  EXPECT_EQ(cells.FindClosest(static_cast<OLE_COLOR>(0x80000010)), nullptr);
  EXPECT_EQ(LastMessage(), "Error Number: 6\r\nModule: CColorboxCol\r\nProcedure: FindClosest\r\n\r\nOverflow\r\n");
}

TEST_F(CellCollection, GetObjectUsesInclusiveBoundsAndTheFirstHitWins) {
  const CellPtr left = cells.Add("left", 1, 0, 0);
  const CellPtr right = cells.Add("right", 2, 0, 0);
  left->SetBounds(10, 10, 22, 22);
  right->SetBounds(22, 10, 34, 22);
  EXPECT_EQ(cells.GetObject(10, 10), left);
  EXPECT_EQ(cells.GetObject(22, 22), left);  // shared edge: the earlier cell
  EXPECT_EQ(cells.GetObject(23, 15), right);
  EXPECT_EQ(cells.GetObject(34, 22), right);
  EXPECT_EQ(cells.GetObject(35, 22), nullptr);
  EXPECT_EQ(cells.GetObject(9, 15), nullptr);
  EXPECT_EQ(cells.GetObject(15, 23), nullptr);
}

TEST_F(CellCollection, UndrawnCellsMatchOnlyTheOrigin) {
  const CellPtr undrawn = cells.Add("u", 1, 5, 5);
  EXPECT_EQ(cells.GetObject(0, 0), undrawn);
  EXPECT_EQ(cells.GetObject(1, 0), nullptr);
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
