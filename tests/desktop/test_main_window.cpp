#include <QAction>
#include <QGraphicsItem>
#include <QToolBar>
#include <QtTest>

#include "MainWindow.h"
#include "QtSprites.h"
#include "TemporaryUserHome.h"
#include "TableView.h"
#include "session/Commands.h"
#include "session/Program.h"
#include "session/SavedGameFile.h"
#include "settings/MemorySettingsStore.h"

using namespace qv;

class TestMainWindow : public QObject {
  Q_OBJECT

 private:
  TemporaryUserHome home_;
  std::unique_ptr<MemorySettingsStore> store_;
  std::unique_ptr<MainWindow> w_;
  QStringList opened_;

  Program& app() { return w_->app(); }
  QWidget* viewport() { return w_->view().viewport(); }
  // Where a point of the table (twips) shows in the view's viewport.
  QPoint At(double x, double y) { return w_->view().mapFromScene(QPointF(x, y)); }
  // A point inside the visible strip of a card.
  QPoint OnCard(int pic) {
    return At(w_->sprites().Left(Sprites::PicCD, pic) + 500, w_->sprites().Top(Sprites::PicCD, pic) + 40);
  }
  QAction* ToolbarItem(const QString& key) {
    for (QAction* a : w_->Toolbar()->actions())
      if (a->objectName() == "tb" + key) return a;
    return nullptr;
  }
  void Deal(uint64_t n) { app().cGamePlay.PlayNumber("Spider", GameNo::Number(n)); }
  // Where a card's picture stands on the table, in twips.
  QRectF CardRect(int pic) {
    for (QGraphicsItem* item : w_->view().scene()->items())
      if (item->data(0).isValid() && item->data(0).toInt() == pic) return item->sceneBoundingRect();
    return {};
  }

 private slots:
  void init() {
    store_ = std::make_unique<MemorySettingsStore>();
    w_ = std::make_unique<MainWindow>(*store_);
    w_->sprites().SetFramePacing(false);
    w_->windowOpener = [this](const QString& key) { opened_ << key; };
    opened_.clear();
    w_->resize(1280, 800);
    w_->show();
    QVERIFY(QTest::qWaitForWindowExposed(w_.get()));
    w_->Load();
  }
  void cleanup() { w_.reset(); }

