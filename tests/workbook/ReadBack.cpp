#include "ReadBack.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <array>
#include <cstdio>
#include <fstream>
#include <sstream>

namespace fs = std::filesystem;

namespace {

// Runs a command line, returning its exit status and what it printed.
std::pair<int, std::string> Run(const std::string& command) {
  std::string output;
  FILE* pipe = popen((command + " 2>&1").c_str(), "r");
  if (!pipe) return {-1, "cannot run " + command};
  std::array<char, 4096> buffer;
  while (size_t count = fread(buffer.data(), 1, buffer.size(), pipe)) output.append(buffer.data(), count);
  int status = pclose(pipe);
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, output};
}

std::string Quote(const fs::path& path) {
  std::string quoted = "'";
  for (char c : path.string()) quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return quoted + "'";
}

std::vector<std::vector<std::string>> ParseCsv(const std::string& text) {
  std::vector<std::vector<std::string>> rows(1);
  std::string field;
  bool quoted = false;
  bool fieldStarted = false;
  auto endField = [&] {
    rows.back().push_back(field);
    field.clear();
    fieldStarted = false;
  };
  for (size_t i = 0; i < text.size(); ++i) {
    char c = text[i];
    if (quoted && c == '"' && i + 1 < text.size() && text[i + 1] == '"') {
      field += text[i++];
    } else if (c == '"') {
      quoted = !quoted;
      fieldStarted = true;
    } else if (quoted || (c != ',' && c != '\n' && c != '\r')) {
      field += c;
      fieldStarted = true;
    } else if (c != '\r') {
      endField();
      if (c == '\n') rows.emplace_back();
    }
  }
  if (fieldStarted || !field.empty()) endField();
  if (rows.back().empty()) rows.pop_back();
  return rows;
}

}  // namespace

ExpectedCell TextCell(const std::string& sheet, int row, int column, const std::string& text) {
  return {sheet, row, column, ExpectedCell::Kind::Text, text, 0};
}

ExpectedCell NumberCell(const std::string& sheet, int row, int column, double number,
                        const std::string& shown) {
  return {sheet, row, column, ExpectedCell::Kind::Number, shown, number};
}

ExpectedCell EmptyCell(const std::string& sheet, int row, int column) {
  return {sheet, row, column, ExpectedCell::Kind::Empty, "", 0};
}

std::string PythonReaderProblems(const WrittenFile& written, const fs::path& workDir) {
  nlohmann::json expectations;
  expectations["format"] = written.file.extension() == ".xlsx" ? "xlsx" : "xls";
  expectations["file"] = written.file.string();
  if (!written.templateFile.empty()) expectations["template"] = written.templateFile.string();
  expectations["cells"] = nlohmann::json::array();
  for (const ExpectedCell& cell : written.cells) {
    nlohmann::json entry = {{"sheet", cell.sheet}, {"row", cell.row}, {"column", cell.column}};
    entry["kind"] = std::array{"text", "number", "empty"}[static_cast<int>(cell.kind)];
    entry["value"] = cell.kind == ExpectedCell::Kind::Text     ? nlohmann::json(cell.text)
                     : cell.kind == ExpectedCell::Kind::Number ? nlohmann::json(cell.number)
                                                               : nlohmann::json(nullptr);
    if (cell.formatOfTemplateRow) entry["format_of_row"] = cell.formatOfTemplateRow;
    expectations["cells"].push_back(entry);
  }
  fs::path json = workDir / (written.file.filename().string() + ".expected.json");
  std::ofstream(json) << expectations.dump();
  auto [status, output] =
      Run(std::string(BOM_DEBIAN_PYTHON) + " " + Quote(BOM_READ_BACK_SCRIPT) + " " + Quote(json));
  return status == 0 ? "" : written.file.filename().string() + ":\n" + output;
}

CsvSheets ConvertWithLibreOffice(const std::vector<fs::path>& files, const fs::path& workDir) {
  fs::path out = workDir / "libreoffice-csv";
  fs::path profile = workDir / "libreoffice-profile";
  // Every sheet (-1 at the end), UTF-8 (76), values not as shown.
  std::string command =
      "soffice --headless -env:UserInstallation=file://" + profile.string() +
      " --convert-to 'csv:Text - txt - csv (StarCalc):44,34,76,1,,0,false,true,false,false,false,-1'"
      " --outdir " +
      Quote(out);
  for (const fs::path& file : files) command += " " + Quote(file);
  auto [status, output] = Run(command);
  EXPECT_EQ(status, 0) << output;

  CsvSheets sheets;
  for (const fs::path& file : files) {
    std::string stem = file.stem().string();
    bool found = false;
    std::error_code missing;
    for (const auto& entry : fs::directory_iterator(out, missing)) {
      std::string name = entry.path().stem().string();
      if (name.rfind(stem + "-", 0) != 0 || entry.path().extension() != ".csv") continue;
      std::ifstream in(entry.path(), std::ios::binary);
      std::stringstream text;
      text << in.rdbuf();
      sheets[{stem, name.substr(stem.size() + 1)}] = ParseCsv(text.str());
      found = true;
    }
    EXPECT_TRUE(found) << "LibreOffice wrote no CSV for " << file << ":\n" << output;
  }
  return sheets;
}

std::string LibreOfficeProblems(const WrittenFile& written, const CsvSheets& sheets) {
  std::string problems;
  std::string stem = written.file.stem().string();
  for (const ExpectedCell& cell : written.cells) {
    auto sheet = sheets.find({stem, cell.sheet});
    std::string read;
    if (sheet == sheets.end()) {
      problems += stem + ": no sheet " + cell.sheet + "\n";
      continue;
    }
    const auto& rows = sheet->second;
    if (cell.row - 1 < static_cast<int>(rows.size()) &&
        cell.column - 1 < static_cast<int>(rows[cell.row - 1].size())) {
      read = rows[cell.row - 1][cell.column - 1];
    }
    if (read != cell.text) {
      problems += stem + " " + cell.sheet + " (" + std::to_string(cell.row) + ", " +
                  std::to_string(cell.column) + "): LibreOffice reads \"" + read + "\", expected \"" +
                  cell.text + "\"\n";
    }
  }
  return problems;
}

void ExpectIndependentReadersAgree(const std::vector<WrittenFile>& files, const fs::path& workDir) {
  std::vector<fs::path> paths;
  for (const WrittenFile& written : files) {
    EXPECT_EQ(PythonReaderProblems(written, workDir), "");
    paths.push_back(written.file);
  }
  CsvSheets sheets = ConvertWithLibreOffice(paths, workDir);
  for (const WrittenFile& written : files) EXPECT_EQ(LibreOfficeProblems(written, sheets), "");
}
