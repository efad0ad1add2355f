// bom-workbench: the Linux host application of the plug-in.
#include <iostream>
#include <string>
#include <vector>

#include "BomJob.h"
#include "CodePage.h"
#include "CommandsJob.h"
#include "GuiJob.h"
#include "HostSession.h"
#include "Options.h"
#include "PlayJob.h"
#include "Plugin.h"
#include "RowsJob.h"
#include "UnloadedModels.h"

int main(int argc, char* argv[]) {
  ParseResult parsed = ParseOptions(std::vector<std::string>(argv + 1, argv + argc));
  if (!parsed.options) {
    std::cerr << "bom-workbench: " << parsed.error << "\n" << Usage();
    return 2;
  }
  const WorkbenchOptions& options = *parsed.options;

  std::string error;
  if (!StartHostSession(options, error)) {
    std::cerr << "bom-workbench: " << error << "\n";
    return 1;
  }
  Plugin plugin;
  std::wstring textDir = platform::ToWide(std::filesystem::absolute(options.pluginRoot).string());
  if (!plugin.Start(BOM_PLUGIN_LIBRARY, textDir, kHostLanguage, error)) {
    std::cerr << "bom-workbench: " << error << "\n";
    return 1;
  }
  int exitCode = 0;
  if (options.job == "rows") {
    exitCode = PrintRows(options.rows, std::cout, std::cerr);
  } else if (options.job == "bom") {
    exitCode = RunBomJob(options.bom, options.workdir, std::cout, std::cerr, argc, argv);
  } else if (options.job == "play") {
    exitCode = RunPlayJob(options.script, options.session, options.workdir, std::cout, std::cerr, argc, argv);
  } else if (options.job == "gui") {
    exitCode = RunGui(options.gui, argc, argv);
  } else {
    PrintCommands(std::cout);
  }
  plugin.Stop();
  std::string unloaded = UnloadedCountLine();
  if ((options.job == "rows" || options.job == "bom" || options.job == "play") && !unloaded.empty())
    std::cerr << "bom-workbench: " << unloaded << "\n";
  return exitCode;
}
