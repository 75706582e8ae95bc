// The Game Editor, the New Game form and wizard, and the rules page, driven as a user would.
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTimer>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QTreeWidget>

#include "AddGameDialog.h"
#include "GameStudioDialog.h"
#include "MainWindow.h"
#include "NewGameWizard.h"
#include "PreviewPainter.h"
#include "RulesDialog.h"
#include "TemporaryUserHome.h"
#include "TestProgram.h"
#include "lists/Recent.h"
#include "session/FirstGame.h"
#include "session/Commands.h"
#include "settings/MemorySettingsStore.h"

#include "FindChild.h"

using namespace qv;

namespace {
void Click(QWidget& dlg, const char* button) { Get<QPushButton>(dlg, button)->click(); }
QString Text(QWidget& dlg, const char* label) { return Get<QLabel>(dlg, label)->text(); }
std::string GamFile(test::TestProgram& t, const std::string& name) {
  return test::ReadFile(t->cData.GamesFolder() + "/" + name + ".gam");
}
void Create(test::TestProgram& t, const std::string& name, int piles) {
  t->cCustom.Init("Spider");
  t->cCustom.HPiles = static_cast<int16_t>(piles);
  t->cCustom.SaveStudioGame(name, true, false);
  t.dialogs.shown.clear();
}
// Acts on the modal windows as they open, one step each, in order. A step waits until the
// window on top is the one it is for; its action runs from a timer of its own, since the
// driver's timer does not fire again while an action of it keeps a window open.
class ModalDriver {
 public:
  struct Step {
    std::function<bool(QWidget*)> isFor;
    std::function<void(QWidget*)> act;
  };
  explicit ModalDriver(std::vector<Step> steps) : steps_(std::move(steps)) {
    QObject::connect(&timer_, &QTimer::timeout, [this] {
      QWidget* modal = QApplication::activeModalWidget();
      if (!modal || next_ == steps_.size() || !steps_[next_].isFor(modal)) return;
      QTimer::singleShot(0, modal, [modal, act = steps_[next_++].act] { act(modal); });
    });
    timer_.start(20);
  }
  bool Done() const { return next_ == steps_.size(); }

 private:
  std::vector<Step> steps_;
  size_t next_ = 0;
  QTimer timer_;
};
ModalDriver::Step Press(const char* window, const char* button) {
  return {[=](QWidget* m) { return m->objectName() == window; }, [=](QWidget* m) { Click(*m, button); }};
}
ModalDriver::Step Reply(QMessageBox::StandardButton button, const QString& text) {
  return {[=](QWidget* m) {
            auto* box = qobject_cast<QMessageBox*>(m);
            return box && box->text() == text;
          },
          [=](QWidget* m) { qobject_cast<QMessageBox*>(m)->button(button)->click(); }};
}

const std::string kSingleSuit = "Quorvale will change Multi Card order to Down Same Suit since it is a Single Suit Game ";
}  // namespace

class CreatedGamesTest : public QObject {
  Q_OBJECT
  TemporaryUserHome home_;

