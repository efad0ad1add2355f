// The filter service the batch tools share: one current scheme for each tool
// key ("MdlChkTool", "MatTool", "RelationTool", "MdlReNameTool",
// "MdlExportTool"), kept in the plug-in's config, not in the object, so a
// short-lived object answers as a long-lived one does. No scheme lets every
// model pass.
#pragma once

#include <string>

#include "ProObjects.h"

class CFilterAPI {
 public:
  // The name of the tool's current scheme; empty when it has none.
  std::wstring GetCurPrj(std::wstring toolKey);
  // Nonzero when the model passes the tool's current scheme: its name, or
  // the parameter the scheme names, begins with one of the keys (kept for
  // "显示", left out for "屏蔽").
  int IsShowMdl(ProMdl& mdl, std::wstring toolKey);
  // The modal dialog in which the user chooses and edits the tool's scheme.
  void LoadFilterDlg(std::wstring toolKey);
};
