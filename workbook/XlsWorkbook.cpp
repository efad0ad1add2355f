#include "XlsWorkbook.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "CellValues.h"
#include "TextCodec.h"

namespace workbook {

using namespace biff;

namespace {

constexpr int kRowLimit = 65536;
constexpr int kColumnLimit = 256;
constexpr size_t kMaxCellText = 32767;
constexpr uint16_t kDefaultCellFormat = 15;
constexpr size_t kLargestCellRecord = 14;  // NUMBER: row, column, format, value
constexpr uint8_t kBoundSheetWorksheet = 0;
constexpr uint8_t kPtgExp = 0x01;
constexpr size_t kFormulaExpressionOffset = 20;  // cce, then the parsed expression
constexpr size_t kIndexFixedSize = 16;
constexpr size_t kIndexDefColWidthField = 12;

struct Walk {
  int depth = 0;
  // The nesting level of `record`: 1 for the sheet's own records, more inside
  // an embedded chart. Call once per record, in order.
  int Enter(const Record& record) {
    if (record.type == kBof) ++depth;
    int level = depth;
    if (record.type == kEof) --depth;
    return level;
  }
};

size_t FindRecordAt(const RecordList& stream, size_t position) {
  auto it = std::lower_bound(stream.positions.begin(), stream.positions.end(), position);
  if (it == stream.positions.end() || *it != position) {
    throw Error("damaged workbook: a sheet's offset points at no record");
  }
  return static_cast<size_t>(it - stream.positions.begin());
}

std::string Quoted(std::wstring_view name) { return "\"" + ToUtf8(name) + "\""; }

bool HoldsRecord(const CellEntry& entry, std::initializer_list<uint16_t> types) {
  return std::any_of(entry.records.begin(), entry.records.end(), [&](const Record& record) {
    return std::find(types.begin(), types.end(), record.type) != types.end();
  });
}

// Excel refuses to change part of an array, and the anchor of a shared
// formula carries the formula of every cell that refers to it. A cell inside
// an array refers to its anchor by a single PtgExp.
bool BelongsToFormulaGroup(const CellTable& cells, uint16_t row, uint16_t column) {
  const CellEntry* entry = cells.Find(row, column);
  if (!entry) return false;
  if (HoldsRecord(*entry, {kArray, kShrFmla, kTable})) return true;
  const Bytes& cell = entry->records.front().data;
  if (entry->records.front().type != kFormula || cell.size() < kFormulaExpressionOffset + 7 ||
      GetU16(cell, kFormulaExpressionOffset) != 5 || cell[kFormulaExpressionOffset + 2] != kPtgExp) {
    return false;
  }
  const CellEntry* anchor =
      cells.Find(GetU16(cell, kFormulaExpressionOffset + 3), GetU16(cell, kFormulaExpressionOffset + 5));
  return anchor && HoldsRecord(*anchor, {kArray});
}

}  // namespace

XlsWorkbook::XlsWorkbook(const Bytes& image) : file_(CompoundFile::Read(image)) {
  const CompoundEntry* stream = file_.FindStream("Workbook");
  if (!stream) {
    if (file_.FindStream("Book")) throw Error("an Excel 5/95 workbook (BIFF5) is not supported");
    throw Error("the compound file holds no workbook stream");
  }
  RecordList list = SplitRecords(stream->data);
  if (list.records.empty() || list.records[0].type != kBof)
    throw Error("damaged workbook stream: no BOF record");
  if (GetU16(list.records[0].data, 0) != kBiff8Version) {
    throw Error("a workbook older than Excel 97 (before BIFF8) is not supported");
  }
  if (GetU16(list.records[0].data, 2) != kWorkbookGlobals) throw Error("damaged workbook stream: no globals");

  auto eof =
      std::find_if(list.records.begin(), list.records.end(), [](const Record& r) { return r.type == kEof; });
  if (eof == list.records.end()) throw Error("damaged workbook stream: the globals have no end");
  ReadGlobals(list, static_cast<size_t>(eof - list.records.begin()));

  for (size_t i = 0; i < globals_.size(); ++i) {
    if (globals_[i].type == kBoundSheet) ReadSheet(list, i, GetU32(globals_[i].data, 0));
  }
  std::vector<size_t> order(sheets_.size());
  for (size_t i = 0; i < order.size(); ++i) order[i] = i;
  std::vector<size_t> positions;
  for (const Sheet& sheet : sheets_) positions.push_back(GetU32(globals_[sheet.boundSheet].data, 0));
  std::sort(order.begin(), order.end(), [&](size_t a, size_t b) { return positions[a] < positions[b]; });
  for (size_t i = 1; i < order.size(); ++i) {
    if (positions[order[i]] == positions[order[i - 1]])
      throw Error("damaged workbook: two sheets share a substream");
  }
  std::vector<Sheet> inStreamOrder;
  for (size_t index : order) inStreamOrder.push_back(std::move(sheets_[index]));
  sheets_ = std::move(inStreamOrder);
}

void XlsWorkbook::ReadGlobals(const RecordList& stream, size_t globalsEnd) {
  for (size_t i = 0; i <= globalsEnd; ++i) {
    const Record& record = stream.records[i];
    switch (record.type) {
      case kFilePass:
        throw Error("the workbook is encrypted (protected by a password) and cannot be read");
      case kXf:
        numberFormatOfXf_.push_back(GetU16(record.data, 2));
        break;
      case kFormat: {
        ByteReader reader(record.data);
        uint16_t id = reader.U16();
        if (IsTextFormatCode(FromUtf16(ReadUnicodeString(reader)))) textNumberFormats_.insert(id);
        break;
      }
      case kSst: {
        std::vector<Record> continues;
        for (size_t k = i + 1; k <= globalsEnd && stream.records[k].type == kContinue; ++k) {
          continues.push_back(stream.records[k]);
        }
        strings_ = SharedStrings::Parse(record, continues);
        hadSharedStrings_ = true;
        break;
      }
      default:
        break;
    }
    globals_.push_back(record);
  }
}

void XlsWorkbook::ReadSheet(const RecordList& stream, size_t boundSheet, size_t position) {
  ByteReader reader(globals_[boundSheet].data);
  reader.Skip(5);
  uint8_t kind = reader.U8();
  Sheet sheet;
  sheet.name = FromUtf16(ReadShortUnicodeString(reader));
  sheet.boundSheet = boundSheet;

  size_t first = FindRecordAt(stream, position);
  if (stream.records[first].type != kBof) throw Error("damaged workbook: a sheet's offset points at no BOF");
  Walk walk;
  size_t end = first;
  while (end < stream.records.size() &&
         !(walk.Enter(stream.records[end]) == 1 && stream.records[end].type == kEof)) {
    ++end;
  }
  if (end == stream.records.size())
    throw Error("damaged workbook: sheet " + Quoted(sheet.name) + " has no end");
  sheet.records.assign(stream.records.begin() + first, stream.records.begin() + end + 1);
  sheet.isWorksheet = kind == kBoundSheetWorksheet && GetU16(sheet.records[0].data, 2) == kWorksheet;

  if (sheet.isWorksheet) {
    sheet.cells = CellTable::Read(sheet.records);
    sheet.readRowLimit = sheet.cells.RowLimit();
    Walk levels;
    for (const Record& record : sheet.records) {
      if (levels.Enter(record) != 1) continue;
      if (record.type == kColInfo) {
        sheet.columnFormats.push_back(
            {GetU16(record.data, 0), GetU16(record.data, 2), GetU16(record.data, 6)});
      } else if (record.type == kDefaultRowHeight) {
        sheet.defaultRowHeight = GetU16(record.data, 2);
      }
    }
  }
  sheets_.push_back(std::move(sheet));
}

std::vector<std::wstring> XlsWorkbook::SheetNames() const {
  // BOUNDSHEET records stand in tab order.
  std::vector<std::pair<size_t, std::wstring>> byTab;
  for (const Sheet& sheet : sheets_) byTab.emplace_back(sheet.boundSheet, sheet.name);
  std::sort(byTab.begin(), byTab.end());
  std::vector<std::wstring> names;
  for (auto& [tab, name] : byTab) names.push_back(std::move(name));
  return names;
}

const XlsWorkbook::Sheet& XlsWorkbook::FindWorksheet(std::wstring_view name) const {
  for (const Sheet& sheet : sheets_) {
    if (!SameSheetName(sheet.name, name)) continue;
    if (!sheet.isWorksheet) throw Error("sheet " + Quoted(name) + " is not a worksheet");
    return sheet;
  }
  throw Error("the workbook has no sheet named " + Quoted(name));
}

XlsWorkbook::Sheet& XlsWorkbook::FindWorksheet(std::wstring_view name) {
  return const_cast<Sheet&>(std::as_const(*this).FindWorksheet(name));
}

uint16_t XlsWorkbook::FormatForNewCell(const Sheet& sheet, uint16_t row, uint16_t column) const {
  if (auto rowFormat = sheet.cells.RowFormat(row)) return *rowFormat;
  if (sheet.modelRow && row >= sheet.readRowLimit) {
    if (auto model = sheet.cells.CellFormat(*sheet.modelRow, column)) return *model;
  }
  for (const ColumnFormat& columns : sheet.columnFormats) {
    if (columns.first <= column && column <= columns.last) return columns.format;
  }
  return kDefaultCellFormat;
}

bool XlsWorkbook::IsTextFormat(uint16_t cellFormat) const {
  if (cellFormat >= numberFormatOfXf_.size()) return false;
  uint16_t numberFormat = numberFormatOfXf_[cellFormat];
  return numberFormat == kBuiltInTextFormat || textNumberFormats_.count(numberFormat);
}

void XlsWorkbook::SetCellText(std::wstring_view sheetName, int row, int column, std::wstring_view text) {
  Sheet& sheet = FindWorksheet(sheetName);
  CheckCellRange(row, column, kRowLimit, kColumnLimit);
  auto r = static_cast<uint16_t>(row - 1);
  auto c = static_cast<uint16_t>(column - 1);

  if (BelongsToFormulaGroup(sheet.cells, r, c)) {
    throw Error("cell (row " + std::to_string(row) + ", column " + std::to_string(column) + ") of sheet " +
                Quoted(sheetName) + " belongs to an array or shared formula and cannot be overwritten");
  }

  std::u16string units = ToUtf16(text);
  if (units.size() > kMaxCellText) throw Error("a cell text is longer than 32767 characters");
  uint16_t cellFormat = sheet.cells.CellFormat(r, c).value_or(FormatForNewCell(sheet, r, c));
  Record record;
  record.data.reserve(kLargestCellRecord);
  PutU16(record.data, r);
  PutU16(record.data, c);
  PutU16(record.data, cellFormat);
  std::optional<double> number = IsTextFormat(cellFormat) ? std::nullopt : ParseTypedNumber(text);
  if (text.empty()) {
    record.type = kBlank;
  } else if (number) {
    record.type = kNumber;
    PutF64(record.data, *number);
  } else {
    record.type = kLabelSst;
    PutU32(record.data, strings_.Add(units));
  }
  sheet.cells.Put(r, c, std::move(record));
  sheet.changed = true;
}

void XlsWorkbook::SetModelRow(std::wstring_view sheetName, int row) {
  Sheet& sheet = FindWorksheet(sheetName);
  CheckCellRange(row, 1, kRowLimit, kColumnLimit);
  sheet.modelRow = static_cast<uint16_t>(row - 1);
}

std::wstring XlsWorkbook::GetCellText(std::wstring_view sheetName, int row, int column) const {
  const Sheet& sheet = FindWorksheet(sheetName);
  CheckCellRange(row, column, kRowLimit, kColumnLimit);
  CellContent content =
      sheet.cells.Content(static_cast<uint16_t>(row - 1), static_cast<uint16_t>(column - 1), strings_);
  switch (content.kind) {
    case CellContent::Kind::Number:
      return FormatNumber(content.number);
    case CellContent::Kind::Text:
      return FromUtf16(content.text);
    case CellContent::Kind::Boolean:
      return content.boolean ? L"TRUE" : L"FALSE";
    case CellContent::Kind::Error:
      return FromUtf16(ErrorText(content.error));
    case CellContent::Kind::Empty:
      break;
  }
  return L"";
}

std::vector<Record> XlsWorkbook::RebuiltSheet(const Sheet& sheet) const {
  CellTable::Written table = sheet.cells.Write(sheet.defaultRowHeight);
  Record index{kIndex, {}};
  PutU32(index.data, 0);
  PutU32(index.data, table.firstRow);
  PutU32(index.data, table.rowLimit);
  PutU32(index.data, 0);
  index.data.resize(kIndexFixedSize + 4 * table.blocks);

  bool hasIndex = std::any_of(sheet.records.begin(), sheet.records.end(),
                              [](const Record& record) { return record.type == kIndex; });
  std::vector<Record> out;
  bool tableWritten = false;
  auto writeTable = [&] {
    out.push_back(table.dimensions);
    out.insert(out.end(), std::make_move_iterator(table.records.begin()),
               std::make_move_iterator(table.records.end()));
    tableWritten = true;
  };
  bool afterCellRecord = false;
  Walk walk;
  for (const Record& record : sheet.records) {
    int level = walk.Enter(record);
    if (level == 1) {
      bool isTableRecord = IsCellTableRecord(record.type) || (record.type == kContinue && afterCellRecord);
      afterCellRecord = isTableRecord;
      if (isTableRecord) continue;
      if (record.type == kIndex) {
        out.push_back(index);
        continue;
      }
      if (record.type == kDimensions) {
        if (!tableWritten) writeTable();
        continue;
      }
      if ((record.type == kWindow2 || record.type == kEof) && !tableWritten) writeTable();
    }
    out.push_back(record);
    if (level == 1 && record.type == kBof && !hasIndex) out.push_back(index);
  }
  return out;
}

void XlsWorkbook::WriteSheet(Bytes& stream, std::vector<Record> records) const {
  size_t dbCellCount = 0;
  Walk counting;
  for (const Record& record : records) dbCellCount += counting.Enter(record) == 1 && record.type == kDbCell;

  constexpr size_t kNone = static_cast<size_t>(-1);
  size_t indexAt = kNone;
  size_t defColWidthAt = kNone;
  size_t dimensionsAt = kNone;
  std::vector<size_t> dbCellsAt;
  Walk walk;
  for (Record& record : records) {
    if (walk.Enter(record) == 1) {
      if (record.type == kIndex && indexAt == kNone) {
        indexAt = stream.size();
        record.data.resize(kIndexFixedSize + 4 * dbCellCount);
      } else if (record.type == kDbCell) {
        dbCellsAt.push_back(stream.size());
      } else if (record.type == kDefColWidth && defColWidthAt == kNone) {
        defColWidthAt = stream.size();
      } else if (record.type == kDimensions && dimensionsAt == kNone) {
        dimensionsAt = stream.size();
      }
    }
    AppendRecord(stream, record);
  }
  if (indexAt == kNone) return;
  size_t fields = indexAt + kRecordHeaderSize;
  size_t columnWidths = defColWidthAt != kNone ? defColWidthAt : dimensionsAt != kNone ? dimensionsAt : 0;
  SetU32(stream, fields + kIndexDefColWidthField, static_cast<uint32_t>(columnWidths));
  for (size_t k = 0; k < dbCellsAt.size(); ++k) {
    SetU32(stream, fields + kIndexFixedSize + 4 * k, static_cast<uint32_t>(dbCellsAt[k]));
  }
}

Bytes XlsWorkbook::Save() const {
  uint32_t references = 0;
  for (const Sheet& sheet : sheets_)
    references += static_cast<uint32_t>(sheet.cells.CountCellsOfType(kLabelSst));

  Bytes stream;
  std::vector<size_t> boundSheetAt(globals_.size());
  bool inSharedStrings = false;
  auto writeSharedStrings = [&] {
    SharedStrings::Written written = strings_.Write(references, stream.size());
    for (const Record& record : written.sst) AppendRecord(stream, record);
    AppendRecord(stream, written.extSst);
  };
  for (size_t i = 0; i < globals_.size(); ++i) {
    const Record& record = globals_[i];
    if (record.type == kContinue && inSharedStrings) continue;
    inSharedStrings = false;
    if (record.type == kExtSst) continue;
    if (record.type == kSst) {
      writeSharedStrings();
      inSharedStrings = true;
      continue;
    }
    if (record.type == kEof && !hadSharedStrings_ && strings_.size() > 0) writeSharedStrings();
    boundSheetAt[i] = stream.size();
    AppendRecord(stream, record);
  }

  for (const Sheet& sheet : sheets_) {
    SetU32(stream, boundSheetAt[sheet.boundSheet] + kRecordHeaderSize, static_cast<uint32_t>(stream.size()));
    WriteSheet(stream, sheet.changed ? RebuiltSheet(sheet) : sheet.records);
  }

  CompoundFile copy = file_;
  copy.FindStream("Workbook")->data = std::move(stream);
  return copy.Write();
}

}  // namespace workbook
