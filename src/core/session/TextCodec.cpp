#include "session/TextCodec.h"

namespace qv {

namespace {

// Length of the well-formed UTF-8 sequence starting at s[i], or 0 when there is
// none (stray continuation byte, overlong form, surrogate, beyond U+10FFFF, cut).
size_t Utf8SequenceLength(std::string_view s, size_t i) {
  const auto lead = static_cast<unsigned char>(s[i]);
  if (lead < 0x80) return 1;
  size_t length;
  char32_t codePoint, smallest;
  if ((lead & 0xE0) == 0xC0) {
    length = 2, codePoint = lead & 0x1F, smallest = 0x80;
  } else if ((lead & 0xF0) == 0xE0) {
    length = 3, codePoint = lead & 0x0F, smallest = 0x800;
  } else if ((lead & 0xF8) == 0xF0) {
    length = 4, codePoint = lead & 0x07, smallest = 0x10000;
  } else {
    return 0;
  }
  if (i + length > s.size()) return 0;
  for (size_t k = 1; k < length; ++k) {
    const auto next = static_cast<unsigned char>(s[i + k]);
    if ((next & 0xC0) != 0x80) return 0;
    codePoint = (codePoint << 6) | (next & 0x3F);
  }
  const bool surrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
  return codePoint < smallest || codePoint > 0x10FFFF || surrogate ? 0 : length;
}

}  // namespace

bool IsValidUtf8(std::string_view s) {
  for (size_t i = 0, length; i < s.size(); i += length) {
    if ((length = Utf8SequenceLength(s, i)) == 0) return false;
  }
  return true;
}

namespace {

void AppendUtf8(std::string& out, char32_t codePoint) {
  if (codePoint < 0x800) {
    out += static_cast<char>(0xC0 | (codePoint >> 6));
  } else {
    out += static_cast<char>(0xE0 | (codePoint >> 12));
    out += static_cast<char>(0x80 | ((codePoint >> 6) & 0x3F));
  }
  out += static_cast<char>(0x80 | (codePoint & 0x3F));
}

// What a byte means in Windows-1252, the likeliest source of non-UTF-8 text in
// the file (an older version or a hand edit on Windows). The five bytes that
// code page leaves unassigned keep their Latin-1 meaning.
char32_t FromWindows1252(unsigned char byte) {
  static constexpr char32_t k80To9F[32] = {
      0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
      0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
      0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
      0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
  return byte >= 0x80 && byte <= 0x9F ? k80To9F[byte - 0x80] : byte;
}

}  // namespace

// Keeps every well-formed UTF-8 sequence and reads each other byte as
// Windows-1252, so one stray byte does not garble the rest of the line.
std::string RepairUtf8(std::string_view s, bool& repaired) {
  std::string out;
  out.reserve(s.size());
  for (size_t i = 0; i < s.size();) {
    if (const size_t length = Utf8SequenceLength(s, i)) {
      out.append(s.substr(i, length));
      i += length;
    } else {
      AppendUtf8(out, FromWindows1252(static_cast<unsigned char>(s[i++])));
      repaired = true;
    }
  }
  return out;
}

}  // namespace qv
