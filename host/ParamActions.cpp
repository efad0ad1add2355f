// The commands of the parameter tools.
#include <QApplication>

#include "Actions.h"
#include "DlgParamMerge.h"

int ShowParamMerge(uiCmdCmdId, uiCmdValue*, void*) {
  if (!QApplication::instance()) return 0;
  CDlgParamMerge dialog;
  dialog.exec();
  return 0;
}
