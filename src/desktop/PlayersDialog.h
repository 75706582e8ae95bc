#pragma once

#include <QDialog>
#include <functional>
#include <string>

class QListWidget;
class QPushButton;

namespace qv {

class Program;

// "Players": up to twenty names and the current one. Adding and renaming ask for the name
// in the program's input box, and ask again while the name is refused.
class PlayersDialog : public QDialog {
  Q_OBJECT
 public:
  PlayersDialog(Program& app, QWidget* parent = nullptr);

 private:
  void Fill();
  void Add();
  void Edit();
  void Delete();
  void Select();
  void FollowSelection();
  // Asks for a name until one is taken or the box is left; `take` returns the refusal.
  void AskName(const QString& purpose, const QString& start, const std::function<std::string(const std::string&)>& take);

  Program& app_;
  QListWidget* list_;
  QPushButton* delete_;
};

}  // namespace qv
