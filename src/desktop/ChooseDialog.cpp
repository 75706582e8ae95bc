#include "ChooseDialog.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "CardPainter.h"
#include "DialogParts.h"
#include "lists/ChooseNumber.h"
#include "lists/GameNumbers.h"
#include "scores/Players.h"
#include "session/Program.h"

namespace qv {

void FillPlayers(const Program& app, QComboBox* box) {
  for (int slot = 1; slot <= PlayerCount(app.cRegistry); ++slot)
    box->addItem(CommandIcon("Players"), QString::fromStdString(GetPlayer(app.cRegistry, slot)));
  box->setCurrentIndex(std::max(0, box->findText(QString::fromStdString(GetCurPlayer(app.cRegistry)))));
}

ChooseDialog::ChooseDialog(Program& app, QWidget* parent)
    : QDialog(parent), app_(app), number_(new QLineEdit), games_(new QComboBox), players_(new QComboBox) {
  setWindowTitle("Select a Game Number");
  setModal(true);
  number_->setObjectName("Text1");
  games_->setObjectName("imcGames");
  players_->setObjectName("imcPlayer");
  // A new number, all selected, so that typing replaces it.
  number_->setText(QString::fromStdString(RandomGameNo(app_).Text()));
  number_->selectAll();
  auto* range = new QLabel(QString::fromStdString(NumberRangeText(app_)));
  range->setObjectName("lblRange");
  for (int id = 1; id <= app_.cData.TotalGames(); ++id)
    games_->addItem(CommandIcon("Q1"), QString::fromStdString(app_.cData.GetGName(id)));
  games_->setCurrentIndex(std::max(0, games_->findText(QString::fromStdString(app_.cGamePlay.GameName()))));
  FillPlayers(app_, players_);

  auto* select = NamedButton("cmdSelect", "Select");
  auto* cancel = NamedButton("cmdCancel", "Cancel");
  select->setDefault(true);
  connect(select, &QPushButton::clicked, this, &ChooseDialog::Select);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);

  auto* grid = new QGridLayout;
  grid->addWidget(new QLabel("Enter a Game Number between"), 0, 0);
  grid->addWidget(range, 0, 1);
  grid->addWidget(number_, 1, 0, 1, 2);
  grid->addWidget(new QLabel("Game:"), 2, 0);
  grid->addWidget(games_, 2, 1);
  grid->addWidget(new QLabel("Player:"), 3, 0);
  grid->addWidget(players_, 3, 1);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(select);
  buttons->addWidget(cancel);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(grid);
  layout->addLayout(buttons);
}

void ChooseDialog::Select() {
  const auto number = AcceptedGameNo(app_, number_->text().toStdString());
  if (!number) {
    app_.MsgBox("Please enter a number between " + NumberRangeText(app_), MsgStyle::Information);
    number_->setText("0");
    number_->setFocus();
    return;
  }
  hide();
  SetCurPlayer(app_.cRegistry, players_->currentText().toStdString());
  app_.cGamePlay.StartGame(games_->currentText().toStdString(), *number, 0, 0, 0, 0);
  accept();
}

}  // namespace qv
