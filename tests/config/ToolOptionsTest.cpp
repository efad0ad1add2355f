// The settings of the tools: filter schemes, column files, Params.cfg,
// MdlExport.cfg and SPL.cfg.
#include <gtest/gtest.h>

#include "CfgOption.h"
#include "ConfigTestSupport.h"

namespace {

class ToolOptionsTest : public TextRootTest {
 protected:
  std::string Scheme(int number, const std::string& isShow) {
    std::string n = std::to_string(number);
    return "[Sec" + n + "]\nProjectName=方案" + n +
           "\nRefParamName=模型名称\nFilterKey=GB,GP\nIsShow=" + isShow + "\n";
  }
};

}  // namespace

TEST_F(ToolOptionsTest, FilterSchemesAreReadByNumberUpToTheSectionCount) {
  dir.Write("config/BomFilter.cfg", Scheme(1, "1") + Scheme(3, "2"));
  std::vector<BomFilter> filters{BomFilter{}};
  CCfgOption().GetBomFilters(filters);
  ASSERT_EQ(filters.size(), 1u) << "two sections: numbers 1 and 2, and 2 is missing";
  EXPECT_EQ(filters[0].Section, L"Sec1");
  EXPECT_EQ(filters[0].ProjectName, L"方案1");
  EXPECT_EQ(filters[0].RefParamName, L"模型名称");
  EXPECT_EQ(filters[0].FilterKey, L"GB,GP");
  EXPECT_EQ(filters[0].IsShow, 1);

  dir.Write("config/BomFilter.cfg", Scheme(2, "2") + Scheme(1, "0"));
  CCfgOption().GetBomFilters(filters);
  ASSERT_EQ(filters.size(), 2u);
  EXPECT_EQ(filters[0].Section, L"Sec1") << "by number, not by file order";
  EXPECT_EQ(filters[1].IsShow, 0) << "anything but 1 hides";
}

TEST_F(ToolOptionsTest, FilterSchemeIsWrittenIntoItsOwnSectionOnly) {
  dir.Write("config/BomFilter.cfg", Scheme(1, "0") + "\n" + Scheme(2, "0"));
  CCfgOption option;
  option.SetBomFilter({L"Sec2", L"外购 件", L"备注", L"外购", 1});
  option.SetBomFilter({L"Sec9", L"lost", L"", L"", 1});
  std::vector<BomFilter> filters;
  option.GetBomFilters(filters);
  ASSERT_EQ(filters.size(), 2u);
  EXPECT_EQ(filters[0].ProjectName, L"方案1");
  EXPECT_EQ(filters[1].ProjectName, L"外购 件");
  EXPECT_EQ(filters[1].IsShow, 1);
  EXPECT_EQ(dir.Read("config/BomFilter.cfg").find("Sec9"), std::string::npos);
}

TEST_F(ToolOptionsTest, AMissingShowKeepsARenameColumnAndDropsTheOthers) {
  std::string columns =
      "[A]\nColName=图号\nColWidth=130\nParamName=DRAWNO\nParamOwner=1\n"
      "[B]\nColName=名称\nShow=0\n[C]\nColName=材料\nColWidth=90\nShow=2\n";
  dir.Write("config/RenameTbl.cfg", columns);
  dir.Write("config/MatCol.cfg", columns);
  dir.Write("config/MdlExportCol.cfg", columns);
  CCfgOption option;
  std::vector<MdlRenameCol> rename;
  option.GetRenameCols(rename);
  ASSERT_EQ(rename.size(), 2u);
  EXPECT_EQ(rename[0].title, L"图号");
  EXPECT_EQ(rename[0].width, 130);
  EXPECT_EQ(rename[0].paramName, L"DRAWNO");
  EXPECT_EQ(rename[0].owner, 1);
  EXPECT_EQ(rename[1].title, L"材料");
  std::vector<ParamCol> mat;
  option.GetMatCols(mat);
  ASSERT_EQ(mat.size(), 1u);
  EXPECT_EQ(mat[0].title, L"材料");
  EXPECT_TRUE(mat[0].show);
  std::vector<MdlExportCol> exportCols;
  option.GetMdlExportCols(exportCols);
  ASSERT_EQ(exportCols.size(), 1u);
  EXPECT_EQ(exportCols[0].width, 90);
  EXPECT_EQ(exportCols[0].show, 2);
}

