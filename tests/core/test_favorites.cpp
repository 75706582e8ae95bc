#include <gtest/gtest.h>

#include <filesystem>

#include "TestProgram.h"
#include "lists/Favorites.h"
#include "lists/Recent.h"
#include "scores/Players.h"

namespace qv {
namespace {

namespace fs = std::filesystem;

struct Favorites : ::testing::Test {
  test::TestProgram t;
  std::string root = t->cData.FavFolder();
  std::string At(const std::string& name) const { return (fs::path(root) / name).string(); }
  std::vector<std::string> Shown() const {
    std::vector<std::string> names;
    const FavTree tree = ReadFavTree(*t.app);
    for (const auto& f : tree.folders) {
      names.push_back(f.name + "/");
      for (const auto& g : f.games) names.push_back(f.name + "/" + g.name);
    }
    for (const auto& g : tree.games) names.push_back(g.name);
    return names;
  }
};

TEST_F(Favorites, RecordsKeepTheNumberFormAndReadBack) {
  SetPlayer(t->cRegistry, 1, "Player1", true);
  t.Deal("Spider", 123456);
  ASSERT_TRUE(AddFavFile(*t.app));
  EXPECT_EQ(test::ReadFile(At("Spider - 123456")), "\"Spider\",123456,\"Player1\",#11/18/2026 11:06:40 AM#\r\n");
  ASSERT_TRUE(t->cGamePlay.PlayString("Spider Two Suit - 0042"));  // typed: quoted, every digit kept
  ASSERT_TRUE(AddFavFile(*t.app, At("typed")));
  EXPECT_EQ(test::ReadFile(At("typed")), "\"Spider Two Suit\",\"0042\",\"Player1\",#11/18/2026 11:06:40 AM#\r\n");
  EXPECT_EQ(ReadFavFile(At("typed")).value().GameNo, GameNo::Typed("0042"));
  test::WriteFile(At("comma"), "\"A, B\",-7,\"Me, too\",#x#");
  const FavRecord comma = ReadFavFile(At("comma")).value();
  EXPECT_EQ(std::tuple(FavRecordLine(comma), comma.GameNo.IsTyped()), std::tuple("\"A, B\",-7,\"Me, too\",#x#", false));
}

TEST_F(Favorites, JunkIsSkippedAndKeptAndNamesGoByNameIgnoringCase) {
  const std::string good = "\"Spider\",5,\"P\",#d#\r\n";
  for (const char* folder : {"beta/deeper", "Alpha"}) fs::create_directories(At(folder));
  // "lost" lies two levels down, too deep; the last four do not read.
  for (const auto& [name, text] : {std::pair<const char*, std::string>{"beta/z game", good}, {"beta/A game", good},
                                   {"beta/deeper/lost", good}, {"Alpha/.directory", "[Desktop Entry]\n"},
                                   {"b root", good}, {"A root", good}, {"cut", "\"Spider\",5,\"P"}, {"empty", ""},
                                   {"no game", "\"Nowhere\",5,\"P\",#d#"}, {"text number", "\"Spider\",five,\"P\",#d#"}})
    test::WriteFile(At(name), text);
  EXPECT_EQ(Shown(), (std::vector<std::string>{"Alpha/", "beta/", "beta/A game", "beta/z game", "A root", "b root"}));
  EXPECT_TRUE(fs::exists(At("cut")) && fs::exists(At("no game")) && fs::exists(At("Alpha/.directory")));
  EXPECT_EQ(GetFavFolders(*t.app).size(), 2u);
  // A favourite whose game is gone hides, and comes back with a game of that name.
  t->cData.SetGame(1, "Renamed", false, 2);
  EXPECT_EQ(Shown(), (std::vector<std::string>{"Alpha/", "beta/"}));
  t->cData.SetGame(1, "Spider", false, 2);
  EXPECT_EQ(GetFavFiles(*t.app, root).size(), 2u);
}

TEST_F(Favorites, NamesAreCheckedBeforeAnythingChanges) {
  fs::create_directories(At("Folder"));
  test::WriteFile(At("Game"), "");
  EXPECT_FALSE(ValidateFavName(*t.app, "", kFavGame, root));
  EXPECT_TRUE(t.dialogs.shown.empty());  // a cancelled input box says nothing
  for (const auto& [name, kind] : {std::pair{"a|b", kFavGame}, {"Folder", kFavFolder}, {"Game", kFavGame}, {"..", kFavFolder}})
    EXPECT_FALSE(ValidateFavName(*t.app, name, kind, root)) << name;
  EXPECT_EQ(t.dialogs.shown, (std::vector<std::string>{"Name should not contain these characters : /\\:*?\"<>|",
                                                       "Folder already exists", "Game already exists",
                                                       "Name should not contain these characters : /\\:*?\"<>|"}));
  EXPECT_TRUE(ValidateFavName(*t.app, "Game ", kFavGame, root));  // a trailing blank passes
  EXPECT_TRUE(ValidateFavName(*t.app, "Game", kFavFolder, root));
}

TEST_F(Favorites, OrganizingKeepsDiskAndMenusInStep) {
  t.Deal("Spider", 7);
  ASSERT_TRUE(AddFavFile(*t.app, At("one")));
  ASSERT_TRUE(CreateFavFolder(*t.app, "Box"));
  EXPECT_FALSE(MoveFav(*t.app, At("one"), root));
  ASSERT_TRUE(MoveFav(*t.app, At("one"), At("Box")));
  ASSERT_TRUE(AddFavFile(*t.app, At("one")));
  EXPECT_FALSE(MoveFav(*t.app, At("one"), At("Box")));  // the name is taken there
  ASSERT_TRUE(RenameFav(*t.app, At("Box"), "Crate"));
  EXPECT_FALSE(RenameFav(*t.app, At("one"), "one"));
  EXPECT_EQ(t.dialogs.shown, (std::vector<std::string>{"Same Source and Destination Folders !",
                                                       "Game Already Exists in the destination Folder.",
                                                       "Game already exists"}));
  const int refreshes = t.window.menuRefreshes;
  EXPECT_FALSE(DeleteFav(*t.app, At("Crate")));  // No
  t.dialogs.answers = {Answer::Yes, Answer::Yes};
  for (const char* name : {"one", "Crate"}) ASSERT_TRUE(DeleteFav(*t.app, At(name))) << name;
  EXPECT_EQ(std::vector(t.dialogs.titles.end() - 2, t.dialogs.titles.end()),
            (std::vector<std::string>{"Delete Game", "Delete Folder"}));
  EXPECT_EQ(t.dialogs.shown.back(), "Are you sure you want to remove the Folder Crate and all its contents ?");
  EXPECT_EQ(t.window.menuRefreshes, refreshes + 2);
  EXPECT_TRUE(Shown().empty());
}

TEST_F(Favorites, PlayingStartsTheDealAndABadOneLeavesTheTableAlone) {
  test::WriteFile(At("fav"), "\"Spider Two Suit\",\"0042\",\"P\",#d#\r\n");
  test::WriteFile(At("bad"), "\"Spider Two Suit\",\"0042\"");
  ASSERT_TRUE(t->cGamePlay.PlayFavFile(At("fav")));
  EXPECT_EQ(std::tuple(t->cGamePlay.GameName(), t->cGamePlay.GameNo(), t->cFunc.GetMRU(kRecentPlayed)[1]),
            std::tuple("Spider Two Suit", GameNo::Typed("0042"), "Spider Two Suit - 0042"));
  const auto before = test::Snapshot(*t.app);
  EXPECT_FALSE(t->cGamePlay.PlayFavFile(At("bad")));
  EXPECT_EQ(std::tuple(t.dialogs.shown.size(), test::Snapshot(*t.app), t->cGamePlay.Game_Status()),
            std::tuple(1u, before, 1));
}

}  // namespace
}  // namespace qv
