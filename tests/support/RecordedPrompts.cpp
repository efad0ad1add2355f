#include "RecordedPrompts.h"

RecordedPrompts::RecordedPrompts() {
  previousBox_ = platform::SetMessageBoxHandler([this](const platform::MessageBoxRequest& request) {
    prompts.push_back(request.caption + L":" + request.text);
    if (request.flags != platform::kMbYesNo) return platform::kIdOk;
    bool answer = yes;
    if (!answers.empty()) {
      answer = answers.front();
      answers.pop_front();
    }
    return answer ? platform::kIdYes : platform::kIdNo;
  });
  previousShell_ = platform::SetShellOpenHandler([this](const platform::ShellOpenRequest& request) {
    opened.push_back(request.path);
    return true;
  });
}

RecordedPrompts::~RecordedPrompts() {
  platform::SetMessageBoxHandler(previousBox_);
  platform::SetShellOpenHandler(previousShell_);
}
