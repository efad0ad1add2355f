// Model identity, loading and showing, and the walk of an assembly's
// component tree. No state: any instance does the same.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "ProMdlUnits.h"
#include "ProObjects.h"

// One occurrence of a component in the assembly tree.
struct TkModelAsmCmp {
  ProAsmcomppath path;  // from the top assembly; the entry behind the last id is -1
  ProAsmcomp feature;   // the component feature in its direct parent
  ProMdl mdl;           // never null in a walk's result
};

class CTkModel {
 public:
  // Model types as the host reports them.
  static constexpr int kAssembly = PRO_MDL_ASSEMBLY;
  static constexpr int kPart = PRO_MDL_PART;
  static constexpr int kDrawing = PRO_MDL_DRAWING;

  int GetCurMdlType(int& type) const;
  std::wstring GetCurMdlName() const;
  std::wstring GetMdlName(ProMdl mdl) const;
  std::wstring GetMdlCommonName(ProMdl mdl) const;
  int GetMdlType(ProMdl mdl, int& type) const;
  // With `keepVersion` 0 a path holding more than one dot loses everything
  // from its last dot: a.prt.3 becomes a.prt. The test looks at the whole
  // path, so a dotted directory costs an unversioned file its extension.
  std::wstring GetMdlOriginPath(ProMdl mdl, int keepVersion) const;
  // The unversioned origin path cut behind its last separator, which stays.
  std::wstring GetMdlOriginDir(ProMdl mdl) const;
  // Same type and same upper-cased name; never the handle.
  int IsSameMdl(ProMdl a, ProMdl b) const;
  // Always 0; `same` says whether owner, depth and the ids in use agree.
  int IsSameCmpPath(const ProAsmcomppath& a, const ProAsmcomppath& b, int& same) const;

  // `fileType` -1 lets the host take the type from the name.
  int LoadMdl(const std::wstring& path, int fileType, ProMdl& mdl) const;
  int OpenMdlWindow(ProMdl mdl, int& window) const;
  int RepaintCurWindow() const;

  // Depth first in the host's feature order, an assembly before its contents.
  // Occurrences at depth 25 or deeper are left out. Empties `cmps`; always 0,
  // so a failed walk shows as an empty result.
  int GetAllComponent2(ProMdl mdl, std::vector<TkModelAsmCmp>& cmps) const;
  // The same walk into a host array of TkModelAsmCmp that the caller frees
  // with ProArrayFree, paths made by the host, no depth limit of its own.
  // Answers the status of the host's visit.
  int GetAllComponent(ProMdl mdl, TkModelAsmCmp*& cmps) const;

  // Files and session standing (TkModelFiles.cpp). The version n is the
  // host's version of the model, 0 when it cannot be had. Deletions go to the
  // trash, silently; a version file that is not there is no failure.
  //
  // Saves the model, then each component occurrence of an assembly, each
  // followed by DelMdlVersions; the last component lookup's status.
  int SaveMdlAll(ProMdl mdl) const;
  int GetMdlVersion(ProMdl mdl) const;
  // The model written into `directory` under its own name.
  int CopyMdl(ProMdl mdl, const std::wstring& directory) const;
  // The unversioned origin path F and F.1 to F.(n-1) go; F.n stays. 0.
  int DelMdlVersions(ProMdl mdl) const;
  // F and F.1 to F.n go. 0.
  int DelMdlVersionsAll(ProMdl mdl) const;
  // directory\name.1 to directory\name.(n-1) go, name being the origin's
  // file name: a copy there is taken to be numbered as the model. 0.
  int DelOldVersionsKeepCurrent(ProMdl mdl, const std::wstring& directory) const;
  int RenameMdl(ProMdl mdl, const std::wstring& newName) const;
  int SetMdlCommonName(ProMdl mdl, const std::wstring& text) const;
  int RegenerateMdl(ProMdl mdl) const;
  // `mdl` first, then each model below it once by type and upper-cased name,
  // suppressed components included; a drawing gives what each of its solids
  // gives, one after the other, duplicates and all.
  int GetAllSubMdls(ProMdl mdl, std::vector<ProMdl>& models) const;
  // Assemblies, then parts, then drawings; 0.
  int GetSessionMdls(std::vector<ProMdl>& models) const;
  int GetPrincipalUnitSystem(ProMdl mdl, ProUnitsystem& system) const;
  // Empties `systems` first; 0.
  int GetUnitSystems(ProMdl mdl, std::vector<ProUnitsystem>& systems) const;
  // `conversion` is the host's unit conversion type.
  int SetPrincipalUnitSystem(ProMdl mdl, ProUnitsystem& system, int conversion) const;

  // Minimum x, y, z, then maximum x, y, z. A part's box is the box around its
  // surfaces' own boxes in its coordinates (zeros without surfaces). Another
  // solid's is made of the boxes of all its occurrences in the top's
  // coordinates, each corner moved by itself; -4 when no occurrence could be
  // placed.
  int GetSolidOutLine(ProMdl mdl, std::array<double, 6>& box) const;
  // About `csysName`, the default coordinate system when empty; the inertia
  // in the host's units divided by 1000. All outputs 0 on failure.
  int GetMassProperty(ProMdl mdl, double& mass, double& cogX, double& cogY, double& cogZ, double& ixx,
                      double& iyy, double& izz, double& ixy, double& ixz, double& iyz,
                      const std::wstring& csysName) const;
};
