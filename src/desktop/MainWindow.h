#pragma once

#include <QGraphicsScene>
#include <QHash>
#include <QMainWindow>
#include <QTimer>
#include <array>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "QtMessageBoxes.h"
#include "surface/IClock.h"
#include "surface/IWindow.h"

class QToolBar;

namespace qv {

class ISettingsStore;
class Program;
class QtBackground;
class QtSound;
class QtSprites;
class SolverIndicator;
class TableView;

// The one main window: the table, the menus and toolbar built from the command table,
// the timers, and the window's side of the surface the core asks for.
class MainWindow : public QMainWindow, public IWindow {
  Q_OBJECT
 public:
  explicit MainWindow(ISettingsStore& store, QWidget* parent = nullptr);
  ~MainWindow() override;

  Program& app() { return *app_; }
  TableView& view() { return *view_; }
  QtSprites& sprites() { return *sprites_; }
  SolverIndicator& solver() { return *solver_; }
  // The load step: title, start-up, menus and toolbar. FirstGame follows it.
  void Load();
  QAction* Action(const QString& key) const { return actions_.value(key); }
  QToolBar* Toolbar() const { return toolbar_; }
  // Applies the toolbar settings (after the Customize Toolbar dialog changes them).
  void RefreshToolbar();
  // Sets every command's enabled state and marks; the tick of the main timer.
  void UpdateCommands();
  // Opens the window of a key; tests put their own opener here to see which key it was.
  std::function<void(const QString&)> windowOpener;
  // Whether the window being opened blocks: false for the rules page beside the table.
  bool windowModal = true;

  // The surface the core asks for.
  void SetTitle(const std::string& title) override;
  void EnableTimer(Timer t, bool on) override;
  bool TimerEnabled(Timer t) const override;
  void ShowPaused(bool paused) override;
  void ShowFinish() override;
  void SetStopEnabled(bool enabled) override;
  void OpenWindow(const std::string& key, bool modal = true) override;
  void CloseMain() override { close(); }
  void RefreshMenus() override;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void BuildMenus();
  void BuildToolbar();
  // The Favorites menu: folders with their games, then the root's games.
  void RefreshFavMenu();
  QTimer& TimerOf(Timer t) const { return *timers_[static_cast<int>(t)]; }

  QGraphicsScene scene_;
  TableView* view_;
  std::unique_ptr<QtSprites> sprites_;
  QtMessageBoxes boxes_;
  SystemClock clock_;
  std::array<std::unique_ptr<QTimer>, 6> timers_;
  std::unique_ptr<QtBackground> background_;
  std::unique_ptr<QtSound> sound_;
  std::unique_ptr<Program> app_;
  QHash<QString, QAction*> actions_;
  QToolBar* toolbar_ = nullptr;
  QHash<QString, QAction*> toolbarItems_;
  // What the main timer sets, worked out once: a key with its menu entry and its button.
  struct Command {
    std::string key;
    QAction* entry;
    QAction* button;
  };
  std::vector<Command> commands_;
  // Looked up once, as the tick sets them ten times a second.
  QAction* autoPlayEntry_ = nullptr;
  QAction* autoPlayButton_ = nullptr;
  QAction* viewToolEntry_ = nullptr;
  bool toolbarShown_ = true;  // as built
  std::array<QMenu*, 3> recentMenus_{};  // by list: played, saved, opened
  QMenu* pendMenu_ = nullptr;
  std::vector<QAction*> pendEntries_;
  QMenu* favMenu_ = nullptr;
  std::vector<QAction*> favEntries_;
  bool loaded_ = false;  // the load step has run: there is a session to stop
  SolverIndicator* solver_ = nullptr;
};

}  // namespace qv
