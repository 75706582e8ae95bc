// Frames of a drag on the real main window. The window is 1920x1080, the game uses Any Card
// rules, and pile 0 ends in 12 face-up cards. The pointer takes hold of a group there, and
// each iteration moves it a few twips and paints the table once. The painting is Qt's
// software rasteriser, as under Xvfb: QT_QPA_PLATFORM is offscreen unless it is set.
// Each benchmark counts the paints of the table and checks that the drag really carried its
// cards and that the table ends as it began; otherwise the figure is reported as an error.
// What the window showed meanwhile goes into counters: the widest card on the table in card
// widths (widest_card, 1 when every card is drawn at its size) and how much of the zoom
// stayed (zoom_kept, 1 when it did not change; a changed zoom is also named in the label).

#include <benchmark/benchmark.h>


#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QGraphicsItem>
#include <QGraphicsScene>
#include <QThread>
#include <QWidget>
#include <algorithm>
#include <atomic>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

#include "QtBenchMain.h"
#include "MainWindow.h"
#include "QtSprites.h"
#include "TableView.h"
#include "TestProgram.h"
#include "engine/Places.h"
#include "engine/Pointer.h"
#include "session/Program.h"
#include "session/SavedGameFile.h"
#include "settings/MemorySettingsStore.h"
#include "solver/TableVerdict.h"

namespace qv {
namespace {

constexpr int kWindowWidth = 1920;
constexpr int kWindowHeight = 1080;
constexpr int kGroup = 12;       // the face-up cards gathered on pile 0
constexpr double kStep = 60;     // twips the pointer moves per frame: about 9 pixels here
constexpr double kGripX = 500;   // where the pointer holds the card, in the card's frame
constexpr double kGripY = 30;

// Counts the paint events a widget receives.
class PaintCounter : public QObject {
 public:
  int paints = 0;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++paints;
    return false;
  }
};

// Runs the event loop for a while, so the main window's timers tick as in the program.
void Settle(int ms) {
  QElapsedTimer clock;
  clock.start();
  while (clock.elapsed() < ms) {
    QCoreApplication::processEvents();
    QThread::msleep(5);
  }
}

// Cards face up from the top of tableau pile `pile` down.
int FaceUpRun(const Program& app, int pile) {
  int n = 0;
  for (int pos = app.cPlay.GetTop(0, pile); pos >= 0 && app.cPlay.table().Card(app.cPlay.GetPicID(0, pile, pos)).FaceMode; --pos)
    ++n;
  return n;
}

// The real main window with memory settings, at 1920x1080, showing an Any Card game
// whose pile 0 ends in kGroup face-up cards.
struct DragTable {
  test::TempHome files;
  MemorySettingsStore store;
  MainWindow w{store};
  PaintCounter counter;
  std::string error;

