// The stored state of a dialog's combo boxes, radio buttons and check boxes
// in a settings file, under the control's id, in the sections "DlgCombo",
// "DlgRadio" and "DlgChkBox". Each value is written when the user changes
// it, so the dialog opens as it was left.
#pragma once

#include <string>

#include "IniEx.h"

class CDlgConfig : public CIniEx {
 public:
  // Relative to the plug-in's text directory, such as "\config\MdlExport.cfg".
  // Without one every read gives its default and every write does nothing.
  void SetFileName(const std::wstring& fileName);

  // The selected index; -1 when never stored, so the caller picks its own.
  int GetComboState(int controlId) const;
  void SetComboState(int controlId, int index) const;
  // 0 when never stored or not a number.
  int GetRadioState(int controlId) const;
  void SetRadioState(int controlId, int state) const;
  int GetCheckState(int controlId) const;
  void SetCheckState(int controlId, int state) const;

 private:
  int GetState(const std::wstring& section, int controlId, int emptyDefault) const;
  void SetState(const std::wstring& section, int controlId, int state) const;
  std::wstring FilePath() const;

  std::wstring fileName;
};
