// CParamSource over a session made in the test: the reference attributes of
// the template files and of a model, writing them into models, and the
// models the batch tools work on.
#include "ParamSource.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "ExcelApp.h"
#include "HostControl.h"
#include "Inspection.h"
#include "ParamDefs.h"
#include "PluginHost.h"
#include "Shell.h"

namespace {

ParamData Record(const std::wstring& name, int type, const std::wstring& value, int designated = 0,
                 const std::wstring& description = L"") {
  ParamData param;
  param.name = name;
  param.kind = {L"参数", kPropParam};
  param.valueType.code = type;
  param.value = value;
  param.designated.flag = designated;
  param.description = description;
  return param;
}

// Each record as one line of its texts and codes, for whole-list compares.
std::vector<std::wstring> Lines(const std::vector<ParamData>& params) {
  std::vector<std::wstring> lines;
  for (const ParamData& p : params) {
    lines.push_back(p.name + L"|" + p.kind.text + L":" + std::to_wstring(p.kind.code) + L"|" +
                    p.valueType.text + L":" + std::to_wstring(p.valueType.code) + L"|" + p.value + L"|" +
                    p.designated.text + L":" + std::to_wstring(p.designated.flag) + L"|" + p.description);
  }
  return lines;
}

std::string ModelFile(const std::string& type, const std::string& keys = "") {
  return R"({"type": ")" + type + "\"" + (keys.empty() ? "" : ", " + keys) + "}";
}

bool InSession(ProMdl mdl) {
  for (const sim::SessionModel& model : sim::SessionModels()) {
    if (model.handle == mdl) return true;
  }
  return false;
}

class ParamSourceTest : public testing::Test {
 protected:
  void WriteCsv(const std::string& bytes) const { dir_.Write("app/template/Params.csv", bytes); }

  // Sheet "sheet1" of template\Params.xls, made from the delivered template:
  // the rows from row 2 on, six columns each.
  void WriteWorkbook(const std::vector<std::vector<std::wstring>>& rows) const {
    std::wstring templateDir = host_.TextRoot() + L"\\template";
    ExcelApp excel;
    ASSERT_EQ(excel.StartExcel(0), 1);
    ASSERT_EQ(excel.NewFromTemplate(templateDir + L"\\Params.xls"), 1);
    for (size_t row = 0; row < rows.size(); ++row) {
      for (size_t column = 0; column < rows[row].size(); ++column) {
        excel.SetCellText(L"sheet1", static_cast<int>(row) + 2, static_cast<int>(column) + 1,
                          rows[row][column]);
      }
    }
    excel.SaveWorkbookAs(templateDir, L"Params");
  }

  std::wstring Value(ProMdl mdl, const std::wstring& name) const {
    return source_.GetMdlParamValue(mdl, name, 2);
  }

  TestDir dir_;
  PluginHost host_{dir_};
  CParamSource source_;
};

TEST_F(ParamSourceTest, CsvKeepsFiveFieldLinesAndSkipsShortAndNamelessOnes) {
  WriteCsv(
      "属性名称,属性类型,参数类型,属性值,指定,说明\n"
      "图号,参数,字符串,QK-01,是\n"
      " 重量 , 参数 ,实数,1.5,否,单件,ignored\n"
      "材料,参数,字符串,,\n"
      "名称,参数,字符串,,是\n"
      "  ,参数,字符串,x,是\n"
      "备注,参数,字符串\n"
      "颜色,外观,real,红,Y,未知\n"
      "单位制,系统单位,字符串,mmKs,否\n");
  std::vector<ParamData> params(3);
  EXPECT_EQ(source_.ReadCsvParams(params), 1);
  EXPECT_EQ(Lines(params), (std::vector<std::wstring>{
                               L"图号|参数:0|字符串:51|QK-01|是:1|",
                               L"重量|参数:0|实数:50|1.5|否:0|单件",
                               L"名称|参数:0|字符串:51||是:1|",
                               L"颜色|外观:-1|real:57|红|Y:0|未知",
                               L"单位制|系统单位:2|字符串:51|mmKs|否:0|",
                           }));
}

TEST_F(ParamSourceTest, MissingTemplatesGiveEmptyListsAndStillAnswerOne) {
  std::filesystem::remove(dir_.path() / "app/template/Params.csv");
  std::filesystem::remove(dir_.path() / "app/template/Params.xls");
  std::vector<ParamData> params(2);
  EXPECT_EQ(source_.ReadCsvParams(params), 1);
  EXPECT_TRUE(params.empty());
  params.resize(2);
  EXPECT_EQ(source_.ReadExcelParams(params), 1);
  EXPECT_TRUE(params.empty());
}

