#include "session/cGamePlay.h"

#include "engine/Numeric.h"
#include "engine/mStudio.h"
#include "lists/AutoSave.h"
#include "lists/Favorites.h"
#include "lists/GameNumbers.h"
#include "lists/Pending.h"
#include "lists/Recent.h"
#include "scores/Finish.h"
#include "scores/Players.h"
#include "scores/ScoreText.h"
#include "session/Program.h"
#include "session/SavedGameCheck.h"
#include "session/SavedGameFile.h"
#include "settings/SettingKeys.h"
#include "settings/mCustomize.h"

namespace qv {

namespace {
constexpr const char* kDefaultGame = "Spider";
}

// Fills cCustom for a deal of name: a game of the list, else the fields a saved game's
// header gave for this very name, else (a restart of a game deleted since) the fields the
// game on the table was dealt with. False for any other name.
bool cGamePlay::LoadRules(const std::string& name) {
  if (app_.cCustom.Init(name) || app_.cCustom.HoldsHeaderFor(name)) return true;
  if (status_ != 1 || name != gameName_ || !dealt_) return false;
  app_.cCustom = *dealt_;
  return true;
}

bool cGamePlay::StartGame(const std::string& cGameName, const qv::GameNo& cGameNo, int cLoadType, int32_t cTime,
                          int16_t cScore, int16_t cRedealsComp) {
  Motion::Step step(app_.motion);
  if (!step) return false;
  if (!LoadRules(cGameName)) {
    app_.MsgBox("The game \"" + cGameName + "\" is not in the list of games, so it cannot be dealt.", MsgStyle::Stop);
    return false;
  }
  const cCustom rules = app_.cCustom;
  if (status_ == 1 && !EndGame(0, false)) return false;
  if (status_ == 2) ClearArea();
  // A game that ended while paused leaves no pressed Pause button behind.
  pauseStatus_ = false;
  app_.surface.window.ShowPaused(false);
  loadingType_ = cLoadType;
  if (app_.cRegistry.Get(setting::WPTimerValue) == 4) PickWallpaper(app_);
  gameName_ = cGameName;
  gameNo_ = cGameNo;
  startTime_ = GeneralDate(app_.surface.clock.Now());
  redealsComp_ = cRedealsComp;
  time_ = cTime;
  storedScore_ = cScore;
  app_.cCustom = rules;
  dealt_ = rules;
  SetupGame(rules, app_.cGames);
  app_.cPlay.Init(gameNo_);
  if (cLoadType == kNewDeal) {
    app_.cEngine.ClearTRANS();
  } else if (cLoadType == kFinishedFile) {
    status_ = 2;
    app_.surface.window.EnableTimer(Timer::Forward, true);
  } else {
    // Running is still false, so the end-of-game check keeps quiet while the table is rebuilt.
    int speed = 0;
    app_.cEngine.RedoAll(speed);
  }
  if (cLoadType != kFinishedFile) {
    AddRecent(app_, kRecentPlayed, gameName_ + " - " + gameNo_.Text());
    running_ = true;
    app_.surface.window.EnableTimer(Timer::Game, true);
    LastGName(gameName_);
    status_ = 1;
  }
  return true;
}

bool cGamePlay::PlayRandom(const std::optional<std::string>& gName) {
  std::string name = gName.value_or(LastGName());
  // A first run with no game played yet has no last game, and the last may have been
  // deleted since: deal the family's first.
  if (!gName && !app_.cData.GameExists(name)) name = kDefaultGame;
  return StartGame(name, RandomGameNo(app_), 0, 0, 0, 0);
}

bool cGamePlay::PlayString(const std::string& s) {
  const auto played = SplitPlayed(s);
  return played && StartGame(played->first, played->second, 0, 0, 0, 0);
}

bool cGamePlay::PlayFavFile(const std::string& fName) {
  const auto rec = ReadFavFile(fName);
  if (!rec) {
    app_.MsgBox("The favourite \"" + fName + "\" cannot be played: it holds no game.", MsgStyle::Stop);
    return false;
  }
  return StartGame(rec->GameName, rec->GameNo, 0, 0, 0, 0);
}

std::optional<SavedGame> cGamePlay::ReadPlayable(const std::string& fName) {
  ParsedGame parsed = ReadSavedGame(fName);
  std::string why = parsed.game ? CheckSavedGame(app_, *parsed.game) : parsed.error;
  if (why.empty()) return std::move(parsed.game);
  app_.MsgBox("The saved game \"" + fName + "\" cannot be played: " + why + ".", MsgStyle::Stop);
  return std::nullopt;
}

bool cGamePlay::PlayFile(const std::string& fName, bool bRecent) {
  Motion::Step step(app_.motion);
  if (!step) return false;
  auto game = ReadPlayable(fName);
  if (!game) return false;
  if (status_ == 1 && !EndGame(0, false)) return false;
  app_.cEngine.LoadRecords(game->records);
  const GameHeader& h = game->header;
  if (bRecent) AddRecent(app_, kRecentOpened, fName);
  const int loadType = IsFinishedFileName(fName, app_.cData.FinExt()) ? kFinishedFile : kIncompleteFile;
  app_.cCustom.LoadGameFile(h);
  return StartGame(h.GameName, h.GameNo, loadType, h.Time, h.Score, 0);
}

bool cGamePlay::PlayPendFile(const std::string& fName) {
  Motion::Step step(app_.motion);
  if (!step) return false;
  auto game = ReadPlayable(fName);
  if (!game) return false;
  if (status_ == 1 && !EndGame(0, false)) return false;
  if (status_ == 2) ClearArea();
  pendFile_ = fName;
  app_.cEngine.LoadRecords(game->records);
  app_.cCustom.LoadGameFile(game->header);
  // The menu shows the entry as now playing until its next rebuild.
  app_.surface.window.RefreshMenus();
  // The file stays where it is while its game is on the table, kept current by the keeper,
  // so no stop and no crash can lose it; the lists pass it over meanwhile.
  return StartGame(game->header.GameName, game->header.GameNo, kPendingGame, game->header.Time, game->header.Score,
                   0);
}

bool cGamePlay::EndGame(int Win, bool bTerminate) {
  // A won game has been recorded already; what is left is to clear the table.
  if (won_) {
    if (!bTerminate) ClearArea();
    return true;
  }
  if (loadingType_ != kPendingGame) {
    app_.cScore.AddScore(0);
    if (!bTerminate) app_.cScore.AddSesGame(Win);
    AutoSaveGame(app_, false);
  } else if (!SavePendingFile(app_, pendFile_)) {
    return false;
  }
  if (!bTerminate) ClearArea();
  return true;
}

void cGamePlay::ClearArea() {
  app_.keeper.Forget();
  app_.surface.window.EnableTimer(Timer::Game, false);
  running_ = false;
  won_ = false;
  status_ = 0;
  pendFile_.clear();
  app_.cPlay.ClearAll();
}

void cGamePlay::Unload() {
  // Each game is given its place before the mark that points elsewhere is cleared: a stop
  // cut short in between leaves a game in two places at worst, never in none.
  const bool keepsSession = app_.session.Held();
  if (status_ == 1 && !won_ && loadingType_ != kPendingGame && app_.cRegistry.Get(setting::GameSave) == 1) {
    // Beside the program that keeps the unfinished game, this one's waits as a copy.
    if (!keepsSession) {
      AutoSaveGame(app_, false, true);
      return;
    }
    // The game counts as waiting only once its file is there whole.
    std::string error;
    if (app_.cEngine.SavetoFile(app_.cData.UnFinFile(), &error)) app_.cRegistry.Set(setting::UnFin, 1);
    else app_.MsgBox("The unfinished game could not be kept for the next start: " + error + ".", MsgStyle::Stop);
    return;
  }
  // A pending game whose file cannot be written back is kept as an auto-saved copy.
  if (status_ == 1 && !EndGame(0, true)) AutoSaveGame(app_, false, true);
  if (keepsSession) app_.cRegistry.Set(setting::UnFin, 0);
}

void cGamePlay::PauseGame(bool mPause) {
  pauseStatus_ = mPause;
  app_.surface.window.EnableTimer(Timer::Game, !mPause);
  app_.surface.window.ShowPaused(mPause);
}

std::string cGamePlay::TimeString() const { return FormatSeconds(time_); }

int16_t cGamePlay::Moves() const { return Saturate16(app_.cEngine.GetTransID()); }

int16_t cGamePlay::Score() const {
  if (!running_) return storedScore_;
  const double G = app_.cEngine.TotalGoalCards();
  return Saturate16(RoundHalfEven(10 * G - (time_ / 3.0 + Moves() / 2.0)));
}

int16_t cGamePlay::Percentage() const {
  const int total = app_.cGames.TotalCards();
  if (total <= 0) return 0;
  return Saturate16(RoundHalfEven(100.0 * app_.cEngine.TotalGoalCards() / total));
}

int16_t cGamePlay::CardsLeft() const {
  return Saturate16(app_.cGames.TotalCards() - app_.cEngine.TotalGoalCards());
}

std::string cGamePlay::Title() const {
  std::string title = app_.cData.ProdName();
  if (status_ == 0) return title;
  const auto& reg = app_.cRegistry;
  title += " [" + gameName_ + " - " + gameNo_.Text() + "] [" + GetCurPlayer(reg) + "]";
  std::string readouts;
  auto add = [&readouts](const std::string& r) { readouts += (readouts.empty() ? "" : " ") + r; };
  if (reg.Get(setting::ShowTime) == 1) add("Time:" + TimeString());
  if (reg.Get(setting::ShowScore) == 1) add("Score:" + std::to_string(Score()));
  if (reg.Get(setting::ShowMoves) == 1) add("Moves:" + std::to_string(Moves()));
  if (reg.Get(setting::ShowCardsLeft) == 1) add("Cards Left:" + std::to_string(CardsLeft()));
  if (!readouts.empty()) title += " [" + readouts + "]";
  if (loadingType_ == kPendingGame) title += " [Pending List Game]";
  if (loadingType_ == kFinishedFile) title += " [Finished Game]";
  if (pauseStatus_) title += " [Game Paused]";
  return title;
}

void cGamePlay::Update_Title() { app_.surface.window.SetTitle(Title()); }

std::string cGamePlay::LastGName() const { return app_.cRegistry.Get(setting::LastGName); }
void cGamePlay::LastGName(const std::string& name) { app_.cRegistry.Set(setting::LastGName, name); }

void cGamePlay::TickGame() {
  if (running_ && !pauseStatus_) time_ = Saturate32(static_cast<long long>(time_) + 1);
}

void cGamePlay::CheckEndOfGame() {
  if (won_ || app_.cEngine.TotalGoalCards() != app_.cGames.TotalCards()) return;
  won_ = true;
  RecordWin(app_);
  app_.surface.window.ShowFinish();
}

}  // namespace qv
