#include <QAbstractButton>
#include <QApplication>
#include <QMenuBar>
#include <QMessageBox>
#include <QtTest>
#include <atomic>
#include <thread>

#include "MainWindow.h"
#include "QtSprites.h"
#include "SolverIndicator.h"
#include "TableView.h"
#include "TemporaryUserHome.h"
#include "TestProgram.h"
#include "session/Commands.h"
#include "session/Program.h"
#include "session/SavedGameFile.h"
#include "settings/MemorySettingsStore.h"

using namespace qv;

class TestSolverIndicator : public QObject {
  Q_OBJECT

 private:
  TemporaryUserHome home_;
  std::unique_ptr<MemorySettingsStore> store_;
  std::unique_ptr<MainWindow> w_;

  Program& app() { return w_->app(); }
  QString State() { return w_->solver().State(); }
  void PressStock() { ClickCard(app(), app().cPlay.GetTopPicID(1, 0)); }

  // Answers each message box as it comes, Yes where it offers one, and keeps its text;
  // `whileOpen` runs while the box is up.
  QStringList AnswerBoxes(const QString& command, const std::function<void()>& whileOpen = {}) {
    QStringList said;
    QTimer closer;
    connect(&closer, &QTimer::timeout, [&] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (!box) return;
      said << box->text();
      if (whileOpen) whileOpen();
      if (QAbstractButton* yes = box->button(QMessageBox::Yes)) yes->click();
      else box->close();
    });
    closer.start(20);
    w_->Action(command)->trigger();
    return said;
  }

 private slots:
  void init() {
    store_ = std::make_unique<MemorySettingsStore>();
    w_ = std::make_unique<MainWindow>(*store_);
    w_->sprites().SetFramePacing(false);
    w_->resize(1280, 800);
    w_->show();
    QVERIFY(QTest::qWaitForWindowExposed(w_.get()));
    w_->Load();
  }
  void cleanup() { w_.reset(); }

  // A search held on a latch: the window goes on, an answer for a position that has gone
  // is dropped, and the answer for the table as it lies is shown.
  void aStaleAnswerIsDroppedAndTheCurrentOneShown() {
    std::atomic<int> permits{0}, calls{0};
    std::atomic<bool> stopped{false};
    w_->solver().solve = [&](const TableCopy&, const SolverBudget&, std::stop_token stop) {
      ++calls;
      while (permits == 0 && !stop.stop_requested()) std::this_thread::sleep_for(std::chrono::milliseconds(1));
      if (stop.stop_requested()) stopped = true;
      else --permits;
      SolverResult r;
      r.verdict = Verdict::Lost;
      return r;
    };
    app().cGamePlay.PlayNumber("Spider", GameNo::Number(5));
    QTRY_COMPARE(State(), QString("thinking"));
    QVERIFY(!w_->grab().isNull());  // the window paints while the search runs
    PressStock();                    // the position asked about is gone
    QTRY_VERIFY(stopped);
    QTRY_COMPARE(calls.load(), 2);
    QCOMPARE(State(), QString("thinking"));
    ++permits;
    QTRY_COMPARE(State(), QString("lost"));
    // The indicator turned off hides the word and starts nothing.
    app().cRegistry.Set(setting::SolverIndicator, 0);
    PressStock();
    QTest::qWait(300);
    QCOMPARE(calls.load(), 2);
    QVERIFY(!w_->menuBar()->cornerWidget()->isVisible());
  }

  // Hint takes the indicator's answer at once, rings the move on the table until the
  // table changes; a lost game's hint offers Back, which then runs.
  void hintRingsItsMoveAndALostOneOffersBack() {
    app().cGamePlay.PlayNumber("Spider Single Suit", GameNo::Number(3));
    QTRY_COMPARE_WITH_TIMEOUT(State(), QString("winnable"), 20000);
    qsizetype ringed = 0;
    const QStringList hint = AnswerBoxes("Hint", [&] { ringed = w_->view().Outlined().size(); });
    QCOMPARE(hint.size(), 1);
    QVERIFY2(hint[0].startsWith("Move the ") && hint[0].contains(": it "), qPrintable(hint[0]));
    QCOMPARE(ringed, 2);  // the cards that go and where they go
    QCOMPARE(w_->view().Outlined().size(), 2);
    PressStock();
    QTRY_COMPARE(w_->view().Outlined().size(), 0);

    // A game that is really lost: one suit laid in alternate colours, Kings alone on
    // spaces. The real search proves it and Back has no earlier position to go to.
    GameHeader h;
    h.GameName = "Alternating Spades";
    h.GameNo = GameNo::Number(5);
    h.HPiles = 10, h.HOrder = 1, h.HSpace = 12, h.HMulti = 1, h.Suits = 0, h.MOrder = 0;
    const std::string path = (home_.path() + "/lost.vq0").toStdString();
    test::WriteFile(path, FormatSavedGame(h, {}));
    QVERIFY(app().cGamePlay.PlayFile(path, false));
    QTRY_COMPARE(State(), QString("lost"));
    const QStringList lost = AnswerBoxes("Hint");
    QCOMPARE(lost.size(), 2);
    QVERIFY(lost[0].startsWith("This game can no longer be won from here"));
    QVERIFY(lost[0].endsWith("Go back to the last position from which the game can be won?"));
    QCOMPARE(w_->view().Outlined().size(), 0);  // nothing to ring
    QCOMPARE(lost[1], QString("This game cannot be won: it was lost from the deal."));
  }

  void newWinnableDealsANumberProvedWinnable() {
    app().cRegistry.Set(setting::SolverSeconds, 2);
    app().cGamePlay.PlayNumber("Spider Single Suit", GameNo::Number(1));
    ExecCommand(app(), "NewWinnable");
    QCOMPARE(app().cGamePlay.Game_Status(), 1);
    QCOMPARE(QString::fromStdString(app().cGamePlay.GameName()), QString("Spider Single Suit"));
    QVERIFY(app().cGamePlay.GameNo().Text() != "1");
    const SolverResult r = SolveTable(app().cPlay.table(), app().cGames, 30000, {20000, 256, 0});
    QCOMPARE(r.verdict, Verdict::Winnable);
  }

  // The real solver: the deal is shown winnable, and Back to Winnable stays where it is.
  void theRealSolverFindsAWinnableDealAndBackStays() {
    app().cGamePlay.PlayNumber("Spider Single Suit", GameNo::Number(3));
    QTRY_COMPARE_WITH_TIMEOUT(State(), QString("winnable"), 20000);
    QCOMPARE(w_->menuBar()->cornerWidget()->objectName(), QString("SolverIndicator"));
    QVERIFY(!w_->Action("BackToWinnable")->isEnabled() || app().cEngine.UndoPossible());
    PressStock();
    w_->UpdateCommands();
    QVERIFY(w_->Action("BackToWinnable")->isEnabled());
    const int before = app().cEngine.GetTransID();
    // The answer comes in a message box once the search is done, whenever that is.
    QCOMPARE(AnswerBoxes("BackToWinnable"), QStringList{"The game can still be won from here."});
    QCOMPARE(app().cEngine.GetTransID(), before);
  }
};

QTEST_MAIN(TestSolverIndicator)
#include "test_solver_indicator.moc"
