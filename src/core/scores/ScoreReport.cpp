#include <charconv>

#include "scores/Players.h"
#include "scores/ScoreText.h"
#include "scores/cScore.h"
#include "session/Program.h"

namespace qv {

namespace {

// A line printed in zones of 14 columns, straight onto the report: a number with a blank
// each side (its minus sign in the first), a text bare. Output that ends on a zone's first
// column goes on at the following zone, so the columns of a table stand still whatever
// their widths. Columns count characters, not bytes.
class ZonedLine {
 public:
  explicit ZonedLine(std::string& out) : out_(out) {}
  ZonedLine& Text(std::string_view s) {
    out_ += s;
    for (char c : s) column_ += (static_cast<unsigned char>(c) & 0xC0) != 0x80;
    return *this;
  }
  ZonedLine& Number(long long n) {
    char buf[24];
    char* first = buf + 1;
    const auto end = std::to_chars(first, buf + sizeof buf - 1, n).ptr;
    if (n >= 0) *--first = ' ';
    *end = ' ';
    return Text(std::string_view(first, static_cast<size_t>(end + 1 - first)));
  }
  ZonedLine& Zone() {
    const size_t next = (column_ / kZone + 1) * kZone;
    out_.append(next - column_, ' ');
    column_ = next;
    return *this;
  }
  ZonedLine& ZText(std::string_view s) { return Zone().Text(s); }
  ZonedLine& ZNumber(long long n) { return Zone().Number(n); }
  void End() { out_ += "\r\n"; }

 private:
  static constexpr size_t kZone = 14;
  std::string& out_;
  size_t column_ = 0;
};

constexpr std::string_view kBlankLine = " \r\n";

// The first n characters of a UTF-8 text, never half of one.
std::string_view Head(std::string_view s, size_t n) {
  size_t at = 0;
  for (size_t chars = 0; at < s.size() && chars < n; ++chars)
    do ++at;
    while (at < s.size() && (static_cast<unsigned char>(s[at]) & 0xC0) == 0x80);
  return s.substr(0, at);
}

void Headings(std::string& out, std::initializer_list<const char*> names) {
  ZonedLine line(out);
  bool first = true;
  for (const char* name : names) {
    if (!first) line.Zone();
    line.Text(name);
    first = false;
  }
  line.End();
}

// Won, Lost, Time, Moves and Score after Played, each at the next zone.
void TotalsRow(ZonedLine& line, const TotalsRec& t) {
  line.ZNumber(t.Won).ZNumber(t.Lost).ZText(FormatSeconds(t.Time)).ZNumber(t.Moves).ZNumber(t.Score).End();
}

void Separators(std::string& out, int n) {
  for (int i = 0; i < n; ++i) out += kBlankLine;
}

}  // namespace

std::string ScoreReport(const Program& app) {
  const cScore& s = app.cScore;
  const cRegistry& reg = app.cRegistry;
  std::string out;
  out.reserve(256 + static_cast<size_t>(s.ScoreTop()) * 120);
  out += app.cData.ProdName() + " Score Board\r\n";
  Separators(out, 1);
  out += "*************************\r\n";
  Separators(out, 1);
  ZonedLine(out).Text("Created By").ZText(GetCurPlayer(reg)).End();
  ZonedLine(out).Text("Created Date").ZText(GeneralDate(app.surface.clock.Now())).End();
  Separators(out, 1);
  out += "----------------------------------\r\n";
  Separators(out, 1);

  out += "General Statistics\r\n------------------\r\n";
  Headings(out, {"Played", "Won", "Lost", "Time", "Moves", "Score"});
  const TotalsRec all = s.AllTotals();
  ZonedLine general(out);
  TotalsRow(general.Number(all.Played), all);
  Separators(out, 2);

  out += "Player Statistics\r\n-----------------\r\n";
  Headings(out, {"Player", "Played", "Won", "Lost", "Time", "Moves", "Score"});
  const int players = PlayerCount(reg);
  for (int slot = 1; slot <= players; ++slot) {
    const std::string name = GetPlayer(reg, slot);
    const TotalsRec t = s.PlayerTotals(name);
    ZonedLine line(out);
    TotalsRow(line.Text(name).ZNumber(t.Played), t);
  }
  Separators(out, 2);

  out += "Games Statistics\r\n----------------\r\n";
  ZonedLine(out).Text("Game" + std::string(21, ' ') + "Played").ZText("Won").ZText("Time").ZText("Moves").ZText("Score").End();
  for (int g = 1; g <= app.cData.TotalGames(); ++g) {
    const std::string& name = app.cData.GetGName(g);
    const TotalsRec t = s.GameTotals(name);
    ZonedLine line(out);
    line.Text(name).Text(std::string(name.size() < 25 ? 25 - name.size() : 0, ' ')).Number(t.Played).ZNumber(t.Won);
    line.ZText(FormatSeconds(t.Time)).ZNumber(t.Moves).ZNumber(t.Score).End();
  }
  Separators(out, 2);

  out += "Full Statistics\r\n--------------\r\n";
  Headings(out, {"Date", "Game", "Player", "Status", "Score", "Moves", "Time", "Game No"});
  for (int32_t i = 1; i <= s.ScoreTop(); ++i) {
    const ScoreRec& r = s.ScoreItem(i);
    ZonedLine line(out);
    line.Text(ShortDate(r.Day)).ZText(Head(r.GameName, 12)).ZText(Head(r.Player, 12));
    line.ZText(StatusText(r.Won)).ZNumber(r.Score).ZNumber(r.Moves).ZText(FormatSeconds(r.Time)).Text("     ");
    const std::string& no = r.GameNo.Text();
    if (r.GameNo.IsTyped()) line.Text(no);
    else line.Text(no.starts_with('-') ? no + " " : " " + no + " ");
    line.End();
  }
  return out;
}

}  // namespace qv