 private slots:
  // With no games only New, Wizard and Close work; with some, the details show, and the
  // running game is neither edited nor deleted.
  void editorShowsDetailsAndRefusesTheRunningGame() {
    test::TestProgram t;
    {
      GameStudioDialog none(*t);
      QCOMPARE(none.windowTitle(), QString("Game Editor"));
      for (const char* b : {"cmdEdit", "cmdDelete", "cmdRules", "cmdPlay"}) QVERIFY2(!Get<QPushButton>(none, b)->isEnabled(), b);
      for (const char* b : {"cmdAdd", "cmdWizard", "cmdClose"}) QVERIFY2(Get<QPushButton>(none, b)->isEnabled(), b);
      QCOMPARE(Get<QTreeWidget>(none, "lvWiz")->topLevelItemCount(), 0);
      QCOMPARE(Get<QGroupBox>(none, "Frame1")->title(), QString("Game Details"));
    }
    Create(t, "Alpha", 6);
    Create(t, "beta", 9);
    t.Deal("Alpha", 4);
    GameStudioDialog dlg(*t);
    auto* games = Get<QTreeWidget>(dlg, "lvGames");
    QCOMPARE(games->topLevelItemCount(), 2);
    QCOMPARE(Get<QGroupBox>(dlg, "Frame1")->title(), QString("Alpha"));
    auto* wiz = Get<QTreeWidget>(dlg, "lvWiz");
    QStringList rows;
    for (int i = 0; i < wiz->topLevelItemCount(); ++i) rows << wiz->topLevelItem(i)->text(0) + wiz->topLevelItem(i)->text(1);
    QCOMPARE(rows, QStringList({"Tableau Card Arranging Order : Down Regardless of Suit", "Number of Tableau Piles : 6",
                                "Tableau Space Filling Card : Any Card", "Ace-King Wrapping in Tableau : False",
                                "Tableau Multi Card Arranging Order : Down Same Suit", "No of Suits : Four"}));
    QCOMPARE(Get<PreviewBox>(dlg, "Pic1")->Parts().back(), t->cImages.HomePicture(6, 2));
    Click(dlg, "cmdEdit");
    Click(dlg, "cmdDelete");
    QCOMPARE(t.dialogs.shown, std::vector<std::string>(
                                  {"You cannot edit the current playing game. To edit this game please close this game.",
                                   "You cannot delete the current playing game. To delete this game please close this game."}));
    // Another game may be deleted: asked, gone from the list and the game list, menus rebuilt.
    games->setCurrentItem(games->topLevelItem(1));
    QCOMPARE(Get<QGroupBox>(dlg, "Frame1")->title(), QString("beta"));
    const int refreshes = t.window.menuRefreshes;
    t.dialogs.answers = {Answer::Yes};
    Click(dlg, "cmdDelete");
    QCOMPARE(t.dialogs.shown.back(), std::string("Are you sure you want to delete game : beta ?"));
    QCOMPARE(games->topLevelItemCount(), 1);
    QVERIFY(!t->cData.GameExists("beta"));
    QCOMPARE(t.window.menuRefreshes, refreshes + 1);
  }

  void formCreatesAsksBeforeOverwritingAndEditsWithoutAsking() {
    test::TestProgram t;
    Create(t, "Mine", 8);
    AddGameDialog form(*t, "");
    QCOMPARE(form.windowTitle(), QString("Create a New Game"));
    QCOMPARE(Get<QPushButton>(form, "cmdAdd")->text(), QString("Create"));
    QCOMPARE(Get<QLineEdit>(form, "txtName")->text(), QString("New Game 01"));
    QCOMPARE(Get<QComboBox>(form, "imcHPiles")->currentText(), QString("10"));  // Spider's
    Get<QComboBox>(form, "imcHPiles")->setCurrentIndex(0);
    Get<QLineEdit>(form, "txtName")->setText("Mine");
    Click(form, "cmdAdd");  // the question gets No: nothing written, the form stays with its values
    QCOMPARE(t.dialogs.shown, std::vector<std::string>{"Another Game exists with the same name. Do you want to overwrite ?"});
    QCOMPARE(form.result(), 0);
    QCOMPARE(GamFile(t, "Mine"), std::string("\"Mine\"\r\n8,4,13,0,1,2,0\r\n"));
    QCOMPARE(Get<QComboBox>(form, "imcHPiles")->currentText(), QString("6"));

    t.dialogs.shown.clear();
    AddGameDialog edit(*t, "Mine");
    QCOMPARE(edit.windowTitle(), QString("Edit Game - Mine"));
    QCOMPARE(Get<QPushButton>(edit, "cmdAdd")->text(), QString("Save"));
    QVERIFY(!Get<QLineEdit>(edit, "txtName")->isEnabled());
    Get<QCheckBox>(edit, "chkHAK")->setChecked(true);
    Click(edit, "cmdAdd");
    QCOMPARE(t.dialogs.shown, std::vector<std::string>{"Successfully Saved Game : Mine"});
    QCOMPARE(edit.result(), int(QDialog::Accepted));
    QCOMPARE(GamFile(t, "Mine"), std::string("\"Mine\"\r\n8,4,13,1,1,2,0\r\n"));
  }

