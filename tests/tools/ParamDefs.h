// Parameters of models made in code for the parameter tools' tests.
#pragma once

#include <string>

#include "ModelDef.h"

inline sim::ParameterDef TextParam(const std::wstring& name, const std::wstring& text) {
  sim::ParameterDef param;
  param.name = name;
  param.text = text;
  return param;
}

inline sim::ParameterDef RealParam(const std::wstring& name, double number) {
  sim::ParameterDef param;
  param.name = name;
  param.type = PRO_PARAM_DOUBLE;
  param.number = number;
  return param;
}

inline sim::ParameterDef IntParam(const std::wstring& name, int integer) {
  sim::ParameterDef param;
  param.name = name;
  param.type = PRO_PARAM_INTEGER;
  param.integer = integer;
  return param;
}

inline sim::ParameterDef BoolParam(const std::wstring& name, bool value) {
  sim::ParameterDef param;
  param.name = name;
  param.type = PRO_PARAM_BOOLEAN;
  param.integer = value ? 1 : 0;
  return param;
}