  // The menu items and the toolbar follow CommandEnabled.
  void enablingFollowsTheGame() {
    // Nothing replays at start: Stop is grey in the menu and on the toolbar.
    QVERIFY(!w_->Action("Stop")->isEnabled() && !ToolbarItem("Stop")->isEnabled());
    QVERIFY(!w_->Action("Undo")->isEnabled() && w_->Action("New")->isEnabled());
    Deal(5);
    ClickCard(app(), app().cPlay.GetTopPicID(1, 0));
    w_->UpdateCommands();
    QVERIFY(w_->Action("Undo")->isEnabled());
    // Ctrl+C undoes all and Ctrl+V redoes all: no clipboard here.
    QVERIFY(QTest::qWaitForWindowActive(w_.get()));
    QTest::keyClick(w_.get(), Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(app().cEngine.GetTransID(), 0);
    w_->UpdateCommands();
    QTest::keyClick(w_.get(), Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(app().cEngine.GetTransID(), 10);
    w_->UpdateCommands();
    // A replay greys the journal's commands and lights Stop; any command stops it.
    QTest::keyClick(w_.get(), Qt::Key_F2, Qt::ShiftModifier);  // Replay Back
    w_->UpdateCommands();
    QVERIFY(!w_->Action("Undo")->isEnabled());
    QTRY_VERIFY(w_->Action("Stop")->isEnabled() && ToolbarItem("Stop")->isEnabled());
    w_->UpdateCommands();  // a tick while the step moved greys Options until the next tick
    w_->Action("Options")->trigger();
    QVERIFY(!IsReplaying(app()));
    QCOMPARE(opened_.last(), QString("Options"));
    QVERIFY(!w_->Action("Stop")->isEnabled());
  }

  void viewToolbarShowsAndHidesItAndTheChoiceIsKept() {
    QVERIFY(w_->Toolbar()->isVisible() && w_->Action("ViewTool")->isChecked());
    w_->Action("ViewTool")->trigger();
    w_->UpdateCommands();
    QVERIFY(!w_->Toolbar()->isVisible() && !w_->Action("ViewTool")->isChecked());
    MainWindow next(*store_);
    next.show();
    next.Load();
    QVERIFY(!next.Toolbar()->isVisible() && !next.Action("ViewTool")->isChecked());
    next.Action("ViewTool")->trigger();
    next.UpdateCommands();
    QVERIFY(next.Toolbar()->isVisible());
  }

  // A refused drop jumps back; a legal drag is in aGroupIsDraggedWithTheMouse.
  void aRefusedDropJumpsBack() {
    Deal(1);
    const int card = app().cPlay.GetTopPicID(0, 3);
    const double left = w_->sprites().Left(Sprites::PicCD, card);
    const QPoint start = OnCard(card);
    QTest::mousePress(viewport(), Qt::LeftButton, {}, start);
    QTest::mouseMove(viewport(), start + QPoint(0, 200));  // down onto the empty table
    QTest::mouseRelease(viewport(), Qt::LeftButton, {}, start + QPoint(0, 200));
    QCOMPARE(app().cEngine.GetTransID(), 0);
    QCOMPARE(w_->sprites().Left(Sprites::PicCD, card), left);
  }

  void aGroupIsDraggedWithTheMouse() {
    // "Any Card" rules, brought by a saved game's header, let any open run move as one.
    GameHeader h;
    h.GameName = "Any Card";
    h.GameNo = GameNo::Number(7);
    h.HPiles = 10, h.HOrder = 5, h.HSpace = 13, h.HMulti = 1, h.Suits = 2, h.MOrder = 5;
    const QString file = QDir::temp().filePath("quorvale-group.vq0");
    QVERIFY(app().cFileSys.WriteText(file.toStdString(), FormatSavedGame(h, {})));
    QVERIFY(app().cGamePlay.PlayFile(file.toStdString(), false));
    QFile::remove(file);
    DragCardToPile(app(), app().cPlay.GetTopPicID(0, 0), 1);
    DragCardToPile(app(), app().cPlay.GetTopPicID(0, 2), 1);
    const int foot = app().cPlay.GetPicID(0, 1, app().cPlay.GetTop(0, 1) - 2);
    const int target = app().cPlay.GetTopPicID(0, 6);
    const QPoint start = OnCard(foot);
    const QPoint end = OnCard(target);
    QTest::mousePress(viewport(), Qt::LeftButton, {}, start);
    QTest::mouseMove(viewport(), end);
    // While it hangs on the pointer the run keeps the size of cards and their steps.
    const QRectF footRect = CardRect(foot);
    for (int i = 1; i <= 2; ++i) {
      const QRectF rider = CardRect(app().cPlay.Sel()[i]);
      QVERIFY(qAbs(rider.width() - footRect.width()) < 2);
      QVERIFY(qAbs(rider.top() - footRect.top() - 250 * i) < 2);
    }
    const double zoom = w_->view().transform().m11();
    w_->view().FitTable();  // as the main timer does: the table holds still under a drag
    QCOMPARE(w_->view().transform().m11(), zoom);
    QTest::mouseRelease(viewport(), Qt::LeftButton, {}, end);
    QCOMPARE(app().cEngine.Record(app().cEngine.GetTransID()).mCards, 2);
    QCOMPARE(app().cPlay.Pile(foot), 6);
    QCOMPARE(app().cPlay.GetTop(0, 6), app().cPlay.Pos(foot) + 2);
  }

  // Every card's sprite stands where its place says, after a deal and a replayed file alike.
  void everySpriteStandsAtItsPlace() {
    Deal(482913);
    for (int i = 0; i < 5; ++i) ClickCard(app(), app().cPlay.GetTopPicID(1, 0));
    const std::string file = QDir::temp().filePath("quorvale-sprites.vq0").toStdString();
    QVERIFY(app().cEngine.SavetoFile(file));
    QVERIFY(app().cGamePlay.PlayFile(file, false));
    QFile::remove(QString::fromStdString(file));
    const Table& t = app().cPlay.table();
    for (int pic = 0; pic < t.TotalCards(); ++pic) {
      const CardRec& c = t.Card(pic);
      if (c.Cell == 1) continue;  // the Stock's cards lie where they were placed
      // A pile's column; its height was worked out when the card came, so only its order is checked.
      QCOMPARE(w_->sprites().Left(Sprites::PicCD, pic), double(app().cGames.GetCordX(c.Cell, c.Pile, c.Pos)));
      if (c.Pos > 0) {
        QVERIFY(w_->sprites().Top(Sprites::PicCD, pic) > w_->sprites().Top(Sprites::PicCD, t.GetPicID(0, c.Pile, c.Pos - 1)));
      }
    }
  }

  void theTableFillsTheWidthAndTheStockTheTitleAndThePauseMark() {
    Deal(482913);
    w_->view().FitTable();
    const QRect table = w_->view().mapFromScene(QRectF(0, 0, 12615, 10)).boundingRect();
    QVERIFY(qAbs(table.width() - viewport()->width()) <= 2);
    QTest::mouseClick(viewport(), Qt::LeftButton, {}, OnCard(app().cPlay.GetTopPicID(1, 0)));
    QCOMPARE(app().cEngine.GetTransID(), 10);  // a row, one card on each pile
    QCOMPARE(app().cPlay.GetTop(1, 0), 49);
    app().cGamePlay.Update_Title();
    QVERIFY(w_->windowTitle().startsWith("Quorvale 6.0 [Spider - 482913] [Player1]"));
    QVERIFY(w_->windowTitle().contains("Moves:10"));
    w_->UpdateCommands();
    w_->Action("Pause")->trigger();
    QVERIFY(w_->Action("Pause")->isChecked());
    QVERIFY(app().cGamePlay.PauseStatus());
  }
};

QTEST_MAIN(TestMainWindow)
#include "test_main_window.moc"
