// Quorvale: Spider solitaire for the Linux desktop.
#include <QApplication>

#include "MainWindow.h"
#include "Splash.h"
#include "StartupTiming.h"
#include "StopSignals.h"
#include "TableView.h"
#include "session/FirstGame.h"
#include "session/Program.h"
#include "settings/IniSettingsStore.h"

int main(int argc, char** argv) {
  qv::ReportMoment("main entered");
  QApplication application(argc, argv);
  QApplication::setApplicationName("Quorvale 6.0");
  qv::IniSettingsStore settings(qv::IniSettingsStore::DefaultPath());
  qv::MainWindow window(settings);
  qv::ReportMoment("main window built");
  qv::ReportFirstPaint(&window, "main window: first paint");
  // A saved game's path keeps its case: the file system heeds it.
  const std::string path = argc > 1 ? argv[1] : "";
  auto* splash = new qv::Splash(QString::fromStdString(window.app().cData.Version()), [&window, path] {
    qv::ReportMoment("splash dismissed");
    window.show();
    window.Load();
    qv::FirstGame(window.app(), path);
    // The deal paints its frames as it goes; a frame still owed is painted after it.
    qv::ReportMoment("first deal done");
    qv::ReportFirstPaint(window.view().viewport(), "table: first frame after the deal");
    qv::ReportWhenIdle("event loop after the deal");
  });
  qv::ReportFirstPaint(splash, "splash: first paint");
  qv::StopOnSignals([&window] {
    window.close();
    QApplication::quit();
  });
  splash->show();
  return application.exec();
}
