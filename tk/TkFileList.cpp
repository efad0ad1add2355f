// Directory listings of CTkFile: the system's enumeration and the host's.
#include "TkFile.h"

#include "Files.h"
#include "HostPathLists.h"

namespace {

bool IsDotEntry(const std::wstring& name) { return name == L"." || name == L".."; }

}  // namespace

int CTkFile::ListFiles(const std::wstring& directory, std::vector<std::wstring>& names) const {
  names.clear();
  for (const platform::DirEntry& entry : platform::EnumerateDirectory(directory + L"\\*.*")) {
    if (!entry.isDirectory) names.push_back(entry.name);
  }
  return 1;
}

int CTkFile::ListFilesByExt(const std::wstring& directory, const std::vector<std::wstring>& extensions,
                            std::vector<std::wstring>& names) const {
  names.clear();
  for (const std::wstring& extension : extensions) {
    for (const platform::DirEntry& entry :
         platform::EnumerateDirectory(directory + L"\\*." + extension + L".*")) {
      if (!IsDotEntry(entry.name)) names.push_back(entry.name);
    }
  }
  return 1;
}

int CTkFile::ListSubDirsRecursive(const std::wstring& directory,
                                  std::vector<std::wstring>& directories) const {
  for (const platform::DirEntry& entry : platform::EnumerateDirectory(directory + L"\\*.*")) {
    if (!entry.isDirectory || IsDotEntry(entry.name)) continue;
    std::wstring subdirectory = directory + L"\\" + entry.name;
    directories.push_back(subdirectory);
    ListSubDirsRecursive(subdirectory, directories);
  }
  return 1;
}

int CTkFile::ListMdlFilesRecursive(const std::wstring& directory, std::vector<std::wstring>& files,
                                   int versionFlag) const {
  std::vector<std::wstring> subdirectories;
  {
    HostPathLists lists;
    lists.List(directory, L"*.*", versionFlag);
    for (const std::wstring& file : HostPathLists::Texts(lists.files)) files.push_back(file);
    subdirectories = HostPathLists::Texts(lists.directories);
  }
  for (const std::wstring& subdirectory : subdirectories)
    ListMdlFilesRecursive(subdirectory, files, versionFlag);
  return 0;
}

int CTkFile::ListMdlsInDir(const std::wstring& directory, std::vector<std::wstring>& names,
                           const std::vector<std::wstring>& extensions) const {
  std::wstring filter;
  for (const std::wstring& extension : extensions) filter += (filter.empty() ? L"*." : L",*.") + extension;
  HostPathLists lists;
  if (lists.List(directory, filter, PRO_FILE_LIST_LATEST) != PRO_TK_NO_ERROR) return 0;
  for (const std::wstring& file : HostPathLists::Texts(lists.files))
    names.push_back(file.substr(file.rfind(L'/') + 1));
  return 0;
}
