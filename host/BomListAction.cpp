// The command of the BOM list and its dialog slot.
#include <QApplication>

#include "Actions.h"
#include "DlgBomShow.h"

namespace {
// The one list dialog of the plug-in; replaced, never reused.
CDlgBomShow* dlgBomShow = nullptr;
}  // namespace

int ShowBomList(uiCmdCmdId, uiCmdValue*, void*) {
  if (!QApplication::instance()) return 0;
  delete dlgBomShow;
  dlgBomShow = new CDlgBomShow();
  dlgBomShow->OnInitDialog();
  dlgBomShow->show();
  return 0;
}
