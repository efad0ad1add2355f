// Typed accessors of the settings in the .cfg files under the plug-in's
// config directory. Each accessor reads or writes its file anew, so a change
// made through one object is seen at once through any other. Defaults live
// here: a missing file, section or key reads as an empty value, and a setter
// on a missing file or section writes nothing.
#pragma once

#include <string>
#include <vector>

#include "BomFilter.h"
#include "ColInfo.h"
#include "ExcelParam.h"
#include "MdlExportCol.h"
#include "MdlRenameCol.h"
#include "ParamCol.h"
#include "TkFile.h"

class CCfgOption {
 public:
  CCfgOption();

  // Paths of the settings files. Most hang off the text root; the ones built
  // from GetAppDir carry a doubled backslash before "config", which the file
  // system takes as a single one.
  std::wstring GetOptCfgPath() const;
  std::wstring GetTblCfgPath() const;
  std::wstring GetRenameTblCfgPath() const;
  std::wstring GetExcelCfgPath() const;
  std::wstring GetBomFilterCfgPath() const;
  std::wstring GetMdlExportCfgPath() const;
  std::wstring GetMdlExportColCfgPath() const;
  std::wstring GetParamsCfgPath() const;
  std::wstring GetMatColCfgPath() const;
  std::wstring GetSaveAutoCfgPath() const;
  std::wstring GetSplCfgPath() const;

  // Opt.cfg, section "Menu": where the plug-in's menus go; empty by default.
  std::wstring GetMenubarId();
  std::wstring GetFrontMenuBtn();

  // Opt.cfg, section "BOM": the choices of the list dialog, each written with
  // its explaining comment. "LevelType" outside 0..2 reads as 0.
  int GetLevelType() const;
  void SetLevelType(int levelType) const;
  int GetExportExcel() const;
  void SetExportExcel(int exportExcel) const;
  int GetExportText() const;
  void SetExportText(int exportText) const;
  int GetExportCurMdl() const;
  void SetExportCurMdl(int exportCurMdl) const;

  // Tbl.cfg, section "Col" (CfgOptionBom.cpp). Columns in file order, a line
  // that fails to parse included; 0 when keys and values differ in number.
  int GetColInfos(std::vector<ColInfo>& colInfos) const;
  // 1 when the value is not empty; otherwise 0 with only `id` set.
  int ParseColInfo(const std::wstring& key, const std::wstring& value, ColInfo& colInfo) const;
  // Writes the line of `colInfo.id`; 1.
  int SetColInfo(const ColInfo& colInfo) const;
  // The ten column kinds in order with their display names; 1.
  int GetParamTypeNames(std::vector<ParamTypeName>& names) const;
  // 1 for A to 26 for Z in either case; -1 for anything else.
  int ColLetterToIndex(const std::wstring& text) const;

  // Excel.cfg (CfgOptionExcel.cpp). Cells are one column letter and a row:
  // "B3". An empty cell gives row 0, column -1.
  int GetDataCell(int& row, int& col) const;
  int GetOtherCells(std::vector<ExcelParam>& cells) const;
  std::wstring GetPageName() const;
  // First row and column at least 1, rows of a page 1 to 100; 1.
  int GetTblLayout(int& beginRow, int& beginCol, int& rowNumOfPage) const;
  int GetShowSamAsmCmps() const;
  std::wstring GetLevelSign() const;
  int GetSaveParamBeforExport() const;
  int GetEnableSaveParamBtn() const;
  int GetMassDecimalPlacesNum() const;
  // Positions in the column array offered for sorting.
  void GetSortCols(std::vector<unsigned>& cols) const;
  // 0 when below 0 or above the number of "SortCol" entries.
  int GetDefSortComboIndex() const;
  // Shown-column numbers offered to the in-list filter.
  void GetFilterCols(std::vector<unsigned>& cols) const;

  // BomFilter.cfg (CfgOptionFilter.cpp). Sections "Sec1" up to the number of
  // sections, skipping numbers that are missing.
  void GetBomFilters(std::vector<BomFilter>& filters) const;
  void SetBomFilter(const BomFilter& filter) const;
  // "模型名称": the parameter name that stands for the model's name.
  std::wstring GetModelNameKey() const;

