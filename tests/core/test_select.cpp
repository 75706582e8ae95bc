#include <gtest/gtest.h>

#include "TestProgram.h"
#include "lists/AutoSave.h"
#include "lists/ChooseNumber.h"
#include "lists/Favorites.h"
#include "lists/Recent.h"
#include "lists/mSelect.h"
#include "settings/SettingKeys.h"

namespace qv {
namespace {

TEST(NumberDialog, TheRangeIsTestedInAFloatAndTheTextGoesOnAsTyped) {
  test::TestProgram t;
  auto ok = [&](const std::string& s) { return AcceptedGameNo(*t.app, s).has_value(); };
  EXPECT_EQ(*AcceptedGameNo(*t.app, " 0012.5 "), GameNo::Typed("0012.5"));
  struct Case { int rangeIndex; const char* range; std::vector<std::pair<const char*, bool>> typed; };
  for (const Case& c : {Case{6, "0 and 999,999", {{"999999", false}, {"999998", true}, {"0", false}, {"", false},
                                                   {"1e3", false}, {"-5", false}}},
                        // a float makes 999999998 1,000,000,000
                        Case{9, "0 and 999,999,999", {{"999999998", false}, {"999999900", true}}},
                        Case{1, "0 and 9", {{"8", true}, {"9", false}}}}) {
    t->cRegistry.Set(setting::RangeIndex, c.rangeIndex);
    EXPECT_EQ(NumberRangeText(*t.app), c.range);
    for (const auto& [text, accepted] : c.typed) EXPECT_EQ(ok(text), accepted) << '"' << text << '"';
  }
}

std::vector<std::string> Texts(const SelectNode& node, const std::string& indent = "") {
  std::vector<std::string> texts;
  for (const SelectNode& child : node.children) {
    texts.push_back(indent + child.text + " [" + child.tag + "]");
    std::ranges::copy(Texts(child, indent + "  "), std::back_inserter(texts));
  }
  return texts;
}

TEST(Selection, EachCategoryListsItsSourceAsItStands) {
  test::TestProgram t;
  using V = std::vector<std::string>;
  auto texts = [&](const char* key) { return Texts(FillSelectTree(*t.app, key).root); };
  t->cRegistry.RegSaveInt(section::HotGames, "Scarab", 1);
  t.Deal("Scarab", 77);
  const std::string mine = t->cData.SavedFolder() + "/mine.vq0";
  ASSERT_TRUE(t->cEngine.SavetoFile(mine));
  for (const std::string& saved : {mine, t->cData.SavedFolder() + "/gone.vq0"}) AddRecent(*t.app, kRecentSaved, saved);
  test::WriteFile(t->cData.SavedFolder() + "/bad.vq0", "junk");
  ASSERT_TRUE(AutoSaveGame(*t.app, false, true));
  ASSERT_TRUE(AutoSaveGame(*t.app, true, true));
  ASSERT_TRUE(AddFavFile(*t.app));
  ASSERT_TRUE(CreateFavFolder(*t.app, "Box"));
  ASSERT_TRUE(AddFavFile(*t.app, t->cData.FavFolder() + "/Box/Named"));
  // No created games yet.
  EXPECT_EQ(std::tuple(texts("Std").size(), texts("All"), texts("Org")), std::tuple(7u, texts("Std"), V{}));
  // A finished game shows no percentage.
  for (const auto& [key, text] : {std::pair{"Hot", "Scarab [Scarab]"}, {"Save", "Scarab - 77 (0%) [Scarab]"},
                                  {"rSave", "Scarab - 77 (0%) [Scarab]"}, {"Inc", "Scarab-77 (0%) [Scarab]"},
                                  {"Fin", "Scarab-77 [Scarab]"}, {"rPlay", "Scarab - 77 [Scarab]"}})
    EXPECT_EQ(texts(key), V{text}) << key;
  EXPECT_EQ(texts("Fav"), (V{"Box []", "  Named [Scarab]", "Scarab - 77 [Scarab]"}));
  const SelectTree fav = FillSelectTree(*t.app, "Fav");
  EXPECT_EQ(std::tuple(fav.root.key, fav.root.text), std::tuple(t->cData.FavFolder(), "Favorites"));
  EXPECT_EQ(std::pair(FillSelectTree(*t.app, "Save").rootBold, FillSelectTree(*t.app, "Fin").rootBold), std::pair(false, true));
}

TEST(Selection, DetailsShowTheFileOwnRulesAndLeaveTheTableAlone) {
  test::TestProgram t;
  test::PlayWithRules(t, {.HPiles = 8, .HAK = 1, .Suits = 1}, 9);  // a name the program does not know
  const std::string file = t->cData.SavedFolder() + "/odd.vq0";
  ASSERT_TRUE(t->cEngine.SavetoFile(file));
  const std::string unknown = t->cGamePlay.GameName();
  const SelectDetails d = DetailsOf(*t.app, "Save", file, unknown);
  EXPECT_EQ(std::tuple(d.det[0], d.det[5], d.det[6], d.sub[2], d.sub[3].substr(0, 21)),
            std::tuple("Game Name :" + unknown, "Time Taken : 0:00:00", "Percentage Completed :0%",
                       "No of Tableau Piles : 8", "Ace-King Wrapping  : "));
  const SelectDetails spider = DetailsOf(*t.app, "rPlay", "Spider - 0042", "Spider");
  EXPECT_EQ(std::tuple(spider.det[1], spider.det[2], spider.sub[2]),
            std::tuple("Game Number : 0042", "Game Type :Standard", "No of Tableau Piles : 10"));
  EXPECT_EQ(spider.preview[2].picture, t->cImages.PreviewPicture(cImages::PreviewTableau, 10, spider.preview[2].picture.b));
  EXPECT_EQ(spider.preview[1].x, 125);
  EXPECT_TRUE(t->cCustom.HoldsHeaderFor(unknown));  // Restart still deals the game on the table
}

// Each kind is played from the dialog's tests; here what the caller hands over.
TEST(Selection, PlayNeedsAChoiceAndKeepsTheNumberAsWritten) {
  test::TestProgram t;
  EXPECT_FALSE(PlaySelected(*t.app, "All", "m", ""));  // nothing chosen
  ASSERT_TRUE(PlaySelected(*t.app, "All", "Coral", "Coral"));
  EXPECT_EQ(std::tuple(t->cGamePlay.GameName(), t->cGamePlay.GameNo().IsTyped()), std::tuple("Coral", false));
  ASSERT_TRUE(PlaySelected(*t.app, "rPlay", "Plaza - 12", "Plaza"));
  EXPECT_EQ(t->cGamePlay.GameNo(), GameNo::Typed("12"));
}

}  // namespace
}  // namespace qv
