#include "Bytes.h"

#include <cstring>

#include "Error.h"

namespace workbook {

void ByteReader::Need(size_t count) const {
  if (count > size_ - position_) throw Error("damaged file: a record ends before its fields");
}

uint8_t ByteReader::U8() {
  Need(1);
  return data_[position_++];
}

uint16_t ByteReader::U16() {
  Need(2);
  uint16_t value = static_cast<uint16_t>(data_[position_] | data_[position_ + 1] << 8);
  position_ += 2;
  return value;
}

uint32_t ByteReader::U32() {
  uint32_t low = U16();
  uint32_t high = U16();
  return low | high << 16;
}

double ByteReader::F64() {
  Need(8);
  uint64_t bits = 0;
  for (int i = 7; i >= 0; --i) bits = bits << 8 | data_[position_ + i];
  position_ += 8;
  double value;
  std::memcpy(&value, &bits, sizeof value);
  return value;
}

void ByteReader::Skip(size_t count) {
  Need(count);
  position_ += count;
}

Bytes ByteReader::Take(size_t count) {
  Need(count);
  Bytes bytes(data_ + position_, data_ + position_ + count);
  position_ += count;
  return bytes;
}

void PutU8(Bytes& out, uint8_t value) { out.push_back(value); }

void PutU16(Bytes& out, uint16_t value) {
  out.push_back(static_cast<uint8_t>(value));
  out.push_back(static_cast<uint8_t>(value >> 8));
}

void PutU32(Bytes& out, uint32_t value) {
  PutU16(out, static_cast<uint16_t>(value));
  PutU16(out, static_cast<uint16_t>(value >> 16));
}

void PutF64(Bytes& out, double value) {
  uint64_t bits;
  std::memcpy(&bits, &value, sizeof bits);
  for (int i = 0; i < 8; ++i) out.push_back(static_cast<uint8_t>(bits >> (8 * i)));
}

void PutBytes(Bytes& out, const Bytes& bytes) { out.insert(out.end(), bytes.begin(), bytes.end()); }

void SetU16(Bytes& bytes, size_t at, uint16_t value) {
  bytes.at(at + 1) = static_cast<uint8_t>(value >> 8);
  bytes[at] = static_cast<uint8_t>(value);
}

void SetU32(Bytes& bytes, size_t at, uint32_t value) {
  SetU16(bytes, at + 2, static_cast<uint16_t>(value >> 16));
  SetU16(bytes, at, static_cast<uint16_t>(value));
}

uint16_t GetU16(const Bytes& bytes, size_t at) {
  if (at > bytes.size() || bytes.size() - at < 2)
    throw Error("damaged file: a field lies outside its record");
  return static_cast<uint16_t>(bytes[at] | bytes[at + 1] << 8);
}

uint32_t GetU32(const Bytes& bytes, size_t at) {
  return GetU16(bytes, at) | static_cast<uint32_t>(GetU16(bytes, at + 2)) << 16;
}

}  // namespace workbook
