// The text of a scripted session: one step a line, `#` to the end of a line
// a comment, fields separated by blanks, a field holding blanks in double
// quotes.
#pragma once

#include <string>
#include <vector>

struct ScriptStep {
  int line = 0;                      // from 1, as an editor counts
  std::vector<std::wstring> fields;  // the step's name first
};

struct ParsedScript {
  std::vector<ScriptStep> steps;
  std::wstring error;  // set when the text could not be read; `errorLine` names the line
  int errorLine = 0;
};

// `text` is UTF-8 (a byte order mark is skipped). A quote inside a quoted
// field is written twice (""). An unclosed quote is an error of its line.
ParsedScript ParseScript(const std::string& text);

// The step as it would be written back, for messages: fields holding blanks
// or quotes are quoted.
std::wstring StepText(const ScriptStep& step);
