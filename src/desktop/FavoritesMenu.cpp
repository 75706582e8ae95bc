#include <QMenu>

#include "CardPainter.h"
#include "MainWindow.h"
#include "lists/Favorites.h"
#include "session/Program.h"

namespace qv {

void MainWindow::RefreshFavMenu() {
  for (QAction* a : favEntries_) delete a;  // a folder's entry takes its sub-menu with it
  favEntries_.clear();
  const FavTree tree = ReadFavTree(*app_);
  auto addGame = [this](QMenu* menu, const FavGame& game) {
    QAction* a = menu->addAction(CommandIcon("Q1"), QString::fromStdString(game.name));
    const std::string path = game.path;
    connect(a, &QAction::triggered, this, [this, path] { app_->cGamePlay.PlayFavFile(path); });
    return a;
  };
  for (const FavFolderNode& folder : tree.folders) {
    auto* sub = new QMenu(QString::fromStdString(folder.name), favMenu_);
    sub->setIcon(CommandIcon("FOLDER"));
    for (const FavGame& game : folder.games) addGame(sub, game);
    QAction* entry = favMenu_->addMenu(sub);
    connect(entry, &QObject::destroyed, sub, &QObject::deleteLater);
    favEntries_.push_back(entry);
  }
  for (const FavGame& game : tree.games) favEntries_.push_back(addGame(favMenu_, game));
  // "Organize Favorites" only while there is something to organise.
  actions_.value("OrgFav")->setEnabled(!tree.Empty());
  toolbarItems_.value("OrgFav")->setEnabled(!tree.Empty());
}

}  // namespace qv
