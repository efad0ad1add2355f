// The reference attribute of the parameter tools, as a row of their source
// files and lists shows it, and the fixed tables that translate its texts to
// the host's codes and back.
#pragma once

#include <string>
#include <vector>

// A text of a fixed table with its code.
struct PropCnType {
  std::wstring text;
  int code = -1;
};
struct ParamCnType {
  std::wstring text;
  int code = 57;
};
struct DesignationCn {
  std::wstring text;
  int flag = 0;
};

// What the attribute kinds mean to the tools; any other code is shown and
// never checked or written.
constexpr int kPropParam = 0;
constexpr int kPropUnitSystem = 2;
// The host's answer for a parameter that is not there.
constexpr int kNoSuchParam = 57;

struct ParamData {
  std::wstring name;
  PropCnType kind;
  ParamCnType valueType;
  std::wstring value;
  DesignationCn designated;
  std::wstring description;
};

void GetPropCnTypes(std::vector<PropCnType>& types);
void GetParamCnTypes(std::vector<ParamCnType>& types);
void GetDesignationCns(std::vector<DesignationCn>& designations);

// First match in table order wins. Exact compare; `code` -1 and -4 when the
// text is in no row.
int PropCnToKind(const std::wstring& text, int& code);
// Compared upper-cased; `code` 57 and -4 when the text is in no row.
int ParamCnToType(const std::wstring& text, int& code);
// "字符串" for a code in no row (a boolean among them); 0.
int ParamTypeToCn(int code, std::wstring& text);
// Compared upper-cased; `flag` 0 when the text is in no row; always 0.
int DesignationCnToFlag(const std::wstring& text, int& flag);
// "否" for a flag in no row; 0.
int DesignationFlagToCn(int flag, std::wstring& text);
