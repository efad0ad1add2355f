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

bool ParseIndex(const std::string& value, int& index) {
  if (value.empty() || value.find_first_not_of("0123456789") != std::string::npos || value.size() > 6)
    return false;
  index = std::stoi(value);
  return true;
}

// Two finite numbers separated by a comma, as the simulated host reads a
// pick.
bool IsPoint(const std::string& value) {
  size_t comma = value.find(',');
  return comma != std::string::npos && platform::ParseNumber(value.substr(0, comma)) &&
         platform::ParseNumber(value.substr(comma + 1));
}

// False for an option that the bom job does not know.
bool ParseBomOption(const std::string& name, const std::string& value, BomOptions& bom, std::string& error) {
  int index = 0;
  if (name == "--level") {
    bom.level = value;
    if (value != "single" && value != "multi" && value != "summary") error = "unknown level: " + value;
  } else if (name == "--sort" || name == "--filter") {
    if (!ParseIndex(value, index)) error = name + " takes an entry number from 0";
    (name == "--sort" ? bom.sort : bom.filter) = index;
  } else if (name == "--out") {
    bom.out = platform::ToWide(value);
  } else if (name == "--name") {
    bom.name = platform::ToWide(value);
  } else if (name == "--pick") {
    bom.pick = platform::ToWide(value);
    if (!IsPoint(value)) error = "--pick takes a point X,Y";
  } else {
    return false;
  }
  return true;
}

// The bom job's options without a value; false for any other name.
bool ParseBomFlag(const std::string& name, BomOptions& bom) {
  if (name == "--excel") {
    bom.excel = true;
  } else if (name == "--text") {
    bom.text = true;
  } else if (name == "--overwrite") {
    bom.overwrite = true;
  } else if (name == "--drawing") {
    bom.drawing = true;
  } else {
    return false;
  }
  return true;
}

// False for an option with a value that the job does not know; a bad value
// sets `error`.
bool ParseValueOption(const std::string& name, const std::string& value, WorkbenchOptions& options,
                      std::string& error) {
  if (name == "--session") {
    options.session = value;
  } else if (name == "--current") {
    options.current = platform::ToWide(value);
  } else if (name == "--plugin-root") {
    options.pluginRoot = value;
  } else if (name == "--workdir") {
    options.workdir = value;
  } else if (options.job == "gui" && name == "--run") {
    options.gui.run.push_back(value);
  } else if (options.job == "gui" && name == "--screenshot") {
    options.gui.screenshot = value;
  } else if (options.job == "bom") {
    return ParseBomOption(name, value, options.bom, error);
  } else {
    return options.job == "rows" && ParseRowsOption(name, value, options.rows, error);
  }
  return true;
}

bool SetsNoControl(const BomOptions& bom) {
  return !bom.level && !bom.sort && !bom.filter && !bom.excel && !bom.text && !bom.drawing && !bom.out &&
         !bom.name;
}

}  // namespace

ParseResult ParseOptions(const std::vector<std::string>& args) {
  if (args.empty()) return {std::nullopt, "no job given"};
  WorkbenchOptions options{args[0], BOM_SAMPLE_SESSION, std::nullopt, BOM_PLUGIN_ROOT, "bom-work"};
  const bool rowsJob = options.job == "rows";
  const bool bomJob = options.job == "bom";
  const bool playJob = options.job == "play";
  if (options.job != "commands" && !rowsJob && options.job != "gui" && !bomJob && !playJob)
    return {std::nullopt, "unknown job: " + options.job};

  size_t first = 1;
  if (playJob) {
    if (args.size() < 2 || args[1].starts_with("--")) return {std::nullopt, "the play job needs a SCRIPT"};
    options.script = args[1];
    first = 2;
  }
  for (size_t i = first; i < args.size(); ++i) {
    const std::string& name = args[i];
    if (bomJob && ParseBomFlag(name, options.bom)) continue;
    // The last word: known only when an empty value is taken for it.
    const bool hasValue = i + 1 < args.size();
    WorkbenchOptions scratch = options;
    std::string error;
    if (!ParseValueOption(name, hasValue ? args[i + 1] : "", hasValue ? options : scratch, error))
      return {std::nullopt, "unknown option " + name};
    if (!hasValue) return {std::nullopt, "missing value of " + name};
    if (!error.empty()) return {std::nullopt, error};
    ++i;
  }
  if (rowsJob && options.rows.level.empty()) return {std::nullopt, "the rows job needs --level"};
  // Nobody is there to pick a point in a headless run.
  if (bomJob && options.bom.drawing != options.bom.pick.has_value())
    return {std::nullopt, "--drawing and --pick X,Y go together"};
  if (bomJob && SetsNoControl(options.bom)) {
    options.bom.level = "multi";
    options.bom.excel = options.bom.text = true;
    options.bom.out = platform::ToWide((options.workdir / "out").string() + "/");
  }
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
         "                         [--run ACTION]... [--screenshot FILE.png]\n"
         "       bom-workbench bom [--session DIR] [--current FILE|none] [--plugin-root DIR] [--workdir "
         "DIR]\n"
         "                         [--level single|multi|summary] [--sort N] [--filter N] [--excel] "
         "[--text]\n"
         "                         [--drawing --pick X,Y] [--out DIR] [--name NAME] [--overwrite]\n"
         "       bom-workbench play SCRIPT [--session DIR] [--current FILE|none] [--plugin-root DIR] "
         "[--workdir DIR]\n";
}
