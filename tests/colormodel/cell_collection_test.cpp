#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "colormodel/CColorboxCol.h"
#include "support/TestHost.h"

namespace lumo {
namespace {

using Texts = std::vector<std::string>;

class CellCollection : public ::testing::Test {
 protected:
  Texts Names() const {
    Texts names;
    for (const auto& cell : cells) names.push_back(cell->Name());
    return names;
  }
  std::string LastMessage() const { return host.Messages.Prompts().empty() ? "" : host.Messages.Prompts().back(); }

  testing::TestHost host;
  CColorboxCol cells{host.Errors()};
};

TEST_F(CellCollection, AddRemoveAndClearKeepOrderIndicesAndParents) {
  const CellPtr a = cells.Add("a", 0, 1, 2);
  CellPtr b = cells.Add("b", 0xFF, 3, 4, true);
  const CellPtr c = cells.Add("c", 0xFF, 0, 0);
  const CellPtr d = cells.Add("d", 0, 0, 0);
  EXPECT_EQ(cells.NewIndex(), 4);
  EXPECT_EQ((std::vector<std::int32_t>{a->X(), a->Y(), b->X(), b->Y()}), (std::vector<std::int32_t>{1, 2, 3, 4}));
  EXPECT_TRUE(b->IsLarge() && !a->IsLarge());
  EXPECT_EQ(cells.Item(1), a);
  EXPECT_EQ(c->Index(), 3);  // by identity: b has the same colour
  cells.Remove(2);
  EXPECT_EQ(Names(), (Texts{"a", "c", "d"}));
  EXPECT_EQ(cells.NewIndex(), 0);
  EXPECT_EQ(b->Parent(), nullptr);
  EXPECT_EQ((std::vector<std::int32_t>{c->Index(), d->Index()}), (std::vector<std::int32_t>{2, 3}));
  CColorboxCol other(host.Errors());
  const CellPtr stranger = other.Add("s", 0, 0, 0);
  stranger->SetParent(&cells);  // named as a parent, yet not among its cells
  EXPECT_EQ(stranger->Index(), 0);
  d->SetParent(&other);
  EXPECT_EQ(d->Index(), 0);
  cells.Clear();
  cells.Clear();
  EXPECT_EQ(cells.Count(), 0);
  EXPECT_TRUE(a->Parent() == nullptr && c->Parent() == nullptr);
  {
    CColorboxCol shortLived(host.Errors());
    b = shortLived.Add("b", 1, 0, 0);
  }
  EXPECT_EQ(b->Parent(), nullptr);  // the cell outlives its list
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

constexpr auto kSystemColor = static_cast<OLE_COLOR>(0x80000010);

// By the difference of the packed numbers (not of the components), strictly less than
// 2^30, so the earliest of equal distances wins; a system colour overflows.
TEST_F(CellCollection, FindClosestComparesPackedNumbersAndTheEarliestOfEqualsWins) {
  const struct {
    std::vector<OLE_COLOR> colors;
    OLE_COLOR target;
    std::int32_t found;  // 1-based; 0 when nothing is found
  } cases[] = {{{0, 0xFF}, 0x010000, 2}, {{10, 30, 20}, 20, 3}, {{10, 30, 20}, 25, 2}, {{10, 30, 20}, 15, 1},
               {{}, 0, 0}, {{1 << 30}, 0, 0}, {{1 << 30}, 1, 1}, {{0xFFFFFF}, kSystemColor, 0}};
  for (const auto& c : cases) {
    cells.Clear();
    for (const OLE_COLOR color : c.colors) cells.Add("", color, 0, 0);
    const CellPtr cell = cells.FindClosest(c.target);
    EXPECT_EQ(cell ? cell->Index() : 0, c.found) << c.target;
  }
  EXPECT_EQ(host.Messages.Shown.size(), 1u);
  EXPECT_EQ(LastMessage(), "Error Number: 6\r\nModule: CColorboxCol\r\nProcedure: FindClosest\r\n\r\nOverflow\r\n");
}

TEST_F(CellCollection, LookupsByPointUseInclusiveBoundsAndByColourFindTheFirst) {
  const CellPtr left = cells.Add("left", 0xFF6666, 0, 0);
  const CellPtr right = cells.Add("right", 0xFF6666, 0, 0);
  const CellPtr undrawn = cells.Add("undrawn", 3, 5, 5);
  left->SetBounds(10, 10, 22, 22);
  right->SetBounds(22, 10, 34, 22);
  const std::vector<std::pair<Point, CellPtr>> hits{
      {{10, 10}, left}, {{22, 22}, left}, {{23, 15}, right}, {{34, 22}, right}, {{35, 22}, nullptr},
      {{9, 15}, nullptr}, {{15, 23}, nullptr}, {{0, 0}, undrawn}, {{1, 0}, nullptr}};
  for (const auto& [p, cell] : hits) EXPECT_EQ(cells.GetObject(p.X, p.Y), cell) << p.X << "," << p.Y;
  EXPECT_EQ(cells.GetObjectByColor(0xFF6666), left);
  EXPECT_EQ(cells.GetObjectByColor(0xFF6667), nullptr);
  EXPECT_TRUE(cells.ColorExists(3));
  EXPECT_FALSE(cells.ColorExists(0));
}

// Red first, two upper-case digits per component; a colour out of range is reported
// under the cell's name.
TEST(CellColorText, GivesTheComponentsOrAReportUnderTheCellsName) {
  const struct {
    OLE_COLOR color;
    const char *commaText, *hashText;  // "" with a report of the invalid argument
  } cases[] = {{0, "00,00,00", "#000000"},          {RGB(0x40, 0x80, 0xC0), "40,80,C0", "#4080C0"},
               {0xFFFFFF, "FF,FF,FF", "#FFFFFF"},   {0x01000000, "", ""},
               {-1, "", ""},                        {kSystemColor, "", ""}};
  for (const auto& c : cases) {
    testing::TestHost host;
    CColorboxEl cell(host.Errors());
    cell.SetName("Red");
    cell.SetColor(c.color);
    EXPECT_EQ(cell.GetColorString(), c.commaText);
    EXPECT_EQ(cell.GetColorStringHex(), c.hashText);
    const Texts reports{"Error Number: 5\r\nModule: Red\r\nProcedure: GetColorString\r\n\r\nInvalid argument\r\n",
                        "Error Number: 5\r\nModule: Red\r\nProcedure: GetColorStringHex\r\n\r\nInvalid argument\r\n"};
    EXPECT_EQ(host.Messages.Prompts(), *c.commaText ? Texts{} : reports) << c.color;
  }
}

}  // namespace
}  // namespace lumo
