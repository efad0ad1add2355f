// Tables on drawings, the notes of their cells, sheets and the mouse pick.
#include "CommaLocale.h"
#include "ModelFile.h"
#include "ProArray.h"
#include "ProAsmcomp.h"
#include "ProDrawing.h"
#include "ProDtlnote.h"
#include "ProGraphic.h"
#include "ProMdl.h"
#include "SimTest.h"

#include <array>
#include <vector>

namespace {

using Point = std::array<double, 3>;

// A toolkit array of strings in the caller's own buffers, as the plug-in
// hands lines over.
class Lines {
 public:
  explicit Lines(std::vector<std::wstring> texts) : texts_(std::move(texts)) {
    EXPECT_EQ(ProArrayAlloc(0, sizeof(wchar_t*), 1, &array_), PRO_TK_NO_ERROR);
    for (std::wstring& text : texts_) {
      wchar_t* buffer = text.data();
      EXPECT_EQ(ProArrayObjectAdd(&array_, PRO_VALUE_UNUSED, 1, &buffer), PRO_TK_NO_ERROR);
    }
  }
  ~Lines() { ProArrayFree(&array_); }
  Lines(const Lines&) = delete;
  Lines& operator=(const Lines&) = delete;
  ProWstring* get() const { return static_cast<ProWstring*>(array_); }

 private:
  std::vector<std::wstring> texts_;
  ProArray array_ = nullptr;
};

// Height and width factor of each text, line by line.
using TextSizes = std::vector<std::vector<std::pair<double, double>>>;

sim::ModelDef DrawingDef() {
  sim::ModelDef def;
  def.type = PRO_MDL_DRAWING;
  return def;
}

class SimDrawingTable : public SimTest {
 protected:
  SimDrawingTable() { drawing = static_cast<ProDrawing>(sim::AddModel(L"plan.drw", DrawingDef())); }

  ProDwgtable Create(ProDwgtableSizetype sizeType, std::vector<double> widths, std::vector<double> heights,
                     Point origin = {}) {
    ProDwgtabledata data = nullptr;
    EXPECT_EQ(ProDwgtabledataAlloc(&data), PRO_TK_NO_ERROR);
    EXPECT_EQ(ProDwgtabledataOriginSet(data, origin.data()), PRO_TK_NO_ERROR);
    EXPECT_EQ(ProDwgtabledataSizetypeSet(data, sizeType), PRO_TK_NO_ERROR);
    EXPECT_EQ(ProDwgtabledataColumnsSet(data, static_cast<int>(widths.size()), widths.data(), nullptr),
              PRO_TK_NO_ERROR);
    EXPECT_EQ(ProDwgtabledataRowsSet(data, static_cast<int>(heights.size()), heights.data()),
              PRO_TK_NO_ERROR);
    ProDwgtable table{};
    EXPECT_EQ(ProDrawingTableCreate(drawing, data, 1, &table), PRO_TK_NO_ERROR);
    EXPECT_EQ(ProDwgtabledataFree(data), PRO_TK_NO_ERROR);
    return table;
  }

  static std::vector<double> RowSizes(ProDwgtable& table) {
    int count = 0;
    EXPECT_EQ(ProDwgtableRowsCount(&table, &count), PRO_TK_NO_ERROR);
    std::vector<double> sizes(count);
    for (int row = 0; row < count; ++row)
      EXPECT_EQ(ProDwgtableRowSizeGet(&table, 0, row, &sizes[row]), PRO_TK_NO_ERROR);
    return sizes;
  }

  static std::vector<double> ColumnSizes(ProDwgtable& table) {
    int count = 0;
    EXPECT_EQ(ProDwgtableColumnsCount(&table, &count), PRO_TK_NO_ERROR);
    std::vector<double> sizes(count);
    for (int column = 0; column < count; ++column)
      EXPECT_EQ(ProDwgtableColumnSizeGet(&table, -1, column, &sizes[column]), PRO_TK_NO_ERROR);
    return sizes;
  }

