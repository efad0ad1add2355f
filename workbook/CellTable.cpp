#include "CellTable.h"

#include <cmath>
#include <cstring>
#include <algorithm>
#include <iterator>

#include "Error.h"

namespace workbook::biff {
namespace {

constexpr size_t kRkItemSize = 6;  // format index and RK value
constexpr size_t kRowsPerBlock = 32;
constexpr uint32_t kRowHasFormat = 0x80;  // fGhostDirty
constexpr uint32_t kNewRowFlags = 0x000F0100;
constexpr uint16_t kRowHeightFlagsOffset = 12;
constexpr size_t kRowRecordSize = 16;

double DecodeRk(uint32_t rk) {
  double value;
  if (rk & 0x02) {
    value = static_cast<int32_t>(rk) >> 2;
  } else {
    uint64_t bits = static_cast<uint64_t>(rk & 0xFFFFFFFC) << 32;
    std::memcpy(&value, &bits, sizeof value);
  }
  return rk & 0x01 ? value / 100 : value;
}

bool IsMultiple(uint16_t type) { return type == kMulRk || type == kMulBlank; }

size_t ItemSize(uint16_t type) { return type == kMulRk ? kRkItemSize : 2; }

// A cell entry from its first record; MULRK and MULBLANK are checked to hold
// exactly one item per column they claim.
CellEntry EntryOf(const Record& record, uint16_t& row) {
  ByteReader reader(record.data);
  row = reader.U16();
  CellEntry entry;
  entry.firstColumn = reader.U16();
  entry.lastColumn = entry.firstColumn;
  if (IsMultiple(record.type)) {
    if (record.data.size() < 6) throw Error("damaged worksheet: a MULRK or MULBLANK record is too short");
    entry.lastColumn = GetU16(record.data, record.data.size() - 2);
    size_t items = (record.data.size() - 6) / ItemSize(record.type);
    if (entry.lastColumn < entry.firstColumn || (record.data.size() - 6) % ItemSize(record.type) != 0 ||
        items != size_t{entry.lastColumn} - entry.firstColumn + 1u) {
      throw Error("damaged worksheet: a MULRK or MULBLANK record does not match its columns");
    }
  } else {
    reader.U16();  // the format index must be there
  }
  entry.records.push_back(record);
  return entry;
}

// The part [first, last] of a MULRK/MULBLANK run, as one record of its own:
// RK or BLANK for a single column.
Record RunPart(const Record& run, uint16_t row, uint16_t runFirst, uint16_t first, uint16_t last) {
  size_t itemSize = ItemSize(run.type);
  auto begin = run.data.begin() + 4 + (first - runFirst) * itemSize;
  auto end = begin + (last - first + 1) * itemSize;
  Record part;
  PutU16(part.data, row);
  PutU16(part.data, first);
  part.data.insert(part.data.end(), begin, end);
  if (first == last) {
    part.type = run.type == kMulRk ? kRk : kBlank;
  } else {
    part.type = run.type;
    PutU16(part.data, last);
  }
  return part;
}

size_t RecordSize(const Record& record) { return kRecordHeaderSize + record.data.size(); }

}  // namespace

std::u16string ErrorText(uint8_t code) {
  switch (code) {
    case 0x00:
      return u"#NULL!";
    case 0x07:
      return u"#DIV/0!";
    case 0x0F:
      return u"#VALUE!";
    case 0x17:
      return u"#REF!";
    case 0x1D:
      return u"#NAME?";
    case 0x24:
      return u"#NUM!";
    default:
      return u"#N/A";
  }
}

CellTable CellTable::Read(const std::vector<Record>& sheetRecords) {
  CellTable table;
  int depth = 0;
  CellEntry* last = nullptr;
  for (const Record& record : sheetRecords) {
    if (record.type == kBof) ++depth;
    if (depth == 1 && IsCellRecord(record.type)) {
      uint16_t row = 0;
      CellEntry entry = EntryOf(record, row);
      last = &(table.rows_[row].cells[entry.firstColumn] = std::move(entry));
    } else if (depth == 1 && record.type == kRow) {
      if (record.data.size() < kRowRecordSize) throw Error("damaged worksheet: a ROW record is too short");
      table.rows_[GetU16(record.data, 0)].record = record;
      last = nullptr;
    } else if (depth == 1 && last && IsCellTableRecord(record.type) && record.type != kDbCell) {
      last->records.push_back(record);
    } else if (depth == 1 && last && record.type == kContinue) {
      last->records.push_back(record);
    } else {
      last = nullptr;
    }
    if (record.type == kEof) --depth;
  }
  return table;
}

const CellEntry* CellTable::Find(uint16_t row, uint16_t column) const {
  auto rowIt = rows_.find(row);
  if (rowIt == rows_.end()) return nullptr;
  const auto& cells = rowIt->second.cells;
  auto it = cells.upper_bound(column);
  if (it == cells.begin()) return nullptr;
  --it;
  return it->second.lastColumn >= column ? &it->second : nullptr;
}

std::optional<uint16_t> CellTable::CellFormat(uint16_t row, uint16_t column) const {
  const CellEntry* entry = Find(row, column);
  if (!entry) return std::nullopt;
  const Record& record = entry->records.front();
  if (!IsMultiple(record.type)) return GetU16(record.data, 4);
  return GetU16(record.data, 4 + (column - entry->firstColumn) * ItemSize(record.type));
}

std::optional<uint16_t> CellTable::RowFormat(uint16_t row) const {
  auto it = rows_.find(row);
  if (it == rows_.end() || !it->second.record) return std::nullopt;
  uint32_t flags = GetU32(it->second.record->data, kRowHeightFlagsOffset);
  if (!(flags & kRowHasFormat)) return std::nullopt;
  return static_cast<uint16_t>(flags >> 16 & 0x0FFF);
}

CellContent CellTable::Content(uint16_t row, uint16_t column, const SharedStrings& strings) const {
  CellContent content;
  const CellEntry* entry = Find(row, column);
  if (!entry) return content;
  const Record& record = entry->records.front();
  ByteReader reader(record.data);
  reader.Skip(4);
  switch (record.type) {
    case kNumber:
      reader.U16();
      content.kind = CellContent::Kind::Number;
      content.number = reader.F64();
      break;
    case kRk:
      reader.U16();
      content.kind = CellContent::Kind::Number;
      content.number = DecodeRk(reader.U32());
      break;
    case kMulRk:
      reader.Skip((column - entry->firstColumn) * kRkItemSize + 2);
      content.kind = CellContent::Kind::Number;
      content.number = DecodeRk(reader.U32());
      break;
    case kLabelSst:
      reader.U16();
      content.kind = CellContent::Kind::Text;
      content.text = strings.Text(reader.U32());
      break;
    case kLabel:
    case kRString:
      reader.U16();
      content.kind = CellContent::Kind::Text;
      content.text = ReadUnicodeString(reader);
      break;
    case kBoolErr: {
      reader.U16();
      uint8_t value = reader.U8();
      bool isError = reader.U8();
      content.kind = isError ? CellContent::Kind::Error : CellContent::Kind::Boolean;
      content.boolean = value != 0;
      content.error = value;
      break;
    }
    case kFormula: {
      reader.U16();
      Bytes result = reader.Take(8);
      if (GetU16(result, 6) != 0xFFFF) {
        content.kind = CellContent::Kind::Number;
        content.number = ByteReader(result).F64();
      } else if (result[0] == 0) {
        content.kind = CellContent::Kind::Text;
        for (const Record& companion : entry->records) {
          if (companion.type != kString) continue;
          ByteReader stringReader(companion.data);
          content.text = ReadUnicodeString(stringReader);
        }
      } else if (result[0] == 1) {
        content.kind = CellContent::Kind::Boolean;
        content.boolean = result[2] != 0;
      } else if (result[0] == 2) {
        content.kind = CellContent::Kind::Error;
        content.error = result[2];
      } else {
        content.kind = CellContent::Kind::Text;
      }
      break;
    }
    default:
      break;
  }
  return content;
}

void CellTable::Put(uint16_t row, uint16_t column, Record cell) {
  auto& cells = rows_[row].cells;
  if (const CellEntry* covering = Find(row, column)) {
    CellEntry old = *covering;
    cells.erase(old.firstColumn);
    const Record& run = old.records.front();
    if (IsMultiple(run.type)) {
      if (old.firstColumn < column) {
        uint16_t last = column - 1;
        cells[old.firstColumn] = {
            old.firstColumn, last, {RunPart(run, row, old.firstColumn, old.firstColumn, last)}};
      }
      if (column < old.lastColumn) {
        uint16_t first = column + 1;
        cells[first] = {first, old.lastColumn, {RunPart(run, row, old.firstColumn, first, old.lastColumn)}};
      }
    }
  }
  CellEntry& entry = cells[column];
  entry = {column, column, {}};
  entry.records.push_back(std::move(cell));
}

size_t CellTable::CountCellsOfType(uint16_t type) const {
  size_t count = 0;
  for (const auto& [index, row] : rows_) {
    for (const auto& [column, entry] : row.cells) count += entry.records.front().type == type;
  }
  return count;
}

uint32_t CellTable::RowLimit() const { return rows_.empty() ? 0 : rows_.rbegin()->first + 1u; }

CellTable::Written CellTable::Write(uint16_t defaultRowHeight) const {
  Written written;
  uint32_t rowLimit = 0;
  uint16_t columnMin = 0xFFFF;
  uint16_t columnLimit = 0;
  bool anyCell = false;
  size_t offset = 0;  // bytes written so far

  for (auto blockStart = rows_.begin(); blockStart != rows_.end();) {
    auto blockEnd = blockStart;
    while (blockEnd != rows_.end() && blockEnd->first / kRowsPerBlock == blockStart->first / kRowsPerBlock) {
      ++blockEnd;
    }

    size_t firstRowOffset = offset;
    size_t anchor = 0;  // where the offset of the next row's first cell counts from
    for (auto it = blockStart; it != blockEnd; ++it) {
      const auto& [index, row] = *it;
      Record record;
      if (row.record) {
        record = *row.record;
      } else {
        record.type = kRow;
        PutU16(record.data, index);
        PutU16(record.data, 0);
        PutU16(record.data, 0);
        PutU16(record.data, defaultRowHeight);
        PutU32(record.data, 0);
        PutU32(record.data, kNewRowFlags);
      }
      if (!row.cells.empty()) {
        SetU16(record.data, 2, row.cells.begin()->second.firstColumn);
        SetU16(record.data, 4, static_cast<uint16_t>(std::prev(row.cells.end())->second.lastColumn + 1));
      }
      offset += RecordSize(record);
      if (it == blockStart) anchor = offset;
      written.records.push_back(std::move(record));
    }

    Record dbCell{kDbCell, {}};
    for (auto it = blockStart; it != blockEnd; ++it) {
      const auto& [index, row] = *it;
      if (row.cells.empty()) {
        PutU16(dbCell.data, 0);
        continue;
      }
      PutU16(dbCell.data, static_cast<uint16_t>(offset - anchor));
      anchor = offset;
      if (!anyCell) written.firstRow = index;
      anyCell = true;
      rowLimit = std::max<uint32_t>(rowLimit, index + 1u);
      columnMin = std::min(columnMin, row.cells.begin()->second.firstColumn);
      columnLimit = std::max<uint16_t>(columnLimit, std::prev(row.cells.end())->second.lastColumn + 1);
      for (const auto& [column, entry] : row.cells) {
        for (const Record& record : entry.records) {
          offset += RecordSize(record);
          written.records.push_back(record);
        }
      }
    }
    Bytes header;
    PutU32(header, static_cast<uint32_t>(offset - firstRowOffset));
    dbCell.data.insert(dbCell.data.begin(), header.begin(), header.end());
    offset += RecordSize(dbCell);
    ++written.blocks;
    written.records.push_back(std::move(dbCell));
    blockStart = blockEnd;
  }

  written.rowLimit = rowLimit;
  written.dimensions.type = kDimensions;
  PutU32(written.dimensions.data, written.firstRow);
  PutU32(written.dimensions.data, rowLimit);
  PutU16(written.dimensions.data, anyCell ? columnMin : 0);
  PutU16(written.dimensions.data, columnLimit);
  PutU16(written.dimensions.data, 0);
  return written;
}

}  // namespace workbook::biff
