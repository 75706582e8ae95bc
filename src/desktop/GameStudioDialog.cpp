#include "GameStudioDialog.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "AddGameDialog.h"
#include "DialogParts.h"
#include "PreviewPainter.h"
#include "created/StudioGames.h"
#include "engine/mStudio.h"
#include "lists/GameNumbers.h"
#include "session/Program.h"

namespace qv {

GameStudioDialog::GameStudioDialog(Program& app, QWidget* parent) : QDialog(parent), app_(app) {
  setObjectName("frmGameStudio");
  setWindowTitle("Game Editor");
  openAddGame = [this](const std::string& EditGame) { AddGameDialog(app_, EditGame, this).exec(); };
  auto* layout = new QHBoxLayout(this);
  lvGames_ = new QTreeWidget;
  lvGames_->setObjectName("lvGames");
  lvGames_->setHeaderLabels({"Created Games List"});
  lvGames_->setRootIsDecorated(false);
  lvGames_->setMinimumWidth(200);
  layout->addWidget(lvGames_);

  auto* right = new QVBoxLayout;
  frame1_ = new QGroupBox("Game Details");
  frame1_->setObjectName("Frame1");
  auto* details = new QVBoxLayout(frame1_);
  lvWiz_ = new QTreeWidget;
  lvWiz_->setObjectName("lvWiz");
  lvWiz_->setColumnCount(2);
  lvWiz_->setHeaderHidden(true);
  lvWiz_->setRootIsDecorated(false);
  lvWiz_->setSelectionMode(QAbstractItemView::NoSelection);
  lvWiz_->setMinimumSize(460, 120);
  lvWiz_->setMaximumHeight(140);  // six rows; the preview takes the rest
  details->addWidget(lvWiz_);
  pic1_ = new PreviewBox;
  details->addWidget(pic1_);
  right->addWidget(frame1_);

  auto* buttons = new QGridLayout;
  QPushButton* add = NamedButton("cmdAdd", "New Game");
  QPushButton* wizard = NamedButton("cmdWizard", "New Game Wizard");
  cmdEdit_ = NamedButton("cmdEdit", "Edit Game");
  cmdDelete_ = NamedButton("cmdDelete", "Delete Game");
  cmdRules_ = NamedButton("cmdRules", "Rules");
  cmdPlay_ = NamedButton("cmdPlay", "Play");
  QPushButton* close = NamedButton("cmdClose", "Close");
  const QList<QPushButton*> all{add, wizard, cmdEdit_, cmdDelete_, cmdRules_, cmdPlay_, close};
  for (int i = 0; i < all.size(); ++i) buttons->addWidget(all[i], i / 4, i % 4);
  right->addLayout(buttons);
  layout->addLayout(right, 1);

  connect(lvGames_, &QTreeWidget::itemClicked, this, [this] { ShowDetails(Selected()); });
  connect(lvGames_, &QTreeWidget::currentItemChanged, this, [this] { ShowDetails(Selected()); });
  connect(add, &QPushButton::clicked, this, [this] {
    openAddGame("");
    Fill();
  });
  connect(wizard, &QPushButton::clicked, this, [this] { done(kWizard); });
  connect(cmdEdit_, &QPushButton::clicked, this, [this] { Edit(); });
  connect(cmdDelete_, &QPushButton::clicked, this, [this] { Delete(); });
  connect(cmdRules_, &QPushButton::clicked, this, [this] { app_.cData.ShowRules(Selected(), 1); });
  connect(cmdPlay_, &QPushButton::clicked, this, [this] { Play(); });
  connect(close, &QPushButton::clicked, this, &QDialog::reject);
  Fill();
}

std::string GameStudioDialog::Selected() const {
  const QTreeWidgetItem* item = lvGames_->currentItem();
  return item ? item->text(0).toStdString() : std::string();
}

void GameStudioDialog::Fill() {
  const auto games = app_.cCustom.GetStudioGames();
  {
    const QSignalBlocker quiet(lvGames_);
    lvGames_->clear();
    for (size_t i = 1; i < games.size(); ++i) lvGames_->addTopLevelItem(new QTreeWidgetItem({QString::fromStdString(games[i])}));
    if (lvGames_->topLevelItemCount() > 0) lvGames_->setCurrentItem(lvGames_->topLevelItem(0));
  }
  const bool any = lvGames_->topLevelItemCount() > 0;
  for (QPushButton* b : {cmdDelete_, cmdEdit_, cmdRules_, cmdPlay_}) b->setEnabled(any);
  ShowDetails(any ? Selected() : std::string());
}

void GameStudioDialog::ShowDetails(const std::string& name) {
  if (name.empty()) {
    pic1_->Clear();
  } else {
    app_.cCustom.Init(name);
    app_.cCustom.Update_Pic(*pic1_);
  }
  lvWiz_->clear();
  frame1_->setTitle(name.empty() ? QString("Game Details") : QString::fromStdString(name));
  const bool shown = !name.empty() && lvGames_->topLevelItemCount() > 0;
  cmdEdit_->setEnabled(shown);
  cmdDelete_->setEnabled(shown);
  if (!shown) return;
  const cCustom& c = app_.cCustom;
  const std::pair<const char*, std::string> rows[] = {
      {"Tableau Card Arranging Order : ", GetOrderName(c.HOrder)},
      {"Number of Tableau Piles : ", std::to_string(c.HPiles)},
      {"Tableau Space Filling Card : ", GetSpaceName(c.HSpace)},
      {"Ace-King Wrapping in Tableau : ", GetBoolName(c.HAK)},
      {"Tableau Multi Card Arranging Order : ", GetOrderName(c.MOrder)},
      {"No of Suits : ", GetSuitName(c.Suits)}};
  for (const auto& [label, value] : rows)
    lvWiz_->addTopLevelItem(new QTreeWidgetItem({label, QString::fromStdString(value)}));
  lvWiz_->resizeColumnToContents(0);
}

void GameStudioDialog::Edit() {
  const std::string name = Selected();
  if (!MayEditGame(app_, name)) return;
  app_.cCustom.Init(name);
  openAddGame(name);
  Fill();
}

void GameStudioDialog::Delete() {
  if (DeleteStudioGame(app_, Selected())) Fill();
}

void GameStudioDialog::Play() {
  const std::string name = Selected();
  hide();
  app_.cGamePlay.StartGame(name, RandomGameNo(app_), 0, 0, 0, 0);
  accept();
}

}  // namespace qv
