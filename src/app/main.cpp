// Quorvale: Spider solitaire for the Linux desktop.
#include <QApplication>

#include "MainWindow.h"
#include "Splash.h"
#include "session/FirstGame.h"
#include "session/Program.h"
#include "settings/IniSettingsStore.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setApplicationName("Quorvale 6.0");
  qv::IniSettingsStore settings(qv::IniSettingsStore::DefaultPath());
  qv::MainWindow window(settings);
  // A saved game's path keeps its case: the file system heeds it.
  const std::string path = argc > 1 ? argv[1] : "";
  auto* splash = new qv::Splash(QString::fromStdString(window.app().cData.Version()), [&window, path] {
    window.show();
    window.Load();
    qv::FirstGame(window.app(), path);
  });
  splash->show();
  return application.exec();
}
