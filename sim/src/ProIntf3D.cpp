// Export of solids to STEP and IGES files, with the host's log of the
// export beside each file.
#include "CodePage.h"
#include "FileWrite.h"
#include "Files.h"
#include "Occt3DWriter.h"
#include "ProIntf3Dexport.h"
#include "Text.h"
#include "ToolkitCall.h"

#include <algorithm>
#include <cwctype>

namespace {

// Numbered as the host numbers versions: one above the highest log of the
// same stem already there.
std::filesystem::path NextLogFile(const std::filesystem::path& dir, const std::wstring& stem) {
  int highest = 0;
  for (const platform::DirEntry& entry : platform::EnumerateDirectory(sim::WideText(dir / (stem + L".*")))) {
    std::wstring_view number = std::wstring_view(entry.name).substr(stem.size() + 1);
    if (number.empty() || number.size() > 6 ||
        !std::all_of(number.begin(), number.end(), [](wchar_t c) { return std::iswdigit(c); }))
      continue;
    highest = std::max(highest, std::stoi(std::wstring(number)));
  }
  return dir / (stem + L"." + std::to_wstring(highest + 1));
}

std::string LogText(const sim::Model& model, const sim::Export3DOptions& options,
                    const std::filesystem::path& file, const sim::Export3DResult& result) {
  std::string text = "Export of " + platform::ToNarrow(model.def.name) + " to ";
  text += options.format == sim::Format3D::Step ? "STEP (AP214)\n" : "IGES\n";
  text += options.structure ? "Configuration: single file\n" : "Configuration: flat file\n";
  text += "Output file: " + file.string() + "\n";
  text += "Solids: " + std::to_string(result.solids) + "\n";
  return text + result.messages;
}

}  // namespace

extern "C" ProError ProIntf3DFileWrite(ProSolid solid, ProIntf3DExportType file_type, ProPath output_file,
                                       ProOutputAssemblyConfiguration configuration,
                                       ProSelection reference_csys,
                                       ProOutputBrepRepresentation brep_representation,
                                       ProOutputInclusion inclusion, ProOutputLayerOptions layer_options) {
  sim::ToolkitCall call("ProIntf3DFileWrite", {sim::ModelRef{solid}, file_type, output_file, configuration});
  if (call.Failed()) return call.Status();
  sim::HostState& state = call.state();
  const sim::Model* model = state.LiveSolid(solid);
  const sim::OutputOptions& options = state.outputOptions;
  const pro_output_brep_representation* representation = options.representations.Find(brep_representation);
  // The simulated host has no coordinate system but the default one.
  if (!model || !output_file || !*output_file || !representation || reference_csys ||
      (inclusion && !options.inclusions.Find(inclusion)) ||
      (layer_options && !options.layerOptions.Find(layer_options)))
    return PRO_TK_BAD_INPUTS;
  if (ProError status = sim::CheckWrittenType(file_type); status != PRO_TK_NO_ERROR) return status;
  if (!sim::SupportsConfiguration(file_type, configuration) || !sim::SupportsRepresentation(*representation))
    return PRO_TK_BAD_INPUTS;

  sim::Export3DOptions exportOptions;
  exportOptions.format = file_type == PRO_INTF_EXPORT_STEP ? sim::Format3D::Step : sim::Format3D::Iges;
  exportOptions.structure =
      exportOptions.format == sim::Format3D::Step && configuration == PRO_OUTPUT_ASSEMBLY_SINGLE_FILE;
  exportOptions.solids = representation->solid;
  std::filesystem::path base = state.currentDir / platform::NativePath(output_file);
  std::filesystem::path file = base;
  file += exportOptions.format == sim::Format3D::Step ? L".stp" : L".igs";
  sim::Export3DResult result = sim::Write3DFile(state, *model, exportOptions, file);
  if (!result.written) return PRO_TK_CANT_WRITE;

  bool assemblyAsIges = model->def.type == PRO_MDL_ASSEMBLY && file_type != PRO_INTF_EXPORT_STEP;
  std::wstring logStem = sim::WideText(base.filename()) + (assemblyAsIges ? L"_asm__out.log" : L"__out.log");
  platform::WriteFileAtomically(NextLogFile(base.parent_path(), logStem),
                                LogText(*model, exportOptions, file, result));
  return PRO_TK_NO_ERROR;
}
