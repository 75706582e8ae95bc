#include "Windows.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QScreen>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "AddFavDialog.h"
#include "AnimationDialog.h"
#include "AutoSaveDialog.h"
#include "BackgroundDialog.h"
#include "BackToWinnable.h"
#include "CardDeckDialog.h"
#include "ChooseDialog.h"
#include "FileCommands.h"
#include "GameStatDialog.h"
#include "HighScoreDialog.h"
#include "GameStudioDialog.h"
#include "NewGameWizard.h"
#include "RulesDialog.h"
#include "HistoryDialog.h"
#include "HotGamesDialog.h"
#include "LogStatDialog.h"
#include "CardPainter.h"
#include "MainWindow.h"
#include "HintCommand.h"
#include "NewWinnable.h"
#include "OptionsDialog.h"
#include "OrgFavDialog.h"
#include "PendingDialog.h"
#include "PlayersDialog.h"
#include "SessionStatDialog.h"
#include "SelectDialog.h"
#include "QuickMoveDialog.h"
#include "SoundsDialog.h"
#include "ToolbarDialog.h"
#include "session/Program.h"

namespace qv {

namespace {

void ShowAbout(MainWindow& main) {
  QDialog about(&main);
  about.setWindowTitle("About " + QString::fromStdString(main.app().cData.ProdName()));
  auto* layout = new QVBoxLayout(&about);
  auto* row = new QHBoxLayout;
  auto* king = new QLabel;
  king->setPixmap(CardPainter::Paint({Picture::Face, 13}, QSize(96, 130), about.devicePixelRatioF()));
  row->addWidget(king);
  auto* text = new QVBoxLayout;
  auto* name = new QLabel(QString::fromStdString(main.app().cData.ProdNameX()));
  QFont big = name->font();
  big.setPointSizeF(big.pointSizeF() * 2);
  big.setBold(true);
  name->setFont(big);
  text->addWidget(name);
  text->addWidget(new QLabel("Version " + QString::fromStdString(main.app().cData.Version())));
  text->addWidget(new QLabel("Spider solitaire: seven two-deck games and your own."));
  text->addStretch();
  row->addLayout(text);
  row->setSpacing(16);
  layout->addLayout(row);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok);
  QObject::connect(buttons, &QDialogButtonBox::accepted, &about, &QDialog::accept);
  layout->addWidget(buttons);
  main.app().cSound.About();
  about.exec();
}

// The program's own help, in a window beside the table that does not block play.
void ShowContents(MainWindow& main) {
  auto* help = main.findChild<QTextBrowser*>("helpContents");
  if (!help) {
    help = new QTextBrowser(&main);
    help->setObjectName("helpContents");
    help->setWindowFlag(Qt::Window);
    help->setWindowTitle(QString::fromStdString(main.app().cData.ProdName()) + " Help");
    help->document()->setDocumentMargin(12);
    help->setSource(QUrl("qrc:/help/index.html"));
    // A page's natural size, but never past the screen: a large scale leaves less room.
    const QRect room = main.screen()->availableGeometry();
    const QSize size = QSize(700, 780).boundedTo(room.size() * 0.9);
    help->resize(size);
    help->move(room.center() - QPoint(size.width() / 2, size.height() / 2));
  }
  help->show();
  help->raise();
  main.app().cSound.Contents();
}

}  // namespace

void OpenProgramWindow(MainWindow& main, const QString& key) {
  if (key == "About") ShowAbout(main);
  else if (key == "Contents") ShowContents(main);
  else if (key == "Toolbar") ToolbarDialog(main).exec();
  else if (key == "Animation") AnimationDialog(main.app(), &main).exec();
  else if (key == "Deck") CardDeckDialog(main.app(), &main).exec();
  else if (key == "Options") OptionsDialog(main.app(), &main).exec();
  else if (key == "Open") OpenGame(main);
  else if (key == "NewWinnable") NewWinnableGame(main);
  else if (key == "BackToWinnable") BackToWinnable(main);
  else if (key == "Hint") ShowHint(main);
  else if (key == "Save") SaveGame(main);
  else if (key == "AutoSave") AutoSaveDialog(main.app(), &main).exec();
  else if (key == "OrgPend") PendingDialog(main.app(), &main).exec();
  else if (key == "Hot") HotGamesDialog(main.app(), &main).exec();
  else if (key == "HighScore") HighScoreDialog(main.app(), &main).exec();
  else if (key == "LogStat") LogStatDialog(main.app(), &main).exec();
  else if (key == "GameStat") GameStatDialog(main.app(), &main).exec();
  else if (key == "SessionStat") SessionStatDialog(main.app(), &main).exec();
  else if (key == "Players") PlayersDialog(main.app(), &main).exec();
  else if (key == "Select") SelectDialog(main.app(), &main).exec();
  else if (key == "SelNum") ChooseDialog(main.app(), &main).exec();
  else if (key == "AddFav") AddFavDialog(main.app(), &main).exec();
  else if (key == "OrgFav") OrgFavDialog(main.app(), &main).exec();
  else if (key == "Rules") ShowRulesWindow(main, main.windowModal);
  else if (key == "Wizard") NewGameWizard(main.app(), &main).exec();
  else if (key == "Editor" && GameStudioDialog(main.app(), &main).exec() == GameStudioDialog::kWizard)
    NewGameWizard(main.app(), &main).exec();
  else if (key == "MovesMan") QuickMoveDialog(main.app(), &main).exec();
  else if (key == "History") HistoryDialog(main.app(), MainFileChooser(), &main).exec();
  else if (key == "Background") BackgroundDialog(main.app(), &main).exec();
  else if (key == "Sounds") SoundsDialog(main.app(), &main).exec();
}

}  // namespace qv
