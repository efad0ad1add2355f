// The answers a script queues for the questions and choosers to come, in
// order: message boxes, the platform's file chooser, the host's choosers and
// a name a plug-in dialog asks for. A question that finds no answer waiting
// is a failure of the script, answered with a refusal so that nothing waits.
// A file the plug-in asks the desktop to open is named, not opened.
#pragma once

#include <deque>
#include <mutex>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

class QWidget;

enum class AnswerKind { Yes, No, Ok, Cancel, Dir, File, Pick, Placement, Text };

struct QueuedAnswer {
  AnswerKind kind = AnswerKind::Ok;
  std::wstring value;  // the path, point or text
};

// The fields after "answer"; nullopt with `error` set for a wrong kind or a
// missing or surplus value.
std::optional<QueuedAnswer> ParseAnswer(const std::vector<std::wstring>& fields, std::wstring& error);

class PlayAnswers {
 public:
  // Each question and its answer is written to `out` as it is answered.
  explicit PlayAnswers(std::ostream& out);
  // Removes the handlers it installed.
  ~PlayAnswers();
  PlayAnswers(const PlayAnswers&) = delete;
  PlayAnswers& operator=(const PlayAnswers&) = delete;

  void Queue(const QueuedAnswer& answer);
  // The first failure since the last call, if any.
  std::optional<std::wstring> TakeFailure();

  // A modal dialog has shown: when a text answer is next and the dialog asks
  // for one text, the text is typed and the dialog confirmed.
  void OnModalShown(QWidget* dialog);

 private:
  int AnswerMessageBox(const std::wstring& caption, const std::wstring& text, unsigned flags);
  std::optional<std::wstring> AnswerChooser(const std::string& callName, const std::wstring& label);
  void Fail(const std::wstring& reason);

  std::ostream& out_;
  std::mutex mutex_;  // choosers may be asked on a worker thread
  std::deque<QueuedAnswer> queue_;
  std::optional<std::wstring> failure_;
};
