// The entry points the host calls. They check what the host passed, record the
// text directory, hand the resource path to the host and start the
// application once.
#include <cwchar>

#include "ApplTextPath.h"
#include "ProToolkitDll.h"
#include "ProUtil.h"
#include "TextPaths.h"

namespace {

int Refuse(wchar_t err_buff[80], const wchar_t* why) {
  if (err_buff) std::swprintf(err_buff, 80, L"%ls", why);
  return -1;
}

}  // namespace

extern "C" __attribute__((visibility("default"))) int user_initialize_plus(const ProToolkitHostInfo* info,
                                                                           wchar_t err_buff[80]) {
  if (!info || info->size != static_cast<int>(sizeof(ProToolkitHostInfo)))
    return Refuse(err_buff, L"toolkit run-time: unknown host data");
  if (info->abi_version != PRO_TOOLKIT_ABI_VERSION)
    return Refuse(err_buff, L"toolkit run-time: host version mismatch");
  if (!info->text_dir) return Refuse(err_buff, L"toolkit run-time: no text directory");

  std::wstring textDir = info->text_dir;
  protkrt::SetApplTextPath(textDir);
  protkrt::TextPaths paths = protkrt::BuildTextPaths(textDir, info->language);
  ProPath resource{};
  std::wcsncpy(resource, paths.resource.c_str(), PRO_PATH_SIZE - 1);
  ProUIResourcepathStore(resource);

  return user_initialize(info->argc, info->argv, const_cast<char*>(info->version),
                         const_cast<char*>(info->build), err_buff);
}

extern "C" __attribute__((visibility("default"))) void user_terminate_plus(void) { user_terminate(); }
