#pragma once

#include <functional>

namespace qv {

class ISprites;

// Cards move one at a time and the event loop runs after each, so a key, a click or a timer
// can arrive in the middle of a deal, a Stock row, a set leaving or an undo step. Whatever
// arrives then must not start another change of the table (it is dropped, not queued), and a
// stop waits until the change in hand has ended, so the table and the files are always whole.
class Motion {
 public:
  enum class State { Still, Moving, StopWaiting, Stopped };

  // One change of the table, from the event that asked for it to its end; changes made
  // inside it (a deal inside New Game) share it. A step asked for from within the event
  // loop while cards move, or after the stop, is refused and must do nothing.
  class Step {
   public:
    explicit Step(Motion& motion);
    ~Step();
    Step(const Step&) = delete;
    Step& operator=(const Step&) = delete;
    explicit operator bool() const { return taken_; }

   private:
    Motion& motion_;
    bool taken_;
  };

  State state() const;
  // The event loop runs from inside a change: what would change the table must wait.
  bool Moving() const { return yields_ > 0; }
  // Runs the event loop once, between two card moves, with the table whole.
  void Yield(ISprites& sprites);
  // True when the program may stop now, after which no step is taken any more. Otherwise
  // `stopLater` runs as soon as the step in hand has ended.
  bool RequestStop(std::function<void()> stopLater);

 private:
  int depth_ = 0;   // steps in hand, nested
  int yields_ = 0;  // event loops running from inside a step
  bool stopped_ = false;
  std::function<void()> stopLater_;
};

}  // namespace qv
