#include "TkModel.h"

#include <algorithm>
#include <cwchar>

#include "ProArray.h"
#include "ProAsmcomp.h"
#include "ProMdl.h"
#include "ProSolid.h"
#include "ProWindows.h"
#include "ProWstring.h"
#include "TkText.h"

namespace {

struct WalkContext {
  std::vector<TkModelAsmCmp> cmps;
  ProAsmcomppath parent;
};

ProError ComponentFilter(ProFeature* feature, ProAppData) {
  ProMdl mdl = nullptr;
  ProMdlType type = PRO_MDL_UNUSED;
  if (ProAsmcompMdlGet(feature, &mdl) != PRO_TK_NO_ERROR) return PRO_TK_CONTINUE;
  if (ProMdlTypeGet(mdl, &type) != PRO_TK_NO_ERROR) return PRO_TK_CONTINUE;
  if (type != PRO_MDL_ASSEMBLY && type != PRO_MDL_PART) return PRO_TK_CONTINUE;
  return PRO_TK_NO_ERROR;
}

// Extends the parent's path by one id. Past the host's 25 levels the id has
// no slot left; the depth still counts, so everything down there stays out.
ProAsmcomppath ChildPath(const ProAsmcomppath& parent, const ProFeature& feature) {
  ProAsmcomppath path = parent;
  if (parent.table_num < 1) {
    path.owner = static_cast<ProSolid>(feature.owner);
    path.comp_id_table[0] = feature.id;
    path.comp_id_table[1] = -1;
    path.table_num = 1;
    return path;
  }
  if (path.table_num < PRO_MAX_ASSEM_LEVEL) path.comp_id_table[path.table_num] = feature.id;
  if (path.table_num + 1 < PRO_MAX_ASSEM_LEVEL) path.comp_id_table[path.table_num + 1] = -1;
  ++path.table_num;
  return path;
}

ProError ComponentVisit(ProFeature* feature, ProError, ProAppData data) {
  auto* context = static_cast<WalkContext*>(data);
  ProMdl mdl = nullptr;
  if (ProAsmcompMdlGet(feature, &mdl) != PRO_TK_NO_ERROR) return PRO_TK_CONTINUE;

  TkModelAsmCmp cmp{ChildPath(context->parent, *feature), *feature, mdl};
  if (cmp.path.owner != nullptr && cmp.path.table_num < PRO_MAX_ASSEM_LEVEL) context->cmps.push_back(cmp);

  ProMdlType type = PRO_MDL_UNUSED;
  ProMdlTypeGet(mdl, &type);
  // Below the host's deepest path nothing can be taken, so the walk ends
  // there, however deep the assembly goes.
  if (type != PRO_MDL_ASSEMBLY || cmp.path.table_num >= PRO_MAX_ASSEM_LEVEL) return PRO_TK_NO_ERROR;

  WalkContext child{{}, cmp.path};
  ProSolidFeatVisit(static_cast<ProSolid>(mdl), ComponentVisit, ComponentFilter, &child);
  context->cmps.insert(context->cmps.end(), child.cmps.begin(), child.cmps.end());
  return PRO_TK_NO_ERROR;
}

struct HostWalkContext {
  ProSolid owner;
  std::vector<int> ids;  // of the parent occurrence
  TkModelAsmCmp** cmps;  // a host array
};

ProError HostArrayVisit(ProFeature* feature, ProError, ProAppData data) {
  auto* context = static_cast<HostWalkContext*>(data);
  ProMdl mdl = nullptr;
  if (ProAsmcompMdlGet(feature, &mdl) != PRO_TK_NO_ERROR) return PRO_TK_CONTINUE;

  std::vector<int> ids = context->ids;
  ids.push_back(feature->id);
  // A path deeper than the host's table cannot be made.
  if (ids.size() > PRO_MAX_ASSEM_LEVEL) return PRO_TK_CONTINUE;
  ProIdTable table;
  std::fill(std::begin(table), std::end(table), -1);
  std::copy(ids.begin(), ids.end(), table);
  TkModelAsmCmp cmp{{}, *feature, mdl};
  if (ProAsmcomppathInit(context->owner, table, static_cast<int>(ids.size()), &cmp.path) != PRO_TK_NO_ERROR)
    return PRO_TK_CONTINUE;
  ProArrayObjectAdd(reinterpret_cast<ProArray*>(context->cmps), PRO_VALUE_UNUSED, 1, &cmp);

  ProMdlType type = PRO_MDL_UNUSED;
  ProMdlTypeGet(mdl, &type);
  if (type != PRO_MDL_ASSEMBLY) return PRO_TK_NO_ERROR;
  HostWalkContext child{context->owner, ids, context->cmps};
  ProSolidFeatVisit(static_cast<ProSolid>(mdl), HostArrayVisit, ComponentFilter, &child);
  return PRO_TK_NO_ERROR;
}

}  // namespace

int CTkModel::GetCurMdlType(int& type) const {
  ProMdl mdl = nullptr;
  ProError status = ProMdlCurrentGet(&mdl);
  if (status != PRO_TK_NO_ERROR) return status;
  return GetMdlType(mdl, type);
}

std::wstring CTkModel::GetCurMdlName() const {
  ProMdl mdl = nullptr;
  if (ProMdlCurrentGet(&mdl) != PRO_TK_NO_ERROR) return L"";
  return GetMdlName(mdl);
}