  // Whichever combo breaks the rule, the message shows once and the group order falls back;
  // none shows at load, and a tableau order the lists lack is kept as it is.
  void singleSuitRuleBothWaysAndAHandWrittenOrder() {
    test::TestProgram t;
    test::WriteFile(t->cData.GamesFolder() + "/Odd.gam", "\"Odd\"\r\n7,0,13,0,1,0,3\r\n");
    t->cData.Refresh_NewGames();
    AddGameDialog form(*t, "Odd");
    QVERIFY(t.dialogs.shown.empty());
    QCOMPARE(Get<QComboBox>(form, "imcHorder")->currentIndex(), -1);
    auto* multi = Get<QComboBox>(form, "imcMOrder");
    auto* suits = Get<QComboBox>(form, "imcSuits");
    multi->setCurrentIndex(2);  // "Down Same Color" in a one-suit deck
    QCOMPARE(t.dialogs.shown, std::vector<std::string>{kSingleSuit});
    QCOMPARE(multi->currentIndex(), 0);
    QCOMPARE(t->cCustom.MOrder, int16_t(0));
    suits->setCurrentIndex(2);
    multi->setCurrentIndex(1);  // "Down Alternate Color" with four suits: fine
    QCOMPARE(t.dialogs.shown.size(), size_t(1));
    suits->setCurrentIndex(0);
    QCOMPARE(t.dialogs.shown.size(), size_t(2));
    QCOMPARE(multi->currentText(), QString("Down Same Suit"));
    QCOMPARE(t->cCustom.MOrder, int16_t(0));
    Click(form, "cmdAdd");
    QCOMPARE(GamFile(t, "Odd"), std::string("\"Odd\"\r\n7,0,13,0,1,0,0\r\n"));
  }

  void wizardWalksItsPagesAndFinishes() {
    test::TestProgram t;
    NewGameWizard wiz(*t);
    auto* tabs = Get<QTabWidget>(wiz, "SSTab1");
    const auto state = [&] {
      return QString("%1 %2%3%4").arg(tabs->currentIndex()).arg(Get<QPushButton>(wiz, "lbBack")->isEnabled())
          .arg(Get<QPushButton>(wiz, "lbNext")->isEnabled()).arg(Get<QPushButton>(wiz, "lbFinish")->isEnabled());
    };
    QCOMPARE(state(), QString("0 010"));
    Click(wiz, "lbNext");
    QCOMPARE(state(), QString("1 110"));
    Get<QComboBox>(wiz, "imcHPiles")->setCurrentIndex(1);
    Get<QComboBox>(wiz, "imcSuits")->setCurrentIndex(1);
    Click(wiz, "lbNext");
    QCOMPARE(state(), QString("2 101"));
    QCOMPARE(Get<PreviewBox>(wiz, "PicPreview")->Parts().back(), t->cImages.HomePicture(7, 1));
    Click(wiz, "lbBack");
    QCOMPARE(state(), QString("1 110"));
    Click(wiz, "lbBack");
    QCOMPARE(state(), QString("0 010"));
    Get<QLineEdit>(wiz, "txtName")->setText("Wizard Made");
    Click(wiz, "lbNext");
    Click(wiz, "lbNext");
    Click(wiz, "lbFinish");
    QCOMPARE(wiz.result(), int(QDialog::Accepted));
    QCOMPARE(GamFile(t, "Wizard Made"), std::string("\"Wizard Made\"\r\n7,4,13,0,1,1,0\r\n"));
  }

  void rulesPagesOfStandardAndCreatedGames() {
    test::TestProgram t;
    const auto page = [&](const std::string& game) {
      t->cCustom.Init(game);
      RulesDialog rules(*t);
      return QStringList{Text(rules, "lbGame"), Text(rules, "lbTab"), Text(rules, "lbHOrder"), Text(rules, "lbMOrder"),
                         Text(rules, "lbMOrder1"), Text(rules, "lbSpace")};
    };
    QCOMPARE(page("Scarab"), QStringList({"Scarab", "(10 Piles )", "Down Regardless of Suit", "Down Regardless of Suit",
                                          "Down Regardless of Suit", "Any Card"}));
    QCOMPARE(page("Spider Single Suit"), QStringList({"Spider Single Suit", "(10 Piles )", "Down Regardless of Suit",
                                                      "Down Same Suit", "Down Same Suit", "Any Card"}));
    test::WriteFile(t->cData.GamesFolder() + "/Six.gam", "\"Six\"\r\n6,5,0,0,1,0,0\r\n");
    t->cData.Refresh_NewGames();
    QCOMPARE(page("Six"), QStringList({"Six", "(6 Piles )", "Any Card", "Down Same Suit", "Down Same Suit", "Ace"}));
  }

