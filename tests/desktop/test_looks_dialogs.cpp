// Customize Background and Sounds driven as a user would: tabs and Apply, the scheme
// buttons and their questions, the custom pictures' list, the sound marks and buttons;
// read back through the settings and files.
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSlider>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QTabWidget>
#include <QTest>
#include <QTreeWidget>
#include <filesystem>

#include "BackgroundDialog.h"
#include "FileCommands.h"
#include "QtBackground.h"
#include "QtSound.h"
#include "SoundsDialog.h"
#include "TestProgram.h"
#include "Typing.h"

#include "FindChild.h"

using namespace qv;

class LooksDialogsTest : public QObject {
  Q_OBJECT

 private slots:
  void tabsTileAndApply() {
    test::TestProgram t;
    BackgroundDialog dlg(*t);
    auto* tabs = Get<QTabWidget>(dlg, "SSTab1");
    auto* apply = Get<QPushButton>(dlg, "cmdApply");
    auto* tile = Get<QCheckBox>(dlg, "chkTile");
    QCOMPARE(tabs->currentIndex(), 1);  // colours, the first kind of a new player
    QVERIFY(!apply->isEnabled());
    const QStringList names{"Textures", "Colors", "Pictures", "Color Schemes", "Custom Images", "Image Folders"};
    for (int tab = 0; tab < 6; ++tab) {
      QCOMPARE(tabs->tabText(tab), names[tab]);
      tabs->setCurrentIndex(tab);
      QCOMPARE(tile->isEnabled(), tab == 2 || tab == 4 || tab == 5);
      if (tab == 1) QVERIFY(!apply->isEnabled());
      if (tab == 0) QVERIFY(apply->isEnabled());
    }
    auto* timer = Get<QComboBox>(dlg, "imcTimer");
    QCOMPARE(timer->count(), 6);
    QCOMPARE(timer->itemText(3), QString("1 Minute"));
    QCOMPARE(timer->currentIndex(), 4);

    // Textures, the third one, every 5 seconds: stored and painted at Apply.
    tabs->setCurrentIndex(0);
    timer->setCurrentIndex(1);
    auto* list = Get<QListWidget>(dlg, "lvColor");
    list->setCurrentRow(2);  // a colour chosen too is kept for its tab
    t->recordedBackground.painted.clear();
    apply->click();
    QVERIFY(!apply->isEnabled());
    QCOMPARE(t->cRegistry.Get(setting::BackIndex), 0);
    QCOMPARE(t->cRegistry.Get(setting::ColorIndex), 3);
    QCOMPARE(t->cRegistry.Get(setting::WPTimerValue), 1);
    QCOMPARE(t->recordedBackground.painted, (std::vector<std::string>{"clear", "texture 1 tiled"}));
  }

  void aBrokenSchemeIsRewrittenOnlyAfterASliderMoved() {
    test::TestProgram t;
    const std::string broken = t->cData.SchemeFolder() + "/Broken";
    test::WriteFile(broken, "1 2 3");
    t->cRegistry.Set(setting::SchemeFile, broken);
    t->cRegistry.Set(setting::BackIndex, 3);
    BackgroundDialog dlg(*t);
    QCOMPARE(Get<QListWidget>(dlg, "lvScheme")->count(), 1);  // not listed
    QCOMPARE(Get<QSlider>(dlg, "Slider4")->value(), 128);     // the default colours
    dlg.Apply();
    QCOMPARE(test::ReadFile(broken), std::string("1 2 3"));
    Get<QSlider>(dlg, "Slider1")->setValue(7);
    dlg.Apply();
    QCOMPARE(test::ReadFile(broken), SchemeText({7, 128, 0, 128, 0, 0}));
  }

