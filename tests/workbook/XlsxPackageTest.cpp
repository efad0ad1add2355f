#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "PackageParts.h"
#include "ReadBack.h"
#include "TestDir.h"
#include "Workbook.h"

namespace fs = std::filesystem;

namespace {

TEST(XlsxPackage, WritingDropsTheCalculationChainWithItsRelationshipAndContentType) {
  TestDir dir;
  fs::path source = fs::path(BOM_TEST_DATA_DIR) / "workbook" / "calc_chain.xlsx";
  auto book = workbook::OpenWorkbook(source);
  book->SetCellText(L"表一", 2, 1, L"3");
  fs::path target = dir.path() / "calc_chain.xlsx";
  book->SaveAs(target);

  std::map<std::string, std::string> parts = ZipParts(target);
  EXPECT_EQ(parts.count("xl/calcChain.xml"), 0u);
  EXPECT_THAT(parts["xl/_rels/workbook.xml.rels"], testing::Not(testing::HasSubstr("calcChain")));
  EXPECT_THAT(parts["[Content_Types].xml"], testing::Not(testing::HasSubstr("calcChain")));
  EXPECT_THAT(parts["xl/_rels/workbook.xml.rels"], testing::HasSubstr("sharedStrings"));
  EXPECT_EQ(parts["xl/styles.xml"], ZipParts(source)["xl/styles.xml"]);
  ExpectIndependentReadersAgree({{target, source, {NumberCell("表一", 2, 1, 3, "3")}}}, dir.path());
}

TEST(XlsxPackage, UnchangedWorkbookKeepsItsCalculationChain) {
  auto book = workbook::OpenWorkbook(fs::path(BOM_TEST_DATA_DIR) / "workbook" / "calc_chain.xlsx");
  book->GetCellText(L"表一", 2, 4);
  TestDir dir;
  book->SaveAs(dir.path() / "same.xlsx");
  EXPECT_EQ(ZipParts(dir.path() / "same.xlsx"),
            ZipParts(fs::path(BOM_TEST_DATA_DIR) / "workbook" / "calc_chain.xlsx"));
  ExpectIndependentReadersAgree(
      {{dir.path() / "same.xlsx", fs::path(BOM_TEST_DATA_DIR) / "workbook" / "calc_chain.xlsx", {}}},
      dir.path());
}

}  // namespace
