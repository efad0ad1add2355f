#include "Shell.h"

#include <spawn.h>
#include <sys/wait.h>

#include <mutex>
#include <utility>

#include "CodePage.h"
#include "Files.h"

extern char** environ;

namespace platform {
namespace {
std::mutex handlerMutex;
ShellOpenHandler handler;

bool LaunchXdgOpen(const ShellOpenRequest& request) {
  std::string path = NativePath(request.path).string();
  char program[] = "xdg-open";
  char* argv[] = {program, path.data(), nullptr};
  pid_t pid = 0;
  if (posix_spawnp(&pid, program, nullptr, nullptr, argv, environ) != 0) return false;
  // xdg-open hands the file on to the desktop and returns at once.
  int status = 0;
  waitpid(pid, &status, 0);
  return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}
}  // namespace

bool ShellOpen(const std::wstring& path, int showCommand) {
  ShellOpenHandler current;
  {
    std::lock_guard lock(handlerMutex);
    current = handler;
  }
  ShellOpenRequest request{path, showCommand};
  return current ? current(request) : LaunchXdgOpen(request);
}

ShellOpenHandler SetShellOpenHandler(ShellOpenHandler newHandler) {
  std::lock_guard lock(handlerMutex);
  return std::exchange(handler, std::move(newHandler));
}

}  // namespace platform
