#include "ParamSource.h"

#include "ExcelApp.h"
#include "ProMdl.h"
#include "TkDrwTable.h"
#include "TkText.h"

namespace {

constexpr int kFirstExcelRow = 2;
constexpr int kLastExcelRow = 101;

}  // namespace

bool CParamSource::IsParamExist(ProMdl mdl, const std::wstring& name) const {
  return GetMdlParamType(mdl, name) != kNoSuchParam;
}

int CParamSource::GetParamText(ProMdl mdl, const std::wstring& name, std::wstring& text) const {
  text.clear();
  if (!IsParamExist(mdl, name)) return -4;
  text = GetMdlParamValue(mdl, name, 2);
  return 0;
}

void CParamSource::GetMdlNameAndKind(ProMdl mdl, std::wstring& name, int& type) const {
  name = model_.GetMdlName(mdl);
  model_.GetMdlType(mdl, type);
}

int CParamSource::ReadCsvParams(std::vector<ParamData>& params) const {
  params.clear();
  std::vector<std::wstring> lines;
  file_.ReadLines(file_.GetAppDir() + L"template\\Params.csv", lines);
  for (size_t i = 1; i < lines.size(); ++i) {
    std::vector<std::wstring> fields;
    file_.SplitText(lines[i], fields, L',', 1);
    if (fields.size() < 5 || tktext::TrimBlanks(fields[0]).empty()) continue;
    ParamData param;
    param.name = fields[0];
    param.kind.text = fields[1];
    PropCnToKind(param.kind.text, param.kind.code);
    param.valueType.text = fields[2];
    ParamCnToType(param.valueType.text, param.valueType.code);
    param.value = fields[3];
    param.designated.text = fields[4];
    DesignationCnToFlag(param.designated.text, param.designated.flag);
    if (fields.size() > 5) param.description = fields[5];
    params.push_back(param);
  }
  return 1;
}

int CParamSource::ReadExcelParams(std::vector<ParamData>& params) const {
  params.clear();
  const std::wstring sheet = L"sheet1";
  ExcelApp excel;
  excel.StartExcel(0);
  excel.OpenWorkbook(file_.GetAppDir() + L"template\\Params.xls");
  // Without a workbook or its sheet every read throws: the list stays as far
  // as it got, as when Excel cannot start.
  try {
    for (int row = kFirstExcelRow; row <= kLastExcelRow; ++row) {
      ParamData param;
      excel.GetCellText(sheet, row, 1, param.name);
      if (param.name.empty()) break;
      excel.GetCellText(sheet, row, 2, param.kind.text);
      PropCnToKind(param.kind.text, param.kind.code);
      excel.GetCellText(sheet, row, 3, param.valueType.text);
      ParamCnToType(param.valueType.text, param.valueType.code);
      excel.GetCellText(sheet, row, 4, param.value);
      excel.GetCellText(sheet, row, 5, param.designated.text);
      DesignationCnToFlag(param.designated.text, param.designated.flag);
      excel.GetCellText(sheet, row, 6, param.description);
      params.push_back(param);
    }
  } catch (const workbook::Error&) {
  }
  excel.CloseAll();
  return 1;
}

int CParamSource::ReadMdlParams(const std::wstring& path, std::vector<ParamData>& params) const {
  params.clear();
  std::wstring fileName = tktext::FileNameOf(path);
  ProName lookup{};
  tktext::CopyToBuffer(lookup, fileName);
  ProMdl mdl = nullptr;
  bool wasInSession = ProMdlInit(lookup, PRO_MDL_UNUSED, &mdl) == PRO_TK_NO_ERROR;
  if (!wasInSession) {
    int status = model_.LoadMdl(path, -1, mdl);
    if (status != 0) return status;
  }
  std::vector<std::wstring> names;
  int status = GetMdlParamNames(mdl, names);
  if (status != 0) return status;
  for (const std::wstring& name : names) {
    ParamData param;
    param.name = name;
    param.kind = {L"参数", kPropParam};
    param.valueType.code = GetMdlParamType(mdl, name);
    ParamTypeToCn(param.valueType.code, param.valueType.text);
    param.value = GetMdlParamValue(mdl, name, 2);
    GetMdlParamDesignated(mdl, name, param.designated.flag);
    DesignationFlagToCn(param.designated.flag, param.designated.text);
    param.description = GetMdlParamDescription(mdl, name);
    params.push_back(param);
  }
  if (!wasInSession) ProMdlErase(mdl);
  return 0;
}

bool CParamSource::OpenParamsXls() const {
  return ExcelApp().OpenFileInShell(file_.GetAppDir() + L"\\template\\Params.xls") != 0;
}

bool CParamSource::OpenParamsCsv() const {
  return ExcelApp().OpenFileInShell(file_.GetAppDir() + L"\\template\\Params.csv") != 0;
}

int CParamSource::OpenReferenceMdl(const std::wstring& path) const {
  ProMdl mdl = nullptr;
  int status = model_.LoadMdl(path, -1, mdl);
  if (status != 0) return status;
  int window = 0;
  return model_.OpenMdlWindow(mdl, window);
}

int CParamSource::ApplyParams(ProMdl mdl, const std::vector<ParamData>& params, int createOnly,
                              int overwrite) const {
  if (params.empty()) return -2;
  for (const ParamData& param : params) {
    int present = GetMdlParamType(mdl, param.name);
    if (createOnly) {
      if (present != kNoSuchParam) continue;
      // An empty text reads as an empty string and a zero number alike.
      CreateMdlParam(mdl, param.name, param.valueType.code, L"");
    } else {
      if (!overwrite && !GetMdlParamValue(mdl, param.name, 2).empty()) continue;
      if (SetMdlParamValue(mdl, param.name, param.valueType.code, param.value) != 0) {
        CreateMdlParam(mdl, param.name, param.valueType.code, param.value);
      }
    }
    SetMdlParamDescription(mdl, param.name, param.description);
    SetMdlParamDesignated(mdl, param.name, param.designated.flag);
  }
  return 0;
}

int CParamSource::CollectCurrentMdls(std::vector<ProMdl>& models) const {
  models.clear();
  ProMdl current = nullptr;
  int status = ProMdlCurrentGet(&current);
  if (status != PRO_TK_NO_ERROR) return status;
  int type = 0;
  model_.GetMdlType(current, type);
  if (type == CTkModel::kAssembly) {
    model_.GetAllSubMdls(current, models);
  } else if (type == CTkModel::kDrawing) {
    std::vector<ProMdl> solids;
    CTkDrwTable().GetDrawingSolids(current, solids);
    if (!solids.empty()) model_.GetAllSubMdls(solids.front(), models);
  } else {
    models.push_back(current);
  }
  return 0;
}

int CParamSource::CollectSessionMdls(const std::wstring& directory, std::vector<ProMdl>& models) const {
  models.clear();
  if (!directory.empty()) {
    std::vector<std::wstring> names;
    file_.ListFilesByExt(directory, {L"PRT", L"DRW", L"ASM"}, names);
    for (const std::wstring& name : names) {
      ProMdl loaded = nullptr;
      model_.LoadMdl(directory + L"\\" + name, -1, loaded);
    }
  }
  return model_.GetSessionMdls(models);
}
