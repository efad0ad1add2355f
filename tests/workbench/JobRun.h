// The workbench run as a user runs it, on a copy of the staged installation.
#pragma once

#include <cstdio>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "TestDir.h"

struct JobRun {
  int exitCode = -1;
  std::string out;
  std::vector<std::string> lines;  // of `out`
  std::string err;
  std::string all() const { return out + err; }
};

inline std::vector<std::string> SplitLines(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

// `bom-workbench job` on the tests' sample session, with `dir`/work as the
// working directory and `dir`/app, copied at the first run, as the plug-in's
// root: the job writes there. A --session among `arguments` comes later and
// wins. `environment` goes in front of the command.
inline JobRun RunJob(const TestDir& dir, const std::string& job, const std::string& arguments,
                     const std::string& environment = "") {
  namespace fs = std::filesystem;
  fs::path root = dir.path() / "app";
  if (!fs::exists(root)) fs::copy(BOM_STAGE_DIR, root, fs::copy_options::recursive);
  std::string command = environment + " " + BOM_WORKBENCH + " " + job + " --workdir '" +
                        (dir.path() / "work").string() + "' --plugin-root '" + root.string() +
                        "' --session '" + (fs::path(BOM_SAMPLES_DIR) / "reducer").string() + "' " +
                        arguments + " 2>'" + (dir.path() / "stderr.txt").string() + "'";
  JobRun run;
  FILE* pipe = popen(command.c_str(), "r");
  char buffer[4096];
  while (size_t n = fread(buffer, 1, sizeof buffer, pipe)) run.out.append(buffer, n);
  run.exitCode = WEXITSTATUS(pclose(pipe));
  run.lines = SplitLines(run.out);
  run.err = dir.Read("stderr.txt");
  return run;
}
