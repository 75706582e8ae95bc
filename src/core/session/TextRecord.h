#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/GameNo.h"

namespace qv {

// The small comma-separated records of the program's text files (score lines, favourites,
// created games): a text in double quotes, a number bare, a date between '#' signs, one comma
// between fields and no blanks. A quote inside a text is not escaped, so a field ends at a
// quote that a comma or the line's end follows; a comma inside quotes belongs to the text.
struct RecordField {
  enum Kind { Bare, Quoted, Date };
  Kind kind = Bare;
  std::string text;  // without its quotes or '#' signs
};

// The fields of one line (its CR LF, if any, already cut off); std::nullopt when a quoted
// or dated field is not closed or stray characters follow one.
std::optional<std::vector<RecordField>> SplitRecord(std::string_view line);

std::string QuotedField(std::string_view text);
std::string DateField(std::string_view text);
// A game number keeps its form: bare when it was a number, quoted when it was typed.
std::string RecordGameNo(const GameNo& no);
// A field read back as a game number in the form it was written; std::nullopt when it is
// neither a number nor typed digits.
std::optional<GameNo> ReadRecordGameNo(const RecordField& field);
// A bare decimal integer that fits 32 bits.
std::optional<int32_t> ReadIntField(const RecordField& field);

// The lines of a text file, each without its line end; CR LF and a bare LF both end a line.
std::vector<std::string_view> SplitLines(std::string_view text);

}  // namespace qv
