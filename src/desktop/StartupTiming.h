#pragma once

class QWidget;

namespace qv {

// An opt-in report for timing the program's start. Only when the environment variable
// QUORVALE_TIMING is set, each call prints one line to stderr:
//   quorvale-timing <wall clock in ms> VmHWM <kB> VmRSS <kB> <what>
// The clock is CLOCK_REALTIME, so a script can set the line beside the moment it launched
// the program; the memory comes from /proc/self/status. Without the variable nothing is
// read, printed or installed, so a normal run goes exactly as before.
bool TimingReported();
void ReportMoment(const char* what);
// Reports the first paint event the widget receives (before it paints), and a second line
// "<what> done" when the event loop next runs, after that paint has been put on screen.
void ReportFirstPaint(QWidget* widget, const char* what);
// Reports when the event loop next runs, once what is already waiting in it has been done.
void ReportWhenIdle(const char* what);

}  // namespace qv
