// End-to-end runs of quorvale-cli in a home of its own: its output, exit status and files.
#include <gtest/gtest.h>

#include <sys/wait.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <regex>
#include <stdexcept>
#include <string>
#include <tuple>
#include <vector>

#include "TestProgram.h"

namespace fs = std::filesystem;

namespace qv::test {
namespace {

// Just enough JSON for the tool's output; throws where a comma, colon or quote is missing.
// A scalar keeps its text as printed, so a string keeps its quotes and "1" is not 1.
struct Json {
  std::string text;
  std::vector<std::string> keys;  // an object's, in order, one for each item
  std::vector<Json> items;
  size_t size() const { return items.size(); }
  const Json& operator[](size_t i) const { return items.at(i); }
  const Json& operator[](const std::string& key) const {
    return items.at(std::find(keys.begin(), keys.end(), key) - keys.begin());
  }
};

Json Parse(const std::string& t, size_t* at = nullptr) {
  size_t start = 0, &p = at ? *at : start;
  const auto take = [&](char c) {
    if (t.at(p++) != c) throw std::runtime_error(std::string("expected ") + c + " at " + std::to_string(p - 1));
  };
  Json v;
  const char open = t.at(p);
  if (open == '{' || open == '[') {
    for (++p; t.at(p) != (open == '{' ? '}' : ']');) {
      if (!v.items.empty()) take(',');
      if (open == '{') {
        const std::string key = Parse(t, &p).text;  // a key without quotes loses a letter each end
        v.keys.push_back(key.substr(1, key.size() - 2));
        take(':');
      }
      v.items.push_back(Parse(t, &p));
    }
    ++p;
    if (!at && t.substr(p) != "\n") throw std::runtime_error("text after the value");
    return v;
  }
  size_t end = std::min(t.find_first_of(",]}", p), t.size());  // a number, true or false
  if (open == '"') {  // a string, quotes and all
    for (end = p + 1; t.at(end) != '"'; end += t[end] == '\\' ? 2 : 1) {}
    ++end;
  }
  v.text = t.substr(p, end - p);
  p = end;
  static const std::regex scalar(R"(true|false|null|-?[0-9]+(\.[0-9]+)?|".*")");
  if (!std::regex_match(v.text, scalar)) throw std::runtime_error("not a value: " + v.text);
  return v;
}

// For the shell; the paths here are made by the tests and hold no quote.
std::string Quoted(const std::string& s) { return "'" + s + "'"; }

struct Outcome {
  int status;  // a crash shows as 128 + the signal's number, through the shell
  std::string out, err;
  bool OneErrorLine() const { return std::count(err.begin(), err.end(), '\n') == 1 && err.ends_with('\n'); }
  // Refused as a mistake is: this status, one line on the error stream and nothing else.
  bool Refused(int code) const { return status == code && OneErrorLine() && out.empty(); }
};

// The tool gets a home of its own; scripts, saved games and captured output go to a
// separate scratch folder, so the home holds only what the tool wrote.
class Cli : public ::testing::Test {
 protected:
  Outcome Tool(const std::string& args, const std::string& input = "") {
    const std::string h = home.Path().string(), io = scratch.File("io");
    WriteFile(io + ".in", input);
    const int w = std::system(("cd " + Quoted(scratch.Path().string()) + " && env -i HOME=" + Quoted(h) + " XDG_CONFIG_HOME=" + Quoted(h + "/config") +
                               " XDG_DATA_HOME=" + Quoted(h + "/data") + " PATH=/usr/bin:/bin " +
                               Quoted(QUORVALE_CLI) + " " + args + " <" + Quoted(io + ".in") + " >" +
                               Quoted(io + ".out") + " 2>" + Quoted(io + ".err"))
                                  .c_str());
    return {WIFEXITED(w) ? WEXITSTATUS(w) : -1, ReadFile(io + ".out"), ReadFile(io + ".err")};
  }
  Outcome Run(const std::string& script) { return Tool("run", script); }
  std::string Settings() const { return ReadFile(home.File("config/Quorvale/6.0/quorvale.ini")); }
  fs::path UnfinFile() const { return home.Path() / "data/Velmarin Works/Quorvale 6.0/Unfin.vq0"; }

