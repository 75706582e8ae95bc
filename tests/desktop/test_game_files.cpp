// Open and Save, and the windows over the game folders (Auto Save, the pending list, Hot
// Games) with the Options' Clear Now buttons, driven as a user would and read back through
// the folders and the settings.
#include <QApplication>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>
#include <filesystem>

#include "AutoSaveDialog.h"
#include "FileCommands.h"
#include "HotGamesDialog.h"
#include "TemporaryUserHome.h"
#include "OptionsDialog.h"
#include "PendingDialog.h"
#include "TestProgram.h"
#include "lists/Pending.h"
#include "lists/Recent.h"
#include "session/Commands.h"
#include "settings/Settings.h"

#include "FindChild.h"

using namespace qv;
namespace fs = std::filesystem;

namespace {
void Click(QTreeWidget* tree, int row) {
  QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualItemRect(tree->topLevelItem(row)).center());
}
QStringList Column(QTreeWidget* tree, int c) {
  QStringList texts;
  for (int r = 0; r < tree->topLevelItemCount(); ++r) texts << tree->topLevelItem(r)->text(c);
  return texts;
}
// A chooser that answers with a path and keeps what it was asked.
FileChooser Choosing(const QString& path, FileRequest* asked) {
  return [path, asked](QWidget*, const FileRequest& r) {
    *asked = r;
    return path;
  };
}
QString Q(const std::string& s) { return QString::fromStdString(s); }
bool InitDirStored(const test::TestProgram& t) {
  return t.settings.ReadText(setting::SaveInitDir.section, setting::SaveInitDir.key).has_value();
}
}  // namespace

class GameFilesTest : public QObject {
  Q_OBJECT
  TemporaryUserHome home_;

 private slots:

  void openPlaysAGoodFileAndRefusesABadOne() {
    test::TestProgram t;
    fs::create_directories(t.home.Path() / "games");
    const std::string good = t.home.File("games/kept.vq0"), bad = t.home.File("bad.vq0");
    test::WriteFile(bad, "Spider\r\n 12 \r\nnot a saved game\r\n");
    t.Deal("Spider", 7);
    QVERIFY(test::MakeAnyLegalMove(t));
    QVERIFY(t->cEngine.SavetoFile(good));
    const auto kept = test::Snapshot(*t);
    t.Deal("Spider", 9);
    QVERIFY(test::MakeAnyLegalMove(t));
    const auto table = test::Snapshot(*t);

    FileRequest asked;
    OpenGame(*t, nullptr, Choosing("", &asked));  // Cancel
    OpenGame(*t, nullptr, Choosing(Q(t.home.File("games/none.vq0")), &asked));
    OpenGame(*t, nullptr, Choosing(Q(bad), &asked));
    QVERIFY(!asked.save && asked.fileName.isEmpty());
    QCOMPARE(asked.folder, Q(t->cData.SavedFolder()));
    QCOMPARE(asked.filters, QStringList({"Quorvale 6.0 InComplete Game (*.vq0)", "Quorvale 6.0 Finished Game (*.vq1)"}));
    QCOMPARE(t.dialogs.shown.size(), size_t(1));  // the bad file's one message
    QCOMPARE(t->cGamePlay.Game_Status(), 1);
    QCOMPARE(test::Snapshot(*t), table);
    QCOMPARE(GetRecentCount(*t, kRecentOpened), 0);
    QVERIFY(fs::exists(bad));

    OpenGame(*t, nullptr, Choosing(Q(good), &asked));
    QCOMPARE(t->cGamePlay.GameNo().Text(), std::string("7"));
    QCOMPARE(test::Snapshot(*t), kept);
    QCOMPARE(RecentMenuEntries(*t, kRecentOpened), std::vector<std::string>{good});
    OpenGame(*t, nullptr, Choosing("", &asked));
    QCOMPARE(asked.folder, Q(t.home.File("games")));
  }