TEST_F(ParamSourceTest, WorkbookRowsStopAtTheFirstEmptyName) {
  WriteWorkbook({{L"图号", L"参数", L"字符串", L"QK-01", L"是", L"图样代号"},
                 {L"重量", L"参数", L"实数", L"2.5", L"否", L""},
                 {L"单位制", L"系统单位", L"字符串", L"mmKs", L"否", L""},
                 {L"", L"参数", L"字符串", L"", L"", L""},
                 {L"审核", L"参数", L"字符串", L"", L"否", L""}});
  std::vector<ParamData> params;
  EXPECT_EQ(source_.ReadExcelParams(params), 1);
  EXPECT_EQ(Lines(params), (std::vector<std::wstring>{
                               L"图号|参数:0|字符串:51|QK-01|是:1|图样代号",
                               L"重量|参数:0|实数:50|2.5|否:0|",
                               L"单位制|系统单位:2|字符串:51|mmKs|否:0|",
                           }));
}

TEST_F(ParamSourceTest, WorkbookGivesAtMostOneHundredAttributes) {
  std::vector<std::vector<std::wstring>> rows;
  for (int i = 1; i <= 101; ++i)
    rows.push_back({L"P" + std::to_wstring(i), L"参数", L"整数", L"1", L"否", L""});
  WriteWorkbook(rows);
  std::vector<ParamData> params;
  source_.ReadExcelParams(params);
  ASSERT_EQ(params.size(), 100u);
  EXPECT_EQ(params.back().name, L"P100");
  EXPECT_EQ(params.back().valueType.code, 52);
}

TEST_F(ParamSourceTest, DeliveredTemplatesHoldTheSameAttributes) {
  std::vector<ParamData> fromCsv;
  std::vector<ParamData> fromWorkbook;
  source_.ReadCsvParams(fromCsv);
  source_.ReadExcelParams(fromWorkbook);
  ASSERT_EQ(fromCsv.size(), 7u);
  EXPECT_EQ(Lines(fromCsv), Lines(fromWorkbook));
  EXPECT_EQ(Lines(fromCsv).back(),
            L"单位制|系统单位:2|字符串:51|millimeter Kilogram Sec (mmKs)|否:0|毫米千克秒");
}

// A Params.csv as users save it on Chinese Windows, and as delivered.
TEST_F(ParamSourceTest, GbkAndUtf8WithByteOrderMarkReadToTheSameRows) {
  std::vector<std::vector<std::wstring>> read;
  for (const char* encoding : {"gbk", "utf8bom"}) {
    std::ifstream in(std::filesystem::path(BOM_TEST_DATA_DIR) / "params" / encoding / "Params.csv",
                     std::ios::binary);
    WriteCsv(std::string(std::istreambuf_iterator<char>(in), {}));
    std::vector<ParamData> params;
    source_.ReadCsvParams(params);
    read.push_back(Lines(params));
  }
  ASSERT_EQ(read[0].size(), 7u);
  EXPECT_EQ(read[0].front(), L"图号|参数:0|字符串:51||是:1|零件或部件的图号");
  EXPECT_EQ(read[0], read[1]);
}

TEST_F(ParamSourceTest, ModelParamsAreReadWithTheirTypesTextsAndFlags) {
  sim::ModelDef def;
  def.parameters = {TextParam(L"图号", L"QK-02"), RealParam(L"重量", 1.234), IntParam(L"件数", 4),
                    BoolParam(L"外购", true)};
  def.parameters[0].designated = true;
  def.parameters[1].description = L"千克";
  sim::AddModel(L"ref.prt", def);
  std::vector<ParamData> params;
  EXPECT_EQ(source_.ReadMdlParams(L"C:\\parts\\ref.prt.3", params), 0);
  EXPECT_EQ(Lines(params), (std::vector<std::wstring>{
                               L"图号|参数:0|字符串:51|QK-02|是:1|",
                               L"重量|参数:0|实数:50|1.23|否:0|千克",
                               L"件数|参数:0|整数:52|4|否:0|",
                               L"外购|参数:0|字符串:53|TRUE|否:0|",
                           }));
}

TEST_F(ParamSourceTest, ReferenceModelFoundInSessionStaysAndOneLoadedForReadingGoes) {
  dir_.Write("lib/kept.prt.2", ModelFile("part", R"("parameters": [{"name": "材料", "value": "45"}])"));
  dir_.Write("lib/read.prt.3", ModelFile("part", R"("parameters": [{"name": "材料", "value": "Q235"}])"));
  ProMdl kept = sim::OpenModel(dir_.Wide("lib/kept.prt"));
  ASSERT_NE(kept, nullptr);
  std::wstring lib = dir_.Wide("lib");
  std::vector<ParamData> params;
  ASSERT_EQ(source_.ReadMdlParams(lib + L"\\kept.prt.2", params), 0);
  ASSERT_EQ(source_.ReadMdlParams(lib + L"\\read.prt.3", params), 0);
  ASSERT_EQ(params.size(), 1u);
  EXPECT_EQ(params[0].value, L"Q235");
  sim::ReturnToHost();
  std::vector<sim::SessionModel> models = sim::SessionModels();
  ASSERT_EQ(models.size(), 1u);
  EXPECT_EQ(models[0].handle, kept);

  EXPECT_EQ(source_.ReadMdlParams(lib + L"\\gone.prt.1", params), PRO_TK_E_NOT_FOUND);
  EXPECT_TRUE(params.empty());
}

