// Model file operations of CTkModel: saving, versions, backup, renaming,
// regeneration, the lists of models and the unit systems.
#include "TkModel.h"

#include "ProArray.h"
#include "ProAsmcomp.h"
#include "ProMdl.h"
#include "ProSolid.h"
#include "TkDrwTable.h"
#include "TkFile.h"
#include "TkText.h"

#include <algorithm>

namespace {

// Version files of `file` from `first` while below `end`; the number 0 is
// the file without a suffix.
void DeleteVersions(const std::wstring& file, int first, int end) {
  CTkFile files;
  for (int i = first; i < end; ++i) files.DelFile(i == 0 ? file : file + L"." + std::to_wstring(i), 0);
}

}  // namespace

int CTkModel::SaveMdlAll(ProMdl mdl) const {
  ProError status = ProMdlSave(mdl);
  if (status != PRO_TK_NO_ERROR) return status;
  DelMdlVersions(mdl);
  ProMdlType type = PRO_MDL_UNUSED;
  status = ProMdlTypeGet(mdl, &type);
  if (status != PRO_TK_NO_ERROR) return status;
  if (type != PRO_MDL_ASSEMBLY) return PRO_TK_NO_ERROR;

  TkModelAsmCmp* cmps = nullptr;
  status = static_cast<ProError>(GetAllComponent(mdl, cmps));
  if (status == PRO_TK_NO_ERROR) {
    int count = 0;
    ProArraySizeGet(cmps, &count);
    for (int i = 0; i < count; ++i) {
      if (cmps[i].feature.id < 0) continue;
      ProMdl cmpMdl = nullptr;
      status = ProAsmcompMdlGet(&cmps[i].feature, &cmpMdl);
      if (status != PRO_TK_NO_ERROR) continue;
      // Every occurrence is saved, a model used twice twice over.
      ProMdlSave(cmpMdl);
      DelMdlVersions(cmpMdl);
    }
  }
  if (cmps) ProArrayFree(reinterpret_cast<ProArray*>(&cmps));
  return status;
}

int CTkModel::GetMdlVersion(ProMdl mdl) const {
  ProMdldata data{};
  if (ProMdlDataGet(mdl, &data) != PRO_TK_NO_ERROR) return 0;
  return data.version;
}

int CTkModel::CopyMdl(ProMdl mdl, const std::wstring& directory) const {
  ProPath path{};
  tktext::CopyToBuffer(path, directory);
  return ProMdlnameBackup(mdl, path);
}

int CTkModel::DelMdlVersions(ProMdl mdl) const {
  DeleteVersions(GetMdlOriginPath(mdl, 0), 0, GetMdlVersion(mdl));
  return 0;
}

int CTkModel::DelMdlVersionsAll(ProMdl mdl) const {
  DeleteVersions(GetMdlOriginPath(mdl, 0), 0, GetMdlVersion(mdl) + 1);
  return 0;
}

int CTkModel::DelOldVersionsKeepCurrent(ProMdl mdl, const std::wstring& directory) const {
  int version = GetMdlVersion(mdl);
  std::wstring origin = GetMdlOriginPath(mdl, 0);
  std::wstring name = tktext::FileNameOf(origin);
  DeleteVersions(directory + L"\\" + name, 1, version);
  return 0;
}

int CTkModel::RenameMdl(ProMdl mdl, const std::wstring& newName) const {
  ProMdlName name{};
  tktext::CopyToBuffer(name, newName);
  return ProMdlnameRename(mdl, name);
}

int CTkModel::SetMdlCommonName(ProMdl mdl, const std::wstring& text) const {
  std::wstring commonName = text;
  return ProMdlCommonnameSet(mdl, commonName.data());
}

int CTkModel::RegenerateMdl(ProMdl mdl) const { return ProSolidRegenerate(static_cast<ProSolid>(mdl), 0); }

int CTkModel::GetAllSubMdls(ProMdl mdl, std::vector<ProMdl>& models) const {
  models.clear();
  models.push_back(mdl);
  int type = 0;
  int status = GetMdlType(mdl, type);
  if (status != PRO_TK_NO_ERROR) return status;
  if (type == kDrawing) {
    std::vector<ProMdl> solids;
    CTkDrwTable().GetDrawingSolids(mdl, solids);
    for (ProMdl solid : solids) {
      std::vector<ProMdl> sub;
      GetAllSubMdls(solid, sub);
      models.insert(models.end(), sub.begin(), sub.end());
    }
    return 0;
  }
  std::vector<TkModelAsmCmp> cmps;
  GetAllComponent2(mdl, cmps);
  for (const TkModelAsmCmp& cmp : cmps) {
    bool known =
        std::any_of(models.begin(), models.end(), [&](ProMdl model) { return IsSameMdl(model, cmp.mdl); });
    if (!known) models.push_back(cmp.mdl);
  }
  return 0;
}

int CTkModel::GetSessionMdls(std::vector<ProMdl>& models) const {
  models.clear();
  for (ProMdlType type : {PRO_MDL_ASSEMBLY, PRO_MDL_PART, PRO_MDL_DRAWING}) {
    ProMdl* listed = nullptr;
    int count = 0;
    ProSessionMdlList(type, &listed, &count);
    if (!listed) continue;
    models.insert(models.end(), listed, listed + count);
    ProArrayFree(reinterpret_cast<ProArray*>(&listed));
  }
  return 0;
}

int CTkModel::GetPrincipalUnitSystem(ProMdl mdl, ProUnitsystem& system) const {
  return ProMdlPrincipalunitsystemGet(mdl, &system);
}

int CTkModel::GetUnitSystems(ProMdl mdl, std::vector<ProUnitsystem>& systems) const {
  systems.clear();
  ProUnitsystem* collected = nullptr;
  ProMdlUnitsystemsCollect(mdl, &collected);
  if (!collected) return 0;
  int count = 0;
  ProArraySizeGet(collected, &count);
  systems.assign(collected, collected + count);
  ProArrayFree(reinterpret_cast<ProArray*>(&collected));
  return 0;
}

int CTkModel::SetPrincipalUnitSystem(ProMdl mdl, ProUnitsystem& system, int conversion) const {
  return ProMdlPrincipalunitsystemSet(mdl, &system, static_cast<ProUnitConvertType>(conversion), PRO_B_FALSE,
                                      PRO_VALUE_UNUSED);
}
