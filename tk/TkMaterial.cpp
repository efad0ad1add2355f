#include "TkMaterial.h"

#include "HostPathLists.h"
#include "ProArray.h"
#include "ProMaterial.h"
#include "ProPart.h"
#include "ProUtil.h"
#include "ProWstring.h"
#include "TkText.h"

namespace {

constexpr wchar_t kMaterialDirOption[] = L"pro_material_dir";
constexpr std::size_t kMaterialDirBuffer = 81;
// Room for a whole name in any narrow encoding, UTF-8 included.
constexpr std::size_t kNarrowNameBuffer = PRO_NAME_SIZE * 4;

}  // namespace

int CTkMaterial::GetMaterialDir(std::wstring& directory) const {
  ProName option{};
  tktext::CopyToBuffer(option, kMaterialDirOption);
  ProPath value{};
  ProError status = ProConfigoptionGet(option, value);
  directory = std::wstring(value).substr(0, kMaterialDirBuffer - 1);
  return directory.empty() ? PRO_TK_E_NOT_FOUND : status;
}

int CTkMaterial::SetMaterialDir(const std::wstring& directory) const {
  ProName option{};
  tktext::CopyToBuffer(option, kMaterialDirOption);
  ProPath value{};
  tktext::CopyToBuffer(value, directory);
  return ProConfigoptSet(option, value);
}

int CTkMaterial::ListMaterialFiles(const std::wstring& directory, const std::wstring& filter,
                                   std::vector<std::wstring>& names, std::vector<std::wstring>& directories,
                                   int bare) const {
  if (directory.empty()) return PRO_TK_BAD_INPUTS;
  names.clear();
  directories.clear();
  HostPathLists lists;
  if (ProError status = lists.List(directory, filter, PRO_FILE_LIST_LATEST)) return status;
  for (const std::wstring& file : HostPathLists::Texts(lists.files)) {
    std::wstring name = tktext::FileNameOf(file);
    names.push_back(bare ? tktext::Upper(name.substr(0, name.find(L'.'))) : name);
  }
  for (const std::wstring& subdirectory : HostPathLists::Texts(lists.directories))
    directories.push_back(subdirectory);
  return 0;
}

std::wstring CTkMaterial::GetMdlMaterialName(ProMdl part) const {
  ProName name{};
  if (ProPartMaterialNameGet(static_cast<ProPart>(part), name) != PRO_TK_NO_ERROR) return L"";
  return name;
}

int CTkMaterial::AssignMaterial(ProMdl part, const std::wstring& name) const {
  ProSolid solid = static_cast<ProSolid>(part);
  // Every material goes before anything is known of the new one.
  ProName* held = nullptr;
  ProArrayAlloc(0, sizeof(ProName), 1, reinterpret_cast<ProArray*>(&held));
  ProPartMaterialsGet(solid, &held);
  int count = 0;
  ProArraySizeGet(held, &count);
  for (int i = 0; i < count; ++i) {
    ProMaterial material{};
    tktext::CopyToBuffer(material.matl_name, held[i]);
    material.part = solid;
    ProMaterialDelete(&material);
  }
  ProArrayFree(reinterpret_cast<ProArray*>(&held));

  ProName wide{};
  tktext::CopyToBuffer(wide, name);
  if (ProError status = ProMaterialfileRead(solid, wide)) return status;

  // Through the host's narrow text and back, as the name has always gone.
  char narrow[kNarrowNameBuffer]{};
  ProWstringToString(narrow, wide);
  ProMaterial material{};
  ProStringToWstring(material.matl_name, narrow);
  material.part = solid;
  ProMaterialCurrentSet(&material);
  return ProMaterialCurrentSet(&material);
}
