#include "PluginHost.h"

#include <gtest/gtest.h>

#include <fstream>

#include "ApplTextPath.h"
#include "CodePage.h"
#include "HostControl.h"
#include "Inspection.h"
#include "Timers.h"

namespace fs = std::filesystem;

PluginHost::PluginHost(const TestDir& dir) : workDir_(dir.path() / "work") {
  fs::path app = dir.path() / "app";
  fs::copy(BOM_STAGE_DIR, app, fs::copy_options::recursive);
  fs::create_directories(workDir_);
  textRoot_ = platform::ToWide(app.string());
  sim::StartHost({workDir_});
  sim::RegisterApplication(textRoot_, 1);
  protkrt::SetApplTextPath(textRoot_);
  for (const auto& timer : platform::ActiveTimers()) timersBefore_.insert(timer.id);
}

PluginHost::~PluginHost() {
  for (const auto& timer : platform::ActiveTimers()) {
    if (!timersBefore_.count(timer.id)) platform::KillTimer(nullptr, timer.id);
  }
}

ProMdl PluginHost::AddPart(const std::wstring& name) {
  sim::ModelDef def;
  def.type = PRO_MDL_PART;
  return sim::AddModel(name + L".prt", def);
}

ProMdl PluginHost::AddAssembly(const std::wstring& name) {
  sim::ModelDef def;
  def.type = PRO_MDL_ASSEMBLY;
  return sim::AddModel(name + L".asm", def);
}

ProMdl PluginHost::AddDrawing(const std::wstring& name) {
  sim::ModelDef def;
  def.type = PRO_MDL_DRAWING;
  return sim::AddModel(name + L".drw", def);
}

void PluginHost::MakeCurrent(ProMdl mdl) { ASSERT_TRUE(sim::SetCurrentModel(mdl)); }

std::vector<std::string> PluginHost::TrailLines() const {
  std::vector<std::string> lines;
  std::ifstream in(sim::TrailFilePath());
  std::string line;
  std::getline(in, line);  // the header
  while (std::getline(in, line)) lines.push_back(line);
  return lines;
}
