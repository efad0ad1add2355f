#include "MaterialAssign.h"

#include "MaterialFiles.h"
#include "ProMdl.h"
#include "TkMaterial.h"

bool AssignRowMaterial(const CTkMaterial& material, ProMdl mdl, const std::wstring& name,
                       const std::wstring& path, bool autoSave) {
  std::wstring materialDir;
  material.GetMaterialDir(materialDir);
  std::wstring file = path.empty() ? FindMaterialFile(materialDir, name) : path;
  if (file.empty()) return false;
  material.SetMaterialDir(MaterialFileDir(file));
  material.AssignMaterial(mdl, name);
  material.SetMaterialDir(materialDir);
  if (autoSave) ProMdlSave(mdl);
  return true;
}
