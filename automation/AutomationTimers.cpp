#include "AutomationTimers.h"

#include "AutoSave.h"
#include "CfgOption.h"
#include "TkFile.h"
#include "Timers.h"

namespace {
constexpr std::uintptr_t kWrkDirTimerEvent = 2;
constexpr unsigned kWrkDirDelayMs = 2000;
}  // namespace

void StartAutomationTimers() {
  StartAutoSaveTimer();
  platform::SetTimer(nullptr, kWrkDirTimerEvent, kWrkDirDelayMs, RestoreWorkDirectory);
}

void RestoreWorkDirectory(void* window, unsigned, std::uintptr_t id, unsigned long) {
  // The system gave the timer its id; stopping it with that id makes it run once.
  platform::KillTimer(window, id);
  CCfgOption option;
  if (option.GetIsSaveWrkDir() == 0) return;
  std::wstring dir = option.GetWrkDir();
  if (dir.empty()) return;
  CTkFile file;
  file.ChangeCurDir(dir, 0);
}
