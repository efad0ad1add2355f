#include "GeneratedAssembly.h"

#include <string>
#include <vector>

#include "HostControl.h"

namespace {

constexpr int kParts = 120;
constexpr int kUnits = 40;
constexpr int kGroups = 20;

sim::ParameterDef Key(int number) {
  sim::ParameterDef key;
  key.name = L"图号";
  key.text = L"JSQ-" + std::to_wstring(number * 7919 % 1000);
  return key;
}

std::wstring PartFile(int n) { return L"part" + std::to_wstring(n % kParts) + L".prt"; }

}  // namespace

ProMdl BuildGeneratedAssembly(const char* workDir, int occurrences) {
  sim::StartHost({workDir});
  for (int p = 0; p < kParts; ++p) {
    sim::ModelDef part;
    part.parameters = {Key(p)};
    sim::AddModel(PartFile(p), part);
  }
  for (int u = 0; u < kUnits; ++u) {
    sim::ModelDef unit;
    unit.type = PRO_MDL_ASSEMBLY;
    unit.parameters = {Key(1000 + u)};
    for (int c = 0; c < 9; ++c) unit.components.push_back({c + 1, PartFile(u * 9 + c)});
    sim::AddModel(L"unit" + std::to_wstring(u) + L".asm", unit);
  }
  for (int g = 0; g < kGroups; ++g) {
    sim::ModelDef group;
    group.type = PRO_MDL_ASSEMBLY;
    group.parameters = {Key(2000 + g)};
    int id = 1;
    for (int c = 0; c < 4; ++c)
      group.components.push_back({id++, L"unit" + std::to_wstring((g * 4 + c) % kUnits) + L".asm"});
    for (int c = 0; c < 6; ++c) group.components.push_back({id++, PartFile(g * 6 + c + 7)});
    // One suppressed component, as real machines have.
    group.components.back().suppressed = true;
    sim::AddModel(L"group" + std::to_wstring(g) + L".asm", group);
  }
  sim::ModelDef top;
  top.type = PRO_MDL_ASSEMBLY;
  for (int i = 0; i < occurrences / kOccurrencesPerGroup; ++i)
    top.components.push_back({i + 1, L"group" + std::to_wstring(i % kGroups) + L".asm"});
  ProMdl mdl = sim::AddModel(L"machine.asm", top);
  sim::SetCurrentModel(mdl);
  return mdl;
}
