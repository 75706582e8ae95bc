#include "OrgFavDialog.h"

#include <QComboBox>
#include <QDateTime>
#include <QFileInfo>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
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

namespace {

QString Q(const std::string& s) { return QString::fromStdString(s); }
QString DateText(const QDateTime& d) { return QLocale::c().toString(d, "M/d/yyyy h:mm:ss AP"); }

QGroupBox* Frame(const char* name, const char* title, std::array<QLabel*, 4>& labels) {
  auto* frame = new QGroupBox(title);
  frame->setObjectName(name);
  auto* layout = new QVBoxLayout(frame);
  for (QLabel*& l : labels) {
    l = new QLabel;
    l->setTextInteractionFlags(Qt::TextSelectableByMouse);
    layout->addWidget(l);
  }
  layout->addStretch();
  return frame;
}

QTreeWidgetItem* Node(QTreeWidgetItem* parent, const std::string& text, const std::string& path, int tag, const char* icon) {
  auto* node = new QTreeWidgetItem(parent, {Q(text)});
  node->setIcon(0, CommandIcon(icon));
  node->setData(0, OrgFavDialog::kPathRole, Q(path));
  node->setData(0, OrgFavDialog::kTagRole, tag);
  return node;
}

}  // namespace

OrgFavDialog::OrgFavDialog(Program& app, QWidget* parent)
    : QDialog(parent),
      app_(app),
      tree_(new QTreeWidget),
      gameFrame_(Frame("frameGame", "Game Details", gameLabels_)),
      folderFrame_(Frame("frameFolder", "Folder Details", folderLabels_)),
      folders_(new QComboBox),
      rename_(NamedButton("cmdRename", "Rename")),
      delete_(NamedButton("cmdDelete", "Delete")),
      play_(NamedButton("cmdPlay", "Play Now")),
      move_(NamedButton("cmdMove", "Move ")) {
  setWindowTitle("Organize Favorites");
  setModal(true);
  tree_->setObjectName("tvFav");
  tree_->setHeaderHidden(true);
  folders_->setObjectName("icFav");
  auto* create = NamedButton("cmdCreate", "Create Folder");
  auto* close = NamedButton("cmdClose", "Close");
  close->setDefault(true);
  connect(create, &QPushButton::clicked, this, &OrgFavDialog::Create);
  connect(rename_, &QPushButton::clicked, this, &OrgFavDialog::Rename);
  connect(delete_, &QPushButton::clicked, this, &OrgFavDialog::Delete);
  connect(play_, &QPushButton::clicked, this, &OrgFavDialog::Play);
  connect(move_, &QPushButton::clicked, this, &OrgFavDialog::Move);
  connect(close, &QPushButton::clicked, this, &QDialog::accept);
  connect(tree_, &QTreeWidget::currentItemChanged, this, &OrgFavDialog::ShowDetails);

  auto* moveFrame = new QGroupBox("Move to Folder");
  auto* moveRow = new QHBoxLayout(moveFrame);
  moveRow->addWidget(folders_, 1);
  moveRow->addWidget(move_);
  auto* buttons = new QVBoxLayout;
  for (QPushButton* b : {create, rename_, delete_, play_}) buttons->addWidget(b);
  buttons->addStretch();
  buttons->addWidget(close);
  auto* right = new QVBoxLayout;
  right->addWidget(gameFrame_);
  right->addWidget(folderFrame_);
  right->addWidget(moveFrame);
  auto* layout = new QHBoxLayout(this);
  layout->addWidget(tree_, 1);
  layout->addLayout(right, 1);
  layout->addLayout(buttons);
  resize(640, 360);

  tmrFav_.setInterval(250);
  connect(&tmrFav_, &QTimer::timeout, this, &OrgFavDialog::EnableButtons);
  tmrFav_.start();
  Fill();
  app_.cSound.OrgFav();
}

OrgFavDialog::~OrgFavDialog() {
  // The menu follows whatever changed while the dialog was open.
  app_.surface.window.RefreshMenus();
}

