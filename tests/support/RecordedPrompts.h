// For a test's lifetime, the plug-in's message boxes and the shell's opens
// are answered here and recorded instead of shown.
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "MessageBox.h"
#include "Shell.h"

class RecordedPrompts {
 public:
  RecordedPrompts();
  ~RecordedPrompts();
  RecordedPrompts(const RecordedPrompts&) = delete;
  RecordedPrompts& operator=(const RecordedPrompts&) = delete;

  std::vector<std::wstring> prompts;  // "caption:text", in order
  std::vector<std::wstring> opened;   // the paths handed to the shell
  // The answers of the next yes/no questions, in order; `yes` answers those
  // that find none queued. Any other box is answered OK.
  std::deque<bool> answers;
  bool yes = false;

 private:
  platform::MessageBoxHandler previousBox_;
  platform::ShellOpenHandler previousShell_;
};
