#pragma once

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "surface/IWindow.h"

namespace qv {

// A main window that remembers what it was told: its title, its timers, the pause mark.
class RecordingWindow : public IWindow {
 public:
  void SetTitle(const std::string& t) override { title = t; }
  void EnableTimer(Timer t, bool on) override { timers[static_cast<int>(t)] = on; }
  bool TimerEnabled(Timer t) const override { return timers[static_cast<int>(t)]; }
  void ShowPaused(bool p) override { pausedShown = p; }
  void ShowFinish() override {
    ++finishShown;
    if (onFinish) onFinish();
  }
  void SetStopEnabled(bool e) override { stopEnabled = e; }
  void OpenWindow(const std::string& key, bool modal = true) override {
    opened.push_back(key);
    openedModal.push_back(modal);
  }
  void CloseMain() override { closed = true; }
  void RefreshMenus() override {
    ++menuRefreshes;
    if (onRefreshMenus) onRefreshMenus();
  }

  std::string title;
  std::array<bool, 6> timers{true, true, false, false, false, false};
  bool pausedShown = false;
  int finishShown = 0;
  bool stopEnabled = false;
  std::vector<std::string> opened;
  std::vector<bool> openedModal;
  bool closed = false;
  int menuRefreshes = 0;
  std::function<void()> onRefreshMenus;  // lets a test read the menus as they are rebuilt
  std::function<void()> onFinish;        // closes "Congrats" where no one sees it
};

}  // namespace qv
