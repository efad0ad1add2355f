#include "BomTestSupport.h"

#include "CodePage.h"

namespace {

std::vector<sim::ParameterDef> Texts(const TextParams& params) {
  std::vector<sim::ParameterDef> defs;
  for (const auto& [name, value] : params) {
    sim::ParameterDef def;
    def.name = name;
    def.text = value;
    defs.push_back(def);
  }
  return defs;
}

}  // namespace

ProMdl BomTest::Part(const std::wstring& file, const TextParams& params, int subtype) {
  sim::ModelDef def;
  def.type = PRO_MDL_PART;
  def.subtype = subtype;
  def.parameters = Texts(params);
  return sim::AddModel(file, def);
}

ProMdl BomTest::Assembly(const std::wstring& file, const std::vector<std::wstring>& components,
                         const TextParams& params) {
  std::vector<sim::ComponentDef> defs;
  for (const std::wstring& model : components) defs.push_back({static_cast<int>(defs.size()) + 1, model});
  return AssemblyOf(file, defs, params);
}

ProMdl BomTest::AssemblyOf(const std::wstring& file, const std::vector<sim::ComponentDef>& components,
                           const TextParams& params) {
  sim::ModelDef def;
  def.type = PRO_MDL_ASSEMBLY;
  def.components = components;
  def.parameters = Texts(params);
  return sim::AddModel(file, def);
}

ProMdl BomTest::Drawing(const std::wstring& file, const std::vector<std::wstring>& solids) {
  sim::ModelDef def;
  def.type = PRO_MDL_DRAWING;
  def.solids = solids;
  return sim::AddModel(file, def);
}

std::vector<std::string> BomTest::Show(const std::vector<BomMdl>& rows) {
  CTkModel model;
  std::vector<std::string> lines;
  for (const BomMdl& row : rows) {
    std::string outline = row.level == 0 ? "0" : "";
    for (int i = 0; i < row.level; ++i) outline += (i ? "." : "") + std::to_string(row.BomCmpIds[i]);
    lines.push_back(std::to_string(row.level) + " " + outline + " " +
                    platform::ToNarrow(model.GetMdlName(row.mdl)) + " x" + std::to_string(row.quantity));
  }
  return lines;
}

sim::ComponentDef Suppressed(int id, const std::wstring& model) { return {id, model, sim::kIdentity, true}; }
