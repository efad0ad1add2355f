// Relation sets of solids and of their component features. A set is the
// model item it belongs to, so every call finds its relations again from the
// handle: a solid's own relations, or those its assembly keeps for one
// component. The sets of other features are empty and never kept, and the
// simulated host has no post-regeneration relations.
#include "ProRelSet.h"

#include "HostMemory.h"
#include "Relations.h"
#include "ToolkitCall.h"

#include <algorithm>

namespace {

struct Relations {
  ProError status = PRO_TK_NO_ERROR;
  sim::Model* owner = nullptr;
  std::vector<std::wstring>* lines = nullptr;
};

Relations Resolve(const sim::HostState& state, const ProModelitem* item) {
  if (!item) return {PRO_TK_BAD_INPUTS};
  sim::Model* owner = state.LiveSolid(item->owner);
  if (!owner) return {PRO_TK_BAD_INPUTS};
  if (item->id == PRO_RELSET_POST_REGEN_ID) return {PRO_TK_E_NOT_FOUND};
  if (item->type == static_cast<ProType>(owner->def.type))
    return {PRO_TK_NO_ERROR, owner, &owner->def.relations};
  if (item->type != PRO_FEATURE) return {PRO_TK_E_NOT_FOUND};
  auto& components = owner->def.components;
  auto component = std::find_if(components.begin(), components.end(),
                                [&](const sim::ComponentDef& c) { return c.id == item->id; });
  if (component == components.end()) return {PRO_TK_E_NOT_FOUND};
  return {PRO_TK_NO_ERROR, owner, &component->relations};
}

sim::LogArg Owner(const ProModelitem* item) { return sim::ModelRef{item ? item->owner : nullptr}; }
sim::LogArg Id(const ProModelitem* item) { return item ? item->id : PRO_VALUE_UNUSED; }

}  // namespace

extern "C" ProError ProModelitemToRelset(ProModelitem* p_item, ProRelset* p_relset) {
  sim::ToolkitCall call("ProModelitemToRelset", {Owner(p_item), Id(p_item)});
  if (call.Failed()) return call.Status();
  if (!p_relset) return PRO_TK_BAD_INPUTS;
  Relations found = Resolve(call.state(), p_item);
  if (found.status) return found.status;
  *p_relset = *p_item;
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProRelsetRelationsGet(ProRelset* p_relset, ProWstring** p_line_array) {
  sim::ToolkitCall call("ProRelsetRelationsGet", {Owner(p_relset), Id(p_relset)});
  if (call.Failed()) return call.Status();
  if (!p_line_array || !sim::IsLiveArray(*p_line_array)) return PRO_TK_BAD_INPUTS;
  Relations found = Resolve(call.state(), p_relset);
  if (found.status) return found.status;
  void* array = *p_line_array;
  for (const std::wstring& line : *found.lines) {
    wchar_t* copy = sim::NewHostString(line);
    if (!copy || !sim::ArrayInsert(array, sim::ArraySize(array), 1, &copy)) {
      sim::FreeHostString(copy);
      *p_line_array = static_cast<ProWstring*>(array);
      return PRO_TK_OUT_OF_MEMORY;
    }
  }
  *p_line_array = static_cast<ProWstring*>(array);
  return PRO_TK_NO_ERROR;
}

// All lines or none: one line that is no relation leaves the set as it was.
extern "C" ProError ProRelsetRelationsSet(ProRelset* p_relset, ProWstring* line_array, int n_lines) {
  sim::ToolkitCall call("ProRelsetRelationsSet", {Owner(p_relset), Id(p_relset), n_lines});
  if (call.Failed()) return call.Status();
  if (n_lines < 0 || (n_lines > 0 && !line_array)) return PRO_TK_BAD_INPUTS;
  Relations found = Resolve(call.state(), p_relset);
  if (found.status) return found.status;
  std::vector<std::wstring> lines;
  for (int i = 0; i < n_lines; ++i) {
    if (!line_array[i]) return PRO_TK_BAD_INPUTS;
    if (!sim::IsRelationLine(line_array[i])) return PRO_TK_GENERAL_ERROR;
    lines.emplace_back(line_array[i]);
  }
  *found.lines = std::move(lines);
  found.owner->modified = true;
  return PRO_TK_NO_ERROR;
}

// The relations work on the parameters of the model that owns the set,
// the assembly for a component's.
extern "C" ProError ProRelsetRegenerate(ProRelset* p_relset) {
  sim::ToolkitCall call("ProRelsetRegenerate", {Owner(p_relset), Id(p_relset)});
  if (call.Failed()) return call.Status();
  Relations found = Resolve(call.state(), p_relset);
  if (found.status) return found.status;
  return sim::EvaluateRelations(*found.lines, *found.owner) ? PRO_TK_NO_ERROR : PRO_TK_GENERAL_ERROR;
}
