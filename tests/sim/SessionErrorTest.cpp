// Sessions a user brings: each one that cannot load is refused with the file
// and the key at fault; components that cannot be had are left out but
// recorded; no model may contain itself.
#include "Inspection.h"
#include "SessionInput.h"
#include "SimTest.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <iterator>
#include <map>

namespace {

struct BadSession {
  const char* name;
  std::map<std::string, std::string> files;  // relative to the session directory
  std::vector<std::string> expected;         // pieces of the error text
};

const std::string kOpensTop = R"({"open": ["top.asm"]})";

const BadSession kBadSessions[] = {
    {"ComponentsNotAList",
     {{"session.json", kOpensTop}, {"top.asm.1", ModelJson("assembly", R"("components": {"id": 1})")}},
     {"top.asm.1: key /components: must be a list, but is object", "key /open/0"}},
    {"ComponentIdNotANumber",
     {{"session.json", kOpensTop},
      {"top.asm.1", ModelJson("assembly", R"("components": [{"id": "six", "model": "a.prt"}])")}},
     {"top.asm.1: key /components/0/id: type must be number, but is string"}},
    {"TransformOfOneRow",
     {{"session.json", kOpensTop},
      {"top.asm.1",
       ModelJson("assembly", R"("components": [{"id": 1, "model": "a.prt", "transform": [[1, 0, 0, 0]]}])")}},
     {"top.asm.1: key /components/0/transform", "out of range"}},
    {"UnknownType",
     {{"session.json", kOpensTop}, {"top.asm.1", ModelJson("banana")}},
     {"top.asm.1: key /type: \"banana\" is not part, assembly or drawing"}},
    {"UnknownParameterType",
     {{"session.json", kOpensTop},
      {"top.asm.1", ModelJson("assembly", R"("parameters": [{"name": "A"}, {"name": "B", "type": "x"}])")}},
     {"key /parameters/1/type: \"x\" is not string"}},
    {"ModelNotJson",
     {{"session.json", kOpensTop}, {"top.asm.1", "{\n  \"type\": \"assembly\",,\n}"}},
     {"top.asm.1: not JSON: parse error at line 2, column 22"}},
    {"ModelNotAnObject", {{"session.json", kOpensTop}, {"top.asm.1", "[]"}}, {"must be a JSON object"}},
    {"ModelOfAnotherType",
     {{"session.json", kOpensTop}, {"top.asm.1", ModelJson("part")}},
     {"top.asm.1: holds a part, not an assembly"}},
    {"CurrentNamesNoModel",
     {{"session.json", R"({"current": "ghost.asm"})"}},
     {"session.json: key /current: ghost.asm: no model file in"}},
    {"SessionFileMissing", {{"top.asm.1", ModelJson("assembly")}}, {"session.json: missing"}},
    {"SessionFileNotJson",
     {{"session.json", "{\n  \"open\": [\n    \"a.prt\"\n"}},
     {"session.json: not JSON: parse error at line 4, column 1"}},
    {"OpenNotAList",
     {{"session.json", R"({"open": "top.asm"})"}},
     {"session.json: key /open: must be a list"}},
    {"OpenEntryNotAText",
     {{"session.json", R"({"open": [7]})"}},
     {"session.json: key /open/0: type must be string"}},
    {"EmptyDirectory", {}, {"the directory is empty"}},
    {"SelfContained",
     {{"session.json", kOpensTop},
      {"top.asm.1", ModelJson("assembly", R"("components": [{"id": 1, "model": "TOP.asm"}])")}},
     {"an assembly contains itself: top.asm.1 > top.asm.1"}},
    {"CycleThroughASubAssembly",
     {{"session.json", R"({"current": "top.asm"})"},
      {"top.asm.1",
       ModelJson("assembly",
                 R"("components": [{"id": 1, "model": "a.prt"}, {"id": 2, "model": "sub.asm"}])")},
      {"a.prt.1", ModelJson("part")},
      {"sub.asm.1", ModelJson("assembly", R"("components": [{"id": 5, "model": "top.asm"}])")}},
     {"key /current: an assembly contains itself: top.asm.1 > sub.asm.1 > top.asm.1"}},
};

class SimSessionLoad : public SimTest {};

class SimBadSession : public SimTest, public ::testing::WithParamInterface<BadSession> {};

TEST_P(SimBadSession, IsRefusedNamingTheFileAndTheKey) {
  const BadSession& bad = GetParam();
  std::filesystem::create_directories(dir.path() / "session");
  for (const auto& [file, text] : bad.files) dir.Write("session/" + file, text);
  std::string error;
  EXPECT_NE(sim::LoadSession(dir.path() / "session", error), PRO_TK_NO_ERROR);
  for (const std::string& piece : bad.expected) EXPECT_NE(error.find(piece), std::string::npos) << error;
}

INSTANTIATE_TEST_SUITE_P(Sessions, SimBadSession, ::testing::ValuesIn(kBadSessions),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(SimSessionLoad, MissingSessionDirectoryIsNamed) {
  std::string error;
  EXPECT_EQ(sim::LoadSession(dir.path() / "nowhere", error), PRO_TK_E_NOT_FOUND);
  EXPECT_EQ(error, (dir.path() / "nowhere").string() + ": no such directory");
}

TEST_F(SimSessionLoad, ACycleLeavesNothingInSessionAndTheNextLoadWorks) {
  dir.Write("work/top.asm", ModelJson("assembly", R"("components": [{"id": 1, "model": "sub.asm"}])"));
  dir.Write("work/sub.asm", ModelJson("assembly", R"("components": [{"id": 1, "model": "top.asm"}])"));
  dir.Write("work/other.asm", ModelJson("assembly", R"("components": [{"id": 1, "model": "sub.asm"}])"));
  EXPECT_EQ(sim::OpenModel(L"top.asm"), nullptr);
  EXPECT_EQ(sim::OpenModel(L"other.asm"), nullptr) << "sub.asm still holds top.asm";
  EXPECT_TRUE(sim::SessionModels().empty());

  dir.Write("work/sub.asm", ModelJson("assembly"));
  EXPECT_NE(sim::OpenModel(L"top.asm"), nullptr);
  EXPECT_EQ(sim::SessionModels().size(), 2u);
}

TEST_F(SimSessionLoad, ModelsBuiltInCodeCannotContainThemselves) {
  sim::ModelDef assembly;
  assembly.type = PRO_MDL_ASSEMBLY;
  assembly.components = {{1, L"self.asm"}};
  EXPECT_EQ(sim::AddModel(L"self.asm", assembly), nullptr);
  EXPECT_TRUE(sim::SessionModels().empty());

  dir.Write("work/holder.asm", ModelJson("assembly", R"("components": [{"id": 1, "model": "built.asm"}])"));
  assembly.components = {{1, L"holder.asm"}};
  EXPECT_EQ(sim::AddModel(L"built.asm", assembly), nullptr);
  assembly.components = {{1, L"part.prt"}};
  EXPECT_NE(sim::AddModel(L"built.asm", assembly), nullptr);
}

TEST_F(SimSessionLoad, ComponentsThatCannotBeHadAreRecordedOnceWithTheirReason) {
  dir.Write("session/session.json", R"({"current": "top.asm"})");
  dir.Write("session/top.asm", ModelJson("assembly", R"("components": [
      {"id": 1, "model": "gone.prt"}, {"id": 2, "model": "bad.prt"}, {"id": 3, "model": "sub.asm"},
      {"id": 4, "model": "ok.prt"}])"));
  dir.Write("session/sub.asm", ModelJson("assembly", R"("components": [{"id": 1, "model": "GONE.prt"}])"));
  dir.Write("session/bad.prt", "{\"type\": ");
  dir.Write("session/ok.prt", ModelJson("part"));
  std::string error;
  ASSERT_EQ(sim::LoadSession(dir.path() / "session", error), PRO_TK_NO_ERROR) << error;
  EXPECT_EQ(sim::SessionModels().size(), 3u);

  std::vector<sim::UnloadedModel> unloaded = sim::UnloadedModels();
  ASSERT_EQ(unloaded.size(), 2u);
  EXPECT_EQ(unloaded[0].fileName, L"gone.prt");
  EXPECT_NE(unloaded[0].reason.find("no model file in " + (dir.path() / "work").string()), std::string::npos)
      << unloaded[0].reason;
  EXPECT_EQ(unloaded[1].fileName, L"bad.prt");
  EXPECT_NE(unloaded[1].reason.find("bad.prt: not JSON: parse error at line 1"), std::string::npos)
      << unloaded[1].reason;
}

// Directories are read once per load: a file written after a load is found
// by the next one.
TEST_F(SimSessionLoad, ModelFilesWrittenDuringASessionAreFound) {
  dir.Write("work/top.asm", ModelJson("assembly", R"("components": [{"id": 1, "model": "late.prt"}])"));
  ASSERT_NE(sim::OpenModel(L"top.asm"), nullptr);
  EXPECT_EQ(sim::OpenModel(L"late.prt"), nullptr);
  dir.Write("work/late.prt.1", ModelJson("part"));
  EXPECT_NE(sim::OpenModel(L"late.prt"), nullptr);
  dir.Write("work/later.prt.1", ModelJson("part"));
  dir.Write("work/later.prt.2", ModelJson("part", R"("name": "NEWER")"));
  EXPECT_EQ(Name(sim::OpenModel(L"later.prt")), L"NEWER");
}

// The session loader's fuzzing corpus and every input that once broke it.
class SimFuzzInput : public SimTest, public ::testing::WithParamInterface<std::filesystem::path> {};

TEST_P(SimFuzzInput, LoadsOrIsRefusedWithAReason) {
  std::ifstream in(GetParam(), std::ios::binary);
  std::string input{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  WriteSessionInput(dir.path() / "session", input);
  std::string error;
  ProError status = sim::LoadSession(dir.path() / "session", error);
  EXPECT_EQ(status == PRO_TK_NO_ERROR, error.empty()) << error;
}

std::vector<std::filesystem::path> FuzzInputs() {
  std::vector<std::filesystem::path> inputs;
  for (const char* folder : {"session", "session-findings"}) {
    std::filesystem::path inputDir = std::filesystem::path(BOM_FUZZ_DATA_DIR) / folder;
    if (!std::filesystem::exists(inputDir)) continue;  // no finding yet
    for (const auto& entry : std::filesystem::directory_iterator(inputDir)) inputs.push_back(entry.path());
  }
  std::sort(inputs.begin(), inputs.end());
  return inputs;
}

INSTANTIATE_TEST_SUITE_P(Corpus, SimFuzzInput, ::testing::ValuesIn(FuzzInputs()), [](const auto& info) {
  std::string name = info.param.parent_path().filename().string() + "_" + info.param.filename().string();
  std::replace_if(
      name.begin(), name.end(), [](char c) { return !std::isalnum(static_cast<unsigned char>(c)); }, '_');
  return name;
});

}  // namespace
