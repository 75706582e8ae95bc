// Timings of the core on the recording surface: the deal, a move with its undo and redo,
// loading and replaying a long saved game, walking its journal and saving it; the lists
// of saved games; reading and writing the settings file.
// Every benchmark builds its table before the timed loop and checks afterwards that the
// table ended where it should, so a figure never comes from work that went wrong.

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <new>
#include <string>
#include <vector>

#include "TestProgram.h"
#include "engine/Pointer.h"
#include "lists/AutoSave.h"
#include "lists/Pending.h"
#include "session/AtomicFile.h"
#include "session/SavedGameFile.h"
#include "settings/IniSettingsStore.h"
#include "settings/cRegistry.h"

namespace {
// Allocations made by this thread, so a benchmark can show that its loop makes none.
thread_local size_t tAllocations = 0;
}  // namespace

// Kept out of line, with the deletes: inlined into a caller, GCC 12 pairs the malloc()
// or free() it sees with the other side's operator and warns of a mismatch.
[[gnu::noinline]] void* operator new(std::size_t size) {
  ++tAllocations;
  if (void* p = std::malloc(size ? size : 1)) return p;
  throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* p) noexcept { std::free(p); }
[[gnu::noinline]] void operator delete(void* p, std::size_t) noexcept { std::free(p); }

namespace qv {
namespace {

// "Any Card" rules let any top card go on any pile, so a journal of any length can be made.
const test::Rules kAnyCard{.HOrder = 5, .MOrder = 5};
constexpr uint64_t kSpiderGame = 12345;
constexpr int kJournalLength = 1000;

// Moves the top card of `from` onto the top of `to` as a drop does (tMod 0).
void MoveTopCard(Program& app, int from, int to, int speed) {
  app.cPlay.MoveCard(app.cPlay.GetTopPicID(0, from), 0, to, app.cPlay.GetTop(0, to) + 1, 0, speed, 0, true);
}

// Deals again the game on the table, as a new game of the same number does after the old
// one is cleared away; the rules stay as they were set up.
void Redeal(Program& app) {
  app.cPlay.ClearAll();
  app.cPlay.Init(app.cGamePlay.GameNo());
}

// An Any Card game with a journal of kJournalLength single-card moves between tableau
// piles, saved to a file in the program's temporary home. The moves wander over all ten
// piles so that closed cards are turned up along the way, as in real play.
struct LongGame {
  test::TestProgram t;
  std::string file;
  std::vector<int> end;
  std::string error;

