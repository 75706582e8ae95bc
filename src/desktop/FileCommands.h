#pragma once

#include <QString>
#include <QStringList>
#include <functional>

class QWidget;

namespace qv {

class MainWindow;
class Program;

// What the program asks the file chooser: which folder to start in, which kinds of file
// to offer, and for a save the proposed name and the extension a bare name gets.
struct FileRequest {
  bool save = false;
  QString caption;
  QString folder;
  QString fileName;  // a save's proposal; none for an open
  QStringList filters;
  QString defaultSuffix;
  bool chooseFolder = false;  // a folder is chosen, not a file
};
// The chosen path, or an empty text for Cancel.
using FileChooser = std::function<QString(QWidget* parent, const FileRequest&)>;

// Qt's own file dialog, modal over the parent, confirming before a file is overwritten.
QString AskWithFileDialog(QWidget* parent, const FileRequest& request);
// The chooser the Open and Save commands of the main window use; tests answer it themselves.
FileChooser& MainFileChooser();

// Open Game: plays the chosen saved game and remembers its folder. A file that does not
// read is refused by the game with one message, and the table stays as it was.
void OpenGame(Program& app, QWidget* parent, const FileChooser& choose);
// Save Game: writes the game on the table where the user says, and remembers the folder.
// A write that fails says so and changes nothing else.
void SaveGame(Program& app, QWidget* parent, const FileChooser& choose);

void OpenGame(MainWindow& main);
void SaveGame(MainWindow& main);

}  // namespace qv
