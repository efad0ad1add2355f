#include "BomJob.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>

#include <cstdlib>
#include <exception>
#include <filesystem>

#include "CodePage.h"
#include "Files.h"
#include "HostControl.h"
#include "Inspection.h"
#include "MessageBox.h"

namespace {

const char kBomListCommand[] = "CmdBOMShowId";
const wchar_t kOverwriteQuestion[] = L" 已经存在，是否覆盖？";
const wchar_t kOpenQuestionHead[] = L"是否打开：";
const wchar_t kOpenQuestionTail[] = L" ？";

bool HasDisplay() { return std::getenv("DISPLAY") || std::getenv("WAYLAND_DISPLAY"); }

// The open question follows every file an output wrote and names it.
std::optional<std::wstring> WrittenFileOf(const std::wstring& question) {
  std::wstring_view text = question;
  std::wstring_view head = kOpenQuestionHead;
  std::wstring_view tail = kOpenQuestionTail;
  if (text.size() < head.size() + tail.size() || !text.starts_with(head) || !text.ends_with(tail))
    return std::nullopt;
  return std::wstring(text.substr(head.size(), text.size() - head.size() - tail.size()));
}

// Yes only to the overwrite question and only when the options allow it:
// nothing is opened, and a question the job does not know is declined.
platform::MessageBoxHandler AnsweringPrompts(bool overwrite, std::ostream& out) {
  return [overwrite, &out](const platform::MessageBoxRequest& request) {
    int answer = platform::kIdOk;
    std::string said = "ok";
    if (request.flags == platform::kMbYesNo) {
      bool yes = overwrite && request.text.ends_with(kOverwriteQuestion);
      answer = yes ? platform::kIdYes : platform::kIdNo;
      said = yes ? "yes" : "no";
    }
    out << "prompt " << platform::ToNarrow(request.caption) << ": " << platform::ToNarrow(request.text)
        << " -> " << said << "\n";
    if (auto file = WrittenFileOf(request.text))
      out << "wrote " << platform::NativePath(*file).string() << "\n";
    return answer;
  };
}

QDialog* FindBomList() {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (widget->objectName() == "DlgBomShow") return qobject_cast<QDialog*>(widget);
  }
  return nullptr;
}

class ControlSetter {
 public:
  ControlSetter(QDialog* dialog, std::ostream& err) : dialog_(dialog), err_(err) {}

  template <typename Control>
  Control* Find(const char* name) {
    auto* control = dialog_->findChild<Control*>(name);
    if (!control) err_ << "bom-workbench: the list has no control " << name << "\n";
    if (control && !control->isEnabled()) {
      err_ << "bom-workbench: " << name << " is disabled\n";
      return nullptr;
    }
    return control;
  }
  bool Click(const char* name) {
    auto* button = Find<QAbstractButton>(name);
    if (button) button->click();
    return button;
  }
  bool Check(const char* name) {
    auto* box = Find<QCheckBox>(name);
    if (box && !box->isChecked()) box->click();
    return box;
  }
  bool Choose(const char* name, int index) {
    auto* box = Find<QComboBox>(name);
    if (box && index >= box->count()) {
      err_ << "bom-workbench: " << name << " has no entry " << index << "\n";
      return false;
    }
    if (box) box->setCurrentIndex(index);
    return box;
  }
  bool Type(const char* name, const std::wstring& text) {
    auto* field = Find<QLineEdit>(name);
    if (field) field->setText(QString::fromStdWString(text));
    return field;
  }

 private:
  QDialog* dialog_;
  std::ostream& err_;
};

const char* LevelRadioOf(const std::string& level) {
  if (level == "single") return "LevelSingle";
  return level == "multi" ? "LevelMulti" : "LevelSummary";
}

bool SetControls(const BomOptions& options, ControlSetter& setter) {
  if (options.level && !setter.Click(LevelRadioOf(*options.level))) return false;
  if (options.sort && !setter.Choose("SortCombo", *options.sort)) return false;
  if (options.filter && !setter.Choose("FilterCombo", *options.filter)) return false;
  if (options.excel && !setter.Check("ExcelCheck")) return false;
  if (options.text && !setter.Check("TextCheck")) return false;
  if (options.drawing && !setter.Check("DrawingCheck")) return false;
  if (options.out) {
    // A directory the user chooses exists; the Excel output makes one level
    // below it only.
    std::filesystem::create_directories(platform::NativePath(*options.out));
    if (!setter.Type("OutDirEdit", *options.out)) return false;
  }
  return !options.name || setter.Type("FileNameEdit", *options.name);
}

ProMdl CurrentModel() {
  for (const sim::WindowInfo& window : sim::Windows()) {
    if (window.id == sim::CurrentWindow()) return window.model;
  }
  return nullptr;
}

// The table lives in the drawing in session until the drawing is saved.
bool SaveChangedDrawing(const std::filesystem::path& workdir, std::ostream& out, std::ostream& err) {
  ProMdl current = CurrentModel();
  for (const sim::SessionModel& model : sim::SessionModels()) {
    if (model.handle != current || !model.modified) continue;
    std::optional<std::filesystem::path> file = sim::WriteModelCopy(current, workdir);
    if (!file) {
      err << "bom-workbench: the drawing could not be saved\n";
      return false;
    }
    out << "wrote " << file->string() << "\n";
  }
  return true;
}

}  // namespace

int RunBomJob(const BomOptions& options, const std::filesystem::path& workdir, std::ostream& out,
              std::ostream& err, int argc, char* argv[]) {
  if (!HasDisplay() && !std::getenv("QT_QPA_PLATFORM")) setenv("QT_QPA_PLATFORM", "offscreen", 1);
  QApplication app(argc, argv);
  platform::MessageBoxHandler previous =
      platform::SetMessageBoxHandler(AnsweringPrompts(options.overwrite, out));
  struct Restore {
    platform::MessageBoxHandler handler;
    ~Restore() { platform::SetMessageBoxHandler(handler); }
  } restore{previous};

  // A greyed button cannot be clicked.
  if (sim::Access(kBomListCommand) != ACCESS_AVAILABLE || !sim::RunAction(kBomListCommand)) {
    err << "bom-workbench: " << kBomListCommand << " is not available for the current model\n";
    return 1;
  }
  QDialog* dialog = FindBomList();
  if (!dialog) {
    err << "bom-workbench: the BOM list did not open\n";
    return 1;
  }
  ControlSetter setter(dialog, err);
  int exitCode = 0;
  try {
    if (options.pick) sim::PushAnswer("ProMousePickGet", *options.pick);
    if (!SetControls(options, setter) || !setter.Click("ExportButton")) exitCode = 1;
    if (exitCode == 0 && options.drawing && !SaveChangedDrawing(workdir, out, err)) exitCode = 1;
  } catch (const std::exception& error) {
    err << "bom-workbench: the output broke off: " << error.what() << "\n";
    exitCode = 1;
  }
  dialog->close();
  return exitCode;
}
