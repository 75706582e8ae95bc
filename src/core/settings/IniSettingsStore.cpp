#include "settings/IniSettingsStore.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
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

// Holds an exclusive flock on `path` while it lives; the kernel drops it when the
// program dies, so a crash never leaves the settings locked.
class WriteLock {
 public:
  explicit WriteLock(const std::filesystem::path& path)
      // Read-only suffices for flock and also works on a lock file another user made.
      : fd_(open(path.c_str(), O_RDONLY | O_CREAT | O_CLOEXEC, 0644)) {
    while (fd_ >= 0 && flock(fd_, LOCK_EX) != 0 && errno == EINTR) {
    }
  }
  ~WriteLock() {
    if (fd_ >= 0) close(fd_);
  }
  WriteLock(const WriteLock&) = delete;
  WriteLock& operator=(const WriteLock&) = delete;

 private:
  int fd_;
};

}  // namespace

IniSettingsStore::IniSettingsStore(std::filesystem::path path)
    : path_(std::move(path)), lockPath_(path_.string() + ".lock") {
  Load(Look());
}

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

// stat() on the stored path allocates nothing, which keeps an unchanged read free of
// allocation.
IniSettingsStore::Stamp IniSettingsStore::Look() const {
  struct stat info {};
  if (stat(path_.c_str(), &info) != 0) return {.error = errno};
  return {.error = 0,
          .device = info.st_dev,
          .inode = info.st_ino,
          .size = info.st_size,
          .seconds = info.st_mtim.tv_sec,
          .nanoseconds = info.st_mtim.tv_nsec};
}

void IniSettingsStore::Refresh() const {
  if (const Stamp now = Look(); now != seen_) Load(now);
}

// Reads the file into memory; answers false when it did not read whole. `now` is the
// look taken before the read, so a change during the read shows at the next look.
bool IniSettingsStore::Load(const Stamp& now) const {
  seen_ = now;
  const std::optional<std::string> raw = ReadWholeFile(path_);
  if (!raw) {
    // A file that is there but cannot be read (a folder, no permission) keeps what was
    // last read, and counts as damaged so that no write replaces it uncopied.
    std::error_code ignored;
    if (std::filesystem::status(path_, ignored).type() != std::filesystem::file_type::not_found) return false;
    sections_.clear();
    return true;
  }
  bool damaged = false;
  const std::string text = RepairUtf8(*raw, damaged);
  std::string_view rest = text;
  if (rest.starts_with(kBom)) rest.remove_prefix(kBom.size());
  Sections sections;
  size_t section = kNoSection;
  while (!rest.empty()) {
    const size_t end = rest.find('\n');
    const std::string_view line = Trim(rest.substr(0, end));
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    if (!ReadLine(line, sections, section)) damaged = true;
  }
  sections_ = std::move(sections);
  return !damaged;
}

// Answers false for a line that did not read whole. `section` is the index of the
// section the line belongs to. Keys under a header that did not read have no
// section and are skipped: guessing one could overwrite good values.
bool IniSettingsStore::ReadLine(std::string_view line, Sections& sections, size_t& section) {
  if (line.empty() || line.front() == ';' || line.front() == '#') return true;
  if (line.front() == '[') {
    const bool whole = line.size() >= 2 && line.back() == ']';
    section = whole ? SectionIndex(sections, std::string(line.substr(1, line.size() - 2))) : kNoSection;
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
  return Set(sections[section], std::move(key), std::move(*value));
}

size_t IniSettingsStore::SectionIndex(Sections& sections, const std::string& name) {
  for (size_t i = 0; i < sections.size(); ++i) {
    if (sections[i].name == name) return i;
  }
  sections.push_back({name, {}});
  return sections.size() - 1;
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
  Refresh();
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

// A refused write leaves memory as the file on disk is, so reads never answer a
// setting the next run will not see.
bool IniSettingsStore::Write(const std::string& section, const std::string& key, Value value) {
  lastError_.clear();
  if (!SectionReadsBack(section) || !KeyReadsBack(key)) {
    lastError_ = "the name [" + section + "] " + key + " cannot be stored";
    return false;
  }
  std::error_code ignored;  // a folder that cannot be made makes the write below fail
  std::filesystem::create_directories(path_.parent_path(), ignored);
  // A lock that cannot be had (a folder that refuses the lock file, a file system
  // without flock) does not refuse the write: the lock only guards against our other
  // program writing in the same instant, and refusing would lose this setting for sure.
  const WriteLock lock(lockPath_);
  // Read afresh under the lock: keys another program wrote since our last look stay.
  const bool whole = Load(Look());
  Sections changed = sections_;
  Set(changed[SectionIndex(changed, section)], key, std::move(value));
  if ((!whole && !KeepDamagedCopy()) || !WriteFileAtomically(path_, Serialize(changed), &lastError_)) return false;
  sections_ = std::move(changed);
  seen_ = Stamp{};  // the next read looks at the file as the rename left it
  return true;
}

// Copies the file as it is on disk aside before it is replaced, to the first free
// name: an earlier copy may hold the only trace of lost settings.
bool IniSettingsStore::KeepDamagedCopy() {
  std::error_code error;
  if (std::filesystem::symlink_status(path_, error).type() == std::filesystem::file_type::not_found) {
    return true;  // removed since it was read: nothing left to keep
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
  return true;
}

std::string IniSettingsStore::Serialize(const Sections& sections) {
  std::string text;
  for (const Section& section : sections) {
    if (!text.empty()) text += "\r\n";
    text += "[" + section.name + "]\r\n";
    for (const Entry& entry : section.entries) text += FormatKey(entry.key) + "=" + FormatValue(entry.value) + "\r\n";
  }
  return text;
}

}  // namespace qv
