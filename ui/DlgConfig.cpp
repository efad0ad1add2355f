#include "DlgConfig.h"

#include "CodePage.h"
#include "TkFile.h"

namespace {
const wchar_t kCombo[] = L"DlgCombo";
const wchar_t kRadio[] = L"DlgRadio";
const wchar_t kCheckBox[] = L"DlgChkBox";
}  // namespace

void CDlgConfig::SetFileName(const std::wstring& name) { fileName = name; }

int CDlgConfig::GetComboState(int controlId) const { return GetState(kCombo, controlId, -1); }
void CDlgConfig::SetComboState(int controlId, int index) const { SetState(kCombo, controlId, index); }
int CDlgConfig::GetRadioState(int controlId) const { return GetState(kRadio, controlId, 0); }
void CDlgConfig::SetRadioState(int controlId, int state) const { SetState(kRadio, controlId, state); }
int CDlgConfig::GetCheckState(int controlId) const { return GetState(kCheckBox, controlId, 0); }
void CDlgConfig::SetCheckState(int controlId, int state) const { SetState(kCheckBox, controlId, state); }

int CDlgConfig::GetState(const std::wstring& section, int controlId, int emptyDefault) const {
  if (fileName.empty()) return emptyDefault;
  std::wstring text;
  GetValue(FilePath(), section, std::to_wstring(controlId), text);
  return text.empty() ? emptyDefault : platform::WideToInt(text);
}

void CDlgConfig::SetState(const std::wstring& section, int controlId, int state) const {
  if (fileName.empty()) return;
  SetValue(FilePath(), section, std::to_wstring(controlId), std::to_wstring(state), L"");
}

std::wstring CDlgConfig::FilePath() const { return GetAppTextRoot() + L"\\" + fileName; }
