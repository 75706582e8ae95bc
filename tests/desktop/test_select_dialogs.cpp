// Finding and starting a game: the selection, the number dialog and the favourites
// dialogs, driven as a user would.
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>
#include <filesystem>

#include "AddFavDialog.h"
#include "ChooseDialog.h"
#include "MainWindow.h"
#include "OrgFavDialog.h"
#include "SelectDialog.h"
#include "TemporaryUserHome.h"
#include "TestProgram.h"
#include "Typing.h"
#include "lists/AutoSave.h"
#include "lists/Favorites.h"
#include "scores/Players.h"
#include "settings/MemorySettingsStore.h"

#include "FindChild.h"

using namespace qv;

namespace {
QTreeWidgetItem* Node(QTreeWidget* tree, const QString& text) {
  const auto found = tree->findItems(text, Qt::MatchExactly | Qt::MatchRecursive);
  if (found.isEmpty()) qFatal("no node %s", qPrintable(text));
  return found.first();
}
void ClickNode(SelectDialog& dlg, const QString& text) {
  auto* tree = Get<QTreeWidget>(dlg, "tvRight");
  QTreeWidgetItem* node = Node(tree, text);
  tree->setCurrentItem(node);
  dlg.ChooseNode(node);
}
bool Blank(SelectDialog& dlg) {
  return Get<QLabel>(dlg, "PicBlank")->isVisibleTo(&dlg) && !Get<QLabel>(dlg, "lbPlay")->isVisibleTo(&dlg);
}
}  // namespace

class SelectDialogTest : public QObject {
  Q_OBJECT
  TemporaryUserHome home_;

 private slots:
  void firstOpeningGoneChoiceAndEmptyCategory() {
    test::TestProgram t;
    SetPlayer(t->cRegistry, 1, "Ann", true);
    SetPlayer(t->cRegistry, 2, "Bob", false);
    t.Deal("Scarab", 5);
    const std::string file = t->cData.SavedFolder() + "/kept.vq0";
    QVERIFY(t->cEngine.SavetoFile(file));
    t->cGamePlay.ClearArea();
    {
      SelectDialog dlg(*t);
      QCOMPARE(Get<QListWidget>(dlg, "lvMain")->count(), 12);
      QCOMPARE(dlg.SelKey(), std::string("All"));
      QVERIFY(Blank(dlg));  // the root is chosen
      QCOMPARE(Get<QComboBox>(dlg, "imcPlayer")->currentText(), QString("Ann"));
      dlg.ChooseCategory("Save");
      ClickNode(dlg, "Scarab - 5 (0%)");
      QVERIFY(!Blank(dlg));
      QCOMPARE(Get<QLabel>(dlg, "lbGame")->text(), QString("Scarab"));
      QCOMPARE(Get<QListWidget>(dlg, "lvDet")->item(0)->text(), QString("Game Name :Scarab"));
      QCOMPARE(Get<QListWidget>(dlg, "lvSub")->count(), 6);
      QVERIFY(!Get<QLabel>(dlg, "PicPreview")->pixmap().isNull());
      dlg.ChooseCategory("Hot");  // empty: the blank panel, nothing of "Save" left chosen
      QVERIFY(Blank(dlg));
      QCOMPARE(dlg.SelItem(), std::string());
      dlg.reject();
    }
    QCOMPARE(t->cRegistry.Get(setting::MainKey), std::string("All"));  // Cancel keeps it
    {
      SelectDialog again(*t);
      again.ChooseCategory("Save");
      QCOMPARE(again.SelItem(), file);  // the last choice comes back, and paints again
      QVERIFY(!Get<QLabel>(again, "PicPreview")->pixmap().isNull());
    }
    std::filesystem::remove(file);
    SelectDialog gone(*t);
    gone.ChooseCategory("Save");
    QVERIFY(Blank(gone));
  }

  void playStartsEachKindForThePlayerInTheBox() {
    test::TestProgram t;
    SetPlayer(t->cRegistry, 1, "Ann", true);
    SetPlayer(t->cRegistry, 2, "Bob", false);
    t.Deal("Plaza", 12);
    QVERIFY(AddFavFile(*t));
    const std::string file = t->cData.SavedFolder() + "/p.vq0";
    QVERIFY(t->cEngine.SavetoFile(file));
    QVERIFY(AutoSaveGame(*t, true, true));  // a finished copy
    struct Case {
      const char* key;
      QString node;
      int loadingType;
    };
    for (const Case& c : {Case{"Std", "Coral", 0}, Case{"Fav", "Plaza - 12", 0}, Case{"Save", "Plaza - 12 (0%)", 1},
                          Case{"Fin", "Plaza-12", 2}, Case{"rPlay", "Plaza - 12", 0}}) {
      SelectDialog dlg(*t);
      dlg.ChooseCategory(c.key);
      ClickNode(dlg, c.node);
      Get<QComboBox>(dlg, "imcPlayer")->setCurrentText("Bob");
      dlg.Play();
      QCOMPARE(t->cGamePlay.Game_LoadingType(), c.loadingType);
      QCOMPARE(t->cRegistry.Get(setting::MainKey), std::string(c.key));
      QCOMPARE(GetCurPlayer(t->cRegistry), std::string("Bob"));
      SetCurPlayer(t->cRegistry, "Ann");
    }
    QCOMPARE(t->cGamePlay.GameName(), std::string("Plaza"));
  }