TEST_F(ParamSourceTest, TemplatesOpenInTheShellWithADoubledSeparator) {
  std::vector<std::wstring> opened;
  auto previous = platform::SetShellOpenHandler([&](const platform::ShellOpenRequest& request) {
    opened.push_back(request.path);
    return true;
  });
  EXPECT_TRUE(source_.OpenParamsXls());
  EXPECT_TRUE(source_.OpenParamsCsv());
  std::filesystem::remove(dir_.path() / "app/template/Params.csv");
  EXPECT_FALSE(source_.OpenParamsCsv());
  platform::SetShellOpenHandler(previous);
  EXPECT_EQ(opened, (std::vector<std::wstring>{host_.TextRoot() + L"\\\\template\\Params.xls",
                                               host_.TextRoot() + L"\\\\template\\Params.csv"}));
}

TEST_F(ParamSourceTest, ReferenceModelOpensInAWindowOrPassesTheLoadFailureUp) {
  dir_.Write("lib/ref.prt.1", ModelFile("part"));
  EXPECT_EQ(source_.OpenReferenceMdl(dir_.Wide("lib") + L"\\ref.prt"), 0);
  std::vector<sim::WindowInfo> windows = sim::Windows();
  ASSERT_FALSE(windows.empty());
  std::wstring name;
  int type = 0;
  source_.GetMdlNameAndKind(windows.back().model, name, type);
  EXPECT_EQ(name, L"REF");
  EXPECT_EQ(type, PRO_MDL_PART);
  EXPECT_EQ(source_.OpenReferenceMdl(dir_.Wide("lib") + L"\\none.prt"), PRO_TK_E_NOT_FOUND);
}

class ParamSourceApplyTest : public ParamSourceTest {
 protected:
  ParamSourceApplyTest() {
    sim::ModelDef def;
    def.parameters = {TextParam(L"图号", L"OLD-1"), TextParam(L"名称", L""), RealParam(L"重量", 3)};
    def.parameters[0].description = L"旧说明";
    part_ = sim::AddModel(L"p.prt", def);
  }

  std::vector<ParamData> Records() const {
    return {Record(L"图号", 51, L"NEW-1", 1, L"图样代号"), Record(L"名称", 51, L"端盖", 0, L"名称"),
            Record(L"重量", 50, L"7.5"), Record(L"设计", 51, L"张三", 1, L"设计者")};
  }

  ProMdl part_ = nullptr;
};

TEST_F(ParamSourceApplyTest, EmptyListAnswersMinusTwo) {
  EXPECT_EQ(source_.ApplyParams(part_, {}, 0, 1), -2);
}

TEST_F(ParamSourceApplyTest, WithoutOverwriteOnlyEmptyAndMissingValuesAreWritten) {
  EXPECT_EQ(source_.ApplyParams(part_, Records(), 0, 0), 0);
  EXPECT_EQ(Value(part_, L"图号"), L"OLD-1");
  EXPECT_EQ(source_.GetMdlParamDescription(part_, L"图号"), L"旧说明")
      << "a kept value keeps its description";
  EXPECT_EQ(Value(part_, L"名称"), L"端盖");
  EXPECT_EQ(Value(part_, L"重量"), L"3.00");
  EXPECT_EQ(Value(part_, L"设计"), L"张三");
  int designated = 0;
  source_.GetMdlParamDesignated(part_, L"设计", designated);
  EXPECT_EQ(designated, 1);
  EXPECT_EQ(source_.GetMdlParamDescription(part_, L"设计"), L"设计者");
}

TEST_F(ParamSourceApplyTest, OverwriteWritesValuesDescriptionsAndDesignations) {
  EXPECT_EQ(source_.ApplyParams(part_, Records(), 0, 1), 0);
  EXPECT_EQ(Value(part_, L"图号"), L"NEW-1");
  EXPECT_EQ(source_.GetMdlParamDescription(part_, L"图号"), L"图样代号");
  int designated = 0;
  source_.GetMdlParamDesignated(part_, L"图号", designated);
  EXPECT_EQ(designated, 1);
  EXPECT_EQ(Value(part_, L"重量"), L"7.50");
  EXPECT_EQ(source_.GetMdlParamType(part_, L"设计"), 51);
}

