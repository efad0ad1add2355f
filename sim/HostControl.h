// The control API of the simulated host: what a test or the workbench does
// that a user or the host's own start-up would do in the real system.
// Every function is safe to call from any thread.
#pragma once

#include "ModelDef.h"
#include "ProUICmd.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

namespace sim {

struct HostOptions {
  std::filesystem::path workingDir;  // the host's current directory, and where the trail goes
};

// Forgets the whole session (models, windows, menus, commands, messages,
// macros, call log, failures, configuration options, registered application,
// scripted answers) and starts the next trail file in the working directory.
// Handles of the last session stay detectable as unknown.
void StartHost(const HostOptions& options);

// Reads dir/session.json: its search path and configuration options, then
// the models it opens; "current" becomes the model of the base window.
// Models that fail to load are skipped; the first failure is answered, and
// `error` names the file and the key at fault and what is wrong. A model
// that contains itself through its components fails to load. Components and
// solids that cannot be found or read are left out (see UnloadedModels).
ProError LoadSession(const std::filesystem::path& dir, std::string& error);
ProError LoadSession(const std::filesystem::path& dir);

// The application's text directory and language, from which the host finds
// message files, menu files and icons.
void RegisterApplication(const std::wstring& textDir, int language);

// Puts a model into session without a file (its origin is empty). Names are
// taken as given, so two models may differ only in case. Components and
// solids are resolved like those of a loaded file. Null when the model
// would contain itself through its components.
ProMdl AddModel(const std::wstring& fileName, const ModelDef& def);

// As ProMdlFiletypeLoad with the type taken from the name; null on failure.
ProMdl OpenModel(const std::wstring& fileName);

// Shows the model in the base window and makes that window current; null
// empties it, so that there is no current model. False for an unknown model.
bool SetCurrentModel(ProMdl model);

// Writes the model's file as a save would, but into `dir` and without
// touching the model: its origin, version and modification stay. The file's
// version is one above the highest of the model's files in `dir`. Nullopt for
// an unknown model or a file that cannot be written.
std::optional<std::filesystem::path> WriteModelCopy(ProMdl model, const std::filesystem::path& dir);

// The model as a save would write it now, on one line of JSON: what the
// session changed before anything was saved. Nullopt for an unknown model.
std::optional<std::string> ModelState(ProMdl model);

// Control comes back to the host after an action: a requested window
// activation takes effect.
void ReturnToHost();

// The command's access callback asked in MODE_BLIND (ACCESS_AVAILABLE when it
// has none); nullopt for an unknown action name.
std::optional<uiCmdAccessState> Access(const std::string& actionName);

// Runs the command's action callback, then ReturnToHost(). False for an
// unknown action name or a command without action.
bool RunAction(const std::string& actionName);

// Scripted answers for the host's choosers, one queue per call name;
// nullopt is the user cancelling. TakeAnswer on an empty queue also gives
// nullopt: nobody there to choose. The answers are texts: a path for
// "ProDirectoryChoose" and "ProFileMdlfiletypeOpen"; for "ProMousePickGet" the
// point clicked, "x,y" or "x,y,z" (z 0 when left out), where a cancel or a
// text of another form is the user aborting the pick.
void PushAnswer(const std::string& callName, std::optional<std::wstring> answer);
std::optional<std::wstring> TakeAnswer(const std::string& callName);

// Answers a chooser when nothing is queued for it, as a user would: the
// windowed workbench shows a dialog of its own. Called on the thread of the
// toolkit call with the host unlocked; nullopt is the user cancelling. Null
// removes it, and then an empty queue is a cancel again. The mouse pick asks
// with an empty label and default.
using AnswerProvider = std::function<std::optional<std::wstring>(
    const std::string& callName, const std::wstring& label, const std::wstring& defaultPath)>;
void SetAnswerProvider(AnswerProvider provider);

}  // namespace sim
