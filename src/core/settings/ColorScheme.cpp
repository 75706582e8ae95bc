#include "settings/ColorScheme.h"

#include <charconv>
#include <filesystem>

#include "session/AtomicFile.h"
#include "session/SavedGameFile.h"
#include "session/cFileSys.h"

namespace qv {

std::string SchemeText(const Scheme& s) {
  const std::array<long long, 6> fields{s[0], s[1], s[2], s[3], s[4], s[5]};
  return ZonedLine(fields) + "\r\n";
}

std::optional<Scheme> ParseScheme(std::string_view text) {
  Scheme s{};
  size_t n = 0;
  size_t i = 0;
  auto separator = [](char c) { return c == ' ' || c == ',' || c == '\r' || c == '\n' || c == '\t'; };
  while (i < text.size()) {
    if (separator(text[i])) {
      ++i;
      continue;
    }
    size_t end = i;
    while (end < text.size() && !separator(text[end])) ++end;
    int v = -1;
    const auto [p, ec] = std::from_chars(text.data() + i, text.data() + end, v);
    if (ec != std::errc() || p != text.data() + end || v < 0 || v > 255 || n == s.size()) return std::nullopt;
    s[n++] = v;
    i = end;
  }
  if (n != s.size()) return std::nullopt;
  return s;
}

std::optional<Scheme> ReadScheme(const std::string& path) {
  // A scheme is one short line: anything long is something else, not worth reading whole.
  std::error_code ec;
  const auto size = std::filesystem::file_size(path, ec);
  if (ec || size > 4096) return std::nullopt;
  const auto text = ReadWholeFile(path);
  if (!text) return std::nullopt;
  return ParseScheme(*text);
}

bool WriteScheme(const cFileSys& fs, const std::string& path, const Scheme& s) {
  return fs.WriteText(path, SchemeText(s));
}

}  // namespace qv