  DragTable() {
    w.sprites().SetFramePacing(false);
    w.resize(kWindowWidth, kWindowHeight);
    w.show();
    for (int i = 0; i < 10; ++i) QCoreApplication::processEvents();
    w.Load();
    // A saved game with no moves for a name the program does not know brings its own
    // rules: here any card goes on any card, and any face-up group can be picked up.
    GameHeader h;
    h.GameName = "Drag Bench";
    h.GameNo = GameNo::Number(1);
    h.HPiles = 10, h.HOrder = 5, h.HSpace = 13, h.HAK = 0, h.HMulti = 1, h.Suits = 2, h.MOrder = 5;
    const std::string path = files.File("anycard.vq0");
    test::WriteFile(path, FormatSavedGame(h, {}));
    if (!w.app().cGamePlay.PlayFile(path, false)) {
      error = "the Any Card game did not load";
      return;
    }
    Program& app = w.app();
    for (int from = 1, guard = 0; FaceUpRun(app, 0) < kGroup && guard < 100; ++guard, from = from % 9 + 1) {
      if (app.cPlay.GetTop(0, from) < 0) continue;
      const int before = app.cEngine.GetTransID();
      DragCardToPile(app, app.cPlay.GetTopPicID(0, from), 0);
      if (app.cEngine.GetTransID() != before + 1) {
        error = "a card was refused on pile 0";
        return;
      }
    }
    if (FaceUpRun(app, 0) < kGroup) {
      error = "pile 0 did not get its face-up cards";
      return;
    }
    // The main timer fits the zoom to the longest pile every 100 ms; the zoom moves by
    // less each time, as the cards' pictures are rounded to whole pixels, and rests within
    // a few ticks.
    Settle(600);
    w.view().viewport()->installEventFilter(&counter);
  }
  ~DragTable() { w.view().viewport()->removeEventFilter(&counter); }
  Program& app() { return w.app(); }
};

// The widest card picture on the table, in card widths: 1 when every card, carried or
// not, is drawn at a card's size.
double WidestCard(const QGraphicsScene& scene) {
  double widest = 0;
  for (const QGraphicsItem* item : scene.items())
    if (item->isVisible()) widest = std::max(widest, item->sceneBoundingRect().width());
  return widest / kCardWidth;
}

// Takes hold of the lowest of the top `cards` cards of pile 0, runs the frames, lets go
// where it started and checks that the table is as before. `frame` paints one frame.
template <typename Frame>
void RunDrag(benchmark::State& state, bool mainTimer, Frame frame) {
  DragTable t;
  if (!t.error.empty()) {
    state.SkipWithError(t.error.c_str());
    return;
  }
  if (!mainTimer) t.w.EnableTimer(Timer::Main, false);
  Program& app = t.app();
  const int cards = static_cast<int>(state.range(0));
  const int pic = app.cPlay.GetPicID(0, 0, app.cPlay.GetTop(0, 0) - (cards - 1));
  const std::vector<int> before = test::Snapshot(app);
  const double zoom = t.w.view().transform().m11();
  const int journal = app.cEngine.GetTransID();
  const QtSprites& sprites = t.w.sprites();
  const double left = sprites.Left(Sprites::PicCD, pic), top = sprites.Top(Sprites::PicCD, pic);
  PointerPressed(app, pic, kGripX, kGripY);
  if (!app.drag.Dragging || app.drag.DragCount != cards - 1) {
    state.SkipWithError("the pointer did not take the group");
    return;
  }
  QCoreApplication::processEvents();  // the press's own frame
  t.counter.paints = 0;
  double direction = 1;
  for (auto _ : state) {
    // Back and forth, so the group stays over the table however long the run.
    PointerMoved(app, pic, kGripX + direction * kStep, kGripY + direction * kStep);
    direction = -direction;
    frame(t);
  }
  const int paints = t.counter.paints;
  // Less than a ten-thousandth is not a zoom anyone sees: the rounding noted in DragTable.
  const double zoomAfter = t.w.view().transform().m11();
  const bool sameZoom = std::abs(zoomAfter - zoom) < zoom * 1e-4;
  const double widest = WidestCard(*t.w.view().scene());  // while the cards still hang
  // One more step must carry the card; then back to where it started, and let go there.
  const double x = sprites.Left(Sprites::PicCD, pic);
  PointerMoved(app, pic, kGripX + kStep, kGripY);
  const bool moved = sprites.Left(Sprites::PicCD, pic) == x + kStep;
  PointerMoved(app, pic, kGripX + left - sprites.Left(Sprites::PicCD, pic), kGripY + top - sprites.Top(Sprites::PicCD, pic));
  PointerReleased(app, pic);
  QCoreApplication::processEvents();
  if (paints < state.iterations()) state.SkipWithError("a frame was not painted");
  else if (!moved) state.SkipWithError("the card did not follow the pointer");
  else if (test::Snapshot(app) != before || app.cEngine.GetTransID() != journal) state.SkipWithError("the table changed");
  const QWidget* viewport = t.w.view().viewport();
  state.counters["paints/frame"] = static_cast<double>(paints) / static_cast<double>(state.iterations());
  state.counters["viewport_w"] = viewport->width();
  state.counters["viewport_h"] = viewport->height();
  state.counters["card_px"] = zoom * kCardWidth;  // a card's width on screen
  state.counters["widest_card"] = widest;
  // A zoom that moved during the run makes the figure one of a different table: it is
  // shown, not hidden, and the time is not a frame of the table at the press.
  state.counters["zoom_kept"] = zoomAfter / zoom;
  if (!sameZoom) state.SetLabel("ZOOM CHANGED: not a frame of the table at the press");
}

// One frame as the animations paint it (QtSprites::PaintFrame): the whole table,
// synchronously. Nothing else runs between these frames; the main timer is stopped so
// that its tick cannot fall into the press either.
void BM_DragFrameRepaint(benchmark::State& state) {
  RunDrag(state, false, [](DragTable& t) { t.w.view().viewport()->repaint(); });
}

// One frame as a drag with the mouse paints it: the scene tells the view what changed
// through the event loop, and only that region of the table is painted.
void BM_DragFrameEventLoop(benchmark::State& state) {
  RunDrag(state, true, [](DragTable&) { QCoreApplication::processEvents(); });
}

// The drag's frames while a worker searches a hard deal, as the indicator's search goes on
// while cards hang on the pointer (the position has not changed yet). On two cores the
// search takes one; the frames must not wait for it.
void BM_DragFrameWhileSolving(benchmark::State& state) {
  std::atomic<int64_t> positions{0};
  std::jthread solver([&](std::stop_token stop) {
    test::TestProgram game;
    game.Deal("Spider", 2);
    const TableCopy copy = CopyTable(*game);
    while (!stop.stop_requested()) positions += SolveCopy(copy, {600000, 512, 0}, stop).positions;
  });
  RunDrag(state, false, [](DragTable& t) { t.w.view().viewport()->repaint(); });
  solver.request_stop();
  solver.join();
  state.counters["solver_positions"] = static_cast<double>(positions.load());
}

// The same twelve cards moved together as twelve separate sprites, each by the sprite
// interface, and the whole table painted: a twelve-card frame with every card drawn at a
// card's size, for comparison with the carried group.
void BM_TwelveSpritesFrameRepaint(benchmark::State& state) {
  DragTable t;
  if (!t.error.empty()) {
    state.SkipWithError(t.error.c_str());
    return;
  }
  Program& app = t.app();
  QtSprites& sprites = t.w.sprites();
  std::vector<int> pics;
  std::vector<QPointF> places;
  for (int pos = app.cPlay.GetTop(0, 0) - (kGroup - 1); pos <= app.cPlay.GetTop(0, 0); ++pos) {
    pics.push_back(app.cPlay.GetPicID(0, 0, pos));
    places.emplace_back(sprites.Left(Sprites::PicCD, pics.back()), sprites.Top(Sprites::PicCD, pics.back()));
  }
  t.counter.paints = 0;
  double offset = kStep;
  for (auto _ : state) {
    for (size_t i = 0; i < pics.size(); ++i)
      sprites.Move(Sprites::PicCD, pics[i], places[i].x() + offset, places[i].y() + offset);
    offset = offset > 0 ? 0 : kStep;
    t.w.view().viewport()->repaint();
  }
  const int paints = t.counter.paints;
  bool followed = true;
  for (size_t i = 0; i < pics.size(); ++i) {
    followed = followed && sprites.Left(Sprites::PicCD, pics[i]) == places[i].x() + (offset > 0 ? 0 : kStep);
    sprites.Move(Sprites::PicCD, pics[i], places[i].x(), places[i].y());
  }
  if (paints < state.iterations()) state.SkipWithError("a frame was not painted");
  else if (!followed) state.SkipWithError("the cards did not move");
  state.counters["paints/frame"] = static_cast<double>(paints) / static_cast<double>(state.iterations());
  state.counters["card_px"] = t.w.view().transform().m11() * kCardWidth;
}

BENCHMARK(BM_DragFrameRepaint)->ArgName("cards")->Arg(12)->Arg(1)->UseRealTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_DragFrameEventLoop)->ArgName("cards")->Arg(12)->Arg(1)->UseRealTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_DragFrameWhileSolving)->ArgName("cards")->Arg(12)->UseRealTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_TwelveSpritesFrameRepaint)->UseRealTime()->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace qv

int main(int argc, char** argv) { return qv::RunQtBenchmarks(argc, argv); }
