// The plug-in's log and prompts. The log is the host's trail file: each step
// writes "#QK~Module~Function~Step Status = <result name>", good or bad.
// No state; tools keep an instance as a member.
#pragma once

#include <string>

class CTkLog {
 public:
  // The host's symbolic name of a status, or the status in decimal.
  std::wstring GetResultName(int status) const;
  // Writes `tag` + " Status = " + the result name to the trail; hands back `status`.
  int LogStatus(const std::wstring& tag, int status) const;
  // Shows `text` in the host's message area, with two blanks and the result
  // name behind it when `status` is not 0, and repeats it in the trail.
  int ShowUserMsg(const std::wstring& text, int status) const;
  // Shows one keyed message of a message file; 0.
  int ShowFileMsg(const std::wstring& key, const std::wstring& messageFile) const;
  // A notice box; what the box answers is ignored and `result` handed back.
  int ShowPrompt(const std::wstring& text, const std::wstring& caption, unsigned flags, void* parent,
                 int result) const;
};
