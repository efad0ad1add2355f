#include "TkParam.h"

#include <cwchar>
#include <optional>

#include "CodePage.h"
#include "ProArray.h"
#include "ProMdl.h"
#include "ProParameter.h"
#include "ProWstring.h"
#include "TkText.h"

namespace {

bool IsValueType(int type) { return type >= CTkParam::kDouble && type <= CTkParam::kBoolean; }

// The parameter named, found on the model as a whole.
struct Found {
  ProError status = PRO_TK_NO_ERROR;
  ProParameter param{};
};

Found Init(ProMdl mdl, const std::wstring& name) {
  Found found;
  ProModelitem item{};
  found.status = ProMdlToModelitem(mdl, &item);
  if (found.status != PRO_TK_NO_ERROR) return found;
  ProName hostName{};
  std::wcsncpy(hostName, name.c_str(), PRO_NAME_SIZE - 1);
  found.status = ProParameterInit(&item, hostName, &found.param);
  return found;
}

// Reads the value; its type is kNoValue when anything fails.
ProParamvalue ReadValue(ProMdl mdl, const std::wstring& name) {
  ProParamvalue value{};
  value.type = PRO_PARAM_VOID;
  if (name.empty()) return value;
  Found found = Init(mdl, name);
  // Without a unit to fill the host would convert the value into the
  // model's units; the value is wanted as the parameter holds it.
  ProUnititem unit{};
  if (found.status != PRO_TK_NO_ERROR ||
      ProParameterValueWithUnitsGet(&found.param, &value, &unit) != PRO_TK_NO_ERROR)
    value.type = PRO_PARAM_VOID;
  return value;
}

std::wstring TextOf(const ProParamvalue& value, int decimals) {
  switch (value.type) {
    case PRO_PARAM_DOUBLE:
      return platform::FormatFixed(value.value.d_val, decimals);
    case PRO_PARAM_STRING:
      return std::wstring(value.value.s_val, wcsnlen(value.value.s_val, PRO_LINE_SIZE - 1));
    case PRO_PARAM_INTEGER:
      return std::to_wstring(value.value.i_val);
    case PRO_PARAM_BOOLEAN:
      return value.value.l_val ? L"TRUE" : L"FALSE";
    default:
      return L"";
  }
}

void SetText(ProParamvalue& value, const std::wstring& text) {
  std::wcsncpy(value.value.s_val, text.c_str(), PRO_LINE_SIZE - 1);
  value.value.s_val[PRO_LINE_SIZE - 1] = L'\0';
}

// The host value of a text of the given type. A boolean's text reads
// differently for setting and for creating, so the caller gives its value.
std::optional<ProParamvalue> ValueOf(int type, const std::wstring& text, bool boolean) {
  ProParamvalue value{};
  value.type = static_cast<ProParamvalueType>(type);
  switch (type) {
    case PRO_PARAM_DOUBLE:
      value.value.d_val = platform::WideToDouble(text);
      return value;
    case PRO_PARAM_STRING:
      SetText(value, text);
      return value;
    case PRO_PARAM_INTEGER:
      value.value.i_val = platform::WideToInt(text);
      return value;
    case PRO_PARAM_BOOLEAN:
      value.value.l_val = boolean ? 1 : 0;
      return value;
    default:
      return std::nullopt;
  }
}

ProError AppendParameter(ProParameter* param, ProError, ProAppData data) {
  return ProArrayObjectAdd(static_cast<ProArray*>(data), PRO_VALUE_UNUSED, 1, param);
}

}  // namespace

std::wstring CTkParam::GetMdlParamValue(ProMdl mdl, const std::wstring& name, int decimals) const {
  return TextOf(ReadValue(mdl, name), decimals);
}

int CTkParam::GetMdlParamType(ProMdl mdl, const std::wstring& name) const {
  if (!mdl) return kNoValue;
  return ReadValue(mdl, name).type;
}

