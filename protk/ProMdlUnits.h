// The unit systems of a model.
#pragma once

#include "ProObjects.h"

PRO_BEGIN_C_DECLS

typedef struct pro_unitsystem {
  ProMdl owner;
  ProName name;
} ProUnitsystem;

typedef enum pro_unitsystem_type { PRO_UNITSYSTEM_MLT = 1, PRO_UNITSYSTEM_FLT = 2 } ProUnitsystemType;

typedef enum pro_unit_convert_type {
  PRO_UNITCONVERT_SAME_DIMS = 0,
  PRO_UNITCONVERT_SAME_SIZE = 1
} ProUnitConvertType;

extern ProError ProMdlPrincipalunitsystemGet(ProMdl mdl, ProUnitsystem* principal_system);
// Regenerates the model; `regeneration_flags` is reserved: PRO_VALUE_UNUSED.
extern ProError ProMdlPrincipalunitsystemSet(ProMdl mdl, ProUnitsystem* new_system, ProUnitConvertType type,
                                             ProBoolean ignore_param_units, int regeneration_flags);
// The host allocates the array; free it with ProArrayFree.
extern ProError ProMdlUnitsystemsCollect(ProMdl mdl, ProUnitsystem** systems);

PRO_END_C_DECLS