  // The note's id, 0 for an empty cell.
  static int NoteId(ProDwgtable& table, int column, int row) {
    ProDtlnote note{};
    ProError status = ProDwgtableCellNoteGet(&table, column, row, &note);
    EXPECT_TRUE(status == PRO_TK_NO_ERROR || status == PRO_TK_EMPTY) << status;
    return status == PRO_TK_NO_ERROR ? note.id : 0;
  }

  static ProDtlnote Note(ProDwgtable& table, int column, int row) {
    ProDtlnote note{};
    EXPECT_EQ(ProDwgtableCellNoteGet(&table, column, row, &note), PRO_TK_NO_ERROR);
    return note;
  }

  // The walk the plug-in makes to measure a cell's text.
  static TextSizes Sizes(ProDtlnote note) {
    TextSizes sizes;
    ProDtlnotedata data = nullptr;
    EXPECT_EQ(ProDtlnoteDataGet(&note, nullptr, PRODISPMODE_NUMERIC, &data), PRO_TK_NO_ERROR);
    ProDtlnoteline* lines = nullptr;
    EXPECT_EQ(ProDtlnotedataLinesCollect(data, &lines), PRO_TK_NO_ERROR);
    int lineCount = 0;
    EXPECT_EQ(ProArraySizeGet(lines, &lineCount), PRO_TK_NO_ERROR);
    for (int i = 0; i < lineCount; ++i) {
      ProDtlnotetext* texts = nullptr;
      EXPECT_EQ(ProDtlnotelineTextsCollect(lines[i], &texts), PRO_TK_NO_ERROR);
      int textCount = 0;
      EXPECT_EQ(ProArraySizeGet(texts, &textCount), PRO_TK_NO_ERROR);
      auto& line = sizes.emplace_back();
      for (int j = 0; j < textCount; ++j) {
        double height = 0, width = 0;
        EXPECT_EQ(ProDtlnotetextHeightGet(texts[j], &height), PRO_TK_NO_ERROR);
        EXPECT_EQ(ProDtlnotetextWidthGet(texts[j], &width), PRO_TK_NO_ERROR);
        line.emplace_back(height, width);
      }
      EXPECT_EQ(ProArrayFree(reinterpret_cast<ProArray*>(&texts)), PRO_TK_NO_ERROR);
    }
    EXPECT_EQ(ProArrayFree(reinterpret_cast<ProArray*>(&lines)), PRO_TK_NO_ERROR);
    EXPECT_EQ(ProDtlnotedataFree(data), PRO_TK_NO_ERROR);
    return sizes;
  }

  bool Modified() const {
    ProBoolean modified = PRO_B_FALSE;
    EXPECT_EQ(ProMdlModificationVerify(drawing, &modified), PRO_TK_NO_ERROR);
    return modified == PRO_B_TRUE;
  }

