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
#include <QTemporaryDir>
#include <QScreen>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>
#include <QToolBar>
#include <QTreeWidget>

#include "AnimationDialog.h"
#include "CardDeckDialog.h"
#include "MainWindow.h"
#include "ModalProbe.h"
#include "TemporaryUserHome.h"
#include "OptionsDialog.h"
#include "TestProgram.h"
#include "ToolbarDialog.h"
#include "Windows.h"
#include "session/CommandTable.h"
#include "session/Commands.h"

using namespace qv;

namespace {
template <typename T>
T* Get(QWidget& parent, const char* name) {
  T* w = parent.findChild<T*>(name);
  if (!w) qFatal("no %s", name);
  return w;
}
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
    QVERIFY(Get<QCheckBox>(dlg, "chkTime")->isChecked());
    QVERIFY(!Stored(t, setting::ShowTime));  // loading the checks writes nothing
    QVERIFY(!Stored(t, setting::RangeIndex));

    Get<QCheckBox>(dlg, "chkTime")->click();
    QCOMPARE(t->cRegistry.Get(setting::ShowTime), 0);
    Get<QCheckBox>(dlg, "chkScore")->click();
    QCOMPARE(t->cRegistry.Get(setting::ShowScore), 1);
    Get<QCheckBox>(dlg, "chkGameSave")->click();
    QCOMPARE(t->cRegistry.Get(setting::GameSave), 0);
    Get<QCheckBox>(dlg, "chkFin")->click();
    QCOMPARE(t->cRegistry.Get(setting::EnableFin), 0);
    QCOMPARE(t->cRegistry.Get(setting::EnableInc), 1);

    auto* range = Get<QComboBox>(dlg, "imcRange");
    QCOMPARE(range->count(), 15);
    QCOMPARE(range->currentText(), QString("999,999"));
    QCOMPARE(range->itemText(0), QString("9"));
    QCOMPARE(range->itemText(3), QString("9,999"));
    QCOMPARE(range->itemText(14), QString("999,999,999,999,999"));
    range->setCurrentIndex(2);
    QCOMPARE(t->cRegistry.Get(setting::RangeIndex), 3);

