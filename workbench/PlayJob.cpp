#include "PlayJob.h"

#include <QApplication>

#include <fstream>
#include <sstream>

#include "CodePage.h"
#include "QtApplication.h"
#include "Script.h"
#include "ScriptRunner.h"

namespace {

std::wstring AbsoluteDir(const std::filesystem::path& dir) {
  std::filesystem::path absolute = std::filesystem::absolute(dir).lexically_normal();
  if (!absolute.has_filename() && absolute.has_parent_path()) absolute = absolute.parent_path();
  return platform::ToWide(absolute.string());
}

}  // namespace

int RunPlayJob(const std::filesystem::path& script, const std::filesystem::path& session,
               const std::filesystem::path& workdir, std::ostream& out, std::ostream& err, int argc,
               char* argv[]) {
  std::ifstream file(script, std::ios::binary);
  std::ostringstream text;
  if (!file || !(text << file.rdbuf())) {
    err << "bom-workbench: cannot read the script " << script.string() << "\n";
    return 1;
  }
  ParsedScript parsed = ParseScript(text.str());
  if (!parsed.error.empty()) {
    err << "bom-workbench: " << script.string() << ":" << parsed.errorLine << ": "
        << platform::ToNarrow(parsed.error) << "\n";
    return 1;
  }
  std::unique_ptr<QApplication> app = StartQtApplication(argc, argv);
  PlayOptions options;
  options.scriptName = platform::ToWide(script.string());
  options.sessionDir = AbsoluteDir(session);
  options.workDir = AbsoluteDir(workdir);
  return PlayScript(parsed.steps, options, out, err);
}
