#include "session/SavedGameFile.h"

#include <sys/stat.h>

#include <charconv>
#include <fcntl.h>
#include <limits>

#include "session/AtomicFile.h"
#include "session/TextCodec.h"
#include "surface/IClock.h"

namespace qv {

namespace {

constexpr int kZone = 14;
constexpr size_t kMaxRecords = 32767;

// Takes one field at a time, as the saved-game format is read: blanks and line ends
// before a field are skipped, and behind a field the blanks and the line end that close it.
class FieldReader {
 public:
  explicit FieldReader(std::string_view s) : s_(s) {
    if (s_.substr(0, 3) == "\xEF\xBB\xBF") s_.remove_prefix(3);
  }

  int Line() const { return line_; }
  bool AtEnd() {
    SkipSpace();
    return i_ >= s_.size();
  }
  // A whole line without its line end; nullopt at the end of the text.
  std::optional<std::string_view> WholeLine() {
    if (i_ >= s_.size()) return std::nullopt;
    const size_t start = i_;
    while (i_ < s_.size() && s_[i_] != '\r' && s_[i_] != '\n') ++i_;
    const auto line = s_.substr(start, i_ - start);
    PassLineEnd();
    return line;
  }
  std::optional<std::string_view> NumberToken() {
    SkipSpace();
    if (i_ >= s_.size()) return std::nullopt;
    const size_t start = i_;
    while (i_ < s_.size() && !IsStop(s_[i_])) ++i_;
    const auto token = s_.substr(start, i_ - start);
    while (i_ < s_.size() && (s_[i_] == ' ' || s_[i_] == '\t')) ++i_;
    if (i_ < s_.size() && s_[i_] == ',') ++i_;
    PassLineEnd();
    return token;
  }

 private:
  static bool IsStop(char c) { return c == ' ' || c == '\t' || c == ',' || c == '\r' || c == '\n'; }
  void SkipSpace() {
    while (i_ < s_.size() && (s_[i_] == ' ' || s_[i_] == '\t' || s_[i_] == '\r' || s_[i_] == '\n')) {
      if (s_[i_] == '\n') ++line_;
      ++i_;
    }
  }
  void PassLineEnd() {
    if (i_ < s_.size() && s_[i_] == '\r') ++i_;
    if (i_ < s_.size() && s_[i_] == '\n') {
      ++i_;
      ++line_;
    }
  }

