#pragma once

#include <QList>
#include <QRectF>

namespace qv {

class MainWindow;
class Program;
class QtSprites;
struct SolverMove;

// Hint: rings the next move of a win on the table and says it in words. The indicator's
// answer for the table serves at once; without one, the table is searched on a worker
// while the window paints, with Cancel after a second. A lost game is said to be lost,
// with Back to Last Winnable Position offered; when the search ran out first, the most
// promising move is given as a guess.
void ShowHint(MainWindow& main);

// The places of a move on the table, in twips: the cards that go and where they go.
QList<QRectF> PlacesOf(const Program& app, const QtSprites& sprites, const SolverMove& m);

}  // namespace qv
