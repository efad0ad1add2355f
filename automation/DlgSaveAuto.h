// "自动保存设置": the automatic-save settings, each written to SaveAuto.cfg the
// moment it changes. Modal, without buttons of its own.
#pragma once

#include <QDialog>

class CDlgSaveAuto : public QDialog {
 public:
  explicit CDlgSaveAuto(QWidget* parent = nullptr);
};

// The command: the dialog, then the automatic-save timer stopped by id 1 and
// started anew. The timer's id came from the system, so a changed setting
// adds a timer beside the one that runs.
void EditSaveAutoSettings();
