#include "MainWindow.h"

#include <QCloseEvent>
#include <algorithm>
#include <QMenuBar>
#include <QScreen>
#include <QToolBar>

#include "CardPainter.h"
#include "FinishDialog.h"
#include "QtBackground.h"
#include "QtSound.h"
#include "QtSprites.h"
#include "SolverIndicator.h"
#include "TableView.h"
#include "Windows.h"
#include "lists/Pending.h"
#include "lists/Recent.h"
#include "session/CommandTable.h"
#include "session/Commands.h"
#include "session/Program.h"
#include "session/StartUp.h"
#include "settings/FileClasses.h"
#include "settings/mCustomize.h"

namespace qv {

namespace {
constexpr int kScreenWidth = 12615;  // the layout's width plus one card, in twips
constexpr std::array<int, 6> kIntervals{100, 500, 1000, 500, 500, 60000};
}  // namespace

MainWindow::MainWindow(ISettingsStore& store, QWidget* parent)
    : QMainWindow(parent), view_(new TableView(&scene_, this)) {
  scene_.setItemIndexMethod(QGraphicsScene::NoIndex);  // cards move all the time
  setCentralWidget(view_);
  sprites_ = std::make_unique<QtSprites>(scene_, *view_);
  boxes_.SetParent(this);
  for (size_t t = 0; t < timers_.size(); ++t) {
    timers_[t] = std::make_unique<QTimer>();
    timers_[t]->setInterval(kIntervals[t]);
  }
  background_ = std::make_unique<QtBackground>(*view_->viewport());
  sound_ = std::make_unique<QtSound>();
  view_->ShowBackground(background_.get());
  app_ = std::make_unique<Program>(Surface{*sprites_, *this, boxes_, clock_, background_.get(), sound_.get()}, store,
                                   PlatformFolders::FromEnvironment());
  app_->ScreenWidth = kScreenWidth;
  view_->Attach(app_.get(), sprites_.get());
  windowOpener = [this](const QString& key) { OpenProgramWindow(*this, key); };

  connect(&TimerOf(Timer::Main), &QTimer::timeout, this, [this] {
    UpdateCommands();
    view_->FitTable();
    app_->keeper.Tick();
    solver_->Tick();
    view_->KeepOutline(PositionKey(*app_));
  });
  connect(&TimerOf(Timer::Time), &QTimer::timeout, this, [this] { app_->cGamePlay.Update_Title(); });
  connect(&TimerOf(Timer::Game), &QTimer::timeout, this, [this] { app_->cGamePlay.TickGame(); });
  connect(&TimerOf(Timer::Forward), &QTimer::timeout, this, [this] { ReplayTick(*app_, true); });
  connect(&TimerOf(Timer::Backward), &QTimer::timeout, this, [this] { ReplayTick(*app_, false); });
  connect(&TimerOf(Timer::WallPaper), &QTimer::timeout, this, [this] { PickWallpaper(*app_); });
  background_->onWallTimer = [this](int ms) {
    QTimer& wall = TimerOf(Timer::WallPaper);
    if (ms > 0) wall.start(ms);
    else wall.stop();
  };
  BuildMenus();
  BuildToolbar();
  solver_ = new SolverIndicator(*app_, menuBar(), this);
  for (auto it = actions_.cbegin(); it != actions_.cend(); ++it)
    if (it.key() != "Stop" && it.key() != "OrgPend" && it.key() != "OrgFav")  // kept by the replay and the lists
      commands_.push_back({it.key().toStdString(), it.value(), toolbarItems_.value(it.key())});
  autoPlayEntry_ = actions_.value("AutoPlay");
  autoPlayButton_ = toolbarItems_.value("AutoPlay");
  viewToolEntry_ = actions_.value("ViewTool");
  SetStopEnabled(false);  // nothing replays yet
  // Within the screen and in its middle, placed before it shows: a question at start opens
  // over the window before the desktop has had a word about where it goes.
  const QRect room = screen()->availableGeometry();
  resize(QSize(1280, 800).boundedTo(room.size() * 0.9));
  move(room.center() - rect().center());
}

MainWindow::~MainWindow() {
  // The table's items belong to the scene; the sprites go before it.
  sprites_.reset();
}

void MainWindow::Load() {
  setWindowTitle(QString::fromStdString(app_->cData.ProdName()));
  loaded_ = true;
  StartUp(*app_);
  // Saved games open from the file manager once their types are known to the desktop.
  if (GetFileClass(*app_, app_->cData.IncExt()).empty() || GetFileClass(*app_, app_->cData.FinExt()).empty())
    RegisterFileTypes(*app_);
  RefreshMenus();
  RefreshToolbar();
  UpdateCommands();
  TimerOf(Timer::Main).start();
  TimerOf(Timer::Time).start();
}

void MainWindow::BuildMenus() {
  for (const MenuDef& menu : MainMenus()) {
    QMenu* m = menuBar()->addMenu(QString::fromUtf8(menu.caption));
    m->setObjectName(menu.name);
    int next = 1;
    for (const MenuEntry& entry : menu.entries) {
      for (; next < entry.index; ++next) m->addSeparator();
      ++next;
      const QString key = QString::fromUtf8(entry.key);
      if (key == "Recent") {
        // Entries 12, 13 and 14 of the File menu: recently saved, opened and played.
        QMenu* sub = m->addMenu(CommandIcon(key), QString::fromUtf8(entry.caption));
        recentMenus_[entry.index == 12 ? kRecentSaved : entry.index == 13 ? kRecentOpened : kRecentPlayed] = sub;
        continue;
      }
      QAction* a = m->addAction(CommandIcon(key), QString::fromUtf8(entry.caption));
      a->setObjectName(key);
      a->setShortcut(QKeySequence(QString::fromUtf8(entry.shortcut)));
      a->setCheckable(key == "AutoPlay" || key == "Pause" || key == "ViewTool");
      connect(a, &QAction::triggered, this, [this, key] { ExecCommand(*app_, key.toStdString()); });
      actions_.insert(key, a);
    }
    for (; next <= menu.size; ++next) m->addSeparator();
    if (QString(menu.name) == "mPend") pendMenu_ = m;
    if (QString(menu.name) == "mFav") favMenu_ = m;
  }
}

void MainWindow::RefreshMenus() {
  for (int list : {kRecentSaved, kRecentOpened, kRecentPlayed}) {
    QMenu* menu = recentMenus_[list];
    menu->clear();
    const auto entries = RecentMenuEntries(*app_, list);
    if (entries.empty()) menu->addAction("None")->setEnabled(false);
    for (const std::string& entry : entries) {
      const QString tag = QString::fromStdString(entry);
      connect(menu->addAction(CommandIcon("Q1"), tag), &QAction::triggered, this,
              [this, list, entry] { PlayRecent(*app_, RecentCode(list), entry); });
    }
  }
  for (QAction* a : pendEntries_) delete a;
  pendEntries_.clear();
  const auto pending = PendingMenuEntries(*app_);
  for (const PendingEntry& e : pending) {
    QAction* a = pendMenu_->addAction(CommandIcon("Q1"), QString::fromStdString(e.caption));
    a->setEnabled(!e.playing);
    const std::string path = e.path;
    connect(a, &QAction::triggered, this, [this, path] { app_->cGamePlay.PlayPendFile(path); });
    pendEntries_.push_back(a);
  }
  // "Organize Pending List" only while the list has files.
  const bool files = std::any_of(pending.begin(), pending.end(), [](const auto& e) { return !e.playing; });
  actions_.value("OrgPend")->setEnabled(files);
  toolbarItems_.value("OrgPend")->setEnabled(files);
  RefreshFavMenu();
}

void MainWindow::BuildToolbar() {
  toolbar_ = addToolBar("Toolbar");
  toolbar_->setObjectName("Toolbar1");
  toolbar_->setMovable(false);
  toolbar_->setIconSize(QSize(24, 24));
  for (const ToolbarButtonDef& b : ToolbarLayout()) {
    const QString key = QString::fromUtf8(b.key);
    QAction* a = key.startsWith("Sep") ? toolbar_->addSeparator() : toolbar_->addAction(CommandIcon(key), b.tooltip);
    a->setObjectName("tb" + key);
    if (!key.startsWith("Sep")) {
      a->setToolTip(QString::fromUtf8(b.tooltip));
      a->setCheckable(key == "AutoPlay" || key == "Pause");
      connect(a, &QAction::triggered, this, [this, key] { ExecCommand(*app_, key.toStdString()); });
    }
    toolbarItems_.insert(key, a);
  }
}

void MainWindow::RefreshToolbar() {
  for (const ToolbarButtonDef& b : ToolbarLayout())
    toolbarItems_.value(QString::fromUtf8(b.key))->setVisible(ToolbarItemShown(app_->cRegistry, b));
}

void MainWindow::UpdateCommands() {
  // Ten times a second: nothing is allocated, and QAction ignores a value it already has,
  // so only what changed is repainted.
  for (const Command& c : commands_) {
    const bool enabled = CommandEnabled(*app_, c.key);
    c.entry->setEnabled(enabled);
    if (c.button) c.button->setEnabled(enabled);
  }
  autoPlayEntry_->setChecked(AutoPlayChecked(*app_));
  autoPlayButton_->setChecked(AutoPlayPressed(*app_));
  // View Toolbar shows and hides the toolbar itself; the setting keeps the choice.
  const bool toolbar = ToolbarChecked(*app_);
  viewToolEntry_->setChecked(toolbar);
  if (toolbar != toolbarShown_) {
    toolbarShown_ = toolbar;
    toolbar_->setVisible(toolbar);
  }
}

void MainWindow::SetTitle(const std::string& title) {
  const QString t = QString::fromStdString(title);
  if (windowTitle() != t) setWindowTitle(t);
}

void MainWindow::EnableTimer(Timer t, bool on) {
  QTimer& timer = TimerOf(t);
  if (on && !timer.isActive()) timer.start();
  if (!on) timer.stop();
}

bool MainWindow::TimerEnabled(Timer t) const { return TimerOf(t).isActive(); }

void MainWindow::ShowPaused(bool paused) {
  actions_.value("Pause")->setChecked(paused);
  toolbarItems_.value("Pause")->setChecked(paused);
}

void MainWindow::SetStopEnabled(bool enabled) {
  actions_.value("Stop")->setEnabled(enabled);
  toolbarItems_.value("Stop")->setEnabled(enabled);
}

void MainWindow::OpenWindow(const std::string& key, bool modal) {
  windowModal = modal;
  windowOpener(QString::fromStdString(key));
  windowModal = true;
}

void MainWindow::ShowFinish() {
  FinishDialog finish(*app_, this);
  finish.exec();
  // The winning move has not returned yet: the next game starts once it has.
  if (const QString next = finish.Next(); !next.isEmpty())
    QTimer::singleShot(0, this, [this, next] { ExecCommand(*app_, next.toStdString()); });
}

void MainWindow::closeEvent(QCloseEvent* event) {
  // The stop cannot be refused: the game on the table is kept or ended, then all goes. One
  // that comes while cards move waits for the move's end and then closes the window again.
  // Closed before it loaded (a stop during the splash): the last session's marks stay.
  if (loaded_ && !StopProgram(*app_, [this] { close(); })) {
    event->ignore();
    return;
  }
  for (auto& timer : timers_) timer->stop();
  solver_->Stop();
  event->accept();
}

}  // namespace qv
