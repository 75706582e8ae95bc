#include "scores/ScoreText.h"
#include "scores/Players.h"
#include "scores/cScore.h"
#include "session/Program.h"

namespace qv {

namespace {

// A text printed in zones of 14 columns: a number with a blank each side (its minus sign
// in the first), a text bare. Output that ends on a zone's first column goes on at the
// following zone, so the columns of a table stand still whatever their widths.
class ZonedLine {
 public:
  ZonedLine& Text(const std::string& s) {
    line_ += s;
    return *this;
  }
  ZonedLine& Number(long long n) { return Text((n < 0 ? "" : " ") + std::to_string(n) + " "); }
  ZonedLine& Zone() {
    line_.resize((line_.size() / kZone + 1) * kZone, ' ');
    return *this;
  }
  ZonedLine& ZText(const std::string& s) { return Zone().Text(s); }
  ZonedLine& ZNumber(long long n) { return Zone().Number(n); }
  std::string End() const { return line_ + "\r\n"; }

 private:
  static constexpr size_t kZone = 14;
  std::string line_;
};

const std::string kBlankLine = " \r\n";

// The first n characters of a UTF-8 text, never half of one.
std::string Head(const std::string& s, size_t n) {
  size_t at = 0;
  for (size_t chars = 0; at < s.size() && chars < n; ++chars)
    do ++at;
    while (at < s.size() && (static_cast<unsigned char>(s[at]) & 0xC0) == 0x80);
  return s.substr(0, at);
}

std::string Headings(std::initializer_list<const char*> names) {
  ZonedLine line;
  bool first = true;
  for (const char* name : names) {
    if (!first) line.Zone();
    line.Text(name);
    first = false;
  }
  return line.End();
}

// Won, Lost, Time, Moves and Score after Played, each at the next zone.
std::string TotalsRow(ZonedLine& line, const TotalsRec& t) {
  return line.ZNumber(t.Won).ZNumber(t.Lost).ZText(FormatSeconds(t.Time)).ZNumber(t.Moves).ZNumber(t.Score).End();
}

}  // namespace

std::string ScoreReport(const Program& app) {
  const cScore& s = app.cScore;
  const cRegistry& reg = app.cRegistry;
  std::string out = app.cData.ProdName() + " Score Board\r\n";
  out += kBlankLine + "*************************\r\n" + kBlankLine;
  out += ZonedLine().Text("Created By").ZText(GetCurPlayer(reg)).End();
  out += ZonedLine().Text("Created Date").ZText(GeneralDate(app.surface.clock.Now())).End();
  out += kBlankLine + "----------------------------------\r\n" + kBlankLine;

  out += "General Statistics\r\n------------------\r\n";
  out += Headings({"Played", "Won", "Lost", "Time", "Moves", "Score"});
  const TotalsRec all = s.AllTotals();
  ZonedLine general;
  out += TotalsRow(general.Number(all.Played), all);
  out += kBlankLine + kBlankLine;

  out += "Player Statistics\r\n-----------------\r\n";
  out += Headings({"Player", "Played", "Won", "Lost", "Time", "Moves", "Score"});
  const int players = PlayerCount(reg);
  for (int slot = 1; slot <= players; ++slot) {
    const std::string name = GetPlayer(reg, slot);
    const TotalsRec t = s.PlayerTotals(name);
    ZonedLine line;
    out += TotalsRow(line.Text(name).ZNumber(t.Played), t);
  }
  out += kBlankLine + kBlankLine;

  out += "Games Statistics\r\n----------------\r\n";
  out += ZonedLine().Text("Game" + std::string(21, ' ') + "Played").ZText("Won").ZText("Time").ZText("Moves")
             .ZText("Score").End();
  for (int g = 1; g <= app.cData.TotalGames(); ++g) {
    const std::string& name = app.cData.GetGName(g);
    const TotalsRec t = s.GameTotals(name);
    ZonedLine line;
    line.Text(name + std::string(name.size() < 25 ? 25 - name.size() : 0, ' ')).Number(t.Played).ZNumber(t.Won);
    out += line.ZText(FormatSeconds(t.Time)).ZNumber(t.Moves).ZNumber(t.Score).End();
  }
  out += kBlankLine + kBlankLine;

  out += "Full Statistics\r\n--------------\r\n";
  out += Headings({"Date", "Game", "Player", "Status", "Score", "Moves", "Time", "Game No"});
  for (int32_t i = 1; i <= s.ScoreTop(); ++i) {
    const ScoreRec& r = s.ScoreItem(i);
    ZonedLine line;
    line.Text(ShortDate(r.Day)).ZText(Head(r.GameName, 12)).ZText(Head(r.Player, 12));
    line.ZText(StatusText(r.Won)).ZNumber(r.Score).ZNumber(r.Moves).ZText(FormatSeconds(r.Time)).Text("     ");
    const std::string& no = r.GameNo.Text();
    if (r.GameNo.IsTyped()) line.Text(no);
    else line.Text(no.starts_with('-') ? no + " " : " " + no + " ");
    out += line.End();
  }
  return out;
}

}  // namespace qv
