// The finish dialog and the statistics windows over a known store, offscreen.
#include <QAction>
#include <QApplication>
#include <QChartView>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>
#include <filesystem>

#include "FileCommands.h"
#include "FinishDialog.h"
#include "GameStatDialog.h"
#include "HighScoreDialog.h"
#include "LogStatDialog.h"
#include "MainWindow.h"
#include "QtSprites.h"
#include "TableView.h"
#include "settings/MemorySettingsStore.h"
#include "PlayersDialog.h"
#include "SessionStatDialog.h"
#include "TemporaryUserHome.h"
#include "TestProgram.h"
#include "Typing.h"
#include "scores/Players.h"

#include "FindChild.h"

using namespace qv;

namespace {

QStringList Column(QTreeWidget* list, int c) {
  QStringList out;
  for (int i = 0; i < list->topLevelItemCount(); ++i) out << list->topLevelItem(i)->text(c);
  return out;
}

// Players "Player1" (current) and "Ann", and their games; the clock stands at 11/18/2026
// 11:06:40 AM in UTC.
void FillStore(test::TestProgram& t) {
  qputenv("TZ", "UTC");
  tzset();
  SetPlayer(t->cRegistry, 1, "Player1", true);
  SetPlayer(t->cRegistry, 2, "Ann", false);
  test::WriteFile(t->cScore.ScoreFile("Player1", FolderUse::Write),
                  "\"11/18/2026 0:01:00\",\"Spider\",1,100,40,300,1\r\n"
                  "\"11/17/2026 11:59:00 PM\",\"Spider\",2,90,30,-20,0\r\n"
                  "\"11/8/2026\",\"Scarab\",\"007\",50,60,120,1\r\n"
                  "\"11/19/2026\",\"Spider\",3,10,10,10,0\r\n");
  test::WriteFile(t->cScore.ScoreFile("Ann"), "\"7/18/2026\",\"Spider\",4,30,20,500,0\r\nnot a game\r\n");
}

}  // namespace

class ScoreWindowsTest : public QObject {
  Q_OBJECT
  TemporaryUserHome home_;

 private slots:

  void finishShowsTheWinAndItsCloseBoxIsClose() {
    test::TestProgram t;
    SetPlayer(t->cRegistry, 1, "Player1", true);
    t->cRegistry.Set(setting::SaveFile, 1);
    test::PlayWithRules(t, {.HOrder = 5, .MOrder = 5});
    QString proposed;
    int shown = 0;
    t.window.onFinish = [&] {
      FinishDialog dlg(*t);
      QCOMPARE(Get<QGroupBox>(dlg, "Frame1")->title(), QString("Test Rules"));
      auto* lines = Get<QListWidget>(dlg, "ListView1");
      QCOMPARE(lines->count(), 5);
      QCOMPARE(lines->item(1)->text(), QString(" Player : Player1"));
      QVERIFY(lines->item(4)->text().startsWith(" Score : "));
      QVERIFY(Get<QCheckBox>(dlg, "chkSave")->isChecked());
      proposed = Get<QLineEdit>(dlg, "txtSave")->text();
      dlg.show();
      QVERIFY(QTest::qWaitForWindowExposed(&dlg));
      dlg.close();  // the close box
      shown = dlg.result() == QDialog::Rejected;
    };
    QVERIFY(test::WinGame(t));
    QCOMPARE(shown, 1);
    QCOMPARE(proposed, QString::fromStdString(t->cData.SavedFolder() + "/Test Rules-1.vq1"));
    QVERIFY(std::filesystem::exists(proposed.toStdString()));
    QCOMPARE(t->cGamePlay.Game_Status(), 0);

    // A next game from the toolbar: the dialog closes (saving nothing now) and names it.
    t->cRegistry.Set(setting::SaveFile, 0);
    test::PlayWithRules(t, {.HOrder = 5, .MOrder = 5}, 2);
    QString next;
    t.window.onFinish = [&] {
      FinishDialog dlg(*t);
      Get<QCheckBox>(dlg, "chkSave")->click();
      Get<QCheckBox>(dlg, "chkSave")->click();  // on and off again: written at once
      QVERIFY(!Get<QLineEdit>(dlg, "txtSave")->isEnabled());
      Get<QAction>(dlg, "tbRestart")->trigger();
      next = dlg.Next();
    };
    QVERIFY(test::WinGame(t));
    QCOMPARE(next, QString("Restart"));
    QCOMPARE(t->cRegistry.Get(setting::SaveFile), 0);
    QVERIFY(!std::filesystem::exists(t->cData.SavedFolder() + "/Test Rules-2.vq1"));
    QCOMPARE(t->cGamePlay.Game_Status(), 0);
  }

