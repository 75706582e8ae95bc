#include "scores/ScoreRec.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "session/TextRecord.h"

namespace qv {

std::string ScoreLine(const ScoreRec& r) {
  return QuotedField(r.Date) + "," + QuotedField(r.GameName) + "," + RecordGameNo(r.GameNo) + "," +
         std::to_string(r.Time) + "," + std::to_string(r.Moves) + "," + std::to_string(r.Score) + "," +
         std::to_string(r.Won) + "\r\n";
}

namespace {

// The seven fields of a line without copying them: a quoted field ends at a quote that a
// comma or the line's end follows (a quote inside a name is not escaped), a bare one at the
// next comma. Many thousands of lines are read each time a statistics window opens.
struct Field {
  std::string_view text;
  bool quoted = false;
};

bool SplitSeven(std::string_view line, std::array<Field, 7>& out) {
  size_t at = 0;
  for (size_t n = 0; n < 7; ++n) {
    size_t end;
    if (at < line.size() && line[at] == '"') {
      size_t close = line.find('"', at + 1);
      while (close != std::string_view::npos && close + 1 != line.size() && line[close + 1] != ',')
        close = line.find('"', close + 1);
      if (close == std::string_view::npos) return false;
      out[n] = {line.substr(at + 1, close - at - 1), true};
      end = close + 1;
    } else {
      end = std::min(line.find(',', at), line.size());
      out[n] = {line.substr(at, end - at), false};
    }
    if (end == line.size()) return n == 6;
    at = end + 1;
  }
  return false;  // an eighth field
}

std::optional<int32_t> Int(const Field& f) {
  int32_t value;
  const char* last = f.text.data() + f.text.size();
  const auto [end, error] = std::from_chars(f.text.data(), last, value);
  if (f.quoted || error != std::errc() || end != last) return std::nullopt;
  return value;
}

}  // namespace

std::optional<ScoreRec> ReadScoreLine(std::string_view line) {
  std::array<Field, 7> f;
  if (!SplitSeven(line, f) || !f[0].quoted || !f[1].quoted) return std::nullopt;
  const auto day = ReadGeneralDate(f[0].text);
  const RecordField number{f[2].quoted ? RecordField::Quoted : RecordField::Bare, std::string(f[2].text)};
  const auto no = ReadRecordGameNo(number);
  const auto time = Int(f[3]), moves = Int(f[4]), score = Int(f[5]), won = Int(f[6]);
  if (!day || !no || !time || !moves || !score || !won || *won < INT16_MIN || *won > INT16_MAX) return std::nullopt;
  ScoreRec r;
  r.Date = f[0].text;
  r.Day = *day;
  r.GameName = f[1].text;
  r.GameNo = *no;
  r.Time = *time;
  r.Moves = *moves;
  r.Score = *score;
  r.Won = static_cast<int16_t>(*won);
  return r;
}

}  // namespace qv
