// The commands of the parameter tools.
#include <QApplication>

#include "Actions.h"
#include "DlgParamMerge.h"
#include "DlgParamsSet.h"

int ShowParamsSet(uiCmdCmdId, uiCmdValue*, void*) {
  if (!QApplication::instance()) return 0;
  ShowParamsSetDlg();
  return 0;
}

int ShowParamMerge(uiCmdCmdId, uiCmdValue*, void*) {
  if (!QApplication::instance()) return 0;
  CDlgParamMerge dialog;
  dialog.exec();
  return 0;
}
