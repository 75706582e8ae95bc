// The Moves Manager and the Game History, driven as a user would.
#include <QElapsedTimer>
#include <QGraphicsView>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QTest>
#include <QTreeView>

#include "HistoryDialog.h"
#include "MainWindow.h"
#include "QtSprites.h"
#include "QuickMoveDialog.h"
#include "TemporaryUserHome.h"
#include "TestProgram.h"
#include "session/Commands.h"
#include "settings/Settings.h"

#include "FindChild.h"

using namespace qv;

namespace {
// Counts the paints a widget gets.
struct PaintCounter : QObject {
  int paints = 0;
  bool eventFilter(QObject*, QEvent* event) override {
    paints += event->type() == QEvent::Paint ? 1 : 0;
    return false;
  }
};
QString Text(QWidget& dlg, const char* label) { return Get<QLabel>(dlg, label)->text(); }
QVariant Look(QTreeView* list, int row, int role) { return list->model()->index(row, 2).data(role); }
bool Bold(QTreeView* list, int row) { return Look(list, row, Qt::FontRole).value<QFont>().bold(); }
QColor Colour(QTreeView* list, int row) { return Look(list, row, Qt::ForegroundRole).value<QColor>(); }
void ClickRow(QTreeView* list, int row) {
  const QModelIndex index = list->model()->index(row, 1);
  list->scrollTo(index);
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(index).center());
}

// Spider 5: a dealt row (records 1 to 10), moves, a second row, more moves; then the last
// steps undone. The steps' ends, from 0, are in `ends`.
struct Game {
  test::TestProgram t;
  std::vector<int> ends{0};
  explicit Game(int undone) {
    t.Deal("Spider", 5);
    auto step = [&](bool row) {
      if (row || !test::MakeAnyLegalMove(t)) test::DealRows(t, 1);
      ends.push_back(t->cEngine.GetTransID());
    };
    step(true);
    for (int i = 0; i < 4; ++i) step(false);
    step(true);
    for (int i = 0; i < 4; ++i) step(false);
    int speed = 0;
    for (int i = 0; i < undone; ++i) t->cEngine.Undo(speed);
  }
};
}  // namespace

class MovesHistoryTest : public QObject {
  Q_OBJECT
  TemporaryUserHome home_;

 private slots:
  void openingShowsWhereTheTableStandsAndFolds() {
    Game g(2);
    auto& e = g.t->cEngine;
    QuickMoveDialog dlg(*g.t);
    dlg.show();
    auto* list = Get<QTreeView>(dlg, "lvQuick");
    auto* slider = Get<QSlider>(dlg, "Slider1");
    QCOMPARE(list->model()->rowCount(), e.GetTransTop() + 1);
    QCOMPARE(slider->maximum(), e.GetTransTop());
    QCOMPARE(slider->value(), e.GetTransID());
    // The row of the table's position is marked and current; inner records of a row are grey.
    QVERIFY(Bold(list, e.GetTransID()) && !Bold(list, e.GetTransTop()));
    QCOMPARE(Colour(list, e.GetTransID()), QColor(128, 0, 0));
    QCOMPARE(list->currentIndex().row(), e.GetTransID());
    QCOMPARE(Colour(list, 3), QColor(150, 150, 150));
    QVERIFY(!Look(list, 10, Qt::ForegroundRole).isValid());
    QCOMPARE(list->model()->index(0, 0).data().toString(), QString("Start"));
    QCOMPARE(Text(dlg, "lbText2"), "Move : " + QString::number(e.GetTransID()));
    QVERIFY(dlg.windowTitle().startsWith("Move: " + QString::number(e.GetTransID()) + " - "));

    // Folded, only the upper part shows; "More >>" unfolds the list and "<< Less" folds it back.
    const int folded = dlg.height();
    QVERIFY(!list->isVisible());
    auto* more = Get<QPushButton>(dlg, "cmdMore");
    more->click();
    QVERIFY(list->isVisible() && dlg.height() > folded + 100);
    QCOMPARE(more->text(), QString("<< Less"));
    more->click();
    QCOMPARE(dlg.height(), folded);
    QCOMPARE(more->text(), QString("More >>"));
  }

