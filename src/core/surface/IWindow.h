#pragma once

#include <string>

namespace qv {

enum class Timer { Main, Time, Game, Forward, Backward, WallPaper };

// What the game session needs of the main window besides its sprites.
class IWindow {
 public:
  virtual ~IWindow() = default;
  virtual void SetTitle(const std::string& title) = 0;
  virtual void EnableTimer(Timer t, bool on) = 0;
  virtual bool TimerEnabled(Timer t) const = 0;
  // The Pause button pressed or raised, and the check mark of "Pause Game".
  virtual void ShowPaused(bool paused) = 0;
  // All cards are on the foundations: the finish dialog opens here, blocking.
  virtual void ShowFinish() = 0;
  // The enabled state of "Sto&p" and its button, which the replay keeps itself.
  virtual void SetStopEnabled(bool enabled) = 0;
  // Opens the window of a command key (a dialog, the help); modal false asks a window that
  // can stay open beside the table (the rules page) not to block.
  virtual void OpenWindow(const std::string& key, bool modal = true) = 0;
  // Closes the main window, which stops the program.
  virtual void CloseMain() = 0;
  // Rebuilds the menus that mirror folders and lists (recent games, pending games).
  virtual void RefreshMenus() = 0;
};

}  // namespace qv
