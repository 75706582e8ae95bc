#include "AddFavDialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <filesystem>

#include "CardPainter.h"
#include "DialogParts.h"
#include "InputAsker.h"
#include "lists/Favorites.h"
#include "session/Program.h"

namespace qv {

AddFavDialog::AddFavDialog(Program& app, QWidget* parent)
    : QDialog(parent), app_(app), name_(new QLineEdit), tree_(new QTreeWidget) {
  setWindowTitle("Add to Favorites");
  setModal(true);
  name_->setObjectName("txFav");
  name_->setText(QString::fromStdString(DefaultFavName(app_)));
  tree_->setObjectName("tvFav");
  tree_->setHeaderHidden(true);
  auto* create = NamedButton("cmdCreate", "New Folder");
  auto* ok = NamedButton("cmdOK", "OK");
  auto* cancel = NamedButton("cmdCancel", "Cancel");
  ok->setDefault(true);
  connect(create, &QPushButton::clicked, this, &AddFavDialog::CreateFolder);
  connect(ok, &QPushButton::clicked, this, &AddFavDialog::Add);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(new QLabel("Name:"));
  layout->addWidget(name_);
  layout->addWidget(new QLabel("Create in:"));
  auto* row = new QHBoxLayout;
  row->addWidget(tree_, 1);
  auto* buttons = new QVBoxLayout;
  buttons->addWidget(ok);
  buttons->addWidget(cancel);
  buttons->addStretch();
  buttons->addWidget(create);
  row->addLayout(buttons);
  layout->addLayout(row);
  resize(420, 300);
  Fill();
  app_.cSound.AddFav();
}

void AddFavDialog::Fill() {
  tree_->clear();
  auto* root = new QTreeWidgetItem(tree_, {"Favorites"});
  root->setIcon(0, CommandIcon("FOLDER"));
  root->setData(0, kPathRole, QString::fromStdString(app_.cData.FavFolder()));
  for (const std::string& folder : GetFavFolders(app_)) {
    auto* node = new QTreeWidgetItem(root, {QString::fromStdString(std::filesystem::path(folder).filename().string())});
    node->setIcon(0, CommandIcon("FOLDER"));
    node->setData(0, kPathRole, QString::fromStdString(folder));
  }
  root->setExpanded(true);
  tree_->setCurrentItem(root);
  app_.surface.window.RefreshMenus();
}

void AddFavDialog::CreateFolder() {
  const QString name =
      MainInputAsker()(this, {QString::fromStdString(app_.cData.ProdName()), "Please Enter a Folder Name", "New Folder"});
  const std::string folder = name.toStdString();
  if (!CreateFavFolder(app_, folder)) return;
  Fill();
  // The new folder is chosen, where the name sorts it.
  const QString path = QString::fromStdString((std::filesystem::path(app_.cData.FavFolder()) / folder).string());
  for (QTreeWidgetItemIterator it(tree_); *it; ++it)
    if ((*it)->data(0, kPathRole).toString() == path) tree_->setCurrentItem(*it);
}

void AddFavDialog::Add() {
  QTreeWidgetItem* node = tree_->currentItem();
  if (!node) return;
  const std::string folder = node->data(0, kPathRole).toString().toStdString();
  const std::string name = name_->text().toStdString();
  if (!ValidateFavName(app_, name, kFavGame, folder)) return;
  if (AddFavFile(app_, (std::filesystem::path(folder) / name).string())) accept();
}

}  // namespace qv
