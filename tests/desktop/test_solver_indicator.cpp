#include <QApplication>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QPainter>
#include <QProgressDialog>
#include <QTabWidget>
#include <QtTest>
#include <atomic>
#include <thread>

#include "MainWindow.h"
#include "OptionsDialog.h"
#include "QtSprites.h"
#include "SolverIndicator.h"
#include "TemporaryUserHome.h"
#include "engine/Pointer.h"
#include "session/Commands.h"
#include "session/Program.h"
#include "settings/MemorySettingsStore.h"
#include "settings/SettingKeys.h"

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

  void theRealSolverFindsAWinnableDeal() {
    app().cGamePlay.PlayNumber("Spider Single Suit", GameNo::Number(3));
    QTRY_COMPARE_WITH_TIMEOUT(State(), QString("winnable"), 20000);
    QCOMPARE(w_->menuBar()->cornerWidget()->objectName(), QString("SolverIndicator"));
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

  void backStaysWhenTheGameCanStillBeWon() {
    app().cGamePlay.PlayNumber("Spider Single Suit", GameNo::Number(3));
    QVERIFY(!w_->Action("BackToWinnable")->isEnabled() || app().cEngine.UndoPossible());
    PressStock();
    w_->UpdateCommands();
    QVERIFY(w_->Action("BackToWinnable")->isEnabled());
    const int before = app().cEngine.GetTransID();
    // The answer comes in a message box once the search is done, whenever that is.
    QString said;
    QTimer closer;
    connect(&closer, &QTimer::timeout, [&] {
      if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
        said = box->text();
        box->close();
      }
    });
    closer.start(20);
    w_->Action("BackToWinnable")->trigger();
    QCOMPARE(said, QString("The game can still be won from here."));
    QCOMPARE(app().cEngine.GetTransID(), before);
  }

  // With QUORVALE_SHOTS set to a folder: the indicator's four words, a hint and the
  // Solver tab, as pictures for the documentation.
  void screenshots() {
    const QString dir = qEnvironmentVariable("QUORVALE_SHOTS");
    if (dir.isEmpty()) QSKIP("QUORVALE_SHOTS is not set");
    std::atomic<int> verdict{-1};
    w_->solver().solve = [&](const TableCopy&, const SolverBudget&, std::stop_token stop) {
      while (verdict < 0 && !stop.stop_requested()) std::this_thread::sleep_for(std::chrono::milliseconds(1));
      SolverResult r;
      r.verdict = static_cast<Verdict>(verdict.load());
      return r;
    };
    app().cGamePlay.PlayNumber("Spider", GameNo::Number(3));
    const QRect strip(w_->width() - 240, 0, 240, w_->menuBar()->height() + 30);
    QImage all(strip.width(), strip.height() * 4, QImage::Format_ARGB32);
    QPainter painter(&all);
    int row = 0;
    for (Verdict v : {Verdict::Unknown, Verdict::Winnable, Verdict::Lost, Verdict::Unknown}) {
      if (row > 0) {
        verdict = static_cast<int>(v);
        QTRY_COMPARE(State(), QString(VerdictName(v)));
      } else {
        QTRY_COMPARE(State(), QString("thinking"));
      }
      painter.drawImage(0, strip.height() * row++, w_->grab(strip).toImage());
      if (row < 4) {
        verdict = -1;
        PressStock();
        QTRY_COMPARE(State(), QString("thinking"));
      }
    }
    painter.end();
    QVERIFY(all.save(dir + "/solver-indicator.png"));
    w_->solver().solve = SolveCopy;
    app().cGamePlay.PlayNumber("Spider Single Suit", GameNo::Number(3));
    QTimer::singleShot(500, [&] {
      if (QWidget* box = QApplication::activeModalWidget()) {
        box->grab().save(dir + "/solver-hint.png");
        box->close();
      }
    });
    ExecCommand(app(), "Hint");
    // New Winnable Game's progress: Plaza's deals mostly take their whole second each.
    app().cRegistry.Set(setting::SolverSeconds, 1);
    w_->solver().solve = [](const TableCopy&, const SolverBudget&, std::stop_token) { return SolverResult{}; };
    app().cGamePlay.PlayNumber("Plaza", GameNo::Number(1));
    QTimer::singleShot(3500, [&] {
      if (auto* progress = w_->findChild<QProgressDialog*>("frmNewWinnable")) {
        progress->grab().save(dir + "/solver-new-winnable.png");
        emit progress->canceled();  // as the Cancel button does
      }
    });
    ExecCommand(app(), "NewWinnable");
    OptionsDialog options(app(), w_.get());
    auto* tabs = options.findChild<QTabWidget*>("SSTab1");
    tabs->setCurrentIndex(tabs->count() - 1);
    options.show();
    QVERIFY(QTest::qWaitForWindowExposed(&options));
    QVERIFY(options.grab().save(dir + "/dialog-options-solver.png"));
  }
};

QTEST_MAIN(TestSolverIndicator)
#include "test_solver_indicator.moc"
