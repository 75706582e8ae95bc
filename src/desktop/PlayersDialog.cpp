#include "PlayersDialog.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "DialogParts.h"
#include "InputAsker.h"
#include "scores/PlayerEdit.h"
#include "scores/Players.h"
#include "session/Program.h"

namespace qv {

namespace {
QString Q(const std::string& s) { return QString::fromStdString(s); }
}  // namespace

PlayersDialog::PlayersDialog(Program& app, QWidget* parent)
    : QDialog(parent), app_(app), list_(new QListWidget), delete_(NamedButton("cmdDelete", "Delete")) {
  setWindowTitle("Players");
  setModal(true);
  list_->setObjectName("lvPlayer");
  auto* add = NamedButton("cmdAdd", "New");
  auto* edit = NamedButton("cmdEdit", "Edit");
  auto* select = NamedButton("cmdSelect", "Select");
  auto* cancel = NamedButton("cmdCancel", "Cancel");
  select->setDefault(true);
  connect(add, &QPushButton::clicked, this, &PlayersDialog::Add);
  connect(edit, &QPushButton::clicked, this, &PlayersDialog::Edit);
  connect(delete_, &QPushButton::clicked, this, &PlayersDialog::Delete);
  connect(select, &QPushButton::clicked, this, &PlayersDialog::Select);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  connect(list_, &QListWidget::currentItemChanged, this, &PlayersDialog::FollowSelection);
  auto* buttons = new QVBoxLayout;
  for (QPushButton* b : {add, edit, delete_, select}) buttons->addWidget(b);
  buttons->addStretch();
  buttons->addWidget(cancel);
  auto* layout = new QHBoxLayout(this);
  layout->addWidget(list_, 1);
  layout->addLayout(buttons);
  resize(360, 340);
  Fill();
  delete_->setEnabled(false);
  app_.cSound.Players();
}

void PlayersDialog::Fill() {
  const QSignalBlocker quiet(list_);
  list_->clear();
  const std::string current = GetCurPlayer(app_.cRegistry);
  for (int p = 1; p <= PlayerCount(app_.cRegistry); ++p) {
    const std::string name = GetPlayer(app_.cRegistry, p);
    list_->addItem(Q(name));
    if (name == current) list_->setCurrentRow(p - 1);
  }
  FollowSelection();
}

// The current player cannot be deleted, nor can nobody.
void PlayersDialog::FollowSelection() {
  const QListWidgetItem* item = list_->currentItem();
  delete_->setEnabled(item && item->text().toStdString() != GetCurPlayer(app_.cRegistry));
}

void PlayersDialog::AskName(const QString& purpose, const QString& start,
                            const std::function<std::string(const std::string&)>& take) {
  QString text = start;
  while (true) {
    text = MainInputAsker()(this, {Q(app_.cData.ProdName()), purpose, text});
    if (text.isEmpty()) return;  // left by Cancel
    const std::string refused = take(text.toStdString());
    if (refused.empty()) break;
    app_.MsgBox(refused, MsgStyle::Stop);
  }
  Fill();
  app_.cGamePlay.Update_Title();
}

void PlayersDialog::Add() {
  if (PlayerCount(app_.cRegistry) >= kMaxPlayers) {
    app_.MsgBox("Maximum 20 Players Only!", MsgStyle::Information);
    return;
  }
  AskName("Add Player", "", [this](const std::string& name) { return AddPlayer(app_, name); });
}

void PlayersDialog::Edit() {
  const QListWidgetItem* item = list_->currentItem();
  if (!item) return;
  const std::string old = item->text().toStdString();
  AskName("Edit Player", item->text(), [this, old](const std::string& name) { return RenamePlayer(app_, old, name); });
}

void PlayersDialog::Delete() {
  const QListWidgetItem* item = list_->currentItem();
  if (!item || !delete_->isEnabled()) return;
  if (app_.MsgBox("Are you sure you want to delete this player", MsgStyle::YesNoStop) != Answer::Yes) return;
  DeletePlayer(app_, item->text().toStdString());
  Fill();
}

void PlayersDialog::Select() {
  const QListWidgetItem* item = list_->currentItem();
  if (!item) return;
  SetCurPlayer(app_.cRegistry, item->text().toStdString());
  app_.cGamePlay.Update_Title();
  accept();
}

}  // namespace qv
