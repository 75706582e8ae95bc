#pragma once

#include <chrono>
#include <cstdint>
#include <ctime>
#include <string>

namespace qv {

class IClock {
 public:
  virtual ~IClock() = default;
  virtual std::time_t Now() const = 0;
  // A steady count of milliseconds, for spacing things out; it does not follow the date.
  virtual int64_t Millis() const = 0;
};

class SystemClock : public IClock {
 public:
  std::time_t Now() const override { return std::time(nullptr); }
  int64_t Millis() const override {
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
  }
};

// The one date form the program writes and reads, in local time: "11/17/2026 6:41:26 AM".
std::string GeneralDate(std::time_t t);

}  // namespace qv
