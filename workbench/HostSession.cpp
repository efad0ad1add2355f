#include "HostSession.h"

#include <iostream>
#include <system_error>

#include "CodePage.h"
#include "HostControl.h"
#include "UnloadedModels.h"

bool StartHostSession(const WorkbenchOptions& options, std::string& error) {
  std::error_code ec;
  std::filesystem::create_directories(options.workdir, ec);
  if (ec) {
    error = "cannot create the working directory " + options.workdir.string() + ": " + ec.message();
    return false;
  }
  sim::StartHost({std::filesystem::absolute(options.workdir)});
  sim::RegisterApplication(platform::ToWide(std::filesystem::absolute(options.pluginRoot).string()),
                           kHostLanguage);
  std::string why;
  if (sim::LoadSession(options.session, why) != PRO_TK_NO_ERROR) {
    error = "cannot load the session " + options.session.string() + ": " + why;
    return false;
  }
  for (const std::string& line : UnloadedModelLines()) std::cerr << "bom-workbench: " << line << "\n";
  if (!options.current) return true;
  if (*options.current == L"none") return sim::SetCurrentModel(nullptr);
  ProMdl model = sim::OpenModel(*options.current);
  if (!model || !sim::SetCurrentModel(model)) {
    error = "no such model in the session: " + platform::ToNarrow(*options.current);
    return false;
  }
  return true;
}
