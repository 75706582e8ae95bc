#include "StartupTiming.h"

#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <string>

namespace qv {

namespace {

// The two memory lines of /proc/self/status, in kB; -1 when they cannot be read.
void ReadMemory(long& hwm, long& rss) {
  hwm = rss = -1;
  std::FILE* f = std::fopen("/proc/self/status", "r");
  if (!f) return;
  char line[256];
  while (std::fgets(line, sizeof line, f)) {
    if (std::strncmp(line, "VmHWM:", 6) == 0) hwm = std::strtol(line + 6, nullptr, 10);
    else if (std::strncmp(line, "VmRSS:", 6) == 0) rss = std::strtol(line + 6, nullptr, 10);
  }
  std::fclose(f);
}

// Watches one widget for its first paint, then takes itself away.
class FirstPaintWatch : public QObject {
 public:
  FirstPaintWatch(QWidget* widget, const char* what) : QObject(widget), what_(what) {}

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::Paint || done_) return false;
    done_ = true;
    ReportMoment(what_.c_str());
    // A zero timer runs once the paint and its flush to the screen are over.
    QTimer::singleShot(0, this, [this] {
      ReportMoment((what_ + " done").c_str());
      deleteLater();
    });
    watched->removeEventFilter(this);
    return false;  // the widget paints as always
  }

 private:
  std::string what_;
  bool done_ = false;
};

}  // namespace

bool TimingReported() {
  static const bool on = std::getenv("QUORVALE_TIMING") != nullptr;
  return on;
}

void ReportMoment(const char* what) {
  if (!TimingReported()) return;
  timespec now{};
  clock_gettime(CLOCK_REALTIME, &now);
  long hwm = 0, rss = 0;
  ReadMemory(hwm, rss);
  const double ms = static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
  // One write, so the line never mixes with other output on stderr.
  char line[512];
  const int n = std::snprintf(line, sizeof line, "quorvale-timing %.3f VmHWM %ld VmRSS %ld %s\n", ms, hwm, rss, what);
  if (n > 0) std::fwrite(line, 1, static_cast<size_t>(n) < sizeof line ? n : sizeof line - 1, stderr);
}

void ReportFirstPaint(QWidget* widget, const char* what) {
  if (!TimingReported() || !widget) return;
  widget->installEventFilter(new FirstPaintWatch(widget, what));
}

void ReportWhenIdle(const char* what) {
  if (!TimingReported()) return;
  QTimer::singleShot(0, [moment = std::string(what)] { ReportMoment(moment.c_str()); });
}

}  // namespace qv
