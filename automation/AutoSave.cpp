#include "AutoSave.h"

#include "CfgOption.h"
#include "ProMdl.h"
#include "Timers.h"
#include "TkModel.h"

#include <algorithm>
#include <vector>

namespace {
constexpr std::uintptr_t kAutoSaveTimerEvent = 1;
constexpr unsigned kMillisecondsPerMinute = 60000;

bool AnyModified(const std::vector<ProMdl>& models) {
  return std::any_of(models.begin(), models.end(), [](ProMdl mdl) {
    ProBoolean modified = PRO_B_FALSE;
    return ProMdlModificationVerify(mdl, &modified) == PRO_TK_NO_ERROR && modified == PRO_B_TRUE;
  });
}
}  // namespace

void StartAutoSaveTimer() {
  CCfgOption option;
  int minutes = std::max(option.GetSaveAutoTime(), 1);
  if (option.GetSaveAuto() != 1) return;
  platform::SetTimer(nullptr, kAutoSaveTimerEvent, static_cast<unsigned>(minutes) * kMillisecondsPerMinute,
                     AutoSaveTick);
}

void AutoSaveTick(void*, unsigned, std::uintptr_t, unsigned long) {
  ProMdl current = nullptr;
  if (ProMdlCurrentGet(&current) != PRO_TK_NO_ERROR) return;
  CTkModel model;
  std::vector<ProMdl> models;
  if (model.GetAllSubMdls(current, models) != PRO_TK_NO_ERROR) return;
  models.push_back(current);
  if (!AnyModified(models)) return;
  if (CCfgOption().GetDelOldVer() != 0) {
    model.SaveMdlAll(current);
  } else {
    ProMdlSave(current);
  }
}
