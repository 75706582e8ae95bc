#include "TestProgram.h"

#include <atomic>
#include <fstream>
#include <sstream>
#include <unistd.h>

#include "engine/Pointer.h"
#include "engine/Rules.h"
#include "session/SavedGameFile.h"

namespace qv::test {

Answer ScriptedDialogs::MsgBox(const std::string& text, MsgStyle style, const std::string& title) {
  shown.push_back(text);
  titles.push_back(title);
  if (onShow) onShow();
  const bool question = style == MsgStyle::YesNoStop || style == MsgStyle::YesNoQuestion;
  if (!question) return Answer::Ok;
  if (answers.empty()) return Answer::No;
  const Answer a = answers.front();
  answers.pop_front();
  return a;
}

TempHome::TempHome() {
  static std::atomic<int> counter{0};
  // Memory-backed where the machine has it: every saved game is flushed to the disk, and
  // the tests write thousands.
  std::error_code ec;
  const std::filesystem::path shm = "/dev/shm";
  const auto base = std::filesystem::is_directory(shm, ec) && access(shm.c_str(), W_OK) == 0
                        ? shm
                        : std::filesystem::temp_directory_path();
  path_ = base / ("quorvale-test-" + std::to_string(getpid()) + "-" + std::to_string(counter++));
  std::filesystem::remove_all(path_);
  std::filesystem::create_directories(path_);
}

TempHome::~TempHome() {
  std::error_code ec;
  std::filesystem::remove_all(path_, ec);
}

TestProgram::TestProgram() { Restart(); }

void TestProgram::Restart() {
  app.reset();
  auto hook = std::move(sprites.onYield);  // the test's, not the window's
  sprites = RecordingSprites();
  sprites.onYield = std::move(hook);
  window = RecordingWindow();
  app = std::make_unique<Program>(Surface{sprites, window, dialogs, clock}, settings, Folders());
  // It keeps the session, as the first program started on a home does.
  app->session.Acquire(app->cData.AppDir() + "/session.lock");
}

PlatformFolders TestProgram::Folders() const {
  return {home.Path() / "data", home.Path() / "Documents", home.Path() / "config", home.Path() / "bin"};
}

void TestProgram::Deal(const std::string& game, uint64_t number) { app->cGamePlay.PlayNumber(game, GameNo::Number(number)); }

void PlayWithRules(TestProgram& t, const Rules& r, uint64_t number) {
  GameHeader h;
  h.GameName = "Test Rules";
  h.GameNo = GameNo::Number(number);
  h.HPiles = r.HPiles, h.HOrder = r.HOrder, h.HSpace = r.HSpace, h.HAK = r.HAK, h.HMulti = r.HMulti;
  h.Suits = r.Suits, h.MOrder = r.MOrder;
  const std::string path = t.home.File("rules.vq0");
  WriteFile(path, FormatSavedGame(h, {}));
  t->cGamePlay.PlayFile(path, false);
}

void DealRows(TestProgram& t, int n) {
  for (int i = 0; i < n && t->cPlay.GetTop(1, 0) >= 0; ++i) ClickCard(*t.app, t->cPlay.GetTopPicID(1, 0));
}

bool MakeAnyLegalMove(TestProgram& t) {
  const Table& table = t->cPlay.table();
  for (int from = 0; from < t->cGames.Piles(0); ++from) {
    const int top = table.GetTop(0, from);
    if (top < 0) continue;
    // The lowest card of the longest group that can be picked up.
    int foot = top;
    while (foot > 0 && table.Card(table.GetPicID(0, from, foot - 1)).FaceMode &&
           IsSequence(table, t->cGames, table.GetPicID(0, from, foot - 1), top - foot + 1))
      --foot;
    const int pic = table.GetPicID(0, from, foot);
    for (int to = 0; to < t->cGames.Piles(0); ++to) {
      if (to == from || (foot == 0 && table.GetTop(0, to) < 0)) continue;
      if (!TableauAccepts(table, t->cGames, to, pic)) continue;
      const int before = t->cEngine.GetTransID();
      DragCardToPile(*t.app, pic, to);
      if (t->cEngine.GetTransID() == before + 1) return true;
    }
  }
  return false;
}

bool CompleteASet(TestProgram& t) {
  const cPlay& play = t->cPlay;
  const int piles = t->cGames.Piles(0);
  auto height = [&](int p) { return play.GetTop(0, p) + 1; };
  auto aceOnTop = [&](int p) { return height(p) > 0 && play.Num(play.GetTopPicID(0, p)) == 0; };
  int ace = -1;
  for (int guard = 0; guard < 200 && ace < 0; ++guard) {
    for (int p = 0; p < piles && ace < 0; ++p)
      if (aceOnTop(p)) ace = p;
    if (ace >= 0) break;
    // Dig: move the top card of the first pile that hides an Ace onto its neighbour.
    for (int p = 0; p < piles; ++p)
      for (int q = 0; q < height(p); ++q)
        if (play.Num(play.GetPicID(0, p, q)) == 0) {
          DragCardToPile(*t.app, play.GetTopPicID(0, p), (p + 1) % piles);
          p = piles;
          break;
        }
  }
  if (ace < 0) return false;
  const int target = (ace + 1) % piles;
  for (int p = 0, guard = 0; height(target) < 12 && guard < 500; p = (p + 1) % piles, ++guard)
    if (p != ace && p != target && height(p) > 0 && !aceOnTop(p)) DragCardToPile(*t.app, play.GetTopPicID(0, p), target);
  const int before = t->cEngine.TotalGoalCards();
  DragCardToPile(*t.app, play.GetTopPicID(0, ace), target);
  return t->cEngine.TotalGoalCards() == before + 13;
}

bool WinGame(TestProgram& t) {
  DealRows(t, 6);
  auto& play = t->cPlay;
  auto height = [&](int p) { return play.GetTop(0, p) + 1; };
  auto isAce = [&](int p, int q) { return play.Num(play.GetPicID(0, p, q)) == 0; };
  auto shortestBut = [&](int not_) {
    int best = not_ == 0 ? 1 : 0;
    for (int p = 0; p < 10; ++p)
      if (p != not_ && height(p) < height(best)) best = p;
    return best;
  };
  const int shown = t.window.finishShown;
  for (int guard = 0; guard < 3000 && t.window.finishShown == shown; ++guard) {
    bool open = false;
    for (int f = 0; f < 8; ++f) open |= play.GetTop(3, f) >= 0 && play.GetTop(3, f) < 12;
    // An open foundation takes any top card but an Ace; otherwise an Ace opens the next.
    int pick = -1;
    for (int p = 0; p < 10 && pick < 0; ++p)
      if (height(p) > 0 && isAce(p, height(p) - 1) != open) pick = p;
    if (pick >= 0) {
      DoubleClickCard(*t.app, play.GetTopPicID(0, pick));
      continue;
    }
    int from = -1;
    for (int p = 0, depth = 1000; p < 10; ++p)
      for (int q = 0; q < height(p); ++q)
        if (isAce(p, q) && height(p) - 1 - q < depth) from = p, depth = height(p) - 1 - q;
    if (from < 0) return false;
    DragCardToPile(*t.app, play.GetTopPicID(0, from), shortestBut(from));
  }
  return t.window.finishShown == shown + 1;
}

std::vector<int> Snapshot(const Program& app) {
  std::vector<int> out;
  const Table& table = app.cPlay.table();
  for (int pic = 0; pic < table.TotalCards(); ++pic) {
    const CardRec& c = table.Card(pic);
    out.insert(out.end(), {c.Cell, c.Pile, c.Pos, c.FaceMode ? 1 : 0});
  }
  return out;
}

void WriteFile(const std::string& path, const std::string& text) {
  std::ofstream f(path, std::ios::binary);
  f << text;
}

std::string ReadFile(const std::string& path) {
  std::ifstream f(path, std::ios::binary);
  std::stringstream s;
  s << f.rdbuf();
  return s.str();
}

}  // namespace qv::test
