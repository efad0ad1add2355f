#include "DetailObjects.h"

namespace sim {
namespace {

template <typename Object>
Object* Find(const std::map<const void*, std::unique_ptr<Object>>& objects, const void* key) {
  auto found = objects.find(key);
  return found == objects.end() ? nullptr : found->second.get();
}

template <typename Object>
bool Retire(std::map<const void*, std::unique_ptr<Object>>& objects, const void* key,
            std::vector<std::unique_ptr<Object>>& retired) {
  auto found = objects.find(key);
  if (found == objects.end()) return false;
  retired.push_back(std::move(found->second));
  objects.erase(found);
  return true;
}

template <typename Object>
void Retire(std::vector<std::unique_ptr<Object>>& objects, std::vector<std::unique_ptr<Object>>& retired) {
  for (auto& object : objects) retired.push_back(std::move(object));
  objects.clear();
}

}  // namespace

NoteLineDef LineDef(const pro_dtlnoteline& line) {
  NoteLineDef texts;
  for (const auto& text : line.texts) texts.push_back(text->def);
  return texts;
}

std::vector<NoteLineDef> NoteDef(const pro_dtlnotedata& data) {
  std::vector<NoteLineDef> lines;
  for (const auto& line : data.lines) lines.push_back(LineDef(*line));
  return lines;
}

pro_draw_table* DetailObjects::NewTableData() {
  auto data = std::make_unique<pro_draw_table>();
  pro_draw_table* handle = data.get();
  tableData_.emplace(handle, std::move(data));
  return handle;
}

bool DetailObjects::FreeTableData(const void* data) { return Retire(tableData_, data, retiredTableData_); }

pro_draw_table* DetailObjects::TableData(const void* data) const { return Find(tableData_, data); }

pro_dtlnotedata* DetailObjects::NewNoteData(const std::vector<NoteLineDef>& lines) {
  auto data = std::make_unique<pro_dtlnotedata>();
  SetLines(*data, lines);
  pro_dtlnotedata* handle = data.get();
  noteData_.emplace(handle, std::move(data));
  return handle;
}

bool DetailObjects::FreeNoteData(const void* data) {
  pro_dtlnotedata* live = NoteData(data);
  if (!live) return false;
  ForgetLines(*live);
  return Retire(noteData_, data, retiredNoteData_);
}

pro_dtlnotedata* DetailObjects::NoteData(const void* data) const { return Find(noteData_, data); }

pro_dtlnoteline* DetailObjects::NoteLine(const void* line) const {
  return lines_.count(line) ? static_cast<pro_dtlnoteline*>(const_cast<void*>(line)) : nullptr;
}

pro_dtlnotetext* DetailObjects::NoteText(const void* text) const {
  return texts_.count(text) ? static_cast<pro_dtlnotetext*>(const_cast<void*>(text)) : nullptr;
}

void DetailObjects::SetTexts(pro_dtlnoteline& line, const NoteLineDef& texts) {
  ForgetTexts(line);
  Retire(line.texts, retiredTexts_);
  for (const NoteTextDef& def : texts) {
    line.texts.push_back(std::make_unique<pro_dtlnotetext>(pro_dtlnotetext{def}));
    texts_.insert(line.texts.back().get());
  }
}

void DetailObjects::SetLines(pro_dtlnotedata& data, const std::vector<NoteLineDef>& lines) {
  ForgetLines(data);
  Retire(data.lines, retiredLines_);
  for (const NoteLineDef& texts : lines) data.lines.push_back(NewLine(texts));
}

std::unique_ptr<pro_dtlnoteline> DetailObjects::NewLine(const NoteLineDef& texts) {
  auto line = std::make_unique<pro_dtlnoteline>();
  SetTexts(*line, texts);
  lines_.insert(line.get());
  return line;
}

void DetailObjects::ForgetTexts(const pro_dtlnoteline& line) {
  for (const auto& text : line.texts) texts_.erase(text.get());
}

void DetailObjects::ForgetLines(const pro_dtlnotedata& data) {
  for (const auto& line : data.lines) {
    ForgetTexts(*line);
    lines_.erase(line.get());
  }
}

}  // namespace sim
