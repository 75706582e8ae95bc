#include "scores/cScore.h"

#include <fstream>
#include <algorithm>

#include "scores/Players.h"
#include "session/Program.h"
#include "session/TextCodec.h"
#include "session/TextRecord.h"

namespace qv {

namespace {

template <class Keep>
TotalsRec Totals(const std::vector<ScoreRec>& list, Keep keep) {
  TotalsRec t;
  for (const ScoreRec& r : list) {
    if (!keep(r)) continue;
    ++t.Played;
    if (r.Won == 1) ++t.Won;
    t.Score += r.Score;
    t.Moves += r.Moves;
    t.Time += r.Time;
  }
  t.Lost = t.Played - t.Won;
  return t;
}

// What a player's games are by now: the current figures of the game on the table.
ScoreRec CurrentGame(const Program& app, int16_t won) {
  const cGamePlay& gp = app.cGamePlay;
  ScoreRec r;
  r.GameName = gp.GameName();
  r.GameNo = gp.GameNo();
  r.Time = gp.Time();
  r.Moves = gp.Moves();
  r.Score = gp.Score();
  r.Won = won;
  r.Player = GetCurPlayer(app.cRegistry);
  return r;
}

}  // namespace

std::string cScore::ScoreFile(const std::string& player, FolderUse use) const {
  return app_.cData.AppDir(use) + player + ".sre";
}

void cScore::AddScore(int16_t mWon) {
  ScoreRec r = CurrentGame(app_, mWon);
  r.Date = GeneralDate(app_.surface.clock.Now());
  const std::string path = ScoreFile(r.Player, FolderUse::Write);
  std::string error;
  if (app_.cFileSys.AppendText(path, ScoreLine(r), &error) || toldWriteFailure_) return;
  toldWriteFailure_ = true;
  app_.MsgBox("The score of this game could not be written (" + error +
                  "). Scores are tried again with every game, but this message shows only once.",
              MsgStyle::Information);
}

void cScore::AddSesGame(int16_t mWon) { ses_.push_back(CurrentGame(app_, mWon)); }

void cScore::OpenScore(const std::string& Player) {
  const std::string path = ScoreFile(Player);
  std::ifstream in(path, std::ios::binary | std::ios::ate);
  if (!in) return;
  std::string text(static_cast<size_t>(std::max<std::streamoff>(in.tellg(), 0)), '\0');
  in.seekg(0);
  if (!in.read(text.data(), static_cast<std::streamsize>(text.size()))) return;  // unreadable: no games
  if (!IsValidUtf8(text)) text = AsUtf8(text);
  list_.reserve(list_.size() + text.size() / 48);
  int number = 0;
  for (std::string_view line : SplitLines(text)) {
    ++number;
    if (line.empty()) continue;
    auto r = ReadScoreLine(line);
    if (!r) {
      skipped_.push_back(path + ": line " + std::to_string(number));
      continue;
    }
    r->Player = Player;
    list_.push_back(std::move(*r));
  }
}

void cScore::OpenAllScore() {
  list_.clear();
  skipped_.clear();
  top_.fill(0);
  const int count = PlayerCount(app_.cRegistry);
  for (int slot = 1; slot <= count; ++slot) OpenScore(GetPlayer(app_.cRegistry, slot));
}

void cScore::CloseScore() {
  list_.clear();
  list_.shrink_to_fit();
  top_.fill(0);
}

void cScore::Insert(int slot, int32_t entry) {
  for (int i = 20; i > slot; --i) top_[i] = top_[i - 1];
  top_[slot] = entry;
}

void cScore::Sort(const std::string& gName, const std::string& Player, int16_t Won) {
  top_.fill(0);
  for (int32_t e = 1; e <= ScoreTop(); ++e) {
    const ScoreRec& r = list_[e - 1];
    if (r.Score <= 0 || (Won == 1 && r.Won == 0) || (!gName.empty() && gName != r.GameName) ||
        (!Player.empty() && Player != r.Player))
      continue;
    for (int i = 1; i <= 20; ++i) {
      const int32_t held = top_[i] ? list_[top_[i] - 1].Score : 0;
      if (r.Score >= held) {
        Insert(i, e);
        break;
      }
    }
  }
}

void cScore::FinSort(bool Time, bool Moves) {
  top_.fill(0);
  auto measure = [Time, Moves](const ScoreRec& r) { return Time ? r.Time : Moves ? r.Moves : 0; };
  for (int32_t e = 1; e <= ScoreTop(); ++e) {
    const ScoreRec& r = list_[e - 1];
    if (r.Won != 1) continue;
    const int32_t c = measure(r);
    for (int i = 1; i <= 20; ++i) {
      const int32_t t = top_[i] ? measure(list_[top_[i] - 1]) : 0;
      if (t == 0) {
        if (c > 0) top_[i] = e;
        break;
      }
      if (c <= t) {
        Insert(i, e);
        break;
      }
    }
  }
}

bool cScore::ClearStat() {
  if (app_.MsgBox("Are you sure you want to clear the Statistics, High Score and Log for all Players and Games ?",
                  MsgStyle::YesNoQuestion) != Answer::Yes)
    return false;
  const int count = PlayerCount(app_.cRegistry);
  for (int slot = 1; slot <= count; ++slot) {
    const std::string path = ScoreFile(GetPlayer(app_.cRegistry, slot));
    if (app_.cFileSys.Exists(path)) app_.cFileSys.Delete(path);
  }
  app_.MsgBox("Statistics, High Score and Log have been Cleared.", MsgStyle::Information);
  return true;
}

bool cScore::ExportStat(const std::string& path) {
  if (path.empty()) return false;
  OpenAllScore();
  const bool written = app_.cFileSys.WriteText(path, ScoreReport(app_));
  CloseScore();
  if (written) app_.MsgBox("Statistics Successfully Exported to " + path, MsgStyle::Information);
  return written;
}

TotalsRec cScore::AllTotals() const {
  return Totals(list_, [](const ScoreRec&) { return true; });
}

TotalsRec cScore::GameTotals(const std::string& gName) const {
  return Totals(list_, [&gName](const ScoreRec& r) { return r.GameName == gName; });
}

TotalsRec cScore::PlayerTotals(const std::string& Player) const {
  return Totals(list_, [&Player](const ScoreRec& r) { return r.Player == Player; });
}

PeriodRec cScore::PeriodTotals(const CivilDate& day, const std::string& interval) const {
  PeriodRec p;
  static_cast<TotalsRec&>(p) = Totals(list_, [&](const ScoreRec& r) {
    if (interval == "d") return r.Day == day;
    if (interval == "m") return r.Day.year == day.year && r.Day.month == day.month;
    return r.Day.year == day.year;
  });
  p.Label = PeriodLabel(day, interval);
  return p;
}

PeriodRec cScore::PeriodTotals(const std::string& date, const std::string& interval) const {
  const auto day = ReadGeneralDate(date);
  return day ? PeriodTotals(*day, interval) : PeriodRec{};
}

TotalsRec cScore::SessionTotals() const {
  return Totals(ses_, [](const ScoreRec&) { return true; });
}

ScoreRec cScore::GameItem(const std::string& gName, int n) const {
  for (const ScoreRec& r : list_)
    if (r.GameName == gName && --n == 0) return r;
  return {};
}

ScoreRec cScore::TopItem(int i) const { return top_[i] ? list_[top_[i] - 1] : ScoreRec{}; }

}  // namespace qv
