#include "FuzzWorkbook.h"
#include "XlsWorkbook.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  FuzzWorkbook<workbook::XlsWorkbook>(data, size);
  return 0;
}
