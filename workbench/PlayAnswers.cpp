#include "PlayAnswers.h"

#include <QAbstractButton>
#include <QDialog>
#include <QLineEdit>
#include <QTimer>

#include <map>

#include "CodePage.h"
#include "ControlFinder.h"
#include "FileDialog.h"
#include "HostControl.h"
#include "MessageBox.h"
#include "Shell.h"
#include "TextEntry.h"

namespace {

constexpr int kIdCancel = 2;

const std::map<std::wstring, AnswerKind>& KindsByName() {
  static const std::map<std::wstring, AnswerKind> kinds{
      {L"yes", AnswerKind::Yes},   {L"no", AnswerKind::No},
      {L"ok", AnswerKind::Ok},     {L"cancel", AnswerKind::Cancel},
      {L"dir", AnswerKind::Dir},   {L"file", AnswerKind::File},
      {L"pick", AnswerKind::Pick}, {L"placement", AnswerKind::Placement},
      {L"text", AnswerKind::Text}};
  return kinds;
}

bool TakesValue(AnswerKind kind) {
  return kind == AnswerKind::Dir || kind == AnswerKind::File || kind == AnswerKind::Pick ||
         kind == AnswerKind::Placement || kind == AnswerKind::Text;
}

// The kind of answer each of the host's choosers takes.
std::optional<AnswerKind> KindOfChooser(const std::string& callName) {
  if (callName == "ProDirectoryChoose") return AnswerKind::Dir;
  if (callName == "ProFileMdlfiletypeOpen") return AnswerKind::File;
  if (callName == "ProMousePickGet") return AnswerKind::Pick;
  if (callName == "ProAsmcompConstrRedefUI") return AnswerKind::Placement;
  return std::nullopt;
}

std::wstring NameOf(AnswerKind kind) {
  for (const auto& [name, value] : KindsByName()) {
    if (value == kind) return name;
  }
  return {};
}

std::string Narrow(const std::wstring& text) { return platform::ToNarrow(text); }

}  // namespace

std::optional<QueuedAnswer> ParseAnswer(const std::vector<std::wstring>& fields, std::wstring& error) {
  auto kind = fields.empty() ? KindsByName().end() : KindsByName().find(fields[0]);
  if (kind == KindsByName().end()) {
    error =
        L"answer takes yes, no, ok, cancel, dir PATH, file PATH, pick X,Y, placement ok|cancel or text TEXT";
    return std::nullopt;
  }
  size_t wanted = TakesValue(kind->second) ? 2 : 1;
  if (fields.size() != wanted) {
    error = L"answer " + fields[0] + (wanted == 2 ? L" takes one value" : L" takes no value");
    return std::nullopt;
  }
  QueuedAnswer answer{kind->second, wanted == 2 ? fields[1] : L""};
  if (answer.kind == AnswerKind::Placement && answer.value != L"ok" && answer.value != L"cancel") {
    error = L"answer placement takes ok or cancel";
    return std::nullopt;
  }
  return answer;
}

PlayAnswers::PlayAnswers(std::ostream& out) : out_(out) {
  platform::SetMessageBoxHandler([this](const platform::MessageBoxRequest& request) {
    return AnswerMessageBox(request.caption, request.text, request.flags);
  });
  platform::SetFileOpenHandler(
      [this](const platform::FileOpenRequest& request) { return AnswerChooser("file", request.filter); });
  // Nothing is launched from a scripted session: the request is shown.
  platform::SetShellOpenHandler([this](const platform::ShellOpenRequest& request) {
    out_ << "open " << Narrow(request.path) << std::endl;
    return true;
  });
  sim::SetAnswerProvider([this](const std::string& callName, const std::wstring& label, const std::wstring&) {
    return AnswerChooser(callName, label);
  });
}

PlayAnswers::~PlayAnswers() {
  sim::SetAnswerProvider(nullptr);
  platform::SetShellOpenHandler(nullptr);
  platform::SetFileOpenHandler(nullptr);
  platform::SetMessageBoxHandler(nullptr);
}

void PlayAnswers::Queue(const QueuedAnswer& answer) {
  std::lock_guard hold(mutex_);
  queue_.push_back(answer);
}