  void saveWritesWhereTheUserSaysAndOnlyThen() {
    test::TestProgram t;
    t.Deal("Spider", 42);
    QVERIFY(test::MakeAnyLegalMove(t));
    fs::create_directories(t.home.Path() / "saves/taken.vq0");

    FileRequest asked;
    SaveGame(*t, nullptr, Choosing("", &asked));  // Cancel
    QVERIFY(asked.save);
    QCOMPARE(asked.fileName, QString("Spider-42.vq0"));
    QCOMPARE(asked.folder, Q(SaveInitDir(*t)));
    QCOMPARE(asked.defaultSuffix, QString("vq0"));
    QCOMPARE(asked.filters, QStringList{" InComplete Game (*.vq0)"});
    QCOMPARE(fs::directory_iterator(t.home.Path() / "saves")->path().filename().string(), std::string("taken.vq0"));
    // A write that fails (a folder in the way, a folder that is not there) says why, once.
    SaveGame(*t, nullptr, Choosing(Q(t.home.File("saves/taken.vq0")), &asked));
    SaveGame(*t, nullptr, Choosing(Q(t.home.File("gone/x.vq0")), &asked));
    QCOMPARE(t.dialogs.shown.size(), size_t(2));
    QVERIFY(Q(t.dialogs.shown[1]).startsWith("The game could not be saved"));
    QVERIFY(!InitDirStored(t));
    QCOMPARE(GetRecentCount(*t, kRecentSaved), 0);

    const std::string path = t.home.File("saves/mine.vq0");
    SaveGame(*t, nullptr, Choosing(Q(path), &asked));
    const auto h = ReadGameHeader(path);
    QVERIFY(h && h->GameNo.Text() == "42" && h->Moves == 1);
    QCOMPARE(SaveInitDir(*t), t.home.File("saves"));
    QCOMPARE(RecentMenuEntries(*t, kRecentSaved), std::vector<std::string>{path});
    QCOMPARE(t->cGamePlay.Game_Status(), 1);  // saving leaves the game on the table
  }

