// What the .xls reader refuses: files made from the tests' template by
// changing the one thing that makes them unreadable, and a cell it must not
// overwrite.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "BiffRecords.h"
#include "CompoundFile.h"
#include "Workbook.h"

namespace fs = std::filesystem;
using workbook::Bytes;
using workbook::CompoundFile;

namespace {

CompoundFile TemplateFile() {
  std::ifstream in(fs::path(BOM_TEST_DATA_DIR) / "workbook" / "template.xls", std::ios::binary);
  return CompoundFile::Read(Bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>()));
}

std::string RefusalOf(const Bytes& image) {
  try {
    workbook::LoadWorkbook(image);
  } catch (const workbook::Error& error) {
    return error.what();
  }
  return "read";
}

TEST(XlsRefusal, EncryptedWorkbookIsRefused) {
  CompoundFile file = TemplateFile();
  workbook::CompoundEntry* stream = file.FindStream("Workbook");
  workbook::biff::RecordList list = workbook::biff::SplitRecords(stream->data);
  Bytes encrypted;
  for (size_t i = 0; i < list.records.size(); ++i) {
    workbook::biff::AppendRecord(encrypted, list.records[i]);
    if (i == 0) workbook::biff::AppendRecord(encrypted, {workbook::biff::kFilePass, Bytes(54, 0x01)});
  }
  stream->data = encrypted;
  EXPECT_THAT(RefusalOf(file.Write()), testing::HasSubstr("encrypted"));
}

TEST(XlsRefusal, Excel95WorkbookIsRefused) {
  CompoundFile file = TemplateFile();
  file.FindStream("Workbook")->name = "Book";
  EXPECT_THAT(RefusalOf(file.Write()), testing::HasSubstr("BIFF5"));
}

TEST(XlsRefusal, WorkbookStreamOfAnOlderVersionIsRefused) {
  CompoundFile file = TemplateFile();
  Bytes& stream = file.FindStream("Workbook")->data;
  workbook::SetU16(stream, workbook::biff::kRecordHeaderSize, 0x0500);  // the BOF's version
  EXPECT_THAT(RefusalOf(file.Write()), testing::HasSubstr("older than Excel 97"));
}

TEST(XlsRefusal, AnchorOfASharedFormulaCannotBeOverwritten) {
  // LibreOffice writes the formulas =A1*2 to =A4*2 as one shared formula
  // anchored at B1; the others refer to it.
  auto book = workbook::OpenWorkbook(fs::path(BOM_TEST_DATA_DIR) / "workbook" / "template.xls");
  EXPECT_THROW(book->SetCellText(L"公式", 1, 2, L"x"), workbook::Error);
  book->SetCellText(L"公式", 2, 2, L"x");
  EXPECT_EQ(book->GetCellText(L"公式", 2, 2), L"x");
  EXPECT_EQ(book->GetCellText(L"公式", 4, 2), L"8");
}

}  // namespace