  ProDrawing drawing = nullptr;
};

TEST_F(SimDrawingTable, CharacterSizesScaleByTheCharacterCellAndScreenSizesStand) {
  for (ProDwgtableSizetype type : {PRODWGTABLESIZE_CHARACTERS, PRODWGTABLESIZE_CHARS_TRUE}) {
    ProDwgtable table = Create(type, {10, 4}, {1, 2});
    EXPECT_EQ(ColumnSizes(table), (std::vector<double>{28, 11.2})) << type;
    EXPECT_EQ(RowSizes(table), (std::vector<double>{3.5, 7})) << type;
  }
  ProDwgtable screen = Create(PRODWGTABLESIZE_SCREEN, {50, 20, 5}, {8});
  EXPECT_EQ(ColumnSizes(screen), (std::vector<double>{50, 20, 5}));
  EXPECT_EQ(RowSizes(screen), (std::vector<double>{8}));
  // Added rows are in characters whatever the table was made with.
  ASSERT_EQ(ProDwgtableRowAdd(&screen, 1, 1, 2), PRO_TK_NO_ERROR);
  EXPECT_EQ(RowSizes(screen), (std::vector<double>{8, 7}));
  EXPECT_TRUE(Modified());
}

TEST_F(SimDrawingTable, InfoOutlineHangsBelowTheOriginAndGrowsWithRows) {
  ProDwgtable table = Create(PRODWGTABLESIZE_CHARACTERS, {10, 5}, {1}, {100, 200, 0});
  ASSERT_EQ(ProDwgtableRowAdd(&table, 1, 1, 2), PRO_TK_NO_ERROR);
  ASSERT_EQ(ProDwgtableRowAdd(&table, 0, 1, 1), PRO_TK_NO_ERROR);
  ProDwgtableInfo info{};
  ASSERT_EQ(ProDwgtableInfoGet(&table, 0, &info), PRO_TK_NO_ERROR);
  EXPECT_EQ(info.nrows, 3);
  EXPECT_EQ(info.ncols, 2);
  EXPECT_EQ(std::to_array(info.seg_origin), (Point{100, 200, 0}));
  EXPECT_EQ(std::to_array(info.outline[0]), (Point{100, 200 - 14, 0}));
  EXPECT_EQ(std::to_array(info.outline[1]), (Point{100 + 42, 200, 0}));
  EXPECT_EQ(info.seg_char_height, 3.5);
  EXPECT_EQ(info.table_char_height, 3.5);
  EXPECT_EQ(info.char_width, 2.8);
  EXPECT_EQ(info.rotation, 0);
}

TEST_F(SimDrawingTable, RowAddInsertsAfterTheGivenRowAndMovesTheCellsBelow) {
  ProDwgtable table = Create(PRODWGTABLESIZE_CHARACTERS, {10}, {1, 1, 1});
  std::vector<int> notes;
  for (int row = 1; row <= 3; ++row) {
    ASSERT_EQ(ProDwgtableTextEnter(&table, 1, row, Lines({L"r" + std::to_wstring(row)}).get()),
              PRO_TK_NO_ERROR);
    notes.push_back(NoteId(table, 1, row));
  }
  ASSERT_EQ(ProDwgtableRowAdd(&table, 0, 1, 2), PRO_TK_NO_ERROR);  // on top
  ASSERT_EQ(ProDwgtableRowAdd(&table, 2, 1, 3), PRO_TK_NO_ERROR);  // behind the first text row
  ASSERT_EQ(ProDwgtableRowAdd(&table, 5, 1, 4), PRO_TK_NO_ERROR);  // at the end
  EXPECT_EQ(RowSizes(table), (std::vector<double>{7, 3.5, 10.5, 3.5, 3.5, 14}));
  std::vector<int> column;
  for (int row = 1; row <= 6; ++row) column.push_back(NoteId(table, 1, row));
  EXPECT_EQ(column, (std::vector<int>{0, notes[0], 0, notes[1], notes[2], 0}));

  EXPECT_EQ(ProDwgtableRowAdd(&table, 7, 1, 1), PRO_TK_BAD_INPUTS);
  EXPECT_EQ(ProDwgtableRowAdd(&table, -1, 1, 1), PRO_TK_BAD_INPUTS);
  EXPECT_EQ(ProDwgtableRowAdd(&table, 1, 1, 0), PRO_TK_BAD_INPUTS);
}

TEST_F(SimDrawingTable, TextEntryReplacesTheCellsNoteAndNoLinesEmptyIt) {
  ProDwgtable table = Create(PRODWGTABLESIZE_CHARACTERS, {10, 10}, {1});
  EXPECT_EQ(NoteId(table, 2, 1), 0);
  ASSERT_EQ(ProDwgtableTextEnter(&table, 2, 1, Lines({L"M8", L"GB5782"}).get()), PRO_TK_NO_ERROR);
  ProDtlnote first = Note(table, 2, 1);
  EXPECT_EQ(first.type, PRO_NOTE);
  EXPECT_EQ(first.owner, drawing);
  EXPECT_NE(first.id, table.id);
  EXPECT_EQ(Sizes(first), (TextSizes{{{3.5, 0.8}}, {{3.5, 0.8}}}));

  ASSERT_EQ(ProDwgtableTextEnter(&table, 2, 1, Lines({L"M10"}).get()), PRO_TK_NO_ERROR);
  ProDtlnote second = Note(table, 2, 1);
  EXPECT_NE(second.id, first.id);
  EXPECT_EQ(Sizes(second).size(), 1u);
  ProDtlnotedata data = nullptr;
  EXPECT_EQ(ProDtlnoteDataGet(&first, nullptr, PRODISPMODE_NUMERIC, &data), PRO_TK_NOT_EXIST);

  ASSERT_EQ(ProDwgtableTextEnter(&table, 2, 1, Lines(std::vector<std::wstring>{}).get()), PRO_TK_NO_ERROR);
  ProDtlnote none{};
  EXPECT_EQ(ProDwgtableCellNoteGet(&table, 2, 1, &none), PRO_TK_EMPTY);
  // An id handed out once is not given again, so an old handle never names a new note.
  ASSERT_EQ(ProDwgtableTextEnter(&table, 2, 1, Lines({L"M12"}).get()), PRO_TK_NO_ERROR);
  EXPECT_GT(NoteId(table, 2, 1), second.id);
}

TEST_F(SimDrawingTable, WidthSetReachesTheDrawingOnlyThroughTextsLinesAndModify) {
  ProDwgtable table = Create(PRODWGTABLESIZE_CHARACTERS, {10}, {2});
  ASSERT_EQ(ProDwgtableTextEnter(&table, 1, 1, Lines({L"深沟球轴承", L"6206"}).get()), PRO_TK_NO_ERROR);
  ProDtlnote note = Note(table, 1, 1);
  ProDtlnotedata data = nullptr;
  ASSERT_EQ(ProDtlnoteDataGet(&note, nullptr, PRODISPMODE_NUMERIC, &data), PRO_TK_NO_ERROR);
  ProDtlnoteline* lines = nullptr;
  ASSERT_EQ(ProDtlnotedataLinesCollect(data, &lines), PRO_TK_NO_ERROR);
  const TextSizes unchanged{{{3.5, 0.8}}, {{3.5, 0.8}}};
  for (ProDtlnoteline line : {lines[0], lines[1]}) {
    ProDtlnotetext* texts = nullptr;
    ASSERT_EQ(ProDtlnotelineTextsCollect(line, &texts), PRO_TK_NO_ERROR);
    ProDtlnotetext text = texts[0];
    ASSERT_EQ(ProDtlnotetextWidthSet(text, 0.5), PRO_TK_NO_ERROR);
    EXPECT_EQ(Sizes(note), unchanged);
    ASSERT_EQ(ProDtlnotelineTextsSet(line, texts), PRO_TK_NO_ERROR);
    double width = 0;
    EXPECT_EQ(ProDtlnotetextWidthGet(text, &width), PRO_TK_BAD_INPUTS) << "replaced by a copy";
    ASSERT_EQ(ProArrayFree(reinterpret_cast<ProArray*>(&texts)), PRO_TK_NO_ERROR);
  }
  ASSERT_EQ(ProDtlnoteldataLinesSet(data, lines), PRO_TK_NO_ERROR);
  ASSERT_EQ(ProArrayFree(reinterpret_cast<ProArray*>(&lines)), PRO_TK_NO_ERROR);
  EXPECT_EQ(Sizes(note), unchanged);

  // Saved, so that the change Modify makes shows.
  ASSERT_EQ(ProMdlSave(drawing), PRO_TK_NO_ERROR);
  EXPECT_FALSE(Modified());
  ASSERT_EQ(ProDtlnoteModify(&note, nullptr, data), PRO_TK_NO_ERROR);
  EXPECT_EQ(Sizes(note), (TextSizes{{{3.5, 0.5}}, {{3.5, 0.5}}}));
  EXPECT_TRUE(Modified());
  EXPECT_EQ(ProDtlnotedataFree(data), PRO_TK_NO_ERROR);
}

TEST_F(SimDrawingTable, TableSurvivesSaveAndReloadWithItsTextsReadable) {
  ProDwgtable table = Create(PRODWGTABLESIZE_CHARACTERS, {10, 5}, {1}, {20, 300, 0});
  // The caller's buffer may hold anything behind the terminator.
  std::wstring buffer(L"齿轮轴\0garbage", 13);
  ASSERT_EQ(ProDwgtableTextEnter(&table, 1, 1, Lines({buffer, L"m=3"}).get()), PRO_TK_NO_ERROR);
  ASSERT_EQ(ProDwgtableRowAdd(&table, 1, 1, 1), PRO_TK_NO_ERROR);
  ASSERT_EQ(ProDwgtableTextEnter(&table, 2, 2, Lines({L"2"}).get()), PRO_TK_NO_ERROR);
  ASSERT_EQ(ProMdlSave(drawing), PRO_TK_NO_ERROR);

  EXPECT_NE(dir.Read("work/plan.drw.1").find("齿轮轴"), std::string::npos) << "readable as UTF-8";
  std::optional<sim::ModelDef> saved = sim::ReadModelFile(dir.path() / "work/plan.drw.1");
  ASSERT_TRUE(saved);
  ASSERT_EQ(saved->tables.size(), 1u);
  const sim::TableDef& def = saved->tables[0];
  EXPECT_EQ(def.id, table.id);
  EXPECT_EQ(def.origin, (Point{20, 300, 0}));
  EXPECT_EQ(def.rows, (std::vector<double>{3.5, 3.5}));
  ASSERT_EQ(def.cells.size(), 2u);
  EXPECT_EQ(def.cells[0].lines,
            (std::vector<sim::NoteLineDef>{{{L"齿轮轴", 3.5, 0.8}}, {{L"m=3", 3.5, 0.8}}}));
  EXPECT_EQ(std::pair(def.cells[1].row, def.cells[1].column), std::pair(2, 2));

  sim::StartHost({dir.path() / "work"});
  ProDwgtable loaded{PRO_DRAW_TABLE, table.id, Load(L"plan.drw")};
  EXPECT_EQ(ColumnSizes(loaded), (std::vector<double>{28, 14}));
  EXPECT_EQ(Sizes(Note(loaded, 1, 1)).size(), 2u);
  EXPECT_EQ(NoteId(loaded, 2, 2), def.cells[1].noteId);
  EXPECT_EQ(NoteId(loaded, 1, 2), 0);
}

TEST_F(SimDrawingTable, SegMoveSetsTheOriginOfTheOneSegment) {
  ProDwgtable table = Create(PRODWGTABLESIZE_SCREEN, {30}, {10});
  ProVector to{5, 60, 0};
  ASSERT_EQ(ProDwgtableSegMove(&table, -1, to, PRO_B_TRUE), PRO_TK_NO_ERROR);
  ProDwgtableInfo info{};
  ASSERT_EQ(ProDwgtableInfoGet(&table, -1, &info), PRO_TK_NO_ERROR);
  EXPECT_EQ(std::to_array(info.seg_origin), (Point{5, 60, 0}));
  EXPECT_EQ(std::to_array(info.outline[0]), (Point{5, 50, 0}));

  double size = 0;
  int sheet = 0;
  EXPECT_EQ(ProDwgtableSegMove(&table, 1, to, PRO_B_TRUE), PRO_TK_BAD_INPUTS);
  EXPECT_EQ(ProDwgtableInfoGet(&table, 1, &info), PRO_TK_BAD_INPUTS);
  EXPECT_EQ(ProDwgtableRowSizeGet(&table, -2, 0, &size), PRO_TK_BAD_INPUTS);
  EXPECT_EQ(ProDwgtableSegSheetGet(&table, 2, &sheet), PRO_TK_BAD_INPUTS);
  EXPECT_EQ(ProDwgtableRowSizeGet(&table, 0, 1, &size), PRO_TK_BAD_INPUTS) << "sizes count from 0";
  EXPECT_EQ(ProDwgtableColumnSizeGet(&table, 0, 1, &size), PRO_TK_BAD_INPUTS);
}

TEST_F(SimDrawingTable, SheetsComeFromTheFileAndTablesGoOnTheCurrentOne) {
  dir.Write("work/two.drw.1", ModelJson("drawing", R"("sheets": [{"size": "A2"},
      {"size": "A1", "transform": [[1,0,0,0],[0,1,0,0],[0,0,1,0],[1000,0,0,1]]}], "currentSheet": 2)"));
  auto two = static_cast<ProDrawing>(Load(L"two.drw"));
  int current = 0;
  ASSERT_EQ(ProDrawingCurrentSheetGet(two, &current), PRO_TK_NO_ERROR);
  EXPECT_EQ(current, 2);
  ProName size{};
  ProMatrix matrix{};
  ASSERT_EQ(ProDrawingSheetTrfGet(two, 2, size, matrix), PRO_TK_NO_ERROR);
  EXPECT_STREQ(size, L"A1");
  ProVector corner{10, 20, 0}, onDrawing{};
  ASSERT_EQ(ProPntTrfEval(corner, matrix, onDrawing), PRO_TK_NO_ERROR);
  EXPECT_EQ(std::to_array(onDrawing), (Point{1010, 20, 0}));
  EXPECT_EQ(ProDrawingSheetTrfGet(two, 3, size, matrix), PRO_TK_BAD_INPUTS);
  EXPECT_EQ(ProDrawingSheetTrfGet(two, 0, size, matrix), PRO_TK_BAD_INPUTS);

  drawing = two;
  ProDwgtable table = Create(PRODWGTABLESIZE_SCREEN, {10}, {10});
  int sheet = 0;
  ASSERT_EQ(ProDwgtableSegSheetGet(&table, -1, &sheet), PRO_TK_NO_ERROR);
  EXPECT_EQ(sheet, 2);

  // A drawing that names no sheet has one A3 sheet on its own coordinates.
  ASSERT_EQ(ProDrawingSheetTrfGet(static_cast<ProDrawing>(sim::AddModel(L"bare.drw", DrawingDef())), 1, size,
                                  matrix),
            PRO_TK_NO_ERROR);
  EXPECT_STREQ(size, L"A3");
  EXPECT_EQ(matrix[3][0], 0);
  EXPECT_EQ(matrix[1][1], 1);

  dir.Write("work/bad.drw.1", ModelJson("drawing", R"("currentSheet": 2)"));
  Load(L"bad.drw", PRO_TK_INVALID_FILE);
}

TEST_F(SimDrawingTable, CreationDataIsCheckedAndFreedDataIsUnknown) {
  ProDwgtabledata data = nullptr;
  ASSERT_EQ(ProDwgtabledataAlloc(&data), PRO_TK_NO_ERROR);
  std::vector<double> widths(51, 1.0);
  EXPECT_EQ(ProDwgtabledataColumnsSet(data, 51, widths.data(), nullptr), PRO_TK_BAD_INPUTS);
  std::vector<double> heights(101, 1.0);
  EXPECT_EQ(ProDwgtabledataRowsSet(data, 101, heights.data()), PRO_TK_BAD_INPUTS);
  widths[1] = 0;
  EXPECT_EQ(ProDwgtabledataColumnsSet(data, 2, widths.data(), nullptr), PRO_TK_BAD_INPUTS);
  ProHorzJust justifications[] = {PROHORZJUST_RIGHT, static_cast<ProHorzJust>(3)};
  EXPECT_EQ(ProDwgtabledataColumnsSet(data, 1, widths.data(), justifications), PRO_TK_NO_ERROR);
  EXPECT_EQ(ProDwgtabledataColumnsSet(data, 2, heights.data(), justifications), PRO_TK_BAD_INPUTS);
  ProDwgtable table{};
  EXPECT_EQ(ProDrawingTableCreate(drawing, data, 1, &table), PRO_TK_BAD_INPUTS) << "no rows yet";
  ASSERT_EQ(ProDwgtabledataRowsSet(data, 1, heights.data()), PRO_TK_NO_ERROR);
  ProMdl part = sim::AddModel(L"p.prt", {});
  EXPECT_EQ(ProDrawingTableCreate(static_cast<ProDrawing>(part), data, 1, &table), PRO_TK_BAD_INPUTS);
  ASSERT_EQ(ProDrawingTableCreate(drawing, data, 1, &table), PRO_TK_NO_ERROR);

  ASSERT_EQ(ProDwgtabledataFree(data), PRO_TK_NO_ERROR);
  EXPECT_EQ(ProDwgtabledataFree(data), PRO_TK_BAD_INPUTS);
  EXPECT_EQ(ProDwgtabledataRowsSet(data, 1, heights.data()), PRO_TK_BAD_INPUTS);
  EXPECT_EQ(ProDrawingTableCreate(drawing, data, 1, &table), PRO_TK_BAD_INPUTS);
  int local = 0;
  EXPECT_EQ(ProDwgtabledataFree(reinterpret_cast<ProDwgtabledata>(&local)), PRO_TK_BAD_INPUTS);
}

TEST_F(SimDrawingTable, HandlesOfGoneTablesNotesAndFreedNoteDataAreRefused) {
  ProDwgtable table = Create(PRODWGTABLESIZE_CHARACTERS, {10}, {1});
  ASSERT_EQ(ProDwgtableTextEnter(&table, 1, 1, Lines({L"x"}).get()), PRO_TK_NO_ERROR);
  int rows = 0;
  ProDwgtable gone{PRO_DRAW_TABLE, table.id + 100, drawing};
  EXPECT_EQ(ProDwgtableRowsCount(&gone, &rows), PRO_TK_NOT_EXIST);
  ProDwgtable wrongType{PRO_NOTE, table.id, drawing};
  EXPECT_EQ(ProDwgtableRowsCount(&wrongType, &rows), PRO_TK_BAD_INPUTS);
  int local = 0;
  ProDwgtable foreign{PRO_DRAW_TABLE, table.id, &local};
  EXPECT_EQ(ProDwgtableRowsCount(&foreign, &rows), PRO_TK_BAD_INPUTS);
  EXPECT_EQ(ProDwgtableRowsCount(nullptr, &rows), PRO_TK_BAD_INPUTS);
  ProDtlnote note{};
  EXPECT_EQ(ProDwgtableCellNoteGet(&table, 2, 1, &note), PRO_TK_BAD_INPUTS);
  EXPECT_EQ(ProDwgtableCellNoteGet(&table, 1, 0, &note), PRO_TK_BAD_INPUTS);
  wchar_t* loose[] = {nullptr};
  EXPECT_EQ(ProDwgtableTextEnter(&table, 1, 1, loose), PRO_TK_BAD_INPUTS) << "not a toolkit array";

  note = Note(table, 1, 1);
  ProDtlnotedata data = nullptr;
  ASSERT_EQ(ProDtlnoteDataGet(&note, nullptr, PRODISPMODE_NUMERIC, &data), PRO_TK_NO_ERROR);
  ProDtlnoteline* lines = nullptr;
  ASSERT_EQ(ProDtlnotedataLinesCollect(data, &lines), PRO_TK_NO_ERROR);
  ProDtlnoteline line = lines[0];
  ProArrayFree(reinterpret_cast<ProArray*>(&lines));
  ProDtlnotetext* texts = nullptr;
  ASSERT_EQ(ProDtlnotelineTextsCollect(line, &texts), PRO_TK_NO_ERROR);
  ProDtlnotetext text = texts[0];
  ProArrayFree(reinterpret_cast<ProArray*>(&texts));
  ASSERT_EQ(ProDtlnotedataFree(data), PRO_TK_NO_ERROR);

  double height = 0;
  EXPECT_EQ(ProDtlnotedataFree(data), PRO_TK_BAD_INPUTS);
  EXPECT_EQ(ProDtlnotedataLinesCollect(data, &lines), PRO_TK_BAD_INPUTS);
  EXPECT_EQ(ProDtlnotelineTextsCollect(line, &texts), PRO_TK_BAD_INPUTS);
  EXPECT_EQ(ProDtlnotetextHeightGet(text, &height), PRO_TK_BAD_INPUTS);
  EXPECT_EQ(ProDtlnoteModify(&note, nullptr, data), PRO_TK_BAD_INPUTS);
  EXPECT_EQ(ProDtlnotetextHeightGet(reinterpret_cast<ProDtlnotetext>(&local), &height), PRO_TK_BAD_INPUTS);

  // After a restart the old session's drawing is unknown.
  sim::StartHost({dir.path() / "work"});
  EXPECT_EQ(ProDwgtableRowsCount(&table, &rows), PRO_TK_BAD_INPUTS);
  EXPECT_EQ(ProDtlnoteDataGet(&note, nullptr, PRODISPMODE_NUMERIC, &data), PRO_TK_BAD_INPUTS);
}

class SimMousePick : public SimTest {
 protected:
  ~SimMousePick() override { sim::SetAnswerProvider(nullptr); }

