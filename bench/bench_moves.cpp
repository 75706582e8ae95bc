// The Moves Manager and the Game History on long games. Opening each dialog and exporting
// the report work on a 10,000-record journal of the recording surface; scrubbing and
// "Start" run on the real main window at 1920x1080 (Qt's software rasteriser, offscreen
// unless QT_QPA_PLATFORM says otherwise). A figure whose table did not end where it should
// is reported as an error.

#include <benchmark/benchmark.h>

#include <QCoreApplication>

#include <QElapsedTimer>
#include <QEvent>
#include <QPushButton>
#include <QSlider>
#include <QThread>
#include <QTreeView>
#include <algorithm>
#include <string>
#include <vector>

#include "QtBenchMain.h"
#include "HistoryDialog.h"
#include "MainWindow.h"
#include "QtSprites.h"
#include "QuickMoveDialog.h"
#include "TableView.h"
#include "TestProgram.h"
#include "engine/Pointer.h"
#include "session/HistoryReport.h"
#include "session/Program.h"
#include "settings/MemorySettingsStore.h"

namespace qv {
namespace {

const test::Rules kAnyCard{.HOrder = 5, .MOrder = 5};

// An Any Card game of `records` records: single cards wandering over the ten piles, with
// the six rows of the Stock dealt along the way (steps of ten records).
void PlayLongGame(test::TestProgram& t, int records) {
  test::PlayWithRules(t, kAnyCard);
  const int piles = t->cGames.Piles(0);
  for (int i = 0; t->cEngine.GetTransID() < records; ++i) {
    if (i % (records / 8) == 1 && t->cPlay.GetTop(1, 0) >= 0 && t->cEngine.GetTransID() + 10 <= records) {
      test::DealRows(t, 1);
      continue;
    }
    int from = (i * 7) % piles;
    while (t->cPlay.GetTop(0, from) < 0) from = (from + 1) % piles;
    const int to = (from + 1 + (i * 3) % (piles - 1)) % piles;
    t->cPlay.MoveCard(t->cPlay.GetTopPicID(0, from), 0, to, t->cPlay.GetTop(0, to) + 1, 0, 0, 0, true);
  }
}

void Settle(int ms) {
  QElapsedTimer clock;
  clock.start();
  while (clock.elapsed() < ms) {
    QCoreApplication::processEvents();
    QThread::msleep(2);
  }
}

// Opening: the dialog made, shown and painted once, then closed.
template <typename Dialog>
void OpenDialog(benchmark::State& state) {
  test::TestProgram t;
  PlayLongGame(t, 10000);
  for (auto _ : state) {
    Dialog* dlg;
    if constexpr (std::is_same_v<Dialog, HistoryDialog>) dlg = new HistoryDialog(*t, {});
    else dlg = new QuickMoveDialog(*t);
    dlg->show();
    QCoreApplication::processEvents();
    delete dlg;
  }
  if (t->cEngine.GetTransTop() != 10000) state.SkipWithError("the journal is not 10,000 records long");
}
void BM_OpenMovesManager10000(benchmark::State& state) { OpenDialog<QuickMoveDialog>(state); }
void BM_OpenHistory10000(benchmark::State& state) { OpenDialog<HistoryDialog>(state); }
BENCHMARK(BM_OpenMovesManager10000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_OpenHistory10000)->Unit(benchmark::kMillisecond);

// The report of 10,000 records written atomically (with fsync) to the temporary home.
void BM_ExportHistory10000(benchmark::State& state) {
  test::TestProgram t;
  PlayLongGame(t, 10000);
  const std::string path = t.home.File("history.txt");
  for (auto _ : state) {
    if (!ExportHistory(*t, path)) state.SkipWithError("the export failed");
  }
  state.counters["bytes"] = static_cast<double>(test::ReadFile(path).size());
}
BENCHMARK(BM_ExportHistory10000)->Unit(benchmark::kMillisecond);

// Times the paints of the table's viewport.
class PaintClock : public QObject {
 public:
  std::vector<qint64> at;
  QElapsedTimer clock;
  PaintClock() { clock.start(); }

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) at.push_back(clock.nsecsElapsed());
    return false;
  }
};

