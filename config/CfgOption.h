// Typed accessors of the settings in the .cfg files under the plug-in's
// config directory. Each accessor reads or writes its file anew, so a change
// made through one object is seen at once through any other. Defaults live
// here: a missing file, section or key reads as an empty value, and a setter
// on a missing file or section writes nothing.
#pragma once

#include <string>

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

  // optPath as the menu placement reads it: built again if it is empty.
  const std::wstring& MenuOptPath();

  CTkFile appDirFile;  // where the plug-in lies
  CTkFile textFile;    // splits list values
  std::wstring optPath;
};