  // F1 opens the rules of the running game beside the table, not blocking.
  void f1ShowsTheRunningGamesRules() {
    MemorySettingsStore store;
    MainWindow w(store);
    w.show();
    w.Load();
    w.app().cGamePlay.PlayNumber("Plaza", GameNo::Number(3));
    w.app().cCustom.Init("Scarab");  // browsed since
    QCOMPARE(w.Action("Rules")->shortcut(), QKeySequence(Qt::Key_F1));
    w.Action("Rules")->trigger();
    auto* rules = w.findChild<RulesDialog*>("frmRules");
    QVERIFY(rules && rules->isVisible() && !rules->isModal());
    QCOMPARE(Text(*rules, "lbGame"), QString("Plaza"));
    QCOMPARE(Text(*rules, "lbMOrder"), QString("Down Alternate Color"));
    w.Action("Rules")->trigger();  // the page is opened anew, never twice
    QCOMPARE(w.findChildren<RulesDialog*>("frmRules").size(), 1);
  }

  // The whole way in the real window: made in the editor, played, its page on F1; after a
  // new start listed, back on the table and among the recent games; deleted, its saved
  // game still plays.
  void realWindowMakesPlaysKeepsAndDeletesAGame() {
    MemorySettingsStore store;
    auto w = std::make_unique<MainWindow>(store);
    w->show();
    w->Load();
    {
      ModalDriver drive({Press("frmGameStudio", "cmdAdd"),
                         {[](QWidget* m) { return m->objectName() == "frmAddGame"; },
                          [](QWidget* m) {
                            Get<QLineEdit>(*m, "txtName")->setText("Six Easy");
                            Get<QComboBox>(*m, "imcHPiles")->setCurrentIndex(0);
                            Get<QComboBox>(*m, "imcSuits")->setCurrentIndex(0);
                            Click(*m, "cmdAdd");
                          }},
                         Reply(QMessageBox::Ok, "Successfully Saved Game : Six Easy"), Press("frmGameStudio", "cmdPlay")});
      w->Action("Editor")->trigger();
      QVERIFY(drive.Done());
    }
    Program* app = &w->app();
    QCOMPARE(app->cGamePlay.GameName(), std::string("Six Easy"));
    QCOMPARE(app->cGames.Piles(0), 6);
    QCOMPARE(app->cGames.SuitType(), 0);
    w->Action("Rules")->trigger();
    QCOMPARE(Text(*w->findChild<RulesDialog*>("frmRules"), "lbTab"), QString("(6 Piles )"));
    const std::string played = "Six Easy - " + app->cGamePlay.GameNo().Text();

    w->close();
    w = std::make_unique<MainWindow>(store);
    w->show();
    w->Load();
    app = &w->app();
    FirstGame(*app, "");
    QCOMPARE(app->cGamePlay.GameName(), std::string("Six Easy"));
    QCOMPARE(app->cGames.Piles(0), 6);
    QCOMPARE(RecentMenuEntries(*app, kRecentPlayed).front(), played);
    const std::string saved = (home_.path() + "/six.vq0").toStdString();
    QVERIFY(app->cEngine.SavetoFile(saved));
    ExecCommand(*app, "Close");
    {
      ModalDriver drive({{[](QWidget* m) {
                            return m->objectName() == "frmGameStudio" &&
                                   Get<QTreeWidget>(*m, "lvGames")->topLevelItem(0)->text(0) == "Six Easy";
                          },
                          [](QWidget* m) { Click(*m, "cmdDelete"); }},
                         Reply(QMessageBox::Yes, "Are you sure you want to delete game : Six Easy ?"),
                         Press("frmGameStudio", "cmdClose")});
      w->UpdateCommands();  // as the main timer would after the cards stopped moving
      w->Action("Editor")->trigger();
      QVERIFY(drive.Done());
    }
    QVERIFY(!app->cData.GameExists("Six Easy"));
    QVERIFY(app->cGamePlay.PlayFile(saved, false));
    QCOMPARE(app->cGames.Piles(0), 6);
  }
};

QTEST_MAIN(CreatedGamesTest)
#include "test_created_games.moc"
