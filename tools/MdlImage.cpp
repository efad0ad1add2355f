#include "MdlImage.h"

#include "TkModel.h"

int MdlImageOf(const CTkModel& model, ProMdl mdl) {
  int type = 0;
  model.GetMdlType(mdl, type);
  if (type == CTkModel::kAssembly) return 15;
  return type == CTkModel::kPart ? 14 : 16;
}
