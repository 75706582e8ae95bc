#include "AddGameDialog.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "DialogParts.h"
#include "GameControls.h"
#include "PreviewPainter.h"
#include "session/Program.h"

namespace qv {

AddGameDialog::AddGameDialog(Program& app, const std::string& EditGame, QWidget* parent)
    : QDialog(parent), app_(app), editGame_(EditGame) {
  setObjectName("frmAddGame");
  const bool creating = editGame_.empty();
  setWindowTitle(creating ? QString("Create a New Game") : "Edit Game - " + QString::fromStdString(editGame_));
  auto* layout = new QVBoxLayout(this);

  auto* general = new QGroupBox("General");
  auto* generalLayout = new QVBoxLayout(general);
  generalLayout->addWidget(new QLabel("Enter a Name for this New Game"));
  txtName_ = new QLineEdit(creating ? QString("New Game 01") : QString::fromStdString(editGame_));
  txtName_->setObjectName("txtName");
  txtName_->setEnabled(creating);
  generalLayout->addWidget(txtName_);
  layout->addWidget(general);

  auto* row = new QHBoxLayout;
  auto* tableau = new QGroupBox("Tableau");
  auto* grid = new QGridLayout(tableau);
  controls_ = new GameControls(app_, grid,
                               {"Piles", "Card Arranging Order", "Space filling card", "Multi Card Arranging Order", "Suits"},
                               tableau);
  row->addWidget(tableau);
  pic1_ = new PreviewBox;
  row->addWidget(pic1_, 1);
  layout->addLayout(row);

  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  QPushButton* add = NamedButton("cmdAdd", creating ? "Create" : "Save");
  add->setDefault(true);
  QPushButton* cancel = NamedButton("cmdCancel", "Cancel");
  buttons->addWidget(add);
  buttons->addWidget(cancel);
  layout->addLayout(buttons);
  connect(add, &QPushButton::clicked, this, [this] { Save(); });
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);

  // Every new game starts from the first game of the list, Spider.
  app_.cCustom.Init(creating ? app_.cData.GetGName(1) : editGame_);
  controls_->onPreview = [this] { app_.cCustom.Update_Pic(*pic1_); };
  controls_->FillGameCombos();
  app_.cCustom.Update_Pic(*pic1_);
}

void AddGameDialog::Save() {
  if (app_.cCustom.SaveStudioGame(txtName_->text().toStdString(), editGame_.empty(), false)) accept();
}

}  // namespace qv
