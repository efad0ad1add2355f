// The contents of a written file's container, read with libgsf apart from
// the engine, to compare with its template's.
#pragma once

#include <filesystem>
#include <map>
#include <string>

// Every stream of a compound file by its path ("Workbook",
// "_VBA_PROJECT_CUR/VBA/dir") and every storage's class id (its path + "/").
// Empty when the file cannot be read.
std::map<std::string, std::string> CompoundFileParts(const std::filesystem::path& xls);
// Every part of a zip package by its name ("xl/workbook.xml").
std::map<std::string, std::string> ZipParts(const std::filesystem::path& xlsx);
