#include "lists/GameNumbers.h"

#include <algorithm>
#include <cmath>
#include <random>

#include "session/Program.h"

namespace qv {

namespace {
// Only the Options dialog writes the range, with 1 to 15; a value put into the settings
// by hand is held to that, so the numbers stay whole and exact in a double.
int Digits(const Program& app) { return std::clamp<int>(app.cRegistry.Get(setting::RangeIndex), 1, 15); }
}  // namespace

double MaxGameNo(const Program& app) { return std::pow(10.0, Digits(app)) - 1; }

GameNo RandomGameNo(Program& app) {
  const double L = std::pow(10.0, Digits(app));
  const double r = std::uniform_real_distribution<double>(0.0, 1.0)(app.rng);
  const auto x = static_cast<uint64_t>(std::floor(L * r));
  return GameNo::Number(std::max<uint64_t>(x, 1));
}

}  // namespace qv
