#include "TkFile.h"

#include <string>

#include "ProMdl.h"
#include "ProToolkitDll.h"
#include "ProUtil.h"
#include "TkText.h"

namespace {

// The file a model picked from the session came from; empty on failure.
std::wstring InSessionOrigin(const std::wstring& name, const std::wstring& extension) {
  std::wstring fileName = name + L"." + extension;
  if (fileName.starts_with(L'\\')) fileName.erase(0, 1);
  ProPath path{};
  tktext::CopyToBuffer(path, fileName);
  ProMdl mdl = nullptr;
  if (ProMdlFiletypeLoad(path, PRO_MDLFILE_UNUSED, PRO_B_FALSE, &mdl) != PRO_TK_NO_ERROR) return L"";
  ProPath origin{};
  if (ProMdlOriginGet(mdl, origin) != PRO_TK_NO_ERROR) return L"";
  return origin;
}

}  // namespace

std::wstring GetAppTextRoot() {
  ProPath path{};
  if (ProToolkitApplTextPathGet(path) != PRO_TK_NO_ERROR) return L"";
  return path;
}

std::wstring CTkFile::GetAppDir() const {
  std::wstring dir = GetAppTextRoot();
  if (dir.empty() || dir.back() != L'\\') dir += L'\\';
  return dir;
}

std::wstring CTkFile::GetCurDir() const {
  ProPath path{};
  if (ProDirectoryCurrentGet(path) != PRO_TK_NO_ERROR) return L"";
  return path;
}

int CTkFile::ChangeCurDir(const std::wstring& directory, int result) const {
  if (directory.empty()) return result;
  ProPath path{};
  tktext::CopyToBuffer(path, directory);
  ProDirectoryChange(path);
  return result;
}

std::wstring CTkFile::ChooseDir(const std::wstring& defaultDir) const {
  ProPath current{};
  if (ProDirectoryCurrentGet(current) != PRO_TK_NO_ERROR) return L"";
  ProPath start{};
  tktext::CopyToBuffer(start, defaultDir.empty() ? std::wstring(current) : defaultDir);
  ProName noTitle{};
  ProPath selected{};
  if (ProDirectoryChoose(noTitle, nullptr, nullptr, start, selected) != PRO_TK_NO_ERROR) return defaultDir;
  return selected;
}

std::wstring CTkFile::GetConfigOption(const std::wstring& name) const {
  ProName option{};
  tktext::CopyToBuffer(option, name);
  ProPath value{};
  if (ProConfigoptionGet(option, value) != PRO_TK_NO_ERROR) return L"";
  return value;
}

std::wstring CTkFile::ChooseMdlFile(const std::wstring& filter, const std::wstring& label,
                                    int keepVersion) const {
  ProPath start{};
  tktext::CopyToBuffer(start, label);
  ProMdlFileName preselected{};
  tktext::CopyToBuffer(preselected, filter);
  ProPath selected{};
  if (ProFileMdlfiletypeOpen(nullptr, nullptr, nullptr, nullptr, start, preselected, selected) !=
      PRO_TK_NO_ERROR)
    return L"";
  ProPath directory{};
  ProMdlName name{};
  ProMdlExtension extension{};
  int version = 0;
  if (ProFileMdlnameParse(selected, directory, name, extension, &version) != PRO_TK_NO_ERROR) return L"";
  std::wstring path = selected;
  // A model picked from the session comes back under the host's "insession:"
  // directory; the tools want the file it was loaded from.
  if (std::wstring(directory) == L"insession:") {
    path = InSessionOrigin(name, extension);
    if (path.empty()) return L"";
  }
  return keepVersion ? path : tktext::CutLastDotOfSeveral(path);
}

void CTkFile::SplitText(const std::wstring& text, std::vector<std::wstring>& pieces, wchar_t separator,
                        int trim) const {
  pieces.clear();
  std::wstring rest = text;
  while (!rest.empty()) {
    std::wstring piece;
    size_t at = rest.find(separator);
    if (at == std::wstring::npos) {
      piece = rest;
      rest.clear();
    } else {
      piece = rest.substr(0, at);
      rest = rest.substr(at + 1);
    }
    if (trim) {
      piece = tktext::TrimBlanks(piece);
      rest = tktext::TrimBlanks(rest);
    }
    pieces.push_back(piece);
  }
}
