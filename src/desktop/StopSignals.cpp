#include "StopSignals.h"

#include <QSocketNotifier>
#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace qv {

namespace {

int pipeEnds[2] = {-1, -1};

// Only what is safe in a signal handler: one byte into the pipe, read on the event loop.
void OnSignal(int) {
  const char byte = 1;
  const ssize_t written = write(pipeEnds[0], &byte, 1);
  (void)written;
}

}  // namespace

void StopOnSignals(std::function<void()> stop) {
  if (socketpair(AF_UNIX, SOCK_STREAM, 0, pipeEnds) != 0) return;
  auto* notifier = new QSocketNotifier(pipeEnds[1], QSocketNotifier::Read);
  QObject::connect(notifier, &QSocketNotifier::activated, notifier, [notifier, stop = std::move(stop)] {
    char byte;
    const ssize_t got = read(pipeEnds[1], &byte, 1);
    (void)got;
    notifier->setEnabled(false);  // one orderly stop is enough
    stop();
  });
  struct sigaction action {};
  action.sa_handler = OnSignal;
  sigemptyset(&action.sa_mask);
  action.sa_flags = SA_RESTART;
  sigaction(SIGTERM, &action, nullptr);
  sigaction(SIGINT, &action, nullptr);
}

}  // namespace qv
