// The settings of the tools: filter schemes, column files, Params.cfg,
// MdlExport.cfg and SPL.cfg.
#include <gtest/gtest.h>

#include "ApplTextPath.h"
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
  WriteFile("config/BomFilter.cfg", Scheme(1, "1") + Scheme(3, "2"));
  std::vector<BomFilter> filters{BomFilter{}};
  CCfgOption().GetBomFilters(filters);
  ASSERT_EQ(filters.size(), 1u) << "two sections: numbers 1 and 2, and 2 is missing";
  EXPECT_EQ(filters[0].Section, L"Sec1");
  EXPECT_EQ(filters[0].ProjectName, L"方案1");
  EXPECT_EQ(filters[0].RefParamName, L"模型名称");
  EXPECT_EQ(filters[0].FilterKey, L"GB,GP");
  EXPECT_EQ(filters[0].IsShow, 1);

  WriteFile("config/BomFilter.cfg", Scheme(2, "2") + Scheme(1, "0"));
  CCfgOption().GetBomFilters(filters);
  ASSERT_EQ(filters.size(), 2u);
  EXPECT_EQ(filters[0].Section, L"Sec1") << "by number, not by file order";
  EXPECT_EQ(filters[1].IsShow, 0) << "anything but 1 hides";
}

TEST_F(ToolOptionsTest, FilterSchemeIsWrittenIntoItsOwnSectionOnly) {
  WriteFile("config/BomFilter.cfg", Scheme(1, "0") + "\n" + Scheme(2, "0"));
  CCfgOption option;
  option.SetBomFilter({L"Sec2", L"外购 件", L"备注", L"外购", 1});
  option.SetBomFilter({L"Sec9", L"lost", L"", L"", 1});
  std::vector<BomFilter> filters;
  option.GetBomFilters(filters);
  ASSERT_EQ(filters.size(), 2u);
  EXPECT_EQ(filters[0].ProjectName, L"方案1");
  EXPECT_EQ(filters[1].ProjectName, L"外购 件");
  EXPECT_EQ(filters[1].IsShow, 1);
  EXPECT_EQ(ReadFile("config/BomFilter.cfg").find("Sec9"), std::string::npos);
  EXPECT_EQ(option.GetModelNameKey(), L"模型名称");
}

TEST_F(ToolOptionsTest, AMissingShowKeepsARenameColumnAndDropsTheOthers) {
  std::string columns =
      "[A]\nColName=图号\nColWidth=130\nParamName=DRAWNO\nParamOwner=1\n"
      "[B]\nColName=名称\nShow=0\n[C]\nColName=材料\nColWidth=90\nShow=2\n";
  WriteFile("config/RenameTbl.cfg", columns);
  WriteFile("config/MatCol.cfg", columns);
  WriteFile("config/MdlExportCol.cfg", columns);
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
  WriteFile("config/Params.cfg",
            "[ParamsSetDlg]\nRadioParams=0\n[MatSetDlg]\nCheckDir=0\n[MdlName]\nRenameDrw=0\n");
  CCfgOption option;
  EXPECT_EQ(option.GetRadioMdl(), 0);
  option.SetRadioParams(1);
  option.SetRadioMdl(2);
  option.SetCheckCurPath(1);
  option.SetCheckDefValue(1);
  option.SetCheckDir(1);
  option.SetCheckAutoSave(1);
  option.SetRenameDrw(1);
  EXPECT_EQ(option.GetRadioParams(), 1);
  EXPECT_EQ(option.GetRadioMdl(), 2);
  EXPECT_EQ(option.GetCheckCurPath(), 1);
  EXPECT_EQ(option.GetCheckDefValue(), 1);
  EXPECT_EQ(option.GetCheckDir(), 1);
  EXPECT_EQ(option.GetCheckAutoSave(), 1);
  EXPECT_EQ(option.GetRenameDrw(), 1);
  EXPECT_EQ(option.GetShowLoadDir(), 0);
}

TEST_F(ToolOptionsTest, MaterialKeysAndListStyle) {
  WriteFile("config/Params.cfg",
            "[MatSetDlg]\nSPLKeyParam= 标准 , 规格\nSPLKey=GB,\nSPLKeyPos=2\nMatListStyle=2\n");
  CCfgOption option;
  std::vector<std::wstring> items;
  option.GetSPLKeyParams(items);
  EXPECT_EQ(items, (std::vector<std::wstring>{L"标准", L"规格"}));
  option.GetSPLKeys(items);
  EXPECT_EQ(items, std::vector<std::wstring>{L"GB"});
  EXPECT_EQ(option.GetSPLKeyPos(), 2);
  EXPECT_EQ(option.GetMatListStyle(), 0) << "only the text 1 means the pick list";
  WriteFile("config/Params.cfg", "[MatSetDlg]\nMatListStyle=1\n");
  EXPECT_EQ(option.GetMatListStyle(), 1);
}

TEST_F(ToolOptionsTest, ExportSettings) {
  WriteFile("config/MdlExport.cfg",
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
  WriteFile("config/SPL.cfg", "[SPL]\nDir=\n");
  CCfgOption option;
  option.SetSplDirs({L"/lib/标准 件", L"/lib/gb"});
  EXPECT_EQ(ReadFile("config/SPL.cfg"), "[SPL]\nDir=/lib/标准□件;/lib/gb;\n");
  std::vector<std::wstring> dirs;
  option.GetSplDirs(dirs);
  EXPECT_EQ(dirs, (std::vector<std::wstring>{L"/lib/标准 件", L"/lib/gb"}));
}

TEST_F(ToolOptionsTest, FamilyInstanceBackupIsOnForAnythingButZero) {
  for (auto [lines, read] : {std::pair{"Dir=", 1}, {"FmlInstBackup=0", 0}, {"FmlInstBackup=2", 1}}) {
    WriteFile("config/SPL.cfg", std::string("[SPL]\n") + lines + "\n");
    EXPECT_EQ(CCfgOption().GetFmlInstBackup(), read) << lines;
  }
  CCfgOption().SetFmlInstBackup(0);
  EXPECT_EQ(CCfgOption().GetFmlInstBackup(), 0);
}
