// The score store and its windows over 100,000 games of 20 players, and "Congrats" after
// the winning move. Dialogs are built and shown offscreen (QT_QPA_PLATFORM offscreen unless
// set), with the store in a temporary home in memory where the machine has /dev/shm.
// With --screenshots DIR it instead writes a picture of every window and tab over a few
// hundred games of five players, and of "Congrats" with a negative score.

#include <benchmark/benchmark.h>


#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QTabWidget>
#include <QTableView>
#include <algorithm>
#include <chrono>
#include <filesystem>
#include <random>
#include <string>

#include "QtBenchMain.h"
#include "FinishDialog.h"
#include "GameStatDialog.h"
#include "HighScoreDialog.h"
#include "LogStatDialog.h"
#include "PlayersDialog.h"
#include "SessionStatDialog.h"
#include "TestProgram.h"
#include "engine/Pointer.h"
#include "scores/Finish.h"
#include "scores/Players.h"

namespace qv {
namespace {

// `games` score lines over `players` players, dated in the two years before the test
// clock; about a third won, some scores negative, some numbers typed.
void MakeStore(test::TestProgram& t, int games, int players) {
  std::mt19937 rng(7);
  std::vector<std::vector<std::pair<std::time_t, std::string>>> lines(players);
  for (int p = 1; p <= players; ++p) SetPlayer(t->cRegistry, p, "Player" + std::to_string(p), p == 1);
  for (int i = 0; i < games; ++i) {
    ScoreRec r;
    // Most games in the last six weeks, the rest over two years.
    const std::time_t span = rng() % 3 == 0 ? 2 * 365 * 86400 : 42 * 86400;
    const std::time_t when = t.clock.now - std::time_t(rng() % span);
    r.Date = GeneralDate(when);
    r.GameName = t->cData.GetGName(1 + rng() % t->cData.TotalGames());
    r.GameNo = rng() % 10 == 0 ? GameNo::Typed(std::to_string(rng() % 1000)) : GameNo::Number(uint64_t(1 + rng() % 999999));
    r.Won = rng() % 3 == 0;
    r.Time = 60 + rng() % 3000;
    r.Moves = 100 + rng() % 400;
    r.Score = r.Won ? 200 + rng() % 900 : int(rng() % 600) - 200;
    lines[rng() % players].emplace_back(when, ScoreLine(r));
  }
  // Each file oldest first, as games are added.
  for (int p = 1; p <= players; ++p) {
    std::sort(lines[p - 1].begin(), lines[p - 1].end());
    std::string text;
    for (const auto& line : lines[p - 1]) text += line.second;
    test::WriteFile(t->cScore.ScoreFile("Player" + std::to_string(p), FolderUse::Write), text);
  }
}

test::TestProgram& BigStore() {
  static test::TestProgram* t = [] {
    auto* p = new test::TestProgram;
    MakeStore(*p, 100000, 20);
    return p;
  }();
  return *t;
}

void Settle(QWidget& w) {
  w.show();
  QApplication::processEvents();
}

void BM_OpenAllScore(benchmark::State& state) {
  auto& t = BigStore();
  for (auto _ : state) t->cScore.OpenAllScore();
  if (t->cScore.ScoreTop() != 100000) state.SkipWithError("the store did not read whole");
  t->cScore.CloseScore();
}

void BM_Sort(benchmark::State& state) {
  auto& t = BigStore();
  t->cScore.OpenAllScore();
  for (auto _ : state) t->cScore.Sort("", "", 0);
  if (t->cScore.TopItem(20).Date.empty()) state.SkipWithError("the top list is not full");
  t->cScore.CloseScore();
}

void BM_FinSortTime(benchmark::State& state) {
  auto& t = BigStore();
  t->cScore.OpenAllScore();
  for (auto _ : state) t->cScore.FinSort(true, false);
  if (t->cScore.TopItem(20).Date.empty()) state.SkipWithError("the top list is not full");
  t->cScore.CloseScore();
}

// One line at the end of a file of 100,000 (the current player holds them all here).
void BM_AddScore(benchmark::State& state) {
  test::TestProgram t;
  SetPlayer(t->cRegistry, 1, "Player1", true);
  std::string lines;
  ScoreRec r{"11/17/2026 6:41:26 AM", "Spider", GameNo::Number(uint64_t(123456)), 754, 212, 683, 1, "", {}};
  for (int i = 0; i < 100000; ++i) lines += ScoreLine(r);
  test::WriteFile(t->cScore.ScoreFile("Player1", FolderUse::Write), lines);
  t.Deal("Spider", 5);
  for (auto _ : state) t->cScore.AddScore(0);
}

void BM_Export(benchmark::State& state) {
  auto& t = BigStore();
  const std::string path = t.home.File("Scoreboard.txt");
  for (auto _ : state)
    if (!t->cScore.ExportStat(path)) state.SkipWithError("the report was not written");
}

template <class Dialog>
void BM_Shown(benchmark::State& state) {
  auto& t = BigStore();
  for (auto _ : state) {
    Dialog dlg(*t);
    Settle(dlg);
  }
}

// A change of a selector; `name` is the combo box, stepped through its items.
template <class Dialog>
void BM_Selector(benchmark::State& state, const char* name) {
  auto& t = BigStore();
  Dialog dlg(*t);
  Settle(dlg);
  auto* box = dlg.template findChild<QComboBox*>(name);
  int i = 0;
  for (auto _ : state) {
    box->setCurrentIndex(++i % box->count());
    QApplication::processEvents();
  }
}

// A game of Any Card rules one double-click from its win.
struct AlmostWon {
  explicit AlmostWon(test::TestProgram& t) : path(t.home.File("almost.vq0")) {
    test::PlayWithRules(t, {.HOrder = 5, .MOrder = 5});
    test::WinGame(t);
    int speed = 0;
    t->cEngine.Undo(speed);
    t->cEngine.SavetoFile(path);
    t->cGamePlay.ClearArea();
  }
  int LastCard(test::TestProgram& t) const {
    for (int p = 0; p < t->cGames.Piles(0); ++p)
      if (t->cPlay.GetTop(0, p) >= 0) return t->cPlay.GetTopPicID(0, p);
    return -1;
  }
  std::string path;
};

// From the winning double-click to "Congrats" on the screen, with the player's file
// holding 100,000 games.
void BM_Congrats(benchmark::State& state) {
  auto& t = BigStore();
  AlmostWon game(t);
  std::chrono::steady_clock::time_point start;
  t.window.onFinish = [&] {
    FinishDialog dlg(*t);
    Settle(dlg);
    state.SetIterationTime(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    dlg.close();
  };
  for (auto _ : state) {
    t->cGamePlay.PlayFile(game.path, false);
    const int last = game.LastCard(t);
    start = std::chrono::steady_clock::now();
    DoubleClickCard(*t.app, last);
  }
  t.window.onFinish = nullptr;
}

BENCHMARK(BM_OpenAllScore)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Sort)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_FinSortTime)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_AddScore)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_Export)->Unit(benchmark::kMillisecond);
void BM_GameStatShown(benchmark::State& s) { BM_Shown<GameStatDialog>(s); }
void BM_GameStatSelector(benchmark::State& s, const char* box) { BM_Selector<GameStatDialog>(s, box); }
void BM_LogStatShown(benchmark::State& s) { BM_Shown<LogStatDialog>(s); }
void BM_LogStatSelector(benchmark::State& s, const char* box) { BM_Selector<LogStatDialog>(s, box); }
void BM_HighScoreShown(benchmark::State& s) { BM_Shown<HighScoreDialog>(s); }