TEST_F(ToolOptionsTest, ParamsSettingsRoundTripAndDefaultToZero) {
  dir.Write("config/Params.cfg",
            "[ParamsSetDlg]\nRadioParams=0\n[MatSetDlg]\nCheckDir=0\n[MdlName]\nRenameDrw=0\n");
  CCfgOption option;
  EXPECT_EQ(option.GetRadioMdl(), 0);
  EXPECT_EQ(option.GetShowLoadDir(), 0);
  using Setter = void (CCfgOption::*)(int) const;
  using Getter = int (CCfgOption::*)() const;
  const std::vector<std::pair<Setter, Getter>> settings = {
      {&CCfgOption::SetRadioParams, &CCfgOption::GetRadioParams},
      {&CCfgOption::SetRadioMdl, &CCfgOption::GetRadioMdl},
      {&CCfgOption::SetCheckCurPath, &CCfgOption::GetCheckCurPath},
      {&CCfgOption::SetCheckDefValue, &CCfgOption::GetCheckDefValue},
      {&CCfgOption::SetCheckDir, &CCfgOption::GetCheckDir},
      {&CCfgOption::SetCheckAutoSave, &CCfgOption::GetCheckAutoSave},
      {&CCfgOption::SetRenameDrw, &CCfgOption::GetRenameDrw}};
  // Each its own value, so that two settings sharing a key show.
  for (size_t i = 0; i < settings.size(); ++i) (option.*settings[i].first)(static_cast<int>(i) + 1);
  for (size_t i = 0; i < settings.size(); ++i)
    EXPECT_EQ((option.*settings[i].second)(), static_cast<int>(i) + 1) << i;
}

TEST_F(ToolOptionsTest, MaterialKeysAndListStyle) {
  dir.Write("config/Params.cfg",
            "[MatSetDlg]\nSPLKeyParam= 标准 , 规格\nSPLKey=GB,\nSPLKeyPos=2\nMatListStyle=2\n");
  CCfgOption option;
  std::vector<std::wstring> items;
  option.GetSPLKeyParams(items);
  EXPECT_EQ(items, (std::vector<std::wstring>{L"标准", L"规格"}));
  option.GetSPLKeys(items);
  EXPECT_EQ(items, std::vector<std::wstring>{L"GB"});
  EXPECT_EQ(option.GetSPLKeyPos(), 2);
  EXPECT_EQ(option.GetMatListStyle(), 0) << "only the text 1 means the pick list";
  dir.Write("config/Params.cfg", "[MatSetDlg]\nMatListStyle=1\n");
  EXPECT_EQ(option.GetMatListStyle(), 1);
}

TEST_F(ToolOptionsTest, ExportSettings) {
  dir.Write("config/MdlExport.cfg",
            "[Export]\nSortCol=1,2\nExportCreateFolder=1\nExportNameUseParam=1\nExportNameParam=图号, 名称\n"
            "ExportNameSign=_\n");
  CCfgOption option;
  std::vector<unsigned> cols;
  option.GetExportSortCols(cols);
  EXPECT_EQ(cols, (std::vector<unsigned>{1, 2}));
  EXPECT_EQ(option.GetExportCreateFolder(), 1);
  EXPECT_EQ(option.GetExportNameUseParam(), 1);
  std::vector<std::wstring> params;
  option.GetExportNameParams(params);
  EXPECT_EQ(params, (std::vector<std::wstring>{L"图号", L"名称"}));
  EXPECT_EQ(option.GetExportNameSign(), L"_");
}

TEST_F(ToolOptionsTest, LibraryDirectoriesEndEachInASemicolonAndReadBack) {
  dir.Write("config/SPL.cfg", "[SPL]\nDir=\n");
  CCfgOption option;
  option.SetSplDirs({L"/lib/标准 件", L"/lib/gb"});
  EXPECT_EQ(dir.Read("config/SPL.cfg"), "[SPL]\nDir=/lib/标准□件;/lib/gb;\n");
  std::vector<std::wstring> dirs;
  option.GetSplDirs(dirs);
  EXPECT_EQ(dirs, (std::vector<std::wstring>{L"/lib/标准 件", L"/lib/gb"}));
}

TEST_F(ToolOptionsTest, FamilyInstanceBackupIsOnForAnythingButZero) {
  for (auto [lines, read] : {std::pair{"Dir=", 1}, {"FmlInstBackup=0", 0}, {"FmlInstBackup=2", 1}}) {
    dir.Write("config/SPL.cfg", std::string("[SPL]\n") + lines + "\n");
    EXPECT_EQ(CCfgOption().GetFmlInstBackup(), read) << lines;
  }
  CCfgOption().SetFmlInstBackup(0);
  EXPECT_EQ(CCfgOption().GetFmlInstBackup(), 0);
}
