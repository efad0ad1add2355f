#include "FilterAPI.h"

#include "CfgOption.h"
#include "DlgToolFilter.h"
#include "FilterRules.h"
#include "TkBOM.h"
#include "ToolFilterStore.h"

std::wstring CFilterAPI::GetCurPrj(std::wstring toolKey) {
  std::optional<BomFilter> scheme = CToolFilterStore().GetCurrent(toolKey);
  return scheme ? scheme->ProjectName : std::wstring();
}

int CFilterAPI::IsShowMdl(ProMdl& mdl, std::wstring toolKey) {
  std::optional<BomFilter> scheme = CToolFilterStore().GetCurrent(toolKey);
  if (!scheme) return 1;
  BomCollectFilter filter = MakeCollectFilter(*scheme, CCfgOption().GetModelNameKey());
  TkModelAsmCmp candidate{};
  candidate.mdl = mdl;
  return TkBOM().IsRowFilteredOut(filter, candidate) ? 0 : 1;
}

void CFilterAPI::LoadFilterDlg(std::wstring toolKey) {
  CDlgToolFilter dialog(toolKey);
  dialog.exec();
}
