#include "TkDrwTable.h"

#include "ProArray.h"
#include "ProDrawing.h"

int CTkDrwTable::GetDrawingSolids(ProMdl drawing, std::vector<ProMdl>& solids) const {
  ProSolid* collected = nullptr;
  ProError status = ProDrawingSolidsCollect(static_cast<ProDrawing>(drawing), &collected);
  if (status != PRO_TK_NO_ERROR) return status;
  int count = 0;
  status = ProArraySizeGet(collected, &count);
  for (int i = 0; i < count; ++i) solids.push_back(collected[i]);
  ProArrayFree(reinterpret_cast<ProArray*>(&collected));
  return status;
}
