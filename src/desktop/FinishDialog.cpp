#include "FinishDialog.h"

#include <QCheckBox>
#include <QChartView>
#include <QDir>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QToolBar>
#include <QVBoxLayout>

#include "CardPainter.h"
#include "DialogParts.h"
#include "FileCommands.h"
#include "GameStatDialog.h"
#include "HighScoreDialog.h"
#include "StatCharts.h"
#include "scores/Finish.h"
#include "scores/Players.h"
#include "session/Program.h"
#include "settings/SettingKeys.h"

namespace qv {

namespace {
QString Q(const std::string& s) { return QString::fromStdString(s); }
}  // namespace

FinishDialog::FinishDialog(Program& app, QWidget* parent)
    : QDialog(parent),
      app_(app),
      save_(new QCheckBox("Save this Game")),
      path_(new QLineEdit),
      browse_(NamedButton("cmdBrowse", "Browse")) {
  setWindowTitle("Congrats");
  setModal(true);
  const cGamePlay& gp = app.cGamePlay;

  auto* frame = new QGroupBox(Q(gp.GameName()));
  frame->setObjectName("Frame1");
  save_->setObjectName("chkSave");
  path_->setObjectName("txtSave");
  auto* fav = new QCheckBox("Add this Game to Favorites");
  fav->setObjectName("chkFav");
  fav->setChecked(app.cRegistry.Get(setting::AddtoFav) != 0);
  connect(fav, &QCheckBox::toggled, this, [this](bool on) { app_.cRegistry.Set(setting::AddtoFav, on ? 1 : 0); });
  auto* grid = new QGridLayout(frame);
  grid->addWidget(save_, 0, 0, 1, 2);
  grid->addWidget(path_, 1, 0);
  grid->addWidget(browse_, 1, 1);
  grid->addWidget(fav, 2, 0, 1, 2);

  auto* lines = new QListWidget;
  lines->setObjectName("ListView1");
  lines->addItems({" Game : " + Q(gp.GameNo().Text()), " Player : " + Q(GetCurPlayer(app.cRegistry)),
                   " Time : " + Q(gp.TimeString()), " Moves : " + QString::number(gp.Moves()),
                   " Score : " + QString::number(gp.Score())});
  lines->setFixedHeight(lines->sizeHintForRow(0) * 5 + 2 * lines->frameWidth() + 4);

  auto* chart = NewChartView("chFin");
  ShowBars(chart, {"Score", "Moves", "Time"}, {qreal(std::max<int>(gp.Score(), 0)), qreal(gp.Moves()), qreal(gp.Time())});

  auto* toolbar = new QToolBar;
  toolbar->setObjectName("Toolbar1");
  toolbar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
  toolbar->setIconSize(QSize(32, 32));
  const std::pair<const char*, const char*> kButtons[] = {{"New Game", "New"},     {"Select Game", "Select"},
                                                          {"Restart Game", "Restart"}, {"Statistics", "GameStat"},
                                                          {"High Score", "HighScore"}, {"Close", "Close"}};
  for (const auto& [caption, key] : kButtons) {
    QAction* a = toolbar->addAction(CommandIcon(QString(key) == "Close" ? "History" : key), caption);
    a->setObjectName(QString("tb") + key);
    const QString k = key;
    connect(a, &QAction::triggered, this, [this, k] {
      if (k == "GameStat") GameStatDialog(app_, this).exec();
      else if (k == "HighScore") HighScoreDialog(app_, this).exec();
      else {
        if (k != "Close") next_ = k;
        accept();
      }
    });
  }

  auto* left = new QVBoxLayout;
  left->addWidget(frame);
  left->addWidget(lines);
  left->addStretch();
  auto* body = new QHBoxLayout;
  body->addLayout(left, 1);
  body->addWidget(chart, 1);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(toolbar);
  layout->addLayout(body);

  save_->setChecked(app.cRegistry.Get(setting::SaveFile) != 0);
  path_->setText(Q(FinishSavePath(app)));
  ShowSaveChoice();
  connect(save_, &QCheckBox::toggled, this, [this](bool on) {
    app_.cRegistry.Set(setting::SaveFile, on ? 1 : 0);
    ShowSaveChoice();
  });
  connect(browse_, &QPushButton::clicked, this, &FinishDialog::Browse);
  resize(720, 380);
}

void FinishDialog::ShowSaveChoice() {
  path_->setEnabled(save_->isChecked());
  browse_->setEnabled(save_->isChecked());
}

void FinishDialog::Browse() {
  FileRequest request;
  request.caption = "Save Folder";
  request.folder = Q(app_.cData.SavedFolder());
  request.chooseFolder = true;
  const QString folder = MainFileChooser()(this, request);
  if (!folder.isEmpty() && QDir(folder).exists()) path_->setText(Q(FinishSavePath(app_, folder.toStdString())));
}

void FinishDialog::done(int r) {
  // Every way out (a button, the close box, Escape) passes here, once.
  if (!closed_) {
    closed_ = true;
    CloseFinish(app_, path_->text().toStdString());
  }
  QDialog::done(r);
}

}  // namespace qv
