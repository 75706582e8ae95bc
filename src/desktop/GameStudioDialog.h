#pragma once

#include <QDialog>
#include <functional>
#include <string>

class QGroupBox;
class QPushButton;
class QTreeWidget;

namespace qv {

class PreviewBox;
class Program;

// frmGameStudio, "Game Editor": the created games, their details and preview, and the
// buttons that make, change, show, play and delete them.
class GameStudioDialog : public QDialog {
 public:
  // The result when the user asked for the wizard instead: the caller opens it.
  static constexpr int kWizard = 2;
  explicit GameStudioDialog(Program& app, QWidget* parent = nullptr);
  // Opens the New Game form; tests replace it to drive the form themselves.
  std::function<void(const std::string& EditGame)> openAddGame;

 private:
  void Fill();
  void ShowDetails(const std::string& name);
  std::string Selected() const;
  void Edit();
  void Delete();
  void Play();

  Program& app_;
  QTreeWidget* lvGames_;
  QGroupBox* frame1_;
  QTreeWidget* lvWiz_;
  PreviewBox* pic1_;
  QPushButton *cmdEdit_, *cmdDelete_, *cmdRules_, *cmdPlay_;
};

}  // namespace qv
