// The searches every pointer move and every colour set runs over a full palette.
#include <benchmark/benchmark.h>

#include "colormodel/CColorboxCol.h"
#include "colormodel/CommonGlobals.h"
#include "colormodel/TextRules.h"

namespace {

class SilentBox : public lumo::MessageBox {
 public:
  std::int32_t MsgBox(const std::string&, std::int32_t, const std::string&) override { return 1; }
};

// 272 cells laid out 16 to a row at an 18-pixel pitch, as the largest palette is.
void FillGrid(lumo::CColorboxCol& cells) {
  for (std::int32_t i = 0; i < 272; ++i) {
    const auto cell = cells.Add("", i * 0x010203 & 0xFFFFFF, 0, 0);
    const std::int32_t left = (i % 16) * 18 + 4;
    const std::int32_t top = (i / 16) * 18 + 5;
    cell->SetBounds(left, top, left + 12, top + 12);
  }
}

void BM_FindClosest272(benchmark::State& state) {
  SilentBox box;
  lumo::CommonGlobals errors(box);
  lumo::CColorboxCol cells(errors);
  FillGrid(cells);
  lumo::OLE_COLOR probe = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(cells.FindClosest(probe));
    probe = (probe + 0x010101) & 0xFFFFFF;
  }
}
BENCHMARK(BM_FindClosest272);

void BM_GetObjectLastCell272(benchmark::State& state) {
  SilentBox box;
  lumo::CommonGlobals errors(box);
  lumo::CColorboxCol cells(errors);
  FillGrid(cells);
  for (auto _ : state) benchmark::DoNotOptimize(cells.GetObject(15 * 18 + 10, 16 * 18 + 10));
}
BENCHMARK(BM_GetObjectLastCell272);

void BM_ColorStrings(benchmark::State& state) {
  SilentBox box;
  lumo::CommonGlobals errors(box);
  lumo::CColorboxEl cell(errors);
  cell.SetColor(0xC08040);
  for (auto _ : state) {
    benchmark::DoNotOptimize(cell.GetColorString());
    benchmark::DoNotOptimize(cell.GetColorStringHex());
  }
}
BENCHMARK(BM_ColorStrings);

void BM_HexConversion(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(lumo::text::ToLong("&hFF8000"));
}
BENCHMARK(BM_HexConversion);

}  // namespace
