#include "ModelVersions.h"

#include <vector>

#include "ProMdl.h"
#include "TkFile.h"
#include "TkModel.h"

namespace {

constexpr int kNoDirectory = -4;
constexpr int kDrawingFileType = 4;

// The current model, and it followed by the models below it.
int CurrentWithSubMdls(ProMdl& current, std::vector<ProMdl>& models) {
  ProError status = ProMdlCurrentGet(&current);
  if (status != PRO_TK_NO_ERROR) return status;
  return CTkModel().GetAllSubMdls(current, models);
}

ProMdl DrawingOf(const std::wstring& name) {
  ProMdl drawing = nullptr;
  if (CTkModel().LoadMdl(name, kDrawingFileType, drawing) != PRO_TK_NO_ERROR) return nullptr;
  return drawing;
}

}  // namespace

int BackupMdl() {
  std::wstring directory = CTkFile().ChooseDir(L"");
  if (directory.empty()) return kNoDirectory;
  ProMdl current = nullptr;
  std::vector<ProMdl> models;
  int status = CurrentWithSubMdls(current, models);
  if (status != PRO_TK_NO_ERROR) return status;
  CTkModel model;
  model.CopyMdl(current, directory);
  for (ProMdl mdl : models) {
    ProName name{};
    if (ProMdlNameGet(mdl, name) != PRO_TK_NO_ERROR) continue;
    ProMdl drawing = DrawingOf(name);
    if (!drawing) continue;
    model.CopyMdl(drawing, directory);
    model.DelOldVersionsKeepCurrent(mdl, directory);
  }
  return 0;
}

int DelOldMdl() {
  ProMdl current = nullptr;
  std::vector<ProMdl> models;
  int status = CurrentWithSubMdls(current, models);
  if (status != PRO_TK_NO_ERROR) return status;
  CTkModel model;
  for (ProMdl mdl : models) {
    model.DelMdlVersions(mdl);
    if (ProMdl drawing = DrawingOf(model.GetMdlName(mdl))) model.DelMdlVersions(drawing);
  }
  return 0;
}
