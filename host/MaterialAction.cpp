// The command of the batch material tool.
#include <QApplication>

#include "Actions.h"
#include "DlgMatSet.h"

int ShowMatSet(uiCmdCmdId, uiCmdValue*, void*) {
  if (!QApplication::instance()) return 0;
  ShowMatSetDlg();
  return 0;
}