BENCHMARK(BM_GameStatShown)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_GameStatSelector, games, "imcGames")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_GameStatSelector, dates, "imcDate")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_GameStatSelector, players, "imcPlayer")->Unit(benchmark::kMillisecond);
BENCHMARK(BM_LogStatShown)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_LogStatSelector, players, "imcPlayer")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_LogStatSelector, dates, "imcDate")->Unit(benchmark::kMillisecond);
BENCHMARK(BM_HighScoreShown)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Congrats)->UseManualTime()->Unit(benchmark::kMillisecond);

// Every window and tab over a few hundred games of five players.
int Screenshots(const std::string& dir) {
  test::TestProgram t;
  MakeStore(t, 400, 5);
  t->cData.SesStartTime(GeneralDate(t.clock.now - 5000));
  auto save = [&](QWidget& w, const std::string& name) {
    Settle(w);
    w.grab().save(QString::fromStdString(dir + "/dialog-" + name + ".png"));
  };
  auto tabs = [&](QDialog& dlg, const std::vector<std::string>& names) {
    auto* tab = dlg.findChild<QTabWidget*>("SSTab1");
    for (size_t i = 0; i < names.size(); ++i) {
      tab->setCurrentIndex(int(i));
      save(dlg, names[i]);
    }
  };
  {
    GameStatDialog dlg(*t);
    tabs(dlg, {"gamestat-general", "gamestat-games", "gamestat-dates", "gamestat-players"});
  }
  {
    HighScoreDialog dlg(*t);
    tabs(dlg, {"highscore-top", "highscore-games", "highscore-players", "highscore-finished"});
  }
  {
    LogStatDialog dlg(*t);
    save(dlg, "logstat");
  }
  {
    PlayersDialog dlg(*t);
    save(dlg, "players");
  }
  // Two games given up in this run and one on the table.
  for (int n : {11, 12}) {
    t.Deal("Spider", n);
    test::DealRows(t, 2);
    for (int s = 0; s < 200; ++s) t->cGamePlay.TickGame();
    t->cGamePlay.EndGame(0, false);
  }
  t.Deal("Spider Two Suit", 13);
  test::DealRows(t, 1);
  for (int s = 0; s < 95; ++s) t->cGamePlay.TickGame();
  {
    SessionStatDialog dlg(*t);
    tabs(dlg, {"sessionstat-summary", "sessionstat-details"});
  }
  // A win so slow that its score is below zero.
  AlmostWon game(t);
  t->cGamePlay.PlayFile(game.path, false);
  t->cGamePlay.Time(5000);
  t.window.onFinish = [&] {
    FinishDialog dlg(*t);
    save(dlg, "congrats");
    dlg.close();
  };
  DoubleClickCard(*t.app, game.LastCard(t));
  return 0;
}

}  // namespace
}  // namespace qv

int main(int argc, char** argv) {
  setenv("TZ", "UTC", 1);
  return qv::RunQtBenchmarks(argc, argv, [](int n, char** args) {
    return n == 3 && std::string(args[1]) == "--screenshots" ? qv::Screenshots(args[2]) : -1;
  });
}
