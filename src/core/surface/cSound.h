#pragma once

#include <array>
#include <string>

namespace qv {

class Program;

// A sound event: its key in section Sounds, its default file (in the program's folder,
// or none), and its group and label in the Sounds dialog.
struct SoundEvent {
  const char* key;
  const char* file;
  const char* group;
  const char* label;
};
// The thirty events in the order of cSound's operations.
const std::array<SoundEvent, 30>& SoundEvents();

// The sound of each event: the file the settings name, or the event's default.
class cSound {
 public:
  explicit cSound(Program& app) : app_(app) {}

  void SelectDialog() { Event("Select"); }
  void StartGame() { Event("Start"); }
  void MoveCard() { Event("Move"); }
  void Undo() { Event("Undo"); }
  void Redo() { Event("Redo"); }
  void AutoPlay();  // only while a game is in progress
  void PauseGame() { Event("Pause"); }
  void CloseGame() { Event("Close"); }
  void Win() { Event("Win"); }
  void AddFav() { Event("AddFav"); }
  void OrgFav() { Event("OrgFav"); }
  void AddPend() { Event("AddPend"); }
  void OrgPend() { Event("OrgPend"); }
  void GameStat() { Event("GameStat"); }
  void SessionStat() { Event("SessionStat"); }
  void HighScore() { Event("HighScore"); }
  void LogStat() { Event("LogStat"); }
  void Toolbar() { Event("Toolbar"); }
  void Sounds() { Event("Sounds"); }
  void Animation() { Event("Animation"); }
  void Background() { Event("Background"); }
  void Deck() { Event("Deck"); }
  void Players() { Event("Players"); }
  void AutoSave() { Event("AutoSave"); }
  void Hot() { Event("Hot"); }
  void History() { Event("History"); }
  void Options() { Event("Options"); }
  void Rules() { Event("Rules"); }
  void Contents() { Event("Contents"); }
  void About() { Event("About"); }

  // Plays a path; an empty path or a missing file is silent.
  void Play(const std::string& mWav);
  // The stored path, or the default one when nothing is stored: a stored empty text silences.
  std::string GetSound(const std::string& key) const;
  std::string GetDefault(const std::string& fName) const;
  void SetSound(const std::string& key, const std::string& value);
  // Readies the file of every event that has one.
  void Preload();

 private:
  void Event(const std::string& key);

  Program& app_;
};

}  // namespace qv
