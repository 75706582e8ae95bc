#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <iterator>
#include <optional>
#include <sstream>
#include <tuple>

#include "TestProgram.h"
#include "engine/Pointer.h"
#include "session/SavedGameFile.h"

namespace qv {
namespace {

using test::ReadFile;
using test::TestProgram;
using test::WriteFile;

std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  for (size_t at = 0; at < text.size();) {
    const size_t end = text.find("\r\n", at);
    lines.push_back(text.substr(at, end == std::string::npos ? std::string::npos : end - at));
    at = end == std::string::npos ? text.size() : end + 2;
  }
  return lines;
}

// Where line n (from 1) begins.
size_t LineStart(const std::string& text, int n) {
  size_t at = 0;
  for (int k = 1; k < n; ++k) at = text.find("\r\n", at) + 2;
  return at;
}

// Line n (from 1) replaced by `line`.
std::string WithLine(const std::string& text, int n, const std::string& line) {
  return text.substr(0, LineStart(text, n)) + line + "\r\n" + text.substr(LineStart(text, n + 1));
}

// Field k (from 0) of line n replaced; the line is written again with single blanks, which
// reads the same, so the edit is the only difference that matters.
std::string WithField(const std::string& text, int n, int k, const std::string& token) {
  std::istringstream in(Lines(text).at(n - 1));
  std::vector<std::string> fields{std::istream_iterator<std::string>(in), {}};
  fields.at(k) = token;
  std::string line;
  for (const auto& f : fields) line += " " + f;
  return WithLine(text, n, line + " ");
}

using Place = std::tuple<int, int, int, bool>;
std::vector<Place> Places(const Program& app) {
  std::vector<Place> places;
  for (int i = 0; i < app.cPlay.TotalCards(); ++i)
    places.emplace_back(app.cPlay.Cell(i), app.cPlay.Pile(i), app.cPlay.Pos(i), app.cPlay.FaceMode(i));
  return places;
}

// What a refused file must leave as it was.
struct Shot {
  std::string name, number;
  int status, loading, transId, transTop, piles, customPiles;
  bool running, gameTimer;
  std::vector<TransRec> journal;
  std::vector<Place> places;
  bool operator==(const Shot&) const = default;
};
Shot Take(Program& app) {
  Shot s{app.cGamePlay.GameName(), app.cGamePlay.GameNo().Text(), app.cGamePlay.Game_Status(),
         app.cGamePlay.Game_LoadingType(), app.cEngine.GetTransID(), app.cEngine.GetTransTop(),
         app.cGames.Piles(0), app.cCustom.HPiles, app.cGamePlay.Game_Running(),
         app.surface.window.TimerEnabled(Timer::Game), {}, Places(app)};
  for (int id = 1; id <= app.cEngine.GetTransTop(); ++id) s.journal.push_back(app.cEngine.Record(id));
  return s;
}

void DealRow(Program& app) { ClickCard(app, app.cPlay.GetTopPicID(1, 0)); }

// Makes the first move the rules allow between two tableau tops, by dragging.
bool MoveBetweenTops(Program& app) {
  for (int s = 0; s < 10; ++s)
    for (int d = 0; d < 10; ++d) {
      const int c = app.cPlay.GetTopPicID(0, s);
      if (s == d || app.cPlay.Num(app.cPlay.GetTopPicID(0, d)) != app.cPlay.Num(c) + 1) continue;
      const int before = app.cEngine.GetTransID();
      DragCardToPile(app, c, d);
      return app.cEngine.GetTransID() == before + 1;
    }
  return false;
}

// A Spider game with a row dealt and a tableau move: 11 records of real play.
void PlayRowAndMove(TestProgram& tp) {
  for (uint64_t deal = 1; deal < 40; ++deal) {
    tp.Deal("Spider", deal);
    DealRow(*tp);
    if (MoveBetweenTops(*tp)) return;
  }
  FAIL() << "no deal had a tableau move after one row";
}

std::string Save(TestProgram& tp, const std::string& name) {
  EXPECT_TRUE(tp->cEngine.SavetoFile(tp.home.File(name)));
  return ReadFile(tp.home.File(name));
}

// A journal made by hand on Spider's opening deal (piles 4 to 9 hold 4 cards, the Stock 60):
// it empties pile 9 onto pile 8, carries a group of two back, takes a Stock card to a
// foundation and puts it back. Moves the rules would refuse, but every one keeps the shape.
struct ShapeGame {
  std::string text;
  int p9[4];  // pile 9's cards at positions 0..3 as dealt
  int stock;  // the Stock's top card as dealt
};
ShapeGame MakeShapeGame(uint64_t deal) {
  TestProgram tp;
  tp.Deal("Spider", deal);
  ShapeGame g{};
  for (int q = 0; q < 4; ++q) g.p9[q] = tp->cPlay.GetPicID(0, 9, q);
  g.stock = tp->cPlay.GetTopPicID(1, 0);
  auto header = ParseSavedGame(Save(tp, "opening.vq0")).game->header;
  auto rec = [](int id, int sc, int sp, int spos, int dc, int dp, int dpos, int m, int t, int multi) {
    return TransRec{int16_t(id), int16_t(sc), int16_t(sp), int16_t(spos), int16_t(dc), int16_t(dp), int16_t(dpos),
                    int16_t(m),  t,           int16_t(multi)};
  };
  const std::vector<TransRec> records{
      rec(g.p9[3], 0, 9, 3, 0, 8, 4, 0, 3, 0),   // line 19
      rec(g.p9[2], 0, 9, 2, 0, 8, 5, 0, 3, 0),   // line 20
      rec(g.p9[1], 0, 9, 1, 0, 8, 6, 0, 3, 0),   // line 21
      rec(g.p9[0], 0, 9, 0, 0, 8, 7, 0, 0, 0),   // line 22: nothing lies under it
      rec(g.p9[1], 0, 8, 6, 0, 9, 0, 1, 0, 1),   // line 23: a group of two onto the empty pile
      rec(g.stock, 1, 0, 59, 3, 0, 0, 0, 1, 0),  // line 24: to a foundation, turned up
      rec(g.stock, 3, 0, 0, 1, 0, 59, 0, 2, 0),  // line 25: back to the Stock, turned down
  };
  g.text = FormatSavedGame(header, records);
  return g;
}

// ---- the number form and the line layout ----

TEST(SavedGameFormat, NumberFormHasSignPlaceAndTrailingBlank) {
  EXPECT_EQ(NumberField(5), " 5 ");
  EXPECT_EQ(NumberField(0), " 0 ");
  EXPECT_EQ(NumberField(-12), "-12 ");
  EXPECT_EQ(NumberField(-32768), "-32768 ");
  EXPECT_EQ(NumberField(2147483647), " 2147483647 ");
  EXPECT_EQ(GameNoField(GameNo::Number(uint64_t{5})), " 5 ");
  EXPECT_EQ(GameNoField(GameNo::Typed("000123")), "000123");
}

TEST(SavedGameFormat, WorkedMoveLineUsesFourteenColumnZones) {
  // Card 23 from tableau pile 3, position 5, to pile 7, position 9, uncovering the card under it.
  const std::string line = MoveLine(TransRec{23, 0, 3, 5, 0, 7, 9, 0, 3, 0});
  const std::string gap(11, ' ');
  EXPECT_EQ(line, " 23 " + std::string(10, ' ') + " 0 " + gap + " 3 " + gap + " 5 " + gap + " 0 " + gap + " 7 " +
                      gap + " 9 " + gap + " 0 " + gap + " 3 " + gap + " 0 ");
  // Wide and negative fields still start at their zones.
  const std::string wide = MoveLine(TransRec{-32768, 1, 0, 59, 3, 7, 12, -1, 2147483647, 1});
  const std::pair<int, const char*> at[] = {{1, "-32768 "}, {15, " 1 "}, {29, " 0 "},  {43, " 59 "},
                                            {57, " 3 "},    {71, " 7 "}, {85, " 12 "}, {99, "-1 "},
                                            {113, " 2147483647 "}, {127, " 1 "}};
  for (auto [column, field] : at) EXPECT_EQ(wide.substr(column - 1, std::string(field).size()), field) << column;
  EXPECT_EQ(wide.size(), 126u + 3u);
}

TEST(SavedGameFormat, HeaderIsEighteenLinesAndANegativeScoreReadsBack) {
  GameHeader h;
  h.GameName = "Spider Two Suit";
  h.GameNo = GameNo::Number("-42");
  h.Time = 2147483647, h.Moves = 7, h.Score = -56, h.Percentage = 100;
  h.GOrder = 1, h.GBase = 2, h.GCards = 3, h.HOrder = 4, h.HSpace = 5, h.HPiles = 6;
  h.HAK = 7, h.HMulti = 8, h.RPiles = 9, h.RCards = 10, h.MOrder = 11, h.Suits = -12;
  const std::string text = FormatSavedGame(h, {TransRec{23, 0, 3, 5, 0, 7, 9, 0, 3, 0}});
  const std::vector<std::string> expected{"Spider Two Suit", "-42 ", " 2147483647 ", " 7 ", "-56 ", " 100 ", " 1 ",
                                          " 2 ", " 3 ", " 4 ", " 5 ", " 6 ", " 7 ", " 8 ", " 9 ", " 10 ", " 11 ",
                                          "-12 ", MoveLine(TransRec{23, 0, 3, 5, 0, 7, 9, 0, 3, 0})};
  EXPECT_EQ(Lines(text), expected);
  EXPECT_TRUE(text.ends_with("\r\n"));
  const auto read = ParseSavedGame(text);
  ASSERT_TRUE(read.game) << read.error;
  EXPECT_EQ(read.game->header.Score, -56);
  EXPECT_EQ(read.game->header.Suits, -12);
  EXPECT_EQ(read.game->header.GameNo, GameNo::Number("-42"));
  EXPECT_EQ(FormatSavedGame(read.game->header, read.game->records), text);
}

// ---- reading ----

TEST(SavedGameReader, ReadsByFieldsWhateverTheBlanksAndLineEnds) {
  const std::string good = MakeShapeGame(5).text;
  const auto want = ParseSavedGame(good);
  ASSERT_TRUE(want.game) << want.error;
  std::string loose = WithField(good, 19, 0, std::to_string(want.game->records[0].PicID));  // single blanks
  loose = WithLine(loose, 20, "   " + Lines(good)[19] + "     ");                           // more blanks
  std::string lfOnly;
  for (char c : good)
    if (c != '\r') lfOnly += c;
  std::string splitRecord = good;  // the first move line broken before its DCell field
  splitRecord.replace(LineStart(good, 19) + 56, 1, "\r\n");
  for (const std::string& text : {loose, lfOnly, splitRecord, good.substr(0, good.size() - 2)}) {
    const auto got = ParseSavedGame(text);
    ASSERT_TRUE(got.game) << got.error;
    EXPECT_EQ(got.game->records, want.game->records);
    EXPECT_EQ(FormatSavedGame(got.game->header, got.game->records), good);
  }
}

TEST(SavedGameReader, GameNumberLineIsANumberOrTheDigitsAsTyped) {
  const std::string good = MakeShapeGame(5).text;
  const std::pair<const char*, GameNo> readable[] = {{" 123 ", GameNo::Number("123")},
                                                     {"-7 ", GameNo::Number("-7")},
                                                     {"000123", GameNo::Typed("000123")},
                                                     {"12.50", GameNo::Typed("12.50")}};
  for (const auto& [line, no] : readable) {
    const std::string text = WithLine(good, 2, line);
    const auto got = ParseSavedGame(text);
    ASSERT_TRUE(got.game) << line << ": " << got.error;
    EXPECT_EQ(got.game->header.GameNo, no) << line;
    EXPECT_EQ(FormatSavedGame(got.game->header, got.game->records), text) << line;
  }
  for (const char* bad : {"12a", "", "   ", "-", " 1 2 ", "0x10"})
    EXPECT_FALSE(ParseSavedGame(WithLine(good, 2, bad)).game) << '"' << bad << '"';
}

TEST(SavedGameReader, FieldsHoldWhatTheirWidthHolds) {
  const std::string good = MakeShapeGame(5).text;
  struct Case { int line, field; const char* token; bool reads; };
  const Case cases[] = {
      {3, 0, "2147483647", true}, {3, 0, "2147483648", false}, {3, 0, "-2147483648", true},
      {4, 0, "32767", true},      {4, 0, "32768", false},      {5, 0, "-32768", true},
      {5, 0, "-32769", false},    {18, 0, "99999", false},     {19, 0, "40000", false},
      {19, 8, "2147483647", true}, {19, 8, "2147483648", false}, {19, 9, "-32769", false}};
  for (const Case& c : cases)
    EXPECT_EQ(ParseSavedGame(WithField(good, c.line, c.field, c.token)).game.has_value(), c.reads)
        << "line " << c.line << " field " << c.field << " \"" << c.token << '"';
}

TEST(SavedGameReader, AtMost32767Records) {
  const std::string good = MakeShapeGame(5).text;
  std::string full = good.substr(0, LineStart(good, 19));
  for (int i = 0; i < 32767; ++i) full += Lines(good)[18] + "\r\n";
  const auto read = ParseSavedGame(full);
  ASSERT_TRUE(read.game) << read.error;
  EXPECT_EQ(read.game->records.size(), 32767u);
  EXPECT_FALSE(ParseSavedGame(full + Lines(good)[18] + "\r\n").game);
}

// ---- saving and loading whole games ----

TEST(SavedGameRoundTrip, SaveLoadSaveIsByteIdentical) {
  TestProgram a;
  PlayRowAndMove(a);
  DealRow(*a);
  ASSERT_EQ(a->cEngine.GetTransID(), 21);
  const std::string first = Save(a, "game.vq0");
  EXPECT_EQ(Lines(first).size(), 18u + 21u);
  EXPECT_EQ(Lines(first)[18], MoveLine(a->cEngine.Record(1)));

  TestProgram b;
  ASSERT_TRUE(b->cGamePlay.PlayFile(a.home.File("game.vq0"), false)) << b.dialogs.shown.at(0);
  EXPECT_EQ(b->cEngine.GetTransTop(), 21);
  EXPECT_EQ(b->cEngine.GetTransID(), 21);  // replayed to where it was saved
  EXPECT_EQ(b->cGamePlay.Game_Status(), 1);
  EXPECT_EQ(Places(*b), Places(*a));
  EXPECT_EQ(Save(b, "again.vq0"), first);
}

TEST(SavedGameRoundTrip, UndoneRecordsAreNotWritten) {
  TestProgram a;
  PlayRowAndMove(a);  // 10 + 1 records
  DealRow(*a);        // + 10 in one step
  int speed = 0;
  a->cEngine.Undo(speed);
  EXPECT_EQ(Lines(Save(a, "one.vq0")).size(), 18u + 11u);
  a->cEngine.Undo(speed);
  const auto lines = Lines(Save(a, "two.vq0"));
  ASSERT_EQ(lines.size(), 18u + 10u);
  for (int id = 1; id <= 10; ++id) EXPECT_EQ(lines[17 + id], MoveLine(a->cEngine.Record(id)));
  TestProgram b;
  ASSERT_TRUE(b->cGamePlay.PlayFile(a.home.File("two.vq0"), false));
  EXPECT_EQ(b->cEngine.GetTransTop(), 10);
}

TEST(SavedGameRoundTrip, GameWithNoMovesIsEighteenLines) {
  TestProgram a;
  a.Deal("Spider", 77);
  const std::string text = Save(a, "fresh.vq0");
  EXPECT_EQ(Lines(text).size(), 18u);
  TestProgram b;
  ASSERT_TRUE(b->cGamePlay.PlayFile(a.home.File("fresh.vq0"), false));
  EXPECT_EQ(b->cEngine.GetTransTop(), 0);
  EXPECT_EQ(Places(*b), Places(*a));
  EXPECT_EQ(Save(b, "again.vq0"), text);
}

TEST(SavedGameRoundTrip, TypedGameNumberIsWrittenBareAndStaysTyped) {
  TestProgram a;
  ASSERT_TRUE(a->cGamePlay.PlayString("Spider - 000123"));
  DealRow(*a);
  const std::string text = Save(a, "typed.vq0");
  EXPECT_EQ(Lines(text).at(1), "000123");
  TestProgram b;
  ASSERT_TRUE(b->cGamePlay.PlayFile(a.home.File("typed.vq0"), false));
  EXPECT_EQ(b->cGamePlay.GameNo(), GameNo::Typed("000123"));
  EXPECT_EQ(Save(b, "again.vq0"), text);
}

// The five rule fields no table reads are carried: a file of a known game brings them,
// and the game saves them back as it found them.
TEST(SavedGameRoundTrip, CarriedRuleFieldsOfAKnownGameAreSavedBack) {
  TestProgram a;
  a.Deal("Spider", 4);
  std::string carried = Save(a, "fresh.vq0");
  for (int line : {7, 8, 9, 15, 16}) carried = WithLine(carried, line, " 3 ");
  TestProgram b;
  WriteFile(b.home.File("carried.vq0"), carried);
  ASSERT_TRUE(b->cGamePlay.PlayFile(b.home.File("carried.vq0"), false));
  EXPECT_EQ(Save(b, "again.vq0"), carried);
}

// ---- playing a file ----

TEST(SavedGamePlay, FinishedFileLoadsFinishedWhateverTheCaseOfItsExtension) {
  EXPECT_TRUE(IsFinishedFileName("a.VQ1", ".vq1"));
  EXPECT_TRUE(IsFinishedFileName("a.Vq1", ".vq1"));
  EXPECT_FALSE(IsFinishedFileName("a.vq0", ".vq1"));
  EXPECT_FALSE(IsFinishedFileName("q1", ".vq1"));
  TestProgram a;
  a.Deal("Spider", 9);
  DealRow(*a);
  Save(a, "done.VQ1");
  TestProgram b;
  b.Deal("Spider", 1);
  ASSERT_TRUE(b->cGamePlay.PlayFile(a.home.File("done.VQ1"), false));
  EXPECT_EQ(b->cGamePlay.Game_Status(), 2);
  EXPECT_TRUE(b.window.TimerEnabled(Timer::Forward));
  EXPECT_FALSE(b.window.TimerEnabled(Timer::Game));
  EXPECT_EQ(b->cEngine.GetTransTop(), 10);
  EXPECT_EQ(b->cEngine.GetTransID(), 0);  // the replay is yet to come
}

TEST(SavedGamePlay, RecordsAreObeyedAsWrittenOnAnyDealOfTheSameShape) {
  const ShapeGame g = MakeShapeGame(5);
  std::vector<std::vector<int16_t>> decks;
  for (const char* number : {" 5 ", " 8 "}) {  // its own deal, and a file made for another
    TestProgram tp;
    WriteFile(tp.home.File("shape.vq0"), WithLine(g.text, 2, number));
    ASSERT_TRUE(tp->cGamePlay.PlayFile(tp.home.File("shape.vq0"), false)) << tp.dialogs.shown.at(0);
    const auto& p = tp->cPlay;
    EXPECT_EQ(" " + tp->cGamePlay.GameNo().Text() + " ", number);
    EXPECT_EQ(tp->cEngine.GetTransID(), 7);
    ASSERT_EQ(p.GetTop(0, 9), 1);
    EXPECT_EQ(p.GetPicID(0, 9, 0), g.p9[1]);
    EXPECT_EQ(p.GetPicID(0, 9, 1), g.p9[0]);
    ASSERT_EQ(p.GetTop(0, 8), 5);
    EXPECT_EQ(p.GetPicID(0, 8, 4), g.p9[3]);
    EXPECT_EQ(p.GetPicID(0, 8, 5), g.p9[2]);
    EXPECT_TRUE(p.FaceMode(g.p9[2]));
    EXPECT_EQ(p.GetTopPicID(1, 0), g.stock);
    EXPECT_FALSE(p.FaceMode(g.stock));
    EXPECT_EQ(p.GetTop(3, 0), -1);
    decks.push_back(p.table().Deck());
  }
  EXPECT_NE(decks[0], decks[1]);  // the cards are others; only the places follow the records
}

TEST(SavedGamePlay, FileForASmallerTableIsRefused) {
  // The same moves under a name the program does not know, on a table of 8 piles: pile 9 is not there.
  std::string text = WithLine(MakeShapeGame(5).text, 1, "Quorvale Test Game");
  TestProgram tp;
  WriteFile(tp.home.File("ten.vq0"), text);
  EXPECT_TRUE(tp->cGamePlay.PlayFile(tp.home.File("ten.vq0"), false));
  EXPECT_EQ(tp->cGames.Piles(0), 10);
  const Shot before = Take(*tp);
  WriteFile(tp.home.File("eight.vq0"), WithLine(text, 12, " 8 "));
  EXPECT_FALSE(tp->cGamePlay.PlayFile(tp.home.File("eight.vq0"), false));
  EXPECT_EQ(Take(*tp), before);
  EXPECT_EQ(tp.dialogs.shown.size(), 1u);
  // A standard game deals by its own rules, whatever its header says.
  WriteFile(tp.home.File("spider.vq0"), WithLine(WithLine(text, 12, " 8 "), 1, "Spider"));
  EXPECT_TRUE(tp->cGamePlay.PlayFile(tp.home.File("spider.vq0"), false));
  EXPECT_EQ(tp->cGames.Piles(0), 10);
}

// A game whose name is neither standard nor created deals from its header's seven table fields.
struct UnknownCase { int line; int value; bool playable; };
void PrintTo(const UnknownCase& c, std::ostream* os) { *os << "line " << c.line << " = " << c.value; }
class SavedGameUnknownName : public ::testing::TestWithParam<UnknownCase> {};

TEST_P(SavedGameUnknownName, PlaysOnlyWhenTheTableFieldsDescribeATable) {
  const UnknownCase c = GetParam();
  TestProgram source;
  source.Deal("Spider", 6);
  const std::string text =
      WithLine(WithLine(Save(source, "fresh.vq0"), 1, "Quorvale Test Game"), c.line, NumberField(c.value));
  TestProgram tp;
  tp.Deal("Spider", 2);
  DealRow(*tp);
  const Shot before = Take(*tp);
  WriteFile(tp.home.File("unknown.vq0"), text);
  EXPECT_EQ(tp->cGamePlay.PlayFile(tp.home.File("unknown.vq0"), false), c.playable);
  if (c.playable) {
    EXPECT_EQ(tp->cGamePlay.GameName(), "Quorvale Test Game");
    EXPECT_EQ(tp->cGames.Piles(0), c.line == 12 ? c.value : 10);
    EXPECT_TRUE(tp.dialogs.shown.empty());
  } else {
    EXPECT_EQ(Take(*tp), before);
    EXPECT_EQ(tp.dialogs.shown.size(), 1u);
  }
}

// Lines: 7 GOrder, 10 HOrder, 11 HSpace, 12 HPiles, 13 HAK, 14 HMulti, 15 RPiles, 17 MOrder, 18 Suits.
INSTANTIATE_TEST_SUITE_P(
    SavedGameFields, SavedGameUnknownName,
    ::testing::ValuesIn(std::vector<UnknownCase>{
        {12, 6, true}, {12, 10, true}, {12, 5, false}, {12, 11, false}, {10, 0, true}, {10, 5, true},
        {10, -1, false}, {10, 6, false}, {17, 5, true}, {17, 6, false}, {17, -1, false}, {11, 0, true},
        {11, 13, true}, {11, 14, false}, {13, 1, true}, {13, 2, false}, {14, 0, true}, {14, 2, false},
        {18, 0, true}, {18, 3, false}, {18, -1, false}, {7, 99, true}, {15, 50, true}}),
    [](const auto& info) {
      return "Line" + std::to_string(info.param.line) + (info.param.value < 0 ? "Minus" : "_") +
             std::to_string(std::abs(info.param.value));
    });

// ---- broken files: each is the good shape game with one small edit ----

struct Broken {
  const char* name;
  const char* where;  // the line the message must blame, when the fault is on one line
  std::function<std::optional<std::string>(const ShapeGame&)> make;  // nullopt: no file at all
};
void PrintTo(const Broken& b, std::ostream* os) { *os << b.name; }
class SavedGameBroken : public ::testing::TestWithParam<Broken> {};

TEST_P(SavedGameBroken, IsRefusedWithOneMessageAndNothingChanges) {
  const ShapeGame g = MakeShapeGame(5);
  const auto text = GetParam().make(g);
  TestProgram tp;
  tp.Deal("Spider", 3);
  DealRow(*tp);
  DealRow(*tp);
  int speed = 0;
  tp->cEngine.Undo(speed);  // a journal with undone records, which must stay redoable
  const Shot before = Take(*tp);
  ASSERT_EQ(before.transTop, 20);
  ASSERT_TRUE(before.running && before.gameTimer && before.status == 1);
  const std::string path = tp.home.File("broken.vq0");
  if (text) WriteFile(path, *text);

  EXPECT_FALSE(tp->cGamePlay.PlayFile(path, false));
  EXPECT_EQ(Take(*tp), before);
  EXPECT_EQ(tp.dialogs.shown.size(), 1u);
  EXPECT_FALSE(tp->cGamePlay.PlayPendFile(path));
  EXPECT_EQ(Take(*tp), before);
  EXPECT_EQ(tp.dialogs.shown.size(), 2u);
  if (text) {
    EXPECT_EQ(ReadFile(path), *text);  // a refused file stays on disk as it was
  }
  for (const auto& msg : tp.dialogs.shown) {
    EXPECT_NE(msg.find(path), std::string::npos) << msg;
    if (GetParam().where) {
      EXPECT_NE(msg.find(GetParam().where), std::string::npos) << msg;
    }
  }
}

std::string Field(const ShapeGame& g, int line, int k, const std::string& v) { return WithField(g.text, line, k, v); }
std::string LastLineCut(const ShapeGame& g, size_t columns) {
  return g.text.substr(0, LineStart(g.text, 25) + columns);
}

const Broken kBroken[] = {
    {"NoFile", nullptr, [](auto&) { return std::nullopt; }},
    {"Empty", nullptr, [](auto&) { return std::string(); }},
    {"OnlyTheName", nullptr, [](auto&) { return std::string("Spider\r\n"); }},
    {"EmptyName", nullptr, [](auto& g) { return WithLine(g.text, 1, ""); }},
    {"HeaderCutAfterLine10", nullptr, [](auto& g) { return g.text.substr(0, LineStart(g.text, 11)); }},
    {"HeaderCutAfterLine17", nullptr, [](auto& g) { return g.text.substr(0, LineStart(g.text, 18)); }},
    {"MoveLineCutAfterFiveFields", "line 25", [](auto& g) { return LastLineCut(g, 60); }},
    {"MoveLineCutAfterOneField", "line 25", [](auto& g) { return LastLineCut(g, 5); }},
    {"LetterInMoveField", "line 19", [](auto& g) { return Field(g, 19, 3, "x"); }},
    {"StrayAfterDigits", "line 19", [](auto& g) { return Field(g, 19, 3, "3x"); }},
    {"LetterInScore", "line 5", [](auto& g) { return WithLine(g.text, 5, " 1x5 "); }},
    {"GameNumberNotDigits", "line 2", [](auto& g) { return WithLine(g.text, 2, "12a"); }},
    {"TimeTooLarge", "line 3", [](auto& g) { return WithLine(g.text, 3, " 2147483648 "); }},
    {"PicIdTooLarge", "line 19", [](auto& g) { return Field(g, 19, 0, "99999"); }},
    {"TModTooLarge", "line 19", [](auto& g) { return Field(g, 19, 8, "4294967296"); }},
    {"TooManyRecords", nullptr,
     [](auto& g) {
       std::string t = g.text;
       for (int i = 7; i <= 32767; ++i) t += Lines(g.text)[18] + "\r\n";
       return t;
     }},
    {"PicId104", "line 19", [](auto& g) { return Field(g, 19, 0, "104"); }},
    {"PicIdMinus1", "line 19", [](auto& g) { return Field(g, 19, 0, "-1"); }},
    {"WrongSPos", "line 19", [](auto& g) { return Field(g, 19, 3, "2"); }},
    {"WrongSPile", "line 19", [](auto& g) { return Field(g, 19, 2, "8"); }},
    {"CardAlreadyMoved", "line 20", [](auto& g) { return Field(g, 20, 0, std::to_string(g.p9[3])); }},
    {"GroupCutShort", "line 23", [](auto& g) { return Field(g, 23, 7, "0"); }},
    {"MCardsMinus1", "line 19", [](auto& g) { return Field(g, 19, 7, "-1"); }},
    {"DPosOneTooHigh", "line 19", [](auto& g) { return Field(g, 19, 6, "5"); }},
    {"DPosOneTooLow", "line 19", [](auto& g) { return Field(g, 19, 6, "3"); }},
    {"DCell2", "line 19", [](auto& g) { return Field(g, 19, 4, "2"); }},
    {"DCell4", "line 19", [](auto& g) { return Field(g, 19, 4, "4"); }},
    {"DPile10", "line 19", [](auto& g) { return Field(g, 19, 5, "10"); }},
    {"DPileMinus1", "line 19", [](auto& g) { return Field(g, 19, 5, "-1"); }},
    {"FoundationPile8", "line 24", [](auto& g) { return Field(g, 24, 5, "8"); }},
    {"StockPile1", "line 25", [](auto& g) { return Field(g, 25, 5, "1"); }},
    {"OntoItsOwnPile", "line 19", [](auto& g) { return WithField(Field(g, 19, 5, "9"), 19, 6, "4"); }},
    {"TMod3FromSPos0", "line 22", [](auto& g) { return Field(g, 22, 8, "3"); }},
    {"TMod3FromStock", "line 24", [](auto& g) { return Field(g, 24, 8, "3"); }},
    {"TMod4", "line 19", [](auto& g) { return Field(g, 19, 8, "4"); }},
    {"TModMinus1", "line 19", [](auto& g) { return Field(g, 19, 8, "-1"); }},
    {"Multi2", "line 19", [](auto& g) { return Field(g, 19, 9, "2"); }},
};
INSTANTIATE_TEST_SUITE_P(SavedGameVariants, SavedGameBroken, ::testing::ValuesIn(kBroken),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace qv
