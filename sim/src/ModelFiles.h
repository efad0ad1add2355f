// How the host writes a model in session to disk: the file of a save or a
// backup, and the JSON it holds. Call with the host held.
#pragma once

#include "Host.h"

#include <filesystem>
#include <string>

namespace sim {

// The model's file as the host would write it now: every key of the file it
// was loaded from, with the keys of its definition as they are in session.
// Calls that change a key beyond the definition change `document`.
std::string SavedDocument(const Model& model);

// The model's document with one top-level key set; the model counts as
// modified.
void SetDocumentKey(Model& model, const std::string& key, const std::string& jsonValue);
// The value of a top-level key of the model's document as JSON text; empty
// when the key is missing.
std::string DocumentKey(const Model& model, const std::string& key);

// "stem.ext.version" under the model's present name.
std::wstring VersionedFileName(const Model& model, int version);
// The highest version of the model's file in `dir`, 0 for none.
int HighestVersionIn(const std::filesystem::path& dir, const Model& model);

// Replaces the file whole or not at all; false when it cannot be written,
// and then no new file is left and an old one is as it was.
bool WriteModelFile(const std::filesystem::path& file, const std::string& text);

}  // namespace sim
