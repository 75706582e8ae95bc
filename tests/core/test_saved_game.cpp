#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <iterator>
#include <optional>
#include <sstream>
#include <tuple>

#include "TestProgram.h"
#include "session/SavedGameFile.h"

namespace qv {
namespace {

using test::DealRows;
using test::ReadFile;
using test::Snapshot;
using test::TestProgram;
using test::WriteFile;

// Where line n (from 1) begins.
size_t LineStart(const std::string& text, int n) {
  size_t at = 0;
  for (int k = 1; k < n; ++k) at = text.find("\r\n", at) + 2;
  return at;
}

// Line n (from 1) without its line end.
std::string Line(const std::string& text, int n) {
  return text.substr(LineStart(text, n), LineStart(text, n + 1) - 2 - LineStart(text, n));
}

std::string WithLine(const std::string& text, int n, const std::string& line) {
  return text.substr(0, LineStart(text, n)) + line + "\r\n" + text.substr(LineStart(text, n + 1));
}

// Field k (from 0) of line n replaced; the line is written again with other blanks, which
// reads the same, so the edit is the only difference that matters.
std::string WithField(const std::string& text, int n, int k, const std::string& token) {
  std::istringstream in(Line(text, n));
  std::vector<std::string> fields{std::istream_iterator<std::string>(in), {}};
  fields.at(k) = token;
  std::string line;
  for (const auto& f : fields) line += " " + f + " ";
  return WithLine(text, n, line);
}

// The header of text, then its first move line n times.
std::string WithRecords(const std::string& text, int n) {
  std::string out = text.substr(0, LineStart(text, 19));
  for (const std::string line = Line(text, 19) + "\r\n"; n > 0; --n) out += line;
  return out;
}

// What a refused file must leave as it was.
auto Take(TestProgram& tp) {
  std::vector<TransRec> journal;
  for (int id = 1; id <= tp->cEngine.GetTransTop(); ++id) journal.push_back(tp->cEngine.Record(id));
  const auto& gp = tp->cGamePlay;
  return std::tuple(gp.GameName(), gp.GameNo().Text(), gp.Game_Status(), gp.Game_LoadingType(), gp.Game_Running(),
                    tp.window.TimerEnabled(Timer::Game), tp->cEngine.GetTransID(), tp->cGames.Piles(0),
                    tp->cCustom.HPiles, Snapshot(*tp), journal);
}

std::string Save(TestProgram& tp, const std::string& name) {
  EXPECT_TRUE(tp->cEngine.SavetoFile(tp.home.File(name)));
  return ReadFile(tp.home.File(name));
}

bool Play(TestProgram& tp, const std::string& text) {
  WriteFile(tp.home.File("play.vq0"), text);
  return tp->cGamePlay.PlayFile(tp.home.File("play.vq0"), false);
}

TransRec Rec(int id, int sc, int sp, int spos, int dc, int dp, int dpos, int m, int t, int multi) {
  return {int16_t(id), int16_t(sc), int16_t(sp), int16_t(spos), int16_t(dc), int16_t(dp), int16_t(dpos),
          int16_t(m),  t,           int16_t(multi)};
}

// A journal made by hand on Spider's opening deal (piles 4 to 9 hold 4 cards, the Stock 60):
// it empties pile 9 onto pile 8, carries a group of two back, takes a Stock card to a
// foundation and puts it back. Moves the rules would refuse, but every one keeps the shape.
struct ShapeGame {
  std::string text;
  std::vector<int> played;  // where every card lies after the records, on any deal
};
ShapeGame MakeShapeGame() {
  TestProgram tp;
  tp.Deal("Spider", 5);
  int p9[4];  // pile 9's cards at positions 0..3 as dealt
  for (int q = 0; q < 4; ++q) p9[q] = tp->cPlay.GetPicID(0, 9, q);
  const int stock = tp->cPlay.GetTopPicID(1, 0);
  ShapeGame g{FormatSavedGame(ParseSavedGame(Save(tp, "opening.vq0")).game->header,
                              {Rec(p9[3], 0, 9, 3, 0, 8, 4, 0, 3, 0),     // line 19
                               Rec(p9[2], 0, 9, 2, 0, 8, 5, 0, 3, 0),     // line 20
                               Rec(p9[1], 0, 9, 1, 0, 8, 6, 0, 3, 0),     // line 21
                               Rec(p9[0], 0, 9, 0, 0, 8, 7, 0, 0, 0),     // line 22: nothing lies under it
                               Rec(p9[1], 0, 8, 6, 0, 9, 0, 1, 0, 1),     // line 23: a group of two onto the empty pile
                               Rec(stock, 1, 0, 59, 3, 0, 0, 0, 1, 0),    // line 24: to a foundation, turned up
                               Rec(stock, 3, 0, 0, 1, 0, 59, 0, 2, 0)}),  // line 25: back, turned down
              Snapshot(*tp)};
  const int moved[4][5] = {{p9[1], 0, 9, 0, 1}, {p9[0], 0, 9, 1, 1}, {p9[3], 0, 8, 4, 1}, {p9[2], 0, 8, 5, 1}};
  for (const auto& m : moved) std::copy(m + 1, m + 5, g.played.begin() + 4 * m[0]);
  return g;
}

TEST(SavedGameFormat, EighteenHeaderLinesThenMoveLinesInFourteenColumnZones) {
  // Card 23 from tableau pile 3, position 5, to pile 7, position 9, uncovering the card under it.
  const TransRec worked{23, 0, 3, 5, 0, 7, 9, 0, 3, 0};
  const std::string gap(11, ' ');
  EXPECT_EQ(MoveLine(worked), " 23 " + std::string(10, ' ') + " 0 " + gap + " 3 " + gap + " 5 " + gap + " 0 " + gap +
                                  " 7 " + gap + " 9 " + gap + " 0 " + gap + " 3 " + gap + " 0 ");
  // Wide and negative fields still start at their zones.
  const std::string wide = MoveLine(TransRec{-32768, 1, 0, 59, 3, 7, 12, -1, 2147483647, 1});
  const char* fields[] = {"-32768 ", " 1 ", " 0 ", " 59 ", " 3 ", " 7 ", " 12 ", "-1 ", " 2147483647 ", " 1 "};
  for (int k = 0; k < 10; ++k) EXPECT_EQ(wide.substr(14 * k, std::string(fields[k]).size()), fields[k]) << k;
  EXPECT_EQ(wide.size(), 126u + 3u);
  GameHeader h;
  h.GameName = "Spider Two Suit", h.GameNo = GameNo::Number("-42");
  h.Time = 2147483647, h.Moves = 7, h.Score = -56, h.Percentage = 100;
  h.GOrder = 1, h.GBase = 2, h.GCards = 3, h.HOrder = 4, h.HSpace = 5, h.HPiles = 6;
  h.HAK = 7, h.HMulti = 8, h.RPiles = 9, h.RCards = 10, h.MOrder = 11, h.Suits = -12;
  const std::string text = FormatSavedGame(h, {worked});
  EXPECT_EQ(text, "Spider Two Suit\r\n-42 \r\n 2147483647 \r\n 7 \r\n-56 \r\n 100 \r\n 1 \r\n 2 \r\n 3 \r\n 4 \r\n"
                  " 5 \r\n 6 \r\n 7 \r\n 8 \r\n 9 \r\n 10 \r\n 11 \r\n-12 \r\n" + MoveLine(worked) + "\r\n");
  const auto read = ParseSavedGame(text);
  ASSERT_TRUE(read.game) << read.error;
  EXPECT_EQ(FormatSavedGame(read.game->header, read.game->records), text);  // -56 and -42 read back
}

// Fields are read whatever the blanks and line ends between them, and each holds what its width holds.
TEST(SavedGameReader, ReadsByFieldsEachWithinItsWidth) {
  const std::string good = MakeShapeGame().text;
  std::string loose = WithField(good, 19, 1, "0");                 // its SCell as it was, fewer blanks
  loose = WithLine(loose, 20, "   " + Line(good, 20) + "     ");  // more blanks
  std::string lfOnly = good;
  std::erase(lfOnly, '\r');
  std::string splitRecord = good;  // the first move line broken before its DCell field
  splitRecord.replace(LineStart(good, 19) + 56, 1, "\r\n");
  for (const std::string& text : {loose, lfOnly, splitRecord, good.substr(0, good.size() - 2), good + "\r\n"}) {
    const auto got = ParseSavedGame(text);
    ASSERT_TRUE(got.game) << got.error;
    EXPECT_EQ(FormatSavedGame(got.game->header, got.game->records), good);
  }
  EXPECT_FALSE(ParseSavedGame(good.substr(0, good.size() - 10)).game);  // it ends inside a move line

  // Line 2 is a number with its sign place, or digits kept as they were typed.
  using N = std::pair<const char*, GameNo>;
  for (const auto& [line, no] : {N{" 123 ", GameNo::Number("123")}, N{"-7 ", GameNo::Number("-7")},
                                 N{"000123", GameNo::Typed("000123")}, N{"12.50", GameNo::Typed("12.50")}}) {
    const std::string text = WithLine(good, 2, line);
    const auto got = ParseSavedGame(text);
    ASSERT_TRUE(got.game) << line << ": " << got.error;
    EXPECT_EQ(got.game->header.GameNo, no) << line;
    EXPECT_EQ(FormatSavedGame(got.game->header, got.game->records), text) << line;
  }
  for (const char* bad : {"12a", "", "   ", "-", " 1 2 ", "0x10"})
    EXPECT_FALSE(ParseSavedGame(WithLine(good, 2, bad)).game) << '"' << bad << '"';

  struct Case { int line, field; const char* token; bool reads; };
  const Case cases[] = {{3, 0, "2147483647", true},  {3, 0, "2147483648", false},  {3, 0, "-2147483648", true},
                        {4, 0, "32767", true},       {4, 0, "32768", false},       {5, 0, "-32768", true},
                        {5, 0, "-32769", false},     {18, 0, "99999", false},      {19, 0, "40000", false},
                        {19, 8, "2147483647", true}, {19, 8, "2147483648", false}, {19, 9, "-32769", false}};
  for (const Case& c : cases)
    EXPECT_EQ(ParseSavedGame(WithField(good, c.line, c.field, c.token)).game.has_value(), c.reads)
        << "line " << c.line << " field " << c.field << " \"" << c.token << '"';

  const auto full = ParseSavedGame(WithRecords(good, 32767));
  ASSERT_TRUE(full.game) << full.error;
  EXPECT_EQ(full.game->records.size(), 32767u);
  EXPECT_FALSE(ParseSavedGame(WithRecords(good, 32768)).game);
}

// The journal's random-play test saves, loads and saves again to the byte; here what it leaves
// out: undone records are not written, a typed number stays typed, loading replays to the end.
TEST(SavedGameRoundTrip, WritesThePlayedRecordsAndLoadsBackToThem) {
  TestProgram a;
  std::string typed;
  for (int deal = 1; deal < 40 && a->cEngine.GetTransID() != 11; ++deal) {
    typed = "000" + std::to_string(deal);
    ASSERT_TRUE(a->cGamePlay.PlayString("Spider - " + typed));
    DealRows(a, 1);  // 10 records in one step
    test::MakeAnyLegalMove(a);
  }
  ASSERT_EQ(a->cEngine.GetTransID(), 11) << "no deal had a tableau move after one row";
  DealRows(a, 1);
  int speed = 0;
  a->cEngine.Undo(speed);
  ASSERT_EQ(a->cEngine.GetTransTop(), 21);
  const std::string text = Save(a, "game.vq0");
  ASSERT_EQ(std::ranges::count(text, '\n'), 18 + 11);
  EXPECT_EQ(Line(text, 2), typed);

  TestProgram b;
  ASSERT_TRUE(Play(b, text)) << b.dialogs.shown.at(0);
  EXPECT_EQ(std::tuple(b->cEngine.GetTransTop(), b->cEngine.GetTransID(), b->cGamePlay.Game_Status(), b->cGamePlay.GameNo()),
            std::tuple(11, 11, 1, GameNo::Typed(typed)));
  EXPECT_EQ(Snapshot(*b), Snapshot(*a));
  EXPECT_EQ(Save(b, "again.vq0"), text);
}

// The five rule fields no table reads are carried: a file of a known game brings them,
// and the game saves them back as it found them. A game with no moves is its header alone.
TEST(SavedGameRoundTrip, CarriedRuleFieldsOfAKnownGameAreSavedBack) {
  TestProgram a;
  a.Deal("Spider", 4);
  std::string carried = Save(a, "fresh.vq0");
  ASSERT_EQ(std::ranges::count(carried, '\n'), 18);
  for (int line : {7, 8, 9, 15, 16}) carried = WithLine(carried, line, NumberField(30 + line));
  TestProgram b;
  ASSERT_TRUE(Play(b, carried));
  EXPECT_EQ(std::tuple(b->cEngine.GetTransTop(), Snapshot(*b)), std::tuple(0, Snapshot(*a)));
  EXPECT_EQ(Save(b, "again.vq0"), carried);
}

// How a finished file loads, whatever the case of its extension, is checked with the session's files.

// Records are obeyed as written on whatever deal the header names; only the table the
// header's game describes decides whether they keep the shape.
TEST(SavedGamePlay, RecordsAreObeyedAsWrittenOnAnyDealOfTheSameShape) {
  const ShapeGame g = MakeShapeGame();
  std::vector<std::vector<int16_t>> decks;
  for (const char* number : {" 5 ", " 8 "}) {  // its own deal, and a file made for another
    TestProgram tp;
    ASSERT_TRUE(Play(tp, WithLine(g.text, 2, number))) << tp.dialogs.shown.at(0);
    EXPECT_EQ(std::tuple(GameNoField(tp->cGamePlay.GameNo()), tp->cEngine.GetTransID()), std::tuple(number, 7));
    EXPECT_EQ(Snapshot(*tp), g.played);
    decks.push_back(tp->cPlay.table().Deck());
  }
  EXPECT_NE(decks[0], decks[1]);  // the cards are others; only the places follow the records

  // A standard game deals by its own rules, whatever its header says.
  TestProgram tp;
  EXPECT_TRUE(Play(tp, WithLine(g.text, 12, " 8 ")));
  EXPECT_EQ(tp->cGames.Piles(0), 10);
}

// A game whose name is neither standard nor created deals from its header's seven table fields,
// tried at their edges; Spider's own values lie inside them. Lines: 7 GOrder, 10 HOrder,
// 11 HSpace, 12 HPiles, 13 HAK, 14 HMulti, 15 RPiles, 17 MOrder, 18 Suits.
TEST(SavedGamePlay, UnknownNamePlaysOnlyWhenTheTableFieldsDescribeATable) {
  const std::string fresh = WithLine(WithRecords(MakeShapeGame().text, 0), 1, "Quorvale Test Game");
  struct Case { int line, value; bool playable; };
  for (const Case& c : {Case{12, 6, true}, {12, 5, false}, {12, 11, false}, {10, 0, true}, {10, 5, true},
                        {10, -1, false}, {10, 6, false}, {17, 5, true}, {17, -1, false}, {17, 6, false},
                        {11, 0, true}, {11, 14, false}, {13, 1, true}, {13, 2, false}, {14, 0, true}, {14, 2, false},
                        {18, 0, true}, {18, -1, false}, {18, 3, false}, {7, 99, true}, {15, 50, true}}) {
    SCOPED_TRACE("line " + std::to_string(c.line) + " = " + std::to_string(c.value));
    TestProgram tp;
    tp.Deal("Spider", 2);
    DealRows(tp, 1);
    const auto before = Take(tp);
    EXPECT_EQ(Play(tp, WithLine(fresh, c.line, NumberField(c.value))), c.playable);
    EXPECT_EQ(tp.dialogs.shown.size(), c.playable ? 0u : 1u);
    EXPECT_EQ(tp->cGamePlay.GameName(), c.playable ? "Quorvale Test Game" : "Spider");
    EXPECT_EQ(tp->cGames.Piles(0), c.playable && c.line == 12 ? c.value : 10);
    EXPECT_TRUE(c.playable || Take(tp) == before);  // a refused file changes nothing
  }
}

struct Broken {
  const char* name;
  const char* where;  // the line the message must blame, when the fault is on one line
  std::function<std::optional<std::string>(const std::string&)> make;  // nullopt: no file at all
};
void PrintTo(const Broken& b, std::ostream* os) { *os << b.name; }
class SavedGameBroken : public ::testing::TestWithParam<Broken> {};

TEST_P(SavedGameBroken, IsRefusedWithOneMessageAndNothingChanges) {
  const auto text = GetParam().make(MakeShapeGame().text);
  TestProgram tp;
  tp.Deal("Spider", 3);
  DealRows(tp, 2);
  int speed = 0;
  tp->cEngine.Undo(speed);  // a journal with undone records, which must stay redoable
  ASSERT_EQ(tp->cEngine.GetTransTop(), 20);
  const auto before = Take(tp);
  const std::string path = tp.home.File("broken.vq0");
  if (text) WriteFile(path, *text);
  EXPECT_FALSE(tp->cGamePlay.PlayFile(path, false));
  EXPECT_EQ(Take(tp), before);
  EXPECT_EQ(tp.dialogs.shown.size(), 1u);
  EXPECT_FALSE(tp->cGamePlay.PlayPendFile(path));
  EXPECT_EQ(Take(tp), before);
  ASSERT_EQ(tp.dialogs.shown.size(), 2u);
  EXPECT_EQ(ReadFile(path), text.value_or(""));  // a refused file stays on disk as it was
  for (const auto& msg : tp.dialogs.shown)
    for (const char* part : {path.c_str(), GetParam().where ? GetParam().where : ""})
      EXPECT_NE(msg.find(part), std::string::npos) << msg;
}

const Broken kBroken[] = {
    {"NoFile", nullptr, [](auto&) { return std::nullopt; }},
    {"Empty", nullptr, [](auto&) { return std::string(); }},
    {"EmptyName", nullptr, [](auto& t) { return WithLine(t, 1, ""); }},
    {"HeaderCutAfterLine17", nullptr, [](auto& t) { return t.substr(0, LineStart(t, 18)); }},
    {"GameNumberNotDigits", "line 2", [](auto& t) { return WithLine(t, 2, "12a"); }},
    {"LetterInScore", "line 5", [](auto& t) { return WithLine(t, 5, " 1x5 "); }},
    {"MoveLineCutAfterFiveFields", "line 25", [](auto& t) { return t.substr(0, LineStart(t, 25) + 60); }},
    {"StrayAfterDigits", "line 19", [](auto& t) { return WithField(t, 19, 3, "3x"); }},
    {"TooManyRecords", nullptr, [](auto& t) { return WithRecords(t, 32768); }},
    // The same moves under a name the program does not know, on its table of 8 piles: pile 9 is not there.
    {"PileNotOnTheTable", "line 19", [](auto& t) { return WithLine(WithLine(t, 1, "Quorvale Test Game"), 12, " 8 "); }},
    {"PicId104", "line 19", [](auto& t) { return WithField(t, 19, 0, "104"); }},
    // Position 2 with one card riding on it would reach the top, but the card lies at 3.
    {"WrongSPos", "line 19", [](auto& t) { return WithField(WithField(t, 19, 3, "2"), 19, 7, "1"); }},
    {"GroupCutShort", "line 23", [](auto& t) { return WithField(t, 23, 7, "0"); }},
    {"FoundationPile8", "line 24", [](auto& t) { return WithField(t, 24, 5, "8"); }},
    {"OntoItsOwnPile", "line 19", [](auto& t) { return WithField(WithField(t, 19, 5, "9"), 19, 6, "4"); }},
    {"DPosOneTooHigh", "line 19", [](auto& t) { return WithField(t, 19, 6, "5"); }},
    {"DPosOneTooLow", "line 19", [](auto& t) { return WithField(t, 19, 6, "3"); }},
    {"TMod3FromSPos0", "line 22", [](auto& t) { return WithField(t, 22, 8, "3"); }},
    {"TMod3FromStock", "line 24", [](auto& t) { return WithField(t, 24, 8, "3"); }},
    {"TMod4", "line 19", [](auto& t) { return WithField(t, 19, 8, "4"); }},
    {"TModMinus1", "line 19", [](auto& t) { return WithField(t, 19, 8, "-1"); }},
    {"Multi2", "line 19", [](auto& t) { return WithField(t, 19, 9, "2"); }},
};
INSTANTIATE_TEST_SUITE_P(SavedGameVariants, SavedGameBroken, ::testing::ValuesIn(kBroken),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace qv
