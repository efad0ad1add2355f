#include "BiffStructure.h"

#include "PackageParts.h"

#include <algorithm>
#include <map>
#include <vector>
#include <cstdint>
#include <fstream>
#include <set>
#include <sstream>

namespace fs = std::filesystem;

namespace {

struct RawRecord {
  size_t position;
  uint16_t type;
  std::string data;
};

uint16_t U16(const std::string& data, size_t at) {
  return at + 2 <= data.size()
             ? static_cast<uint16_t>(static_cast<uint8_t>(data[at]) | static_cast<uint8_t>(data[at + 1]) << 8)
             : 0;
}
uint32_t U32(const std::string& data, size_t at) {
  return U16(data, at) | static_cast<uint32_t>(U16(data, at + 2)) << 16;
}

bool IsCell(uint16_t type) {
  static const std::set<uint16_t> cells = {0x0201, 0x00BE, 0x0203, 0x027E, 0x00BD,
                                           0x00FD, 0x0204, 0x00D6, 0x0205, 0x0006};
  return cells.count(type) > 0;
}

class Checker {
 public:
  explicit Checker(const std::string& stream) {
    for (size_t at = 0; at + 4 <= stream.size();) {
      uint16_t size = U16(stream, at + 2);
      records_.push_back({at, U16(stream, at), stream.substr(at + 4, size)});
      at += 4 + size;
    }
    for (size_t i = 0; i < records_.size(); ++i) at_[records_[i].position] = i;
  }

  std::string Run() {
    if (records_.empty() || records_[0].type != 0x0809 || U16(records_[0].data, 0) != 0x0600) {
      Problem("the stream does not open with a BIFF8 BOF");
      return problems_.str();
    }
    size_t globalsEnd = SubstreamEnd(0);
    size_t labelCells = 0;
    std::vector<size_t> sheetStarts;
    for (size_t i = 0; i <= globalsEnd && i < records_.size(); ++i) {
      if (records_[i].type != 0x0085) continue;
      auto found = at_.find(U32(records_[i].data, 0));
      if (found == at_.end() || records_[found->second].type != 0x0809) {
        Problem("a BOUNDSHEET does not point at a BOF");
        continue;
      }
      sheetStarts.push_back(found->second);
    }
    std::sort(sheetStarts.begin(), sheetStarts.end());
    size_t expectedStart = globalsEnd + 1;
    for (size_t start : sheetStarts) {
      if (start != expectedStart) Problem("sheet substreams do not follow one another after the globals");
      size_t end = SubstreamEnd(start);
      if (U16(records_[start].data, 2) == 0x0010) labelCells += CheckWorksheet(start, end);
      expectedStart = end + 1;
    }
    CheckSharedStrings(globalsEnd, labelCells);
    return problems_.str();
  }

 private:
  void Problem(const std::string& text) { problems_ << text << "\n"; }

  // The index of the EOF that closes the substream opened at `start`.
  size_t SubstreamEnd(size_t start) {
    int depth = 0;
    for (size_t i = start; i < records_.size(); ++i) {
      if (records_[i].type == 0x0809) ++depth;
      if (records_[i].type == 0x000A && --depth == 0) return i;
    }
    Problem("a substream has no EOF");
    return records_.size() - 1;
  }

  size_t CheckWorksheet(size_t start, size_t end) {
    std::vector<size_t> top;  // the sheet's own records, charts left out
    for (size_t i = start + 1; i < end; ++i) {
      if (records_[i].type == 0x0809) {
        i = SubstreamEnd(i);
        continue;
      }
      top.push_back(i);
    }
    size_t labels = 0;
    std::vector<size_t> dbCells;
    size_t index = SIZE_MAX, dimensions = SIZE_MAX, defColWidth = SIZE_MAX;
    for (size_t k = 0; k < top.size(); ++k) {
      const RawRecord& record = records_[top[k]];
      if (record.type == 0x020B && index == SIZE_MAX) {
        index = top[k];
        if (k > 1 || (k == 1 && records_[top[0]].type != 0x005E)) Problem("INDEX does not follow BOF");
      }
      if (record.type == 0x0200 && dimensions == SIZE_MAX) dimensions = top[k];
      if (record.type == 0x0055 && defColWidth == SIZE_MAX) defColWidth = top[k];
      if (record.type == 0x00D7) dbCells.push_back(top[k]);
      if (record.type == 0x00FD) ++labels;
    }
    CheckCellTable(top, dimensions);
    if (index != SIZE_MAX) {
      const std::string& data = records_[index].data;
      size_t entries = data.size() >= 16 ? (data.size() - 16) / 4 : 0;
      if (entries != dbCells.size())
        Problem("INDEX lists " + std::to_string(entries) + " DBCELL records of " +
                std::to_string(dbCells.size()));
      for (size_t k = 0; k < std::min(entries, dbCells.size()); ++k) {
        if (U32(data, 16 + 4 * k) != records_[dbCells[k]].position)
          Problem("an INDEX entry does not point at its DBCELL");
      }
      if (defColWidth != SIZE_MAX && U32(data, 12) != records_[defColWidth].position) {
        Problem("INDEX does not point at DEFCOLWIDTH");
      }
    }
    return labels;
  }

