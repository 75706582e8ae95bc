#include "scores/ScoreRec.h"

#include "session/TextRecord.h"

namespace qv {

std::string ScoreLine(const ScoreRec& r) {
  return QuotedField(r.Date) + "," + QuotedField(r.GameName) + "," + RecordGameNo(r.GameNo) + "," +
         std::to_string(r.Time) + "," + std::to_string(r.Moves) + "," + std::to_string(r.Score) + "," +
         std::to_string(r.Won) + "\r\n";
}

std::optional<ScoreRec> ReadScoreLine(std::string_view line) {
  const auto f = SplitRecord(line);
  if (!f || f->size() != 7 || (*f)[0].kind != RecordField::Quoted || (*f)[1].kind != RecordField::Quoted)
    return std::nullopt;
  ScoreRec r;
  const auto day = ReadGeneralDate((*f)[0].text);
  const auto no = ReadRecordGameNo((*f)[2]);
  const auto time = ReadIntField((*f)[3]), moves = ReadIntField((*f)[4]), score = ReadIntField((*f)[5]);
  const auto won = ReadIntField((*f)[6]);
  if (!day || !no || !time || !moves || !score || !won || *won < INT16_MIN || *won > INT16_MAX) return std::nullopt;
  r.Date = (*f)[0].text;
  r.Day = *day;
  r.GameName = (*f)[1].text;
  r.GameNo = *no;
  r.Time = *time;
  r.Moves = *moves;
  r.Score = *score;
  r.Won = static_cast<int16_t>(*won);
  return r;
}

}  // namespace qv
