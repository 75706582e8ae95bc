#pragma once

namespace qv {

// Sound events. They are silent until the program's sounds are built; the table and
// the session already call them at the moments they belong to.
class cSound {
 public:
  void StartGame() {}
  void MoveCard() {}
  void Undo() {}
  void Redo() {}
  void PauseGame() {}
  void CloseGame() {}
  void Toolbar() {}
  void Animation() {}
  void Deck() {}
  void Options() {}
  void AutoSave() {}
  void OrgPend() {}
  void Hot() {}
  void Win() {}
  void HighScore() {}
  void LogStat() {}
  void GameStat() {}
  void SessionStat() {}
  void Players() {}
  void AddFav() {}
  void OrgFav() {}
  void SelectDialog() {}
  void Rules() {}
  void History() {}
};

}  // namespace qv
