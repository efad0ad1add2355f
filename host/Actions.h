// The action callbacks of the commands, as the host calls them.
#pragma once

#include "ProUICmd.h"

// For commands whose tool is not part of the plug-in yet: a click does nothing.
int NotYetAvailable(uiCmdCmdId, uiCmdValue*, void*);

int OpenWorkDirectory(uiCmdCmdId, uiCmdValue*, void*);

// The BOM list, made anew from the current model at each command: the list
// left from the last command goes with its state. Without a windowing
// application in the process (a headless host) nothing opens.
int ShowBomList(uiCmdCmdId, uiCmdValue*, void*);

// The column table and the template of the BOM list, in a modal dialog that
// the command waits for. Nothing opens in a headless host.
int ShowBomSet(uiCmdCmdId, uiCmdValue*, void*);

// "参数批量检查", made anew at each command as the BOM list is. Nothing
// opens in a headless host.
int ShowParamsSet(uiCmdCmdId, uiCmdValue*, void*);

// "材料批量设置", made anew at each command as the BOM list is. Nothing
// opens in a headless host.
int ShowMatSet(uiCmdCmdId, uiCmdValue*, void*);

// "参数合并" on the current model, in a modal dialog that the command waits
// for. Nothing opens in a headless host.
int ShowParamMerge(uiCmdCmdId, uiCmdValue*, void*);

// "关系批量工具", made anew at each command as the BOM list is. Nothing
// opens in a headless host.
int ShowRelation(uiCmdCmdId, uiCmdValue*, void*);

// "自动保存设置", modal; the automatic-save timer restarts after it. Nothing
// opens in a headless host.
int ShowSaveAutoSet(uiCmdCmdId, uiCmdValue*, void*);

// The housekeeping commands of the automation group, silent.
int NewDrw(uiCmdCmdId, uiCmdValue*, void*);
int BackupCurMdl(uiCmdCmdId, uiCmdValue*, void*);
int DelOldCurMdl(uiCmdCmdId, uiCmdValue*, void*);
