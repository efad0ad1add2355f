#include "Options.h"

#include "CodePage.h"

ParseResult ParseOptions(const std::vector<std::string>& args) {
  if (args.empty()) return {std::nullopt, "no job given"};
  WorkbenchOptions options{args[0], BOM_SAMPLE_SESSION, std::nullopt, BOM_PLUGIN_ROOT, "bom-work"};
  if (options.job != "commands") return {std::nullopt, "unknown job: " + options.job};

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
    } else {
      return {std::nullopt, "unknown option: " + name};
    }
  }
  return {options, ""};
}

std::string Usage() {
  return "usage: bom-workbench commands [--session DIR] [--current FILE|none] [--plugin-root DIR] "
         "[--workdir DIR]\n";
}