  void qtFileDialogAsksWhatItIsTold() {
    QTemporaryDir folder;
    FileRequest request{true, "Save Game", folder.path(), "Spider-3.vq0", {"Quorvale 6.0 InComplete Game (*.vq0)"}, "vq0"};
    // Read inside, checked after it closes: a failed check inside would leave it open.
    QStringList shown;
    QTimer::singleShot(0, [&] {
      auto* d = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      if (!d) return;
      shown << d->nameFilters().join(";") << d->defaultSuffix() << d->directory().absolutePath()
            << d->findChild<QLineEdit*>("fileNameEdit")->text()
            << QString::number(d->acceptMode() == QFileDialog::AcceptSave && !d->testOption(QFileDialog::DontConfirmOverwrite));
      d->reject();
    });
    QCOMPARE(AskWithFileDialog(nullptr, request), QString());  // Cancel
    QCOMPARE(shown, QStringList({request.filters[0], "vq0", QDir(folder.path()).absolutePath(), "Spider-3.vq0", "1"}));

    QTimer::singleShot(0, [] {
      if (auto* d = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())) {
        d->findChild<QLineEdit*>("fileNameEdit")->setText("mine");
        static_cast<QDialog*>(d)->accept();  // as the Save button does
      }
    });
    QCOMPARE(AskWithFileDialog(nullptr, request), folder.filePath("mine.vq0"));
  }

  void autoSaveListsPlaysAndDeletesCopies() {
    test::TestProgram t;
    for (uint64_t n : {971452233114455ull, 6ull}) {
      t.Deal(n == 6 ? "Spider" : "Spider Single Suit", n);
      t->cGamePlay.Time(125);
      ExecCommand(*t, "Close");
    }
    t.Deal("Spider Two Suit", 8);
    QVERIFY(AutoSaveGame(*t, true));
    t->cRegistry.Set(setting::AutoSaveTab, 1);

    AutoSaveDialog dlg(*t);
    dlg.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dlg));
    auto* tabs = Get<QTabWidget>(dlg, "SSTab1");
    auto *inc = Get<QTreeWidget>(dlg, "lvInc"), *fin = Get<QTreeWidget>(dlg, "lvFin");
    auto *play = Get<QPushButton>(dlg, "cmdPlay"), *del = Get<QPushButton>(dlg, "cmdDelete");
    auto *empInc = Get<QPushButton>(dlg, "cmdEmpInc"), *empFin = Get<QPushButton>(dlg, "cmdEmpFin");
    QCOMPARE(tabs->currentIndex(), 1);
    const auto incFiles = GetAutoSaveFiles(*t, false);
    QCOMPARE(incFiles.size(), size_t(2));
    const auto h = ReadGameHeader(incFiles[0]);
    QCOMPARE(inc->topLevelItem(0)->text(0), Q(fs::path(incFiles[0]).stem().string()));
    QCOMPARE(Column(inc, 1)[0], Q(h->FileDate));
    QCOMPARE(Column(inc, 2)[0], QString("0:02:05"));
    QCOMPARE(Column(inc, 3)[0], QString::number(h->Percentage) + "%");
    QCOMPARE(Column(fin, 0), QStringList{"Spider Two Suit-8"});
    QVERIFY(empInc->isEnabled() && empFin->isEnabled());

    // A row enables Play and Delete; another tab takes them away again.
    QVERIFY(!play->isEnabled() && !del->isEnabled());
    Click(fin, 0);
    QVERIFY(play->isEnabled() && del->isEnabled());
    tabs->setCurrentIndex(0);
    QVERIFY(!play->isEnabled() && !del->isEnabled());
    // The columns fit their texts: a long name is not cut.
    for (int c = 0; c < inc->columnCount(); ++c)
      QVERIFY(inc->header()->sectionSize(c) >= static_cast<QAbstractItemView*>(inc)->sizeHintForColumn(c));

    Click(inc, 0);
    t.dialogs.answers = {Answer::Yes};
    del->click();
    QCOMPARE(t.dialogs.shown.back(), "Are you sure you want to delete " + h->GameName + " - " + h->GameNo.Text() + " ?");
    QVERIFY(!fs::exists(incFiles[0]) && fs::exists(incFiles[1]));
    QCOMPARE(inc->topLevelItemCount(), 1);

    t.dialogs.answers = {Answer::Yes};
    empInc->click();
    QCOMPARE(inc->topLevelItemCount(), 0);
    QVERIFY(!empInc->isEnabled() && empFin->isEnabled());
    Get<QPushButton>(dlg, "cmdClose")->click();
    QCOMPARE(int(t->cRegistry.Get(setting::AutoSaveTab)), 0);

    t->cRegistry.Set(setting::AutoSaveTab, 1);
    AutoSaveDialog again(*t);
    again.show();
    QVERIFY(QTest::qWaitForWindowExposed(&again));
    Click(Get<QTreeWidget>(again, "lvFin"), 0);
    Get<QPushButton>(again, "cmdPlay")->click();
    QVERIFY(!again.isVisible());
    QCOMPARE(t->cGamePlay.GameName(), std::string("Spider Two Suit"));
    QCOMPARE(t->cGamePlay.Game_LoadingType(), int(cGamePlay::kFinishedFile));
    QCOMPARE(int(t->cRegistry.Get(setting::AutoSaveTab)), 1);
    QCOMPARE(GetRecentCount(*t, kRecentOpened), 1);
  }

  void pendingListPlaysAndDeletes() {
    test::TestProgram t;
    for (uint64_t n : {11, 12, 13}) {
      t.Deal("Spider", n);
      t->cGamePlay.Time(61);
      ExecCommand(*t, "AddPend");
    }
    const auto files = GetPendingFiles(*t);
    QCOMPARE(files.size(), size_t(3));
    PendingDialog dlg(*t);
    dlg.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dlg));
    auto* list = Get<QTreeWidget>(dlg, "lvPend");
    const auto h = ReadGameHeader(files[0]);
    QCOMPARE(Column(list, 0)[0], Q(fs::path(files[0]).stem().string()) + " (" + QString::number(h->Percentage) + "%)");
    QCOMPARE(Column(list, 1), QStringList({"0:01:01", "0:01:01", "0:01:01"}));
    QCOMPARE(Column(list, 2)[0], QString::number(h->Moves));

    const int refreshes = t.window.menuRefreshes;
    Click(list, 1);
    Get<QPushButton>(dlg, "cmdDelete")->click();
    QVERIFY(!fs::exists(files[1]) && fs::exists(files[0]) && fs::exists(files[2]));
    QCOMPARE(list->topLevelItemCount(), 2);
    QVERIFY(t.window.menuRefreshes > refreshes);
    QVERIFY(t.dialogs.shown.empty());  // no question

    Click(list, 1);
    Get<QPushButton>(dlg, "cmdPlay")->click();
    QVERIFY(!dlg.isVisible());
    QCOMPARE(t->cGamePlay.PendFile(), files[2]);
    QVERIFY(fs::exists(files[2]));  // kept current while its game is on the table, and listed nowhere

    // The last row deleted leaves the window open and empty.
    PendingDialog last(*t);
    last.show();
    auto *play = Get<QPushButton>(last, "cmdPlay"), *del = Get<QPushButton>(last, "cmdDelete");
    QVERIFY(play->isEnabled() && del->isEnabled());
    del->click();
    QVERIFY(last.isVisible());
    QCOMPARE(Get<QTreeWidget>(last, "lvPend")->topLevelItemCount(), 0);
    QVERIFY(!play->isEnabled() && !del->isEnabled());
    QVERIFY(GetPendingFiles(*t).empty());
  }

  void hotGamesMoveAndStoreAtOnce() {
    test::TestProgram t;
    t->cRegistry.RegSaveInt(section::HotGames, "Scarab", 1);
    HotGamesDialog dlg(*t);
    dlg.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dlg));
    auto *left = Get<QTreeWidget>(dlg, "lvLeft"), *right = Get<QTreeWidget>(dlg, "lvRight");
    auto *add = Get<QPushButton>(dlg, "cmdAdd"), *remove = Get<QPushButton>(dlg, "cmdRemove");
    QCOMPARE(Column(right, 0), QStringList{"Scarab"});
    QCOMPARE(left->headerItem()->text(0), QString());
    QCOMPARE(right->headerItem()->text(0), QString("Hot Games List"));
    QCOMPARE(left->topLevelItemCount(), t->cData.TotalGames() - 1);

    Click(left, 1);  // Spider Single Suit
    add->click();
    QCOMPARE(int(t->cRegistry.RegGetInt(section::HotGames, "Spider Single Suit", 0)), 1);
    QCOMPARE(Column(right, 0), QStringList({"Spider Single Suit", "Scarab"}));  // in game order
    remove->click();
    remove->click();
    QVERIFY(!remove->isEnabled() && add->isEnabled());  // nothing left to remove
    QCOMPARE(int(t->cRegistry.RegGetInt(section::HotGames, "Scarab", 9)), 0);
  }

  void clearNowButtonsFollowTheirLists() {
    test::TestProgram t;
    AddRecent(*t, kRecentSaved, t.home.File("a.vq0"));
    AddRecent(*t, kRecentPlayed, "Spider - 4");
    OptionsDialog dlg(*t);
    auto *save = Get<QPushButton>(dlg, "cmdrSave"), *open = Get<QPushButton>(dlg, "cmdrOpen"),
         *played = Get<QPushButton>(dlg, "cmdrPlay");
    QVERIFY(save->isEnabled() && !open->isEnabled() && played->isEnabled());
    save->click();  // No
    QCOMPARE(t.dialogs.shown, std::vector<std::string>{"Are you sure you want to clear this recent list ?"});
    QCOMPARE(GetRecentCount(*t, kRecentSaved), 1);
    t.dialogs.answers = {Answer::Yes};
    save->click();
    QCOMPARE(t.dialogs.shown.back(), std::string("Successfully Cleared"));
    QCOMPARE(GetRecentCount(*t, kRecentSaved), 0);
    QCOMPARE(GetRecentCount(*t, kRecentPlayed), 1);
    QVERIFY(!save->isEnabled() && played->isEnabled());
  }

  // Each recently-played entry listed plays; one that could not is not listed.
  void everyRecentlyPlayedEntryPlays() {
    test::TestProgram t;
    t.Deal("Spider", 5);
    const std::string file = t.home.File("negative.vq0");
    QVERIFY(t->cEngine.SavetoFile(file));
    std::string text = test::ReadFile(file);
    text.replace(text.find("\r\n 5 \r\n"), 7, "\r\n-5 \r\n");  // a number field, as another program may write
    test::WriteFile(file, text);
    QVERIFY(t->cGamePlay.PlayFile(file, true));
    QCOMPARE(t->cGamePlay.GameNo().Text(), std::string("-5"));
    t->cFunc.AddtoMRU(kRecentPlayed, "Spider - -5");  // kept by an earlier version
    t->cFunc.AddtoMRU(kRecentPlayed, "Spider - 12");
    const auto entries = RecentMenuEntries(*t, kRecentPlayed);
    QCOMPARE(entries, (std::vector<std::string>{"Spider - 12", "Spider - 5"}));
    for (const std::string& entry : entries) QVERIFY(PlayRecent(*t, RecentCode(kRecentPlayed), entry));
  }
};

QTEST_MAIN(GameFilesTest)
#include "test_game_files.moc"
