#include "MaterialFileText.h"

std::string MaterialFileText(const std::string& name, const std::string& density) {
  auto block = [](const std::string& parameter, const std::string& type, const std::string& value) {
    return "{\n  Name = " + parameter + "\n  Type = " + type + "\n  Default = " + value +
           "\n  Access = Full\n}";
  };
  return "ND_RelParSet_K01 = {\n\nName = " + name + "\n\nPARAMETERS =\n" +
         block("PTC_MATERIAL_DESCRIPTION", "String", "'" + name + "'") + ",\n" +
         block("PTC_YOUNG_MODULUS", "Real", "2.090000e+05 MPa") + ",\n" +
         block("PTC_MASS_DENSITY", "Real", density) + "\n}\n";
}