  ProError Pick(ProMouseButton expected, ProMouseButton& pressed, Point& point) {
    ProPoint3d position{};
    ProError status = ProMousePickGet(expected, &pressed, position);
    point = std::to_array(position);
    return status;
  }
};

TEST_F(SimMousePick, ScriptedOrProvidedPointsAreClickedAndAnythingElseAborts) {
  ProMouseButton pressed = PRO_NO_BUTTON;
  Point point{};
  sim::PushAnswer("ProMousePickGet", L"10.5,-20");
  ASSERT_EQ(Pick(PRO_ANY_BUTTON, pressed, point), PRO_TK_NO_ERROR);
  EXPECT_EQ(point, (Point{10.5, -20, 0}));
  EXPECT_EQ(pressed, PRO_LEFT_BUTTON);
  sim::PushAnswer("ProMousePickGet", L"1, 2, 3");
  ASSERT_EQ(Pick(PRO_RIGHT_BUTTON, pressed, point), PRO_TK_NO_ERROR);
  EXPECT_EQ(point, (Point{1, 2, 3}));
  EXPECT_EQ(pressed, PRO_RIGHT_BUTTON);

  for (const wchar_t* malformed : {L"1;2", L"1,2,3,4", L"1,", L"x,y", L"1,2mm"}) {
    sim::PushAnswer("ProMousePickGet", malformed);
    EXPECT_EQ(Pick(PRO_LEFT_BUTTON, pressed, point), PRO_TK_GENERAL_ERROR) << malformed;
  }
  {
    // A point is written with a decimal point wherever the host runs.
    CommaLocale comma;
    sim::PushAnswer("ProMousePickGet", L"10.5,-20.25");
    ASSERT_EQ(Pick(PRO_LEFT_BUTTON, pressed, point), PRO_TK_NO_ERROR);
    EXPECT_EQ(point, (Point{10.5, -20.25, 0}));
  }
  sim::PushAnswer("ProMousePickGet", std::nullopt);
  EXPECT_EQ(Pick(PRO_LEFT_BUTTON, pressed, point), PRO_TK_GENERAL_ERROR);
  EXPECT_EQ(Pick(PRO_LEFT_BUTTON, pressed, point), PRO_TK_GENERAL_ERROR) << "nobody there to pick";

  std::vector<std::string> asked;
  sim::SetAnswerProvider([&](const std::string& call, const std::wstring& label, const std::wstring& start) {
    asked.push_back(call);
    EXPECT_EQ(label + start, L"");
    return std::optional<std::wstring>(L"7,8");
  });
  ASSERT_EQ(Pick(PRO_LEFT_BUTTON, pressed, point), PRO_TK_NO_ERROR);
  EXPECT_EQ(point, (Point{7, 8, 0}));
  EXPECT_EQ(asked, (std::vector<std::string>{"ProMousePickGet"}));
}

}  // namespace