  void numberRefusalsAndAnAcceptedNumberAsTyped() {
    test::TestProgram t;
    ChooseDialog dlg(*t);
    auto* text = Get<QLineEdit>(dlg, "Text1");
    QVERIFY(text->hasSelectedText() && text->selectedText() == text->text());
    QCOMPARE(Get<QLabel>(dlg, "lblRange")->text(), QString("0 and 999,999"));
    for (const char* refused : {"999999", "0", ""}) {
      text->setText(refused);
      Get<QPushButton>(dlg, "cmdSelect")->click();
      QCOMPARE(text->text(), QString("0"));
    }
    QCOMPARE(t.dialogs.shown, std::vector<std::string>(3, "Please enter a number between 0 and 999,999"));
    Get<QComboBox>(dlg, "imcGames")->setCurrentText("Coral");
    text->setText(" 00999998");
    Get<QPushButton>(dlg, "cmdSelect")->click();
    QCOMPARE(t->cGamePlay.GameName(), std::string("Coral"));
    QCOMPARE(t->cGamePlay.GameNo(), GameNo::Typed("00999998"));
    QVERIFY(t->cGamePlay.Title().find("[Coral - 00999998]") != std::string::npos);
  }

  // The menu is read back from the folders, so it shows what the dialogs did on disk.
  void favouritesDialogsKeepTheTreeAndTheMenuInStep() {
    MemorySettingsStore store;
    MainWindow main(store);
    main.Load();
    Program& app = main.app();
    QVERIFY(!main.Action("OrgFav")->isEnabled());  // nothing to organise yet
    QVERIFY(app.cGamePlay.PlayNumber("Spider", GameNo::Number(7)));
    {
      test::Typing typing({"Mine"});
      AddFavDialog add(app, &main);
      QCOMPARE(Get<QLineEdit>(add, "txFav")->text(), QString("Spider - 7"));
      Get<QPushButton>(add, "cmdCreate")->click();
      QCOMPARE(Get<QTreeWidget>(add, "tvFav")->currentItem()->text(0), QString("Mine"));
      Get<QPushButton>(add, "cmdOK")->click();
    }
    QMenu* menu = main.menuBar()->findChild<QMenu*>("mFav");
    auto captions = [&] {
      QStringList texts;
      for (QAction* a : menu->actions()) {
        if (a->isSeparator()) continue;
        texts << a->text();
        if (a->menu())
          for (QAction* sub : a->menu()->actions()) texts << "  " + sub->text();
      }
      return texts;
    };
    QCOMPARE(captions(), (QStringList{"&Add to Favorites", "&Organize Favorites", "Mine", "  Spider - 7"}));
    QVERIFY(main.Action("OrgFav")->isEnabled());
    main.UpdateCommands();
    QVERIFY(main.Action("OrgFav")->isEnabled());
    {
      test::Typing typing({"Box", "Spider Seven"});
      OrgFavDialog org(app, &main);
      auto* tree = Get<QTreeWidget>(org, "tvFav");
      QVERIFY(!Get<QPushButton>(org, "cmdRename")->isEnabled());  // the root
      Get<QPushButton>(org, "cmdCreate")->click();
      tree->setCurrentItem(Node(tree, "Spider - 7"));
      QVERIFY(Get<QPushButton>(org, "cmdPlay")->isEnabled());
      QCOMPARE(Get<QGroupBox>(org, "frameGame")->findChildren<QLabel*>().value(0)->text(), QString("Game Name : Spider"));
      Get<QPushButton>(org, "cmdRename")->click();
      tree->setCurrentItem(Node(tree, "Spider Seven"));
      Get<QComboBox>(org, "icFav")->setCurrentText("Box");
      Get<QPushButton>(org, "cmdMove")->click();
      tree->setCurrentItem(Node(tree, "Mine"));
      QCOMPARE(typing.titles, (QStringList{"Create a Folder", "Rename Game"}));
    }
    QCOMPARE(captions(), (QStringList{"&Add to Favorites", "&Organize Favorites", "Box", "  Spider Seven", "Mine"}));
  }
};

QTEST_MAIN(SelectDialogTest)
#include "test_select_dialogs.moc"
