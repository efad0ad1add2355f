// The plug-in's two entry points.
#include "CfgOption.h"
#include "ProToolkitDll.h"
#include "Registration.h"
#include "TkFile.h"

extern "C" int user_initialize(int, char*[], char*, char*, wchar_t[80]) {
  // The library button goes into the parameter menu, so that group comes first.
  RegisterBomGroup();
  RegisterParamGroup();
  RegisterAutoGroup();
  RegisterSplButton();
  return 0;
}

extern "C" void user_terminate(void) {
  // Stored whether or not the work directory is restored at the next start.
  CTkFile file;
  CCfgOption option;
  option.SetWrkDir(file.GetCurDir());
}