  // In the real window: the winning double-click, "Congrats", "Save this Game" on and "New
  // Game" on its toolbar; the new game comes after the close. The win's record is the core's.
  void aWinWithTheMouseEndsInCongratsAndTheNextGame() {
    const std::string almost = home_.path().toStdString() + "/almost.vq0";
    {
      test::TestProgram t;
      test::PlayWithRules(t, {.HOrder = 5, .MOrder = 5});
      QVERIFY(test::WinGame(t));
      int speed = 0;
      t->cEngine.Undo(speed);
      QVERIFY(t->cEngine.SavetoFile(almost));
    }
    MemorySettingsStore store;
    MainWindow w(store);
    w.sprites().SetFramePacing(false);
    w.resize(1280, 800);
    w.show();
    QVERIFY(QTest::qWaitForWindowExposed(&w));
    w.Load();
    Program& app = w.app();
    app.cRegistry.Set(setting::SaveFile, 1);
    QVERIFY(app.cGamePlay.PlayFile(almost, false));
    int last = -1;
    for (int p = 0; p < 10; ++p)
      if (app.cPlay.GetTop(0, p) >= 0) last = app.cPlay.GetTopPicID(0, p);
    QString seen;
    QTimer poll;
    poll.callOnTimeout([&] {
      QWidget* modal = QApplication::activeModalWidget();
      auto* finish = qobject_cast<FinishDialog*>(modal);
      if (!finish) {
        if (modal) seen = modal->windowTitle(), modal->close();  // anything else is a fault
        return;
      }
      poll.stop();
      seen = finish->windowTitle();
      Get<QAction>(*finish, "tbNew")->trigger();
    });
    poll.start(20);
    const QPoint at = w.view().mapFromScene(
        QPointF(w.sprites().Left(Sprites::PicCD, last) + 500, w.sprites().Top(Sprites::PicCD, last) + 40));
    QTest::mouseClick(w.view().viewport(), Qt::LeftButton, {}, at);
    QTest::mouseDClick(w.view().viewport(), Qt::LeftButton, {}, at);
    QCOMPARE(seen, QString("Congrats"));
    QVERIFY(std::filesystem::exists(app.cData.SavedFolder() + "/Test Rules-1.vq1"));
    QTRY_COMPARE(app.cGamePlay.Game_Status(), 1);  // the next game, once the move returned
    QCOMPARE(app.cEngine.TotalGoalCards(), 0);
    QTRY_VERIFY(w.windowTitle().contains("[Player1]"));
  }

  void highScoreSelectorsFollowThePlayerAndTheSort() {
    test::TestProgram t;
    FillStore(t);
    SetCurPlayer(t->cRegistry, "Ann");
    HighScoreDialog dlg(*t);
    QCOMPARE(Column(Get<QTreeWidget>(dlg, "lvTop"), 2), QStringList({"500", "300", "120", "10"}));
    QCOMPARE(Get<QComboBox>(dlg, "imcPlayer")->currentText(), QString("Ann"));
    QCOMPARE(Column(Get<QTreeWidget>(dlg, "lvPlayer"), 2), QStringList({"500"}));
    Get<QComboBox>(dlg, "imcGames")->setCurrentText("Scarab");
    QCOMPARE(Column(Get<QTreeWidget>(dlg, "lvGames"), 7), QStringList({"007"}));
    auto* fin = Get<QTreeWidget>(dlg, "lvFin");
    QCOMPARE(Column(fin, 3), QStringList({"300", "120"}));
    Get<QComboBox>(dlg, "imcFin")->setCurrentText("Time");
    QCOMPARE(Column(fin, 4), QStringList({"0:00:50", "0:01:40"}));
    QVERIFY(fin->topLevelItem(0)->font(4).bold());
    QVERIFY(!fin->topLevelItem(0)->font(3).bold());
    QCOMPARE(Column(fin, 6), QStringList({"11/8/2026", "11/18/2026"}));
  }

  void logFiltersCountCalendarDaysOnAFixedClock() {
    test::TestProgram t;
    FillStore(t);
    LogStatDialog dlg(*t);
    auto* log = Get<QTableView>(dlg, "lvLog");
    auto rows = [&] { return log->model()->rowCount(); };
    QCOMPARE(rows(), 5);  // the broken line counts nowhere
    auto* date = Get<QComboBox>(dlg, "imcDate");
    const QList<std::pair<QString, int>> expected{{"Show Today", 1},    {"Last 3 Days", 2},   {"Last 7 Days", 2},
                                                  {"Last 30 Days", 3}, {"Last 3 Months", 3}, {"Last 5 Months", 4}};
    for (const auto& [text, count] : expected) {
      date->setCurrentText(text);
      QCOMPARE(rows(), count);
    }
    Get<QComboBox>(dlg, "imcPlayer")->setCurrentText("Ann");
    QCOMPARE(rows(), 1);
    Get<QComboBox>(dlg, "imcGames")->setCurrentText("Scarab");
    QCOMPARE(rows(), 0);
    date->setCurrentText("Show All");
    Get<QComboBox>(dlg, "imcPlayer")->setCurrentIndex(0);
    QCOMPARE(log->model()->index(0, 7).data().toString(), QString("007"));
  }

