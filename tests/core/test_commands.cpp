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
  EXPECT_TRUE(t.window.stopEnabled);
  EXPECT_EQ(t->cEngine.GetTransID(), 0);
  ReplayTick(*t.app, false);  // nothing left: the replay stops itself
  EXPECT_FALSE(IsReplaying(*t.app));
  EXPECT_FALSE(t.window.stopEnabled);

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
  EXPECT_EQ(t->cEngine.GetTransID(), 0);
  EXPECT_TRUE(t.window.TimerEnabled(Timer::Forward));
  ExecCommand(*t.app, "Stop");
  EXPECT_FALSE(IsReplaying(*t.app));
  ExecCommand(*t.app, "Forward");
  EXPECT_TRUE(t.window.TimerEnabled(Timer::Forward));
  ExecCommand(*t.app, "Options");
  EXPECT_FALSE(IsReplaying(*t.app));
  EXPECT_EQ(t.window.opened.back(), "Options");
  // Replaying a running game ends where the journal ends, with the game still running.
  ExecCommand(*t.app, "ReplayAll");
  while (IsReplaying(*t.app)) ReplayTick(*t.app, true);
  EXPECT_EQ(t->cEngine.GetTransID(), 20);
  EXPECT_TRUE(t->cGamePlay.Game_Running());
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
  ExecCommand(*t.app, "Pause");
  EXPECT_FALSE(t->cGamePlay.PauseStatus());
  ExecCommand(*t.app, "ViewTool");
  EXPECT_FALSE(ToolbarChecked(*t.app));
  ExecCommand(*t.app, "AutoPlay");
  EXPECT_FALSE(AutoPlayChecked(*t.app));
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
  EXPECT_FALSE(AutoPlayChecked(*t.app));
}

// The defaults of Undo and Undo All, and a separator following AddFav, are also seen in the window's tests.
TEST_F(Commands, ToolbarDefaultsAndSeparators) {
  auto& reg = t->cRegistry;
  const auto shown = [&](std::string_view key) {
    for (const auto& b : ToolbarLayout())
      if (b.key == key) return ToolbarItemShown(reg, b);
    throw std::runtime_error(std::string(key));
  };
  EXPECT_TRUE(shown("Editor"));
  EXPECT_TRUE(shown("Sep8"));  // AddFav shows by default
  SetButtonShown(reg, "AddFav", false);
  EXPECT_FALSE(shown("Sep8"));
  SetButtonShown(reg, "OrgFav", true);  // the other button of its group brings it back
  EXPECT_TRUE(shown("Sep8"));
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
  EXPECT_EQ(shortcuts["UndoAll"], "Ctrl+C");
  EXPECT_EQ(shortcuts["RedoAll"], "Ctrl+V");
  EXPECT_EQ(shortcuts["Redo"], "Ctrl+X");
  EXPECT_EQ(MainMenus().size(), 9u);
}

// ---- the first game of a run ----

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

TEST_F(FirstGames, TheUnfinishedGameComesBackAndStaysMarked) {
  FirstGame(*t.app, "");
  EXPECT_EQ(t->cGamePlay.GameName(), "Coral");
  EXPECT_EQ(t->cEngine.GetTransID(), 10);
  EXPECT_EQ(t->cRegistry.Get(setting::UnFin), 1);  // a crash now offers it again
}

TEST_F(FirstGames, AnUnfinishedGameThatDoesNotReadIsGivenUpOnce) {
  test::WriteFile(t->cData.UnFinFile(), "Coral\r\n 12 \r\n");
  FirstGame(*t.app, "");
  EXPECT_EQ(t.dialogs.shown.size(), 1u);
  EXPECT_EQ(t->cRegistry.Get(setting::UnFin), 0);
  EXPECT_TRUE(std::filesystem::exists(t->cData.UnFinFile()));
  EXPECT_EQ(t.window.opened, std::vector<std::string>{"Select"});
}

TEST_F(FirstGames, AFileAndAnUnfinishedGameAskWhichToPlay) {
  t.dialogs.answers = {Answer::Yes};
  FirstGame(*t.app, t.home.File("given.vq0"));
  EXPECT_EQ(t->cGamePlay.GameName(), "Plaza");
  EXPECT_EQ(t->cRegistry.Get(setting::UnFin), 0);
  EXPECT_EQ(GetAutoSaveFiles(*t.app, false).size(), 1u);  // given up, it is kept as a copy
  EXPECT_NE(t.dialogs.shown[0].find("An unfinished game from previous session exists!"), std::string::npos);

  test::TestProgram no;
  ASSERT_TRUE(t->cEngine.SavetoFile(no->cData.UnFinFile()));
  no.settings.WriteInt("General", "UnFin", 1);
  FirstGame(*no.app, t.home.File("given.vq0"));  // No: the previous game
  EXPECT_EQ(no->cGamePlay.GameName(), "Plaza");
  EXPECT_EQ(no->cRegistry.Get(setting::UnFin), 1);
}

TEST_F(FirstGames, AStopAtTheQuestionOrDuringTheChosenDealLosesNeitherGame) {
  t.dialogs.onShow = [&] { StopProgram(*t.app, nullptr); };  // a logout while it asks
  FirstGame(*t.app, t.home.File("given.vq0"));
  EXPECT_EQ(t->cRegistry.Get(setting::UnFin), 1);
  EXPECT_EQ(ReadGameHeader(t->cData.UnFinFile())->GameName, "Coral");

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
  EXPECT_EQ(t->cGamePlay.GameName(), "Coral");
  EXPECT_EQ(t->cRegistry.Get(setting::UnFin), 1);
  EXPECT_EQ(t.dialogs.shown.size(), 2u);  // the question, then why the file did not play
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
  EXPECT_EQ(ExpandReferences("100% sure"), "100% sure");
  EXPECT_EQ(ExpandReferences("%NO_SUCH_NAME_Q% 50%"), "%NO_SUCH_NAME_Q% 50%");
  EXPECT_EQ(ExpandReferences("%%"), "%%");
  t.settings.WriteInt("Options", "RangeIndex", 70000);
  EXPECT_EQ(reg.Get(setting::RangeIndex), 32767);  // read into 16 bits
}

TEST(SettingsAccess, AccessorsMendWhatNoLongerFits) {
  test::TestProgram t;
  EXPECT_EQ(DeckIndex(*t.app), 7);
  t.settings.WriteInt("BackGround", "DeckIndex", 12);
  EXPECT_EQ(DeckIndex(*t.app), 12);
  t.settings.WriteInt("BackGround", "DeckIndex", 13);
  EXPECT_EQ(DeckIndex(*t.app), 7);
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
  EXPECT_EQ(t.dialogs.shown.size(), 1u);
  EXPECT_EQ(t->cGamePlay.GameName(), "Coral");
  EXPECT_TRUE(t->cGamePlay.Game_Running());
  test::DealRows(t, 1);
  EXPECT_EQ(t->cEngine.GetTransID(), 10);
  t->cGamePlay.Unload();  // the unfinished game is not marked as kept
  EXPECT_EQ(t->cRegistry.Get(setting::UnFin), 0);
}

}  // namespace
}  // namespace qv
