#include "FuzzWorkbook.h"
#include "XlsxWorkbook.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  FuzzWorkbook<workbook::XlsxWorkbook>(data, size);
  return 0;
}
