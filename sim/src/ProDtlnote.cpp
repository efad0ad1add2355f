// Detail notes of drawings. The data of a note is a copy that the plug-in
// edits; only ProDtlnoteModify brings it back into the drawing.
#include "ProDtlnote.h"

#include "DrawingItems.h"
#include "HostMemory.h"
#include "ToolkitCall.h"

#include <optional>
#include <type_traits>

namespace {

// A new array of handles to the objects, which stay the owner's.
template <typename Object>
ProError Collect(const std::vector<std::unique_ptr<Object>>& objects, Object*** handles) {
  if (objects.empty()) return PRO_TK_E_NOT_FOUND;
  int count = static_cast<int>(objects.size());
  void* array = sim::NewArray(count, sizeof(Object*), 1);
  if (!array) return PRO_TK_OUT_OF_MEMORY;
  auto* out = static_cast<Object**>(array);
  for (int i = 0; i < count; ++i) out[i] = objects[i].get();
  *handles = out;
  return PRO_TK_NO_ERROR;
}

// The definitions of the objects a toolkit array names; nullopt unless it is
// a live array of objects the host knows.
template <typename Object, typename Lookup, typename MakeDef>
auto DefsOf(Object* const* array, Lookup lookup, MakeDef makeDef) {
  using Defs = std::vector<std::invoke_result_t<MakeDef, const Object&>>;
  if (!sim::IsLiveArray(array)) return std::optional<Defs>();
  Defs defs;
  for (int i = 0; i < sim::ArraySize(array); ++i) {
    const Object* live = lookup(array[i]);
    if (!live) return std::optional<Defs>();
    defs.push_back(makeDef(*live));
  }
  return std::optional<Defs>(std::move(defs));
}

}  // namespace

// Notes of symbol definitions do not exist here: a symbol is a bad input.
extern "C" ProError ProDtlnoteDataGet(ProDtlnote* note, ProDtlsymdef* symbol, ProDisplayMode mode,
                                      ProDtlnotedata* notedata) {
  sim::ToolkitCall call("ProDtlnoteDataGet", {sim::ItemOwner(note), sim::ItemId(note), mode});
  if (call.Failed()) return call.Status();
  auto found = sim::FindNote(call.state(), note);
  if (found.status) return found.status;
  if (symbol || !notedata) return PRO_TK_BAD_INPUTS;
  *notedata = call.state().details.NewNoteData(found.item->lines);
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProDtlnotedataFree(ProDtlnotedata notedata) {
  sim::ToolkitCall call("ProDtlnotedataFree");
  if (call.Failed()) return call.Status();
  return call.state().details.FreeNoteData(notedata) ? PRO_TK_NO_ERROR : PRO_TK_BAD_INPUTS;
}

extern "C" ProError ProDtlnotedataLinesCollect(ProDtlnotedata notedata, ProDtlnoteline** lines) {
  sim::ToolkitCall call("ProDtlnotedataLinesCollect");
  if (call.Failed()) return call.Status();
  const pro_dtlnotedata* data = call.state().details.NoteData(notedata);
  if (!data || !lines) return PRO_TK_BAD_INPUTS;
  return Collect(data->lines, lines);
}

extern "C" ProError ProDtlnotelineTextsCollect(ProDtlnoteline line, ProDtlnotetext** texts) {
  sim::ToolkitCall call("ProDtlnotelineTextsCollect");
  if (call.Failed()) return call.Status();
  const pro_dtlnoteline* live = call.state().details.NoteLine(line);
  if (!live || !texts) return PRO_TK_BAD_INPUTS;
  return Collect(live->texts, texts);
}

extern "C" ProError ProDtlnotelineTextsSet(ProDtlnoteline line, ProDtlnotetext* texts) {
  sim::ToolkitCall call("ProDtlnotelineTextsSet");
  if (call.Failed()) return call.Status();
  sim::DetailObjects& details = call.state().details;
  pro_dtlnoteline* live = details.NoteLine(line);
  auto defs = DefsOf(
      texts, [&](const void* text) { return details.NoteText(text); },
      [](const pro_dtlnotetext& text) { return text.def; });
  if (!live || !defs) return PRO_TK_BAD_INPUTS;
  details.SetTexts(*live, *defs);
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProDtlnoteldataLinesSet(ProDtlnotedata notedata, ProDtlnoteline* lines) {
  sim::ToolkitCall call("ProDtlnoteldataLinesSet");
  if (call.Failed()) return call.Status();
  sim::DetailObjects& details = call.state().details;
  pro_dtlnotedata* data = details.NoteData(notedata);
  auto defs = DefsOf(
      lines, [&](const void* line) { return details.NoteLine(line); }, sim::LineDef);
  if (!data || !defs) return PRO_TK_BAD_INPUTS;
  details.SetLines(*data, *defs);
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProDtlnoteModify(ProDtlnote* note, ProDtlsymdef* symbol, ProDtlnotedata notedata) {
  sim::ToolkitCall call("ProDtlnoteModify", {sim::ItemOwner(note), sim::ItemId(note)});
  if (call.Failed()) return call.Status();
  auto found = sim::FindNote(call.state(), note);
  if (found.status) return found.status;
  const pro_dtlnotedata* data = call.state().details.NoteData(notedata);
  if (symbol || !data) return PRO_TK_BAD_INPUTS;
  found.item->lines = sim::NoteDef(*data);
  found.drawing->modified = true;
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProDtlnotetextHeightGet(ProDtlnotetext text, double* height) {
  sim::ToolkitCall call("ProDtlnotetextHeightGet");
  if (call.Failed()) return call.Status();
  const pro_dtlnotetext* live = call.state().details.NoteText(text);
  if (!live || !height) return PRO_TK_BAD_INPUTS;
  *height = live->def.height;
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProDtlnotetextWidthGet(ProDtlnotetext text, double* width_factor) {
  sim::ToolkitCall call("ProDtlnotetextWidthGet");
  if (call.Failed()) return call.Status();
  const pro_dtlnotetext* live = call.state().details.NoteText(text);
  if (!live || !width_factor) return PRO_TK_BAD_INPUTS;
  *width_factor = live->def.widthFactor;
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProDtlnotetextWidthSet(ProDtlnotetext text, double width_factor) {
  sim::ToolkitCall call("ProDtlnotetextWidthSet");
  if (call.Failed()) return call.Status();
  pro_dtlnotetext* live = call.state().details.NoteText(text);
  if (!live || !(width_factor > 0)) return PRO_TK_BAD_INPUTS;
  live->def.widthFactor = width_factor;
  return PRO_TK_NO_ERROR;
}
