// The command of the batch relation tool.
#include <QApplication>

#include "Actions.h"
#include "DlgRelation.h"

int ShowRelation(uiCmdCmdId, uiCmdValue*, void*) {
  if (!QApplication::instance()) return 0;
  ShowRelationDlg();
  return 0;
}
