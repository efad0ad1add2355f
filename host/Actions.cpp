#include "Actions.h"

#include "Shell.h"
#include "TkFile.h"

int NotYetAvailable(uiCmdCmdId, uiCmdValue*, void*) { return 0; }

int OpenWorkDirectory(uiCmdCmdId, uiCmdValue*, void*) {
  CTkFile file;
  platform::ShellOpen(file.GetCurDir(), platform::kSwShow);
  return 0;
}
