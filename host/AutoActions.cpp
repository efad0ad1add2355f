// The commands of the session automation.
#include <QApplication>

#include "Actions.h"
#include "DlgSaveAuto.h"
#include "ModelVersions.h"
#include "NewDrawing.h"

int ShowSaveAutoSet(uiCmdCmdId, uiCmdValue*, void*) {
  if (!QApplication::instance()) return 0;
  EditSaveAutoSettings();
  return 0;
}

int NewDrw(uiCmdCmdId, uiCmdValue*, void*) { return NewDrawing(); }

int BackupCurMdl(uiCmdCmdId, uiCmdValue*, void*) { return BackupMdl(); }

int DelOldCurMdl(uiCmdCmdId, uiCmdValue*, void*) { return DelOldMdl(); }
