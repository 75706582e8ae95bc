#include "session/TextRecord.h"

#include <charconv>

namespace qv {

namespace {

// The end of a field that opens with `close` at `start`: the first `close` that a comma or
// the line's end follows.
std::optional<size_t> ClosingMark(std::string_view line, size_t start, char close) {
  for (size_t i = line.find(close, start + 1); i != std::string_view::npos; i = line.find(close, i + 1))
    if (i + 1 == line.size() || line[i + 1] == ',') return i;
  return std::nullopt;
}

}  // namespace

std::optional<std::vector<RecordField>> SplitRecord(std::string_view line) {
  std::vector<RecordField> fields;
  size_t at = 0;
  while (true) {
    RecordField field;
    size_t end;
    if (at < line.size() && (line[at] == '"' || line[at] == '#')) {
      const char mark = line[at];
      const auto close = ClosingMark(line, at, mark);
      if (!close) return std::nullopt;
      field.kind = mark == '"' ? RecordField::Quoted : RecordField::Date;
      field.text = std::string(line.substr(at + 1, *close - at - 1));
      end = *close + 1;
    } else {
      end = std::min(line.find(',', at), line.size());
      field.text = std::string(line.substr(at, end - at));
    }
    fields.push_back(std::move(field));
    if (end >= line.size()) return fields;
    at = end + 1;  // past the comma
  }
}

std::string QuotedField(std::string_view text) { return "\"" + std::string(text) + "\""; }
std::string DateField(std::string_view text) { return "#" + std::string(text) + "#"; }

std::string RecordGameNo(const GameNo& no) { return no.IsTyped() ? QuotedField(no.Text()) : no.Text(); }

std::optional<GameNo> ReadRecordGameNo(const RecordField& field) {
  if (field.kind == RecordField::Quoted && GameNo::IsDigitText(field.text)) return GameNo::Typed(field.text);
  if (field.kind == RecordField::Bare && GameNo::IsNumberText(field.text)) return GameNo::Number(field.text);
  return std::nullopt;
}

std::optional<int32_t> ReadIntField(const RecordField& field) {
  if (field.kind != RecordField::Bare) return std::nullopt;
  int32_t value;
  const char* last = field.text.data() + field.text.size();
  const auto [end, error] = std::from_chars(field.text.data(), last, value);
  if (error != std::errc() || end != last) return std::nullopt;
  return value;
}

std::vector<std::string_view> SplitLines(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const size_t end = text.find('\n');
    std::string_view line = text.substr(0, end);
    if (line.ends_with('\r')) line.remove_suffix(1);
    lines.push_back(line);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  }
  return lines;
}

}  // namespace qv
