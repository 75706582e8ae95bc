#include "session/Motion.h"

#include <utility>

#include "surface/ISprites.h"

namespace qv {

Motion::Step::Step(Motion& motion) : motion_(motion), taken_(!motion.stopped_ && motion.yields_ == 0) {
  if (taken_) ++motion_.depth_;
}

Motion::Step::~Step() {
  if (!taken_ || --motion_.depth_ > 0 || !motion_.stopLater_) return;
  // The change that held the stop back is over: the stop goes on now.
  std::exchange(motion_.stopLater_, nullptr)();
}

Motion::State Motion::state() const {
  if (stopped_) return State::Stopped;
  if (stopLater_) return State::StopWaiting;
  return depth_ > 0 ? State::Moving : State::Still;
}

void Motion::Yield(ISprites& sprites) {
  ++yields_;
  sprites.Yield();
  --yields_;
}

bool Motion::RequestStop(std::function<void()> stopLater) {
  if (depth_ > 0) {
    stopLater_ = std::move(stopLater);
    return false;
  }
  stopped_ = true;
  return true;
}

}  // namespace qv
