// The objects the host hands out for drawing tables and detail notes: the
// creation data of tables, and copies of notes' data with their lines and
// texts. Once freed or replaced, an object is unknown, but its memory stays
// until the host restarts, so that no later object takes the address of a
// stale handle. A pointer the host did not hand out is unknown too, and
// never dereferenced. Call with the host held.
#pragma once

#include "ModelDef.h"
#include "ProDtlnote.h"

#include <map>
#include <memory>
#include <set>
#include <vector>

struct pro_draw_table {
  std::array<double, 3> origin{};
  ProDwgtableSizetype sizeType = PRODWGTABLESIZE_CHARACTERS;
  std::vector<sim::ColumnDef> columns;  // widths in the size type's unit
  std::vector<double> rows;
};

struct pro_dtlnotetext {
  sim::NoteTextDef def;
};

struct pro_dtlnoteline {
  std::vector<std::unique_ptr<pro_dtlnotetext>> texts;
};

struct pro_dtlnotedata {
  std::vector<std::unique_ptr<pro_dtlnoteline>> lines;
};

namespace sim {

NoteLineDef LineDef(const pro_dtlnoteline& line);
std::vector<NoteLineDef> NoteDef(const pro_dtlnotedata& data);

class DetailObjects {
 public:
  pro_draw_table* NewTableData();
  bool FreeTableData(const void* data);
  pro_draw_table* TableData(const void* data) const;  // null when unknown

  pro_dtlnotedata* NewNoteData(const std::vector<NoteLineDef>& lines);
  // Frees the data's lines and texts with it.
  bool FreeNoteData(const void* data);
  // Null when unknown.
  pro_dtlnotedata* NoteData(const void* data) const;
  pro_dtlnoteline* NoteLine(const void* line) const;
  pro_dtlnotetext* NoteText(const void* text) const;

  // The line or data gets new objects made from the definitions; the ones it
  // held before become unknown.
  void SetTexts(pro_dtlnoteline& line, const NoteLineDef& texts);
  void SetLines(pro_dtlnotedata& data, const std::vector<NoteLineDef>& lines);

 private:
  std::unique_ptr<pro_dtlnoteline> NewLine(const NoteLineDef& texts);
  void ForgetTexts(const pro_dtlnoteline& line);
  void ForgetLines(const pro_dtlnotedata& data);

  std::map<const void*, std::unique_ptr<pro_draw_table>> tableData_;
  std::map<const void*, std::unique_ptr<pro_dtlnotedata>> noteData_;
  std::set<const void*> lines_;
  std::set<const void*> texts_;
  std::vector<std::unique_ptr<pro_draw_table>> retiredTableData_;
  std::vector<std::unique_ptr<pro_dtlnotedata>> retiredNoteData_;
  std::vector<std::unique_ptr<pro_dtlnoteline>> retiredLines_;
  std::vector<std::unique_ptr<pro_dtlnotetext>> retiredTexts_;
};

}  // namespace sim