void OrgFavDialog::Fill() {
  tree_->clear();
  folders_->clear();
  const std::string rootPath = app_.cData.FavFolder();
  auto* root = new QTreeWidgetItem(tree_, {"Favorites"});
  root->setIcon(0, CommandIcon("FOLDER"));
  root->setData(0, kPathRole, Q(rootPath));
  root->setData(0, kTagRole, RFLD);
  folders_->addItem(CommandIcon("FOLDER"), "Favorites", Q(rootPath));
  const FavTree fav = ReadFavTree(app_);
  for (const FavFolderNode& folder : fav.folders) {
    QTreeWidgetItem* node = Node(root, folder.name, folder.path, FLD, "FOLDER");
    for (const FavGame& game : folder.games) Node(node, game.name, game.path, FL, "Q1");
    folders_->addItem(CommandIcon("FOLDER"), Q(folder.name), Q(folder.path));
  }
  for (const FavGame& game : fav.games) Node(root, game.name, game.path, FL, "Q1");
  root->setExpanded(true);
  tree_->setCurrentItem(root);
  folders_->setCurrentIndex(0);
  ShowDetails();
}

std::string OrgFavDialog::ChosenPath() const {
  QTreeWidgetItem* node = tree_->currentItem();
  return node ? node->data(0, kPathRole).toString().toStdString() : std::string();
}

OrgFavDialog::Tag OrgFavDialog::ChosenTag() const {
  QTreeWidgetItem* node = tree_->currentItem();
  return node ? static_cast<Tag>(node->data(0, kTagRole).toInt()) : RFLD;
}

void OrgFavDialog::ShowDetails() {
  const bool game = ChosenTag() == FL;
  gameFrame_->setVisible(game);
  folderFrame_->setVisible(!game);
  const std::string path = ChosenPath();
  if (game) {
    const auto rec = ReadFavFile(path);
    if (!rec) return;
    gameLabels_[0]->setText("Game Name : " + Q(rec->GameName));
    gameLabels_[1]->setText("Game No : " + Q(rec->GameNo.Text()));
    gameLabels_[2]->setText("Added By : " + Q(rec->Player));
    gameLabels_[3]->setText("Date Created : " + Q(rec->Date));
  } else {
    const QFileInfo info(Q(path));
    folderLabels_[0]->setText("Folder Name : " + (ChosenTag() == RFLD ? QString("Favorites") : info.fileName()));
    const QDateTime born = info.birthTime().isValid() ? info.birthTime() : info.lastModified();
    folderLabels_[1]->setText("Date Created : " + DateText(born));
    folderLabels_[2]->setText("Last Accessed : " + DateText(info.lastRead()));
    folderLabels_[3]->setText("Last Modified : " + DateText(info.lastModified()));
  }
  EnableButtons();
}

void OrgFavDialog::EnableButtons() {
  const Tag tag = ChosenTag();
  for (QWidget* w : std::initializer_list<QWidget*>{move_, folders_, play_}) w->setEnabled(tag == FL);
  rename_->setEnabled(tag != RFLD);
  delete_->setEnabled(tag != RFLD);
}

void OrgFavDialog::Create() {
  const QString name = MainInputAsker()(this, {"Create a Folder", "Please enter a name for the new folder", "New Folder"});
  if (CreateFavFolder(app_, name.toStdString())) Fill();
}

void OrgFavDialog::Rename() {
  const Tag tag = ChosenTag();
  if (tag == RFLD) return;
  const std::string path = ChosenPath();
  const QString old = Q(std::filesystem::path(path).filename().string());
  const QString what = tag == FL ? "game" : "folder";
  const QString name = MainInputAsker()(
      this, {tag == FL ? "Rename Game" : "Rename Folder", "Please enter a new name for the " + what + ":\n" + old, old});
  if (RenameFav(app_, path, name.toStdString())) Fill();
}

void OrgFavDialog::Delete() {
  if (ChosenTag() == RFLD) return;
  if (DeleteFav(app_, ChosenPath())) Fill();
}

void OrgFavDialog::Move() {
  if (ChosenTag() != FL) return;
  if (MoveFav(app_, ChosenPath(), folders_->currentData().toString().toStdString())) Fill();
}

void OrgFavDialog::Play() {
  if (ChosenTag() != FL) return;
  const std::string path = ChosenPath();
  hide();
  app_.cGamePlay.PlayFavFile(path);
  accept();
}

}  // namespace qv