  void schemesSaveAsOverwriteAndDelete() {
    test::TestProgram t;
    test::Typing inputs;
    BackgroundDialog dlg(*t);
    auto* slider = Get<QSlider>(dlg, "Slider2");
    slider->setValue(40);
    QCOMPARE(Get<QLabel>(dlg, "lbTopG")->text(), QString("Green (40)"));

    inputs.next = {"Du:sk", "Dusk"};
    dlg.SaveScheme();
    QCOMPARE(inputs.titles, QStringList({"Color Schemes", "Color Schemes"}));
    QCOMPARE(t.dialogs.shown.back(), std::string("Name should not contain these characters : /\\:*?\"<>|"));
    QCOMPARE(t.dialogs.titles.back(), std::string("Color Schemes"));
    const std::string dusk = t->cData.SchemeFolder() + "/Dusk";
    QCOMPARE(test::ReadFile(dusk), SchemeText({0, 40, 0, 128, 0, 0}));
    QCOMPARE(Get<QListWidget>(dlg, "lvScheme")->count(), 2);

    // The name taken: No keeps the file as it was.
    slider->setValue(90);
    inputs.next = {"Dusk"};
    t.dialogs.answers = {Answer::No};
    dlg.SaveScheme();
    QCOMPARE(t.dialogs.shown.back(),
             std::string("A scheme already exists with the name \"Dusk\". Do you want to overwrite ?"));
    QCOMPARE(test::ReadFile(dusk), SchemeText({0, 40, 0, 128, 0, 0}));

    // Delete the current one (Dusk), then the default is refused.
    dlg.DeleteScheme();
    QVERIFY(!std::filesystem::exists(dusk));
    dlg.DeleteScheme();
    QCOMPARE(t.dialogs.shown.back(), std::string("Default Scheme cannot be deleted."));
    QVERIFY(std::filesystem::exists(t->cData.DefaultSchemeFile()));

    // Cancel in the input box ends Save As with nothing written.
    inputs.next = {};
    dlg.SaveScheme();
    QCOMPARE(Get<QListWidget>(dlg, "lvScheme")->count(), 1);
  }

  void customPicturesFullListAndRemove() {
    test::TestProgram t;
    std::vector<std::string> pics;
    for (int i = 0; i < 10; ++i) {
      pics.push_back(t.home.File("p" + std::to_string(i) + ".png"));
      test::WriteFile(pics.back(), "not a picture");
      t->cFunc.AddtoLIST(0, pics.back());
    }
    t->cRegistry.Set(setting::CustImageFile, pics[3]);
    const std::string extra = t.home.File("extra.jpg");
    test::WriteFile(extra, "x");
    MainFileChooser() = [&](QWidget*, const FileRequest&) { return QString::fromStdString(extra); };
    {
      BackgroundDialog dlg(*t);
      auto* list = Get<QListWidget>(dlg, "lvCustImg");
      QCOMPARE(list->count(), 10);
      QCOMPARE(list->currentItem()->text().toStdString(), pics[3]);
      QVERIFY(Get<QLabel>(dlg, "picCustImg")->text().contains("cannot be shown"));
      dlg.AddPicture();
      QVERIFY(t.dialogs.shown.back().find("full") != std::string::npos);
      QCOMPARE(list->count(), 10);
      QVERIFY(!t->cFunc.IsExists(0, extra));

      dlg.RemovePicture();  // stored at once, though the dialog is cancelled
      dlg.reject();
    }
    QCOMPARE(t->cRegistry.Get(setting::CustImageFile), t->cData.DefaultCustImageFile());
    QVERIFY(!t->cFunc.IsExists(0, pics[3]));
  }

