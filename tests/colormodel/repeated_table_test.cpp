#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "colormodel/CColorboxCol.h"
#include "colormodel/Geometry.h"
#include "support/TestHost.h"

namespace lumo {
namespace {

// A table loaded again right after itself answers every request exactly as the same
// cells added one by one do, whatever is stored, held, removed or added, in whichever
// copy, before or after the second load.
struct Step {
  // l: load the table, b: SetBounds, o: bounds through an unheld object, h: hold,
  // r: release, x: Remove, a: Add
  char what;
  std::int32_t at = 0;
  Rect box{};
};

class RepeatedTable : public ::testing::TestWithParam<std::vector<Step>> {
 protected:
  void Apply(CColorboxCol& cells, std::vector<CellPtr>& held, const Step& step) {
    const Rect& b = step.box;
    switch (step.what) {
      case 'l': Load(cells); break;
      case 'b': cells.SetBounds(step.at, b.Left, b.Top, b.Right, b.Bottom); break;
      case 'o': cells.Item(step.at)->SetBounds(b.Left, b.Top, b.Right, b.Bottom); break;
      case 'h': held.push_back(cells.Item(step.at)); break;
      case 'r': held.clear(); break;
      case 'x': cells.Remove(step.at); break;
      default: cells.Add("added", 25, 0, 0); break;
    }
  }

  // What a caller sees without making objects, then hits and searches.
  static std::vector<std::int64_t> Seen(const CColorboxCol& cells) {
    std::vector<std::int64_t> seen{cells.Count(), cells.NewIndex()};
    for (std::int32_t i = 1; i <= cells.Count(); ++i) seen.push_back(cells.Face(i).Color);
    const auto indexOf = [](const CellPtr& cell) { return cell ? cell->Index() : -1; };
    for (const std::int32_t at : {0, 6, 12, 20, 31, 300}) seen.push_back(indexOf(cells.GetObject(at, at)));
    for (const OLE_COLOR color : {10, 20, 25, 40, 41}) {
      seen.push_back(indexOf(cells.GetObjectByColor(color)));
      seen.push_back(indexOf(cells.FindClosest(color)));
    }
    return seen;
  }

  static std::vector<std::int64_t> Objects(const CColorboxCol& cells) {
    std::vector<std::int64_t> seen;
    for (const CellPtr& cell : cells) {
      seen.insert(seen.end(), {cell->Index(), cell->Color(), cell->BoundLeft(), cell->BoundTop(),
                               cell->BoundRight(), cell->BoundBottom()});
    }
    return seen;
  }

  void Load(CColorboxCol& cells) {
    if (&cells == &loaded) return cells.AddAll(table);
    for (const CellFace& face : *table) cells.Add(face.Name, face.Color, face.X, face.Y);
  }

  testing::TestHost host;
  CColorboxCol loaded{host.Errors()};
  CColorboxCol added{host.Errors()};
  FaceTable table = std::make_shared<const std::vector<CellFace>>(std::vector<CellFace>{
      {"a", 10, 0, 0, false}, {"b", 20, 0, 0, false}, {"c", 30, 0, 0, false}, {"d", 40, 0, 0, false}});
};

TEST_P(RepeatedTable, AnswersAsTheSameCellsAddedOneByOne) {
  Load(loaded);
  Load(added);
  std::vector<CellPtr> heldLoaded, heldAdded;
  for (const Step& step : GetParam()) {
    Apply(loaded, heldLoaded, step);
    Apply(added, heldAdded, step);
    EXPECT_EQ(Seen(loaded), Seen(added)) << "after step '" << step.what << "' at " << step.at;
  }
  EXPECT_EQ(Objects(loaded), Objects(added));
  EXPECT_TRUE(host.Messages.Shown.empty());
}

const Rect kBox{0, 0, 8, 8};
const Rect kOther{10, 10, 25, 25};
INSTANTIATE_TEST_SUITE_P(
    Scripts, RepeatedTable,
    ::testing::Values(
        std::vector<Step>{{'l'}, {'b', 1, kBox}, {'b', 2, kOther}, {'b', 5, kBox}, {'b', 6, kOther}, {'b', 2, kBox}},
        std::vector<Step>{{'l'}, {'b', 7, kOther}, {'b', 3, kOther}, {'b', 7, kBox}, {'x', 1}, {'b', 6, kBox}},
        std::vector<Step>{{'l'}, {'h', 2}, {'b', 6, kOther}, {'o', 2, kOther}, {'r'}, {'b', 1, kBox}, {'h', 1}},
        std::vector<Step>{{'l'}, {'h', 8}, {'o', 8, kBox}, {'r'}, {'b', 4, kBox}, {'a'}, {'b', 9, kOther}},
        std::vector<Step>{{'b', 1, kBox}, {'b', 2, kOther}, {'h', 3}, {'l'}, {'b', 5, kBox}, {'r'}, {'b', 7, kBox}},
        std::vector<Step>{{'l'}, {'o', 5, kOther}, {'o', 1, kOther}, {'h', 5}, {'x', 5}, {'l'}, {'x', 4}, {'r'}}));

}  // namespace
}  // namespace lumo
