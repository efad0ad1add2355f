#include "ScriptRunner.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QElapsedTimer>
#include <QTimer>

#include <algorithm>
#include <exception>
#include <filesystem>
#include <map>
#include <optional>

#include "CodePage.h"
#include "ControlFinder.h"
#include "HostControl.h"
#include "ListSteps.h"
#include "PlayAnswers.h"
#include "TextEntry.h"

namespace {

// What became of one attempt at a step.
struct Outcome {
  enum Kind { Done, Retry, Fail } kind = Done;
  std::wstring reason{};
};
Outcome Done() { return {}; }
Outcome Retry(std::wstring reason) { return {Outcome::Retry, std::move(reason)}; }
Outcome Fail(std::wstring reason) { return {Outcome::Fail, std::move(reason)}; }

std::string Narrow(const std::wstring& text) { return platform::ToNarrow(text); }

// Tells the answers of every modal dialog that shows.
class ModalWatch : public QObject {
 public:
  explicit ModalWatch(PlayAnswers& answers) : answers_(answers) {}

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    auto* dialog = qobject_cast<QDialog*>(watched);
    if (event->type() == QEvent::Show && dialog && dialog->isModal()) answers_.OnModalShown(dialog);
    return false;
  }

 private:
  PlayAnswers& answers_;
};

class Player {
 public:
  Player(const std::vector<ScriptStep>& steps, const PlayOptions& options, std::ostream& out,
         std::ostream& err)
      : steps_(steps), options_(options), out_(out), err_(err), answers_(out), watch_(answers_) {
    tick_.setSingleShot(true);
    QObject::connect(&tick_, &QTimer::timeout, [this] { RunNext(); });
  }

  int Play() {
    TrackShownWindows();
    qApp->installEventFilter(&watch_);
    // A script that closes its only window goes on with the next step.
    bool quitOnLastClosed = QApplication::quitOnLastWindowClosed();
    QApplication::setQuitOnLastWindowClosed(false);
    tick_.start(0);
    QApplication::exec();
    QApplication::setQuitOnLastWindowClosed(quitOnLastClosed);
    qApp->removeEventFilter(&watch_);
    return exitCode_;
  }

 private:
  using StepFunction = Outcome (Player::*)(const ScriptStep&);

  void RunNext() {
    if (finished_) return;
    if (std::optional<std::wstring> failure = answers_.TakeFailure()) return Finish(*failure);
    // A step's own menu, or a window that only shows progress, is not where
    // the next step acts: it waits until they are gone.
    if (QApplication::activePopupWidget() || ShowsProgressOnly(QApplication::activeModalWidget()))
      return tick_.start(kPollMs);
    if (next_ >= steps_.size()) return Finish(std::nullopt);
    size_t index = next_;
    const ScriptStep& step = steps_[index];
    if (index != attempted_) {
      attempted_ = index;
      clock_.start();
      out_ << step.line << "> " << Narrow(StepText(step)) << std::endl;
    }
    running_ = index;
    // The step may open a modal dialog and wait in its loop: the next step
    // then runs inside that loop.
    ++next_;
    tick_.start(0);
    Outcome outcome = Attempt(step);
    if (finished_) return;
    if (outcome.kind == Outcome::Retry && clock_.elapsed() < options_.waitMs) {
      next_ = index;
      tick_.start(kPollMs);
      return;
    }
    if (outcome.kind != Outcome::Done) return Finish(outcome.reason);
    if (std::optional<std::wstring> failure = answers_.TakeFailure()) Finish(*failure);
  }

  Outcome Attempt(const ScriptStep& step) {
    static const std::map<std::wstring, StepFunction> steps{
        {L"run", &Player::StepRun},       {L"current", &Player::StepCurrent},
        {L"click", &Player::StepClick},   {L"set", &Player::StepSet},
        {L"check", &Player::StepCheck},   {L"select", &Player::StepList},
        {L"dblclick", &Player::StepList}, {L"edit", &Player::StepList},
        {L"menu", &Player::StepList},     {L"dump", &Player::StepList},
        {L"tree", &Player::StepTree},     {L"answer", &Player::StepAnswer},
        {L"model", &Player::StepModel},   {L"files", &Player::StepFiles},
        {L"close", &Player::StepClose}};
    auto function = steps.find(step.fields[0]);
    if (function == steps.end()) return Fail(L"no step " + step.fields[0]);
    try {
      return (this->*function->second)(step);
    } catch (const std::exception& error) {
      return Fail(L"the plug-in broke off: " + platform::ToWide(error.what()));
    }
  }

