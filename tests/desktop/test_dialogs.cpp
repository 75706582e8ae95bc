// The four settings dialogs, driven as a user would, read back through the settings and
// the main window's toolbar.
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSlider>
#include <QScreen>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>
#include <QToolBar>
#include <QTreeWidget>

#include "AnimationDialog.h"
#include "CardDeckDialog.h"
#include "FileCommands.h"
#include "MainWindow.h"
#include "ModalProbe.h"
#include "TemporaryUserHome.h"
#include "OptionsDialog.h"
#include "TestProgram.h"
#include "ToolbarDialog.h"
#include "Windows.h"
#include "session/CommandTable.h"
#include "session/Commands.h"

#include "FindChild.h"

using namespace qv;

namespace {
bool Stored(const test::TestProgram& t, const IntSetting& s) { return t.settings.ReadInt(s.section, s.key).has_value(); }
QAction* ToolbarItem(MainWindow& main, const QString& key) {
  for (QAction* a : main.Toolbar()->actions())
    if (a->objectName() == "tb" + key) return a;
  qFatal("no toolbar item %s", qPrintable(key));
}
void Click(QTreeWidget* tree, QTreeWidgetItem* item) {
  QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualItemRect(item).center());
}
}  // namespace

class DialogTest : public QObject {
  Q_OBJECT
  TemporaryUserHome home_;

 private slots:

  void optionsWriteAtOnce() {
    test::TestProgram t;
    t->cRegistry.Set(setting::ShowScore, 0);
    OptionsDialog dlg(*t);
    QVERIFY(!Get<QCheckBox>(dlg, "chkScore")->isChecked());
    QVERIFY(!Stored(t, setting::ShowTime) && !Stored(t, setting::RangeIndex));  // loading writes nothing
    Get<QCheckBox>(dlg, "chkTime")->click();
    QCOMPARE(t->cRegistry.Get(setting::ShowTime), 0);
    Get<QCheckBox>(dlg, "chkScore")->click();
    QCOMPARE(t->cRegistry.Get(setting::ShowScore), 1);
    Get<QCheckBox>(dlg, "chkFin")->click();
    QCOMPARE(t->cRegistry.Get(setting::EnableFin), 0);
    QCOMPARE(t->cRegistry.Get(setting::EnableInc), 1);

    auto* range = Get<QComboBox>(dlg, "imcRange");
    QCOMPARE(range->count(), 15);
    QCOMPARE(range->currentText(), QString("999,999"));
    QCOMPARE(range->itemText(14), QString("999,999,999,999,999"));
    range->setCurrentIndex(2);
    QCOMPARE(t->cRegistry.Get(setting::RangeIndex), 3);
    // A stored range out of reach selects nothing, and opening does not overwrite it.
    for (int stored : {0, 16}) {
      t->cRegistry.Set(setting::RangeIndex, stored);
      OptionsDialog again(*t);
      QCOMPARE(Get<QComboBox>(again, "imcRange")->currentIndex(), -1);
      QCOMPARE(int(t->cRegistry.Get(setting::RangeIndex)), stored);
    }
  }

  void animationShowsFiftyMinusSpeed() {
    test::TestProgram t;
    t->cRegistry.Set(setting::UndoSpeed, 80);  // beyond the slowest: shown as the slowest
    // Cancel first: the same moves store nothing, and the next opening shows the same.
    for (const char* button : {"cmdCancel", "cmdOK"}) {
      AnimationDialog dlg(*t);
      QCOMPARE(Get<QGroupBox>(dlg, "Frame1")->title(), QString("Card Moving Speed : 45"));
      QCOMPARE(Get<QGroupBox>(dlg, "Frame4")->title(), QString("Replay Speed : 43"));
      QCOMPARE(Get<QSlider>(dlg, "Slider2")->value(), 0);
      Get<QSlider>(dlg, "Slider2")->setValue(30);
      QCOMPARE(Get<QGroupBox>(dlg, "Frame2")->title(), QString("Undo/Redo Speed : 30"));
      Get<QSlider>(dlg, "Slider1")->setValue(0);
      Get<QSlider>(dlg, "Slider4")->setValue(50);
      Get<QPushButton>(dlg, button)->click();
    }
    QCOMPARE(t->cRegistry.Get(setting::CardSpeed), 50);
    QCOMPARE(t->cRegistry.Get(setting::UndoSpeed), 20);
    QCOMPARE(t->cRegistry.Get(setting::UndoallSpeed), 2);
    QCOMPARE(t->cRegistry.Get(setting::ReplaySpeed), 0);
  }