  std::string_view s_;
  size_t i_ = 0;
  int line_ = 1;
};

template <typename Int>
bool ParseInt(std::string_view token, Int& out) {
  long long v = 0;
  const char* first = token.data();
  const char* last = first + token.size();
  if (first == last || *first == '+') return false;
  if (auto [p, ec] = std::from_chars(first, last, v); ec != std::errc() || p != last) return false;
  if (v < std::numeric_limits<Int>::min() || v > std::numeric_limits<Int>::max()) return false;
  out = static_cast<Int>(v);
  return true;
}

std::string At(int line) { return " on line " + std::to_string(line); }

// Reads one header number into its field; an error text on failure.
template <typename Int>
std::string ReadHeaderNumber(FieldReader& r, Int& field, const char* what) {
  const int line = r.Line();
  const auto token = r.NumberToken();
  if (!token) return std::string("it ends inside its header, before the ") + what;
  if (!ParseInt(*token, field)) return std::string("the ") + what + At(line) + " is not a number it can hold";
  return {};
}

std::string ReadGameNoLine(FieldReader& r, GameNo& out) {
  const int line = r.Line();
  const auto text = r.WholeLine();
  if (!text) return "it ends inside its header, before the game number";
  // A number field begins with its sign place; anything else is the number as it was typed.
  if (!text->empty() && ((*text)[0] == ' ' || (*text)[0] == '-')) {
    std::string_view t = *text;
    while (!t.empty() && t.front() == ' ') t.remove_prefix(1);
    while (!t.empty() && (t.back() == ' ' || t.back() == '\t')) t.remove_suffix(1);
    if (!GameNo::IsNumberText(std::string(t))) return "the game number" + At(line) + " is not a number";
    out = GameNo::Number(std::string(t));
    return {};
  }
  if (!GameNo::IsDigitText(std::string(*text))) return "the game number" + At(line) + " is not a number";
  out = GameNo::Typed(std::string(*text));
  return {};
}

std::string ReadHeader(FieldReader& r, GameHeader& h) {
  const auto name = r.WholeLine();
  if (!name) return "it is empty";
  if (name->empty()) return "its first line holds no game name";
  h.GameName = AsUtf8(*name);
  if (auto e = ReadGameNoLine(r, h.GameNo); !e.empty()) return e;
  std::string e;
  if (e.empty()) e = ReadHeaderNumber(r, h.Time, "time");
  if (e.empty()) e = ReadHeaderNumber(r, h.Moves, "number of moves");
  if (e.empty()) e = ReadHeaderNumber(r, h.Score, "score");
  if (e.empty()) e = ReadHeaderNumber(r, h.Percentage, "percentage");
  int16_t* rules[] = {&h.GOrder, &h.GBase, &h.GCards, &h.HOrder, &h.HSpace, &h.HPiles,
                      &h.HAK,    &h.HMulti, &h.RPiles, &h.RCards, &h.MOrder, &h.Suits};
  for (int16_t* field : rules)
    if (e.empty()) e = ReadHeaderNumber(r, *field, "rule field");
  return e;
}

std::string ReadRecord(FieldReader& r, TransRec& t) {
  const int line = r.Line();
  int16_t* small[] = {&t.PicID, &t.SCell, &t.SPile, &t.SPos, &t.DCell, &t.DPile, &t.DPos, &t.mCards};
  auto field = [&](auto& out) -> std::string {
    const auto token = r.NumberToken();
    if (!token) return "it ends inside the move" + At(line);
    if (!ParseInt(*token, out)) return "the move" + At(line) + " holds something that is not a number it can hold";
    return {};
  };
  for (int16_t* f : small)
    if (auto e = field(*f); !e.empty()) return e;
  if (auto e = field(t.tMod); !e.empty()) return e;
  return field(t.Multi);
}

std::string FileDateOf(const std::string& fName) {
  // The creation (birth) time where the file system keeps it, else the last change.
  struct statx stx {};
  if (statx(AT_FDCWD, fName.c_str(), 0, STATX_BTIME | STATX_MTIME, &stx) != 0) return {};
  const auto& ts = (stx.stx_mask & STATX_BTIME) ? stx.stx_btime : stx.stx_mtime;
  return GeneralDate(static_cast<std::time_t>(ts.tv_sec));
}

}  // namespace

std::string NumberField(long long v) {
  std::string field = v < 0 ? "" : " ";
  return field.append(std::to_string(v)).append(1, ' ');
}

std::string GameNoField(const GameNo& no) {
  if (no.IsTyped()) return no.Text();
  return no.Text().starts_with('-') ? no.Text() + " " : " " + no.Text() + " ";
}

std::string ZonedLine(std::span<const long long> fields) {
  std::string line;
  for (size_t k = 0; k < fields.size(); ++k) {
    if (k > 0) line.resize(((line.size() + kZone - 1) / kZone) * kZone, ' ');
    line += NumberField(fields[k]);
  }
  return line;
}

std::string MoveLine(const TransRec& r) {
  const long long fields[] = {r.PicID, r.SCell, r.SPile, r.SPos, r.DCell, r.DPile, r.DPos, r.mCards, r.tMod, r.Multi};
  return ZonedLine(fields);
}

std::string FormatSavedGame(const GameHeader& h, const std::vector<TransRec>& records) {
  std::string out;
  out.reserve(400 + records.size() * 134);
  auto line = [&out](const std::string& s) { out += s, out += "\r\n"; };
  line(h.GameName);
  line(GameNoField(h.GameNo));
  for (long long v : {static_cast<long long>(h.Time), static_cast<long long>(h.Moves),
                      static_cast<long long>(h.Score), static_cast<long long>(h.Percentage)})
    line(NumberField(v));
  for (int16_t v : {h.GOrder, h.GBase, h.GCards, h.HOrder, h.HSpace, h.HPiles, h.HAK, h.HMulti, h.RPiles, h.RCards,
                    h.MOrder, h.Suits})
    line(NumberField(v));
  for (const TransRec& r : records) line(MoveLine(r));
  return out;
}

ParsedGame ParseSavedGame(std::string_view text, bool headerOnly) {
  FieldReader r(text);
  SavedGame g;
  if (auto e = ReadHeader(r, g.header); !e.empty()) return {std::nullopt, e};
  while (!headerOnly && !r.AtEnd()) {
    if (g.records.size() == kMaxRecords) return {std::nullopt, "it holds more moves than a game can have"};
    TransRec t;
    if (auto e = ReadRecord(r, t); !e.empty()) return {std::nullopt, e};
    g.records.push_back(t);
  }
  return {std::move(g), {}};
}

ParsedGame ReadSavedGame(const std::string& fName, bool headerOnly) {
  const auto text = ReadWholeFile(fName);
  if (!text) return {std::nullopt, "it cannot be opened"};
  ParsedGame parsed = ParseSavedGame(*text, headerOnly);
  if (parsed.game) parsed.game->header.FileDate = FileDateOf(fName);
  return parsed;
}

std::optional<GameHeader> ReadGameHeader(const std::string& fName) {
  auto parsed = ReadSavedGame(fName, true);
  if (!parsed.game) return std::nullopt;
  return parsed.game->header;
}

bool IsFinishedFileName(const std::string& fName, const std::string& ext) {
  if (fName.size() < ext.size()) return false;
  for (size_t k = 0; k < ext.size(); ++k) {
    const char c = fName[fName.size() - ext.size() + k];
    if (std::tolower(static_cast<unsigned char>(c)) != std::tolower(static_cast<unsigned char>(ext[k]))) return false;
  }
  return true;
}

}  // namespace qv