  void sliderKeysAndButtonsWalkWholeSteps() {
    Game g(0);
    auto& e = g.t->cEngine;
    QuickMoveDialog dlg(*g.t);
    auto* slider = Get<QSlider>(dlg, "Slider1");
    // Record 5 lies inside the first dealt row (1 to 10): from behind it the slider falls
    // back to the row's start, from before it on to the row's end.
    slider->setValue(5);
    QCOMPARE(e.GetTransID(), 0);
    QCOMPARE(slider->value(), 0);
    QCOMPARE(Text(dlg, "lbText1"), QString("Game Name : Spider - Game No.: 5"));
    slider->setValue(5);
    QCOMPARE(e.GetTransID(), 10);
    QCOMPARE(slider->value(), 10);
    Get<QPushButton>(dlg, "cmdBack")->click();
    QCOMPARE(e.GetTransID(), 0);
    Get<QPushButton>(dlg, "cmdForward")->click();
    QCOMPARE(e.GetTransID(), 10);
    // At either end a tick of tmrMove greys the way that goes no further.
    slider->setValue(0);
    QTRY_VERIFY_WITH_TIMEOUT(!Get<QPushButton>(dlg, "cmdBack")->isEnabled(), 400);
    QVERIFY(!Get<QPushButton>(dlg, "cmdReplayBack")->isEnabled());
    QVERIFY(Get<QPushButton>(dlg, "cmdForward")->isEnabled());
    slider->setValue(e.GetTransTop());
    QTRY_VERIFY_WITH_TIMEOUT(!Get<QPushButton>(dlg, "cmdForward")->isEnabled(), 400);
    QVERIFY(Get<QPushButton>(dlg, "cmdBack")->isEnabled());
  }

  // While the thumb is held the table follows it, placing cards without a glide; on release
  // the table snaps to a step's end in the direction the thumb went.
  void aDraggedThumbWalksTheTable() {
    Game g(0);
    auto& e = g.t->cEngine;
    g.t.sprites.onYield = [] { QCoreApplication::processEvents(); };
    QuickMoveDialog dlg(*g.t);
    auto* slider = Get<QSlider>(dlg, "Slider1");
    const int top = e.GetTransTop(), rowEnd = g.ends[g.ends.size() - 5];
    slider->setSliderDown(true);
    slider->setSliderPosition(rowEnd - 3);  // inside the second row
    const long frames = g.t.sprites.Frames();
    QTRY_VERIFY_WITH_TIMEOUT(e.GetTransID() < top, 500);
    QVERIFY(g.t.sprites.Frames() - frames < 5);  // a frame a walk: the row was placed, not glided
    QCOMPARE(slider->value(), top);          // the value waits for the release
    slider->setSliderDown(false);
    QCOMPARE(e.GetTransID(), rowEnd - 10);
    QCOMPARE(slider->value(), rowEnd - 10);
    QCOMPARE(Text(dlg, "lbText2"), "Move : " + QString::number(rowEnd - 10));
    // Back up again, past the row, and dropped inside it: on to its end.
    slider->setSliderDown(true);
    slider->setSliderPosition(top);
    QTRY_COMPARE_WITH_TIMEOUT(e.GetTransID(), top, 500);
    slider->setSliderPosition(rowEnd - 3);
    QTRY_VERIFY_WITH_TIMEOUT(e.GetTransID() < top, 500);
    slider->setSliderDown(false);
    QCOMPARE(e.GetTransID(), rowEnd);
  }

  void rowClicksStartAndReplay() {
    Game g(0);
    auto& e = g.t->cEngine;
    const auto end = test::Snapshot(*g.t.app);
    QuickMoveDialog dlg(*g.t);
    dlg.show();
    Get<QPushButton>(dlg, "cmdMore")->click();
    auto* list = Get<QTreeView>(dlg, "lvQuick");
    ClickRow(list, 0);
    QCOMPARE(e.GetTransID(), 0);
    QCOMPARE(Text(dlg, "lbText2"), QString("Move : 0"));
    // A grey row: the table goes on to its step's end, and the clicked row stays grey.
    ClickRow(list, 4);
    QCOMPARE(e.GetTransID(), 10);
    QCOMPARE(Colour(list, 4), QColor(150, 150, 150));
    QVERIFY(Bold(list, 10) && !Bold(list, 4));
    QCOMPARE(list->currentIndex().row(), 10);
    QCOMPARE(Get<QSlider>(dlg, "Slider1")->value(), 10);

    // A replay: the main window's forward timer runs; the dialog greys its walks and a click
    // on a row does nothing until the replay ends.
    Get<QPushButton>(dlg, "cmdReplayForward")->click();
    QVERIFY(g.t.window.TimerEnabled(Timer::Forward));
    QVERIFY(!Get<QSlider>(dlg, "Slider1")->isEnabled());
    QVERIFY(Get<QPushButton>(dlg, "cmdReplayStop")->isEnabled());
    ReplayTick(*g.t, true);
    const int replayed = e.GetTransID();
    QVERIFY(replayed > 10);
    ClickRow(list, 0);
    QCOMPARE(e.GetTransID(), replayed);
    while (g.t.window.TimerEnabled(Timer::Forward)) ReplayTick(*g.t, true);
    QCOMPARE(test::Snapshot(*g.t.app), end);
    QTRY_VERIFY_WITH_TIMEOUT(Get<QSlider>(dlg, "Slider1")->isEnabled(), 300);
    QCOMPARE(Get<QSlider>(dlg, "Slider1")->value(), e.GetTransTop());
    QVERIFY(!Get<QPushButton>(dlg, "cmdReplayStop")->isEnabled());
    QVERIFY(!Get<QPushButton>(dlg, "cmdForward")->isEnabled());
  }

