#include "HotGamesDialog.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "DialogParts.h"
#include "session/Program.h"
#include "settings/SettingKeys.h"

namespace qv {

namespace {
QTreeWidget* GameList(const char* name, const char* header) {
  auto* list = new QTreeWidget;
  list->setObjectName(name);
  list->setHeaderLabel(header);
  list->setRootIsDecorated(false);
  list->setUniformRowHeights(true);
  list->setSelectionMode(QAbstractItemView::SingleSelection);
  list->header()->setSectionsClickable(false);
  return list;
}


void ChooseFirst(QTreeWidget* list) {
  if (!list->currentItem() && list->topLevelItemCount() > 0) list->setCurrentItem(list->topLevelItem(0));
}
}  // namespace

HotGamesDialog::HotGamesDialog(Program& app, QWidget* parent)
    : QDialog(parent),
      app_(app),
      left_(GameList("lvLeft", "")),
      right_(GameList("lvRight", "Hot Games List")),
      add_(NamedButton("cmdAdd", ">>")),
      remove_(NamedButton("cmdRemove", "<<")) {
  setWindowTitle("Hot Games");
  setModal(true);
  for (int id = 1; id <= app_.cData.TotalGames(); ++id) {
    const std::string& name = app_.cData.GetGName(id);
    const bool hot = app_.cRegistry.RegGetInt(section::HotGames, name, 0) == 1;
    auto* row = new QTreeWidgetItem(hot ? right_ : left_, {QString::fromStdString(name)});
    row->setData(0, kIdRole, id);
  }
  ChooseFirst(left_);
  ChooseFirst(right_);

  auto* close = NamedButton("cmdClose", "Close");
  close->setDefault(true);
  connect(add_, &QPushButton::clicked, this, [this] { Move(left_, right_, 1); });
  connect(remove_, &QPushButton::clicked, this, [this] { Move(right_, left_, 0); });
  connect(left_, &QTreeWidget::itemDoubleClicked, this, [this] { Move(left_, right_, 1); });
  connect(right_, &QTreeWidget::itemDoubleClicked, this, [this] { Move(right_, left_, 0); });
  connect(close, &QPushButton::clicked, this, &QDialog::accept);

  const int wide = add_->fontMetrics().horizontalAdvance(">>") * 4;
  for (QPushButton* b : {add_, remove_}) b->setFixedWidth(wide);
  auto* middle = new QVBoxLayout;
  middle->addStretch();
  middle->addWidget(add_);
  middle->addWidget(remove_);
  middle->addStretch();
  auto* lists = new QHBoxLayout;
  lists->addWidget(left_, 1);
  lists->addLayout(middle);
  lists->addWidget(right_, 1);
  auto* bottom = new QHBoxLayout;
  bottom->addStretch();
  bottom->addWidget(close);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(lists, 1);
  layout->addLayout(bottom);
  resize(440, 300);

  EnableButtons();
  app_.cSound.Hot();
}

void HotGamesDialog::Move(QTreeWidget* from, QTreeWidget* to, int hot) {
  QTreeWidgetItem* row = from->currentItem();
  if (!row) return;
  // A mark the settings refused is not shown as kept.
  if (!app_.cRegistry.RegSaveInt(section::HotGames, row->text(0).toStdString(), hot)) return;
  from->takeTopLevelItem(from->indexOfTopLevelItem(row));
  // Into its place by game id, so the lists read the same when the dialog opens again.
  const int id = row->data(0, kIdRole).toInt();
  int at = 0;
  while (at < to->topLevelItemCount() && to->topLevelItem(at)->data(0, kIdRole).toInt() < id) ++at;
  to->insertTopLevelItem(at, row);
  to->setCurrentItem(row);
  ChooseFirst(from);
  if (from->currentItem()) from->currentItem()->setSelected(true);
  EnableButtons();
}

void HotGamesDialog::EnableButtons() {
  add_->setEnabled(left_->topLevelItemCount() > 0);
  remove_->setEnabled(right_->topLevelItemCount() > 0);
}

}  // namespace qv