  void deckTreeByGroupsClicksAndOk() {
    test::TestProgram t;
    t->cRegistry.Set(setting::DeckIndex, 6);
    CardDeckDialog stored(*t);
    QTreeWidgetItem* root = Get<QTreeWidget>(stored, "tvDeck")->topLevelItem(0);
    QCOMPARE(root->text(0), QString("Card Decks"));
    QCOMPARE(root->childCount(), 3);
    // Every deck once, under its own group, named by the group and its place in it.
    QList<int> tags;
    for (int g = 0; g < root->childCount(); ++g)
      for (int n = 0; n < root->child(g)->childCount(); ++n) {
        QTreeWidgetItem* deck = root->child(g)->child(n);
        QCOMPARE(deck->text(0), root->child(g)->text(0) + " " + QString::number(n + 1));
        tags << deck->data(0, CardDeckDialog::kTagRole).toInt();
        QCOMPARE(t->cImages.DeckGroup(tags.last()), g + 1);
      }
    std::sort(tags.begin(), tags.end());
    QCOMPARE(tags.size(), t->cImages.DeckCount());
    QCOMPARE(tags.last(), t->cImages.DeckCount());
    QCOMPARE(Get<QTreeWidget>(stored, "tvDeck")->currentItem()->data(0, CardDeckDialog::kTagRole).toInt(), 6);
    // A stored deck the library does not have opens on the default deck; a click on a group
    // chooses nothing, one on a deck shows it, and OK stores it.
    t->cRegistry.Set(setting::DeckIndex, 99);
    t->cGamePlay.PlayNumber("Spider", GameNo::Number(1));
    CardDeckDialog dlg(*t);
    auto* tree = Get<QTreeWidget>(dlg, "tvDeck");
    QCOMPARE(tree->currentItem()->data(0, CardDeckDialog::kTagRole).toInt(), 7);
    dlg.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dlg));
    auto* preview = Get<QLabel>(dlg, "PicDeck");
    root = tree->topLevelItem(0);
    const QImage before = preview->pixmap().toImage();

    Click(tree, root->child(0));  // a group is no deck
    QCOMPARE(dlg.CurrentDeck(), 7);
    root->child(2)->setExpanded(true);
    QTreeWidgetItem* deck = root->child(2)->child(1);
    const int chosen = deck->data(0, CardDeckDialog::kTagRole).toInt();
    QVERIFY(chosen != 7);
    Click(tree, deck);
    QCOMPARE(dlg.CurrentDeck(), chosen);
    QVERIFY(preview->pixmap().toImage() != before);

    Get<QPushButton>(dlg, "cmdOK")->click();
    QCOMPARE(int(t->cRegistry.Get(setting::DeckIndex)), chosen);
    // The cards face down on the table turn to the new back at once.
    for (int i = 0; i < t->cPlay.table().TotalCards(); ++i)
      if (!t->cPlay.table().Card(i).FaceMode) QCOMPARE(t.sprites.Get(Sprites::PicCD, i).picture, t->cImages.CardBack(chosen));
  }

  void toolbarDefaultsAndSeparators() {
    MemorySettingsStore store;
    MainWindow main(store);
    Program& app = main.app();
    SetButtonShown(app.cRegistry, "UndoAll", true);
    main.RefreshToolbar();
    ToolbarDialog dlg(main);
    auto* list = Get<QListWidget>(dlg, "lvTool");
    QCOMPARE(list->count(), kToolbarButtons);
    QVERIFY(list->item(5)->checkState() == Qt::Checked);  // UndoAll, as stored
    // Load Defaults hides Undo All and Redo All and leaves Undo and Redo.
    Get<QPushButton>(dlg, "cmdDefault")->click();
    QVERIFY(list->item(5)->checkState() == Qt::Unchecked);
    QCOMPARE(app.cRegistry.RegGetInt(section::Toolbar, "UndoAll", -1), int16_t(0));
    QVERIFY(!ToolbarItem(main, "UndoAll")->isVisible() && !ToolbarItem(main, "RedoAll")->isVisible());
    QVERIFY(ToolbarItem(main, "Undo")->isVisible() && ToolbarItem(main, "Redo")->isVisible());

    Get<QPushButton>(dlg, "cmdSelectAll")->click();
    for (int id = 1; id <= kToolbarButtons; ++id) QVERIFY(ButtonShown(app.cRegistry, id));
    QVERIFY(ToolbarItem(main, "RedoAll")->isVisible());
    // A separator hides with the last button of its group.
    list->item(15)->setCheckState(Qt::Unchecked);  // AddFav
    QVERIFY(!ToolbarItem(main, "AddFav")->isVisible());
    QVERIFY(ToolbarItem(main, "Sep8")->isVisible());  // OrgFav still shows
    list->item(16)->setCheckState(Qt::Unchecked);
    QVERIFY(!ToolbarItem(main, "Sep8")->isVisible());
    QVERIFY(ToolbarItem(main, "Sep7")->isVisible());
  }

  // The help's pages come from the program's resources, and its window fits the screen.
  void helpShowsItsPagesWithinTheScreen() {
    MemorySettingsStore store;
    MainWindow main(store);
    OpenProgramWindow(main, "Contents");
    auto* help = main.findChild<QTextBrowser*>("helpContents");
    QVERIFY(help && help->isVisible());
    const QStringList says{"Build runs from King down to Ace", "Spider Plus", "Ctrl+Z", "My Games"};
    const QStringList pages{"index.html", "games.html", "keys.html", "files.html"};
    for (int i = 0; i < pages.size(); ++i) {
      help->setSource(QUrl(pages[i]));
      QVERIFY2(help->toPlainText().contains(says[i]), qPrintable(pages[i]));
    }
    QVERIFY(main.screen()->availableGeometry().contains(help->frameGeometry()));
  }

  // The window comes up within the screen, and a question at start opens over its middle.
  void aQuestionIsCentredOnTheMainWindow() {
    MemorySettingsStore store;
    MainWindow main(store);
    main.show();
    QVERIFY(QTest::qWaitForWindowExposed(&main));
    QRect box;
    QTimer::singleShot(0, [&] {
      if (QWidget* modal = QApplication::activeModalWidget()) {
        box = modal->frameGeometry();
        modal->close();
      }
    });
    main.app().MsgBox("Click 'Yes' to start this game or 'No' to start the previous game.", MsgStyle::YesNoQuestion);
    QVERIFY(!box.isEmpty());
    QVERIFY(main.screen()->availableGeometry().contains(main.frameGeometry()));
    QVERIFY((box.center() - main.frameGeometry().center()).manhattanLength() < 20);
  }

  void routerOpensTheWindowOfEachKey() {
    MemorySettingsStore store;
    MainWindow main(store);
    const QStringList keys{"Toolbar", "Animation", "Deck", "Options", "AutoSave", "OrgPend", "Hot", "History"};
    const QStringList titles{"Customize Toolbar", "Animation", "Customize Card Deck", "Options", "Auto Save",
                             "Pending List Manager", "Hot Games", "Game History"};
    for (int i = 0; i < keys.size(); ++i) {
      QCOMPARE(TitleOfModalOpenedBy([&] { OpenProgramWindow(main, keys[i]); }), titles[i]);
    }
    // Open and Save go to the file chooser; Save only with a game on the table.
    FileRequest asked;
    MainFileChooser() = [&](QWidget*, const FileRequest& r) { return asked = r, QString(); };
    OpenProgramWindow(main, "Save");
    QVERIFY(asked.caption.isEmpty());
    OpenProgramWindow(main, "Open");
    QVERIFY(!asked.save && !asked.caption.isEmpty());
    main.app().cGamePlay.PlayNumber("Spider", GameNo::Number(2));
    OpenProgramWindow(main, "Save");
    QCOMPARE(asked.fileName, QString("Spider-2.vq0"));
    MainFileChooser() = AskWithFileDialog;
  }
};

QTEST_MAIN(DialogTest)
#include "test_dialogs.moc"