std::wstring CTkModel::GetMdlName(ProMdl mdl) const {
  if (!mdl) return L"";
  ProMdlName name{};
  if (ProMdlMdlnameGet(mdl, name) != PRO_TK_NO_ERROR) return L"";
  return name;
}

std::wstring CTkModel::GetMdlCommonName(ProMdl mdl) const {
  wchar_t* commonName = nullptr;
  if (ProMdlCommonnameGet(mdl, &commonName, nullptr) != PRO_TK_NO_ERROR || !commonName) return L"";
  std::wstring result = commonName;
  ProWstringFree(commonName);
  return result;
}

int CTkModel::GetMdlType(ProMdl mdl, int& type) const {
  ProMdlType mdlType = PRO_MDL_UNUSED;
  ProError status = ProMdlTypeGet(mdl, &mdlType);
  type = mdlType;
  return status;
}

std::wstring CTkModel::GetMdlOriginPath(ProMdl mdl, int keepVersion) const {
  ProPath origin{};
  if (ProMdlOriginGet(mdl, origin) != PRO_TK_NO_ERROR) return L"";
  return keepVersion ? std::wstring(origin) : tktext::CutLastDotOfSeveral(origin);
}

std::wstring CTkModel::GetMdlOriginDir(ProMdl mdl) const {
  std::wstring path = GetMdlOriginPath(mdl, 0);
  size_t cut = path.rfind(L'\\');
  if (cut == std::wstring::npos) cut = path.rfind(L'/');
  return cut == std::wstring::npos ? path : path.substr(0, cut + 1);
}

int CTkModel::IsSameMdl(ProMdl a, ProMdl b) const {
  int typeA = 0, typeB = 0;
  if (GetMdlType(a, typeA) != PRO_TK_NO_ERROR || GetMdlType(b, typeB) != PRO_TK_NO_ERROR) return 0;
  return typeA == typeB && tktext::Upper(GetMdlName(a)) == tktext::Upper(GetMdlName(b)) ? 1 : 0;
}

int CTkModel::IsSameCmpPath(const ProAsmcomppath& a, const ProAsmcomppath& b, int& same) const {
  same = 0;
  if (a.owner != b.owner || a.table_num != b.table_num) return 0;
  for (int i = 0; i < a.table_num && i < PRO_MAX_ASSEM_LEVEL; ++i) {
    if (a.comp_id_table[i] != b.comp_id_table[i]) return 0;
  }
  same = 1;
  return 0;
}

int CTkModel::LoadMdl(const std::wstring& path, int fileType, ProMdl& mdl) const {
  mdl = nullptr;
  if (path.empty()) return PRO_TK_BAD_INPUTS;
  ProPath hostPath{};
  std::wcsncpy(hostPath, path.c_str(), PRO_PATH_SIZE - 1);
  return ProMdlFiletypeLoad(hostPath, static_cast<ProMdlfileType>(fileType), PRO_B_FALSE, &mdl);
}

int CTkModel::OpenMdlWindow(ProMdl mdl, int& window) const {
  ProName name{};
  ProError status = ProMdlNameGet(mdl, name);
  if (status != PRO_TK_NO_ERROR) return status;
  ProMdlType type = PRO_MDL_UNUSED;
  status = ProMdlTypeGet(mdl, &type);
  if (status != PRO_TK_NO_ERROR) return status;
  ProMdlName objectName{};
  std::wcsncpy(objectName, name, PRO_NAME_SIZE);
  status = ProObjectwindowMdlnameCreate(objectName, static_cast<ProType>(type), &window);
  if (status != PRO_TK_NO_ERROR) return status;
  ProMdlDisplay(mdl);
  ProWindowActivate(window);
  return PRO_TK_NO_ERROR;
}

int CTkModel::RepaintCurWindow() const {
  int window = PRO_VALUE_UNUSED;
  if (ProWindowCurrentGet(&window) != PRO_TK_NO_ERROR) return 0;
  ProMdl mdl = nullptr;
  if (ProMdlCurrentGet(&mdl) == PRO_TK_NO_ERROR) {
    ProWindowRefresh(window);
    ProWindowRepaint(window);
  } else {
    ProWindowClear(window);
  }
  return 0;
}

int CTkModel::GetAllComponent2(ProMdl mdl, std::vector<TkModelAsmCmp>& cmps) const {
  cmps.clear();
  WalkContext context{};
  context.parent.owner = nullptr;
  for (int& id : context.parent.comp_id_table) id = -1;
  context.parent.table_num = -1;
  ProSolidFeatVisit(static_cast<ProSolid>(mdl), ComponentVisit, ComponentFilter, &context);
  cmps = std::move(context.cmps);
  return 0;
}

int CTkModel::GetAllComponent(ProMdl mdl, TkModelAsmCmp*& cmps) const {
  cmps = nullptr;
  ProError status = ProArrayAlloc(0, sizeof(TkModelAsmCmp), 1, reinterpret_cast<ProArray*>(&cmps));
  if (status != PRO_TK_NO_ERROR) return status;
  HostWalkContext context{static_cast<ProSolid>(mdl), {}, &cmps};
  return ProSolidFeatVisit(static_cast<ProSolid>(mdl), HostArrayVisit, ComponentFilter, &context);
}
