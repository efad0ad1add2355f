// The output options of 3-D export and the host's answers on what it can
// write with them.
#include "ProIntf3Dexport.h"
#include "ToolkitCall.h"

namespace sim {

ProError CheckWrittenType(int fileType) {
  if (fileType < PRO_INTF_EXPORT_STEP || fileType > PRO_INTF_EXPORT_3MF) return PRO_TK_BAD_INPUTS;
  if (fileType != PRO_INTF_EXPORT_STEP && fileType != PRO_INTF_EXPORT_IGES) return PRO_TK_INVALID_TYPE;
  return PRO_TK_NO_ERROR;
}

// STEP keeps an assembly's structure in one file or flattens it; IGES only
// flattens. Neither is written here as a file per component.
bool SupportsConfiguration(int fileType, int configuration) {
  if (configuration == PRO_OUTPUT_ASSEMBLY_FLAT_FILE) return true;
  return fileType == PRO_INTF_EXPORT_STEP && configuration == PRO_OUTPUT_ASSEMBLY_SINGLE_FILE;
}

bool SupportsRepresentation(const pro_output_brep_representation& representation) {
  return representation.solid || representation.surfaces || representation.quilts;
}

}  // namespace sim

namespace {

ProError CheckQuery(int fileType, const void* result) {
  if (!result) return PRO_TK_BAD_INPUTS;
  return sim::CheckWrittenType(fileType);
}

}  // namespace

extern "C" ProError ProOutputAssemblyConfigurationIsSupported(ProIntf3DExportType file_type,
                                                              ProOutputAssemblyConfiguration configuration,
                                                              ProBoolean* is_supported) {
  sim::ToolkitCall call("ProOutputAssemblyConfigurationIsSupported", {file_type, configuration});
  if (call.Failed()) return call.Status();
  if (ProError status = CheckQuery(file_type, is_supported); status != PRO_TK_NO_ERROR) return status;
  if (configuration < PRO_OUTPUT_ASSEMBLY_FLAT_FILE || configuration > PRO_OUTPUT_ASSEMBLY_PARTS)
    return PRO_TK_BAD_INPUTS;
  *is_supported = sim::SupportsConfiguration(file_type, configuration) ? PRO_B_TRUE : PRO_B_FALSE;
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProOutputBrepRepresentationAlloc(ProOutputBrepRepresentation* representation) {
  sim::ToolkitCall call("ProOutputBrepRepresentationAlloc");
  if (call.Failed()) return call.Status();
  if (!representation) return PRO_TK_BAD_INPUTS;
  *representation = call.state().outputOptions.representations.New();
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProOutputBrepRepresentationFlagsSet(ProOutputBrepRepresentation representation,
                                                        ProBoolean as_wireframe, ProBoolean as_surfaces,
                                                        ProBoolean as_solid, ProBoolean as_quilts) {
  sim::ToolkitCall call("ProOutputBrepRepresentationFlagsSet",
                        {as_wireframe, as_surfaces, as_solid, as_quilts});
  if (call.Failed()) return call.Status();
  pro_output_brep_representation* live = call.state().outputOptions.representations.Find(representation);
  if (!live) return PRO_TK_BAD_INPUTS;
  *live = {as_wireframe != PRO_B_FALSE, as_surfaces != PRO_B_FALSE, as_solid != PRO_B_FALSE,
           as_quilts != PRO_B_FALSE};
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProOutputBrepRepresentationIsSupported(ProIntf3DExportType file_type,
                                                           ProOutputBrepRepresentation representation,
                                                           ProBoolean* is_supported) {
  sim::ToolkitCall call("ProOutputBrepRepresentationIsSupported", {file_type});
  if (call.Failed()) return call.Status();
  const pro_output_brep_representation* live =
      call.state().outputOptions.representations.Find(representation);
  if (!live) return PRO_TK_BAD_INPUTS;
  if (ProError status = CheckQuery(file_type, is_supported); status != PRO_TK_NO_ERROR) return status;
  *is_supported = sim::SupportsRepresentation(*live) ? PRO_B_TRUE : PRO_B_FALSE;
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProOutputBrepRepresentationFree(ProOutputBrepRepresentation representation) {
  sim::ToolkitCall call("ProOutputBrepRepresentationFree");
  if (call.Failed()) return call.Status();
  return call.state().outputOptions.representations.Free(representation) ? PRO_TK_NO_ERROR
                                                                         : PRO_TK_BAD_INPUTS;
}

extern "C" ProError ProOutputLayerOptionsAlloc(ProOutputLayerOptions* layer_options) {
  sim::ToolkitCall call("ProOutputLayerOptionsAlloc");
  if (call.Failed()) return call.Status();
  if (!layer_options) return PRO_TK_BAD_INPUTS;
  *layer_options = call.state().outputOptions.layerOptions.New();
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProOutputLayerOptionsAutoidSet(ProOutputLayerOptions options, ProBoolean auto_ids) {
  sim::ToolkitCall call("ProOutputLayerOptionsAutoidSet", {auto_ids});
  if (call.Failed()) return call.Status();
  pro_output_layer_options* live = call.state().outputOptions.layerOptions.Find(options);
  if (!live) return PRO_TK_BAD_INPUTS;
  live->autoIds = auto_ids != PRO_B_FALSE;
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProOutputLayerOptionsFree(ProOutputLayerOptions options) {
  sim::ToolkitCall call("ProOutputLayerOptionsFree");
  if (call.Failed()) return call.Status();
  return call.state().outputOptions.layerOptions.Free(options) ? PRO_TK_NO_ERROR : PRO_TK_BAD_INPUTS;
}

extern "C" ProError ProOutputInclusionAlloc(ProOutputInclusion* inclusion) {
  sim::ToolkitCall call("ProOutputInclusionAlloc");
  if (call.Failed()) return call.Status();
  if (!inclusion) return PRO_TK_BAD_INPUTS;
  *inclusion = call.state().outputOptions.inclusions.New();
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProOutputInclusionFlagsSet(ProOutputInclusion inclusion, ProBoolean include_datums,
                                               ProBoolean include_blanked, ProBoolean include_facetted) {
  sim::ToolkitCall call("ProOutputInclusionFlagsSet", {include_datums, include_blanked, include_facetted});
  if (call.Failed()) return call.Status();
  pro_output_inclusion* live = call.state().outputOptions.inclusions.Find(inclusion);
  if (!live) return PRO_TK_BAD_INPUTS;
  *live = {include_datums != PRO_B_FALSE, include_blanked != PRO_B_FALSE, include_facetted != PRO_B_FALSE};
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProOutputInclusionFree(ProOutputInclusion inclusion) {
  sim::ToolkitCall call("ProOutputInclusionFree");
  if (call.Failed()) return call.Status();
  return call.state().outputOptions.inclusions.Free(inclusion) ? PRO_TK_NO_ERROR : PRO_TK_BAD_INPUTS;
}
