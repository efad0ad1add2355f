// The job "bom", the workbench's main job: the plug-in's BOM list opened on
// the session by its command, its controls set as the options say, and the
// button "输出" pressed, all as a user would click them and with no window on
// the screen. Each prompt and each file written goes to the output.
#pragma once

#include <filesystem>
#include <optional>
#include <ostream>
#include <string>

// Each option that is set sets its control of the list dialog; the others
// keep what the dialog opens with.
struct BomOptions {
  std::optional<std::string> level;  // "single", "multi" or "summary"
  std::optional<int> sort;           // entry of the sort box
  std::optional<int> filter;         // entry of the filter box
  bool excel = false;                // check the output box "Excel"
  bool text = false;                 // check the output box "Text"
  bool drawing = false;              // check the output box "Drawing"
  std::optional<std::wstring> pick;  // "X,Y": the point the user picks on the drawing
  std::optional<std::wstring> out;   // text of the output directory field
  std::optional<std::wstring> name;  // text of the file name field
  bool overwrite = false;            // the answer to the overwrite question
};

// Makes the application (offscreen without a display) and runs the job; 0,
// or 1 when the command or a control is missing, no output box is checked or
// an output broke off, the reason on `err`. A drawing that got a table is saved into `workdir`,
// leaving the session's files as they are.
int RunBomJob(const BomOptions& options, const std::filesystem::path& workdir, std::ostream& out,
              std::ostream& err, int argc, char* argv[]);
