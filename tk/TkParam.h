// Parameters of whole models as the tools see them: a name and a value text.
// No state; tools keep an instance as a member.
#pragma once

#include <string>
#include <vector>

#include "ProObjects.h"
#include "ProParamval.h"

class CTkParam {
 public:
  // Value types as the host reports them; kNoValue is what the type query
  // answers for a parameter that cannot be read, never a stored type.
  static constexpr int kDouble = PRO_PARAM_DOUBLE;
  static constexpr int kText = PRO_PARAM_STRING;
  static constexpr int kInteger = PRO_PARAM_INTEGER;
  static constexpr int kBoolean = PRO_PARAM_BOOLEAN;
  static constexpr int kNoValue = PRO_PARAM_VOID;

  virtual ~CTkParam() = default;

  // The value as text: a double with `decimals` decimals, an integer in
  // decimal, a boolean "TRUE" or "FALSE", a text as it stands. Units are never
  // shown. Empty when the parameter cannot be read.
  std::wstring GetMdlParamValue(ProMdl mdl, const std::wstring& name, int decimals) const;
  // kNoValue for a null model, an empty name or any failure.
  int GetMdlParamType(ProMdl mdl, const std::wstring& name) const;
  // Sets an existing parameter, keeping its unit. A boolean takes the
  // integer the text parses to, so "TRUE" sets false. -2 for a `type` other
  // than the four value types.
  int SetMdlParamValue(ProMdl mdl, const std::wstring& name, int type, const std::wstring& value) const;
  // Creates a unitless parameter unless one of that name exists, which keeps
  // its value. A boolean is true only for the text "PRO_B_TRUE" in any case.
  // 0 whatever the host answered; -2 for a `type` other than the four.
  int CreateMdlParam(ProMdl mdl, const std::wstring& name, int type, const std::wstring& value) const;
  // In the host's visit order; empties `names` first.
  int GetMdlParamNames(ProMdl mdl, std::vector<std::wstring>& names) const;
  std::wstring GetMdlParamDescription(ProMdl mdl, const std::wstring& name) const;
  // The host's answer to the setting itself is not looked at.
  int SetMdlParamDescription(ProMdl mdl, const std::wstring& name, const std::wstring& description) const;
  int GetMdlParamDesignated(ProMdl mdl, const std::wstring& name, int& designated) const;
  int SetMdlParamDesignated(ProMdl mdl, const std::wstring& name, int designated) const;
  // The text of a host value as GetMdlParamValue makes it, except that an
  // integer always reads "0" (family table cells show it so). A type other
  // than the four leaves `text` empty.
  int GetParamValueText(const ProParamvalue& value, std::wstring& text, int decimals) const;
};
