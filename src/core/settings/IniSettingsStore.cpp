#include "settings/IniSettingsStore.h"

#include <charconv>
#include <cstdlib>

#include "session/AtomicFile.h"
#include "session/TextCodec.h"

namespace qv {
namespace {

using SettingValue = std::variant<int32_t, std::string>;

constexpr std::string_view kBom = "\xEF\xBB\xBF";
constexpr size_t kNoSection = static_cast<size_t>(-1);

std::string_view Trim(std::string_view s) {
  const size_t first = s.find_first_not_of(" \t\r");
  if (first == std::string_view::npos) return {};
  return s.substr(first, s.find_last_not_of(" \t\r") - first + 1);
}

// `s` starts with the opening quote. Anything after the closing quote, an unknown
// escape or a missing closing quote (a line cut short) makes the text unreadable.
std::optional<std::string> ParseQuoted(std::string_view s) {
  std::string text;
  for (size_t i = 1; i < s.size(); ++i) {
    if (s[i] == '"') return i + 1 == s.size() ? std::optional(text) : std::nullopt;
    if (s[i] != '\\') {
      text += s[i];
      continue;
    }
    if (++i == s.size()) return std::nullopt;
    switch (s[i]) {
      case '"': text += '"'; break;
      case '\\': text += '\\'; break;
      case 'n': text += '\n'; break;
      case 'r': text += '\r'; break;
      default: return std::nullopt;
    }
  }
  return std::nullopt;
}

std::optional<SettingValue> ParseValue(std::string_view s) {
  if (s.starts_with('"')) return ParseQuoted(s);
  int32_t number;
  const auto [end, error] = std::from_chars(s.data(), s.data() + s.size(), number);
  if (error != std::errc() || end != s.data() + s.size()) return std::nullopt;
  return number;
}

std::string FormatValue(const SettingValue& value) {
  if (const auto* number = std::get_if<int32_t>(&value)) return std::to_string(*number);
  std::string quoted = "\"";
  for (const char c : std::get<std::string>(value)) {
    switch (c) {
      case '"': quoted += "\\\""; break;
      case '\\': quoted += "\\\\"; break;
      case '\n': quoted += "\\n"; break;
      case '\r': quoted += "\\r"; break;
      default: quoted += c;
    }
  }
  return quoted + '"';
}

// Names that would read back as something else (or not at all) are refused
// rather than written into a file the next run misreads.
bool SectionReadsBack(std::string_view name) {
  return name.find_first_of("\r\n") == std::string_view::npos && IsValidUtf8(name);
}

bool KeyReadsBack(std::string_view key) { return !key.empty() && IsValidUtf8(key); }

// A key that would not read back bare (outer blanks, "=", a leading "[", ";", "#" or quote,
// a line end) is written quoted, as texts are; every other key stays bare as before.
bool KeyNeedsQuotes(std::string_view key) {
  return Trim(key) != key || key.find_first_of("=\r\n") != std::string_view::npos ||
         key.find_first_of("[;#\"") == 0;
}

std::string FormatKey(const std::string& key) {
  return KeyNeedsQuotes(key) ? FormatValue(SettingValue(key)) : key;
}

// A quoted key: its text and what follows its closing quote, or std::nullopt.
std::optional<std::pair<std::string, std::string_view>> ParseQuotedKey(std::string_view line) {
  for (size_t i = 1; i < line.size(); ++i) {
    if (line[i] == '\\') {
      ++i;
    } else if (line[i] == '"') {
      auto key = ParseQuoted(line.substr(0, i + 1));
      if (!key) return std::nullopt;
      return std::pair(std::move(*key), line.substr(i + 1));
    }
  }
  return std::nullopt;
}

}  // namespace

IniSettingsStore::IniSettingsStore(std::filesystem::path path) : path_(std::move(path)) { Load(); }

std::filesystem::path IniSettingsStore::DefaultPath() {
  std::filesystem::path base;
  // A relative XDG_CONFIG_HOME is invalid and ignored, as the XDG rules say.
  if (const char* config = std::getenv("XDG_CONFIG_HOME"); config && std::filesystem::path(config).is_absolute()) {
    base = config;
  } else {
    const char* home = std::getenv("HOME");
    base = std::filesystem::path(home ? home : "") / ".config";
  }
  return base / "Quorvale" / "6.0" / "quorvale.ini";
}

void IniSettingsStore::Load() {
  const std::optional<std::string> raw = ReadWholeFile(path_);
  if (!raw) {
    // A file that is there but cannot be read must never be replaced by a write:
    // marking it damaged makes every write first try to copy it aside.
    std::error_code ignored;
    damaged_ = std::filesystem::status(path_, ignored).type() != std::filesystem::file_type::not_found;
    return;
  }
  const std::string text = RepairUtf8(*raw, damaged_);
  std::string_view rest = text;
  if (rest.starts_with(kBom)) rest.remove_prefix(kBom.size());
  size_t section = kNoSection;
  while (!rest.empty()) {
    const size_t end = rest.find('\n');
    const std::string_view line = Trim(rest.substr(0, end));
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    if (!ReadLine(line, section)) damaged_ = true;
  }
}

// Answers false for a line that did not read whole. `section` is the index of the
// section the line belongs to. Keys under a header that did not read have no
// section and are skipped: guessing one could overwrite good values.
bool IniSettingsStore::ReadLine(std::string_view line, size_t& section) {
  if (line.empty() || line.front() == ';' || line.front() == '#') return true;
  if (line.front() == '[') {
    const bool whole = line.size() >= 2 && line.back() == ']';
    section = whole ? SectionIndex(std::string(line.substr(1, line.size() - 2))) : kNoSection;
    return whole;
  }
  if (section == kNoSection) return false;
  std::string key;
  std::string_view rest;
  if (line.front() == '"') {
    auto quoted = ParseQuotedKey(line);
    if (!quoted) return false;
    key = std::move(quoted->first);
    rest = Trim(quoted->second);
    if (!rest.starts_with('=')) return false;
  } else {
    const size_t equals = line.find('=');
    if (equals == std::string_view::npos) return false;
    key = Trim(line.substr(0, equals));
    rest = line.substr(equals);
  }
  std::optional<SettingValue> value = ParseValue(Trim(rest.substr(1)));
  if (key.empty() || !value) return false;
  // A repeated key counts as damage: the rewrite keeps only the last value.
  return Set(sections_[section], std::move(key), std::move(*value));
}

size_t IniSettingsStore::SectionIndex(const std::string& name) {
  for (size_t i = 0; i < sections_.size(); ++i) {
    if (sections_[i].name == name) return i;
  }
  sections_.push_back({name, {}});
  return sections_.size() - 1;
}

bool IniSettingsStore::Set(Section& section, std::string key, Value value) {
  for (Entry& entry : section.entries) {
    if (entry.key == key) {
      entry.value = std::move(value);
      return false;
    }
  }
  section.entries.push_back({std::move(key), std::move(value)});
  return true;
}

template <typename T>
std::optional<T> IniSettingsStore::Read(const std::string& section, const std::string& key) const {
  for (const Section& candidate : sections_) {
    if (candidate.name != section) continue;
    for (const Entry& entry : candidate.entries) {
      if (entry.key == key && std::holds_alternative<T>(entry.value)) return std::get<T>(entry.value);
    }
  }
  return std::nullopt;
}

std::optional<int32_t> IniSettingsStore::ReadInt(const std::string& section, const std::string& key) const {
  return Read<int32_t>(section, key);
}

std::optional<std::string> IniSettingsStore::ReadText(const std::string& section, const std::string& key) const {
  return Read<std::string>(section, key);
}

bool IniSettingsStore::WriteInt(const std::string& section, const std::string& key, int32_t value) {
  return Write(section, key, value);
}

bool IniSettingsStore::WriteText(const std::string& section, const std::string& key, const std::string& value) {
  if (!IsValidUtf8(value)) {
    lastError_ = "the text for " + key + " is not UTF-8";
    return false;
  }
  return Write(section, key, value);
}

// A refused write leaves memory as it was, so reads keep answering what is on
// disk and the program never believes in a setting the next run will not see.
bool IniSettingsStore::Write(const std::string& section, const std::string& key, Value value) {
  lastError_.clear();
  if (!SectionReadsBack(section) || !KeyReadsBack(key)) {
    lastError_ = "the name [" + section + "] " + key + " cannot be stored";
    return false;
  }
  std::vector<Section> before = sections_;
  Set(sections_[SectionIndex(section)], key, std::move(value));
  std::error_code ignored;  // a folder that cannot be made makes the write below fail
  std::filesystem::create_directories(path_.parent_path(), ignored);
  if (!KeepDamagedCopy() || !WriteFileAtomically(path_, Serialize(), &lastError_)) {
    sections_ = std::move(before);
    return false;
  }
  return true;
}

// Copies the file as it is on disk aside once, before the first rewrite, to the
// first free name: an earlier copy may hold the only trace of lost settings.
bool IniSettingsStore::KeepDamagedCopy() {
  if (!damaged_) return true;
  std::error_code error;
  if (std::filesystem::symlink_status(path_, error).type() == std::filesystem::file_type::not_found) {
    damaged_ = false;  // removed since it was read: nothing left to keep
    return true;
  }
  std::filesystem::path copy;
  for (int n = 0;; ++n) {
    copy = path_;
    copy += n == 0 ? std::string(".bad") : ".bad-" + std::to_string(n);
    if (!std::filesystem::exists(std::filesystem::symlink_status(copy, error))) break;
  }
  // Without overwrite permission, copy_file refuses an existing name, even one
  // that appeared a moment ago.
  if (!std::filesystem::copy_file(path_, copy, error)) {
    lastError_ = "cannot keep a copy of the damaged " + path_.string() + ": " + error.message();
    return false;
  }
  damaged_ = false;
  return true;
}

std::string IniSettingsStore::Serialize() const {
  std::string text;
  for (const Section& section : sections_) {
    if (!text.empty()) text += "\r\n";
    text += "[" + section.name + "]\r\n";
    for (const Entry& entry : section.entries) text += FormatKey(entry.key) + "=" + FormatValue(entry.value) + "\r\n";
  }
  return text;
}

}  // namespace qv
