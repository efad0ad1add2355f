#include "Plugin.h"

#include <dlfcn.h>

#include "CodePage.h"
#include "ProToolkitDll.h"

namespace {
using InitializeFn = int (*)(const ProToolkitHostInfo*, wchar_t*);
using TerminateFn = void (*)();
}  // namespace

Plugin::~Plugin() {
  Stop();
  // The plug-in's timers and callbacks live as long as the process, as in the
  // host, so the library stays mapped.
}

bool Plugin::Start(const std::filesystem::path& library, const std::wstring& textDir, int language,
                   std::string& error) {
  handle_ = dlopen(library.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (!handle_) {
    error = dlerror();
    return false;
  }
  auto initialize = reinterpret_cast<InitializeFn>(dlsym(handle_, "user_initialize_plus"));
  if (!initialize || !dlsym(handle_, "user_terminate_plus")) {
    error = library.string() + ": not a toolkit application";
    return false;
  }
  char program[] = "bom-workbench";
  char* argv[] = {program, nullptr};
  ProToolkitHostInfo info{sizeof(ProToolkitHostInfo),
                          PRO_TOOLKIT_ABI_VERSION,
                          textDir.c_str(),
                          language,
                          "8.0",
                          "bom-workbench",
                          1,
                          argv};
  wchar_t errorText[80] = {};
  if (initialize(&info, errorText) != 0) {
    error = "the application did not start: " + platform::ToNarrow(errorText);
    return false;
  }
  running_ = true;
  return true;
}

void Plugin::Stop() {
  if (!running_) return;
  running_ = false;
  reinterpret_cast<TerminateFn>(dlsym(handle_, "user_terminate_plus"))();
}
