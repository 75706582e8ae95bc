#include "AutoSaveDialog.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <filesystem>

#include "lists/AutoSave.h"
#include "scores/ScoreText.h"
#include "DialogParts.h"
#include "session/Program.h"
#include "session/SavedGameFile.h"
#include "settings/SettingKeys.h"

namespace qv {

namespace {
QTreeWidget* GameList(const char* name, const QStringList& columns) {
  auto* list = NewRowList(name, columns);
  list->setSelectionMode(QAbstractItemView::SingleSelection);
  list->header()->setStretchLastSection(false);
  list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
  // Numbers line up on the right, under their headings.
  for (int c : {2, 3}) list->headerItem()->setTextAlignment(c, Qt::AlignRight | Qt::AlignVCenter);
  return list;
}


QWidget* Page(QTreeWidget* list) {
  auto* page = new QWidget;
  auto* layout = new QVBoxLayout(page);
  layout->setContentsMargins(6, 6, 6, 6);
  layout->addWidget(list);
  return page;
}
}  // namespace

AutoSaveDialog::AutoSaveDialog(Program& app, QWidget* parent)
    : QDialog(parent),
      app_(app),
      tabs_(new QTabWidget),
      inc_(GameList("lvInc", {"Game", "Date Played", "Time", "Perc"})),
      fin_(GameList("lvFin", {"Game ", "Date Played", "Time", "Score"})),
      play_(NamedButton("cmdPlay", "Play")),
      delete_(NamedButton("cmdDelete", "Delete")),
      empInc_(NamedButton("cmdEmpInc", "Empty Incomplete Games")),
      empFin_(NamedButton("cmdEmpFin", "Empty Finished Games")) {
  setWindowTitle("Auto Save");
  setModal(true);
  tabs_->setObjectName("SSTab1");
  tabs_->addTab(Page(inc_), " Incomplete Games");
  tabs_->addTab(Page(fin_), "Finished Games");

  auto* close = NamedButton("cmdClose", "Close");
  close->setDefault(true);
  connect(play_, &QPushButton::clicked, this, &AutoSaveDialog::Play);
  connect(delete_, &QPushButton::clicked, this, &AutoSaveDialog::Delete);
  connect(empInc_, &QPushButton::clicked, this, [this] { Empty(false); });
  connect(empFin_, &QPushButton::clicked, this, [this] { Empty(true); });
  connect(close, &QPushButton::clicked, this, [this] {
    StoreTab();
    accept();
  });
  for (QTreeWidget* list : {inc_, fin_})
    connect(list, &QTreeWidget::itemClicked, this, [this] { EnableRowButtons(true); });
  // A row chosen on one tab is not the row of the other.
  connect(tabs_, &QTabWidget::currentChanged, this, [this] { EnableRowButtons(false); });

  auto* buttons = new QVBoxLayout;
  buttons->addWidget(play_);
  buttons->addWidget(delete_);
  buttons->addSpacing(16);
  buttons->addWidget(empInc_);
  buttons->addWidget(empFin_);
  buttons->addStretch();
  buttons->addWidget(close);
  auto* layout = new QHBoxLayout(this);
  layout->addWidget(tabs_, 1);
  layout->addLayout(buttons);
  resize(680, 380);

  Refresh();
  const int tab = app_.cRegistry.Get(setting::AutoSaveTab);
  tabs_->setCurrentIndex(tab == 1 ? 1 : 0);
  app_.cSound.AutoSave();
}

bool AutoSaveDialog::Fill(QTreeWidget* list, bool won) {
  list->clear();
  for (const auto& [path, header] : ListAutoSaves(app_, won)) {
    const GameHeader* h = &header;
    const std::string name = std::filesystem::path(path).filename().string();
    auto* row = new QTreeWidgetItem(list);
    row->setText(0, QString::fromStdString(name.size() > 4 ? name.substr(0, name.size() - 4) : name));
    row->setText(1, QString::fromStdString(h->FileDate));
    row->setText(2, QString::fromStdString(FormatSeconds(h->Time)));
    row->setText(3, won ? QString::number(h->Score) : QString::number(h->Percentage) + "%");
    for (int c : {2, 3}) row->setTextAlignment(c, Qt::AlignRight | Qt::AlignVCenter);
    row->setData(0, kPathRole, QString::fromStdString(path));
    row->setData(0, kTagRole, QString::fromStdString(h->GameName + " - " + h->GameNo.Text()));
  }
  FitColumns(list);
  return list->topLevelItemCount() > 0;
}

void AutoSaveDialog::Refresh() {
  empInc_->setEnabled(false);
  empFin_->setEnabled(false);
  const bool incFiles = Fill(inc_, false);
  const bool finFiles = Fill(fin_, true);
  EnableRowButtons(false);
  empInc_->setEnabled(incFiles);
  empFin_->setEnabled(finFiles);
}

QTreeWidget* AutoSaveDialog::CurrentList() const { return tabs_->currentIndex() == 1 ? fin_ : inc_; }

void AutoSaveDialog::EnableRowButtons(bool on) {
  play_->setEnabled(on);
  delete_->setEnabled(on);
}

void AutoSaveDialog::Play() {
  QTreeWidgetItem* row = CurrentList()->currentItem();
  if (!row) return;
  const std::string path = row->data(0, kPathRole).toString().toStdString();
  // Out of the way first: the game may have questions of its own before it is dealt.
  hide();
  StoreTab();
  app_.cGamePlay.PlayFile(path, true);
  accept();
}

void AutoSaveDialog::Delete() {
  QTreeWidgetItem* row = CurrentList()->currentItem();
  if (!row) return;
  const std::string tag = row->data(0, kTagRole).toString().toStdString();
  if (app_.MsgBox("Are you sure you want to delete " + tag + " ?", MsgStyle::YesNoStop) == Answer::Yes)
    app_.cFileSys.Delete(row->data(0, kPathRole).toString().toStdString());
  Refresh();
}

void AutoSaveDialog::Empty(bool won) {
  if (EmptyAutoSave(app_, won)) Refresh();
}

void AutoSaveDialog::StoreTab() { app_.cRegistry.Set(setting::AutoSaveTab, tabs_->currentIndex()); }

void AutoSaveDialog::reject() {
  // Escape and the window's close box leave as Close does.
  StoreTab();
  QDialog::reject();
}

}  // namespace qv
