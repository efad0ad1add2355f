#include "FileDialog.h"

#include <mutex>
#include <utility>

namespace platform {
namespace {
std::mutex handlerMutex;
FileOpenHandler handler;
}  // namespace

std::optional<std::wstring> ChooseFileToOpen(void* parent, const std::wstring& filter,
                                             const std::wstring& initialDir) {
  FileOpenHandler current;
  {
    std::lock_guard lock(handlerMutex);
    current = handler;
  }
  if (!current) return std::nullopt;
  return current(FileOpenRequest{parent, filter, initialDir});
}

FileOpenHandler SetFileOpenHandler(FileOpenHandler newHandler) {
  std::lock_guard lock(handlerMutex);
  return std::exchange(handler, std::move(newHandler));
}

}  // namespace platform
