// End-to-end runs of quorvale-cli with a home folder of its own.
#include <gtest/gtest.h>

#include <sys/wait.h>

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "TestProgram.h"

namespace fs = std::filesystem;

namespace qv::test {
namespace {

// Just enough JSON for the tool's output: objects, arrays, strings, whole numbers, booleans.
struct Json {
  enum Kind { Bool, Number, String, Array, Object } kind = Number;
  bool b = false;
  long long n = 0;
  std::string s;
  std::vector<Json> items;
  std::vector<std::pair<std::string, Json>> members;

  const Json& operator[](size_t i) const { return items.at(i); }
  const Json& operator[](const std::string& key) const {
    for (const auto& [k, v] : members)
      if (k == key) return v;
    throw std::out_of_range("no key " + key);
  }
  size_t size() const { return kind == Array ? items.size() : members.size(); }
};

// Reads one value at `p`, moving past it; throws on anything the tool should never print.
Json ReadValue(const std::string& t, size_t& p) {
  auto expect = [&](char c) {
    if (p >= t.size() || t[p] != c) throw std::runtime_error(std::string("expected ") + c + " at " + std::to_string(p));
    ++p;
  };
  auto text = [&] {
    expect('"');
    std::string out;
    for (; p < t.size() && t[p] != '"'; ++p) {
      if (t[p] != '\\') {
        out += t[p];
      } else if (t.at(++p) != 'u') {
        out += t[p];
      } else {
        out += static_cast<char>(std::stoi(t.substr(p + 1, 4), nullptr, 16));
        p += 4;
      }
    }
    expect('"');
    return out;
  };
  Json v;
  const char c = p < t.size() ? t[p] : '\0';
  if (c == '{' || c == '[') {
    v.kind = c == '{' ? Json::Object : Json::Array;
    const char close = c == '{' ? '}' : ']';
    for (++p; p < t.size() && t[p] != close;) {
      if (v.size() > 0) expect(',');
      if (v.kind == Json::Array) {
        v.items.push_back(ReadValue(t, p));
        continue;
      }
      std::string key = text();
      expect(':');
      v.members.emplace_back(std::move(key), ReadValue(t, p));
    }
    expect(close);
  } else if (c == '"') {
    v.kind = Json::String;
    v.s = text();
  } else if (t.compare(p, 4, "true") == 0 || t.compare(p, 5, "false") == 0) {
    v.kind = Json::Bool;
    v.b = c == 't';
    p += v.b ? 4 : 5;
  } else {
    size_t used = 0;
    v.n = std::stoll(t.substr(p, 24), &used);
    p += used;
  }
  return v;
}

Json Parse(const std::string& text) {
  size_t p = 0;
  Json v = ReadValue(text, p);
  if (text.find_first_not_of(" \n", p) != std::string::npos) throw std::runtime_error("text after the value");
  return v;
}

std::string ShellQuote(const std::string& s) {
  std::string out = "'";
  for (char c : s) out += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return out + "'";
}

// A path as one word of a script line.
std::string InScript(const std::string& s) { return "\"" + s + "\""; }

struct Outcome {
  int status = -1;  // -1 when the tool did not end by itself (a crash)
  std::string out, err;
  std::vector<std::string> ErrLines() const {
    std::vector<std::string> lines;
    for (size_t a = 0; a < err.size();) {
      const size_t b = std::min(err.find('\n', a), err.size());
      lines.push_back(err.substr(a, b - a));
      a = b + 1;
    }
    return lines;
  }
};

// Each test has a home for the tool and a separate scratch folder for scripts, saved
// games and captured errors, so that what the tool writes is all that is in the home.
class CliTest : public ::testing::Test {
 protected:
  Outcome Cli(const std::string& args, const std::string& input = "") {
    const std::string h = home.Path().string(), errFile = scratch.File("stderr"), inFile = scratch.File("stdin");
    WriteFile(inFile, input);
    const std::string cmd = "env -i HOME=" + ShellQuote(h) + " XDG_CONFIG_HOME=" + ShellQuote(h + "/config") +
                            " XDG_DATA_HOME=" + ShellQuote(h + "/data") + " PATH=/usr/bin:/bin " +
                            ShellQuote(QUORVALE_CLI) + " " + args + " <" + ShellQuote(inFile) + " 2>" +
                            ShellQuote(errFile);
    Outcome r;
    FILE* pipe = popen(cmd.c_str(), "r");
    if (!pipe) return r;
    char buf[4096];
    for (size_t got; (got = fread(buf, 1, sizeof buf, pipe)) > 0;) r.out.append(buf, got);
    const int w = pclose(pipe);
    if (WIFEXITED(w)) r.status = WEXITSTATUS(w);
    r.err = ReadFile(errFile);
    return r;
  }
  Outcome Run(const std::string& script) { return Cli("run", script); }
  Json Show(const std::string& script) {
    const Outcome r = Run(script + "\nshow\n");
    EXPECT_EQ(r.status, 0) << r.err;
    return Parse(r.out);
  }
  std::string Settings() const { return ReadFile(home.File("config/Quorvale/6.0/quorvale.ini")); }
  fs::path UnfinFile() const { return home.Path() / "data/Velmarin Works/Quorvale 6.0/Unfin.vq0"; }
  std::vector<std::string> HomeEntries() const {
    std::vector<std::string> all;
    for (const auto& e : fs::recursive_directory_iterator(home.Path())) all.push_back(e.path().string());
    std::sort(all.begin(), all.end());
    return all;
  }
  // A running game of Spider 5 after one row from the Stock and 30 seconds, saved to scratch.
  std::string SavedGame() {
    const std::string path = scratch.File("game.vq0");
    EXPECT_EQ(Run("new Spider 5\nstock\ntick 30\nsave " + InScript(path) + "\n").status, 0);
    return path;
  }

