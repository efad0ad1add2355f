#include "MainWindow.h"

#include <QIcon>
#include <QListWidget>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSplitter>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>
#include <QTreeWidget>

#include <fstream>
#include <functional>
#include <sstream>

#include "CodePage.h"
#include "HostControl.h"
#include "Inspection.h"
#include "ProMdl.h"
#include "TkModel.h"
#include "Timers.h"
#include "UnloadedModels.h"

namespace {

constexpr int kTickMs = 100;

QString Text(const std::wstring& text) { return QString::fromStdWString(text); }

const sim::CommandInfo* FindCommand(const std::vector<sim::CommandInfo>& commands, const std::string& name) {
  for (const auto& command : commands) {
    if (command.name == name) return &command;
  }
  return nullptr;
}

QIcon CommandIcon(const sim::CommandInfo* command) {
  if (!command || command->icon.empty()) return {};
  return QIcon(QString::fromStdString(command->icon.string()));
}

}  // namespace

MainWindow::MainWindow() {
  setWindowTitle("BOM 工作台");
  setObjectName("WorkbenchWindow");
  models_ = new QListWidget;
  models_->setObjectName("SessionModels");
  tree_ = new QTreeWidget;
  tree_->setObjectName("ModelTree");
  tree_->setHeaderLabel("模型树");
  messages_ = new QPlainTextEdit;
  messages_->setObjectName("MessageArea");
  messages_->setReadOnly(true);
  trail_ = new QPlainTextEdit;
  trail_->setObjectName("TrailView");
  trail_->setReadOnly(true);
  trail_->setLineWrapMode(QPlainTextEdit::NoWrap);

  auto* left = new QSplitter(Qt::Vertical);
  left->addWidget(models_);
  left->addWidget(tree_);
  left->setStretchFactor(1, 3);
  auto* right = new QSplitter(Qt::Vertical);
  right->addWidget(messages_);
  right->addWidget(trail_);
  auto* main = new QSplitter(Qt::Horizontal);
  main->addWidget(left);
  main->addWidget(right);
  main->setStretchFactor(1, 2);
  setCentralWidget(main);

  for (const std::string& line : UnloadedModelLines())
    messages_->appendPlainText(QString::fromStdString(line));
  BuildMenus();
  BuildToolbar();
  RefreshModels();
  RefreshTree();
  RefreshAccess();
  RefreshTexts();

  connect(models_, &QListWidget::itemDoubleClicked, this,
          [this](QListWidgetItem* item) { MakeCurrent(item->text().toStdWString()); });
  auto* timer = new QTimer(this);
  connect(timer, &QTimer::timeout, this, &MainWindow::OnTick);
  timer->start(kTickMs);
  resize(1000, 700);
}

void MainWindow::BuildMenus() {
  std::vector<sim::CommandInfo> commands = sim::Commands();
  std::function<void(QMenu*, const sim::MenuItem&)> addItem = [&](QMenu* menu, const sim::MenuItem& item) {
    if (item.kind == sim::MenuItem::Kind::Button) {
      const sim::CommandInfo* command = FindCommand(commands, item.command);
      QAction* action = menu->addAction(CommandIcon(command), Text(item.label));
      action->setObjectName(QString::fromStdString(item.name));
      action->setToolTip(Text(item.help));
      connect(action, &QAction::triggered, this, [this, name = item.command] { RunCommand(name); });
      commandActions_.emplace_back(action, item.command);
      return;
    }
    QMenu* sub = menu->addMenu(Text(item.label.empty() ? platform::ToWide(item.name) : item.label));
    for (const auto& child : item.children) addItem(sub, child);
  };
  for (const auto& top : sim::MenuBar()) {
    // The host's own menus are empty here; only what holds something shows.
    if (top.children.empty()) continue;
    QMenu* menu = menuBar()->addMenu(Text(top.label.empty() ? platform::ToWide(top.name) : top.label));
    connect(menu, &QMenu::aboutToShow, this, &MainWindow::RefreshAccess);
    for (const auto& child : top.children) addItem(menu, child);
  }
}

void MainWindow::BuildToolbar() {
  QToolBar* toolbar = addToolBar("命令");
  toolbar->setObjectName("CommandToolbar");
  toolbar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  for (const auto& command : sim::Commands()) {
    if (!command.designated) continue;
    QAction* action = toolbar->addAction(CommandIcon(&command), Text(command.label));
    action->setObjectName(QString::fromStdString(command.name));
    action->setToolTip(Text(command.help));
    connect(action, &QAction::triggered, this, [this, name = command.name] { RunCommand(name); });
    commandActions_.emplace_back(action, command.name);
  }
}

bool MainWindow::RunCommand(const std::string& actionName) {
  bool ran = sim::RunAction(actionName);
  RefreshTexts();
  return ran;
}

bool MainWindow::MakeCurrent(const std::wstring& fileName) {
  ProMdl model = sim::OpenModel(fileName);
  if (!model || !sim::SetCurrentModel(model)) return false;
  RefreshModels();
  RefreshTree();
  RefreshAccess();
  return true;
}

void MainWindow::RefreshAccess() {
  for (auto& [action, name] : commandActions_) action->setEnabled(sim::Access(name) == ACCESS_AVAILABLE);
}

void MainWindow::RefreshModels() {
  ProMdl current = nullptr;
  ProMdlCurrentGet(&current);
  models_->clear();
  for (const auto& model : sim::SessionModels()) {
    auto* item = new QListWidgetItem(Text(model.fileName), models_);
    if (model.handle == current) {
      QFont bold = item->font();
      bold.setBold(true);
      item->setFont(bold);
    }
  }
  statusBar()->showMessage(current ? "当前模型: " + Text(CTkModel().GetMdlName(current)) : "无当前模型");
}

void MainWindow::RefreshTree() {
  tree_->clear();
  ProMdl current = nullptr;
  if (ProMdlCurrentGet(&current) != PRO_TK_NO_ERROR || !current) return;
  CTkModel model;
  auto* root = new QTreeWidgetItem(tree_, {Text(model.GetMdlName(current))});
  std::vector<TkModelAsmCmp> cmps;
  model.GetAllComponent2(current, cmps);
  // The walk comes depth first: a component's parent is the last item one
  // level up.
  std::vector<QTreeWidgetItem*> lastAtDepth{root};
  for (const auto& cmp : cmps) {
    size_t depth = static_cast<size_t>(cmp.path.table_num);
    if (depth == 0 || depth > lastAtDepth.size()) continue;
    auto* item = new QTreeWidgetItem(lastAtDepth[depth - 1], {Text(model.GetMdlName(cmp.mdl))});
    lastAtDepth.resize(depth);
    lastAtDepth.push_back(item);
  }
  tree_->expandAll();
}

void MainWindow::RefreshTexts() {
  sim::MessageArea area = sim::Messages();
  for (size_t line = shownMessages_; line < area.lines.size(); ++line)
    messages_->appendPlainText(Text(area.lines[line]));
  shownMessages_ = area.lines.size();

  std::ifstream in(sim::TrailFilePath());
  std::stringstream text;
  text << in.rdbuf();
  if (text.str() != shownTrail_) {
    shownTrail_ = text.str();
    trail_->setPlainText(QString::fromStdString(shownTrail_));
    trail_->verticalScrollBar()->setValue(trail_->verticalScrollBar()->maximum());
  }
}

void MainWindow::OnTick() {
  platform::RunDueTimers();
  RefreshTexts();
}
