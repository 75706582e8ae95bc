#include "FileCommands.h"

#include <QFileDialog>
#include <filesystem>

#include "MainWindow.h"
#include "lists/Recent.h"
#include "session/Program.h"
#include "settings/Settings.h"

namespace qv {

namespace {
QString Q(const std::string& s) { return QString::fromStdString(s); }

// The folder a chosen file lies in, as the next Open or Save starts there.
std::string FolderOf(const std::string& path) { return std::filesystem::path(path).parent_path().string(); }

bool IsFolder(const std::string& path) {
  std::error_code ec;
  return !path.empty() && std::filesystem::is_directory(path, ec);
}
}  // namespace

QString AskWithFileDialog(QWidget* parent, const FileRequest& request) {
  QFileDialog dialog(parent, request.caption, request.folder);
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  dialog.setAcceptMode(request.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog.setFileMode(request.chooseFolder ? QFileDialog::Directory
                     : request.save  ? QFileDialog::AnyFile
                                     : QFileDialog::ExistingFile);
  if (request.chooseFolder) dialog.setOption(QFileDialog::ShowDirsOnly);
  dialog.setNameFilters(request.filters);
  dialog.setDefaultSuffix(request.defaultSuffix);
  if (!request.fileName.isEmpty()) dialog.selectFile(request.fileName);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  return dialog.selectedFiles().first();
}

FileChooser& MainFileChooser() {
  static FileChooser chooser = AskWithFileDialog;
  return chooser;
}

void OpenGame(Program& app, QWidget* parent, const FileChooser& choose) {
  const std::string prod = app.cData.ProdName();
  FileRequest request;
  request.caption = "Open Game";
  request.folder = Q(SaveInitDir(app));
  request.filters = {Q(prod + " InComplete Game (*" + app.cData.IncExt() + ")"),
                     Q(prod + " Finished Game (*" + app.cData.FinExt() + ")")};
  const std::string path = choose(parent, request).toStdString();
  std::error_code ec;
  if (path.empty() || !std::filesystem::exists(path, ec)) return;
  app.cRegistry.Set(setting::SaveInitDir, FolderOf(path));
  app.cGamePlay.PlayFile(path, true);
}

void SaveGame(Program& app, QWidget* parent, const FileChooser& choose) {
  // Only a game being played has anything to keep; an empty table is never written.
  if (app.cGamePlay.Game_Status() != 1) return;
  const std::string inc = app.cData.IncExt();
  FileRequest request;
  request.save = true;
  request.caption = "Save Game";
  request.folder = Q(SaveInitDir(app));
  request.fileName = Q(app.cGamePlay.GameName() + "-" + app.cGamePlay.GameNo().Text() + inc);
  request.filters = {Q(" InComplete Game (*" + inc + ")")};
  request.defaultSuffix = Q(inc.substr(1));
  const std::string path = choose(parent, request).toStdString();
  if (path.empty()) return;
  const std::string folder = FolderOf(path);
  std::string error;
  if (!IsFolder(folder)) {
    error = "the folder \"" + folder + "\" does not exist";
  } else if (app.cEngine.SavetoFile(path, &error)) {
    // The folder is remembered only with a game kept in it: a failed save changes nothing.
    app.cRegistry.Set(setting::SaveInitDir, folder);
    AddRecent(app, kRecentSaved, path);
    return;
  }
  app.MsgBox("The game could not be saved to \"" + path + "\": " + error + ".", MsgStyle::Stop);
}

void OpenGame(MainWindow& main) { OpenGame(main.app(), &main, MainFileChooser()); }
void SaveGame(MainWindow& main) { SaveGame(main.app(), &main, MainFileChooser()); }

}  // namespace qv
