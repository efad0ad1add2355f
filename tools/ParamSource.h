// Where the batch tools get their reference attributes (Params.csv,
// Params.xls or a model) and their models, and how they write attributes into
// a model. Shared by every batch tool; no state beyond its helpers.
#pragma once

#include <string>
#include <vector>

#include "ParamData.h"
#include "ProObjects.h"
#include "TkFile.h"
#include "TkModel.h"
#include "TkParam.h"

class CParamSource : public CTkParam {
 public:
  // The model's parameter exists (its type is not 57).
  bool IsParamExist(ProMdl mdl, const std::wstring& name) const;
  // Empties `text`; -4 when the parameter is not there, else its value with 2
  // decimals and 0.
  int GetParamText(ProMdl mdl, const std::wstring& name, std::wstring& text) const;
  void GetMdlNameAndKind(ProMdl mdl, std::wstring& name, int& type) const;

  // template\Params.csv beside the plug-in: the heading line skipped, lines
  // of fewer than 5 fields or without a name skipped. Always 1, so a missing
  // file is an empty list.
  int ReadCsvParams(std::vector<ParamData>& params) const;
  // Sheet "sheet1" of template\Params.xls, rows 2 to 101 up to the first
  // empty name. Always 1.
  int ReadExcelParams(std::vector<ParamData>& params) const;
  // Every parameter of the model at `path`, looked up in session by its file
  // name first; a model loaded only for this is erased again. 0, or the
  // status of the failed load or parameter listing.
  int ReadMdlParams(const std::wstring& path, std::vector<ParamData>& params) const;
  // The template handed to the shell's "open"; false when it is not there.
  bool OpenParamsXls() const;
  bool OpenParamsCsv() const;
  // Loads the model and opens its window; the failing status, else the
  // window's.
  int OpenReferenceMdl(const std::wstring& path) const;

  // Writes every record into `mdl` as a parameter, whatever its kind: the
  // callers pass only parameters. -2 for an empty list, else 0: a parameter
  // that cannot be written is passed over.
  int ApplyParams(ProMdl mdl, const std::vector<ParamData>& params, int createOnly, int overwrite) const;
  // The current model and what lies below it (of a drawing: its first
  // solid's); the failing status when there is no current model.
  int CollectCurrentMdls(std::vector<ProMdl>& models) const;
  // Loads the model files of `directory` unless it is empty, then answers
  // the whole session.
  int CollectSessionMdls(const std::wstring& directory, std::vector<ProMdl>& models) const;

 private:
  CTkFile file_;
  CTkModel model_;
};