  // Ends the play: the reason of a failure goes to the error stream with the
  // step that failed, every window is closed and every loop left.
  void Finish(const std::optional<std::wstring>& failure) {
    finished_ = true;
    tick_.stop();
    exitCode_ = failure ? 1 : 0;
    if (failure && running_ < steps_.size()) {
      const ScriptStep& step = steps_[running_];
      err_ << "bom-workbench: " << Narrow(options_.scriptName) << ":" << step.line << ": "
           << Narrow(StepText(step)) << ": " << Narrow(*failure) << std::endl;
    } else if (failure) {
      err_ << "bom-workbench: " << Narrow(options_.scriptName) << ": " << Narrow(*failure) << std::endl;
    }
    for (QWidget* window : PluginWindows(options_.hostWindow)) window->close();
    QApplication::exit(exitCode_);
  }

  bool HasFields(const ScriptStep& step, size_t least, size_t most) const {
    return step.fields.size() >= least && step.fields.size() <= most;
  }
  static Outcome Usage(const wchar_t* usage) { return Fail(std::wstring(L"usage: ") + usage); }

  // The top-most plug-in window, and the control in it.
  QWidget* TopWindow() const {
    std::vector<QWidget*> windows = PluginWindows(options_.hostWindow);
    return windows.empty() ? nullptr : windows[0];
  }
  Outcome Find(const std::wstring& name, const std::vector<ControlKind>& kinds, QWidget*& control) const {
    QWidget* window = TopWindow();
    if (!window) return Retry(L"no plug-in window is open");
    FoundControl found = FindControl(window, name, kinds);
    if (!found.widget) return Retry(found.error);
    if (!found.widget->isEnabled()) return Retry(L"the control " + name + L" is disabled");
    control = found.widget;
    return Done();
  }

  Outcome StepRun(const ScriptStep& step) {
    if (!HasFields(step, 2, 2)) return Usage(L"run ACTION");
    std::string action = Narrow(step.fields[1]);
    std::optional<uiCmdAccessState> access = sim::Access(action);
    if (!access) return Fail(L"no command " + step.fields[1]);
    if (*access != ACCESS_AVAILABLE) return Fail(L"the command " + step.fields[1] + L" is not available");
    if (!sim::RunAction(action)) return Fail(L"the command " + step.fields[1] + L" has no action");
    return Done();
  }

  Outcome StepCurrent(const ScriptStep& step) {
    if (!HasFields(step, 2, 2)) return Usage(L"current FILE");
    ProMdl model = sim::OpenModel(step.fields[1]);
    if (!model || !sim::SetCurrentModel(model))
      return Fail(L"no model " + step.fields[1] + L" in the session");
    return Done();
  }

  Outcome StepClick(const ScriptStep& step) {
    if (!HasFields(step, 2, 2)) return Usage(L"click CONTROL");
    QWidget* control = nullptr;
    Outcome found =
        Find(step.fields[1], {ControlKind::Button, ControlKind::Check, ControlKind::Radio}, control);
    if (found.kind != Outcome::Done) return found;
    static_cast<QAbstractButton*>(control)->click();
    return Done();
  }

  Outcome StepSet(const ScriptStep& step) {
    if (!HasFields(step, 3, 3)) return Usage(L"set CONTROL TEXT");
    QWidget* control = nullptr;
    Outcome found = Find(step.fields[1], {ControlKind::Edit, ControlKind::Combo, ControlKind::Text}, control);
    if (found.kind != Outcome::Done) return found;
    const std::wstring& text = step.fields[2];
    auto* combo = qobject_cast<QComboBox*>(control);
    if (!combo) {
      TypeText(control, text);
      return Done();
    }
    return ChooseEntry(combo, text) ? Done() : Fail(NoEntry(combo, text));
  }

  // "check BOX on|off" sets a check box of the window; with a row it is a
  // list's.
  Outcome StepCheck(const ScriptStep& step) {
    if (step.fields.size() != 3) return StepList(step);
    const std::wstring& state = step.fields[2];
    if (state != L"on" && state != L"off") return Usage(L"check CHECKBOX on|off or check LIST ROW on|off");
    QWidget* control = nullptr;
    Outcome found = Find(step.fields[1], {ControlKind::Check}, control);
    if (found.kind != Outcome::Done) return found;
    auto* box = static_cast<QAbstractButton*>(control);
    if (box->isChecked() != (state == L"on")) box->click();
    return Done();
  }