// The real window with a game of `records` records on the table, at its end.
struct RealTable {
  test::TestProgram maker;
  MemorySettingsStore store;
  MainWindow w{store};
  std::string error;
  explicit RealTable(int records, bool pacing) {
    PlayLongGame(maker, records);
    const std::string file = maker.home.File("long.vq0");
    maker->cEngine.SavetoFile(file);
    w.sprites().SetFramePacing(false);
    w.resize(1920, 1080);
    w.show();
    Settle(100);
    w.Load();
    if (!w.app().cGamePlay.PlayFile(file, false) || w.app().cEngine.GetTransID() != records)
      error = "the long game did not load";
    w.sprites().SetFramePacing(pacing);
    Settle(300);
  }
};

// The thumb dragged from the end to the start in one second, moved every 2 ms as a fast
// pointer would move it; frames are the gaps between paints of the table.
void BM_Scrub5000(benchmark::State& state) {
  RealTable table(5000, true);
  if (!table.error.empty()) return state.SkipWithError(table.error.c_str());
  Program& app = table.w.app();
  QuickMoveDialog dlg(app, &table.w);
  dlg.show();
  Settle(100);
  auto* slider = dlg.findChild<QSlider*>("Slider1");
  PaintClock paints;
  for (auto _ : state) {
    table.w.view().viewport()->installEventFilter(&paints);
    slider->setSliderDown(true);
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < 1000) {
      slider->setSliderPosition(static_cast<int>(5000 - 5000 * clock.elapsed() / 1000));
      QCoreApplication::processEvents();
      QThread::msleep(2);  // a pointer reports its moves some 500 times a second at most
    }
    slider->setSliderPosition(0);
    Settle(50);
    slider->setSliderDown(false);
    table.w.view().viewport()->removeEventFilter(&paints);
  }
  if (app.cEngine.GetTransID() != 0) state.SkipWithError("the table did not reach the start");
  qint64 worst = 0;
  int over = 0;
  for (size_t i = 1; i < paints.at.size(); ++i) {
    const qint64 gap = paints.at[i] - paints.at[i - 1];
    worst = std::max(worst, gap);
    over += gap > 16'700'000 ? 1 : 0;
  }
  state.counters["paints"] = static_cast<double>(paints.at.size());
  state.counters["worst_frame_ms"] = worst / 1e6;
  state.counters["frames_over_16.7ms"] = over;
}
BENCHMARK(BM_Scrub5000)->Iterations(1)->Unit(benchmark::kMillisecond);

// "Start" clicked at the end of a 1,000-record game, frames paced as in the program: only
// the steps of several records glide (two frames a card).
void BM_StartClick1000(benchmark::State& state) {
  RealTable table(1000, true);
  if (!table.error.empty()) return state.SkipWithError(table.error.c_str());
  Program& app = table.w.app();
  int gliding = 0;
  for (int id = 1; id <= app.cEngine.GetTransTop(); ++id) gliding += app.cEngine.Multi(id) == 1 ? 1 : 0;
  QuickMoveDialog dlg(app, &table.w);
  dlg.show();
  Settle(100);
  PaintClock paints;
  for (auto _ : state) {
    table.w.view().viewport()->installEventFilter(&paints);
    dlg.findChild<QSlider*>("Slider1")->setValue(0);
    table.w.view().viewport()->removeEventFilter(&paints);
  }
  if (app.cEngine.GetTransID() != 0) state.SkipWithError("the table did not reach the start");
  state.counters["paints"] = static_cast<double>(paints.at.size());
  state.counters["gliding_records"] = gliding;
}
BENCHMARK(BM_StartClick1000)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace qv

int main(int argc, char** argv) { return qv::RunQtBenchmarks(argc, argv); }
