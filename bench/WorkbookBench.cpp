// A bill of materials of 10,000 rows by 12 columns written into the BOM
// template and saved, through ExcelApp as the output does it.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <filesystem>
#include <string>
#include <vector>

#include "ExcelApp.h"

namespace {

constexpr int kRows = 10000;
constexpr int kColumns = 12;
constexpr int kFirstRow = 4;

std::vector<std::vector<std::wstring>> BomRows() {
  std::vector<std::vector<std::wstring>> rows;
  for (int i = 1; i <= kRows; ++i) {
    std::wstring n = std::to_wstring(i);
    rows.push_back({n, L"1." + std::to_wstring(i % 40), L"GB-" + n, L"齿轮轴", std::to_wstring(i % 7 + 1),
                    L"45", L"1.25", L"2.5", L"自制", L"SHAFT_" + n, L"120x40x40", L"减速器"});
  }
  return rows;
}

void WriteBomToTemplate(benchmark::State& state) {
  const std::vector<std::vector<std::wstring>> rows = BomRows();
  std::filesystem::path directory =
      std::filesystem::temp_directory_path() / ("bom-bench-" + std::to_string(::getpid()));
  std::filesystem::create_directories(directory);
  const std::wstring templatePath = std::filesystem::path(BOM_TEMPLATE_DIR "/BOM.xls").wstring();
  for (auto _ : state) {
    ExcelApp excel;
    excel.StartExcel(1);
    if (!excel.NewFromTemplate(templatePath)) {
      state.SkipWithError("the template does not open");
      break;
    }
    for (int r = 0; r < kRows; ++r) {
      for (int c = 0; c < kColumns; ++c) excel.SetCellText(L"bom", kFirstRow + r, c + 1, rows[r][c]);
    }
    excel.SaveWorkbookAs(directory.wstring(), L"bench");
    excel.CloseAll();
  }
  std::filesystem::remove_all(directory);
  state.SetItemsProcessed(state.iterations() * kRows * kColumns);
}
BENCHMARK(WriteBomToTemplate)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
