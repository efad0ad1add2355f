#include "DlgSaveAuto.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

#include "AutoSave.h"
#include "CfgOption.h"
#include "Timers.h"
#include "WindowRules.h"

namespace {
constexpr std::uintptr_t kFirstTimerId = 1;
}  // namespace

CDlgSaveAuto::CDlgSaveAuto(QWidget* parent) : QDialog(parent) {
  setWindowTitle("自动保存设置");
  setObjectName("DlgSaveAuto");
  CCfgOption option;

  auto* saveAuto = new QCheckBox("开启自动保存", this);
  saveAuto->setObjectName("SaveAutoCheck");
  saveAuto->setChecked(option.GetSaveAuto() == 1);
  auto* delOldVer = new QCheckBox("自动删除当前模型旧版本", this);
  delOldVer->setObjectName("DelOldVerCheck");
  delOldVer->setChecked(option.GetDelOldVer() != 0);

  auto* timeGroup = new QGroupBox("间隔时间(单位分钟)", this);
  auto* time = new QLineEdit(QString::number(option.GetSaveAutoTime()), timeGroup);
  time->setObjectName("TimeEdit");
  time->setValidator(new QRegularExpressionValidator(QRegularExpression("[0-9]*"), time));
  auto* timeLayout = new QVBoxLayout(timeGroup);
  timeLayout->addWidget(time);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(saveAuto);
  layout->addWidget(delOldVer);
  layout->addWidget(timeGroup);

  connect(saveAuto, &QCheckBox::toggled, [](bool on) { CCfgOption().SetSaveAuto(on ? 1 : 0); });
  connect(delOldVer, &QCheckBox::toggled, [](bool on) { CCfgOption().SetDelOldVer(on ? 1 : 0); });
  // An emptied box writes 0, which the timer takes as one minute.
  connect(time, &QLineEdit::textChanged,
          [](const QString& text) { CCfgOption().SetSaveAutoTime(text.toInt()); });
  MakeTopMost(this);
}

void EditSaveAutoSettings() {
  CDlgSaveAuto dialog;
  dialog.exec();
  platform::KillTimer(nullptr, kFirstTimerId);
  StartAutoSaveTimer();
}