int CTkParam::SetMdlParamValue(ProMdl mdl, const std::wstring& name, int type,
                               const std::wstring& value) const {
  std::optional<ProParamvalue> hostValue = ValueOf(type, value, platform::WideToInt(value) != 0);
  if (!hostValue) return PRO_TK_BAD_INPUTS;
  Found found = Init(mdl, name);
  if (found.status != PRO_TK_NO_ERROR) return found.status;
  // The read is for the unit alone: the value is set in the unit it has.
  ProParamvalue old{};
  ProUnititem unit{};
  ProParameterValueWithUnitsGet(&found.param, &old, &unit);
  return ProParameterValueWithUnitsSet(&found.param, &*hostValue, &unit);
}

int CTkParam::CreateMdlParam(ProMdl mdl, const std::wstring& name, int type,
                             const std::wstring& value) const {
  std::optional<ProParamvalue> hostValue = ValueOf(type, value, tktext::Upper(value) == L"PRO_B_TRUE");
  if (!hostValue) return PRO_TK_BAD_INPUTS;
  ProModelitem item{};
  if (ProMdlToModelitem(mdl, &item) != PRO_TK_NO_ERROR) return 0;
  ProName hostName{};
  std::wcsncpy(hostName, name.c_str(), PRO_NAME_SIZE - 1);
  ProParameter param{};
  if (ProParameterInit(&item, hostName, &param) == PRO_TK_NO_ERROR) return 0;
  ProParameterWithUnitsCreate(&item, hostName, &*hostValue, nullptr, &param);
  return 0;
}

int CTkParam::GetMdlParamNames(ProMdl mdl, std::vector<std::wstring>& names) const {
  names.clear();
  ProModelitem item{};
  ProError status = ProMdlToModelitem(mdl, &item);
  if (status != PRO_TK_NO_ERROR) return status;
  ProArray params = nullptr;
  status = ProArrayAlloc(0, sizeof(ProParameter), 1, &params);
  if (status != PRO_TK_NO_ERROR) return status;
  int count = 0;
  status = ProParameterVisit(&item, nullptr, AppendParameter, &params);
  if (status == PRO_TK_NO_ERROR) status = ProArraySizeGet(params, &count);
  if (status == PRO_TK_NO_ERROR) {
    const auto* found = static_cast<const ProParameter*>(params);
    for (int i = 0; i < count; ++i) names.emplace_back(found[i].id);
  }
  ProArrayFree(&params);
  return status;
}

std::wstring CTkParam::GetMdlParamDescription(ProMdl mdl, const std::wstring& name) const {
  Found found = Init(mdl, name);
  if (found.status != PRO_TK_NO_ERROR) return L"";
  wchar_t* description = nullptr;
  if (ProParameterDescriptionGet(&found.param, &description) != PRO_TK_NO_ERROR || !description) return L"";
  std::wstring text = description;
  ProWstringFree(description);
  return text;
}

int CTkParam::SetMdlParamDescription(ProMdl mdl, const std::wstring& name,
                                     const std::wstring& description) const {
  Found found = Init(mdl, name);
  if (found.status != PRO_TK_NO_ERROR) return found.status;
  std::wstring text = description;
  ProParameterDescriptionSet(&found.param, text.data());
  return 0;
}

int CTkParam::GetMdlParamDesignated(ProMdl mdl, const std::wstring& name, int& designated) const {
  designated = 0;
  Found found = Init(mdl, name);
  if (found.status != PRO_TK_NO_ERROR) return found.status;
  ProBoolean exists = PRO_B_FALSE;
  ProError status = ProParameterDesignationVerify(&found.param, &exists);
  if (exists == PRO_B_TRUE) designated = 1;
  return status;
}

int CTkParam::SetMdlParamDesignated(ProMdl mdl, const std::wstring& name, int designated) const {
  Found found = Init(mdl, name);
  if (found.status != PRO_TK_NO_ERROR) return found.status;
  return designated ? ProParameterDesignationAdd(&found.param) : ProParameterDesignationRemove(&found.param);
}

int CTkParam::GetParamValueText(const ProParamvalue& value, std::wstring& text, int decimals) const {
  text.clear();
  if (!IsValueType(value.type)) return 0;
  // The integer is read into one place and the text made from another,
  // which holds zero.
  text = value.type == PRO_PARAM_INTEGER ? L"0" : TextOf(value, decimals);
  return 0;
}
