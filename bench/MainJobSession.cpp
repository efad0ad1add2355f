// main_job_session DIR OCCURRENCES: writes a session of the simulated host
// for the end-to-end benchmark of the main job, three levels below its top
// assembly `machine.asm`: groups, each holding several instances of one unit
// of its own, each unit holding distinct parts. Parts carry the drawing
// number, name and material parameters and mass properties and surfaces, so
// that the bill's mass and outline columns are computed. OCCURRENCES is one
// of 1000, 10000 and 50000 (241, 1,201 and 2,001 model files).
#include <nlohmann/json.hpp>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

namespace fs = std::filesystem;
using Json = nlohmann::ordered_json;

namespace {

struct Shape {
  int occurrences;
  int groups;
  int partsPerUnit;
  int unitInstances;  // in all groups together, spread evenly
};

// Occurrences: the groups, plus each unit instance with its parts.
constexpr Shape kShapes[] = {{1000, 40, 4, 192}, {10000, 100, 10, 900}, {50000, 80, 23, 2080}};

const char* const kMaterials[] = {"Q235", "45", "40Cr", "HT200", "ZL102"};
constexpr double kDensities[] = {7.85e-06, 7.85e-06, 7.87e-06, 7.2e-06, 2.66e-06};

std::string Numbered(const char* prefix, int number, int width = 3) {
  std::string digits = std::to_string(number);
  return prefix + std::string(width > static_cast<int>(digits.size()) ? width - digits.size() : 0, '0') +
         digits;
}

Json Parameter(const char* name, const std::string& value) {
  return {{"name", name}, {"type", "string"}, {"value", value}, {"designated", true}};
}

Json Translation(double x, double y, double z) {
  return Json::array({Json::array({1.0, 0.0, 0.0, 0.0}), Json::array({0.0, 1.0, 0.0, 0.0}),
                      Json::array({0.0, 0.0, 1.0, 0.0}), Json::array({x, y, z, 1.0})});
}

Json Box(double x, double y, double z, double dx, double dy, double dz) {
  return {{"min", {x, y, z}}, {"max", {x + dx, y + dy, z + dz}}};
}

// A block of dx x dy x dz millimetres of the material, seen as three surfaces.
Json Part(const std::string& number, const std::string& name, int material, double dx, double dy, double dz) {
  double volume = dx * dy * dz;
  double mass = volume * kDensities[material];
  return {{"type", "part"},
          {"commonName", name},
          {"parameters",
           {Parameter("图号", number),
            Parameter("名称", name),
            Parameter("材料", kMaterials[material]),
            {{"name", "PTC_MATERIAL_NAME"}, {"type", "string"}, {"value", kMaterials[material]}}}},
          {"material", kMaterials[material]},
          {"materials", {kMaterials[material]}},
          {"density", kDensities[material]},
          {"massProperties",
           {{"volume", volume},
            {"mass", mass},
            {"cog", {dx / 2, dy / 2, dz / 2}},
            {"inertia",
             {mass * (dy * dy + dz * dz) / 12, mass * (dx * dx + dz * dz) / 12,
              mass * (dx * dx + dy * dy) / 12, 0.0, 0.0, 0.0}}}},
          {"surfaces", {Box(0, 0, 0, dx, dy, 0), Box(0, 0, dz, dx, dy, 0), Box(0, 0, 0, 0, dy, dz)}}};
}

Json Assembly(const std::string& number, const std::string& name, Json components) {
  return {{"type", "assembly"},
          {"commonName", name},
          {"parameters", {Parameter("图号", number), Parameter("名称", name)}},
          {"components", std::move(components)}};
}

Json Component(int id, const std::string& model, double x, double y, double z) {
  return {{"id", id}, {"model", model}, {"transform", Translation(x, y, z)}};
}

bool Write(const fs::path& file, const Json& json) {
  std::ofstream out(file);
  out << json.dump(2) << '\n';
  return static_cast<bool>(out);
}

int WriteSession(const fs::path& dir, const Shape& shape) {
  int files = 0;
  auto write = [&](const std::string& fileName, const Json& json) {
    if (!Write(dir / fileName, json)) throw std::runtime_error(fileName + ": cannot be written");
    ++files;
  };
  Json groups = Json::array();
  for (int g = 0; g < shape.groups; ++g) {
    std::string group = Numbered("group_", g + 1);
    std::string unit = Numbered("unit_", g + 1);
    Json parts = Json::array();
    for (int p = 0; p < shape.partsPerUnit; ++p) {
      std::string part = Numbered(("part_" + Numbered("", g + 1) + "_").c_str(), p + 1, 2);
      int material = (g + p) % 5;
      write(part + ".prt.1", Part(Numbered("GEN-", g + 1) + "-" + Numbered("", p + 1, 2) + "-P",
                                  "零件 " + std::to_string(g + 1) + "-" + std::to_string(p + 1), material,
                                  20 + 5 * (p % 7), 10 + 3 * (g % 11), 5 + 2 * (p % 5)));
      parts.push_back(Component(p + 1, part + ".prt", 60.0 * p, 0, 0));
    }
    write(unit + ".asm.1",
          Assembly(Numbered("GEN-", g + 1) + "-00-U", "单元 " + std::to_string(g + 1), parts));
    int instances = shape.unitInstances / shape.groups + (g < shape.unitInstances % shape.groups ? 1 : 0);
    Json units = Json::array();
    for (int i = 0; i < instances; ++i) units.push_back(Component(i + 1, unit + ".asm", 0, 0, 80.0 * i));
    write(group + ".asm.1",
          Assembly(Numbered("GEN-", g + 1) + "-000", "部件 " + std::to_string(g + 1), units));
    groups.push_back(Component(g + 1, group + ".asm", 0, 500.0 * g, 0));
  }
  write("machine.asm.1", Assembly("GEN-000-000", "生成的机器", groups));
  std::ofstream(dir / "session.json") << R"({"open": ["machine.asm"], "current": "machine.asm"})" << '\n';
  return files;
}

}  // namespace

int main(int argc, char* argv[]) {
  const Shape* shape = nullptr;
  for (const Shape& known : kShapes) {
    if (argc == 3 && std::to_string(known.occurrences) == argv[2]) shape = &known;
  }
  if (!shape) {
    std::fprintf(stderr, "usage: main_job_session DIR 1000|10000|50000\n");
    return 2;
  }
  fs::path dir = argv[1];
  std::error_code ec;
  fs::remove_all(dir, ec);
  fs::create_directories(dir, ec);
  try {
    int files = WriteSession(dir, *shape);
    std::printf("%s: %d model files, %d occurrences\n", dir.c_str(), files, shape->occurrences);
  } catch (const std::exception& e) {
    std::fprintf(stderr, "main_job_session: %s\n", e.what());
    return 1;
  }
  return 0;
}
