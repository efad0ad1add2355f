// Export of solids to other systems' 3-D formats, with the output options
// that shape a file: assembly configuration, representation, inclusion and
// layer options.
#pragma once

#include "ProObjects.h"
#include "ProSelection.h"

PRO_BEGIN_C_DECLS

typedef enum {
  PRO_INTF_EXPORT_STEP = 1,
  PRO_INTF_EXPORT_SET = 2,
  PRO_INTF_EXPORT_VDA = 3,
  PRO_INTF_EXPORT_IGES = 4,
  PRO_INTF_EXPORT_CATIA = 5,
  PRO_INTF_EXPORT_CATIA_MODEL = 6,
  PRO_INTF_EXPORT_SAT = 7,
  PRO_INTF_EXPORT_NEUTRAL = 8,
  PRO_INTF_EXPORT_CADDS = 9,
  PRO_INTF_EXPORT_CATIA_SESSION = 10,
  PRO_INTF_EXPORT_PDGS = 11,
  PRO_INTF_EXPORT_PARASOLID = 12,
  PRO_INTF_EXPORT_UG = 13,
  PRO_INTF_EXPORT_RESERVED = 14,
  PRO_INTF_EXPORT_CATIA_PART = 15,
  PRO_INTF_EXPORT_CATIA_PRODUCT = 16,
  PRO_INTF_EXPORT_CATIA_CGR = 17,
  PRO_INTF_EXPORT_JT = 18,
  PRO_INTF_EXPORT_DXF = 19,
  PRO_INTF_EXPORT_DWG = 20,
  PRO_INTF_EXPORT_SW_PART = 21,
  PRO_INTF_EXPORT_SW_ASSEM = 22,
  PRO_INTF_EXPORT_3MF = 23
} ProIntf3DExportType;

typedef enum {
  PRO_OUTPUT_ASSEMBLY_FLAT_FILE = 0,
  PRO_OUTPUT_ASSEMBLY_SINGLE_FILE = 1,
  PRO_OUTPUT_ASSEMBLY_MULTI_FILES = 2,
  PRO_OUTPUT_ASSEMBLY_PARTS = 3
} ProOutputAssemblyConfiguration;

typedef struct pro_output_brep_representation* ProOutputBrepRepresentation;
typedef struct pro_output_inclusion* ProOutputInclusion;
typedef struct pro_output_layer_options* ProOutputLayerOptions;

extern ProError ProOutputAssemblyConfigurationIsSupported(ProIntf3DExportType file_type,
                                                          ProOutputAssemblyConfiguration configuration,
                                                          ProBoolean* is_supported);

// Each Alloc is paired with its Free.
extern ProError ProOutputBrepRepresentationAlloc(ProOutputBrepRepresentation* representation);
extern ProError ProOutputBrepRepresentationFlagsSet(ProOutputBrepRepresentation representation,
                                                    ProBoolean as_wireframe, ProBoolean as_surfaces,
                                                    ProBoolean as_solid, ProBoolean as_quilts);
extern ProError ProOutputBrepRepresentationIsSupported(ProIntf3DExportType file_type,
                                                       ProOutputBrepRepresentation representation,
                                                       ProBoolean* is_supported);
extern ProError ProOutputBrepRepresentationFree(ProOutputBrepRepresentation representation);

extern ProError ProOutputLayerOptionsAlloc(ProOutputLayerOptions* layer_options);
extern ProError ProOutputLayerOptionsAutoidSet(ProOutputLayerOptions options, ProBoolean auto_ids);
extern ProError ProOutputLayerOptionsFree(ProOutputLayerOptions options);

extern ProError ProOutputInclusionAlloc(ProOutputInclusion* inclusion);
extern ProError ProOutputInclusionFlagsSet(ProOutputInclusion inclusion, ProBoolean include_datums,
                                           ProBoolean include_blanked, ProBoolean include_facetted);
extern ProError ProOutputInclusionFree(ProOutputInclusion inclusion);

// `output_file` comes without extension: the host adds the format's own.
// A null `reference_csys` is the solid's default coordinate system.
extern ProError ProIntf3DFileWrite(ProSolid solid, ProIntf3DExportType file_type, ProPath output_file,
                                   ProOutputAssemblyConfiguration configuration, ProSelection reference_csys,
                                   ProOutputBrepRepresentation brep_representation,
                                   ProOutputInclusion inclusion, ProOutputLayerOptions layer_options);

PRO_END_C_DECLS
