// Loading a session of 1,000 to 16,000 model files: the top assembly holds
// sub-assemblies of 50 parts each; one part in ten has an older version
// beside it and one in twenty lies in the search path, so that lookups go
// through versions and all three places.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "HostControl.h"
#include "Inspection.h"

namespace fs = std::filesystem;

namespace {

constexpr int kPartsPerUnit = 50;

void WriteFile(const fs::path& file, const std::string& text) { std::ofstream(file) << text; }

std::string Part(int number) {
  return R"({"type": "part", "commonName": "零件 )" + std::to_string(number) +
         R"(", "parameters": [{"name": "图号", "type": "string", "value": "P-)" + std::to_string(number) +
         R"("}, {"name": "MASS", "type": "double", "value": 1.5, "unit": "kg"}]})";
}

// A session of `files` model files in a directory of its own; the same one
// for every run of a size.
fs::path GeneratedSession(int files) {
  fs::path dir = fs::temp_directory_path() / ("session-load-bench-" + std::to_string(files));
  fs::remove_all(dir);
  fs::create_directories(dir / "std");
  WriteFile(dir / "session.json", R"({"current": "top.asm", "searchPath": ["std"]})");
  int written = 1;
  std::string top = R"({"type": "assembly", "components": [)";
  for (int unit = 0; written < files; ++unit) {
    std::string name = "unit_" + std::to_string(unit) + ".asm";
    top +=
        (unit ? ", " : "") + (R"({"id": )" + std::to_string(unit + 1) + R"(, "model": ")" + name + R"("})");
    std::string assembly = R"({"type": "assembly", "components": [)";
    ++written;
    for (int part = 0; part < kPartsPerUnit && written < files; ++part) {
      int number = unit * kPartsPerUnit + part;
      std::string partName = "Part_" + std::to_string(number);
      assembly +=
          (part ? ", " : "") + (R"({"id": )" + std::to_string(part + 1) + R"(, "model": ")" + partName +
                                R"(.prt", "transform": [[1, 0, 0, 0], [0, 1, 0, 0], [0, 0, 1, 0], [)" +
                                std::to_string(part * 10) + R"(, 0, 0, 1]]})");
      fs::path home = number % 20 == 0 ? dir / "std" : dir;
      WriteFile(home / (partName + ".prt.2"), Part(number));
      ++written;
      if (number % 10 == 0 && written < files) {
        WriteFile(home / (partName + ".prt.1"), Part(number));
        ++written;
      }
    }
    WriteFile(dir / (name + ".1"), assembly + "]}");
  }
  WriteFile(dir / "top.asm.1", top + "]}");
  return dir;
}

void LoadGeneratedSession(benchmark::State& state) {
  fs::path session = GeneratedSession(static_cast<int>(state.range(0)));
  fs::path work = session / "work";
  fs::create_directories(work);
  size_t models = 0;
  for (auto _ : state) {
    sim::StartHost({work});
    if (sim::LoadSession(session) != PRO_TK_NO_ERROR) state.SkipWithError("the session did not load");
    state.PauseTiming();
    models = sim::SessionModels().size();
    fs::remove(sim::TrailFilePath());
    state.ResumeTiming();
  }
  state.counters["models"] = static_cast<double>(models);
  fs::remove_all(session);
}

}  // namespace

BENCHMARK(LoadGeneratedSession)
    ->Arg(1000)
    ->Arg(2000)
    ->Arg(4000)
    ->Arg(8000)
    ->Arg(16000)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

BENCHMARK_MAIN();