  LongGame() {
    test::PlayWithRules(t, kAnyCard);
    const int piles = t->cGames.Piles(0);
    for (int i = 0; t->cEngine.GetTransID() < kJournalLength; ++i) {
      int from = (i * 7) % piles;
      while (t->cPlay.GetTop(0, from) < 0) from = (from + 1) % piles;
      int to = (from + 1 + (i * 3) % (piles - 1)) % piles;
      MoveTopCard(*t.app, from, to, 0);
    }
    end = test::Snapshot(*t.app);
    file = t.home.File("long.vq0");
    if (!t->cEngine.SavetoFile(file, &error)) error = "saving the long game failed: " + error;
    else if (t->cEngine.GetTransID() != kJournalLength) error = "the long game has the wrong number of moves";
  }
  Program& app() { return *t.app; }
};

// Times only `work` in each iteration, by the steady clock, with `untimed` run before it.
// PauseTiming reads a CPU-time clock, a system call that costs microseconds here,
// which would weigh more than the cleared table it leaves out.
template <typename Untimed, typename Work>
void TimeOnly(benchmark::State& state, Untimed untimed, Work work) {
  for (auto _ : state) {
    untimed();
    const auto start = std::chrono::steady_clock::now();
    work();
    const auto stop = std::chrono::steady_clock::now();
    state.SetIterationTime(std::chrono::duration<double>(stop - start).count());
  }
}

// cPlay.Init of a standard Spider deal: 104 cards made, placed in the Stock and 44 dealt
// out, with every sprite set up. Clearing the previous table is not timed.
void BM_Deal(benchmark::State& state) {
  test::TestProgram t;
  t.Deal("Spider", kSpiderGame);
  const auto dealt = test::Snapshot(*t.app);
  const GameNo no = t->cGamePlay.GameNo();
  TimeOnly(state, [&] { t->cPlay.ClearAll(); }, [&] { t->cPlay.Init(no); });
  if (test::Snapshot(*t.app) != dealt) state.SkipWithError("the deal came out differently");
}
BENCHMARK(BM_Deal)->UseManualTime()->Unit(benchmark::kMicrosecond);

// The same deal with the clearing of the previous table timed too: what a new game of
// the same rules costs on the table.
void BM_ClearAndDeal(benchmark::State& state) {
  test::TestProgram t;
  t.Deal("Spider", kSpiderGame);
  const auto dealt = test::Snapshot(*t.app);
  for (auto _ : state) Redeal(*t.app);
  if (test::Snapshot(*t.app) != dealt) state.SkipWithError("the deal came out differently");
}
BENCHMARK(BM_ClearAndDeal)->Unit(benchmark::kMicrosecond);

// One iteration: the top card of pile 0 is dropped on pile 1 (cPlay.MoveCard, tMod 0,
// speed 1, as a drop; the closed card under it is turned up), then Undo, Redo and Undo
// again at speed 0. That is two moves forward and two back, and the table and journal
// are as they were, so every iteration does the same work.
void BM_MoveUndoRedo(benchmark::State& state) {
  test::TestProgram t;
  test::PlayWithRules(t, kAnyCard);
  const auto dealt = test::Snapshot(*t.app);
  auto& e = t->cEngine;
  for (auto _ : state) {
    MoveTopCard(*t.app, 0, 1, 1);
    int speed = 0;
    e.Undo(speed);
    e.Redo(speed);
    e.Undo(speed);
  }
  if (test::Snapshot(*t.app) != dealt || e.GetTransID() != 0 || e.GetTransTop() != 1)
    state.SkipWithError("move, undo, redo, undo did not come back to the deal");
}
BENCHMARK(BM_MoveUndoRedo);

// One iteration: the same drop and one Undo. Set against BM_MoveUndoRedo it gives the
// cost of a redo with its undo.
void BM_MoveUndo(benchmark::State& state) {
  test::TestProgram t;
  test::PlayWithRules(t, kAnyCard);
  const auto dealt = test::Snapshot(*t.app);
  auto& e = t->cEngine;
  for (auto _ : state) {
    MoveTopCard(*t.app, 0, 1, 1);
    int speed = 0;
    e.Undo(speed);
  }
  if (test::Snapshot(*t.app) != dealt || e.GetTransID() != 0 || e.GetTransTop() != 1)
    state.SkipWithError("move, undo did not come back to the deal");
}
BENCHMARK(BM_MoveUndo);

// One iteration: the whole pointer gesture (press, move, release over pile 1, with the
// hit test and the rule check) instead of the bare MoveCard, then Undo, Redo, Undo.
void BM_DragUndoRedo(benchmark::State& state) {
  test::TestProgram t;
  test::PlayWithRules(t, kAnyCard);
  const auto dealt = test::Snapshot(*t.app);
  auto& e = t->cEngine;
  const int pic = t->cPlay.GetTopPicID(0, 0);
  for (auto _ : state) {
    DragCardToPile(*t.app, pic, 1);
    int speed = 0;
    e.Undo(speed);
    e.Redo(speed);
    e.Undo(speed);
  }
  if (test::Snapshot(*t.app) != dealt || e.GetTransID() != 0 || e.GetTransTop() != 1)
    state.SkipWithError("drag, undo, redo, undo did not come back to the deal");
}
BENCHMARK(BM_DragUndoRedo);

// One iteration: the deal again (ClearAll and Init with the file's game number), then
// cEngine.LoadFile of the 1,000-record saved game and RedoAll at speed 0.
void BM_LoadAndRedo1000(benchmark::State& state) {
  LongGame g;
  if (!g.error.empty()) return state.SkipWithError(g.error.c_str());
  auto& e = g.app().cEngine;
  for (auto _ : state) {
    Redeal(g.app());
    if (!e.LoadFile(g.file)) return state.SkipWithError("the long game did not load");
    int speed = 0;
    e.RedoAll(speed);
  }
  if (test::Snapshot(g.app()) != g.end || e.GetTransID() != kJournalLength)
    state.SkipWithError("the replay did not end where the game did");
  state.SetItemsProcessed(state.iterations() * kJournalLength);
}
BENCHMARK(BM_LoadAndRedo1000)->Unit(benchmark::kMicrosecond);

// As BM_LoadAndRedo1000 with the deal not timed: LoadFile and RedoAll only.
void BM_LoadAndRedo1000_NoDeal(benchmark::State& state) {
  LongGame g;
  if (!g.error.empty()) return state.SkipWithError(g.error.c_str());
  auto& e = g.app().cEngine;
  bool loaded = true;
  TimeOnly(state, [&] { Redeal(g.app()); },
           [&] {
             loaded = e.LoadFile(g.file) && loaded;
             int speed = 0;
             e.RedoAll(speed);
           });
  if (!loaded) state.SkipWithError("the long game did not load");
  else if (test::Snapshot(g.app()) != g.end || e.GetTransID() != kJournalLength)
    state.SkipWithError("the replay did not end where the game did");
  state.SetItemsProcessed(state.iterations() * kJournalLength);
}
BENCHMARK(BM_LoadAndRedo1000_NoDeal)->UseManualTime()->Unit(benchmark::kMicrosecond);

// cEngine.LoadFile of the 1,000-record saved game alone: reading and parsing the file
// into the journal, the table untouched.
void BM_LoadFile1000(benchmark::State& state) {
  LongGame g;
  if (!g.error.empty()) return state.SkipWithError(g.error.c_str());
  auto& e = g.app().cEngine;
  for (auto _ : state)
    if (!e.LoadFile(g.file)) return state.SkipWithError("the long game did not load");
  if (e.GetTransTop() != kJournalLength || e.GetTransID() != 0)
    state.SkipWithError("the loaded journal has the wrong length");
  state.SetItemsProcessed(state.iterations() * kJournalLength);
}
BENCHMARK(BM_LoadFile1000)->Unit(benchmark::kMicrosecond);

// One iteration: on the 1,000-record journal with every record on the table,
// MoveTo(0) then MoveTo(TransTop): 1,000 undos and 1,000 redos at speed 0.
void BM_MoveToWalk(benchmark::State& state) {
  LongGame g;
  if (!g.error.empty()) return state.SkipWithError(g.error.c_str());
  auto& e = g.app().cEngine;
  for (auto _ : state) {
    e.MoveTo(0);
    e.MoveTo(e.GetTransTop());
  }
  if (test::Snapshot(g.app()) != g.end || e.GetTransID() != kJournalLength)
    state.SkipWithError("the walk did not come back to the end");
  state.SetItemsProcessed(state.iterations() * 2 * kJournalLength);
}
BENCHMARK(BM_MoveToWalk)->Unit(benchmark::kMicrosecond);

// cEngine.SavetoFile of the 1,000-record game: the text and the atomic write, which
// flushes the file and its folder to the disk.
void BM_SaveToFile1000(benchmark::State& state) {
  LongGame g;
  if (!g.error.empty()) return state.SkipWithError(g.error.c_str());
  const std::string file = g.t.home.File("again.vq0");
  std::string error;
  for (auto _ : state)
    if (!g.app().cEngine.SavetoFile(file, &error)) return state.SkipWithError(error.c_str());
  if (test::ReadFile(file) != test::ReadFile(g.file)) state.SkipWithError("the saved text differs");
}
BENCHMARK(BM_SaveToFile1000)->Unit(benchmark::kMicrosecond);

// The text of the 1,000-record game alone (FormatSavedGame), without the disk.
void BM_FormatSavedGame1000(benchmark::State& state) {
  LongGame g;
  if (!g.error.empty()) return state.SkipWithError(g.error.c_str());
  const ParsedGame parsed = ReadSavedGame(g.file);
  if (!parsed.game) return state.SkipWithError(parsed.error.c_str());
  const std::string expected = test::ReadFile(g.file);
  std::string text;
  for (auto _ : state) {
    text = FormatSavedGame(parsed.game->header, parsed.game->records);
    benchmark::DoNotOptimize(text.data());
  }
  if (text != expected) state.SkipWithError("the formatted text differs from the file");
}
BENCHMARK(BM_FormatSavedGame1000)->Unit(benchmark::kMicrosecond);

// A folder of `count` saved games of a few rows each, for the lists and menus.
void FillFolder(test::TestProgram& t, const std::string& folder, int count, const std::string& ext) {
  t.Deal("Spider", 31);
  test::DealRows(t, 2);
  const std::string one = t.home.File("one.vq0");
  t->cEngine.SavetoFile(one);
  const std::string text = test::ReadFile(one);
  for (int i = 0; i < count; ++i) test::WriteFile(folder + "/Spider-" + std::to_string(i) + ext, text);
}

// What the Auto Save dialog reads to fill a tab: the folder listed and every header read.
void BM_ListAutoSave1000(benchmark::State& state) {
  test::TestProgram t;
  FillFolder(t, t->cData.AutoSaveFolder(), 1000, ".vq0");
  size_t listed = 0;
  for (auto _ : state) listed = ListAutoSaves(*t.app, false).size();
  if (listed != 1000) state.SkipWithError("not every copy was listed");
}
BENCHMARK(BM_ListAutoSave1000)->Unit(benchmark::kMillisecond);

// What rebuilding the pending menu reads: 100 pending games and their captions.
void BM_PendingMenu100(benchmark::State& state) {
  test::TestProgram t;
  FillFolder(t, t->cData.PendingFolder(), 100, ".vq0");
  size_t entries = 0;
  for (auto _ : state) entries = PendingMenuEntries(*t.app).size();
  if (entries != 100) state.SkipWithError("not every pending game was listed");
}
BENCHMARK(BM_PendingMenu100)->Unit(benchmark::kMillisecond);

// A settings file as a program used for a while leaves it: 103 keys in 12 sections, 1.9 KB.
std::string LivedInSettings() {
  std::string text = "[General]\r\nUnFin=0\r\nSaveInitDir=\"/home/user/Documents/My Games/Quorvale 6.0\"\r\n"
                     "LastGName=\"Spider Two Suit\"\r\n\r\n[Options]\r\n";
  for (const char* key : {"GameSave", "EnableInc", "EnableFin", "ShowTime", "ShowScore", "ShowMoves",
                          "ShowCardsLeft", "RangeIndex", "ShowToolbar", "AutoPlay"})
    text += std::string(key) + "=1\r\n";
  for (const char* section : {"BackGround", "Animation", "Finish", "Toolbar", "HotGames"}) {
    text += std::string("\r\n[") + section + "]\r\n";
    for (int i = 1; i <= 8; ++i) text += "Key" + std::to_string(i) + "=" + std::to_string(i) + "\r\n";
  }
  for (const char* section : {"Players", "MRU0", "MRU1", "MRU2", "LIST0"}) {
    text += std::string("\r\n[") + section + "]\r\n";
    for (int i = 1; i <= 10; ++i) text += std::to_string(i) + "=\"Spider Game - " + std::to_string(1000 + i) + "\"\r\n";
  }
  return text;
}

// One iteration: what the window's ten-a-second command update reads, AutoPlay through
// cRegistry, from an unchanged settings file: the stat and the lookup. Any allocation in
// the loop is reported as an error.
void BM_SettingsReadUnchanged(benchmark::State& state) {
  test::TempHome home;
  const auto file = home.Path() / "quorvale.ini";
  if (!WriteFileAtomically(file, LivedInSettings())) return state.SkipWithError("cannot write the settings");
  IniSettingsStore store(file);
  const cRegistry reg(store);
  int16_t value = 0;
  reg.Get(setting::AutoPlay);  // the first read after the store's own look
  const size_t before = tAllocations;
  for (auto _ : state) {
    value = reg.Get(setting::AutoPlay);
    benchmark::DoNotOptimize(value);
  }
  const size_t allocations = tAllocations - before;
  state.counters["allocs"] = benchmark::Counter(static_cast<double>(allocations), benchmark::Counter::kAvgIterations);
  if (allocations != 0) state.SkipWithError("a read of an unchanged file allocated");
  else if (value != 1) state.SkipWithError("AutoPlay did not read as 1");
}
BENCHMARK(BM_SettingsReadUnchanged);

// One iteration: the same read just after another program changed the file in place (not
// timed), so the read looks, sees the change and reads the whole file again.
void BM_SettingsReadChanged(benchmark::State& state) {
  test::TempHome home;
  const auto file = home.Path() / "quorvale.ini";
  const std::string text = LivedInSettings();
  if (!WriteFileAtomically(file, text)) return state.SkipWithError("cannot write the settings");
  IniSettingsStore store(file);
  const cRegistry reg(store);
  int16_t value = 0;
  bool longer = false;
  TimeOnly(state, [&] { std::ofstream(file, std::ios::binary) << text << ((longer = !longer) ? " " : ""); },
           [&] { value = reg.Get(setting::AutoPlay); });
  if (value != 1) state.SkipWithError("AutoPlay did not read as 1");
}
BENCHMARK(BM_SettingsReadChanged)->UseManualTime()->Unit(benchmark::kMicrosecond);

// One iteration: a setting written, as the Options dialog does: the lock, the file read
// afresh, one key changed and the file replaced (with fsync of the file and its folder).
void BM_SettingsWrite(benchmark::State& state) {
  test::TempHome home;
  const auto file = home.Path() / "quorvale.ini";
  if (!WriteFileAtomically(file, LivedInSettings())) return state.SkipWithError("cannot write the settings");
  IniSettingsStore store(file);
  int32_t speed = 0;
  for (auto _ : state) {
    if (!store.WriteInt("Animation", "CardSpeed", ++speed % 10))
      return state.SkipWithError(store.LastError().c_str());
  }
  const IniSettingsStore again(file);
  if (again.ReadInt("Animation", "CardSpeed") != speed % 10 || again.ReadText("LIST0", "10") != "Spider Game - 1010")
    state.SkipWithError("the file does not hold what was written");
}
BENCHMARK(BM_SettingsWrite)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace qv

BENCHMARK_MAIN();