  void soundsTreeMarksAndButtons() {
    test::TestProgram t;
    const std::string wave = t.home.File("knock.wav");
    test::WriteFile(wave, "RIFF");
    t->cSound.SetSound("Start", "");  // a default silenced
    MainFileChooser() = [&](QWidget*, const FileRequest& r) {
      return r.filters == QStringList{"Sound Files (*.wav)"} ? QString::fromStdString(wave) : QString();
    };
    SoundsDialog dlg(*t);
    QCOMPARE(t->recordedSound.events, std::vector<std::string>{"Sounds"});
    auto* tree = Get<QTreeWidget>(dlg, "tvSound");
    QTreeWidgetItem* root = tree->topLevelItem(0);
    QCOMPARE(root->text(0), QString("Sound Schemes"));
    QCOMPARE(root->childCount(), 7);
    QStringList labels;
    for (int g = 0; g < root->childCount(); ++g)
      for (int e = 0; e < root->child(g)->childCount(); ++e) labels << root->child(g)->child(e)->text(0);
    QCOMPARE(labels.size(), 30);
    QCOMPARE(labels.first(), QString("Select Dialog"));
    QCOMPARE(labels.last(), QString("About"));
    QTreeWidgetItem* game = root->child(0);
    QTreeWidgetItem* start = game->child(1);
    QTreeWidgetItem* move = game->child(2);
    QCOMPARE(start->icon(0).cacheKey(), SoundsDialog::UnsetMark().cacheKey());
    // Its default file is not in the test's program folder, yet the event has a path: set.
    QCOMPARE(move->icon(0).cacheKey(), SoundsDialog::SetMark().cacheKey());

    auto* text = Get<QLineEdit>(dlg, "Text1");
    auto *browse = Get<QPushButton>(dlg, "cmdBrowse"), *play = Get<QPushButton>(dlg, "cmdPlay");
    auto *apply = Get<QPushButton>(dlg, "cmdApply"), *remove = Get<QPushButton>(dlg, "cmdRemove");
    QVERIFY(!apply->isEnabled() && !play->isEnabled() && !remove->isEnabled());
    tree->setCurrentItem(move);
    QVERIFY(browse->isEnabled() && play->isEnabled() && remove->isEnabled());
    QVERIFY(text->text().endsWith("/Sel.wav"));
    tree->setCurrentItem(game);
    QVERIFY(text->text().isEmpty() && !browse->isEnabled() && !play->isEnabled() && !remove->isEnabled());

    tree->setCurrentItem(start);
    QVERIFY(browse->isEnabled() && !play->isEnabled());
    browse->click();
    QCOMPARE(text->text().toStdString(), wave);
    QVERIFY(apply->isEnabled() && play->isEnabled());
    play->click();
    QCOMPARE(t->recordedSound.played, std::vector<std::string>{wave});
    apply->click();
    QVERIFY(!apply->isEnabled());
    QCOMPARE(t->cSound.GetSound("Start"), wave);
    QCOMPARE(start->icon(0).cacheKey(), SoundsDialog::SetMark().cacheKey());
    remove->click();
    QCOMPARE(t->cSound.GetSound("Start"), std::string());  // silenced, not back to its default
    QCOMPARE(start->icon(0).cacheKey(), SoundsDialog::UnsetMark().cacheKey());
    QVERIFY(!remove->isEnabled() && !play->isEnabled());
  }

  void aCentredPictureLeavesTheRestAsItWasUntilAResize() {
    QWidget target;
    QtBackground bg(target);
    bg.Resize(QSize(400, 300), 1);
    const QString small = QDir::temp().filePath("quorvale-looks-small.png");
    QImage picture(100, 50, QImage::Format_RGB32);
    picture.fill(QColor(200, 10, 10));
    QVERIFY(picture.save(small));
    auto at = [&](int x, int y) { return bg.Canvas().toImage().pixelColor(x, y); };
    bg.Gradient({0, 0, 200}, {0, 0, 200});
    QVERIFY(bg.ShowPicture({BackPicture::File, 0, small.toStdString()}, false));
    QCOMPARE(at(200, 150), QColor(200, 10, 10));  // in the middle, one pixel to one pixel
    QCOMPARE(at(200 - 51, 150), QColor(0, 0, 200));  // what the window held stays beside it
    QCOMPARE(at(200 + 50, 150), QColor(0, 0, 200));
    bg.Resize(QSize(600, 300), 1);  // cleared, then the picture alone again
    QCOMPARE(at(300, 150), QColor(200, 10, 10));
    QCOMPARE(at(10, 10), QColor(0, 64, 0));
    // A file that does not decode is missing: nothing changes.
    const QString broken = QDir::temp().filePath("quorvale-looks-broken.png");
    test::WriteFile(broken.toStdString(), "not a picture");
    QVERIFY(!bg.ShowPicture({BackPicture::File, 0, broken.toStdString()}, true));
    QCOMPARE(at(300, 150), QColor(200, 10, 10));
    // On a screen of scale 2 the same picture covers half as many logical pixels.
    bg.Resize(QSize(600, 300), 2);
    QCOMPARE(bg.Canvas().size(), QSize(1200, 600));
    QCOMPARE(at(600 + 49, 300), QColor(200, 10, 10));
    QCOMPARE(at(600 + 51, 300), QColor(0, 64, 0));
    QFile::remove(small);
    QFile::remove(broken);
  }

  void soundsWithNoAudioDeviceReturnAtOnce() {
    // Offscreen there is no audio device: each play returns, the second stops the first,
    // and nothing waits for a sound to end.
    QtSound sound;
    const QString wave = QString(QUORVALE_APP).section('/', 0, -2) + "/Win.wav";
    QVERIFY(QFile::exists(wave));
    sound.Load(wave.toStdString());
    sound.PlayWave(wave.toStdString());
    sound.PlayWave(wave.toStdString());
    sound.PlayWave("/no/such/file.wav");
  }
};

QTEST_MAIN(LooksDialogsTest)
#include "test_looks_dialogs.moc"
