#include "ApplTextPath.h"

#include <cwchar>
#include <mutex>

#include "ProToolkitDll.h"

namespace protkrt {
namespace {
std::mutex pathMutex;
std::wstring textPath;
}  // namespace

void SetApplTextPath(const std::wstring& textDir) {
  std::lock_guard lock(pathMutex);
  textPath = textDir;
}

std::wstring ApplTextPath() {
  std::lock_guard lock(pathMutex);
  return textPath;
}

}  // namespace protkrt

extern "C" ProError ProToolkitApplTextPathGet(ProPath text_path) {
  if (!text_path) return PRO_TK_BAD_INPUTS;
  std::wstring path = protkrt::ApplTextPath();
  if (path.size() >= PRO_PATH_SIZE) return PRO_TK_LINE_TOO_LONG;
  std::wcsncpy(text_path, path.c_str(), PRO_PATH_SIZE);
  return PRO_TK_NO_ERROR;
}
