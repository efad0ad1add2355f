// BIFF8 records: the units of an .xls workbook stream, their type numbers,
// and the string layouts they share.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "Bytes.h"

namespace workbook::biff {

enum RecordType : uint16_t {
  kFormula = 0x0006,
  kEof = 0x000A,
  kFilePass = 0x002F,
  kContinue = 0x003C,
  kDefColWidth = 0x0055,
  kColInfo = 0x007D,
  kBoundSheet = 0x0085,
  kMulRk = 0x00BD,
  kMulBlank = 0x00BE,
  kRString = 0x00D6,
  kDbCell = 0x00D7,
  kXf = 0x00E0,
  kSst = 0x00FC,
  kLabelSst = 0x00FD,
  kExtSst = 0x00FF,
  kDimensions = 0x0200,
  kBlank = 0x0201,
  kNumber = 0x0203,
  kLabel = 0x0204,
  kBoolErr = 0x0205,
  kString = 0x0207,
  kRow = 0x0208,
  kBof = 0x0809,
  kIndex = 0x020B,
  kArray = 0x0221,
  kDefaultRowHeight = 0x0225,
  kTable = 0x0236,
  kWindow2 = 0x023E,
  kRk = 0x027E,
  kFormat = 0x041E,
  kShrFmla = 0x04BC,
};

// The largest record body BIFF8 allows; longer data goes on in CONTINUE records.
constexpr size_t kMaxRecordData = 8224;
constexpr uint16_t kBiff8Version = 0x0600;
constexpr uint16_t kWorkbookGlobals = 0x0005;
constexpr uint16_t kWorksheet = 0x0010;

struct Record {
  uint16_t type = 0;
  Bytes data;
};

// The records of a stream and where each starts. Throws Error when a record
// runs past the end of the stream.
struct RecordList {
  std::vector<Record> records;
  std::vector<size_t> positions;
};
RecordList SplitRecords(const Bytes& stream);

void AppendRecord(Bytes& stream, const Record& record);
constexpr size_t kRecordHeaderSize = 4;

// The records that make up a sheet's cell table: ROW and DBCELL and the cells.
bool IsCellTableRecord(uint16_t type);
// The cell records proper, each naming a row and columns.
bool IsCellRecord(uint16_t type);

// XLUnicodeString (16-bit count) and ShortXLUnicodeString (8-bit count).
std::u16string ReadUnicodeString(ByteReader& reader);
std::u16string ReadShortUnicodeString(ByteReader& reader);
// Character data: compressed when every unit fits in a byte.
bool NeedsHighBytes(const std::u16string& text);
std::u16string ReadCharacters(ByteReader& reader, size_t count, bool highBytes);
void PutCharacters(Bytes& out, const std::u16string& text, bool highBytes);

}  // namespace workbook::biff
