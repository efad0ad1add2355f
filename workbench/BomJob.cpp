#include "BomJob.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>

#include <filesystem>
#include <memory>
#include <vector>

#include "CodePage.h"
#include "DebugOutput.h"
#include "Files.h"
#include "HostControl.h"
#include "Inspection.h"
#include "MessageBox.h"
#include "QtApplication.h"

namespace {

const char kBomListCommand[] = "CmdBOMShowId";
const wchar_t kOverwriteQuestion[] = L" 已经存在，是否覆盖？";
const wchar_t kOpenQuestionHead[] = L"是否打开：";
const wchar_t kOpenQuestionTail[] = L" ？";

// The spreadsheet's reason why a workbook did not open, told to the debug
// output behind this prefix.
const wchar_t kExcelDebugPrefix[] = L"ExcelApp: ";

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
// nothing is opened, and a question the job does not know is declined. The
// outputs show a notice only when they fail; each is kept in `notices`.
platform::MessageBoxHandler AnsweringPrompts(bool overwrite, std::ostream& out,
                                             std::vector<std::wstring>& notices) {
  return [overwrite, &out, &notices](const platform::MessageBoxRequest& request) {
    int answer = platform::kIdOk;
    std::string said = "ok";
    if (request.flags == platform::kMbYesNo) {
      bool yes = overwrite && request.text.ends_with(kOverwriteQuestion);
      answer = yes ? platform::kIdYes : platform::kIdNo;
      said = yes ? "yes" : "no";
    } else {
      notices.push_back(request.text);
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

bool IsChecked(QDialog* dialog, const char* name) {
  auto* box = dialog->findChild<QCheckBox*>(name);
  return box && box->isEnabled() && box->isChecked();
}

bool ChecksAnOutput(QDialog* dialog) {
  return IsChecked(dialog, "ExcelCheck") || IsChecked(dialog, "TextCheck") ||
         IsChecked(dialog, "DrawingCheck");
}

// Presses "输出" and tells on `err` each output that broke off, with the
// spreadsheet's reason where it gave one; false then.
bool Export(ControlSetter& setter, std::vector<std::wstring>& notices, std::ostream& err) {
  std::vector<std::wstring> reasons;
  platform::DebugSink previous = platform::SetDebugSink([&reasons, &previous](std::wstring_view text) {
    if (text.starts_with(kExcelDebugPrefix)) {
      reasons.emplace_back(text.substr(std::wstring_view(kExcelDebugPrefix).size()));
    } else if (previous) {
      previous(text);
    }
  });
  notices.clear();
  bool clicked = setter.Click("ExportButton");
  platform::SetDebugSink(previous);
  for (const std::wstring& notice : notices)
    err << "bom-workbench: the output broke off: " << platform::ToNarrow(notice) << "\n";
  if (!notices.empty()) {
    for (const std::wstring& reason : reasons) err << "bom-workbench: " << platform::ToNarrow(reason) << "\n";
  }
  return clicked && notices.empty();
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
  std::unique_ptr<QApplication> app = StartQtApplication(argc, argv);
  std::vector<std::wstring> notices;
  platform::MessageBoxHandler previous =
      platform::SetMessageBoxHandler(AnsweringPrompts(options.overwrite, out, notices));
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
  if (options.pick) sim::PushAnswer("ProMousePickGet", *options.pick);
  int exitCode = 0;
  if (!SetControls(options, setter)) {
    exitCode = 1;
  } else if (!ChecksAnOutput(dialog)) {
    err << "bom-workbench: no output box is checked (--excel, --text, --drawing): nothing was written\n";
    exitCode = 1;
  } else if (!Export(setter, notices, err) || (options.drawing && !SaveChangedDrawing(workdir, out, err))) {
    exitCode = 1;
  }
  dialog->close();
  return exitCode;
}
