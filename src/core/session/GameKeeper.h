#pragma once

#include <cstdint>
#include <limits>

namespace qv {

class Program;

// While a game runs its file is kept current, so that a crash, a kill or a power cut costs
// at most the last second of play: a game of the pending list in its own file, any other
// as the unfinished game (UnFin 1). The copy of a game that has ended stops counting at once.
class GameKeeper {
 public:
  explicit GameKeeper(Program& app) : app_(app) {}

  // The main timer's tick. Writes when the game changed since the last write, no card
  // moves or hangs on the pointer, and a second has passed since the last write.
  void Tick();
  // The game on the table has ended: its copy as the unfinished game no longer counts.
  void Forget();

 private:
  Program& app_;
  int written_ = -1;  // the journal's revision last written
  int64_t lastWriteMs_ = std::numeric_limits<int64_t>::min() / 2;
};

}  // namespace qv
