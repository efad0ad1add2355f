#include "HostSession.h"

#include <system_error>

#include "CodePage.h"
#include "HostControl.h"

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
  if (sim::LoadSession(options.session) != PRO_TK_NO_ERROR) {
    error = "cannot load the session " + options.session.string();
    return false;
  }
  if (!options.current) return true;
  if (*options.current == L"none") return sim::SetCurrentModel(nullptr);
  ProMdl model = sim::OpenModel(*options.current);
  if (!model || !sim::SetCurrentModel(model)) {
    error = "no such model in the session: " + platform::ToNarrow(*options.current);
    return false;
  }
  return true;
}
