// What both fuzz targets do with an input: read it as a workbook, read and
// write cells on every sheet, save, and read the saved file again. Only the
// engine's own Error may come out; the saved file must always read.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>

#include "Workbook.h"

template <typename Book>
void FuzzWorkbook(const uint8_t* data, size_t size) {
  workbook::Bytes image(data, data + size);
  std::unique_ptr<workbook::Workbook> book;
  try {
    book = std::make_unique<Book>(image);
  } catch (const workbook::Error&) {
    return;
  }
  for (const std::wstring& sheet : book->SheetNames()) {
    try {
      for (int row = 1; row <= 4; ++row) {
        for (int column = 1; column <= 4; ++column) book->GetCellText(sheet, row, column);
      }
      book->SetCellText(sheet, 2, 2, L"齿轮 1");
      book->SetCellText(sheet, 3, 3, L"12.5");
      book->SetCellText(sheet, 40, 1, L"");
    } catch (const workbook::Error&) {
      // a chart sheet, or a cell that cannot be overwritten
    }
  }
  workbook::Bytes saved;
  try {
    saved = book->Save();
  } catch (const workbook::Error&) {
    return;
  }
  try {
    Book reread(saved);
  } catch (const workbook::Error&) {
    std::abort();  // what we wrote we must read
  }
}
