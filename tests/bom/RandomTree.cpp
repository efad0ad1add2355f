#include "RandomTree.h"

#include <string>
#include <vector>

#include "HostControl.h"

namespace {

const wchar_t* const kKeys[] = {L"a", L"B", L"b", L"C", L"10", L"9", L""};

int Pick(std::mt19937& random, int count) { return std::uniform_int_distribution<int>(0, count - 1)(random); }
bool Chance(std::mt19937& random, double p) { return std::bernoulli_distribution(p)(random); }

void AddKey(std::mt19937& random, sim::ModelDef& def) {
  if (Chance(random, 0.2)) return;
  sim::ParameterDef key;
  key.name = L"KEY";
  key.text = kKeys[Pick(random, std::size(kKeys))];
  def.parameters.push_back(key);
}

}  // namespace

ProMdl MakeRandomTree(std::mt19937& random) {
  // Files by depth: parts, then assemblies level by level from the bottom,
  // each assembly holding models of the levels below it.
  std::vector<std::wstring> below;
  int partCount = 2 + Pick(random, 6);
  for (int i = 0; i < partCount; ++i) {
    sim::ModelDef def;
    def.type = PRO_MDL_PART;
    // Names repeat in other case now and then: the same model to the list.
    def.name = std::wstring(i % 3 == 2 && Chance(random, 0.5) ? L"p" : L"P") +
               std::to_wstring(i % 3 == 2 ? i - 1 : i);
    if (Chance(random, 0.1)) def.subtype = PROMDLSTYPE_PART_CONCEPT_MODEL;
    AddKey(random, def);
    std::wstring file = L"part" + std::to_wstring(i) + L".prt";
    sim::AddModel(file, def);
    below.push_back(file);
  }
  int depth = 1 + Pick(random, 5);
  int assemblyNumber = 0;
  for (int level = depth; level >= 1; --level) {
    std::vector<std::wstring> made;
    int count = 1 + Pick(random, 3);
    for (int i = 0; i < count; ++i) {
      sim::ModelDef def;
      def.type = PRO_MDL_ASSEMBLY;
      int number = assemblyNumber++;
      // A sub-assembly named like a part, or like another in other case.
      def.name = Chance(random, 0.1)    ? L"P0"
                 : Chance(random, 0.15) ? (number % 2 ? L"s" : L"S")
                                        : L"A" + std::to_wstring(number);
      AddKey(random, def);
      int components = 1 + Pick(random, 5);
      int id = 1;
      for (int c = 0; c < components; ++c) {
        sim::ComponentDef component;
        component.id = id++;
        component.model = below[Pick(random, static_cast<int>(below.size()))];
        component.suppressed = Chance(random, 0.1);
        def.components.push_back(component);
        if (Chance(random, 0.2)) def.features.push_back({id++, L"DATUM_PLANE"});
      }
      std::wstring file = L"asm" + std::to_wstring(number) + L".asm";
      sim::AddModel(file, def);
      made.push_back(file);
    }
    below.insert(below.end(), made.begin(), made.end());
  }
  sim::ModelDef topDef;
  topDef.type = PRO_MDL_ASSEMBLY;
  topDef.name = L"TOP";
  AddKey(random, topDef);
  int components = 1 + Pick(random, 6);
  for (int c = 0; c < components; ++c) {
    topDef.components.push_back(
        {c + 1, below[Pick(random, static_cast<int>(below.size()))], sim::kIdentity, Chance(random, 0.1)});
  }
  ProMdl top = sim::AddModel(L"top.asm", topDef);
  ProMdl current = top;
  int choice = Pick(random, 20);
  if (choice == 0) {
    current = sim::OpenModel(below.front());
  } else if (choice < 4) {
    sim::ModelDef drawing;
    drawing.type = PRO_MDL_DRAWING;
    drawing.solids = {L"top.asm", below.front()};
    current = sim::AddModel(L"top.drw", drawing);
  }
  sim::SetCurrentModel(current);
  return current;
}
