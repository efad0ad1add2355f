#include "RelationBatch.h"

#include "ProMdl.h"
#include "RelationBlocks.h"
#include "TkLog.h"
#include "TkModel.h"
#include "TkRelation.h"

namespace {

class RelationWriter {
 public:
  RelationWriter(RelationWrite write, RelationTarget target, const std::wstring& text)
      : write_(write), target_(target) {
    TrimRelationLines(text, lines_);
  }

  void WriteMdl(ProMdl mdl) const {
    ProRelset set{};
    WriteFound(relation_.GetMdlRelset(mdl, set), set, mdl);
  }

  // Every occurrence of `mdl` among the components.
  void WriteCmps(ProMdl mdl, const std::vector<TkModelAsmCmp>& cmps) const {
    for (const TkModelAsmCmp& cmp : cmps) {
      if (!model_.IsSameMdl(cmp.mdl, mdl)) continue;
      ProRelset set{};
      WriteFound(relation_.GetItemRelset(cmp.feature, set), set, mdl);
    }
  }

 private:
  // `found` is the status of looking up `set`.
  void WriteFound(int found, const ProRelset& set, ProMdl mdl) const {
    if (found != 0) {
      log_.ShowUserMsg(L"can not get relation set from mdl: " + model_.GetMdlName(mdl), found);
      return;
    }
    std::vector<std::wstring> out = lines_;
    if (write_ != RelationWrite::kOverwrite) {
      std::vector<std::wstring> existing;
      relation_.GetRelationLines(set, existing);
      if (write_ == RelationWrite::kDelete) {
        RemoveRelationBlocks(lines_, existing, out);
      } else if (MergeRelationBlocks(lines_, existing, out) == 0 && target_ == RelationTarget::kMdl) {
        // Only a model is spared: a component gets the empty result.
        return;
      }
    }
    int status = relation_.SetRelationLines(set, out);
    bool deleting = write_ == RelationWrite::kDelete;
    std::wstring line =
        status != 0 ? (deleting ? L"can not delete relation to mdl: " : L"can not set relation to mdl: ")
                    : (deleting ? L"delete relation to mdl OK: " : L"set relation to mdl OK: ");
    log_.ShowUserMsg(line + model_.GetMdlName(mdl), status);
  }

  RelationWrite write_;
  RelationTarget target_;
  std::vector<std::wstring> lines_;
  CTkRelation relation_;
  CTkModel model_;
  CTkLog log_;
};

}  // namespace

void WriteRelations(RelationWrite write, RelationTarget target, const std::vector<ProMdl>& mdls,
                    const std::wstring& text) {
  RelationWriter writer(write, target, text);
  if (target == RelationTarget::kMdl) {
    for (ProMdl mdl : mdls) writer.WriteMdl(mdl);
    return;
  }
  std::vector<TkModelAsmCmp> cmps;
  ProMdl current = nullptr;
  if (ProMdlCurrentGet(&current) == PRO_TK_NO_ERROR) CTkModel().GetAllComponent2(current, cmps);
  for (ProMdl mdl : mdls) writer.WriteCmps(mdl, cmps);
}
