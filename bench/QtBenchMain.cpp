#include "QtBenchMain.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "TestProgram.h"

namespace qv {

namespace {

// The offscreen platform says at every window it cannot pass size hints on; the rest of
// Qt's messages go through as usual.
QtMessageHandler qtDefaultHandler = nullptr;
void QuietHandler(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (message.contains("propagateSizeHints")) return;
  if (qtDefaultHandler) qtDefaultHandler(type, context, message);
}

}  // namespace

int RunQtBenchmarks(int argc, char** argv, const std::function<int(int, char**)>& own) {
  const test::TempHome home;
  const std::filesystem::path& h = home.Path();
  setenv("HOME", h.c_str(), 1);
  setenv("XDG_CONFIG_HOME", (h / ".config").c_str(), 1);
  setenv("XDG_DATA_HOME", (h / ".local/share").c_str(), 1);
  setenv("XDG_CACHE_HOME", (h / ".cache").c_str(), 1);
  std::filesystem::create_directories(h / "runtime");
  std::filesystem::permissions(h / "runtime", std::filesystem::perms::owner_all);
  setenv("XDG_RUNTIME_DIR", (h / "runtime").c_str(), 1);
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  qtDefaultHandler = qInstallMessageHandler(QuietHandler);
  QApplication application(argc, argv);
  if (own) {
    if (const int status = own(argc, argv); status >= 0) return status;
  }
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}

}  // namespace qv