  void gameStatisticsFillEveryTabAndReloadAfterClearAndExport() {
    test::TestProgram t;
    FillStore(t);
    GameStatDialog dlg(*t);
    auto* general = Get<QTreeWidget>(dlg, "lvGeneral");
    QCOMPARE(general->topLevelItem(0)->text(0), QString("Games Played : 5"));
    QCOMPARE(general->topLevelItem(12)->text(0), QString("Winning Percentage : 40%"));
    auto* games = Get<QTreeWidget>(dlg, "lvGames");
    QCOMPARE(games->topLevelItem(0)->text(7), QString("25%"));
    QCOMPARE(Column(Get<QTreeWidget>(dlg, "lvPlayer"), 7), QStringList({"50%", "0%"}));
    auto* dates = Get<QTreeWidget>(dlg, "lvDate");
    QCOMPARE(Column(dates, 0).last(), QString("Nov 18"));
    QCOMPARE(Column(dates, 1), QStringList({"0", "0", "0", "1", "1"}));
    Get<QComboBox>(dlg, "imcDate")->setCurrentText("Last 5 Months");
    QCOMPARE(dates->headerItem()->text(0), QString("Month"));
    QCOMPARE(Column(dates, 1), QStringList({"1", "0", "0", "0", "4"}));
    QVERIFY(Get<QChartView>(dlg, "chGames1")->chart()->series().size() == 3);

    const std::string report = home_.path().toStdString() + "/board.txt";
    MainFileChooser() = [&](QWidget*, const FileRequest& r) {
      return r.fileName == "Scoreboard" ? QString::fromStdString(report) : QString();
    };
    Get<QPushButton>(dlg, "cmdExport")->click();
    MainFileChooser() = AskWithFileDialog;
    QVERIFY(test::ReadFile(report).starts_with("Quorvale 6.0 Score Board\r\n"));
    QCOMPARE(general->topLevelItem(0)->text(0), QString("Games Played : 5"));  // reloaded
    t.dialogs.answers = {Answer::Yes};
    Get<QPushButton>(dlg, "cmdClear")->click();
    QCOMPARE(general->topLevelItem(0)->text(0), QString("Games Played : 0"));
    QCOMPARE(games->topLevelItem(0)->text(1), QString("0"));
  }

  void sessionStatisticsFollowTheRunningGame() {
    test::TestProgram t;
    SetPlayer(t->cRegistry, 1, "Player1", true);
    t.Deal("Spider", 5);
    t->cGamePlay.EndGame(0, false);  // given up: one lost game in the run
    t.Deal("Spider", 6);
    SessionStatDialog dlg(*t);
    auto* session = Get<QTreeWidget>(dlg, "lvSession");
    QCOMPARE(session->topLevelItemCount(), 2);
    QCOMPARE(session->topLevelItem(1)->text(5), QString("Running"));
    QCOMPARE(session->topLevelItem(1)->foreground(0).color(), QColor(120, 0, 0));
    QCOMPARE(Get<QLabel>(dlg, "lblSesLost")->text(), QString("Games Lost : 1"));
    QCOMPARE(Get<QTimer>(dlg, "Timer1")->interval(), 500);
    for (int tick = 0; tick < 2; ++tick) {
      t->cGamePlay.TickGame();
      dlg.Tick();
    }
    QCOMPARE(session->topLevelItem(1)->text(3), QString("0:00:02"));
    QCOMPARE(Get<QTreeWidget>(dlg, "lvSesChart")->topLevelItem(1)->text(1), QString("0:00:02"));
    QCOMPARE(Get<QLabel>(dlg, "lblGameTime")->text(), QString("Time Elapsed : 0:00:02"));
  }

  void playersAskAgainWhileTheNameIsRefused() {
    test::TestProgram t;
    SetPlayer(t->cRegistry, 1, "Player1", true);
    test::Typing names({"Player1", "a|b", "Bo"});
    PlayersDialog dlg(*t);
    auto* list = Get<QListWidget>(dlg, "lvPlayer");
    QVERIFY(!Get<QPushButton>(dlg, "cmdDelete")->isEnabled());
    Get<QPushButton>(dlg, "cmdAdd")->click();
    QCOMPARE(names.prompts, QStringList({"Add Player", "Add Player", "Add Player"}));
    QCOMPARE(t.dialogs.shown, std::vector<std::string>({"Player Exists !", "Please Enter a Valid Name"}));
    QCOMPARE(list->count(), 2);
    list->setCurrentRow(1);
    QVERIFY(Get<QPushButton>(dlg, "cmdDelete")->isEnabled());
    names.next = {"Cy"};
    Get<QPushButton>(dlg, "cmdEdit")->click();
    QCOMPARE(list->item(1)->text(), QString("Cy"));
    list->setCurrentRow(1);
    t.dialogs.answers = {Answer::Yes};
    Get<QPushButton>(dlg, "cmdDelete")->click();
    QCOMPARE(list->count(), 1);
    list->setCurrentRow(-1);
    names.next = {"Zed"};
    Get<QPushButton>(dlg, "cmdEdit")->click();  // nothing selected: no box at all
    QCOMPARE(names.next, QStringList{"Zed"});
  }
};

QTEST_MAIN(ScoreWindowsTest)
#include "test_scores.moc"
