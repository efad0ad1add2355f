#include "Options.h"

#include "CodePage.h"

namespace {

bool IsFlag(const std::string& value) { return value == "0" || value == "1"; }

std::vector<std::wstring> SplitAtCommas(const std::string& value) {
  std::vector<std::wstring> pieces;
  size_t start = 0;
  while (true) {
    size_t comma = value.find(',', start);
    pieces.push_back(platform::ToWide(value.substr(start, comma - start)));
    if (comma == std::string::npos) return pieces;
    start = comma + 1;
  }
}

// False for an option that the rows job does not know.
bool ParseRowsOption(const std::string& name, const std::string& value, RowsOptions& rows,
                     std::string& error) {
  if (name == "--level") {
    rows.level = value;
    if (value != "single" && value != "multi" && value != "summary") error = "unknown level: " + value;
  } else if (name == "--same-asm-cmps" || name == "--keep-matches") {
    if (!IsFlag(value)) error = name + " takes 0 or 1";
    (name == "--same-asm-cmps" ? rows.sameAsmCmps : rows.keepMatches) = value == "1";
  } else if (name == "--sort") {
    rows.sortParam = platform::ToWide(value);
  } else if (name == "--filter-key") {
    rows.filterKey = platform::ToWide(value);
  } else if (name == "--filter-values") {
    rows.filterValues = SplitAtCommas(value);
  } else {
    return false;
  }
  return true;
}

}  // namespace

ParseResult ParseOptions(const std::vector<std::string>& args) {
  if (args.empty()) return {std::nullopt, "no job given"};
  WorkbenchOptions options{args[0], BOM_SAMPLE_SESSION, std::nullopt, BOM_PLUGIN_ROOT, "bom-work"};
  const bool rowsJob = options.job == "rows";
  const bool guiJob = options.job == "gui";
  if (options.job != "commands" && !rowsJob && !guiJob) return {std::nullopt, "unknown job: " + options.job};

  for (size_t i = 1; i < args.size(); ++i) {
    const std::string& name = args[i];
    if (i + 1 >= args.size()) return {std::nullopt, "missing value of " + name};
    const std::string& value = args[++i];
    if (name == "--session") {
      options.session = value;
    } else if (name == "--current") {
      options.current = platform::ToWide(value);
    } else if (name == "--plugin-root") {
      options.pluginRoot = value;
    } else if (name == "--workdir") {
      options.workdir = value;
    } else if (guiJob && name == "--run") {
      options.gui.run.push_back(value);
    } else if (guiJob && name == "--screenshot") {
      options.gui.screenshot = value;
    } else if (std::string error; !rowsJob || !ParseRowsOption(name, value, options.rows, error)) {
      return {std::nullopt, "unknown option: " + name};
    } else if (!error.empty()) {
      return {std::nullopt, error};
    }
  }
  if (rowsJob && options.rows.level.empty()) return {std::nullopt, "the rows job needs --level"};
  return {options, ""};
}

std::string Usage() {
  return "usage: bom-workbench commands [--session DIR] [--current FILE|none] [--plugin-root DIR] "
         "[--workdir DIR]\n"
         "       bom-workbench rows [--session DIR] [--current FILE|none] [--plugin-root DIR] [--workdir "
         "DIR]\n"
         "                          --level single|multi|summary [--same-asm-cmps 0|1] [--sort PARAM]\n"
         "                          [--filter-key KEY] [--filter-values V1,V2,...] [--keep-matches 0|1]\n"
         "       bom-workbench gui [--session DIR] [--current FILE|none] [--plugin-root DIR] [--workdir "
         "DIR]\n"
         "                         [--run ACTION]... [--screenshot FILE.png]\n";
}
