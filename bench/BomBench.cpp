// The collections and the sort of the BOM engine on generated machines of
// 1,000, 10,000 and 50,000 occurrences, beside the simulated host's bare walk
// of the same tree that every collection starts with.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "GeneratedAssembly.h"
#include "TkBOM.h"

namespace {

template <typename Run>
void Measure(benchmark::State& state, Run run) {
  static const std::filesystem::path work = std::filesystem::temp_directory_path() / "bom-bench";
  std::filesystem::create_directories(work);
  ProMdl top = BuildGeneratedAssembly(work.c_str(), static_cast<int>(state.range(0)));
  size_t rows = 0;
  for (auto _ : state) {
    rows = run(top);
  }
  state.counters["rows"] = static_cast<double>(rows);
}

void BareWalk(benchmark::State& state) {
  Measure(state, [](ProMdl top) {
    std::vector<TkModelAsmCmp> cmps;
    CTkModel().GetAllComponent2(top, cmps);
    return cmps.size();
  });
}

void SingleLevel(benchmark::State& state) {
  Measure(state, [](ProMdl) {
    std::vector<BomMdl> rows;
    TkBOM().GetFirstLevelBomMdls({}, rows);
    return rows.size();
  });
}

void MultiLevel(benchmark::State& state) {
  Measure(state, [](ProMdl) {
    std::vector<BomMdl> rows;
    TkBOM().GetAllLeveBomMdls({}, rows, 0);
    return rows.size();
  });
}

void MultiLevelSameAsmCmps(benchmark::State& state) {
  Measure(state, [](ProMdl) {
    std::vector<BomMdl> rows;
    TkBOM().GetAllLeveBomMdls({}, rows, 1);
    return rows.size();
  });
}

void Summary(benchmark::State& state) {
  Measure(state, [](ProMdl) {
    std::vector<BomMdl> rows;
    TkBOM().GetBomMdls({}, rows);
    return rows.size();
  });
}

// The sort alone, on the multi-level rows of the same machine.
void SortByParameter(benchmark::State& state) {
  static const std::filesystem::path work = std::filesystem::temp_directory_path() / "bom-bench";
  std::filesystem::create_directories(work);
  BuildGeneratedAssembly(work.c_str(), static_cast<int>(state.range(0)));
  TkBOM bom;
  std::vector<BomMdl> rows, sorted;
  bom.GetAllLeveBomMdls({}, rows, 1);
  for (auto _ : state) {
    bom.SortLevelBomMdls(rows, L"图号", sorted);
  }
  state.counters["rows"] = static_cast<double>(sorted.size());
}

}  // namespace

#define BOM_SIZES Arg(1000)->Arg(10000)->Arg(50000)->Unit(benchmark::kMillisecond)
BENCHMARK(BareWalk)->BOM_SIZES;
BENCHMARK(SingleLevel)->BOM_SIZES;
BENCHMARK(MultiLevel)->BOM_SIZES;
BENCHMARK(MultiLevelSameAsmCmps)->BOM_SIZES;
BENCHMARK(Summary)->BOM_SIZES;
BENCHMARK(SortByParameter)->BOM_SIZES;

BENCHMARK_MAIN();
