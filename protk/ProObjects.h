// Object types, model handles and the model-item family of structs.
#pragma once

#include "ProToolkit.h"

PRO_BEGIN_C_DECLS

typedef enum pro_type {
  PRO_TYPE_DIR = -5,
  PRO_TYPE_INVALID = -2,
  PRO_TYPE_UNUSED = -1,
  PRO_ASSEMBLY = 1,
  PRO_PART = 2,
  PRO_FEATURE = 3,
  PRO_DRAWING = 4,
  PRO_SURFACE = 5,
  PRO_EDGE = 6,
  PRO_3DSECTION = 7,
  PRO_DIMENSION = 8,
  PRO_2DSECTION = 11,
  PRO_LAYOUT = 19,
  PRO_AXIS = 21,
  PRO_CSYS = 25,
  PRO_DWGFORM = 33,
  PRO_SUB_ASSEMBLY = 34,
  PRO_MFG = 37,
  PRO_QUILT = 57,
  PRO_CURVE = 62,
  PRO_POINT = 66,
  PRO_NOTE = 68,
  PRO_DRAW_TABLE = 84,
  PRO_TABLE = 84,
  PRO_REPORT = 105,
  PRO_MARKUP = 116,
  PRO_LAYER = 117,
  PRO_DIAGRAM = 121,
  PRO_DATUM_PLANE = 176,
  PRO_PARAMETER = 240,
  PRO_RELSET = 533
} ProType;

typedef enum pro_mdl_type {
  PRO_MDL_UNUSED = -1,
  PRO_MDL_ASSEMBLY = 1,
  PRO_MDL_PART = 2,
  PRO_MDL_DRAWING = 4,
  PRO_MDL_3DSECTION = 7,
  PRO_MDL_2DSECTION = 11,
  PRO_MDL_LAYOUT = 19,
  PRO_MDL_DWGFORM = 33,
  PRO_MDL_MFG = 37,
  PRO_MDL_REPORT = 105,
  PRO_MDL_MARKUP = 116,
  PRO_MDL_DIAGRAM = 121
} ProMdlType;

typedef enum pro_mdlfile_type {
  PRO_MDLFILE_UNUSED = -1,
  PRO_MDLFILE_ASSEMBLY = 1,
  PRO_MDLFILE_PART = 2,
  PRO_MDLFILE_DRAWING = 4,
  PRO_MDLFILE_3DSECTION = 7,
  PRO_MDLFILE_2DSECTION = 11,
  PRO_MDLFILE_NOTEBOOK = 19,
  PRO_MDLFILE_DWGFORM = 33,
  PRO_MDLFILE_MFG = 37,
  PRO_MDLFILE_REPORT = 105,
  PRO_MDLFILE_MARKUP = 116,
  PRO_MDLFILE_DIAGRAM = 121
} ProMdlfileType;

typedef enum pro_mdl_subtype {
  PROMDLSTYPE_NONE = 0,
  PROMDLSTYPE_BULK = 1,
  PROMDLSTYPE_PART_SOLID = 2,
  PROMDLSTYPE_PART_COMPOSITE = 3,
  PROMDLSTYPE_PART_SHEETMETAL = 4,
  PROMDLSTYPE_PART_CONCEPT_MODEL = 5,
  PROMDLSTYPE_ASM_DESIGN = 6,
  PROMDLSTYPE_ASM_INTERCHANGE = 7,
  PROMDLSTYPE_ASM_INTCHG_SUBST = 8,
  PROMDLSTYPE_ASM_INTCHG_FUNC = 9,
  PROMDLSTYPE_ASM_CLASS_CAV = 10,
  PROMDLSTYPE_ASM_VERIFY = 11
} ProMdlsubtype;

typedef void* ProMdl;
typedef void* ProObj;
typedef struct sld_part* ProSolid;
typedef struct sld_part* ProAssembly;
typedef struct sld_part* ProPart;
typedef struct drawing* ProDrawing;

typedef struct pro_model_item {
  ProType type;
  int id;
  ProMdl owner;
} ProModelitem;

typedef ProModelitem ProGeomitem;
typedef ProModelitem ProFeature;
typedef ProModelitem ProAsmcomp;

typedef int ProIdTable[PRO_MAX_ASSEM_LEVEL];

typedef struct pro_comp_path {
  ProSolid owner;
  ProIdTable comp_id_table;
  int table_num;
} ProAsmcomppath;

typedef double ProVector[3];
typedef double ProMatrix[4][4];
typedef double Pro3dPnt[3];
typedef double Pro2dPnt[2];
typedef double ProPoint3d[3];

PRO_END_C_DECLS
