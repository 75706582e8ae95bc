#pragma once

#include <QTemporaryDir>
#include <QtGlobal>

// Points HOME and the XDG folders at a temporary folder for as long as it lives, so a
// widget test that builds the real main window never touches the user's own files.
class TemporaryUserHome {
 public:
  TemporaryUserHome() {
    qputenv("HOME", dir_.path().toUtf8());
    qputenv("XDG_DATA_HOME", (dir_.path() + "/data").toUtf8());
    qputenv("XDG_CONFIG_HOME", (dir_.path() + "/config").toUtf8());
  }
  QString path() const { return dir_.path(); }

 private:
  QTemporaryDir dir_;
};
