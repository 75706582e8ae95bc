#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "surface/Rgb.h"

namespace qv {

class cFileSys;

// A colour scheme: red, green, blue of the top colour, then of the bottom one.
using Scheme = std::array<int, 6>;
inline constexpr Scheme kDefaultScheme{0, 128, 0, 128, 0, 0};

// One line of six zoned numbers ending in CR LF.
std::string SchemeText(const Scheme& s);
// Blanks, commas and line ends separate the numbers; anything but six whole numbers of
// 0 to 255 is no scheme.
std::optional<Scheme> ParseScheme(std::string_view text);
std::optional<Scheme> ReadScheme(const std::string& path);
bool WriteScheme(const cFileSys& fs, const std::string& path, const Scheme& s);
inline Rgb SchemeTop(const Scheme& s) { return {uint8_t(s[0]), uint8_t(s[1]), uint8_t(s[2])}; }
inline Rgb SchemeBottom(const Scheme& s) { return {uint8_t(s[3]), uint8_t(s[4]), uint8_t(s[5])}; }

}  // namespace qv
