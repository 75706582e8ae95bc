#include "HintCommand.h"

#include <QScopedValueRollback>
#include <atomic>

#include "BackToWinnable.h"
#include "MainWindow.h"
#include "QtSprites.h"
#include "SolverIndicator.h"
#include "SolverProgress.h"
#include "TableView.h"
#include "engine/Places.h"
#include "session/Program.h"
#include "solver/Hint.h"

namespace qv {

namespace {

QRectF CardRect(const QtSprites& sprites, int pic) {
  return {sprites.Left(Sprites::PicCD, pic), sprites.Top(Sprites::PicCD, pic), kCardWidth, kCardHeight};
}

// Where a pile's next card would lie: on its top card, or its own place when empty.
QRectF PilePlace(const Program& app, const QtSprites& sprites, int cell, int pile) {
  const Table& t = app.cPlay.table();
  if (t.GetTop(cell, pile) >= 0) return CardRect(sprites, t.GetTopPicID(cell, pile));
  return {static_cast<qreal>(app.cGames.GetCordX(cell, pile, 0)), static_cast<qreal>(app.cGames.GetCordY(cell, pile, 0)),
          kCardWidth, kCardHeight};
}

}  // namespace

QList<QRectF> PlacesOf(const Program& app, const QtSprites& sprites, const SolverMove& m) {
  const Table& t = app.cPlay.table();
  if (m.kind == SolverMove::Stock) return {PilePlace(app, sprites, kStock, 0)};
  QRectF group;
  for (int q = m.fromPos; q <= t.GetTop(m.fromCell, m.fromPile); ++q)
    group |= CardRect(sprites, t.GetPicID(m.fromCell, m.fromPile, q));
  const int toCell = m.kind == SolverMove::DoubleClick ? kFoundation : kTableau;
  return {group, PilePlace(app, sprites, toCell, m.toPile)};
}

void ShowHint(MainWindow& main) {
  static bool searching = false;  // H again while the search runs does nothing
  if (searching) return;
  const QScopedValueRollback<bool> busy(searching, true);
  Program& app = main.app();
  if (!TableAtRest(app)) return;
  const TableCopy copy = CopyTable(app);
  std::optional<SolverResult> answer = main.solver().AnswerFor(copy.key);
  if (!answer) {
    std::stop_source stop;
    const std::atomic<int> none{0};
    SolverResult found;
    RunWithProgress(main, "Looking for the best move...", "frmHint", 0, stop, none, [&, budget = SolverBudgetOf(app)] {
      found = SolveCopy(copy, budget, stop.get_token());
      return 0;
    });
    if (stop.stop_requested()) return;
    answer = found;
  }
  // The table must still be the one the search was made on.
  if (PositionKey(app) != copy.key) return;
  const HintAdvice advice = AdviceFor(copy, *answer);
  if (advice.move) main.view().Outline(PlacesOf(app, main.sprites(), *advice.move), copy.key);
  if (advice.verdict != Verdict::Lost) {
    app.MsgBox(advice.text, MsgStyle::Information);
  } else if (app.MsgBox(advice.text + "\n\nGo back to the last position from which the game can be won?",
                        MsgStyle::YesNoQuestion) == Answer::Yes) {
    BackToWinnable(main);
  }
}

}  // namespace qv
