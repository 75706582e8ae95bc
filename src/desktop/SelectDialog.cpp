#include "SelectDialog.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QListWidget>
#include <QMouseEvent>
#include <QPainter>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "ChooseDialog.h"
#include "SelectPainter.h"
#include "lists/mSelect.h"
#include "scores/Players.h"
#include "session/Program.h"
#include "settings/SettingKeys.h"

namespace qv {

namespace {

constexpr QSize kPreview(250, 72);
const QColor kChosen(200, 0, 0);

QString Q(const std::string& s) { return QString::fromStdString(s); }

// The tree's two icons, painted once for all its nodes.
struct TreeIcons {
  QIcon folder, game;
};

QTreeWidgetItem* AddNode(QTreeWidgetItem* parent, const SelectNode& node, const TreeIcons& icons) {
  auto* item = new QTreeWidgetItem(parent, {Q(node.text)});
  item->setData(0, SelectDialog::kKeyRole, Q(node.key));
  item->setData(0, SelectDialog::kTagRole, Q(node.tag));
  item->setIcon(0, node.tag.empty() ? icons.folder : icons.game);
  for (const SelectNode& child : node.children) AddNode(item, child, icons);
  return item;
}

ClickLabel* Link(const char* name, const char* text) {
  auto* label = new ClickLabel(text);
  label->setObjectName(name);
  label->setCursor(Qt::PointingHandCursor);
  QFont f = label->font();
  f.setBold(true);
  f.setUnderline(true);
  label->setFont(f);
  return label;
}

QListWidget* Rows(const char* name) {
  auto* list = new QListWidget;
  list->setObjectName(name);
  list->setSelectionMode(QAbstractItemView::NoSelection);
  list->setFocusPolicy(Qt::NoFocus);
  list->setIconSize(QSize(8, 8));
  return list;
}

}  // namespace

void ClickLabel::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) emit clicked();
  QLabel::mouseReleaseEvent(event);
}

SelectDialog::SelectDialog(Program& app, QWidget* parent)
    : QDialog(parent),
      app_(app),
      categories_(new QListWidget),
      tree_(new QTreeWidget),
      players_(new QComboBox),
      preview_(new QLabel),
      game_(new QLabel),
      det_(Rows("lvDet")),
      sub_(Rows("lvSub")),
      blank_(new QLabel),
      blankSub_(new QLabel),
      play_(Link("lbPlay", "Play")),
      rules_(Link("lbRules", "Rules")) {
  setWindowTitle("Select a Game");
  setModal(true);
  categories_->setObjectName("lvMain");
  // The chosen category shows in red, not as a selection.
  categories_->setSelectionMode(QAbstractItemView::NoSelection);
  tree_->setObjectName("tvRight");
  tree_->setHeaderHidden(true);
  players_->setObjectName("imcPlayer");
  preview_->setObjectName("PicPreview");
  preview_->setFixedSize(kPreview);
  game_->setObjectName("lbGame");
  QFont big = game_->font();
  big.setPointSizeF(big.pointSizeF() * 1.4);
  big.setBold(true);
  game_->setFont(big);
  // Fixed heights: the dialog keeps its size whether a game is chosen or not.
  det_->setFixedHeight(140);
  sub_->setFixedHeight(120);
  blank_->setObjectName("PicBlank");
  blankSub_->setObjectName("PicBlankSub");
  blank_->setFixedSize(330, 220);
  blankSub_->setFixedSize(330, 160);
  auto* cancel = Link("lbCancel", "Cancel");
  connect(play_, &ClickLabel::clicked, this, &SelectDialog::Play);
  connect(rules_, &ClickLabel::clicked, this, [this] {
    // The rules view of a game comes with the created games; until then the help.
    if (!selGame_.empty()) app_.surface.window.OpenWindow("Contents");
  });
  connect(cancel, &ClickLabel::clicked, this, &SelectDialog::Leave);
  connect(categories_, &QListWidget::itemClicked, this,
          [this](QListWidgetItem* item) { ChooseCategory(item->data(kKeyRole).toString()); });
  connect(tree_, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* node) { ChooseNode(node); });

  // Opening: the players, the twelve categories, the last one played from.
  FillPlayers(app_, players_);
  categories_->setIconSize(QSize(24, 24));
  for (const SelectCategory& c : SelectCategories()) {
    auto* item = new QListWidgetItem(SelectIcon(app_.cImages.TreeIcon(cImages::FolderIcon)), c.caption, categories_);
    item->setData(kKeyRole, QString(c.key));
  }
  categories_->setFixedWidth(170);
  blank_->setPixmap(PaintSelectPicture(app_.cImages.BlankPicture(), blank_->size(), devicePixelRatioF()));
  blankSub_->setPixmap(PaintSelectPicture(app_.cImages.BlankSubPicture(), blankSub_->size(), devicePixelRatioF()));

  auto* links = new QHBoxLayout;
  links->addWidget(play_);
  links->addWidget(rules_);
  links->addStretch();
  links->addWidget(cancel);
  auto* right = new QVBoxLayout;
  right->addWidget(players_);
  right->addWidget(game_);
  right->addWidget(preview_);
  right->addWidget(det_);
  right->addWidget(sub_);
  right->addWidget(blank_);
  right->addWidget(blankSub_);
  right->addStretch();
  right->addLayout(links);
  auto* rightBox = new QWidget;
  rightBox->setLayout(right);
  rightBox->setFixedWidth(340);
  auto* layout = new QHBoxLayout(this);
  layout->addWidget(categories_);
  layout->addWidget(tree_, 1);
  layout->addWidget(rightBox);
  resize(900, 560);

  ChooseCategory(Q(app_.cRegistry.Get(setting::MainKey)));
  app_.cSound.SelectDialog();
}

