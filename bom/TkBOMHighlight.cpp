// Highlighting a row's occurrences in the graphics window.
#include <algorithm>

#include "ProSelbuffer.h"
#include "TkBOM.h"

int TkBOM::ClearHighLight() const { return ProSelbufferClear(); }

int TkBOM::HighLightBomMdl(const BomMdl& row) const {
  const std::wstring function = L"HighLightBomMdl";
  ClearHighLight();
  int count = std::min(row.quantity, static_cast<int>(row.cmps.size()));
  for (int i = 0; i < count; ++i) {
    TkModelAsmCmp cmp = row.cmps[i];
    if (!cmp.path.owner) continue;
    // The top model has no component to select.
    if (cmp.path.table_num < 1) break;
    // A component is selected in the context of its parent.
    --cmp.path.table_num;
    ProSelection selection = nullptr;
    if (log_.LogStatus(Tag(function, L"ProSelectionAlloc"),
                       ProSelectionAlloc(&cmp.path, &cmp.feature, &selection)))
      continue;
    log_.LogStatus(Tag(function, L"ProSelbufferSelectionAdd"), ProSelbufferSelectionAdd(selection));
    // A standard part used hundreds of times keeps the buffer small.
    if (i > 50) break;
  }
  return 0;
}
