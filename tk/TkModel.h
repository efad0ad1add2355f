// Model identity, loading and showing, and the walk of an assembly's
// component tree. No state: any instance does the same.
#pragma once

#include <string>
#include <vector>

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
};