  // The tools' column files (CfgOptionColumns.cpp), one section a column in
  // section order. A rename column goes only for the "Show" text "0"; the
  // other two need a nonzero "Show", so a missing key drops them.
  void GetRenameCols(std::vector<MdlRenameCol>& cols) const;
  void GetMatCols(std::vector<ParamCol>& cols) const;
  void GetMdlExportCols(std::vector<MdlExportCol>& cols) const;

  // Params.cfg (CfgOptionTools.cpp): remembered choices of the parameter,
  // material and rename tools.
  int GetRadioParams() const;
  void SetRadioParams(int value) const;
  int GetRadioMdl() const;
  void SetRadioMdl(int value) const;
  int GetCheckCurPath() const;
  void SetCheckCurPath(int value) const;
  int GetCheckDefValue() const;
  void SetCheckDefValue(int value) const;
  int GetCheckDir() const;
  void SetCheckDir(int value) const;
  int GetShowLoadDir() const;
  int GetCheckAutoSave() const;
  void SetCheckAutoSave(int value) const;
  void GetSPLKeyParams(std::vector<std::wstring>& params) const;
  void GetSPLKeys(std::vector<std::wstring>& keys) const;
  int GetSPLKeyPos() const;
  // 1 only for the text "1".
  int GetMatListStyle() const;
  int GetRenameDrw() const;
  void SetRenameDrw(int value) const;

  // MdlExport.cfg, section "Export".
  void GetExportSortCols(std::vector<unsigned>& cols) const;
  int GetExportCreateFolder() const;
  int GetExportNameUseParam() const;
  void GetExportNameParams(std::vector<std::wstring>& params) const;
  std::wstring GetExportNameSign() const;

  // SPL.cfg, section "SPL". The directories are written each followed by
  // ";". "FmlInstBackup" is 1 for any text but "0", a missing key included.
  void GetSplDirs(std::vector<std::wstring>& dirs) const;
  void SetSplDirs(const std::vector<std::wstring>& dirs) const;
  int GetFmlInstBackup() const;
  void SetFmlInstBackup(int value) const;

  // SaveAuto.cfg, section "DlgSet". "SaveAuto" is on only for the text "1";
  // "Time" (minutes) is 10 when empty, else taken as it stands.
  int GetSaveAuto() const;
  void SetSaveAuto(int saveAuto) const;
  int GetDelOldVer() const;
  void SetDelOldVer(int delOldVer) const;
  int GetSaveAutoTime() const;
  void SetSaveAutoTime(int minutes) const;

  // SaveAuto.cfg, section "WrkDir".
  int GetIsSaveWrkDir() const;
  std::wstring GetWrkDir() const;
  void SetWrkDir(const std::wstring& dir) const;

 private:
  // The accessor forms every setting is read and written with.
  static std::wstring GetText(const std::wstring& path, const std::wstring& section, const std::wstring& key,
                              const std::wstring& emptyDefault = {});
  // `atoi` of the text, or `emptyDefault` for an empty one.
  static int GetInt(const std::wstring& path, const std::wstring& section, const std::wstring& key,
                    int emptyDefault = 0);
  // 1 for the text "1", 0 for "0", `defaultValue` for anything else.
  static int GetFlag(const std::wstring& path, const std::wstring& section, const std::wstring& key,
                     int defaultValue);
  static void SetInt(const std::wstring& path, const std::wstring& section, const std::wstring& key,
                     int value, const std::wstring& comment = {});
  static void SetText(const std::wstring& path, const std::wstring& section, const std::wstring& key,
                      const std::wstring& value);
  // A cell name of Excel.cfg: the letters before the first digit give the
  // column, the text behind the first character the row.
  void ParseCell(const std::wstring& cell, int& row, int& col) const;
  // The text split at `separator`, pieces trimmed; emptied first.
  void GetTextList(const std::wstring& path, const std::wstring& section, const std::wstring& key,
                   wchar_t separator, std::vector<std::wstring>& items) const;
  // The text cut at each ",", each piece through `atoi`; emptied first.
  static void GetNumberList(const std::wstring& path, const std::wstring& section, const std::wstring& key,
                            std::vector<unsigned>& numbers);

  // optPath as the menu placement reads it: built again if it is empty.
  const std::wstring& MenuOptPath();

  CTkFile appDirFile;  // where the plug-in lies
  CTkFile textFile;    // splits list values
  std::wstring optPath;
};