void SelectDialog::paintEvent(QPaintEvent*) {
  // imgMax with a game chosen, imgMin without.
  QPainter p(this);
  const Picture back = selGame_.empty() ? app_.cImages.SelectMin() : app_.cImages.SelectMax();
  p.drawPixmap(0, 0, PaintSelectPicture(back, size(), 1.0));
}

void SelectDialog::ChooseCategory(const QString& key) {
  QListWidgetItem* chosen = nullptr;
  for (int i = 0; i < categories_->count(); ++i) {
    QListWidgetItem* item = categories_->item(i);
    const bool it = item->data(kKeyRole).toString() == key;
    item->setForeground(it ? kChosen : QColor(Qt::black));
    if (it) chosen = item;
  }
  if (!chosen) return;  // a stored key that names no category
  categories_->setCurrentItem(chosen);
  tree_->clear();
  selKey_ = key.toStdString();
  const SelectTree fill = FillSelectTree(app_, selKey_);
  auto* root = new QTreeWidgetItem(tree_, {Q(fill.root.text)});
  root->setData(0, kKeyRole, Q(fill.root.key));
  QFont bold = root->font(0);
  bold.setBold(fill.rootBold);
  root->setFont(0, bold);
  TreeIcons icons{SelectIcon(app_.cImages.TreeIcon(cImages::FolderIcon)),
                  SelectIcon(app_.cImages.TreeIcon(cImages::GameIcon))};
  icons.game.addPixmap(PaintSelectPicture(app_.cImages.TreeIcon(cImages::GameSelectedIcon), QSize(16, 16), 1.0),
                       QIcon::Selected);
  root->setIcon(0, icons.folder);
  for (const SelectNode& child : fill.root.children) AddNode(root, child, icons);
  QTreeWidgetItem* selected = root;
  for (QTreeWidgetItemIterator it(tree_); *it; ++it)
    if ((*it)->data(0, kKeyRole).toString() == Q(fill.selected)) selected = *it;
  tree_->setCurrentItem(selected);
  // An empty category shows the blank panel: nothing of the category before stays chosen.
  if (fill.Count() < 2) {
    selGame_.clear();
    selItem_.clear();
    LayOutPanel();
    return;
  }
  root->setExpanded(true);
  if (selected->parent() && selected->parent() != root) selected->parent()->setExpanded(true);
  ChooseNode(selected);
}

void SelectDialog::ChooseNode(QTreeWidgetItem* node) {
  if (!node) return;
  selGame_ = node->data(0, kTagRole).toString().toStdString();
  det_->clear();
  sub_->clear();
  if (selGame_.empty()) {
    selItem_.clear();
    LayOutPanel();
    return;
  }
  selItem_ = node->data(0, kKeyRole).toString().toStdString();
  StoreSelItem(app_, selKey_, selItem_);
  const SelectDetails d = DetailsOf(app_, selKey_, selItem_, selGame_);
  const QIcon bullet = SelectIcon(app_.cImages.TreeIcon(cImages::BulletIcon));
  for (const std::string& row : d.det) det_->addItem(new QListWidgetItem(bullet, Q(row)));
  for (const std::string& row : d.sub) sub_->addItem(new QListWidgetItem(bullet, Q(row)));
  QPixmap picture(kPreview * devicePixelRatioF());
  picture.setDevicePixelRatio(devicePixelRatioF());
  picture.fill(Qt::transparent);
  QPainter p(&picture);
  for (const auto& part : d.preview) {
    const QSize size(part.picture.number == cImages::PreviewTableau ? 250 : 125, 36);
    p.drawPixmap(part.x, part.y, PaintSelectPicture(part.picture, size, devicePixelRatioF()));
  }
  p.end();
  preview_->setPixmap(picture);
  LayOutPanel();
}

void SelectDialog::LayOutPanel() {
  const bool chosen = !selGame_.empty();
  game_->setText(Q(selGame_));
  const std::initializer_list<QWidget*> game{game_, preview_, det_, sub_, play_, rules_}, blank{blank_, blankSub_};
  // What goes is hidden first: for a moment both panels shown would stretch the dialog.
  for (QWidget* w : chosen ? blank : game) w->hide();
  for (QWidget* w : chosen ? game : blank) w->show();
  update();
}

void SelectDialog::Play() {
  if (selGame_.empty()) return;
  hide();
  preview_->clear();  // the previews go with the dialog
  SetCurPlayer(app_.cRegistry, players_->currentText().toStdString());
  if (PlaySelected(app_, selKey_, selItem_, selGame_)) app_.cRegistry.Set(setting::MainKey, selKey_);
  accept();
}

void SelectDialog::Leave() {
  preview_->clear();
  reject();
}

}  // namespace qv
