#include "PendingDialog.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <filesystem>

#include "lists/Pending.h"
#include "scores/ScoreText.h"
#include "DialogParts.h"
#include "session/Program.h"
#include "session/SavedGameFile.h"

namespace qv {

namespace {
}  // namespace

PendingDialog::PendingDialog(Program& app, QWidget* parent)
    : QDialog(parent),
      app_(app),
      list_(new QTreeWidget),
      play_(NamedButton("cmdPlay", "Play Now")),
      delete_(NamedButton("cmdDelete", "Delete ")) {
  setWindowTitle("Pending List Manager");
  setModal(true);
  list_->setObjectName("lvPend");
  list_->setHeaderLabels({"Game (% Completed)", "Time", "Moves", "Score"});
  list_->setRootIsDecorated(false);
  list_->setUniformRowHeights(true);
  list_->setAllColumnsShowFocus(true);
  list_->setSelectionMode(QAbstractItemView::SingleSelection);
  list_->header()->setStretchLastSection(false);
  list_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
  // Numbers line up on the right, under their headings.
  for (int c = 1; c < 4; ++c) list_->headerItem()->setTextAlignment(c, Qt::AlignRight | Qt::AlignVCenter);

  auto* close = NamedButton("cmdClose", "Close");
  close->setDefault(true);
  connect(play_, &QPushButton::clicked, this, &PendingDialog::Play);
  connect(delete_, &QPushButton::clicked, this, &PendingDialog::Delete);
  connect(close, &QPushButton::clicked, this, &QDialog::accept);
  connect(list_, &QTreeWidget::itemDoubleClicked, this, &PendingDialog::Play);

  auto* buttons = new QVBoxLayout;
  buttons->addWidget(play_);
  buttons->addWidget(delete_);
  buttons->addStretch();
  buttons->addWidget(close);
  auto* layout = new QHBoxLayout(this);
  layout->addWidget(list_, 1);
  layout->addLayout(buttons);
  resize(600, 320);

  Fill();
  app_.cSound.OrgPend();
}

void PendingDialog::Fill() {
  list_->clear();
  for (const auto& [path, header] : ListPending(app_)) {
    const GameHeader* h = &header;
    const std::string name = std::filesystem::path(path).filename().string();
    const std::string stem = name.size() > 4 ? name.substr(0, name.size() - 4) : name;
    auto* row = new QTreeWidgetItem(list_);
    row->setText(0, QString::fromStdString(stem + " (" + std::to_string(h->Percentage) + "%)"));
    row->setText(1, QString::fromStdString(FormatSeconds(h->Time)));
    row->setText(2, QString::number(h->Moves));
    row->setText(3, QString::number(h->Score));
    for (int c = 1; c < 4; ++c) row->setTextAlignment(c, Qt::AlignRight | Qt::AlignVCenter);
    row->setData(0, kPathRole, QString::fromStdString(path));
  }
  FitColumns(list_);
  // The first game is chosen, so Play Now and Delete always say which game they mean.
  if (list_->topLevelItemCount() > 0) list_->setCurrentItem(list_->topLevelItem(0));
  EnableButtons();
}

void PendingDialog::EnableButtons() {
  const bool rows = list_->topLevelItemCount() > 0;
  play_->setEnabled(rows);
  delete_->setEnabled(rows);
}

void PendingDialog::Play() {
  QTreeWidgetItem* row = list_->currentItem();
  if (!row) return;
  const std::string path = row->data(0, kPathRole).toString().toStdString();
  hide();
  app_.cGamePlay.PlayPendFile(path);
  accept();
}

void PendingDialog::Delete() {
  QTreeWidgetItem* row = list_->currentItem();
  if (!row) return;
  const std::string path = row->data(0, kPathRole).toString().toStdString();
  delete row;  // the next row becomes the chosen one
  app_.cFileSys.Delete(path);
  if (list_->currentItem()) list_->currentItem()->setSelected(true);
  EnableButtons();
  list_->viewport()->update();
  app_.surface.window.RefreshMenus();
}

}  // namespace qv
