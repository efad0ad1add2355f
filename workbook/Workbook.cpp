#include "Workbook.h"

#include <algorithm>
#include <fstream>
#include <iterator>

#include "FileWrite.h"
#include "XlsWorkbook.h"
#include "XlsxWorkbook.h"

namespace workbook {
namespace {

bool StartsWith(const Bytes& image, std::initializer_list<uint8_t> magic) {
  return image.size() >= magic.size() && std::equal(magic.begin(), magic.end(), image.begin());
}

}  // namespace

void Workbook::SaveAs(const std::filesystem::path& file) const {
  Bytes image = Save();
  std::string_view bytes(reinterpret_cast<const char*>(image.data()), image.size());
  if (std::error_code error = platform::WriteFileAtomically(file, bytes)) {
    throw Error("cannot write " + file.string() + ": " + error.message());
  }
}

std::unique_ptr<Workbook> OpenWorkbook(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  if (!in) throw Error("cannot open " + file.string());
  Bytes image((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  if (in.bad()) throw Error("cannot read " + file.string());
  try {
    return LoadWorkbook(image);
  } catch (const Error& error) {
    throw Error(file.string() + ": " + error.what());
  }
}

Format FormatOfFile(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  Bytes head(4);
  in.read(reinterpret_cast<char*>(head.data()), static_cast<std::streamsize>(head.size()));
  return in && StartsWith(head, {'P', 'K', 0x03, 0x04}) ? Format::Xlsx : Format::Xls;
}

std::unique_ptr<Workbook> LoadWorkbook(const Bytes& image) {
  if (StartsWith(image, {0xD0, 0xCF, 0x11, 0xE0, 0xA1, 0xB1, 0x1A, 0xE1})) {
    return std::make_unique<XlsWorkbook>(image);
  }
  if (StartsWith(image, {'P', 'K', 0x03, 0x04})) return std::make_unique<XlsxWorkbook>(image);
  // A bare BIFF2 to BIFF4 stream starts with its BOF record.
  if (StartsWith(image, {0x09, 0x00}) || StartsWith(image, {0x09, 0x02}) || StartsWith(image, {0x09, 0x04})) {
    throw Error("a workbook older than Excel 97 (BIFF2 to BIFF4) is not supported");
  }
  throw Error("not an Excel workbook");
}

}  // namespace workbook
