#include "ParamData.h"

#include "TkText.h"

void GetPropCnTypes(std::vector<PropCnType>& types) { types = {{L"参数", 0}, {L"系统单位", 2}}; }

void GetParamCnTypes(std::vector<ParamCnType>& types) {
  types = {{L"字符串", 51}, {L"整数", 52}, {L"实数", 50}};
}

void GetDesignationCns(std::vector<DesignationCn>& designations) { designations = {{L"是", 1}, {L"否", 0}}; }

int PropCnToKind(const std::wstring& text, int& code) {
  code = -1;
  std::vector<PropCnType> types;
  GetPropCnTypes(types);
  for (const PropCnType& type : types) {
    if (type.text == text) {
      code = type.code;
      return 0;
    }
  }
  return -4;
}

int ParamCnToType(const std::wstring& text, int& code) {
  code = kNoSuchParam;
  std::vector<ParamCnType> types;
  GetParamCnTypes(types);
  for (const ParamCnType& type : types) {
    if (tktext::Upper(type.text) == tktext::Upper(text)) {
      code = type.code;
      return 0;
    }
  }
  return -4;
}

int ParamTypeToCn(int code, std::wstring& text) {
  text = L"字符串";
  std::vector<ParamCnType> types;
  GetParamCnTypes(types);
  for (const ParamCnType& type : types) {
    if (type.code == code) text = type.text;
  }
  return 0;
}

int DesignationCnToFlag(const std::wstring& text, int& flag) {
  flag = 0;
  std::vector<DesignationCn> designations;
  GetDesignationCns(designations);
  for (const DesignationCn& designation : designations) {
    if (tktext::Upper(designation.text) == tktext::Upper(text)) {
      flag = designation.flag;
      return 0;
    }
  }
  return 0;
}

int DesignationFlagToCn(int flag, std::wstring& text) {
  text = L"否";
  std::vector<DesignationCn> designations;
  GetDesignationCns(designations);
  for (const DesignationCn& designation : designations) {
    if (designation.flag == flag) text = designation.text;
  }
  return 0;
}
