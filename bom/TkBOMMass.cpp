// Masses of parts and assemblies, and today's date for the outputs.
#include <ctime>
#include <cwchar>

#include "BomFillCache.h"
#include "ProPart.h"
#include "ProSolid.h"
#include "TkBOM.h"

int TkBOM::GetPartMass(ProMdl part, double& mass) const {
  mass = 0.0;
  // A part with a material assigned has its mass from the host; one without
  // gets its density times its volume.
  if (!param_.GetMdlParamValue(part, L"PTC_MATERIAL_NAME", 2).empty()) {
    double cog[3], inertia[6];
    return model_.GetMassProperty(part, mass, cog[0], cog[1], cog[2], inertia[0], inertia[1], inertia[2],
                                  inertia[3], inertia[4], inertia[5], L"");
  }
  double density = 0.0;
  if (ProError status = ProPartDensityGet(static_cast<ProPart>(part), &density)) return status;
  ProMassProperty properties{};
  if (ProError status = ProSolidMassPropertyGet(static_cast<ProSolid>(part), nullptr, &properties))
    return status;
  mass = density * properties.volume;
  return 0;
}

int TkBOM::GetPartMass(ProMdl part, double& mass, BomFillCache* cache) const {
  if (!cache) return GetPartMass(part, mass);
  return Remembered(cache->masses, part, mass, [&](double& value) { return GetPartMass(part, value); });
}

int TkBOM::GetMdlMass(ProMdl mdl, double& mass, BomFillCache* cache) const {
  if (!cache) return ComputeMdlMass(mdl, mass, nullptr);
  return Remembered(cache->masses, mdl, mass,
                    [&](double& value) { return ComputeMdlMass(mdl, value, cache); });
}

// The mass asked of the host; the assembly's parts come from `cache` when given.
int TkBOM::ComputeMdlMass(ProMdl mdl, double& mass, BomFillCache* cache) const {
  mass = 0.0;
  int type = 0;
  if (int status = model_.GetMdlType(mdl, type)) return status;
  if (type == CTkModel::kPart) return GetPartMass(mdl, mass);
  std::vector<TkModelAsmCmp> cmps;
  model_.GetAllComponent2(mdl, cmps);
  for (const TkModelAsmCmp& cmp : cmps) {
    int cmpType = 0;
    double partMass = 0.0;
    if (model_.GetMdlType(cmp.mdl, cmpType) == PRO_TK_NO_ERROR && cmpType == CTkModel::kPart) {
      GetPartMass(cmp.mdl, partMass, cache);
      mass += partMass;
    }
  }
  return 0;
}

std::wstring TkBOM::GetTodayText() const {
  std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  wchar_t text[32];
  std::swprintf(text, 32, L"%04d.%02d.%02d", local.tm_year + 1900, local.tm_mon + 1, local.tm_mday);
  return text;
}