  Outcome StepList(const ScriptStep& step) {
    QWidget* control = nullptr;
    if (step.fields.size() < 2) return Fail(L"usage: " + step.fields[0] + L" LIST ...");
    Outcome found = Find(step.fields[1], {ControlKind::List}, control);
    if (found.kind != Outcome::Done) return found;
    auto* view = static_cast<QAbstractItemView*>(control);
    ListStepResult result = RunListStep(view, step.fields, out_);
    if (result.retry) return Retry(result.error);
    return result.error.empty() ? Done() : Fail(result.error);
  }

  Outcome StepTree(const ScriptStep& step) {
    if (!HasFields(step, 3, 3)) return Usage(L"tree TREE PATH");
    QWidget* control = nullptr;
    Outcome found = Find(step.fields[1], {ControlKind::Tree}, control);
    if (found.kind != Outcome::Done) return found;
    std::wstring error = SelectTreeItem(static_cast<QAbstractItemView*>(control), step.fields[2]);
    return error.empty() ? Done() : Retry(error);
  }

  std::wstring ExpandPathVariables(const std::wstring& path) const {
    for (const auto& [name, dir] :
         {std::pair{L"$SESSION", &options_.sessionDir}, std::pair{L"$WORKDIR", &options_.workDir}}) {
      std::wstring variable = name;
      if (path.starts_with(variable) && (path.size() == variable.size() || path[variable.size()] == L'/'))
        return *dir + path.substr(variable.size());
    }
    return path;
  }

  Outcome StepAnswer(const ScriptStep& step) {
    std::wstring error;
    std::optional<QueuedAnswer> answer =
        ParseAnswer(std::vector<std::wstring>(step.fields.begin() + 1, step.fields.end()), error);
    if (!answer) return Fail(error);
    if (answer->kind == AnswerKind::Dir || answer->kind == AnswerKind::File)
      answer->value = ExpandPathVariables(answer->value);
    answers_.Queue(*answer);
    return Done();
  }

  Outcome StepModel(const ScriptStep& step) {
    if (!HasFields(step, 2, 2)) return Usage(L"model FILE");
    ProMdl model = sim::OpenModel(step.fields[1]);
    std::optional<std::string> state = model ? sim::ModelState(model) : std::nullopt;
    if (!state) return Fail(L"no model " + step.fields[1] + L" in the session");
    out_ << *state << std::endl;
    return Done();
  }

  // What a step did on disk, for a script's reader: the names in a
  // directory, sorted, a subdirectory with "/" behind it.
  Outcome StepFiles(const ScriptStep& step) {
    if (!HasFields(step, 2, 2)) return Usage(L"files DIR");
    std::filesystem::path dir(platform::ToNarrow(ExpandPathVariables(step.fields[1])));
    std::error_code error;
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(dir, error))
      names.push_back(entry.path().filename().string() + (entry.is_directory() ? "/" : ""));
    if (error) return Fail(L"cannot list " + platform::ToWide(dir.string()));
    std::sort(names.begin(), names.end());
    for (const std::string& name : names) out_ << name << "\n";
    out_.flush();
    return Done();
  }

  Outcome StepClose(const ScriptStep& step) {
    if (!HasFields(step, 1, 1)) return Usage(L"close");
    QWidget* window = TopWindow();
    if (!window) return Retry(L"no plug-in window is open");
    window->close();
    return Done();
  }

  static constexpr int kPollMs = 20;

  const std::vector<ScriptStep>& steps_;
  PlayOptions options_;
  std::ostream& out_;
  std::ostream& err_;
  PlayAnswers answers_;
  ModalWatch watch_;
  QTimer tick_;
  QElapsedTimer clock_;  // since the first attempt at the current step
  size_t next_ = 0;
  size_t attempted_ = static_cast<size_t>(-1);
  size_t running_ = static_cast<size_t>(-1);
  bool finished_ = false;
  int exitCode_ = 0;
};

}  // namespace

int PlayScript(const std::vector<ScriptStep>& steps, const PlayOptions& options, std::ostream& out,
               std::ostream& err) {
  Player player(steps, options, out, err);
  return player.Play();
}
