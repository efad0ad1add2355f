// The store of common relations: one plain text file a name, name + ".txt",
// in the directory "Relation" beside the plug-in. The batch relation tool
// lists the names, loads a text into its editor and stores the editor's text.
// Texts are read with CTkFile::ReadFileText and written with
// CTkFile::AppendToFile, which replaces a file's contents.
#pragma once

#include <string>
#include <vector>

// GetAppDir + "\Relation\": GetAppDir ends in a separator of its own, so the
// path holds a doubled one.
std::wstring GetRelationDir();

// Each file of the directory by its name cut at the last ".", so any file
// shows, whatever its extension; sorted without regard to case. None when
// the directory is missing.
void ListRelationNames(std::vector<std::wstring>& names);

std::wstring RelationPath(const std::wstring& name);

enum class NewRelationName { kAccepted, kExists, kEmpty };

// A name typed for a new relation held against the listed ones. It is
// upper-cased for the comparison and stays so: with any name listed a new
// name goes on in upper case, with none it keeps the case it was given.
// A name equal to a listed one without regard to case exists; else an
// empty name is refused.
NewRelationName CheckNewRelationName(std::wstring& name, const std::vector<std::wstring>& names);
