// A simulated host with the plug-in's installation beside it, for tests that
// run plug-in code: a copy of the staged data tree as the text root, a
// working directory, and models built in code.
#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "ProObjects.h"
#include "TestDir.h"

class PluginHost {
 public:
  // Starts the host in `dir`/work with `dir`/app as the plug-in's text root.
  explicit PluginHost(const TestDir& dir);
  // Stops the timers the plug-in started meanwhile, so none fires in a later
  // test of the same process.
  ~PluginHost();
  PluginHost(const PluginHost&) = delete;
  PluginHost& operator=(const PluginHost&) = delete;

  std::wstring TextRoot() const { return textRoot_; }
  std::filesystem::path WorkDir() const { return workDir_; }

  // Models in session without files, made current on request.
  ProMdl AddPart(const std::wstring& name);
  ProMdl AddAssembly(const std::wstring& name);
  ProMdl AddDrawing(const std::wstring& name);
  void MakeCurrent(ProMdl mdl);

  // The trail file's lines behind its header.
  std::vector<std::string> TrailLines() const;

 private:
  std::wstring textRoot_;
  std::set<std::uintptr_t> timersBefore_;
  std::filesystem::path workDir_;
};
