#include "DebugOutput.h"

#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <utility>

#include "CodePage.h"

namespace platform {
namespace {
std::mutex sinkMutex;
DebugSink sink;
}  // namespace

void OutputDebugString(std::wstring_view text) {
  std::lock_guard lock(sinkMutex);
  if (sink) {
    sink(text);
    return;
  }
  if (std::getenv("BOM_DEBUG_OUTPUT")) std::fprintf(stderr, "%s\n", ToNarrow(text).c_str());
}

DebugSink SetDebugSink(DebugSink newSink) {
  std::lock_guard lock(sinkMutex);
  return std::exchange(sink, std::move(newSink));
}

}  // namespace platform
