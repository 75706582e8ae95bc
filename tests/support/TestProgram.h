#pragma once

#include <deque>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "session/Program.h"
#include "settings/MemorySettingsStore.h"
#include "surface/RecordingSprites.h"
#include "surface/RecordingWindow.h"

namespace qv::test {

// Message boxes answered from a queue ("the next question gets Yes"); No when it is empty.
class ScriptedDialogs : public IDialogs {
 public:
  Answer MsgBox(const std::string& text, MsgStyle style, const std::string& title) override;
  std::deque<Answer> answers;
  std::vector<std::string> shown;
  std::vector<std::string> titles;
  std::function<void()> onShow;  // runs while a box is open, as a timer or a stop would
};

class FakeClock : public IClock {
 public:
  std::time_t Now() const override { return now; }
  int64_t Millis() const override { return ms; }
  std::time_t now = 1795000000;
  int64_t ms = 0;
};

// A folder of its own under the system's temporary folder, removed at the end.
class TempHome {
 public:
  TempHome();
  ~TempHome();
  TempHome(const TempHome&) = delete;
  TempHome& operator=(const TempHome&) = delete;
  const std::filesystem::path& Path() const { return path_; }
  std::string File(const std::string& name) const { return (path_ / name).string(); }

 private:
  std::filesystem::path path_;
};

// A whole program for a test: recording surface, scripted dialogs, fake clock, memory
// settings and a temporary home. Nothing touches the real home folder.
struct TestProgram {
  TestProgram();
  TempHome home;
  MemorySettingsStore settings;
  RecordingSprites sprites;
  RecordingWindow window;
  ScriptedDialogs dialogs;
  FakeClock clock;
  std::unique_ptr<Program> app;

  Program& operator*() { return *app; }
  Program* operator->() { return app.get(); }
  // Deals a game as New Game does with a chosen number.
  void Deal(const std::string& game, uint64_t number);
  // The next start: a new program over the same settings and home, with a fresh window.
  // The old one is dropped as a crash would drop it; an orderly stop is ShutDown first.
  void Restart();
  // The folders of the temporary home, for a second program on it.
  PlatformFolders Folders() const;
};

// The seven fields that decide a table; Spider's by default.
struct Rules {
  int16_t HPiles = 10, HOrder = 4, HSpace = 13, HAK = 0, HMulti = 1, Suits = 2, MOrder = 0;
};
// Plays a deal with the given rules, as a saved game with no moves brings them for a
// name the program does not know.
void PlayWithRules(TestProgram& t, const Rules& rules, uint64_t number = 1);
// Presses the Stock n times.
void DealRows(TestProgram& t, int n);

// Makes the first legal drag of a top card (or group) onto another tableau pile that it
// finds, pile by pile; false when there is none.
bool MakeAnyLegalMove(TestProgram& t);
// Under "Any Card" rules (any thirteen cards with an Ace on top are a set), gathers twelve
// cards on one pile and lays an Ace on it, so a set leaves; false if no Ace could be found.
bool CompleteASet(TestProgram& t);
// Under "Any Card" rules, deals the Stock and wins by double-clicks, opening one foundation
// at a time and moving cards off the nearest Ace when nothing fits; false if it got stuck.
bool WinGame(TestProgram& t);
// Where every card lies, with its face: two tables are equal when these are.
std::vector<int> Snapshot(const Program& app);

// Writes text to a file, for fixtures.
void WriteFile(const std::string& path, const std::string& text);
std::string ReadFile(const std::string& path);

}  // namespace qv::test
