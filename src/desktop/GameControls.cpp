#include "GameControls.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QSignalBlocker>

#include "created/StudioGames.h"
#include "session/Program.h"

namespace qv {

namespace {

QComboBox* Combo(const char* name, GameCombo list, QWidget* owner) {
  auto* box = new QComboBox(owner);
  box->setObjectName(name);
  for (const auto& [tag, text] : GameComboItems(list)) box->addItem(QString::fromStdString(text), tag);
  return box;
}

int Tag(const QComboBox* box) { return box->currentIndex() < 0 ? -1 : box->currentData().toInt(); }

void Select(QComboBox* box, int value) {
  const QSignalBlocker quiet(box);
  box->setCurrentIndex(box->findData(value));  // -1, no item, for a value the list lacks
}

}  // namespace

GameControls::GameControls(Program& app, QGridLayout* grid, const QStringList& labels, QWidget* owner)
    : QObject(owner), app_(app) {
  imcHPiles = Combo("imcHPiles", GameCombo::Piles, owner);
  imcHorder = Combo("imcHorder", GameCombo::Order, owner);
  imcHSpace = Combo("imcHSpace", GameCombo::Space, owner);
  imcMOrder = Combo("imcMOrder", GameCombo::MultiOrder, owner);
  imcSuits = Combo("imcSuits", GameCombo::Suits, owner);
  chkHAK = new QCheckBox("Ace-King Wrapping", owner);
  chkHAK->setObjectName("chkHAK");
  const QList<QWidget*> rows{imcHPiles, imcHorder, imcHSpace, imcMOrder, imcSuits};
  for (int i = 0; i < rows.size(); ++i) {
    grid->addWidget(new QLabel(labels.value(i), owner), i, 0);
    grid->addWidget(rows[i], i, 1);
  }
  grid->addWidget(chkHAK, rows.size(), 1);

  cCustom& c = app_.cCustom;
  connect(imcHorder, &QComboBox::currentIndexChanged, this, [this, &c] {
    c.HOrder = static_cast<int16_t>(Tag(imcHorder));
    Preview();
  });
  connect(imcHPiles, &QComboBox::currentIndexChanged, this, [this, &c] {
    c.HPiles = static_cast<int16_t>(Tag(imcHPiles));
    Preview();
  });
  connect(imcHSpace, &QComboBox::currentIndexChanged, this,
          [this, &c] { c.HSpace = static_cast<int16_t>(Tag(imcHSpace)); });
  connect(chkHAK, &QCheckBox::toggled, this, [&c](bool on) { c.HAK = on ? 1 : 0; });
  connect(imcMOrder, &QComboBox::currentIndexChanged, this, [this, &c] {
    BreaksSingleSuit();
    c.MOrder = static_cast<int16_t>(Tag(imcMOrder));
    Preview();
  });
  connect(imcSuits, &QComboBox::currentIndexChanged, this, [this, &c] {
    if (BreaksSingleSuit()) c.MOrder = static_cast<int16_t>(Tag(imcMOrder));
    c.Suits = static_cast<int16_t>(Tag(imcSuits));
    Preview();
  });
}

bool GameControls::BreaksSingleSuit() {
  if (Tag(imcSuits) != 0 || Tag(imcMOrder) == 0) return false;
  app_.MsgBox(app_.cData.ProdNameX() + " will change Multi Card order to Down Same Suit since it is a Single Suit Game ",
              MsgStyle::Information);
  const QSignalBlocker quiet(imcMOrder);
  imcMOrder->setCurrentIndex(0);
  return true;
}

void GameControls::FillGameCombos() {
  const cCustom& c = app_.cCustom;
  Select(imcHPiles, c.HPiles);
  Select(imcHorder, c.HOrder);
  Select(imcHSpace, c.HSpace);
  Select(imcMOrder, c.MOrder);
  Select(imcSuits, c.Suits);
  const QSignalBlocker quiet(chkHAK);
  chkHAK->setChecked(c.HAK == 1);
}

}  // namespace qv
