// Parameters of models: lookup, typed values with units, creation, listing,
// descriptions and designation.
#pragma once

#include "ProObjects.h"
#include "ProParamval.h"

PRO_BEGIN_C_DECLS

typedef enum proparamfrom { PRM_MODEL = 0, PRM_ITEM = 1 } ProParamfrom;

typedef struct pro_param_owner {
  ProParamfrom type;
  union {
    ProModelitem item;
    ProMdl model;
  } who;
} ProParamowner;

typedef struct pro_parameter {
  ProType type;
  ProName id;
  ProParamowner owner;
} ProParameter;

typedef struct pro_unititem {
  ProMdl owner;
  ProName name;
} ProUnititem;

typedef ProError (*ProParameterAction)(ProParameter* handle, ProError status, ProAppData data);
typedef ProError (*ProParameterFilter)(ProParameter* handle, ProAppData data);

extern ProError ProParameterInit(ProModelitem* owner, ProName name, ProParameter* param);
// `units` may be null; a unitless parameter answers an empty unit name.
extern ProError ProParameterValueWithUnitsGet(ProParameter* param, ProParamvalue* proval, ProUnititem* units);
extern ProError ProParameterValueWithUnitsSet(ProParameter* param, ProParamvalue* proval, ProUnititem* units);
// `units` null makes the parameter unitless.
extern ProError ProParameterWithUnitsCreate(ProModelitem* owner, ProName name, ProParamvalue* proval,
                                            ProUnititem* units, ProParameter* param);
// Filter first, then action: the reverse of the feature visit.
extern ProError ProParameterVisit(ProModelitem* owner, ProParameterFilter filter, ProParameterAction action,
                                  ProAppData data);
// The host allocates the description; free it with ProWstringFree.
extern ProError ProParameterDescriptionGet(ProParameter* param, wchar_t** description);
extern ProError ProParameterDescriptionSet(ProParameter* param, wchar_t* description);
extern ProError ProParameterDesignationAdd(ProParameter* param);
extern ProError ProParameterDesignationRemove(ProParameter* param);
extern ProError ProParameterDesignationVerify(ProParameter* param, ProBoolean* p_exist);

PRO_END_C_DECLS
