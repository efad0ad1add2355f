// An .xlsx workbook: the package's workbook part, its sheets found by name
// through the workbook's relationships, the shared strings and the number
// formats of the styles. Only the parts that a write changes are written
// anew; the calculation chain goes, since Excel rebuilds it.
#pragma once

#include <pugixml.hpp>

#include <memory>
#include <set>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "PackageRelations.h"
#include "Workbook.h"
#include "WorksheetXml.h"
#include "ZipPackage.h"

namespace workbook {

class XlsxWorkbook : public Workbook {
 public:
  // Throws Error for a package that is not a spreadsheet.
  explicit XlsxWorkbook(const Bytes& image);

  Format format() const override { return Format::Xlsx; }
  std::vector<std::wstring> SheetNames() const override;
  void SetCellText(std::wstring_view sheet, int row, int column, std::wstring_view text) override;
  std::wstring GetCellText(std::wstring_view sheet, int row, int column) const override;
  void SetModelRow(std::wstring_view sheet, int row) override;
  Bytes Save() const override;

 private:
  struct Sheet {
    std::wstring name;
    std::string part;
    std::unique_ptr<ooxml::WorksheetXml> cells;  // null for a chart sheet
    bool changed = false;
  };

  void ReadSharedStrings();
  void ReadStyles(const std::string& part);
  const Sheet& FindWorksheet(std::wstring_view name) const;
  uint32_t AddSharedString(std::wstring_view text);
  bool IsTextFormat(int style) const;
  Bytes WriteSharedStrings() const;

  ZipPackage package_;
  std::string workbookPart_;
  pugi::xml_document workbookRelations_;
  std::vector<ooxml::Relationship> relations_;
  std::vector<Sheet> sheets_;
  // Save brings its counts up to date, from the count read and the change.
  mutable pugi::xml_document sharedStrings_;
  long long readStringReferences_ = 0;
  std::string sharedStringsPart_;
  bool sharedStringsChanged_ = false;
  // The items read and then the texts added, which are written at save.
  std::vector<std::wstring> strings_;
  size_t readStrings_ = 0;
  // Found by a view of the text, so that a text seen before is not copied.
  struct TextHash {
    using is_transparent = void;
    size_t operator()(std::wstring_view text) const { return std::hash<std::wstring_view>()(text); }
  };
  std::unordered_map<std::wstring, uint32_t, TextHash, std::equal_to<>> plainStrings_;
  long long stringReferenceChange_ = 0;
  std::vector<int> numberFormatOfStyle_;
  std::set<int> textNumberFormats_;
};

}  // namespace workbook
