#include "ParamCheck.h"

#include "ParamSource.h"
#include "TkModel.h"

#include <algorithm>

namespace {

std::wstring CellOf(const std::vector<std::wstring>& cells, int position) {
  size_t col = static_cast<size_t>(position + kFirstAttrCol);
  return col < cells.size() ? cells[col] : std::wstring();
}

}  // namespace

std::vector<int> EditColumnsByPosition(const std::vector<ParamData>& refs) {
  size_t count = 0;
  for (const ParamData& ref : refs) count += ref.kind.code == kPropParam ? 1 : 0;
  std::vector<int> cols(count, 0);
  for (size_t i = 0; i < refs.size() && i < count; ++i) {
    if (refs[i].kind.code == kPropParam) cols[i] = static_cast<int>(i) + kFirstAttrCol;
  }
  return cols;
}

int UnitSystemColumn(const std::vector<ParamData>& refs) {
  int col = -1;
  for (size_t i = 0; i < refs.size(); ++i) {
    if (refs[i].kind.code == kPropUnitSystem) col = static_cast<int>(i) + kFirstAttrCol;
  }
  return col;
}

std::wstring CheckMdlStatus(const CParamSource& source, ProMdl mdl, const std::vector<ParamData>& refs) {
  std::wstring status;
  for (const ParamData& ref : refs) {
    if (ref.kind.code == kPropParam && source.GetMdlParamType(mdl, ref.name) == kNoSuchParam)
      status += ref.name + L"不存在; ";
  }
  return status.empty() ? L"参数存在" : status;
}

std::wstring AttrCellText(const CParamSource& source, const CTkModel& model, ProMdl mdl, const ParamData& ref,
                          bool useRef) {
  if (ref.kind.code == kPropParam) {
    std::wstring text;
    if (source.GetParamText(mdl, ref.name, text) != 0 || useRef) return ref.value;
    return text;
  }
  if (ref.kind.code == kPropUnitSystem) {
    ProUnitsystem system{};
    if (model.GetPrincipalUnitSystem(mdl, system) != 0 || useRef) return ref.value;
    return system.name;
  }
  return L"";
}

std::vector<ParamData> RowParams(const std::vector<ParamData>& refs, const std::vector<std::wstring>& cells) {
  std::vector<ParamData> params;
  for (size_t i = 0; i < refs.size(); ++i) {
    if (refs[i].kind.code != kPropParam) continue;
    params.push_back(refs[i]);
    params.back().value = CellOf(cells, static_cast<int>(i));
  }
  return params;
}

int WriteRowAttrs(const CParamSource& source, const CTkModel& model, ProMdl mdl,
                  const std::vector<ParamData>& refs, const std::vector<std::wstring>& cells) {
  int status = source.ApplyParams(mdl, RowParams(refs, cells), 0, 1);
  if (status != 0) return status;
  auto unit =
      std::ranges::find_if(refs, [](const ParamData& ref) { return ref.kind.code == kPropUnitSystem; });
  if (unit == refs.end()) return 0;
  std::wstring wanted = CellOf(cells, static_cast<int>(unit - refs.begin()));
  std::vector<ProUnitsystem> systems;
  model.GetUnitSystems(mdl, systems);
  auto system = std::ranges::find_if(systems, [&](const ProUnitsystem& each) { return wanted == each.name; });
  if (system != systems.end()) model.SetPrincipalUnitSystem(mdl, *system, PRO_UNITCONVERT_SAME_SIZE);
  return 0;
}
