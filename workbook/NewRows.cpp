#include "NewRows.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>
#include <string_view>

namespace workbook::ooxml {
namespace {

// Room for a number's shortest text, from to_chars.
constexpr size_t kNumberRoom = 32;

char* PutNumber(char* at, double value) {
  // Whole numbers below 2^53 (but zero, which may be -0) read the same
  // either way; the integer conversion is the cheaper one.
  constexpr double kExactIntegers = 9007199254740992.0;
  return value != 0 && std::trunc(value) == value && std::fabs(value) < kExactIntegers
             ? std::to_chars(at, at + kNumberRoom, static_cast<long long>(value)).ptr
             : std::to_chars(at, at + kNumberRoom, value).ptr;
}

// Writes into room made beforehand: a row's text is bounded by its cells.
class Cursor {
 public:
  explicit Cursor(char* at) : at_(at) {}
  char* at() const { return at_; }

  void Put(std::string_view text) { at_ = std::copy(text.begin(), text.end(), at_); }
  void Put(char c) { *at_++ = c; }
  void PutInteger(long long value) { at_ = std::to_chars(at_, at_ + 24, value).ptr; }
  void PutNumber(double value) { at_ = ooxml::PutNumber(at_, value); }
  void PutCellRef(int row, int column) {
    char letters[8];
    char* first = std::end(letters);
    for (int c = column; c > 0; c = (c - 1) / 26) *--first = static_cast<char>('A' + (c - 1) % 26);
    at_ = std::copy(first, std::end(letters), at_);
    PutInteger(row);
  }

 private:
  char* at_;
};

// The most a row's start and end tags and each of its cells take, less the
// element names' prefixes; the last number is given to_chars' full room.
constexpr size_t kRowTagsRoom = 40 + kNumberRoom;
constexpr size_t kCellRoom = 64 + kNumberRoom;

void PutCell(Cursor& out, std::string_view prefix, int row, const NewRows::Cell& cell) {
  out.Put('<');
  out.Put(prefix);
  out.Put("c r=\"");
  out.PutCellRef(row, cell.column);
  out.Put('"');
  if (cell.style) {
    out.Put(" s=\"");
    out.PutInteger(*cell.style);
    out.Put('"');
  }
  const CellValue& value = cell.value;
  if (value.type == CellValue::Type::Empty) {
    out.Put("/>");
    return;
  }
  out.Put(value.type == CellValue::Type::SharedString ? " t=\"s\"><" : "><");
  out.Put(prefix);
  out.Put("v>");
  if (value.type == CellValue::Type::SharedString) {
    out.PutInteger(value.sharedString);
  } else {
    out.PutNumber(value.number);
  }
  out.Put("</");
  out.Put(prefix);
  out.Put("v></");
  out.Put(prefix);
  out.Put("c>");
}

}  // namespace

std::string NumberText(double value) {
  char buffer[kNumberRoom];
  return std::string(buffer, PutNumber(buffer, value));
}

const NewRows::Cell* NewRows::Find(int row, int column) const {
  const RowMap::value_type* entry = last_;
  if (!entry || entry->first != row) {
    auto found = rows_.find(row);
    if (found == rows_.end()) return nullptr;
    entry = &*found;
  }
  const Cells& cells = entry->second;
  auto cell = std::lower_bound(cells.begin(), cells.end(), column,
                               [](const Cell& cell, int wanted) { return cell.column < wanted; });
  return cell == cells.end() || cell->column != column ? nullptr : &*cell;
}

NewRows::Cell& NewRows::Make(int row, int column, std::optional<int> style) {
  if (!last_ || last_->first != row) {
    size_t previousSize = last_ ? last_->second.size() : 0;
    last_ = &*rows_.try_emplace(row).first;
    // The rows of a table mostly have as many cells as the one before.
    last_->second.reserve(previousSize);
  }
  Cells& cells = last_->second;
  if (cells.empty() || cells.back().column < column) return cells.emplace_back(Cell{column, style, {}});
  auto at = std::lower_bound(cells.begin(), cells.end(), column,
                             [](const Cell& cell, int wanted) { return cell.column < wanted; });
  if (at != cells.end() && at->column == column) return *at;
  return *cells.insert(at, Cell{column, style, {}});
}

void NewRows::Write(Bytes& out, const std::string& prefix, int after, int before) const {
  for (auto row = rows_.upper_bound(after); row != rows_.end() && row->first < before; ++row) {
    size_t start = out.size();
    out.resize(start + kRowTagsRoom + 2 * prefix.size() +
               row->second.size() * (kCellRoom + 4 * prefix.size()));
    Cursor text(reinterpret_cast<char*>(out.data() + start));
    text.Put('<');
    text.Put(prefix);
    text.Put("row r=\"");
    text.PutInteger(row->first);
    text.Put("\">");
    for (const Cell& cell : row->second) PutCell(text, prefix, row->first, cell);
    text.Put("</");
    text.Put(prefix);
    text.Put("row>");
    out.resize(text.at() - reinterpret_cast<char*>(out.data()));
  }
}

}  // namespace workbook::ooxml
