#pragma once

#include <QString>

namespace qv {

class MainWindow;

// Opens the window of a command key over the main window. Keys whose windows come with
// later parts of the program open nothing yet.
void OpenProgramWindow(MainWindow& main, const QString& key);

}  // namespace qv