    for (const char* name : {"cmdrSave", "cmdrOpen", "cmdrPlay"}) QVERIFY(!Get<QPushButton>(dlg, name)->isEnabled());
    Get<QPushButton>(dlg, "cmdClose")->click();
    QCOMPARE(dlg.result(), int(QDialog::Accepted));
  }

  void optionsIgnoresRangeOutOfReach() {
    for (int stored : {0, 16, -3}) {
      test::TestProgram t;
      t->cRegistry.Set(setting::RangeIndex, stored);
      OptionsDialog dlg(*t);
      QCOMPARE(Get<QComboBox>(dlg, "imcRange")->currentIndex(), -1);
      QCOMPARE(int(t->cRegistry.Get(setting::RangeIndex)), stored);  // not overwritten by opening
    }
  }

  void animationShowsFiftyMinusSpeed() {
    test::TestProgram t;
    AnimationDialog dlg(*t);
    const char* captions[] = {"Card Moving Speed : 45", "Undo/Redo Speed : 45", "Undoall/Redoall Speed : 48",
                              "Replay Speed : 43"};
    for (int i = 0; i < 4; ++i) {
      const QByteArray n = QByteArray::number(i + 1);
      QCOMPARE(Get<QGroupBox>(dlg, "Frame" + n)->title(), QString(captions[i]));
      QCOMPARE(Get<QSlider>(dlg, "Slider" + n)->maximum(), 50);
    }
    Get<QSlider>(dlg, "Slider2")->setValue(30);
    QCOMPARE(Get<QGroupBox>(dlg, "Frame2")->title(), QString("Undo/Redo Speed : 30"));
    Get<QSlider>(dlg, "Slider1")->setValue(0);
    Get<QSlider>(dlg, "Slider4")->setValue(50);
    Get<QPushButton>(dlg, "cmdOK")->click();
    QCOMPARE(t->cRegistry.Get(setting::CardSpeed), 50);
    QCOMPARE(t->cRegistry.Get(setting::UndoSpeed), 20);
    QCOMPARE(t->cRegistry.Get(setting::UndoallSpeed), 2);
    QCOMPARE(t->cRegistry.Get(setting::ReplaySpeed), 0);
    QVERIFY(!dlg.isVisible());
  }

  void animationReadsStoredSpeedsAndCancelKeepsThem() {
    test::TestProgram t;
    t->cRegistry.Set(setting::CardSpeed, 0);
    t->cRegistry.Set(setting::UndoSpeed, 80);  // beyond the slowest: shown as the slowest
    AnimationDialog dlg(*t);
    QCOMPARE(Get<QSlider>(dlg, "Slider1")->value(), 50);
    QCOMPARE(Get<QSlider>(dlg, "Slider2")->value(), 0);
    QCOMPARE(Get<QGroupBox>(dlg, "Frame1")->title(), QString("Card Moving Speed : 50"));
    Get<QSlider>(dlg, "Slider3")->setValue(10);
    Get<QPushButton>(dlg, "cmdCancel")->click();
    QCOMPARE(dlg.result(), int(QDialog::Rejected));
    QCOMPARE(t->cRegistry.Get(setting::UndoSpeed), 80);
    QVERIFY(!Stored(t, setting::UndoallSpeed));
  }

  void deckTreeByGroups() {
    test::TestProgram t;
    t->cRegistry.Set(setting::DeckIndex, 6);
    CardDeckDialog dlg(*t);
    auto* tree = Get<QTreeWidget>(dlg, "tvDeck");
    QCOMPARE(tree->topLevelItemCount(), 1);
    QTreeWidgetItem* root = tree->topLevelItem(0);
    QCOMPARE(root->text(0), QString("Card Decks"));
    QCOMPARE(root->data(0, CardDeckDialog::kKeyRole).toString(), QString("Main0"));
    QVERIFY(root->isExpanded());

    const std::vector<std::string> groups = t->cImages.DeckGroups();
    QCOMPARE(root->childCount(), 3);
    QList<int> tags;
    for (int g = 1; g <= root->childCount(); ++g) {
      QTreeWidgetItem* group = root->child(g - 1);
      const QString name = QString::fromStdString(groups[g]);
      QCOMPARE(group->text(0), name);
      QVERIFY(!group->data(0, CardDeckDialog::kTagRole).isValid());
      QVERIFY(group->childCount() > 0);
      for (int n = 1; n <= group->childCount(); ++n) {
        QTreeWidgetItem* deck = group->child(n - 1);
        QCOMPARE(deck->text(0), name + " " + QString::number(n));
        const int tag = deck->data(0, CardDeckDialog::kTagRole).toInt();
        QCOMPARE(t->cImages.DeckGroup(tag), g);
        tags << tag;
      }
    }
    std::sort(tags.begin(), tags.end());
    QCOMPARE(tags.size(), t->cImages.DeckCount());
    for (int i = 0; i < tags.size(); ++i) QCOMPARE(tags[i], i + 1);
    QCOMPARE(tree->currentItem()->data(0, CardDeckDialog::kTagRole).toInt(), 6);
    QVERIFY(tree->currentItem()->isSelected());

    // A stored deck the library does not have opens on the default deck.
    t->cRegistry.Set(setting::DeckIndex, 99);
    CardDeckDialog mended(*t);
    QCOMPARE(Get<QTreeWidget>(mended, "tvDeck")->currentItem()->data(0, CardDeckDialog::kTagRole).toInt(), 7);
  }

  void deckClicksAndOk() {
    test::TestProgram t;
    t->cGamePlay.PlayNumber("Spider", GameNo::Number(1));
    CardDeckDialog dlg(*t);
    dlg.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dlg));
    auto* tree = Get<QTreeWidget>(dlg, "tvDeck");
    auto* preview = Get<QLabel>(dlg, "PicDeck");
    QTreeWidgetItem* root = tree->topLevelItem(0);
    const QImage before = preview->pixmap().toImage();

    Click(tree, root->child(0));
    QCOMPARE(dlg.CurrentDeck(), 7);
    QCOMPARE(preview->pixmap().toImage(), before);

    root->child(2)->setExpanded(true);
    QTreeWidgetItem* deck = root->child(2)->child(1);
    const int chosen = deck->data(0, CardDeckDialog::kTagRole).toInt();
    QVERIFY(chosen != 7);
    Click(tree, deck);
    QCOMPARE(dlg.CurrentDeck(), chosen);
    QVERIFY(preview->pixmap().toImage() != before);

    Get<QPushButton>(dlg, "cmdOK")->click();
    QCOMPARE(int(t->cRegistry.Get(setting::DeckIndex)), chosen);
    QVERIFY(!dlg.isVisible());
    int down = 0;
    for (int i = 0; i < t->cPlay.table().TotalCards(); ++i) {
      const Picture p = t.sprites.Get(Sprites::PicCD, i).picture;
      if (t->cPlay.table().Card(i).FaceMode) {
        QCOMPARE(int(p.kind), int(Picture::Face));
      } else {
        QCOMPARE(p, t->cImages.CardBack(chosen));
        ++down;
      }
    }
    QVERIFY(down > 0);
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
    for (int id = 1; id <= kToolbarButtons; ++id) {
      QListWidgetItem* row = list->item(id - 1);
      QCOMPARE(row->text(), QString(ToolbarButton(id).caption));
      QCOMPARE(row->data(Qt::UserRole).toString(), QString(ToolbarButton(id).key));
      QCOMPARE(row->checkState() == Qt::Checked, ButtonShown(app.cRegistry, id));
      QVERIFY(!row->icon().isNull());
    }
    QVERIFY(list->item(5)->checkState() == Qt::Checked);  // UndoAll, as stored

    Get<QPushButton>(dlg, "cmdDefault")->click();
    for (int id = 1; id <= kToolbarButtons; ++id) {
      const ToolbarButtonDef& b = ToolbarButton(id);
      QCOMPARE(app.cRegistry.RegGetInt(section::Toolbar, b.key, -1), int16_t(b.fallback));
      QCOMPARE(list->item(id - 1)->checkState() == Qt::Checked, b.fallback == 1);
    }
    QVERIFY(!ToolbarItem(main, "UndoAll")->isVisible());
    QVERIFY(!ToolbarItem(main, "RedoAll")->isVisible());
    QVERIFY(ToolbarItem(main, "Undo")->isVisible());
    QVERIFY(ToolbarItem(main, "Redo")->isVisible());

    Get<QPushButton>(dlg, "cmdSelectAll")->click();
    for (int id = 1; id <= kToolbarButtons; ++id) QVERIFY(ButtonShown(app.cRegistry, id));
    QVERIFY(ToolbarItem(main, "RedoAll")->isVisible());

    auto rowOf = [list](const QString& key) {
      for (int row = 0; row < list->count(); ++row)
        if (list->item(row)->data(Qt::UserRole).toString() == key) return list->item(row);
      qFatal("no row %s", qPrintable(key));
    };
    rowOf("AddFav")->setCheckState(Qt::Unchecked);
    QCOMPARE(app.cRegistry.RegGetInt(section::Toolbar, "AddFav", -1), int16_t(0));
    QVERIFY(!ToolbarItem(main, "AddFav")->isVisible());
    QVERIFY(ToolbarItem(main, "Sep8")->isVisible());  // OrgFav still shows
    rowOf("OrgFav")->setCheckState(Qt::Unchecked);
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

  void routerOpensEachDialogModally() {
    MemorySettingsStore store;
    MainWindow main(store);
    const QStringList keys{"Toolbar", "Animation", "Deck", "Options"};
    const QStringList titles{"Customize Toolbar", "Animation", "Customize Card Deck", "Options"};
    for (int i = 0; i < keys.size(); ++i) {
      QCOMPARE(TitleOfModalOpenedBy([&] { OpenProgramWindow(main, keys[i]); }), titles[i]);
    }
  }
};

QTEST_MAIN(DialogTest)
#include "test_dialogs.moc"