  TempHome home, scratch;
};

std::vector<long long> Ids(const Json& pile) {
  std::vector<long long> ids;
  for (const auto& c : pile.items) ids.push_back(c["id"].n);
  return ids;
}

// `word` stands alone somewhere in `text`, not only inside a longer word ("redo" in "redoall").
bool MentionsWord(const std::string& text, const std::string& word) {
  auto letter = [](char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0; };
  for (size_t at = text.find(word); at != std::string::npos; at = text.find(word, at + 1)) {
    const size_t end = at + word.size();
    if ((at == 0 || !letter(text[at - 1])) && (end == text.size() || !letter(text[end]))) return true;
  }
  return false;
}

using CliDeal = CliTest;

TEST_F(CliDeal, PrintsTheOpeningTableOfSpiderOne) {
  const Outcome r = Cli("deal Spider 1");
  ASSERT_EQ(r.status, 0) << r.err;
  const Json t = Parse(r.out);
  std::vector<std::string> keys;
  for (const auto& m : t.members) keys.push_back(m.first);
  EXPECT_EQ(keys, (std::vector<std::string>{"game", "number", "number_typed", "status", "running", "paused", "time",
                                            "moves", "score", "percentage", "cards_left", "trans_id", "trans_top",
                                            "tableau", "stock", "foundations"}));
  EXPECT_EQ(t["game"].s, "Spider");
  EXPECT_EQ(t["number"].kind, Json::String);
  EXPECT_EQ(t["number"].s, "1");
  EXPECT_EQ(Ids(t["tableau"][0]), (std::vector<long long>{97, 22, 92, 9, 100}));
  const Json& ten = t["tableau"][0][4];
  keys.clear();
  for (const auto& m : ten.members) keys.push_back(m.first);
  EXPECT_EQ(keys, (std::vector<std::string>{"pic", "id", "num", "suit", "suitpile", "up"}));
  EXPECT_EQ(ten["num"].n, 9);
  EXPECT_EQ(ten["suitpile"].n, 7);
  ASSERT_EQ(t["tableau"].size(), 10u);
  for (size_t p = 0; p < 10; ++p) {
    const Json& pile = t["tableau"][p];
    ASSERT_EQ(pile.size(), p < 4 ? 5u : 4u) << "pile " << p;
    for (size_t q = 0; q < pile.size(); ++q) EXPECT_EQ(pile[q]["up"].b, q + 1 == pile.size()) << p << "/" << q;
  }
  ASSERT_EQ(t["stock"].size(), 60u);
  EXPECT_EQ(t["stock"][59]["pic"].n, 59);
  ASSERT_EQ(t["foundations"].size(), 8u);
  for (const auto& f : t["foundations"].items) EXPECT_EQ(f.size(), 0u);
}

TEST_F(CliDeal, NumbersDealAsTheGeneratorReadsThem) {
  // 32 and 8193 bring the same seed bits into the generator, so the same cards.
  const Json a = Parse(Cli("deal Spider 32").out), b = Parse(Cli("deal Spider 8193").out);
  ASSERT_EQ(a["tableau"].size(), 10u);
  for (size_t p = 0; p < 10; ++p) EXPECT_EQ(Ids(a["tableau"][p]), Ids(b["tableau"][p])) << "pile " << p;
  EXPECT_EQ(Ids(a["stock"]), Ids(b["stock"]));
  EXPECT_EQ(Parse(Cli("deal Spider 12345").out)["stock"][0]["id"].n, 45);
  const Outcome big = Cli("deal Spider 12345678901234567890");
  ASSERT_EQ(big.status, 0) << big.err;
  EXPECT_EQ(Parse(big.out)["number"].s, "12345678901234567890");
  EXPECT_EQ(Parse(Cli("deal \"Spider Two Suit\" 5").out)["game"].s, "Spider Two Suit");
}

TEST_F(CliDeal, DealAndReplayWriteNothing) {
  ASSERT_EQ(Cli("deal Spider 1").status, 0);
  EXPECT_EQ(HomeEntries(), std::vector<std::string>{});
  const std::string saved = SavedGame();
  const auto before = HomeEntries();
  const std::string settings = Settings();
  ASSERT_EQ(Cli("replay " + ShellQuote(saved)).status, 0);
  EXPECT_EQ(HomeEntries(), before);
  EXPECT_EQ(Settings(), settings);
}

TEST_F(CliDeal, CommandLineMistakesAreUsageErrors) {
  for (const char* args :
       {"", "deal Spider 0", "deal Spider 12x", "deal Spider", "deal Nonsense 5", "play", "run a b"}) {
    const Outcome r = Cli(args);
    EXPECT_EQ(r.status, 2) << args;
    EXPECT_EQ(r.ErrLines().size(), 1u) << args << ": " << r.err;
    EXPECT_EQ(r.out, "") << args;
  }
  const Outcome help = Cli("--help");
  EXPECT_EQ(help.status, 0);
  for (const char* c : {"deal", "replay", "run", "new", "number", "drag", "dragxy", "stock", "dblclick", "undo", "redo",
                        "undoall", "redoall", "moveto", "tick", "pause", "restart", "close", "save", "open", "show",
                        "title", "exit"})
    EXPECT_TRUE(MentionsWord(help.out, c)) << c;
}

using CliReplay = CliTest;

TEST_F(CliReplay, UnfinishedGameComesBackAsSaved) {
  const Json t = Parse(Cli("replay " + ShellQuote(SavedGame())).out);
  EXPECT_EQ(t["game"].s, "Spider");
  EXPECT_EQ(t["number"].s, "5");
  EXPECT_EQ(t["status"].n, 1);
  EXPECT_EQ(t["time"].n, 30);
  EXPECT_EQ(t["trans_id"].n, 10);
  EXPECT_EQ(t["stock"].size(), 50u);
}

TEST_F(CliReplay, FinishedGameIsReplayedToItsLastRecord) {
  const std::string finished = scratch.File("game.vq1");
  fs::rename(SavedGame(), finished);
  const Outcome r = Cli("replay " + ShellQuote(finished));
  ASSERT_EQ(r.status, 0) << r.err;
  const Json t = Parse(r.out);
  EXPECT_EQ(t["status"].n, 2);
  EXPECT_EQ(t["trans_id"].n, 10);
  EXPECT_EQ(t["trans_top"].n, 10);
  EXPECT_EQ(t["stock"].size(), 50u);
  // In a script, `open` replays it at once: the very next command sees the end.
  const Json opened = Show("open " + InScript(finished));
  EXPECT_EQ(opened["status"].n, 2);
  EXPECT_EQ(opened["trans_id"].n, 10);
}

TEST_F(CliReplay, UnreadableFilesAreFileErrorsAndStayOnDisk) {
  const std::string good = ReadFile(SavedGame());
  WriteFile(scratch.File("cut.vq0"), good.substr(0, good.size() / 3));
  WriteFile(scratch.File("junk.vq0"), "garbage\n\x01\x02");
  for (const std::string name : {"cut.vq0", "junk.vq0", "missing.vq0"}) {
    const std::string before = ReadFile(scratch.File(name));
    const Outcome r = Cli("replay " + ShellQuote(scratch.File(name)));
    EXPECT_EQ(r.status, 1) << name;
    EXPECT_EQ(r.ErrLines().size(), 1u) << name << ": " << r.err;
    EXPECT_EQ(r.out, "");
    EXPECT_EQ(ReadFile(scratch.File(name)), before) << name;
  }
}

using CliRun = CliTest;

TEST_F(CliRun, ScriptFromFileSkipsCommentsAndKeepsQuotedWords) {
  WriteFile(scratch.File("s.txt"), "# a comment\n\n   \nnew \"Spider Two Suit\" 7\n  # indented comment\nshow\n");
  const Outcome r = Cli("run " + ShellQuote(scratch.File("s.txt")));
  ASSERT_EQ(r.status, 0) << r.err;
  const Json t = Parse(r.out);
  EXPECT_EQ(t["game"].s, "Spider Two Suit");
  EXPECT_EQ(t["number"].s, "7");
  EXPECT_NE(Settings().find("LastGName=\"Spider Two Suit\""), std::string::npos) << Settings();
}

TEST_F(CliRun, TitleFollowsClockMovesAndScore) {
  const Outcome r = Run("new Spider 5\ntitle\nstock\ntick 300\ntitle\npause\ntick 5\ntitle\n");
  ASSERT_EQ(r.status, 0) << r.err;
  const std::string head = "Quorvale 6.0 [Spider - 5] [Player1] ";
  EXPECT_EQ(r.out, head + "[Time:0:00:00 Score:0 Moves:0 Cards Left:104]\n" +
                       head + "[Time:0:05:00 Score:-105 Moves:10 Cards Left:104]\n" +
                       head + "[Time:0:05:00 Score:-105 Moves:10 Cards Left:104] [Game Paused]\n");
  const std::string ini = Settings();
  EXPECT_NE(ini.find("LastGName=\"Spider\""), std::string::npos) << ini;
  EXPECT_NE(ini.find("\"Player1\""), std::string::npos) << ini;
}

TEST_F(CliRun, OnlyExitKeepsTheUnfinishedGame) {
  ASSERT_EQ(Run("new Spider 5\nstock\n").status, 0);
  EXPECT_FALSE(fs::exists(UnfinFile()));
  EXPECT_EQ(Settings().find("UnFin=1"), std::string::npos);
  const Outcome r = Run("new Spider 5\nstock\nexit\nshow\n");
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_EQ(r.out, "");  // nothing runs after exit
  EXPECT_TRUE(fs::exists(UnfinFile()));
  EXPECT_NE(Settings().find("UnFin=1"), std::string::npos) << Settings();
}

TEST_F(CliRun, RefusedMovesAndGreyedCommandsDoNothing) {
  // Pile 0 of Spider 1 ends in a Ten, pile 1 in an Eight: the Ten cannot go there,
  // and the face-down card under it cannot be picked up at all.
  const Json t = Show("new Spider 1\ndrag 0 0 4 1\ndrag 0 0 0 2\nundo\nredo");
  EXPECT_EQ(t["moves"].n, 0);
  EXPECT_EQ(t["tableau"][0].size(), 5u);
  EXPECT_EQ(t["tableau"][1].size(), 5u);
  EXPECT_EQ(t["tableau"][2].size(), 5u);
  const std::string nowhere = scratch.File("none.vq0");
  const Json empty = Show("undo\nrestart\nsave " + InScript(nowhere) + "\npause\nclose\nstock");
  EXPECT_EQ(empty["status"].n, 0);
  EXPECT_EQ(empty["tableau"].size(), 0u);
  EXPECT_FALSE(fs::exists(nowhere));
}

using CliRunErrors = CliTest;

TEST_F(CliRunErrors, UsageErrorsNameTheLineAndStopTheScript) {
  const std::vector<std::pair<std::string, int>> cases = {
      {"new Spider 5\nfly\nshow", 2},          {"# start\n\nnew Spider\nshow", 3},
      {"new Spider 5\ndrag 0 0 30 1\nshow", 2}, {"new Spider 5\ndblclick 1 0 0\nshow", 2},
      {"new Nonsense 5\nshow", 1},             {"new Spider 5\ntick -3\nshow", 2},
      {"new Spider 5\nshow 1\nshow", 2},       {"new Spider 0\nshow", 1},
  };
  for (const auto& [script, line] : cases) {
    const Outcome r = Run(script + "\n");
    EXPECT_EQ(r.status, 2) << script;
    EXPECT_EQ(r.out, "") << script;
    const auto lines = r.ErrLines();
    ASSERT_EQ(lines.size(), 1u) << script << ": " << r.err;
    EXPECT_NE(lines[0].find("line " + std::to_string(line)), std::string::npos) << script << ": " << lines[0];
  }
}

TEST_F(CliRunErrors, BadFilesStopWithStatusOneAndChangeNothing) {
  // A truncated game of another kind: loading it must not leave its name in the settings.
  ASSERT_EQ(Run("new \"Spider Two Suit\" 7\nstock\nsave " + InScript(scratch.File("two.vq0")) + "\n").status, 0);
  const std::string two = ReadFile(scratch.File("two.vq0"));
  WriteFile(scratch.File("cut.vq0"), two.substr(0, two.size() / 3));
  ASSERT_EQ(Run("new Spider 5\nstock\n").status, 0);
  const std::string settings = Settings();
  for (const std::string name : {"cut.vq0", "missing.vq0"}) {
    const Outcome r = Run("new Spider 5\nstock\nopen " + InScript(scratch.File(name)) + "\nexit\n");
    EXPECT_EQ(r.status, 1) << name;
    const auto lines = r.ErrLines();
    ASSERT_EQ(lines.size(), 1u) << name << ": " << r.err;
    EXPECT_NE(lines[0].find("line 3"), std::string::npos) << lines[0];
    EXPECT_EQ(Settings(), settings) << name;
    EXPECT_FALSE(fs::exists(UnfinFile())) << "the script went on after line 3";
  }
  EXPECT_EQ(ReadFile(scratch.File("cut.vq0")), two.substr(0, two.size() / 3));
  const Outcome noScript = Cli("run " + ShellQuote(scratch.File("no-such-script")));
  EXPECT_EQ(noScript.status, 1);
  EXPECT_EQ(noScript.ErrLines().size(), 1u) << noScript.err;
  EXPECT_EQ(Settings(), settings);
}

}  // namespace
}  // namespace qv::test
