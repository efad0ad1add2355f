// Parameter value types.
#pragma once

#include "ProToolkit.h"

PRO_BEGIN_C_DECLS

typedef enum param_value_types {
  PRO_PARAM_DOUBLE = 50,
  PRO_PARAM_STRING = 51,
  PRO_PARAM_INTEGER = 52,
  PRO_PARAM_BOOLEAN = 53,
  PRO_PARAM_NOTE_ID = 54,
  PRO_PARAM_VOID = 57,
  PRO_PARAM_NOT_SET = 58
} ProParamvalueType;

// A boolean is a short and a text an inline line, not a pointer.
typedef union param_value_values {
  double d_val;
  int i_val;
  short l_val;
  ProLine s_val;
} ProParamvalueValue;

typedef struct Pro_Param_Value {
  ProParamvalueType type;
  ProParamvalueValue value;
} ProParamvalue;

PRO_END_C_DECLS