  // In the real window: a replay started in the dialog runs on after it closed.
  void aReplayEndsAloneAfterClose() {
    MemorySettingsStore store;
    MainWindow main(store);
    main.sprites().SetFramePacing(false);
    main.show();
    main.Load();
    Program& app = main.app();
    app.cRegistry.Set(setting::ReplaySpeed, 0);
    app.cGamePlay.PlayNumber("Spider", GameNo::Number(5));
    for (int i = 0; i < 3; ++i) ClickCard(app, app.cPlay.GetTopPicID(1, 0));
    const int top = app.cEngine.GetTransTop();
    {
      QuickMoveDialog dlg(app, &main);
      dlg.show();
      // A walk yields after every card, yet paints the table at most once a display frame.
      PaintCounter counter;
      QWidget* table = main.findChild<QGraphicsView*>()->viewport();
      table->installEventFilter(&counter);
      QElapsedTimer clock;
      clock.start();
      app.cEngine.MoveTo(0, false);
      QVERIFY2(counter.paints <= clock.elapsed() / 16 + 1, qPrintable(QString::number(counter.paints)));
      QTRY_VERIFY(counter.paints > 0);
      table->removeEventFilter(&counter);
      app.cEngine.MoveTo(top);
      Get<QSlider>(dlg, "Slider1")->setValue(0);
      QTRY_VERIFY(Get<QPushButton>(dlg, "cmdReplayForward")->isEnabled());
      Get<QPushButton>(dlg, "cmdReplayForward")->click();
      QVERIFY(IsReplaying(app));
    }
    QTRY_COMPARE_WITH_TIMEOUT(app.cEngine.GetTransID(), top, 5000);
    QTRY_VERIFY(!IsReplaying(app));
  }

  void historyColoursAndExport() {
    Game g(3);
    auto& e = g.t->cEngine;
    const int c = e.GetTransID();
    HistoryDialog dlg(*g.t, [](QWidget*, const FileRequest&) { return QString(); });
    auto* list = Get<QTreeView>(dlg, "lvHistory");
    QCOMPARE(list->model()->rowCount(), e.GetTransTop());
    QCOMPARE(list->model()->index(0, 0).data().toString(), QString("1"));
    QCOMPARE(list->model()->index(0, 1).data().toString(), QString("Stock (Pile 1, Card 60)"));
    QVERIFY(Bold(list, c - 1) && !Bold(list, c - 2));
    QCOMPARE(Colour(list, c - 1), QColor(128, 0, 0));
    QVERIFY(!Look(list, c - 2, Qt::ForegroundRole).isValid());
    for (int row = c; row < e.GetTransTop(); ++row) QCOMPARE(Colour(list, row), QColor(128, 128, 0));
    int speed = 0;
    e.UndoAll(speed);
    HistoryDialog none(*g.t, {});
    for (int row = 0; row < e.GetTransTop(); ++row) QVERIFY(!Bold(Get<QTreeView>(none, "lvHistory"), row));

    // Export asks the chooser as the program's file dialog would be asked.
    FileRequest asked;
    QString answer = home_.path() + "/Spider-5.txt";
    FileChooser chooser = [&](QWidget*, const FileRequest& r) {
      asked = r;
      return answer;
    };
    HistoryDialog exporting(*g.t, chooser);
    Get<QPushButton>(exporting, "cmdExport")->click();
    QCOMPARE(asked.filters, QStringList{" Game History (*.txt)"});
    QCOMPARE(asked.defaultSuffix, QString("txt"));
    QCOMPARE(asked.fileName, QString("Spider-5.txt"));
    QCOMPARE(asked.folder.toStdString(), SaveInitDir(*g.t));
    QVERIFY(asked.save);
    QVERIFY(test::ReadFile(answer.toStdString()).starts_with("Game Name: Spider\r\nGame Number:  5 \r\n"));
    QCOMPARE(g.t.dialogs.shown.back(), std::string("Successfully Exported"));
    QVERIFY(!g.t.settings.ReadText(setting::SaveInitDir.section, setting::SaveInitDir.key).has_value());
    // A file that cannot be written says so once; a cancelled chooser says nothing.
    const size_t shown = g.t.dialogs.shown.size();
    answer = home_.path();  // a folder: no file can replace it
    Get<QPushButton>(exporting, "cmdExport")->click();
    QCOMPARE(g.t.dialogs.shown.size(), shown + 1);
    QVERIFY(g.t.dialogs.shown.back().find("could not be exported") != std::string::npos);
    answer.clear();
    Get<QPushButton>(exporting, "cmdExport")->click();
    QCOMPARE(g.t.dialogs.shown.size(), shown + 1);
  }
};

QTEST_MAIN(MovesHistoryTest)
#include "test_moves_history.moc"