  TempHome home, scratch;
};

TEST_F(Cli, DealPrintsTheOpeningTableOfSpiderOneAndWritesNothing) {
  const Outcome r = Tool("deal Spider 1");
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_TRUE(fs::is_empty(home.Path()));
  const Json t = Parse(r.out);
  EXPECT_EQ(t.keys, (std::vector<std::string>{"game", "number", "number_typed", "status", "running", "paused", "time",
                                              "moves", "score", "percentage", "cards_left", "trans_id", "trans_top",
                                              "tableau", "stock", "foundations"}));
  EXPECT_EQ(t["game"].text, R"("Spider")");
  EXPECT_EQ(t["number"].text, R"("1")");  // a string: game numbers outgrow every integer type
  EXPECT_EQ(t["tableau"][0][4].keys, (std::vector<std::string>{"pic", "id", "num", "suit", "suitpile", "up"}));
  // Pile 0 of game 1 as worked out, its top card alone open.
  std::vector<std::string> ids, up;
  for (const Json& card : t["tableau"][0].items) ids.push_back(card["id"].text), up.push_back(card["up"].text);
  EXPECT_EQ(ids, (std::vector<std::string>{"97", "22", "92", "9", "100"}));
  EXPECT_EQ(up, (std::vector<std::string>{"false", "false", "false", "false", "true"}));
  EXPECT_EQ(t["tableau"].size(), 10u);
  ASSERT_EQ(t["stock"].size(), 60u);
  EXPECT_EQ(t["stock"][59]["pic"].text, "59");
  EXPECT_TRUE(r.out.ends_with(R"(,"foundations":[[],[],[],[],[],[],[],[]]})" "\n"));
  EXPECT_EQ(Parse(Tool("deal Spider 12345678901234567890").out)["number"].text, R"("12345678901234567890")");
}

TEST_F(Cli, ReplayShowsSavedGamesToTheirEndAndWritesNothing) {
  const std::string running = scratch.File("game.vq0"), finished = scratch.File("game.vq1");
  ASSERT_EQ(Run("new Spider 5\nstock\ntick 30\nsave \"" + running + "\"\n").status, 0);
  fs::copy_file(running, finished);
  for (const auto& e : fs::directory_iterator(home.Path())) fs::remove_all(e.path());  // an empty home
  const Json t = Parse(Tool("replay " + Quoted(running)).out);
  EXPECT_EQ(std::tuple(t["status"].text, t["time"].text, t["stock"].size()), std::tuple("1", "30", 50u));
  // A finished game comes back at its first record; replay and `open` run it to the last.
  const Json done = Parse(Tool("replay " + Quoted(finished)).out);
  EXPECT_EQ(std::tuple(done["status"].text, done["trans_id"].text), std::tuple("2", "10"));
  // The Moves Manager's rows and the history report of the same game only look too.
  const Json rows = Parse(Tool("moves " + Quoted(running)).out);
  ASSERT_EQ(rows.size(), 11u);
  EXPECT_EQ(std::tuple(rows[0]["moves"].text, rows[0]["destination"].text, rows[1]["source"].text,
                       rows[1]["inner"].text + rows[10]["inner"].text),
            std::tuple(R"("Start")", R"("Game No.:5")", R"x("Stock (Pile 0, Card 59)")x", "truefalse"));
  const std::string report = Tool("history " + Quoted(finished)).out;
  EXPECT_TRUE(report.starts_with("Game Name: Spider\r\nGame Number:  5 \r\nPlayer: ")) << report;
  EXPECT_NE(report.find("\r\nMoves:  10 \r\nTime: 0:00:30\r\n"), std::string::npos) << report;  // run to its end
  EXPECT_TRUE(report.ends_with("\r\n 10   Stock (Pile 1, Card 51)  ->Tableau (Pile 10, Card 5)  1 Card Moved\r\n"));
  EXPECT_TRUE(fs::is_empty(home.Path()));
  // In a session, `history` prints the report or writes it to a file.
  const std::string exported = scratch.File("h.txt");
  const Outcome session = Run("open \"" + running + "\"\nhistory\nhistory \"" + exported + "\"\n");
  EXPECT_TRUE(session.out.starts_with("Game Name: Spider\r\nGame Number:  5 \r\n")) << session.out;
  const auto undated = [](std::string r) { return r.erase(r.find("Date :"), r.find("---") - r.find("Date :")); };
  EXPECT_EQ(undated(ReadFile(exported)), undated(session.out));
  EXPECT_EQ(Parse(Run("open \"" + finished + "\"\nshow\n").out)["trans_id"].text, "10");
}

// Ten moves from the Stock and five minutes: a point off for each move and each ten seconds.
TEST_F(Cli, ScriptFileSkipsCommentsKeepsQuotedWordsAndShowsTheTitle) {
  WriteFile(scratch.File("s.txt"), "# a comment\n\n   \nnew \"Spider Two Suit\" 5\n  # indented\ntitle\n"
                                   "stock\ntick 300\ntitle\npause\ntick 5\ntitle\n");
  const Outcome r = Tool("run " + Quoted(scratch.File("s.txt")));
  ASSERT_EQ(r.status, 0) << r.err;
  const std::string head = "Quorvale 6.0 [Spider Two Suit - 5] [Player1] ";
  EXPECT_EQ(r.out, head + "[Time:0:00:00 Score:0 Moves:0 Cards Left:104]\n" + head +
                       "[Time:0:05:00 Score:-105 Moves:10 Cards Left:104]\n" + head +
                       "[Time:0:05:00 Score:-105 Moves:10 Cards Left:104] [Game Paused]\n");
  EXPECT_NE(Settings().find("LastGName=\"Spider Two Suit\""), std::string::npos) << Settings();
  // Only `exit` keeps the unfinished game.
  EXPECT_FALSE(fs::exists(UnfinFile()));
  EXPECT_EQ(Settings().find("UnFin=1"), std::string::npos);
  const Outcome exit = Run("new Spider 5\nstock\nexit\nshow\n");
  ASSERT_EQ(exit.status, 0) << exit.err;
  EXPECT_EQ(exit.out, "");  // nothing runs after exit
  EXPECT_TRUE(fs::exists(UnfinFile()));
  EXPECT_NE(Settings().find("UnFin=1"), std::string::npos) << Settings();
}

TEST_F(Cli, DragsFollowTheRulesAndGreyedCommandsDoNothing) {
  // Spider 5: the Eight of pile 2 cannot go onto the Five of pile 1, nor a face-down card of
  // pile 8 onto the Jack of pile 5, where the Ten of pile 0 then goes.
  const Outcome r = Run("new Spider 5\ndrag 0 2 4 1\ndrag 0 8 0 5\ndrag 0 0 4 5\nshow\nundo\nshow\n");
  ASSERT_EQ(r.status, 0) << r.err;
  const size_t split = r.out.find('\n') + 1;
  const Json moved = Parse(r.out.substr(0, split)), undone = Parse(r.out.substr(split));
  EXPECT_EQ(moved["moves"].text, "1");  // one move, from pile 0 to pile 5
  EXPECT_EQ(std::tuple(moved["tableau"][0].size(), moved["tableau"][5].size()), std::tuple(4u, 5u));
  EXPECT_EQ(std::tuple(undone["tableau"][0].size(), undone["tableau"][5].size()), std::tuple(5u, 4u));
  const std::string nowhere = scratch.File("none.vq0");
  const Outcome empty = Run("undo\nrestart\nsave \"" + nowhere + "\"\npause\nclose\nstock\ntick 5\nshow\n");
  ASSERT_EQ(empty.status, 0) << empty.err;
  EXPECT_EQ(Parse(empty.out)["tableau"].size(), 0u);
  EXPECT_FALSE(fs::exists(nowhere));
}

// Command-line mistakes, and script lines that cannot run: a script stops at once.
TEST_F(Cli, UsageErrorsAreStatusTwoWithOneLineNamingTheScriptLine) {
  const std::tuple<std::string, std::string, int> cases[] = {  // arguments, script, its line at fault
      {"", "", 0}, {"deal Spider 0", "", 0}, {"deal Spider 12x", "", 0}, {"deal Spider", "", 0},
      {"deal Nonsense 5", "", 0}, {"play", "", 0}, {"run a b", "", 0}, {"run", "new Spider 5\nfly", 2},
      {"run", "# start\n\nnew Spider", 3}, {"run", "new Spider 5\ndrag 0 0 30 1", 2},
      {"run", "new Spider 5\ndblclick 1 0 0", 2}, {"run", "new Nonsense 5", 1}, {"run", "new Spider 5\ntick -3", 2},
      {"run", "new Spider 5\nshow 1", 2}, {"run", "new Spider 0", 1}};
  for (const auto& [args, script, line] : cases) {
    const Outcome r = Tool(args, script + "\nshow\n");
    EXPECT_TRUE(r.Refused(2)) << args << ": " << script << ": " << r.status << " " << r.err;
    EXPECT_EQ(r.err.find(": line " + std::to_string(line) + ": ") != std::string::npos, line > 0) << r.err;
  }
  const Outcome help = Tool("--help");
  EXPECT_EQ(help.status, 0);
  for (const std::string c : {"deal", "replay", "run", "new", "number", "drag", "dragxy", "stock", "dblclick", "undo",
                              "redo", "undoall", "redoall", "moveto", "tick", "pause", "restart", "close", "save",
                              "open", "show", "title", "exit", "autosave-list", "pending-list", "recent", "history", "moves"})
    EXPECT_TRUE(std::regex_search(help.out, std::regex("\\b" + c + "\\b"))) << c;
}

TEST_F(Cli, BadFilesAreFileErrorsThatChangeNothing) {
  // A cut game of another kind: loading it must not leave its name in the settings.
  ASSERT_EQ(Run("new \"Spider Two Suit\" 7\nstock\nsave \"" + scratch.File("two.vq0") + "\"\n").status, 0);
  const std::string two = ReadFile(scratch.File("two.vq0"));
  WriteFile(scratch.File("cut.vq0"), two.substr(0, two.size() / 3));
  WriteFile(scratch.File("junk.vq0"), "garbage\n\x01\x02");
  ASSERT_EQ(Run("new Spider 5\nstock\n").status, 0);
  const std::string settings = Settings();
  for (const std::string name : {"cut.vq0", "junk.vq0", "missing.vq0"}) {
    const std::string path = scratch.File(name), before = ReadFile(path);
    for (const std::string look : {"replay ", "history ", "moves "}) {
      const Outcome r = Tool(look + Quoted(path));
      EXPECT_TRUE(r.Refused(1)) << look << name << ": " << r.err;
    }
    const Outcome r = Run("new Spider 5\nstock\nopen \"" + path + "\"\nexit\n");
    EXPECT_TRUE(r.status == 1 && r.OneErrorLine() && r.err.find(": line 3: ") != std::string::npos) << name << ": " << r.err;
    EXPECT_FALSE(fs::exists(UnfinFile())) << "the script went on after line 3";
    EXPECT_EQ(Settings(), settings) << name;
    EXPECT_EQ(ReadFile(path), before) << name;
  }
  const Outcome noScript = Tool("run " + Quoted(scratch.File("no-such-script")));
  EXPECT_TRUE(noScript.status == 1 && noScript.OneErrorLine()) << noScript.err;
}

// The lists only look, so an empty home stays empty. What a session leaves is listed, a file
// that does not read is not, and `save` and `open` go to the recent lists as at the window.
TEST_F(Cli, ListsShowWhatReadsAndLookingWritesNothing) {
  for (const std::string list : {"autosave-list", "pending-list", "recent 0", "recent 1", "recent 2"})
    EXPECT_EQ(Tool(list).status, 0) << list;
  EXPECT_TRUE(fs::is_empty(home.Path()));
  const std::string good = scratch.File("good.vq0"), bad = scratch.File("bad.vq0");
  ASSERT_EQ(Run("new Spider 5\nsave \"" + bad + "\"\nsave good.vq0\nclose\nopen good.vq0\n").status, 0);
  WriteFile(bad, "not a game");
  const fs::path autosave = home.Path() / "Documents/My Games/Quorvale 6.0/AutoSave Files";
  const fs::path pending = home.Path() / "data/Velmarin Works/Quorvale 6.0/Pending List";
  fs::create_directories(pending);
  fs::copy_file(good, pending / "Spider-5.vq0");
  for (const fs::path& folder : {autosave, pending}) fs::copy_file(bad, folder / "bad.vq0");
  const auto list = [](const fs::path& file) { return "[\"" + file.string() + "\"]"; };
  EXPECT_EQ(Tool("autosave-list").out, "{\"incomplete\":" + list(autosave / "Spider-5.vq0") + ",\"finished\":[]}\n");
  EXPECT_EQ(Tool("pending-list").out, list(pending / "Spider-5.vq0") + "\n");
  EXPECT_EQ(Tool("recent 0").out, "[\"Spider - 5\"]\n");
  EXPECT_EQ(Tool("recent 1").out, list(good) + "\n");
  EXPECT_EQ(Tool("recent 2").out, list(good) + "\n");
}

TEST_F(Cli, FavouritesAreAddedListedPlayedAndTheSelectionFills) {
  const std::string fav = scratch.File("mine");
  ASSERT_EQ(Run("number Coral 0042\naddfav\naddfav \"" + fav + "\"\nplayfav \"" + fav + "\"\ntitle\n").status, 0);
  const Json all = Parse(Tool("favorites").out);
  ASSERT_EQ(all["games"].size(), 1u);
  const Json& g = all["games"][0];
  EXPECT_EQ(std::tuple(g["name"].text, g["number"].text, g["typed"].text), std::tuple(R"("Coral - 0042")", R"("0042")", "true"));
  EXPECT_EQ(Run("playfav \"" + scratch.File("none") + "\"\n").status, 1);
  const Json tree = Parse(Tool("select Fav").out);
  EXPECT_EQ(tree["root"]["text"].text, R"("Favorites")");
  const std::string key = tree["root"]["children"][0]["key"].text;
  const Json item = Parse(Tool("select Fav " + Quoted(key.substr(1, key.size() - 2))).out);
  EXPECT_EQ(item["details"][1].text, R"("Game Number :0042")");
  EXPECT_EQ(item["rules"].size(), 6u);
  EXPECT_EQ(Parse(Tool("select rPlay").out)["root"]["children"][0]["text"].text, R"("Coral - 0042")");
  EXPECT_EQ(Tool("select Nope").status, 2);
}

// A game of "Any Card" rules one double-click from its win, saved where the tool can open it;
// the place of the last card on the table comes back.
std::string AlmostWon(const std::string& path) {
  TestProgram t;
  PlayWithRules(t, {.HOrder = 5, .MOrder = 5});
  if (!WinGame(t)) return "";
  int speed = 0;
  t->cEngine.Undo(speed);
  t->cEngine.SavetoFile(path);
  for (int p = 0; p < t->cGames.Piles(0); ++p)
    if (t->cPlay.GetTop(0, p) >= 0) return "0 " + std::to_string(p) + " " + std::to_string(t->cPlay.GetTop(0, p));
  return "";
}

TEST_F(Cli, AScriptedWinIsRecordedAndThePlayersCommandsMoveItsFile) {
  const std::string game = scratch.File("almost.vq0");
  const std::string last = AlmostWon(game);
  ASSERT_FALSE(last.empty());
  const Outcome r = Run("player Ann\nopen \"" + game + "\"\ndblclick " + last + "\nsession\nshow\n");
  ASSERT_EQ(r.status, 0) << r.err;
  const auto lines = r.out.substr(0, r.out.find('\n') + 1);
  const Json session = Parse(lines);
  ASSERT_EQ(session["games"].size(), 1u);
  EXPECT_EQ(std::tuple(session["games"][0]["player"].text, session["won"].text), std::tuple(R"("Ann")", "1"));
  EXPECT_EQ(Parse(r.out.substr(lines.size()))["status"].text, "0");  // closed as by "Close"

  const Json scores = Parse(Tool("scores").out);
  ASSERT_EQ(scores.size(), 1u);
  EXPECT_EQ(std::tuple(scores[0]["game"].text, scores[0]["won"].text), std::tuple(R"("Test Rules")", "1"));
  EXPECT_EQ(Parse(Tool("top --by moves").out).size(), 1u);
  EXPECT_EQ(Parse(Tool("top --player Player1").out).size(), 0u);
  EXPECT_EQ(Parse(Tool("log --date t --now 1/1/2000").out).size(), 0u);  // a game in the future
  EXPECT_EQ(Tool("log --date 2d").status, 2);

  const Outcome refused = Tool("players rename Ann Player1");
  EXPECT_EQ(std::tuple(refused.status, refused.err), std::tuple(1, "quorvale-cli: Player Exists !\n"));
  const Json players = Parse(Tool("players rename Ann Bea").out);
  EXPECT_EQ(players["current"].text, R"("Bea")");
  EXPECT_TRUE(fs::exists(home.Path() / "data/Velmarin Works/Quorvale 6.0Bea.sre"));
  EXPECT_EQ(Tool("players delete Bea").err, "quorvale-cli: The current player cannot be deleted.\n");
  EXPECT_NE(Tool("export").out.find("Bea            1             1             0"), std::string::npos);
}

// A created game made, listed, dealt, read as rules, kept from an overwrite, and deleted.
TEST_F(Cli, CreatedGamesFromCreateToDelete) {
  const Outcome made = Tool("create-game 'Six, Easy' 6 4 12 0 0 2");  // one suit: the multi order falls back
  ASSERT_EQ(made.status, 0) << made.err;
  EXPECT_EQ(made.err, "quorvale-cli: Quorvale will change Multi Card order to Down Same Suit since it is a Single "
                      "Suit Game \nquorvale-cli: Successfully Saved Game : Six, Easy\n");
  const Json games = Parse(Tool("games").out);
  ASSERT_EQ(games.size(), 8u);
  EXPECT_EQ(games[0]["file"].text, "null");
  const Json& g = games[7];
  EXPECT_EQ(std::tuple(g["id"].text, g["name"].text, g["created"].text, g["hpiles"].text, g["hspace"].text,
                       g["suits"].text, g["morder"].text),
            std::tuple("8", R"("Six, Easy")", "true", "6", "12", "0", "0"));
  EXPECT_TRUE(g["file"].text.ends_with(R"(/Custom Games/Six, Easy.gam")"));
  EXPECT_EQ(Parse(Tool("deal 'Six, Easy' 1").out)["tableau"].size(), 6u);
  const Outcome kept = Tool("create-game 'Six, Easy' 7 4 13 0 2 0");
  EXPECT_EQ(kept.status, 1);
  EXPECT_NE(kept.err.find("Another Game exists with the same name. Do you want to overwrite ?"), std::string::npos);
  EXPECT_EQ(Tool("create-game 'Six, Easy' 7 4 13 0 2 0 --overwrite").status, 0);
  const std::string rules = Tool("rules 'Six, Easy'").out;
  EXPECT_TRUE(rules.starts_with("Six, Easy\n2 Decks (104 cards)\nObject : To build 8 sets")) << rules;
  EXPECT_NE(rules.find("\nTableau (7 Piles )\nBuild Tableau Down Regardless of Suit\n"), std::string::npos);
  EXPECT_NE(rules.find("\nSpaces in tableau may be filled with Any Card\nStock \n"), std::string::npos);
  EXPECT_NE(Tool("rules Scarab").out.find("only if they are in sequence Down Regardless of Suit\n"), std::string::npos);
  EXPECT_EQ(Tool("create-game 'a/b' 6 4 13 0 2 0").err, "quorvale-cli: Please Enter a valid Game Name\n");
  EXPECT_EQ(Tool("create-game Big 11 4 13 0 2 0").status, 2);
  const Outcome gone = Tool("delete-game 'Six, Easy'");
  EXPECT_EQ(gone.err, "quorvale-cli: Are you sure you want to delete game : Six, Easy ?\n");
  EXPECT_EQ(Parse(Tool("games").out).size(), 7u);
  EXPECT_EQ(Tool("delete-game 'Six, Easy'").status, 2);
}

TEST_F(Cli, BackgroundSchemesAndSoundsOnlyLookAndRunTellsTheSoundsPlayed) {
  EXPECT_EQ(Tool("background").out, R"({"kind":1,"index":7,"name":"Felt Green","top":[20,105,45],"bottom":[0,0,0],)"
                                    R"("fade":1,"tile":1,"timer":4})" "\n");
  EXPECT_EQ(Tool("schemes").out, "[]\n");
  const Json sounds = Parse(Tool("sounds").out);
  ASSERT_EQ(sounds.size(), 30u);
  EXPECT_EQ(sounds[4]["key"].text + sounds[4]["label"].text, R"("Redo""Redo")");
  EXPECT_EQ(sounds[4]["path"].text, "\"" + (fs::path(QUORVALE_CLI).parent_path() / "Undo.wav").string() + "\"");
  EXPECT_EQ(sounds[4]["exists"].text, "true");  // made by the build beside the programs
  EXPECT_EQ(sounds[29]["group"].text, R"("Help")");
  EXPECT_EQ(Tool("deal Spider 2").status, 0);  // which picks a wallpaper, looking only
  EXPECT_TRUE(fs::is_empty(home.Path()));
  EXPECT_EQ(Run("new Spider 1\nsounds\nstock\nundo\nsounds\nsounds\n").out, "[\"Start\"]\n[\"Undo\"]\n[]\n");
}

TEST_F(Cli, SolveGivesAWinThatRunReplaysAndRefusesBadArguments) {
  const Outcome r = Tool("solve 'Spider Single Suit' 3 3 --solution");
  ASSERT_EQ(r.status, 0) << r.err;
  const Json line = Parse(r.out);
  ASSERT_EQ(line["verdict"].text, "\"winnable\"");
  std::string script = "new \"Spider Single Suit\" 3\n";
  for (const Json& l : line["script"].items) script += l.text.substr(1, l.text.size() - 2) + "\n";
  EXPECT_EQ(Parse(Run(script + "show\n").out)["cards_left"].text, "0");
  // run's solve and hint search the table as it lies: here, the deal's first move is known.
  const Outcome asked = Run("new \"Spider Single Suit\" 3\nsolve\nhint\n");
  const size_t cut = asked.out.find('\n');
  EXPECT_EQ(Parse(asked.out.substr(0, cut + 1))["verdict"].text, "\"winnable\"") << asked.out;
  EXPECT_TRUE(asked.out.substr(cut + 1).starts_with("Move the ")) << asked.out;
  const Outcome range = Tool("solve Spider 7 9 --budget 1 --player --samples 2");
  EXPECT_EQ(std::count(range.out.begin(), range.out.end(), '\n'), 3) << range.err;
  for (const char* bad : {"solve Spider 1 2 --budget 0", "solve Spider 1 2 --budget -5", "solve Spider 1 2 --budget x",
                          "solve Spider 1 2 --budget 86400001", "solve Spider 1 2 --memory 15", "solve Spider 3 2",
                          "solve Spider 1 1234567890123456", "solve Spider 1 2 --samples 3", "solve Nothing 1 2"}) {
    const Outcome o = Tool(bad);
    EXPECT_EQ(o.status, 2) << bad;
    EXPECT_TRUE(o.OneErrorLine()) << bad << o.err;
  }
  WriteFile(scratch.File("bad.vq0"), "not a saved game\r\n");
  const Outcome bad = Tool("solve " + Quoted(scratch.File("bad.vq0")));
  EXPECT_EQ(bad.status, 1);
  EXPECT_TRUE(bad.OneErrorLine()) << bad.err;
}

}  // namespace
}  // namespace qv::test
