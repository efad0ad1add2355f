// The spreadsheet engine beside libxlsxwriter on the same 10,000 x 12 cells:
// the engine fills the BOM template as .xls and as .xlsx and saves it,
// libxlsxwriter writes a new .xlsx with constant_memory. The writers take
// turns round after round in one process, so a load that comes and goes on
// the machine falls on all of them alike.
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "TextCodec.h"
#include "Workbook.h"

#ifdef BOM_HAVE_LIBXLSXWRITER
#include <xlsxwriter.h>
#endif

namespace {

constexpr int kRows = 10000;
constexpr int kColumns = 12;
constexpr int kFirstRow = 4;

using Rows = std::vector<std::vector<std::wstring>>;

// The cells of bench/WorkbookBench.cpp: numbers, level texts, drawing
// numbers, Chinese names.
Rows BomRows() {
  Rows rows;
  for (int i = 1; i <= kRows; ++i) {
    std::wstring n = std::to_wstring(i);
    rows.push_back({n, L"1." + std::to_wstring(i % 40), L"GB-" + n, L"齿轮轴", std::to_wstring(i % 7 + 1),
                    L"45", L"1.25", L"2.5", L"自制", L"SHAFT_" + n, L"120x40x40", L"减速器"});
  }
  return rows;
}

void WriteEngine(const std::filesystem::path& templateFile, const Rows& rows,
                 const std::filesystem::path& out) {
  std::unique_ptr<workbook::Workbook> book = workbook::OpenWorkbook(templateFile);
  for (int r = 0; r < kRows; ++r) {
    for (int c = 0; c < kColumns; ++c) book->SetCellText(L"bom", kFirstRow + r, c + 1, rows[r][c]);
  }
  book->SaveAs(out);
}

#ifdef BOM_HAVE_LIBXLSXWRITER
// A text the engine stores as a number goes in as a number here too.
struct PeerCell {
  bool isNumber = false;
  double number = 0;
  std::string text;
};

std::vector<std::vector<PeerCell>> PeerCells(const Rows& rows) {
  std::vector<std::vector<PeerCell>> cells;
  for (const auto& row : rows) {
    std::vector<PeerCell>& out = cells.emplace_back();
    for (const std::wstring& text : row) {
      PeerCell cell;
      std::string utf8 = workbook::ToUtf8(text);
      char* end = nullptr;
      cell.number = std::strtod(utf8.c_str(), &end);
      cell.isNumber = !utf8.empty() && *end == '\0';
      cell.text = std::move(utf8);
      out.push_back(std::move(cell));
    }
  }
  return cells;
}

void WritePeer(const std::vector<std::vector<PeerCell>>& cells, const std::filesystem::path& out) {
  lxw_workbook_options options{};
  options.constant_memory = LXW_TRUE;
  lxw_workbook* book = workbook_new_opt(out.c_str(), &options);
  lxw_worksheet* sheet = workbook_add_worksheet(book, "bom");
  for (int r = 0; r < kRows; ++r) {
    for (int c = 0; c < kColumns; ++c) {
      const PeerCell& cell = cells[r][c];
      if (cell.isNumber) {
        worksheet_write_number(sheet, kFirstRow - 1 + r, c, cell.number, nullptr);
      } else {
        worksheet_write_string(sheet, kFirstRow - 1 + r, c, cell.text.c_str(), nullptr);
      }
    }
  }
  if (workbook_close(book) != LXW_NO_ERROR) throw std::runtime_error("libxlsxwriter failed");
}
#endif

struct Writer {
  std::string name;
  std::function<void()> write;
  std::vector<double> milliseconds = {};
};

}  // namespace

int main(int argc, char** argv) {
  // Arguments: the rounds, and a text that picks the writers whose names hold
  // it (for a profiler's run of one).
  int rounds = argc > 1 ? std::atoi(argv[1]) : 10;
  std::string only = argc > 2 ? argv[2] : "";
  const Rows rows = BomRows();
  std::filesystem::path directory =
      std::filesystem::temp_directory_path() / ("bom-peer-bench-" + std::to_string(::getpid()));
  std::filesystem::create_directories(directory);

  std::vector<Writer> writers;
  writers.push_back({"engine .xls (BOM.xls)",
                     [&] { WriteEngine(BOM_TEMPLATE_DIR "/BOM.xls", rows, directory / "engine.xls"); }});
  writers.push_back(
      {"engine .xlsx (BOM.xlsx)", [&] { WriteEngine(BOM_XLSX_TEMPLATE, rows, directory / "engine.xlsx"); }});
#ifdef BOM_HAVE_LIBXLSXWRITER
  const auto peerCells = PeerCells(rows);
  writers.push_back(
      {"libxlsxwriter constant_memory", [&] { WritePeer(peerCells, directory / "peer.xlsx"); }});
#else
  std::printf("libxlsxwriter was not found when this was built: its writer is left out\n");
#endif

  std::erase_if(writers, [&](const Writer& writer) { return writer.name.find(only) == std::string::npos; });
  for (int round = 0; round < rounds; ++round) {
    for (Writer& writer : writers) {
      auto start = std::chrono::steady_clock::now();
      writer.write();
      std::chrono::duration<double, std::milli> spent = std::chrono::steady_clock::now() - start;
      writer.milliseconds.push_back(spent.count());
    }
  }
  std::filesystem::remove_all(directory);

  std::printf("%d rounds of %d x %d cells, ms per file\n", rounds, kRows, kColumns);
  std::printf("%-32s %8s %8s %8s\n", "writer", "min", "median", "max");
  for (Writer& writer : writers) {
    std::vector<double>& ms = writer.milliseconds;
    std::sort(ms.begin(), ms.end());
    std::printf("%-32s %8.1f %8.1f %8.1f\n", writer.name.c_str(), ms.front(), ms[ms.size() / 2], ms.back());
  }
  return 0;
}
