#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "TestProgram.h"
#include "lists/AutoSave.h"
#include "session/CommandTable.h"
#include "session/Commands.h"
#include "session/FirstGame.h"
#include "session/SavedGameFile.h"
#include "session/StartUp.h"
#include "settings/Settings.h"

namespace qv {
namespace {

struct Commands : ::testing::Test {
  bool On(const char* key) { return CommandEnabled(*t.app, key); }
  test::TestProgram t;
};

TEST_F(Commands, EnablingFollowsTheGamesState) {
  // No game: only what needs no game.
  for (const char* key : {"Restart", "Save", "Pause", "Close", "Undo", "AddFav", "MovesMan", "History"})
    EXPECT_FALSE(On(key)) << key;
  for (const char* key : {"New", "Select", "Open", "AutoPlay", "Options"}) EXPECT_TRUE(On(key)) << key;

  t.Deal("Spider", 8);
  for (const char* key : {"Restart", "Save", "Pause", "Close", "AddFav", "AddPend"}) EXPECT_TRUE(On(key)) << key;
  for (const char* key : {"Undo", "ReplayAll"}) EXPECT_FALSE(On(key)) << key;
  test::DealRows(t, 1);
  for (const char* key : {"Undo", "UndoAll", "Back", "ReplayAll", "MovesMan", "History"}) EXPECT_TRUE(On(key)) << key;
  EXPECT_FALSE(On("Redo"));

  // While a replay runs the journal's commands wait for it.
  ExecCommand(*t.app, "Back");
  for (const char* key : {"Undo", "Redo", "Forward", "Back", "MovesMan"}) EXPECT_FALSE(On(key)) << key;
  ReplayTick(*t.app, false);
  EXPECT_EQ(std::tuple(t.window.stopEnabled, t->cEngine.GetTransID()), std::tuple(true, 0));
  ReplayTick(*t.app, false);  // nothing left: the replay stops itself
  EXPECT_FALSE(IsReplaying(*t.app) || t.window.stopEnabled);

  // A finished game being replayed: Close and Add to Favorites, not Restart or Save.
  int speed = 0;
  t->cEngine.RedoAll(speed);
  ASSERT_TRUE(t->cEngine.SavetoFile(t.home.File("done.vq1")));
  t->cGamePlay.PlayFile(t.home.File("done.vq1"), false);
  for (const char* key : {"Close", "AddFav"}) EXPECT_TRUE(On(key)) << key;
  for (const char* key : {"Restart", "Save"}) EXPECT_FALSE(On(key)) << key;
}

TEST_F(Commands, EveryCommandStopsAReplayFirst) {
  t.Deal("Spider", 8);
  test::DealRows(t, 2);
  ExecCommand(*t.app, "ReplayAll");  // back to the start, then forward by the timer
  EXPECT_EQ(std::tuple(t->cEngine.GetTransID(), t.window.TimerEnabled(Timer::Forward)), std::tuple(0, true));
  ExecCommand(*t.app, "Stop");
  EXPECT_FALSE(IsReplaying(*t.app));
  ExecCommand(*t.app, "Forward");
  EXPECT_TRUE(t.window.TimerEnabled(Timer::Forward));
  ExecCommand(*t.app, "Options");
  EXPECT_TRUE(!IsReplaying(*t.app) && t.window.opened.back() == "Options");
  // Replaying a running game ends where the journal ends, with the game still running.
  ExecCommand(*t.app, "ReplayAll");
  while (IsReplaying(*t.app)) ReplayTick(*t.app, true);
  EXPECT_EQ(std::tuple(t->cEngine.GetTransID(), t->cGamePlay.Game_Running()), std::tuple(20, true));
}

TEST_F(Commands, SessionCommandsReadTheirSettingsAfresh) {
  t.Deal("Spider", 8);
  test::DealRows(t, 1);
  t.settings.WriteInt("Animation", "UndoSpeed", 0);
  const long frames = t.sprites.Frames();
  ExecCommand(*t.app, "Undo");  // the last card at speed 0, nine more at 2
  EXPECT_EQ(t.sprites.Frames() - frames, 9 * 2);
  ExecCommand(*t.app, "Pause");
  EXPECT_TRUE(t->cGamePlay.PauseStatus());
  for (const char* key : {"Pause", "ViewTool", "AutoPlay"}) ExecCommand(*t.app, key);
  EXPECT_FALSE(t->cGamePlay.PauseStatus() || ToolbarChecked(*t.app) || AutoPlayChecked(*t.app));
  ExecCommand(*t.app, "Recent");  // opens a sub-menu, does nothing itself
  ExecCommand(*t.app, "Close");
  EXPECT_EQ(t->cGamePlay.Game_Status(), 0);
  ExecCommand(*t.app, "Rules");  // no game: the help
  EXPECT_EQ(t.window.opened.back(), "Contents");
  ExecCommand(*t.app, "Exit");
  EXPECT_TRUE(t.window.closed);
}

TEST_F(Commands, TurningAutoPlayOnSendsCompletedSetsAtOnce) {
  test::PlayWithRules(t, {.HOrder = 5, .MOrder = 5});
  t.settings.WriteInt("Options", "AutoPlay", 0);
  test::DealRows(t, 6);
  ASSERT_TRUE(test::CompleteASet(t));  // sets leave whatever AutoPlay says
  ExecCommand(*t.app, "Undo");          // an undone set stays on its pile
  ASSERT_EQ(t->cEngine.TotalGoalCards(), 0);
  ExecCommand(*t.app, "AutoPlay");
  EXPECT_TRUE(AutoPlayPressed(*t.app));
  EXPECT_EQ(t->cEngine.TotalGoalCards(), 13);
  ExecCommand(*t.app, "AutoPlay");  // turning it off moves nothing
  EXPECT_EQ(std::tuple(AutoPlayChecked(*t.app), t->cEngine.TotalGoalCards()), std::tuple(false, 13));
}

// The defaults of Undo and Undo All, and how a separator follows the buttons of its group, are
// seen in the window's tests.
TEST_F(Commands, ToolbarDefaultsAndCaptions) {
  const auto shown = [&](std::string_view key) {
    for (const auto& b : ToolbarLayout())
      if (b.key == key) return ToolbarItemShown(t->cRegistry, b);
    throw std::runtime_error(std::string(key));
  };
  EXPECT_TRUE(shown("Editor") && shown("Sep8"));  // AddFav shows by default, and its separator
  // The solver's buttons come last, after their own separator: Hint shown, New Winnable not.
  EXPECT_EQ(std::tuple(shown("Sep13"), shown("Hint"), shown("NewWinnable")), std::tuple(true, true, false));
  EXPECT_EQ(std::string(ToolbarLayout().back().key), "NewWinnable");
  EXPECT_STREQ(ToolbarButton(4).tooltip, "Open a Saved Game");
  EXPECT_STREQ(ToolbarButton(11).caption, "PauseGame");
}

TEST(CommandTable, KeysAreUniqueAndShortcutsAsTheMenusShowThem) {
  std::map<std::string, std::string> shortcuts;
  for (const MenuDef& menu : MainMenus())
    for (const MenuEntry& e : menu.entries) {
      if (std::string_view(e.key) == "Recent") continue;
      EXPECT_TRUE(shortcuts.emplace(e.key, e.shortcut).second) << e.key;
      EXPECT_LE(e.index, menu.size);
    }
  EXPECT_EQ(std::tuple(shortcuts["UndoAll"], shortcuts["RedoAll"], shortcuts["Redo"], MainMenus().size()),
            std::tuple("Ctrl+C", "Ctrl+V", "Ctrl+X", 9u));
}

// ---- the first game of a run (the unfinished game alone comes back in the crash tests) ----

struct FirstGames : ::testing::Test {
  void SetUp() override {
    test::TestProgram before;
    before.Deal("Coral", 12);
    test::DealRows(before, 1);
    ASSERT_TRUE(before->cEngine.SavetoFile(t->cData.UnFinFile()));
    before.Deal("Plaza", 13);
    ASSERT_TRUE(before->cEngine.SavetoFile(t.home.File("given.vq0")));
    t.settings.WriteInt("General", "UnFin", 1);  // the game above waits for this run
  }
  test::TestProgram t;
};

TEST_F(FirstGames, NothingWaitingOpensTheSelection) {
  t.settings.WriteInt("General", "UnFin", 0);
  FirstGame(*t.app, "");
  EXPECT_EQ(t.window.opened, std::vector<std::string>{"Select"});
  EXPECT_EQ(t->cGamePlay.Game_Status(), 0);  // its Cancel leaves the table empty
  FirstGame(*t.app, t.home.File("missing.vq0"));
  EXPECT_EQ(t.window.opened.size(), 2u);
}

TEST_F(FirstGames, AnUnfinishedGameThatDoesNotReadIsGivenUpOnce) {
  test::WriteFile(t->cData.UnFinFile(), "Coral\r\n 12 \r\n");
  FirstGame(*t.app, "");
  EXPECT_EQ(std::tuple(t.dialogs.shown.size(), t->cRegistry.Get(setting::UnFin)), std::tuple(1u, 0));
  EXPECT_TRUE(std::filesystem::exists(t->cData.UnFinFile()));
  EXPECT_EQ(t.window.opened, std::vector<std::string>{"Select"});
}

TEST_F(FirstGames, AFileAndAnUnfinishedGameAskWhichToPlay) {
  t.dialogs.answers = {Answer::Yes};
  FirstGame(*t.app, t.home.File("given.vq0"));
  // Given up, the unfinished game is kept as a copy.
  EXPECT_EQ(std::tuple(t->cGamePlay.GameName(), t->cRegistry.Get(setting::UnFin), GetAutoSaveFiles(*t.app, false).size()),
            std::tuple("Plaza", 0, 1u));
  EXPECT_NE(t.dialogs.shown[0].find("An unfinished game from previous session exists!"), std::string::npos);

  test::TestProgram no;
  ASSERT_TRUE(t->cEngine.SavetoFile(no->cData.UnFinFile()));
  no.settings.WriteInt("General", "UnFin", 1);
  FirstGame(*no.app, t.home.File("given.vq0"));  // No: the previous game
  EXPECT_EQ(std::tuple(no->cGamePlay.GameName(), no->cRegistry.Get(setting::UnFin)), std::tuple("Plaza", 1));
}

TEST_F(FirstGames, AStopAtTheQuestionOrDuringTheChosenDealLosesNeitherGame) {
  t.dialogs.onShow = [&] { StopProgram(*t.app, nullptr); };  // a logout while it asks
  FirstGame(*t.app, t.home.File("given.vq0"));
  EXPECT_EQ(std::tuple(t->cRegistry.Get(setting::UnFin), ReadGameHeader(t->cData.UnFinFile())->GameName),
            std::tuple(1, "Coral"));

  test::TestProgram yes;
  ASSERT_TRUE(std::filesystem::copy_file(t->cData.UnFinFile(), yes->cData.UnFinFile()));
  yes.settings.WriteInt("General", "UnFin", 1);
  yes.dialogs.answers = {Answer::Yes};
  yes.sprites.onYield = [&] {
    yes.sprites.onYield = nullptr;
    EXPECT_FALSE(StopProgram(*yes.app, [&] { StopProgram(*yes.app, nullptr); }));  // waits for the step
  };
  FirstGame(*yes.app, t.home.File("given.vq0"));
  EXPECT_EQ(yes->motion.state(), Motion::State::Stopped);
  EXPECT_EQ(ReadGameHeader(yes->cData.UnFinFile())->GameName, "Plaza");
  const auto copies = GetAutoSaveFiles(*yes.app, false);
  ASSERT_EQ(copies.size(), 1u);
  EXPECT_EQ(ReadGameHeader(copies[0])->GameName, "Coral");
}

TEST_F(FirstGames, YesToABadFileKeepsTheUnfinishedGame) {
  t.dialogs.answers = {Answer::Yes};
  FirstGame(*t.app, t.home.File("missing.vq0"));
  // Two messages: the question, then why the file did not play.
  EXPECT_EQ(std::tuple(t->cGamePlay.GameName(), t->cRegistry.Get(setting::UnFin), t.dialogs.shown.size()),
            std::tuple("Coral", 1, 2u));
}

// ---- settings ----

TEST(SettingsAccess, AbsentDiffersFromEmptyAndReferencesExpand) {
  test::TestProgram t;
  auto& reg = t->cRegistry;
  EXPECT_EQ(reg.RegGetStr("General", "LastGName", "x"), "x");
  t.settings.WriteText("General", "LastGName", "");
  EXPECT_EQ(reg.RegGetStr("General", "LastGName", "x"), "");
  setenv("QUORVALE_TEST_DIR", "/srv/games", 1);
  t.settings.WriteText("General", "SaveInitDir", "%QUORVALE_TEST_DIR%/mine");
  EXPECT_EQ(reg.Get(setting::SaveInitDir), "/srv/games/mine");
  for (const char* kept : {"100% sure", "%NO_SUCH_NAME_Q% 50%", "%%"}) EXPECT_EQ(ExpandReferences(kept), kept);
  t.settings.WriteInt("Options", "RangeIndex", 70000);
  EXPECT_EQ(reg.Get(setting::RangeIndex), 32767);  // read into 16 bits
}

TEST(SettingsAccess, AccessorsMendWhatNoLongerFits) {
  test::TestProgram t;
  EXPECT_EQ(DeckIndex(*t.app), 7);
  for (const auto& [stored, read] : {std::pair{12, 12}, {13, 7}}) {
    t.settings.WriteInt("BackGround", "DeckIndex", stored);
    EXPECT_EQ(DeckIndex(*t.app), read) << stored;
  }
  EXPECT_EQ(t->cRegistry.Get(setting::DeckIndex), 13);  // mended on reading, not written back
  t.settings.WriteText("General", "SaveInitDir", t.home.File("gone"));
  EXPECT_EQ(SaveInitDir(*t.app), t->cData.SavedFolder());
  t.settings.WriteText("General", "SaveInitDir", t.home.Path().string());
  EXPECT_EQ(SaveInitDir(*t.app), t.home.Path().string());
}

TEST(SettingsAccess, ARefusedWriteIsToldOnceAndTheGameGoesOn) {
  test::TestProgram t;
  t.settings.SetRefuseWrites(true);
  t.Deal("Spider", 3);
  t.Deal("Coral", 3);
  test::DealRows(t, 1);
  EXPECT_EQ(std::tuple(t.dialogs.shown.size(), t->cGamePlay.GameName(), t->cGamePlay.Game_Running(), t->cEngine.GetTransID()),
            std::tuple(1u, "Coral", true, 10));
  t->cGamePlay.Unload();  // the unfinished game is not marked as kept
  EXPECT_EQ(t->cRegistry.Get(setting::UnFin), 0);
}

}  // namespace
}  // namespace qv
