// cData: the product's names, the game list and the folders of the user's files.
#include <gtest/gtest.h>

#include <filesystem>
#include <tuple>

#include "TestProgram.h"

namespace qv {
namespace {

namespace fs = std::filesystem;

TEST(ProductData, NamesAndTheSevenStandardGamesInTheirOrder) {
  test::TestProgram t;
  const cData& d = t->cData;
  EXPECT_EQ(std::tuple(d.ProdName(), d.ProdNameX(), d.Version(), d.Ext(), d.IncExt(), d.FinExt()),
            std::tuple("Quorvale 6.0", "Quorvale", "6.0", "vq", ".vq0", ".vq1"));
  const char* const games[] = {"Spider", "Spider Single Suit", "Spider Two Suit", "Scarab",
                               "Plaza",  "Coral",              "Spider Plus"};
  ASSERT_EQ(d.TotalGames(), 7);
  for (int id = 1; id <= 7; ++id)
    EXPECT_EQ(std::tuple(d.GetGName(id), d.GetGameID(games[id - 1]), d.IsOriginal(games[id - 1]), d.GetDeck(games[id - 1])),
              std::tuple(games[id - 1], id, false, "Two (104 Cards)"));
}

// A name is a game only as written, case and blanks included: "spider" is no game, so it
// is refused like any unknown name, with one message.
TEST(ProductData, AnUnknownNameIsNoGameAndCaseCounts) {
  test::TestProgram t;
  const cData& d = t->cData;
  for (const char* name : {"", "Spider Three Suit", "spider", "SPIDER", "Spider ", "Spider two suit"})
    EXPECT_EQ(std::tuple(d.GameExists(name), d.GetGameID(name), d.IsOriginal(name), d.GetDeck(name)),
              std::tuple(false, 0, false, "")) << name;
  EXPECT_FALSE(t->cGamePlay.PlayNumber("spider", GameNo::Number(1)));
  EXPECT_EQ(t.dialogs.shown.size(), 1u);
}

// Asked for reading, a folder is only named; asked for writing, it is made with its parents,
// also after the user deleted it while the program runs.
TEST(ProductData, FoldersAreMadeForWritingOnlyAndMadeAgainAfterADelete) {
  test::TestProgram t;
  t->session.Release();  // a program that keeps no session, as quorvale-cli's lists
  fs::remove_all(t.home.Path() / "data");
  const fs::path app = t.home.Path() / "data/Velmarin Works/Quorvale 6.0";
  const fs::path games = t.home.Path() / "Documents/My Games/Quorvale 6.0";
  const std::pair<std::string (cData::*)(FolderUse) const, fs::path> folders[] = {
      {&cData::AppDir, app},
      {&cData::FavFolder, app / "Favorites"},
      {&cData::GamesFolder, app / "Custom Games"},
      {&cData::SchemeFolder, app / "Color Schemes"},
      {&cData::PendingFolder, app / "Pending List"},
      {&cData::SavedFolder, games},
      {&cData::AutoSaveFolder, games / "AutoSave Files"}};
  for (const auto& [folder, path] : folders) EXPECT_EQ((t->cData.*folder)(FolderUse::Read), path.string());
  EXPECT_TRUE(fs::is_empty(t.home.Path()));
  for (const auto& [folder, path] : folders) {
    for (const char* root : {"data", "Documents"}) fs::remove_all(t.home.Path() / root);
    EXPECT_EQ((t->cData.*folder)(FolderUse::Write), path.string());
    EXPECT_TRUE(fs::is_directory(path)) << path;
  }
}

}  // namespace
}  // namespace qv
