// Reads back what the tests wrote with readers that share no code with the
// engine: Debian's python3-xlrd (.xls) or python3-openpyxl (.xlsx) through
// read_back.py, and LibreOffice converting every sheet to CSV.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

struct ExpectedCell {
  enum class Kind { Text, Number, Empty };
  std::string sheet;  // UTF-8
  int row = 0;
  int column = 0;
  Kind kind = Kind::Text;
  std::string text;  // the text, or the number as LibreOffice prints it
  double number = 0;
  // Nonzero: the cell's format index is that of the template's cell in this
  // row and the same column.
  int formatOfTemplateRow = 0;
};

struct WrittenFile {
  std::filesystem::path file;
  std::filesystem::path templateFile;  // empty: no comparison with a template
  std::vector<ExpectedCell> cells;
};

ExpectedCell TextCell(const std::string& sheet, int row, int column, const std::string& text);
ExpectedCell NumberCell(const std::string& sheet, int row, int column, double number,
                        const std::string& shown);
ExpectedCell EmptyCell(const std::string& sheet, int row, int column);

// The problems read_back.py found in one file (written cells' values and
// format indices, every other template cell unchanged); empty when none.
std::string PythonReaderProblems(const WrittenFile& written, const std::filesystem::path& workDir);

// Every sheet of every file as CSV rows, converted by one LibreOffice run with
// a profile of its own under `workDir`. Keyed by file stem and sheet name.
using CsvSheets = std::map<std::pair<std::string, std::string>, std::vector<std::vector<std::string>>>;
CsvSheets ConvertWithLibreOffice(const std::vector<std::filesystem::path>& files,
                                 const std::filesystem::path& workDir);
// The problems LibreOffice's reading shows for the written cells.
std::string LibreOfficeProblems(const WrittenFile& written, const CsvSheets& sheets);

// Both readers over every file, LibreOffice once for all; a gtest failure
// for each problem.
void ExpectIndependentReadersAgree(const std::vector<WrittenFile>& files,
                                   const std::filesystem::path& workDir);
