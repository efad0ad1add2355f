#include "HostPathLists.h"

#include "ProArray.h"
#include "TkText.h"

HostPathLists::HostPathLists() {
  ProArrayAlloc(0, sizeof(ProPath), 1, reinterpret_cast<ProArray*>(&files));
  ProArrayAlloc(0, sizeof(ProPath), 1, reinterpret_cast<ProArray*>(&directories));
}

HostPathLists::~HostPathLists() {
  if (files) ProArrayFree(reinterpret_cast<ProArray*>(&files));
  if (directories) ProArrayFree(reinterpret_cast<ProArray*>(&directories));
}

ProError HostPathLists::List(const std::wstring& directory, const std::wstring& filter, int option) {
  ProPath path{};
  tktext::CopyToBuffer(path, directory);
  ProLine line{};
  tktext::CopyToBuffer(line, filter);
  return ProFilesList(path, line, static_cast<ProFileListOpt>(option), &files, &directories);
}

std::vector<std::wstring> HostPathLists::Texts(ProPath* paths) {
  std::vector<std::wstring> texts;
  int count = 0;
  if (paths && ProArraySizeGet(paths, &count) == PRO_TK_NO_ERROR) {
    for (int i = 0; i < count; ++i) texts.emplace_back(paths[i]);
  }
  return texts;
}
