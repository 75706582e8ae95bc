#include "NewGameWizard.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include "GameControls.h"
#include "PreviewPainter.h"
#include "session/Program.h"

namespace qv {

namespace {

QLabel* Heading(const QString& text) {
  auto* label = new QLabel(text);
  QFont f = label->font();
  f.setPointSizeF(f.pointSizeF() * 1.6);
  f.setBold(true);
  label->setFont(f);
  return label;
}

// The wizard moves by labels that act when clicked; flat buttons keep the keyboard too.
QPushButton* ClickLabel(const char* name, const char* text) {
  auto* b = new QPushButton(text);
  b->setObjectName(name);
  b->setFlat(true);
  b->setAutoDefault(false);
  b->setCursor(Qt::PointingHandCursor);
  return b;
}

}  // namespace

NewGameWizard::NewGameWizard(Program& app, QWidget* parent) : QDialog(parent), app_(app) {
  setObjectName("frmNewGameWizard");
  setWindowTitle("New Game Wizard");
  auto* layout = new QVBoxLayout(this);
  SSTab1_ = new QTabWidget;
  SSTab1_->setObjectName("SSTab1");
  SSTab1_->tabBar()->hide();  // the pages are walked with Back and Next alone

  auto* welcome = new QWidget;
  auto* w = new QVBoxLayout(welcome);
  w->addWidget(Heading("New Game Wizard"));
  auto* text = new QLabel(
      "Welcome to New Game Wizard. With this you can create totally new games by customizing entire rules for "
      "foundation, tableau and reserve.");
  text->setWordWrap(true);
  w->addWidget(text);
  w->addSpacing(12);
  w->addWidget(new QLabel("Please enter a name for this new game"));
  txtName_ = new QLineEdit("New Game 01");
  txtName_->setObjectName("txtName");
  w->addWidget(txtName_);
  w->addStretch();
  SSTab1_->addTab(welcome, "Name");

  auto* tableau = new QWidget;
  auto* t = new QVBoxLayout(tableau);
  t->addWidget(Heading("Tableau"));
  auto* row = new QHBoxLayout;
  auto* grid = new QGridLayout;
  controls_ = new GameControls(app_, grid,
                               {"Tableau Piles", "Tableau Card Arranging Order", "Tableau Space filling card",
                                "Multicard Arranging Order", "Suits"},
                               tableau);
  row->addLayout(grid);
  picTab_ = new QLabel;
  picTab_->setObjectName("PicTab");
  picTab_->setMinimumSize(250, 104);
  row->addWidget(picTab_, 1);
  t->addLayout(row);
  t->addStretch();
  SSTab1_->addTab(tableau, "Tableau");

  auto* preview = new QWidget;
  auto* p = new QVBoxLayout(preview);
  p->addWidget(Heading("Preview"));
  picPreview_ = new PreviewBox;
  picPreview_->setObjectName("PicPreview");
  p->addWidget(picPreview_, 1);
  SSTab1_->addTab(preview, "Preview");
  layout->addWidget(SSTab1_);

  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  lbBack_ = ClickLabel("lbBack", "<< Back");
  lbNext_ = ClickLabel("lbNext", "Next >>");
  lbFinish_ = ClickLabel("lbFinish", "Finish");
  lbCancel_ = ClickLabel("lbCancel", "Cancel");
  for (QPushButton* b : {lbBack_, lbNext_, lbFinish_, lbCancel_}) buttons->addWidget(b);
  layout->addLayout(buttons);
  connect(lbNext_, &QPushButton::clicked, this, [this] { Next(); });
  connect(lbBack_, &QPushButton::clicked, this, [this] { Back(); });
  connect(lbCancel_, &QPushButton::clicked, this, &QDialog::reject);
  connect(lbFinish_, &QPushButton::clicked, this, [this] {
    if (app_.cCustom.SaveStudioGame(txtName_->text().toStdString(), true, false)) accept();
  });

  SSTab1_->setCurrentIndex(0);
  lbBack_->setEnabled(false);
  lbFinish_->setEnabled(false);
  app_.cCustom.Init(app_.cData.GetGName(1));  // every new game starts from Spider
  controls_->onPreview = [this] { RepaintPreview(); };
  controls_->FillGameCombos();
  RepaintPreview();
}

void NewGameWizard::RepaintPreview() {
  const cCustom& c = app_.cCustom;
  const Picture tab = app_.cImages.HomePicture(c.HPiles, c.Suits);
  picTab_->setPixmap(PaintPreviewPart(tab, picTab_->minimumSize(), devicePixelRatioF()));
  c.Update_Pic(*picPreview_);
}

void NewGameWizard::Next() {
  lbBack_->setEnabled(true);
  if (SSTab1_->currentIndex() == 0) {
    SSTab1_->setCurrentIndex(1);
  } else if (SSTab1_->currentIndex() == 1) {
    SSTab1_->setCurrentIndex(2);
    RepaintPreview();
    lbNext_->setEnabled(false);
    lbFinish_->setEnabled(true);
  }
}

void NewGameWizard::Back() {
  lbNext_->setEnabled(true);
  lbFinish_->setEnabled(false);
  if (SSTab1_->currentIndex() == 2) {
    SSTab1_->setCurrentIndex(1);
  } else if (SSTab1_->currentIndex() == 1) {
    SSTab1_->setCurrentIndex(0);
    lbBack_->setEnabled(false);
  }
}

}  // namespace qv
