#include "CommandTable.h"

#include "Actions.h"
#include "ProMdl.h"

namespace {

using enum AccessRule;

constexpr CommandDef kBomCommands[] = {
    {"CmdBOMShowId",
     "BOMShowMenuBtnID",
     "BOMShowMenuBtn",
     "BOMShowMenuBtn",
     nullptr,
     {},
     AssemblyOrDrawing,
     true,
     ShowBomList},
    {"CmdBOMShow2Id",
     nullptr,
     nullptr,
     nullptr,
     "BOMShow.gif",
     {"BOMShowMenuBtn", "BOMShowMenuBtn", "BOMShowMenuBtn"},
     AssemblyOrDrawing,
     true,
     ShowBomList},
    {"CmdBOMSetId",
     "BOMSetMenuBtnID",
     "BOMSetMenuBtn",
     "BOMSetMenuBtn",
     nullptr,
     {},
     Always,
     true,
     ShowBomSet},
    {"CmdBOMSet2Id",
     nullptr,
     nullptr,
     nullptr,
     "BOMSet.gif",
     {"BOMSetMenuBtn", "BOMSetMenuBtn", "BOMSetMenuBtn"},
     Always,
     false,
     ShowBomSet},
};

constexpr CommandDef kParamCommands[] = {
    {"CmdParamsSetId",
     "ParamSetMenuBtnId",
     "ParamSetMenuBtn",
     "ParamSetMenuBtn",
     "modelcheck.gif",
     {},
     Always,
     true,
     ShowParamsSet},
    {"CmdParamsSet2Id",
     nullptr,
     nullptr,
     nullptr,
     "modelcheck.gif",
     {"ParamSetMenuBtnId", "ParamSetMenuBtn", "ParamSetMenuBtn"},
     Always,
     true,
     ShowParamsSet},
    {"CmdParamMergeId",
     "ParamMergeMenuBtnId",
     "ParamMergeMenuBtn",
     "ParamMergeMenuBtn",
     "parameter.gif",
     {},
     AnyModel,
     true,
     ShowParamMerge},
    {"CmdMaterialSetId",
     "MaterialSetMenuBtnId",
     "MaterialSetMenuBtn",
     "MaterialSetMenuBtn",
     "material.gif",
     {},
     Always,
     true,
     ShowMatSet},
    {"CmdMaterialSet2Id",
     nullptr,
     nullptr,
     nullptr,
     "material.gif",
     {"MaterialSetMenuBtnId", "MaterialSetMenuBtn", "MaterialSetMenuBtn"},
     Always,
     true,
     ShowMatSet},
    {"CmdIdRelationMenuBtn",
     "RelationMenuBtnId",
     "RelationMenuBtn",
     "RelationMenuBtn",
     "relations.gif",
     {},
     Always,
     true,
     ShowRelation},
    {"CmdIdRelationMenuBtn2",
     nullptr,
     nullptr,
     nullptr,
     "relations.gif",
     {"RelationMenuBtn2Id", "RelationMenuBtn", "RelationMenuBtn"},
     Always,
     true,
     ShowRelation},
    {"CmdModelNameId",
     "ModelNameMenuBtnId",
     "ModelNameMenuBtn",
     "ModelNameMenuBtn",
     "ResetMdlName.gif",
     {},
     Always,
     true,
     NotYetAvailable},
    {"CmdModelExportId",
     "ModelExportMenuBtnID",
     "ModelExportMenuBtn",
     "ModelExportMenuBtn",
     "ExportMdl.gif",
     {},
     Assembly,
     true,
     NotYetAvailable},
};

constexpr CommandDef kAutoCommands[] = {
    {"CmdSaveAutoSetId",
     "SaveAutoMenuBtnId",
     "SaveAutoMenuBtn",
     "SaveAutoMenuBtn",
     nullptr,
     {},
     Always,
     true,
     ShowSaveAutoSet},
    {"CmdOpenWrkDirId",
     "OpenWrkDirMenuBtnId",
     "OpenWrkDirMenuBtn",
     "OpenWrkDirMenuBtn",
     "openwrkdir.gif",
     {},
     Always,
     true,
     OpenWorkDirectory},
    {"CmdNewDrwId",
     "NewDrwMenuBtnID",
     "NewDrwMenuBtn",
     "NewDrwMenuBtn",
     "NewDrw.gif",
     {},
     AssemblyOrPart,
     true,
     NewDrw},
    {"CmdBackupMdlId",
     "BackupMdlMenuBtnID",
     "BackupMdlMenuBtn",
     "BackupMdlMenuHelp",
     "saveas.gif",
     {},
     AssemblyOrPart,
     true,
     BackupCurMdl},
    {"CmdDelOldMdlID",
     "DelOldMdlMenuBtnID",
     "DelOldMdlMenuBtn",
     "DelOldMdlMenuBtn",
     "modeldeloldver.gif",
     {},
     AssemblyOrPart,
     true,
     DelOldCurMdl},
};

constexpr CommandDef kSplCommand = {"CmdSPLId", "SPLMenuBtnId", "SPLMenuBtn", "SPLMenuBtn",   "spl.gif",
                                    {},         Assembly,       true,         NotYetAvailable};

// Any failing host call makes a command unavailable.
bool CurrentTypeIs(std::initializer_list<ProMdlType> types) {
  ProMdl mdl = nullptr;
  if (ProMdlCurrentGet(&mdl) != PRO_TK_NO_ERROR) return false;
  if (types.size() == 0) return true;
  ProMdlType type = PRO_MDL_UNUSED;
  if (ProMdlTypeGet(mdl, &type) != PRO_TK_NO_ERROR) return false;
  for (ProMdlType wanted : types) {
    if (type == wanted) return true;
  }
  return false;
}

uiCmdAccessState StateOf(bool available) { return available ? ACCESS_AVAILABLE : ACCESS_UNAVAILABLE; }

uiCmdAccessState AccessAlways(uiCmdAccessMode) { return ACCESS_AVAILABLE; }
uiCmdAccessState AccessAssemblyOrDrawing(uiCmdAccessMode) {
  return StateOf(CurrentTypeIs({PRO_MDL_ASSEMBLY, PRO_MDL_DRAWING}));
}
uiCmdAccessState AccessAnyModel(uiCmdAccessMode) { return StateOf(CurrentTypeIs({})); }
uiCmdAccessState AccessAssembly(uiCmdAccessMode) { return StateOf(CurrentTypeIs({PRO_MDL_ASSEMBLY})); }
uiCmdAccessState AccessAssemblyOrPart(uiCmdAccessMode) {
  return StateOf(CurrentTypeIs({PRO_MDL_ASSEMBLY, PRO_MDL_PART}));
}

}  // namespace

const MenuGroup& BomGroup() {
  static const MenuGroup group{"BOMMenubarId", "BOMMenuBar", L"BOMMenu.txt", false, true, kBomCommands};
  return group;
}

const MenuGroup& ParamGroup() {
  static const MenuGroup group{"ParamMenuBarId", "ParamMenuBar", L"ParamMenu.txt", true, false,
                               kParamCommands};
  return group;
}

const MenuGroup& AutoGroup() {
  static const MenuGroup group{"AutoMenuBarId", "AutoMenuBar", L"AutoMenu.txt", false, false, kAutoCommands};
  return group;
}

const CommandDef& SplCommand() { return kSplCommand; }

uiCmdAccessFn AccessCallback(AccessRule rule) {
  switch (rule) {
    case Always:
      return AccessAlways;
    case AssemblyOrDrawing:
      return AccessAssemblyOrDrawing;
    case AnyModel:
      return AccessAnyModel;
    case Assembly:
      return AccessAssembly;
    case AssemblyOrPart:
      return AccessAssemblyOrPart;
  }
  return AccessAlways;
}
