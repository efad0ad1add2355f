// A simulated host with models built in code for the engine's tests, and the
// rows as short lines: "level outline NAME xquantity".
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "HostControl.h"
#include "PluginHost.h"
#include "TkBOM.h"

using TextParams = std::vector<std::pair<std::wstring, std::wstring>>;

class BomTest : public testing::Test {
 protected:
  ProMdl Part(const std::wstring& file, const TextParams& params = {}, int subtype = PROMDLSTYPE_NONE);
  // Components numbered 1, 2, ... in the order given.
  ProMdl Assembly(const std::wstring& file, const std::vector<std::wstring>& components,
                  const TextParams& params = {});
  ProMdl AssemblyOf(const std::wstring& file, const std::vector<sim::ComponentDef>& components,
                    const TextParams& params = {});
  ProMdl Drawing(const std::wstring& file, const std::vector<std::wstring>& solids);
  void MakeCurrent(ProMdl mdl) { host_.MakeCurrent(mdl); }

  static std::vector<std::string> Show(const std::vector<BomMdl>& rows);

  TestDir dir_;
  PluginHost host_{dir_};
  TkBOM bom_;
  BomCollectFilter none_;
};

sim::ComponentDef Suppressed(int id, const std::wstring& model);