  void CheckCellTable(const std::vector<size_t>& top, size_t dimensions) {
    uint32_t rowMin = U32(dimensions == SIZE_MAX ? "" : records_[dimensions].data, 0);
    uint32_t rowLimit = U32(dimensions == SIZE_MAX ? "" : records_[dimensions].data, 4);
    uint16_t columnMin = U16(dimensions == SIZE_MAX ? "" : records_[dimensions].data, 8);
    uint16_t columnLimit = U16(dimensions == SIZE_MAX ? "" : records_[dimensions].data, 10);
    std::vector<size_t> blockRows;  // ROW records of the block being read
    std::map<uint16_t, size_t> firstCellOfRow;
    bool cellsStarted = false;
    int lastRow = -1;
    for (size_t i : top) {
      const RawRecord& record = records_[i];
      if (record.type == 0x0208) {
        if (dimensions == SIZE_MAX || i < dimensions) Problem("a ROW record stands before DIMENSIONS");
        if (cellsStarted) Problem("a ROW record follows the cells of its block");
        blockRows.push_back(i);
      } else if (IsCell(record.type)) {
        cellsStarted = true;
        uint16_t row = U16(record.data, 0);
        uint16_t first = U16(record.data, 2);
        uint16_t last =
            record.type == 0x00BD || record.type == 0x00BE ? U16(record.data, record.data.size() - 2) : first;
        if (row < lastRow) Problem("cells are not in row order");
        lastRow = row;
        if (row < rowMin || row >= rowLimit || first < columnMin || last >= columnLimit) {
          Problem("a cell lies outside DIMENSIONS");
        }
        bool rowInBlock = std::any_of(blockRows.begin(), blockRows.end(),
                                      [&](size_t r) { return U16(records_[r].data, 0) == row; });
        if (!rowInBlock) Problem("a cell's row has no ROW record in its block");
        firstCellOfRow.emplace(row, i);
      } else if (record.type == 0x00D7) {
        CheckDbCell(i, blockRows, firstCellOfRow);
        blockRows.clear();
        firstCellOfRow.clear();
        cellsStarted = false;
      }
    }
    // A writer may leave the index out altogether, as LibreOffice does.
    bool indexed = std::any_of(top.begin(), top.end(), [&](size_t i) { return records_[i].type == 0x00D7; });
    if (indexed && !blockRows.empty()) Problem("a row block has no DBCELL");
  }

  void CheckDbCell(size_t dbCell, const std::vector<size_t>& rows,
                   const std::map<uint16_t, size_t>& firstCells) {
    const RawRecord& record = records_[dbCell];
    if (rows.empty()) {
      Problem("a DBCELL closes a block without ROW records");
      return;
    }
    if (record.position - U32(record.data, 0) != records_[rows.front()].position)
      Problem("DBCELL does not point at its first ROW");
    if ((record.data.size() - 4) / 2 != rows.size()) Problem("DBCELL has not one offset per row");
    size_t anchor = records_[rows.front()].position + 4 + records_[rows.front()].data.size();
    for (size_t k = 0; k < rows.size() && 4 + 2 * k + 2 <= record.data.size(); ++k) {
      uint16_t offset = U16(record.data, 4 + 2 * k);
      auto cell = firstCells.find(U16(records_[rows[k]].data, 0));
      if (cell == firstCells.end()) {
        if (offset != 0) Problem("DBCELL gives an offset for a row without cells");
        continue;
      }
      if (anchor + offset != records_[cell->second].position)
        Problem("a DBCELL offset misses its row's first cell");
      anchor = records_[cell->second].position;
    }
  }

