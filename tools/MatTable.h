// The batch material tool's workbook: the list's rows written to
// MatTable.xls from the template mattbl.xls, and the material column read
// back from a chosen workbook. Sheet "sheet1", the template's row 1 above
// the rows. A failing cell throws workbook::Error, as ExcelApp does, and
// the job breaks off where it stands.
#pragma once

#include <functional>
#include <string>
#include <vector>

// A list row as the table holds it: "序号", "模型名称", "材料名称".
struct MatTableRow {
  std::wstring index;
  std::wstring name;
  std::wstring material;
};

// Asks for a directory and writes the rows into its MatTable.xls, after the
// question whether to overwrite one that is there; then offers to open it.
// Nothing happens without rows or without a directory.
void WriteMatTable(const std::vector<MatTableRow>& rows);

// Asks for a workbook through the host's model file dialog and hands each of
// the first `rowCount` rows' material cells to `setMaterial` (row from 0), by
// position alone: a sheet with fewer rows gives empty texts. Nothing happens
// without rows or when the dialog answers nothing.
void ReadMatTable(int rowCount,
                  const std::function<void(int row, const std::wstring& material)>& setMaterial);
