#include "NewDrawing.h"

#include "ProMdl.h"
#include "ProMenu.h"

std::wstring NewDrawingMacro(const std::wstring& name) {
  return L"~ Command `ProCmdModelNew` ;~ Select `new` `Type`1  `Drawing`;~ Input `new` `InputPanel1` `" +
         name + L"`;~ Update `new` `InputPanel1` `" + name + L"`;";
}

int NewDrawing() {
  ProMdl current = nullptr;
  if (ProMdlCurrentGet(&current) != PRO_TK_NO_ERROR) return 0;
  ProName name{};
  if (ProMdlNameGet(current, name) != PRO_TK_NO_ERROR) return 0;
  std::wstring macro = NewDrawingMacro(name);
  ProMacroLoad(macro.data());
  return 0;
}