  void CheckSharedStrings(size_t globalsEnd, size_t labelCells) {
    size_t sst = SIZE_MAX;
    for (size_t i = 0; i <= globalsEnd; ++i) {
      if (records_[i].type == 0x00FC) sst = i;
    }
    if (sst == SIZE_MAX) {
      if (labelCells) Problem("LABELSST cells without an SST");
      return;
    }
    std::vector<size_t> chunks{sst};
    for (size_t i = sst + 1; i <= globalsEnd && records_[i].type == 0x003C; ++i) chunks.push_back(i);
    size_t total = U32(records_[sst].data, 0);
    size_t unique = U32(records_[sst].data, 4);
    if (total != labelCells)
      Problem("SST counts " + std::to_string(total) + " references, the sheets hold " +
              std::to_string(labelCells));

    // Where each string starts: stream position and the record holding it.
    std::vector<std::pair<size_t, size_t>> starts;
    size_t chunk = 0, offset = 8;
    auto byte = [&]() -> int {
      while (chunk < chunks.size() && offset >= records_[chunks[chunk]].data.size()) {
        ++chunk;
        offset = 0;
      }
      if (chunk == chunks.size()) return -1;
      return static_cast<uint8_t>(records_[chunks[chunk]].data[offset++]);
    };
    auto skip = [&](size_t count) {
      for (size_t i = 0; i < count; ++i) byte();
    };
    size_t parsed = 0;
    for (; parsed < unique; ++parsed) {
      while (chunk < chunks.size() && offset >= records_[chunks[chunk]].data.size()) {
        ++chunk;
        offset = 0;
      }
      if (chunk == chunks.size()) break;
      starts.emplace_back(records_[chunks[chunk]].position + 4 + offset, records_[chunks[chunk]].position);
      size_t count = byte() | byte() << 8;
      int flags = byte();
      size_t runs = flags & 8 ? (byte() | byte() << 8) : 0;
      size_t phonetic = 0;
      if (flags & 4) phonetic = byte() | byte() << 8 | byte() << 16 | static_cast<size_t>(byte()) << 24;
      bool high = flags & 1;
      for (size_t c = 0; c < count; ++c) {
        if (offset >= records_[chunks[chunk]].data.size()) {
          ++chunk;
          offset = 0;
          high = byte() & 1;
        }
        skip(high ? 2 : 1);
      }
      skip(4 * runs + phonetic);
    }
    if (parsed != unique)
      Problem("SST claims " + std::to_string(unique) + " strings and holds " + std::to_string(parsed));

    size_t ext = chunks.back() + 1;
    if (ext > globalsEnd || records_[ext].type != 0x00FF) {
      Problem("no EXTSST behind the SST");
      return;
    }
    const std::string& data = records_[ext].data;
    size_t bucket = U16(data, 0);
    size_t buckets = (data.size() - 2) / 8;
    if (bucket < 8 || buckets != (starts.size() + bucket - 1) / bucket)
      Problem("EXTSST has the wrong number of buckets");
    for (size_t k = 0; k < buckets && bucket >= 8 && k * bucket < starts.size(); ++k) {
      auto [position, recordStart] = starts[k * bucket];
      if (U32(data, 2 + 8 * k) != position || U16(data, 6 + 8 * k) != position - recordStart) {
        Problem("an EXTSST offset misses its string");
      }
    }
  }

  std::vector<RawRecord> records_;
  std::map<size_t, size_t> at_;
  std::ostringstream problems_;
};

// Calls `visit(substream, type, data)` for the records of the globals
// (substream 0) and of the first sheet (1).
template <typename Visit>
void VisitGlobalsAndFirstSheet(const fs::path& xls, Visit visit) {
  constexpr uint16_t kBof = 0x0809;
  constexpr uint16_t kEof = 0x000A;
  std::string stream = CompoundFileParts(xls)["Workbook"];
  int substream = -1;
  for (size_t at = 0; at + 4 <= stream.size();) {
    uint16_t type = U16(stream, at);
    std::string data = stream.substr(at + 4, U16(stream, at + 2));
    at += 4 + data.size();
    if (type == kBof) ++substream;
    visit(substream, type, data);
    if (type == kEof && substream == 1) return;
  }
}

}  // namespace

BiffPrintSetup FirstSheetPrintSetup(const fs::path& xls) {
  constexpr uint16_t kSetup = 0x00A1;
  constexpr uint16_t kWsBool = 0x0081;
  constexpr uint16_t kName = 0x0018;
  constexpr uint16_t kNameBuiltIn = 0x0020;
  constexpr char kPrintTitles = 0x07;
  constexpr uint8_t kPtgArea3d = 0x3B;
  BiffPrintSetup setup;
  VisitGlobalsAndFirstSheet(xls, [&](int substream, uint16_t type, const std::string& data) {
    if (substream == 0 && type == kName && data.size() >= 15 && (U16(data, 0) & kNameBuiltIn) &&
        data[3] == 1 && U16(data, 8) == 1) {
      size_t nameSize = data[14] & 1 ? 2 : 1;
      size_t formula = 15 + nameSize;
      if (data[15] == kPrintTitles && data.size() >= formula + 11 &&
          static_cast<uint8_t>(data[formula]) == kPtgArea3d) {
        setup.titleFirstRow = U16(data, formula + 3) + 1;
        setup.titleLastRow = U16(data, formula + 5) + 1;
      }
    } else if (substream == 1 && type == kWsBool) {
      setup.fitToPage = U16(data, 0) & 0x0100;
    } else if (substream == 1 && type == kSetup) {
      uint16_t flags = U16(data, 10);
      setup.landscape = !(flags & 0x0004) && !(flags & 0x0002);
      setup.fitWidth = U16(data, 6);
      setup.fitHeight = U16(data, 8);
    }
  });
  return setup;
}

int FirstSheetColumnWidth(const fs::path& xls, int column) {
  constexpr uint16_t kColInfo = 0x007D;
  int width = -1;
  VisitGlobalsAndFirstSheet(xls, [&](int substream, uint16_t type, const std::string& data) {
    if (substream == 1 && type == kColInfo && U16(data, 0) < column && column <= U16(data, 2) + 1)
      width = U16(data, 4);
  });
  return width;
}

std::string BiffStructureProblems(const fs::path& xls) {
  std::map<std::string, std::string> parts = CompoundFileParts(xls);
  auto stream = parts.find("Workbook");
  if (stream == parts.end()) return "no Workbook stream\n";
  return Checker(stream->second).Run();
}
