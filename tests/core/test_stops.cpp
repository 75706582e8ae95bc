// Stops and crashes at awkward moments, and events that arrive while cards move: no game
// is lost or doubled, none given up comes back, and no change of the table starts inside another.
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <map>
#include <set>

#include "TestProgram.h"
#include "engine/Pointer.h"
#include "lists/AutoSave.h"
#include "lists/Pending.h"
#include "session/CommandTable.h"
#include "session/Commands.h"
#include "session/FirstGame.h"
#include "session/SavedGameFile.h"
#include "session/StartUp.h"

namespace qv {
namespace {

// A game is told apart by its deal and how far it went.
std::string Signature(const std::string& name, const GameNo& no, int moves) {
  return name + " - " + no.Text() + " @" + std::to_string(moves);
}
std::string Signature(const GameHeader& h) { return Signature(h.GameName, h.GameNo, h.Moves); }
std::string OnTable(const Program& app) {
  const auto& gp = app.cGamePlay;
  return gp.Game_Status() == 0 ? "" : Signature(gp.GameName(), gp.GameNo(), app.cEngine.GetTransID());
}

// Every place where a game waits for the user: the pending list, the unfinished game
// (when UnFin counts it) and the auto-saved copies.
std::multiset<std::string> GamesKept(const Program& app) {
  std::multiset<std::string> kept;
  for (const auto& g : ListGames(app.cData.PendingFolder(), {})) kept.insert(Signature(g.header));
  for (const auto& g : ListAutoSaves(app, false)) kept.insert(Signature(g.header));
  if (app.cRegistry.Get(setting::UnFin) == 1)
    if (const auto h = ReadGameHeader(app.cData.UnFinFile())) kept.insert(Signature(*h));
  return kept;
}

void Stop(test::TestProgram& t) { ASSERT_TRUE(StopProgram(*t.app, nullptr)); }

// A new run of the program on the same settings and files, as after a stop or a crash.
void StartAgain(test::TestProgram& t) {
  t.Restart();
  StartUp(*t.app);
  FirstGame(*t.app, "");
}

void ReplayToEnd(test::TestProgram& t) {
  while (t.window.TimerEnabled(Timer::Forward) && t->motion.state() != Motion::State::Stopped) ReplayTick(*t.app, true);
}

// What lies about before each way of starting a game: a game on the table with a row
// played, a game in the pending list, a saved game and a finished one.
struct Before {
  explicit Before(test::TestProgram& t) {
    StartUp(*t.app);
    t.Deal("Coral", 7);
    test::DealRows(t, 1);
    ExecCommand(*t.app, "AddPend");
    pending = GetPendingFiles(*t.app).at(0);
    t.Deal("Spider Two Suit", 31);
    test::DealRows(t, 2);
    saved = t.home.File("saved.vq0");
    t->cEngine.SavetoFile(saved);
    finished = t.home.File("done.vq1");
    t->cEngine.SavetoFile(finished);
    ExecCommand(*t.app, "Undo");  // the copy of the game given up differs from the saved file
    t.Deal("Spider", 5);
    test::DealRows(t, 1);
    running = OnTable(*t.app);
  }
  std::string pending, saved, finished, running;
};

struct Way {
  const char* name;
  std::function<void(test::TestProgram&, const Before&)> start;
  bool givesUpTheRunningGame = true;
};

const std::vector<Way>& Ways() {
  static const std::vector<Way> ways{
      {"number", [](auto& t, auto&) { t->cGamePlay.PlayNumber("Spider", GameNo::Number(42)); }},
      {"random", [](auto& t, auto&) { t->cGamePlay.PlayRandom("Scarab"); }},
      {"string", [](auto& t, auto&) { t->cGamePlay.PlayString("Plaza - 0077"); }},
      {"file", [](auto& t, const Before& b) { t->cGamePlay.PlayFile(b.saved, true); }},
      {"pending file", [](auto& t, const Before& b) { t->cGamePlay.PlayPendFile(b.pending); }},
      {"restart", [](auto& t, auto&) { t->cGamePlay.Restart(); }},
      {"finished replay", [](auto& t, const Before& b) { t->cGamePlay.PlayFile(b.finished, true); ReplayToEnd(t); }},
      {"resumed at start-up", [](auto& t, auto&) { Stop(t); StartAgain(t); }, false},
  };
  return ways;
}

// Starts a game one way and stops the program at its yield number `stopAt` (never when
// 0), or just after it; then starts the program again. Answers the games kept at the stop.
std::multiset<std::string> StartStopAndStartAgain(const Way& way, long stopAt, long* yields = nullptr) {
  test::TestProgram t;
  const Before before(t);
  auto kept = GamesKept(*t.app);
  kept.insert(before.running);
  t->rng.seed(7);
  long seen = 0;
  t.sprites.onYield = [&] {
    if (++seen == stopAt) EXPECT_FALSE(StopProgram(*t.app, [&] { StopProgram(*t.app, nullptr); }));
  };
  way.start(t, before);
  t.sprites.onYield = nullptr;
  if (yields) *yields = seen;
  if (stopAt == 0) Stop(t);
  EXPECT_EQ(t->motion.state(), Motion::State::Stopped);
  const auto after = GamesKept(*t.app);
  // Every game that was there before is still somewhere, and none is in two places.
  for (const auto& game : kept) EXPECT_EQ(after.count(game), 1u) << way.name << " at yield " << stopAt << ": " << game;
  EXPECT_EQ(std::set<std::string>(after.begin(), after.end()).size(), after.size()) << way.name << " at " << stopAt;
  // The next start brings back no game given up.
  StartAgain(t);
  if (way.givesUpTheRunningGame) EXPECT_NE(OnTable(*t.app), before.running) << way.name << " at " << stopAt;
  return after;
}

TEST(Stops, AStopAtAnyYieldOfAnyStartKeepsEveryGameOnce) {
  for (const Way& way : Ways()) {
    long yields = 0;
    const auto justAfter = StartStopAndStartAgain(way, 0, &yields);
    ASSERT_GT(yields, 50) << way.name;
    // Every third yield keeps the run short; the stop waits for the step's end at each.
    for (long k = 1; k <= yields; k += 3)
      ASSERT_EQ(StartStopAndStartAgain(way, k), justAfter) << way.name << " stopped at yield " << k;
  }
}

// The keeper: a crash costs at most the last second of play.
struct Crash : ::testing::Test {
  void SetUp() override {
    StartUp(*t.app);
    t.Deal("Spider", 1234);
    test::DealRows(t, 1);
  }
  void Tick(int64_t ms) {
    t.clock.ms = ms;
    t->keeper.Tick();
  }
  int KeptMoves() { return ReadGameHeader(t->cData.UnFinFile())->Moves; }
  test::TestProgram t;
};

TEST_F(Crash, TheGameComesBackAtItsLastKeptStep) {
  Tick(0);
  EXPECT_EQ(t->cRegistry.Get(setting::UnFin), 1);
  test::DealRows(t, 1);
  Tick(999);  // within the second: not yet
  EXPECT_EQ(KeptMoves(), 10);
  t->drag.Dragging = true;  // nor while a card hangs on the pointer
  Tick(1500);
  EXPECT_EQ(KeptMoves(), 10);
  t->drag.Dragging = false;
  Tick(1500);
  const auto table = test::Snapshot(*t.app);
  StartAgain(t);  // after a crash
  EXPECT_EQ(OnTable(*t.app), "Spider - 1234 @20");
  EXPECT_EQ(test::Snapshot(*t.app), table);
  // Running, and still marked: a second crash offers it again.
  EXPECT_TRUE(t->cGamePlay.Game_Running() && t->cRegistry.Get(setting::UnFin) == 1);
}

TEST_F(Crash, NothingIsWrittenWhileCardsMove) {
  Tick(0);
  long written = -1;
  t.sprites.onYield = [&] {
    Tick(5000);
    written = KeptMoves();
  };
  test::DealRows(t, 1);
  t.sprites.onYield = nullptr;
  Tick(5000);
  EXPECT_EQ(std::tuple(written, KeptMoves()), std::tuple(10, 20));
}

TEST_F(Crash, WithoutKeepingGamesTheGameBecomesAnAutoSavedCopy) {
  t.settings.WriteInt("Options", "GameSave", 0);
  t.settings.WriteInt("Options", "EnableInc", 0);  // a crash is no choice of the user's
  Tick(0);
  StartAgain(t);  // after a crash
  const auto copies = ListAutoSaves(*t.app, false);
  ASSERT_EQ(copies.size(), 1u);
  EXPECT_EQ(std::tuple(Signature(copies[0].header), t->cRegistry.Get(setting::UnFin)), std::tuple("Spider - 1234 @10", 0));
  EXPECT_NE(OnTable(*t.app), "Spider - 1234 @10");
}

TEST_F(Crash, AGameEndedBeforeTheCrashNeverComesBack) {
  Tick(0);
  ExecCommand(*t.app, "Close");
  StartAgain(t);  // after a crash
  EXPECT_EQ(GamesKept(*t.app), (std::multiset<std::string>{"Spider - 1234 @10"}));  // its auto-saved copy
  EXPECT_NE(OnTable(*t.app), "Spider - 1234 @10");
  // Nor does one moved to the pending list: it waits there, once.
  ExecCommand(*t.app, "New");  // the selection at start was left without a game
  ExecCommand(*t.app, "AddPend");
  const std::string pending = GetPendingFiles(*t.app).at(0);
  Tick(0);
  StartAgain(t);  // after a crash
  EXPECT_EQ(GetPendingFiles(*t.app), std::vector<std::string>{pending});
}

TEST_F(Crash, APendingGameIsKeptCurrentInItsOwnFile) {
  ExecCommand(*t.app, "AddPend");
  const std::string pending = GetPendingFiles(*t.app).at(0);
  ASSERT_TRUE(t->cGamePlay.PlayPendFile(pending));
  test::DealRows(t, 1);
  Tick(0);
  EXPECT_EQ(t->cRegistry.Get(setting::UnFin), 0);
  StartAgain(t);  // after a crash
  EXPECT_EQ(std::tuple(ReadGameHeader(pending)->Moves, GetPendingFiles(*t.app)), std::tuple(20, std::vector{pending}));
  EXPECT_NE(t->cGamePlay.PendFile(), pending);  // it waits in the list, not on the table
}

TEST_F(Crash, AProgramBesideTheOneThatKeepsTheSessionLeavesItsGameAlone) {
  Tick(0);
  // quorvale-cli run beside the window: the same settings and files.
  RecordingSprites sprites;
  RecordingWindow window;
  test::ScriptedDialogs dialogs;
  Program beside(Surface{sprites, window, dialogs, t.clock}, t.settings, t.Folders());
  StartUp(beside);
  beside.cGamePlay.PlayNumber("Coral", GameNo::Number(3));
  beside.keeper.Tick();
  ExecCommand(beside, "Close");
  beside.cGamePlay.PlayNumber("Plaza", GameNo::Number(4));
  ShutDown(beside);
  EXPECT_EQ(t->cRegistry.Get(setting::SessionRunning), 1);
  EXPECT_EQ(GamesKept(*t.app), (std::multiset<std::string>{"Coral - 3 @0", "Plaza - 4 @0", "Spider - 1234 @10"}));
  // The first program's own start goes on as before; a start beside it offers nothing waiting.
  Program again(Surface{sprites, window, dialogs, t.clock}, t.settings, t.Folders());
  StartUp(again);
  FirstGame(again, "");
  EXPECT_EQ(std::tuple(again.cEngine.GetTransID(), t->cRegistry.Get(setting::UnFin)), std::tuple(0, 1));
}

// Everything the user can fire: every command key, presses on cards and the replay timers.
void FireEverything(Program& app) {
  for (const MenuDef& menu : MainMenus())
    for (const MenuEntry& entry : menu.entries) {
      const bool greyed = !CommandEnabled(app, entry.key);
      const std::string key = entry.key;
      EXPECT_EQ(greyed, key != "Exit" && key != "Stop" && key != "Contents" && key != "Rules" && key != "About")
          << key;
      ExecCommand(app, key);
    }
  for (int card : {0, 50, 103}) {
    PointerPressed(app, card, 500, 30);
    PointerMoved(app, card, 900, 900);
    PointerReleased(app, card);
    PointerDoubleClicked(app, card);
  }
  for (bool forward : {true, false}) ReplayTick(app, forward);
}

// The journal: where it stands and every record up to its top.
auto Journal(const Program& app) {
  std::vector<TransRec> records;
  for (int i = 1; i <= app.cEngine.GetTransTop(); ++i) records.push_back(app.cEngine.Record(i));
  return std::tuple(app.cEngine.GetTransID(), records);
}

TEST(Motion, NothingFiredWhileCardsMoveChangesTheTable) {
  const std::vector<std::pair<const char*, std::function<void(test::TestProgram&)>>> changes{
      {"deal", [](auto& t) { t.Deal("Spider", 1); }},
      {"row", [](auto& t) { test::DealRows(t, 1); }},
      {"undo", [](auto& t) { ExecCommand(*t.app, "Undo"); }},
  };
  for (size_t c = 0; c < changes.size(); ++c) {
    // The table and journal after the change alone, with everything before it.
    auto upTo = [&](test::TestProgram& t, size_t last) {
      for (size_t i = 0; i < last; ++i) changes[i].second(t);
    };
    test::TestProgram quiet;
    upTo(quiet, c + 1);
    const auto table = test::Snapshot(*quiet.app);
    const auto journal = Journal(*quiet.app);
    for (long k = 1;; ++k) {
      test::TestProgram t;
      upTo(t, c);
      long seen = 0;
      t.sprites.onYield = [&] {
        if (++seen == k) FireEverything(*t.app);
      };
      changes[c].second(t);
      t.sprites.onYield = nullptr;
      if (seen < k) break;
      ASSERT_EQ(test::Snapshot(*t.app), table) << changes[c].first << " at yield " << k;
      ASSERT_TRUE(Journal(*t.app) == journal) << changes[c].first << " at yield " << k;
      EXPECT_TRUE(t.window.closed);  // Exit asked the window to close, which waits for the change
      EXPECT_EQ(t->motion.state(), Motion::State::Still);
    }
  }
}

TEST(Motion, AStopAskedForWhileCardsMoveWaitsForTheStepsEnd) {
  test::TestProgram t;
  StartUp(*t.app);
  t.Deal("Spider", 3);
  int stops = 0;
  bool stopped = false;
  t.sprites.onYield = [&] {
    if (stops++ == 0) EXPECT_FALSE(StopProgram(*t.app, [&] { stopped = StopProgram(*t.app, nullptr); }));
    EXPECT_EQ(t->motion.state(), Motion::State::StopWaiting);
  };
  ClickCard(*t.app, t->cPlay.GetTopPicID(1, 0));
  // The whole row is kept.
  EXPECT_EQ(std::tuple(stopped, ReadGameHeader(t->cData.UnFinFile())->Moves, t->cRegistry.Get(setting::SessionRunning)),
            std::tuple(true, 10, 0));
  // After the stop nothing changes the table any more.
  const auto table = test::Snapshot(*t.app);
  ExecCommand(*t.app, "New");
  ClickCard(*t.app, t->cPlay.GetTopPicID(1, 0));
  EXPECT_EQ(test::Snapshot(*t.app), table);
}

}  // namespace
}  // namespace qv
