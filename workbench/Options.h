// The workbench's command line: a job name and the options every job shares.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "BomJob.h"
#include "GuiJob.h"

// The job "rows": which list, and the collection's settings.
struct RowsOptions {
  std::string level;  // "single", "multi" or "summary"
  int sameAsmCmps = 0;
  std::wstring sortParam;  // empty: no sort
  std::wstring filterKey;
  std::vector<std::wstring> filterValues;
  int keepMatches = 0;
};

struct WorkbenchOptions {
  std::string job;
  std::filesystem::path session;
  // nullopt: the session's own current model; "none": no current model.
  std::optional<std::wstring> current;
  std::filesystem::path pluginRoot;
  std::filesystem::path workdir;
  RowsOptions rows{};
  GuiOptions gui{};
  BomOptions bom{};
  std::filesystem::path script{};  // the job "play"
};

struct ParseResult {
  std::optional<WorkbenchOptions> options;
  std::string error;  // set when options is empty
};

// Defaults: the bundled sample session, the staged plug-in root of the build
// tree and ./bom-work. The bom job given none of its dialog's options runs as
// --level multi --excel --text --out <workdir>/out/.
ParseResult ParseOptions(const std::vector<std::string>& args);

std::string Usage();
