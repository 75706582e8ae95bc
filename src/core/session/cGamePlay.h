#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "engine/GameNo.h"
#include "engine/cCustom.h"

namespace qv {

class Program;
struct SavedGame;

// The game on the table as a whole: which deal, how it came, whether it runs, its clock
// and score. Every way of beginning a game ends in StartGame.
class cGamePlay {
 public:
  enum LoadingType { kNewDeal = 0, kIncompleteFile = 1, kFinishedFile = 2, kPendingGame = 3 };

  explicit cGamePlay(Program& app) : app_(app) {}

  // False when the game cannot be dealt (a name the program does not know); the message
  // has been shown and the table is as it was.
  bool StartGame(const std::string& cGameName, const qv::GameNo& cGameNo, int cLoadType, int32_t cTime,
                 int16_t cScore, int16_t cRedealsComp);
  bool PlayNumber(const std::string& gName, const qv::GameNo& gNo) { return StartGame(gName, gNo, 0, 0, 0, 0); }
  bool PlayRandom(const std::optional<std::string>& gName = std::nullopt);
  bool Restart() { return PlayNumber(GameName(), GameNo()); }
  bool PlayString(const std::string& s);
  // A file that does not read, or whose moves do not fit its deal, is refused with one
  // message before anything changes.
  bool PlayFile(const std::string& fName, bool bRecent);
  bool PlayPendFile(const std::string& fName);
  // A new deal of a favourite's game and number; a record that does not read is refused
  // with one message and the game on the table goes on.
  bool PlayFavFile(const std::string& fName);
  void PauseGame(bool mPause);
  bool PauseStatus() const { return pauseStatus_; }
  void Unload();
  // False only when a pending game could not be written back and so stays on the table.
  bool EndGame(int Win, bool bTerminate);
  void ClearArea();

  int32_t Time() const { return time_; }
  void Time(int32_t t) { time_ = t; }
  std::string TimeString() const;
  int16_t Score() const;
  int16_t Moves() const;
  bool Game_Running() const { return running_; }
  void Game_Running(bool r) { running_ = r; }
  const std::string& Game_StartTime() const { return startTime_; }
  void Game_StartTime(const std::string& t) { startTime_ = t; }
  const qv::GameNo& GameNo() const { return gameNo_; }
  void GameNo(const qv::GameNo& n) { gameNo_ = n; }
  const std::string& GameName() const { return gameName_; }
  void GameName(const std::string& n) { gameName_ = n; }
  int16_t Percentage() const;
  int16_t CardsLeft() const;
  void Update_Title();
  std::string Title() const;
  int16_t RedealsComp() const { return redealsComp_; }
  void RedealsComp(int16_t r) { redealsComp_ = r; }
  int Game_Status() const { return status_; }
  bool IsPending() const { return loadingType_ == kPendingGame; }
  std::string LastGName() const;
  void LastGName(const std::string& name);
  int Game_LoadingType() const { return loadingType_; }
  const std::string& PendFile() const { return pendFile_; }
  // The rule fields the game on the table was dealt with: saving it, restarting it and its
  // rules page use these, whatever was browsed, edited or deleted since.
  const std::optional<cCustom>& DealtRules() const { return dealt_; }

  // One second of the game clock (the tick of the game timer).
  void TickGame();
  // After every move of a running game: all cards on the foundations records the win and
  // opens the finish, once.
  void CheckEndOfGame();
  // All cards are home and the win is recorded; the table waits for the finish to close.
  bool Won() const { return won_; }

 private:
  std::optional<SavedGame> ReadPlayable(const std::string& fName);
  bool LoadRules(const std::string& name);

  Program& app_;
  bool running_ = false;
  std::string startTime_;
  int32_t time_ = 0;
  int16_t storedScore_ = 0;
  qv::GameNo gameNo_;
  std::string gameName_;
  int16_t redealsComp_ = 0;
  bool pauseStatus_ = false;
  int loadingType_ = 0;
  std::string pendFile_;
  int status_ = 0;
  bool won_ = false;
  std::optional<cCustom> dealt_;
};

}  // namespace qv
