// Materials of parts.
#pragma once

#include "ProObjects.h"

PRO_BEGIN_C_DECLS

typedef struct pro_material {
  ProName matl_name;
  ProSolid part;
} ProMaterial;

// The caller allocates `*p_matl_names_arr` with ProArrayAlloc (objects of
// ProName); the part's material names are appended.
extern ProError ProPartMaterialsGet(ProSolid part, ProName** p_matl_names_arr);
extern ProError ProMaterialDelete(ProMaterial* p_material);
// Reads the material file of that name (no extension: .mtl first, then .mat)
// from the directory of the option "pro_material_dir" into the part.
extern ProError ProMaterialfileRead(ProSolid part, ProName matl_name);
extern ProError ProMaterialCurrentSet(ProMaterial* p_material);

PRO_END_C_DECLS
