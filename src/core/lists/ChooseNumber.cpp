#include "lists/ChooseNumber.h"

#include <cstdlib>

#include "lists/GameNumbers.h"
#include "session/Program.h"

namespace qv {

namespace {
std::string Grouped(double value) {
  std::string digits = std::to_string(static_cast<unsigned long long>(value));
  for (int at = static_cast<int>(digits.size()) - 3; at > 0; at -= 3) digits.insert(static_cast<size_t>(at), ",");
  return digits;
}
}  // namespace

std::string NumberRangeText(const Program& app) { return "0 and " + Grouped(MaxGameNo(app)); }

std::optional<GameNo> AcceptedGameNo(const Program& app, const std::string& text) {
  const size_t first = text.find_first_not_of(' ');
  if (first == std::string::npos) return std::nullopt;
  const std::string digits = text.substr(first, text.find_last_not_of(' ') - first + 1);
  if (!GameNo::IsDigitText(digits)) return std::nullopt;
  const float v = std::strtof(digits.c_str(), nullptr);
  if (!(v > 0) || !(v < MaxGameNo(app))) return std::nullopt;
  return GameNo::Typed(digits);
}

}  // namespace qv
