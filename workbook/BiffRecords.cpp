#include "BiffRecords.h"

#include <algorithm>

#include "Error.h"

namespace workbook::biff {

RecordList SplitRecords(const Bytes& stream) {
  RecordList list;
  ByteReader reader(stream);
  while (reader.remaining() >= kRecordHeaderSize) {
    size_t position = reader.position();
    uint16_t type = reader.U16();
    uint16_t size = reader.U16();
    if (size > reader.remaining()) throw Error("damaged workbook stream: a record runs past its end");
    list.positions.push_back(position);
    list.records.push_back({type, reader.Take(size)});
  }
  return list;
}

void AppendRecord(Bytes& stream, const Record& record) {
  PutU16(stream, record.type);
  PutU16(stream, static_cast<uint16_t>(record.data.size()));
  PutBytes(stream, record.data);
}

bool IsCellRecord(uint16_t type) {
  switch (type) {
    case kBlank:
    case kMulBlank:
    case kNumber:
    case kRk:
    case kMulRk:
    case kLabelSst:
    case kLabel:
    case kRString:
    case kBoolErr:
    case kFormula:
      return true;
    default:
      return false;
  }
}

bool IsCellTableRecord(uint16_t type) {
  switch (type) {
    case kRow:
    case kDbCell:
    case kString:
    case kShrFmla:
    case kArray:
    case kTable:
      return true;
    default:
      return IsCellRecord(type);
  }
}

std::u16string ReadCharacters(ByteReader& reader, size_t count, bool highBytes) {
  std::u16string text;
  text.reserve(std::min(count, reader.remaining()));
  for (size_t i = 0; i < count; ++i) text += static_cast<char16_t>(highBytes ? reader.U16() : reader.U8());
  return text;
}

std::u16string ReadUnicodeString(ByteReader& reader) {
  uint16_t count = reader.U16();
  uint8_t flags = reader.U8();
  return ReadCharacters(reader, count, flags & 0x01);
}

std::u16string ReadShortUnicodeString(ByteReader& reader) {
  uint8_t count = reader.U8();
  uint8_t flags = reader.U8();
  return ReadCharacters(reader, count, flags & 0x01);
}

bool NeedsHighBytes(const std::u16string& text) {
  return std::any_of(text.begin(), text.end(), [](char16_t c) { return c > 0xFF; });
}

void PutCharacters(Bytes& out, const std::u16string& text, bool highBytes) {
  for (char16_t c : text) {
    if (highBytes) {
      PutU16(out, c);
    } else {
      PutU8(out, static_cast<uint8_t>(c));
    }
  }
}

}  // namespace workbook::biff
