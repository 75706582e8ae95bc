#include "created/GamFile.h"

#include <algorithm>
#include <filesystem>

#include "engine/cCustom.h"
#include "session/AtomicFile.h"
#include "session/TextCodec.h"
#include "session/TextRecord.h"

namespace qv {

namespace fs = std::filesystem;

namespace {

// Room left beside a name in a file name of at most 255 bytes: "-<number>-(99).vq1" of an
// auto-saved copy plus the temporary name it is written under first.
constexpr size_t kMaxNameBytes = 180;

char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool EqualsIgnoringCase(std::string_view a, std::string_view b) {
  return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
           return Lower(x) == Lower(y);
         });
}

bool LessIgnoringCase(const std::string& a, const std::string& b) {
  // Names that differ only in case keep a fixed order too.
  if (EqualsIgnoringCase(a, b)) return a < b;
  return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(),
                                      [](char x, char y) { return Lower(x) < Lower(y); });
}

// The name a file in the games folder stands for, or empty when it is no game file.
std::string NameOfFile(const std::string& fileName) {
  if (fileName.size() <= kGamExt.size()) return {};
  const std::string_view ext = std::string_view(fileName).substr(fileName.size() - kGamExt.size());
  return EqualsIgnoringCase(ext, kGamExt) ? fileName.substr(0, fileName.size() - kGamExt.size()) : std::string();
}

std::optional<int16_t> SmallInt(const RecordField& f, int lo, int hi) {
  const auto v = ReadIntField(f);
  if (!v || *v < lo || *v > hi) return std::nullopt;
  return static_cast<int16_t>(*v);
}

// A game file is a few dozen bytes: anything far larger is no game and is not read whole.
constexpr uintmax_t kMaxFileBytes = 4096;

}  // namespace

std::optional<GamRules> ReadGamFile(const std::string& path) {
  std::error_code ec;
  const uintmax_t size = fs::file_size(path, ec);
  if (ec || size > kMaxFileBytes) return std::nullopt;
  const auto text = ReadWholeFile(path);
  return text ? ParseGamFile(*text) : std::nullopt;
}

namespace {

bool Reads(const fs::path& path) { return ReadGamFile(path.string()).has_value(); }

}  // namespace

std::string FormatGamFile(const cCustom& c) {
  std::string numbers;
  for (int v : {c.HPiles, c.HOrder, c.HSpace, c.HAK, c.HMulti, c.Suits, c.MOrder})
    numbers += (numbers.empty() ? "" : ",") + std::to_string(v);
  return QuotedField(c.GameName) + "\r\n" + numbers + "\r\n";
}

std::optional<GamRules> ParseGamFile(std::string_view raw) {
  const std::string text = AsUtf8(raw);
  const auto lines = SplitLines(text);
  if (lines.size() < 2) return std::nullopt;
  const auto name = SplitRecord(lines[0]);
  const auto fields = SplitRecord(lines[1]);
  if (!name || name->size() != 1 || (*name)[0].kind != RecordField::Quoted) return std::nullopt;
  if (!fields || fields->size() != 7) return std::nullopt;
  constexpr int kRange[7][2] = {{6, 10}, {0, 5}, {0, 13}, {0, 1}, {0, 1}, {0, 2}, {0, 5}};
  int16_t v[7];
  for (int i = 0; i < 7; ++i) {
    const auto n = SmallInt((*fields)[i], kRange[i][0], kRange[i][1]);
    if (!n) return std::nullopt;
    v[i] = *n;
  }
  return GamRules{(*name)[0].text, v[0], v[1], v[2], v[3], v[4], v[5], v[6]};
}

bool GameNameFits(std::string_view name) {
  // A line end or another control character would break the file's first record.
  return name.size() <= kMaxNameBytes &&
         std::none_of(name.begin(), name.end(), [](char c) { return static_cast<unsigned char>(c) < 0x20; });
}

std::vector<std::string> GamFilesOf(const std::string& folder, const std::string& name) {
  std::vector<std::string> files;
  std::error_code ec;
  for (fs::directory_iterator it(folder, ec), end; !ec && it != end; it.increment(ec)) {
    const std::string fileName = it->path().filename().string();
    if (!NameOfFile(fileName).empty() && NameOfFile(fileName) == name) files.push_back(it->path().string());
  }
  std::sort(files.begin(), files.end(), [&](const std::string& a, const std::string& b) {
    const bool aExact = a.ends_with(kGamExt), bExact = b.ends_with(kGamExt);
    return aExact != bExact ? aExact : a < b;
  });
  return files;
}

std::vector<std::string> ListGamNames(const std::string& folder) {
  std::vector<std::string> names;
  std::error_code ec;
  for (fs::directory_iterator it(folder, ec), end; !ec && it != end; it.increment(ec)) {
    const std::string name = NameOfFile(it->path().filename().string());
    if (!name.empty() && it->is_regular_file(ec) && Reads(it->path())) names.push_back(name);
  }
  std::sort(names.begin(), names.end(), LessIgnoringCase);
  names.erase(std::unique(names.begin(), names.end()), names.end());
  return names;
}

}  // namespace qv