std::optional<std::wstring> PlayAnswers::TakeFailure() {
  std::lock_guard hold(mutex_);
  return std::exchange(failure_, std::nullopt);
}

void PlayAnswers::Fail(const std::wstring& reason) {
  if (!failure_) failure_ = reason;
}

int PlayAnswers::AnswerMessageBox(const std::wstring& caption, const std::wstring& text, unsigned flags) {
  std::lock_guard hold(mutex_);
  std::optional<QueuedAnswer> next;
  if (!queue_.empty()) next = queue_.front();
  int answer = platform::kIdOk;
  std::wstring said = L"ok";
  if (flags == platform::kMbOk) {
    // A notice leaves no choice: it takes an "ok" that waits for it, and
    // needs none.
    if (next && next->kind == AnswerKind::Ok) queue_.pop_front();
  } else if (!next || (next->kind != AnswerKind::Yes && next->kind != AnswerKind::No &&
                       next->kind != AnswerKind::Cancel && next->kind != AnswerKind::Ok)) {
    Fail(next ? L"the question \"" + text + L"\" came where an answer " + NameOf(next->kind) + L" waits"
              : L"no answer queued for the question \"" + text + L"\"");
    answer = platform::kIdNo;
    said = L"no (unanswered)";
  } else {
    queue_.pop_front();
    said = NameOf(next->kind);
    answer = next->kind == AnswerKind::Yes                                     ? platform::kIdYes
             : next->kind == AnswerKind::Ok                                    ? platform::kIdOk
             : next->kind == AnswerKind::Cancel && flags != platform::kMbYesNo ? kIdCancel
                                                                               : platform::kIdNo;
  }
  out_ << "prompt " << Narrow(caption) << ": " << Narrow(text) << " -> " << Narrow(said) << std::endl;
  return answer;
}

std::optional<std::wstring> PlayAnswers::AnswerChooser(const std::string& callName,
                                                       const std::wstring& label) {
  std::lock_guard hold(mutex_);
  std::optional<AnswerKind> kind = callName == "file" ? AnswerKind::File : KindOfChooser(callName);
  std::optional<std::wstring> chosen;
  std::wstring said = L"cancel";
  if (queue_.empty()) {
    Fail(L"no answer queued for the chooser " + platform::ToWide(callName) + L" " + label);
    said = L"cancel (unanswered)";
  } else if (queue_.front().kind == AnswerKind::Cancel) {
    queue_.pop_front();
  } else if (queue_.front().kind != kind) {
    Fail(L"the chooser " + platform::ToWide(callName) + L" came where an answer " +
         NameOf(queue_.front().kind) + L" waits");
    said = L"cancel (unanswered)";
  } else {
    chosen = queue_.front().value;
    said = *chosen;
    queue_.pop_front();
  }
  out_ << "chooser " << callName << " " << Narrow(label) << " -> " << Narrow(said) << std::endl;
  return chosen;
}

void PlayAnswers::OnModalShown(QWidget* dialog) {
  {
    std::lock_guard hold(mutex_);
    if (queue_.empty() || queue_.front().kind != AnswerKind::Text) return;
  }
  FoundControl field = FindControl(dialog, L"edit@#1", {ControlKind::Edit});
  if (!field.widget || FindControl(dialog, L"edit@#2", {ControlKind::Edit}).widget) return;
  std::wstring text;
  {
    std::lock_guard hold(mutex_);
    text = queue_.front().value;
    queue_.pop_front();
  }
  out_ << "dialog " << Narrow(dialog->windowTitle().toStdWString()) << " -> " << Narrow(text) << std::endl;
  // Typed and confirmed once the dialog runs its own loop.
  QTimer::singleShot(0, dialog, [dialog, edit = qobject_cast<QLineEdit*>(field.widget), text] {
    TypeText(edit, text);
    FoundControl confirm = FindControl(dialog, L"确定", {ControlKind::Button});
    if (auto* button = qobject_cast<QAbstractButton*>(confirm.widget)) {
      button->click();
    } else if (auto* modal = qobject_cast<QDialog*>(dialog)) {
      modal->accept();
    }
  });
}