TEST_F(ParamSourceApplyTest, CreateOnlyAddsMissingParametersEmptyAndLeavesOthers) {
  std::vector<ParamData> records = Records();
  records.push_back(Record(L"件数", 52, L"9"));
  EXPECT_EQ(source_.ApplyParams(part_, records, 1, 1), 0);
  EXPECT_EQ(Value(part_, L"图号"), L"OLD-1");
  EXPECT_EQ(source_.GetMdlParamDescription(part_, L"图号"), L"旧说明");
  EXPECT_EQ(Value(part_, L"设计"), L"");
  EXPECT_EQ(source_.GetMdlParamType(part_, L"设计"), 51);
  EXPECT_EQ(source_.GetMdlParamDescription(part_, L"设计"), L"设计者");
  EXPECT_EQ(Value(part_, L"件数"), L"0");
}

TEST_F(ParamSourceApplyTest, UnknownValueTypeWritesNothingAndDoesNotStopTheOthers) {
  std::vector<ParamData> records = {Record(L"颜色", kNoSuchParam, L"红"), Record(L"材料", 51, L"Q235")};
  EXPECT_EQ(source_.ApplyParams(part_, records, 0, 1), 0);
  EXPECT_FALSE(source_.IsParamExist(part_, L"颜色"));
  EXPECT_EQ(Value(part_, L"材料"), L"Q235");
  std::wstring text = L"x";
  EXPECT_EQ(source_.GetParamText(part_, L"颜色", text), -4);
  EXPECT_EQ(text, L"");
  EXPECT_EQ(source_.GetParamText(part_, L"重量", text), 0);
  EXPECT_EQ(text, L"3.00");
}

TEST_F(ParamSourceTest, CurrentModelsFollowTheCurrentModelsType) {
  std::vector<ProMdl> models{nullptr};
  EXPECT_NE(source_.CollectCurrentMdls(models), 0) << "no current model";
  EXPECT_TRUE(models.empty());

  ProMdl bolt = host_.AddPart(L"bolt");
  ProMdl nut = host_.AddPart(L"nut");
  sim::ModelDef assembly;
  assembly.type = PRO_MDL_ASSEMBLY;
  assembly.components = {{1, L"bolt.prt"}, {2, L"nut.prt"}, {3, L"bolt.prt"}};
  ProMdl top = sim::AddModel(L"top.asm", assembly);
  sim::ModelDef drawing;
  drawing.type = PRO_MDL_DRAWING;
  drawing.solids = {L"top.asm", L"nut.prt"};
  ProMdl sheet = sim::AddModel(L"top.drw", drawing);
  ProMdl empty = host_.AddDrawing(L"empty");

  host_.MakeCurrent(nut);
  EXPECT_EQ(source_.CollectCurrentMdls(models), 0);
  EXPECT_EQ(models, std::vector<ProMdl>({nut}));
  host_.MakeCurrent(top);
  EXPECT_EQ(source_.CollectCurrentMdls(models), 0);
  EXPECT_EQ(models, std::vector<ProMdl>({top, bolt, nut}));
  host_.MakeCurrent(sheet);
  EXPECT_EQ(source_.CollectCurrentMdls(models), 0);
  EXPECT_EQ(models, std::vector<ProMdl>({top, bolt, nut})) << "the first solid only, the drawing left out";
  host_.MakeCurrent(empty);
  EXPECT_EQ(source_.CollectCurrentMdls(models), 0);
  EXPECT_TRUE(models.empty());
}

TEST_F(ParamSourceTest, SessionModelsLoadTheDirectoryAgainAtEveryCall) {
  ProMdl before = host_.AddPart(L"before");
  dir_.Write("proj/a.prt.1", ModelFile("part"));
  dir_.Write("proj/b.asm.2", ModelFile("assembly"));
  dir_.Write("proj/notes.txt", "");
  std::vector<ProMdl> models;
  EXPECT_EQ(source_.CollectSessionMdls(L"", models), 0);
  EXPECT_EQ(models, std::vector<ProMdl>({before}));
  std::wstring proj = dir_.Wide("proj");
  EXPECT_EQ(source_.CollectSessionMdls(proj, models), 0);
  ASSERT_EQ(models.size(), 3u);
  std::wstring name;
  int type = 0;
  source_.GetMdlNameAndKind(models[0], name, type);
  EXPECT_EQ(name, L"B") << "assemblies first";

  dir_.Write("proj/c.drw.1", ModelFile("drawing"));
  EXPECT_EQ(source_.CollectSessionMdls(proj, models), 0);
  ASSERT_EQ(models.size(), 4u);
  EXPECT_TRUE(InSession(models[3]));
  source_.GetMdlNameAndKind(models[3], name, type);
  EXPECT_EQ(name, L"C");
  EXPECT_EQ(type, PRO_MDL_DRAWING);
}

}  // namespace
