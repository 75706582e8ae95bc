// The table's background: colour-scheme files, the mended settings, ApplyBackground and
// PickWallpaper as the recording background sees them.
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>

#include "TestProgram.h"
#include "session/StartUp.h"
#include "settings/BackgroundSettings.h"
#include "settings/ColorScheme.h"
#include "settings/mCustomize.h"

namespace qv {
namespace {

namespace fs = std::filesystem;
const double kJustBelowOne = std::nextafter(1.0, 0.0);
using V = std::vector<std::string>;

struct Backgrounds : ::testing::Test {
  test::TestProgram t;
  RecordingBackground& bg() { return t->recordedBackground; }
  void Set(const IntSetting& s, int v) { t->cRegistry.Set(s, v); }
  void Set(const TextSetting& s, const std::string& v) { t->cRegistry.Set(s, v); }
  std::string Folder(const std::string& name) {
    fs::create_directories(t.home.Path() / name);
    return (t.home.Path() / name).string();
  }
  // What a pick at r paints, alone, of the background kind given (or the one stored).
  std::vector<std::string> PickAt(double r, int kind = -1) {
    if (kind >= 0) Set(setting::BackIndex, kind);
    bg().painted.clear();
    PickWallpaperAt(*t, r);
    return bg().painted;
  }
};

TEST(ColorSchemeFile, TheDefaultSchemeByteForByteAndWhatReads) {
  // The exact file line.
  const std::string line = " 0             128           0             128           0             0 \r\n";
  EXPECT_EQ(SchemeText(kDefaultScheme), line);
  EXPECT_EQ(ParseScheme(line), kDefaultScheme);
  EXPECT_EQ(ParseScheme("1,2,3\r\n4 5\n6"), (Scheme{1, 2, 3, 4, 5, 6}));
  for (const char* bad : {"", "1 2 3 4 5", "1 2 3 4 5 6 7", "1 2 3 4 5 256", "1 2 3 4 5 -1", "1 2 3 4 5 6x",
                          "1 2 3 4 5 6.0"})
    EXPECT_FALSE(ParseScheme(bad)) << bad;
}

TEST_F(Backgrounds, FirstRunMakesTheDefaultSchemeAndLeavesAnExistingOneAlone) {
  const std::string path = t->cData.DefaultSchemeFile();
  EXPECT_EQ(fs::path(path).filename(), "Default Color Scheme");
  EXPECT_EQ(SchemeFile(*t), path);  // which writes the file at the first run
  EXPECT_EQ(test::ReadFile(path), SchemeText(kDefaultScheme));
  test::WriteFile(path, "9 9 9 9 9 9\r\n");
  t->cData.CreateDefaultSchemeFile();
  EXPECT_EQ(test::ReadFile(path), "9 9 9 9 9 9\r\n");
}

TEST_F(Backgrounds, AccessorsMendWhatNoLongerFitsWithoutWritingItBack) {
  EXPECT_EQ(std::pair(ColorIndex(*t), t->cImages.ColorName(7)), std::pair(7, std::string("Felt Green")));
  for (int bad : {0, -3, t->cImages.ColorCount() + 1}) {
    for (const IntSetting* s : {&setting::TextureIndex, &setting::ColorIndex, &setting::ImageIndex}) Set(*s, bad);
    EXPECT_EQ(std::tuple(TextureIndex(*t), ColorIndex(*t), ImageIndex(*t)), std::tuple(1, 1, 1)) << bad;
    EXPECT_EQ(t->cRegistry.Get(setting::ColorIndex), bad);
  }
  Set(setting::ImageIndex, t->cImages.ImageCount());
  EXPECT_EQ(ImageIndex(*t), t->cImages.ImageCount());

  // Files: gone, or a custom picture left out of the list, give the defaults.
  const std::string pic = t.home.File("Photo.JPG");
  test::WriteFile(pic, "x");
  Set(setting::CustImageFile, pic);
  Set(setting::ImageFolderFile, pic);
  Set(setting::SchemeFile, t.home.File("gone"));
  EXPECT_EQ(std::tuple(CustImageFile(*t), ImageFolderFile(*t), SchemeFile(*t)),
            std::tuple(t->cData.DefaultCustImageFile(), pic, t->cData.DefaultSchemeFile()));
  t->cFunc.AddtoLIST(0, t.home.File("photo.jpg"));  // the list ignores case here
  EXPECT_EQ(CustImageFile(*t), pic);
  fs::remove(pic);
  EXPECT_EQ(std::tuple(CustImageFile(*t), ImageFolderFile(*t)),
            std::tuple(t->cData.DefaultCustImageFile(), t->cData.DefaultCustImageFile()));
  EXPECT_EQ(t->cRegistry.Get(setting::ImageFolderFile), pic);
}

TEST_F(Backgrounds, ApplyClearsPaintsTheStoredKindAndSetsTheTimer) {
  ApplyBackground(*t);  // a first run: colour 7 fading to black, no timer
  EXPECT_EQ(bg().painted, (std::vector<std::string>{"clear", "gradient 20,105,45 0,0,0"}));
  EXPECT_EQ(bg().wallTimer, 0);

  const std::string bad = Folder("data/Velmarin Works/Quorvale 6.0/Color Schemes") + "/Broken";
  test::WriteFile(bad, "1 2 3\r\n");
  struct Case { int kind, timer; std::string painted; int interval; };
  Set(setting::FadeIndex, 0);
  Set(setting::EnableTile, 0);
  Set(setting::SchemeFile, bad);
  for (const Case& c : {Case{0, 1, "texture 1 tiled", 5000}, Case{1, 2, "gradient 20,105,45 20,105,45", 15000},
                        Case{2, 3, "image 1 centred", 60000}, Case{3, 5, "gradient 0,128,0 128,0,0", 0},
                        Case{4, 4, "", 0}, Case{5, 0, "", 0}}) {
    Set(setting::BackIndex, c.kind);
    Set(setting::WPTimerValue, c.timer);
    bg().painted.clear();
    ApplyBackground(*t);
    EXPECT_EQ(bg().painted, (c.painted.empty() ? V{"clear"} : V{"clear", c.painted})) << c.kind;
    EXPECT_EQ(bg().wallTimer, c.interval) << c.kind;
  }
  EXPECT_EQ(ReadScheme(bad), std::nullopt);  // a broken scheme is painted as the default, not mended
}

TEST_F(Backgrounds, PickTakesTheFirstAndTheLastOfEachKindAndChangesNothing) {
  const cImages& im = t->cImages;
  EXPECT_EQ(PickAt(0, 0), V{"texture 1 tiled"});
  EXPECT_EQ(PickAt(kJustBelowOne, 0), V{"texture " + std::to_string(im.TextureCount()) + " tiled"});
  EXPECT_EQ(PickAt(kJustBelowOne, 1),
            V{"gradient " + RecordingBackground::Text(im.ColorValue(im.ColorCount())) + " 0,0,0"});
  EXPECT_EQ(PickAt(kJustBelowOne, 2), V{"image " + std::to_string(im.ImageCount()) + " tiled"});

  // Schemes: every file of the folder that reads, by name; none made when there are none.
  EXPECT_TRUE(PickAt(0, 3).empty());
  EXPECT_FALSE(fs::exists(t->cData.SchemeFolder(FolderUse::Read)));
  const std::string schemes = Folder("data/Velmarin Works/Quorvale 6.0/Color Schemes");
  test::WriteFile(schemes + "/A", "1 1 1 2 2 2\r\n");
  test::WriteFile(schemes + "/B", "broken");
  test::WriteFile(schemes + "/C.txt", "3,3,3,4,4,4\r\n");
  EXPECT_EQ(PickAt(0), V{"gradient 1,1,1 2,2,2"});
  EXPECT_EQ(PickAt(kJustBelowOne), V{"gradient 3,3,3 4,4,4"});

  // Custom pictures: the entries of LIST0; a gone file paints nothing.
  EXPECT_TRUE(PickAt(0, 4).empty());
  const std::string a = t.home.File("a.bmp"), z = t.home.File("z.jpg");
  test::WriteFile(a, "x");
  t->cFunc.AddtoLIST(0, a);
  t->cFunc.AddtoLIST(0, z);
  EXPECT_EQ(PickAt(0), V{"file " + a + " tiled"});
  EXPECT_TRUE(PickAt(kJustBelowOne).empty());

  // Image folders: the pictures beside the stored one, any case of extension, by name.
  Set(setting::BackIndex, 5);
  const std::string folder = Folder("pics");
  for (const char* name : {"b.PNG", "a.Jpeg", "notes.txt", "c.gif"}) test::WriteFile(folder + "/" + name, "x");
  Set(setting::ImageFolderFile, folder + "/c.gif");
  t.settings.SetRefuseWrites(true);  // a pick that wrote a setting would be told so
  EXPECT_EQ(PickAt(0), V{"file " + folder + "/a.Jpeg tiled"});
  EXPECT_EQ(PickAt(kJustBelowOne), V{"file " + folder + "/c.gif tiled"});
  EXPECT_TRUE(t.dialogs.shown.empty());
  t.settings.SetRefuseWrites(false);
  Set(setting::ImageFolderFile, Folder("empty") + "/x.bmp");
  EXPECT_TRUE(PickAt(0).empty());
}

TEST_F(Backgrounds, GameAndSessionPickAtTheirMomentsWithAGeneratorOfTheirOwn) {
  const auto rng = t->rng;
  t.Deal("Spider", 7);  // WPTimerValue 4, Game, by default
  EXPECT_EQ(bg().painted.size(), 1u);
  EXPECT_TRUE(t->rng == rng) << "only the deal draws from the game numbers' generator";
  Set(setting::WPTimerValue, 0);
  t.Deal("Spider", 8);
  EXPECT_EQ(bg().painted.size(), 1u);

  Set(setting::WPTimerValue, 5);
  bg().painted.clear();
  StartUp(*t);
  ASSERT_EQ(bg().painted.size(), 3u);  // cleared, the stored colour, then one picked
  EXPECT_EQ(bg().painted[0], "clear");
}

}  // namespace
}  // namespace qv
