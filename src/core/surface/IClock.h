#pragma once

#include <ctime>
#include <string>

namespace qv {

class IClock {
 public:
  virtual ~IClock() = default;
  virtual std::time_t Now() const = 0;
};

class SystemClock : public IClock {
 public:
  std::time_t Now() const override { return std::time(nullptr); }
};

// The one date form the program writes and reads, in local time: "11/17/2026 6:41:26 AM".
std::string GeneralDate(std::time_t t);

}  // namespace qv
