#include "engine/Pointer.h"

#include <algorithm>

#include "engine/Numeric.h"
#include "session/Program.h"

namespace qv {

// A press, release or double-click that comes while cards move is dropped: each takes a
// step of its own, which is refused then.
void PointerPressed(Program& app, int i, double x, double y) {
  Motion::Step step(app.motion);
  if (!step || !app.cGamePlay.Game_Running()) return;
  if (app.cGamePlay.PauseStatus()) app.cGamePlay.PauseGame(false);
  if (!app.surface.window.TimerEnabled(Timer::Game)) app.surface.window.EnableTimer(Timer::Game, true);
  auto& d = app.drag;
  if (d.Dragging) return;
  d.DragCount = 0;
  d.DownX = Saturate16(RoundHalfEven(x));
  d.DownY = Saturate16(RoundHalfEven(y));
  d.StartLeft = Saturate16(RoundHalfEven(app.surface.sprites.Left(Sprites::PicCD, i)));
  d.StartTop = Saturate16(RoundHalfEven(app.surface.sprites.Top(Sprites::PicCD, i)));
  app.cPlay.MouseDown(i, app.cPlay.Cell(i), app.cPlay.Pile(i), app.cPlay.Pos(i));
  app.motion.Yield(app.surface.sprites);
}

void PointerMoved(Program& app, int i, double x, double y) {
  if (!app.cGamePlay.Game_Running() || !app.drag.Dragging) return;
  app.cPlay.MouseMove(i, app.cPlay.Pile(i), app.cPlay.Pos(i), x, y);
}

void PointerReleased(Program& app, int i) {
  Motion::Step step(app.motion);
  if (!step || !app.cGamePlay.Game_Running() || !app.drag.Dragging) return;
  app.drag.Dragging = false;
  const int home = app.cEngine.TotalGoalCards();
  app.cPlay.MouseUp(i, app.cPlay.Cell(i), app.cPlay.Pile(i), app.cPlay.Pos(i));
  // The sound plays for a refused drop too; a drop that sent a set home has had its own.
  if (app.cEngine.TotalGoalCards() == home) app.cSound.MoveCard();
}

void PointerDoubleClicked(Program& app, int i) {
  Motion::Step step(app.motion);
  if (step) app.cPlay.DoubleClick(i);
}

namespace {
constexpr double kGripX = 500;
constexpr double kGripY = 30;
}  // namespace

void DragCardTo(Program& app, int i, double x, double y) {
  PointerPressed(app, i, kGripX, kGripY);
  const auto& sprites = app.surface.sprites;
  const double left = sprites.Left(Sprites::PicCD, i), top = sprites.Top(Sprites::PicCD, i);
  PointerMoved(app, i, kGripX + x - left, kGripY + y - top);
  PointerReleased(app, i);
}

void DragCardToPile(Program& app, int i, int pile) {
  const int top = std::max(app.cPlay.GetTop(0, pile), 0);
  DragCardTo(app, i, app.cGames.GetCordX(0, pile, top), app.cGames.GetCordY(0, pile, top));
}

void ClickCard(Program& app, int i) {
  PointerPressed(app, i, kGripX, kGripY);
  PointerReleased(app, i);
}

void DoubleClickCard(Program& app, int i) {
  ClickCard(app, i);
  PointerDoubleClicked(app, i);
}

}  // namespace qv
