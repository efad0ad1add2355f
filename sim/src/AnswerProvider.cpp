#include "AnswerProvider.h"

#include <mutex>
#include <utility>

#include "HostControl.h"
#include "ToolkitCall.h"

namespace sim {
namespace {
std::mutex providerMutex;
AnswerProvider provider;
}  // namespace

void SetAnswerProvider(AnswerProvider newProvider) {
  std::lock_guard hold(providerMutex);
  provider = std::move(newProvider);
}

std::optional<std::wstring> AskAnswerProvider(const std::string& callName, const std::wstring& label,
                                              const std::wstring& defaultPath) {
  AnswerProvider current;
  {
    std::lock_guard hold(providerMutex);
    current = provider;
  }
  if (!current) return std::nullopt;
  return current(callName, label, defaultPath);
}

std::optional<std::wstring> UserAnswer(ToolkitCall& call, const std::string& callName,
                                       const std::wstring& label, const std::wstring& defaultPath) {
  if (!call.state().answers[callName].empty()) return TakeAnswer(callName);
  call.Unlock();
  return AskAnswerProvider(callName, label, defaultPath);
}

}  // namespace sim
