// Byte buffers and their little-endian fields, as both file formats store them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace workbook {

using Bytes = std::vector<uint8_t>;

// Reads fields in order; a read past the end throws Error, so a truncated or
// damaged record can never be read beyond its bytes.
class ByteReader {
 public:
  ByteReader(const uint8_t* data, size_t size) : data_(data), size_(size) {}
  explicit ByteReader(const Bytes& bytes) : ByteReader(bytes.data(), bytes.size()) {}

  uint8_t U8();
  uint16_t U16();
  uint32_t U32();
  double F64();
  void Skip(size_t count);
  Bytes Take(size_t count);

  size_t position() const { return position_; }
  size_t remaining() const { return size_ - position_; }

 private:
  void Need(size_t count) const;

  const uint8_t* data_;
  size_t size_;
  size_t position_ = 0;
};

void PutU8(Bytes& out, uint8_t value);
void PutU16(Bytes& out, uint16_t value);
void PutU32(Bytes& out, uint32_t value);
void PutF64(Bytes& out, double value);
void PutBytes(Bytes& out, const Bytes& bytes);

// Overwrite fields of an existing buffer; the field must lie inside it.
void SetU16(Bytes& bytes, size_t at, uint16_t value);
void SetU32(Bytes& bytes, size_t at, uint32_t value);

// Reads a field at a position; throws Error when it lies outside.
uint16_t GetU16(const Bytes& bytes, size_t at);
uint32_t GetU32(const Bytes& bytes, size_t at);

}  // namespace workbook
