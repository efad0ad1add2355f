// The command of the BOM settings.
#include <QApplication>

#include "Actions.h"
#include "DlgBomSet.h"

int ShowBomSet(uiCmdCmdId, uiCmdValue*, void*) {
  if (!QApplication::instance()) return 0;
  CDlgBomSet dialog;
  dialog.exec();
  return 0;
}
