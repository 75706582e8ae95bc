#include "CardDeckDialog.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "CardPainter.h"
#include "session/Program.h"
#include "settings/Settings.h"

namespace qv {

namespace {
const QSize kPreviewSize(142, 192);  // large enough to judge a back by
}

CardDeckDialog::CardDeckDialog(Program& app, QWidget* parent)
    : QDialog(parent), app_(app), tree_(new QTreeWidget), preview_(new QLabel), deck_(DeckIndex(app)) {
  setWindowTitle("Customize Card Deck");
  setModal(true);

  tree_->setObjectName("tvDeck");
  tree_->setHeaderHidden(true);
  tree_->setColumnCount(1);
  tree_->setMinimumWidth(200);
  FillTree();
  // Keyboard moves choose a deck as clicks do.
  connect(tree_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) { NodeChosen(item); });

  preview_->setObjectName("PicDeck");
  preview_->setFixedSize(kPreviewSize);
  preview_->setAlignment(Qt::AlignCenter);
  ShowPreview();

  auto* ok = new QPushButton("OK");
  ok->setObjectName("cmdOK");
  ok->setDefault(true);
  auto* cancel = new QPushButton("Cancel");
  cancel->setObjectName("cmdCancel");
  connect(ok, &QPushButton::clicked, this, &CardDeckDialog::Store);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);

  auto* side = new QVBoxLayout;
  side->addWidget(preview_, 0, Qt::AlignHCenter);
  side->addStretch();
  side->addWidget(ok);
  side->addWidget(cancel);
  auto* layout = new QHBoxLayout(this);
  layout->addWidget(tree_, 1);
  layout->addSpacing(6);
  layout->addLayout(side);
  resize(440, 320);

  app_.cSound.Deck();
}

void CardDeckDialog::FillTree() {
  auto* root = new QTreeWidgetItem(tree_, {"Card Decks"});
  root->setData(0, kKeyRole, "Main0");
  const std::vector<std::string> groups = app_.cImages.DeckGroups();
  // Element 0 is the count; a count that does not match the names is held to them.
  const int count = std::min(QString::fromStdString(groups.empty() ? "0" : groups[0]).toInt(),
                             static_cast<int>(groups.size()) - 1);
  QTreeWidgetItem* current = nullptr;
  for (int g = 1; g <= count; ++g) {
    const QString name = QString::fromStdString(groups[g]);
    auto* group = new QTreeWidgetItem(root, {name});
    group->setExpanded(true);  // a dozen decks: all of them in sight
    group->setData(0, kKeyRole, QString("Main%1").arg(g));
    int number = 0;
    for (int i = 1; i <= app_.cImages.DeckCount(); ++i) {
      if (app_.cImages.DeckGroup(i) != g) continue;
      auto* deck = new QTreeWidgetItem(group, {QString("%1 %2").arg(name).arg(++number)});
      deck->setData(0, kTagRole, i);
      deck->setData(0, kKeyRole, QString("Deck%1").arg(i));
      if (i == deck_) current = deck;
    }
  }
  root->setExpanded(true);
  if (current) tree_->setCurrentItem(current);
}

void CardDeckDialog::NodeChosen(QTreeWidgetItem* item) {
  // The root and the groups carry no deck: the preview stays as it was.
  if (!item || !item->data(0, kTagRole).isValid()) return;
  deck_ = item->data(0, kTagRole).toInt();
  ShowPreview();
}

void CardDeckDialog::ShowPreview() {
  preview_->setPixmap(CardPainter::Paint(app_.cImages.CardBack(deck_), kPreviewSize, devicePixelRatioF()));
}

void CardDeckDialog::Store() {
  hide();
  app_.cRegistry.Set(setting::DeckIndex, deck_);
  app_.cPlay.ChangeDecks();
  accept();
}

}  // namespace qv
