#pragma once

#include <cstdint>
#include <filesystem>
#include <string_view>
#include <variant>
#include <vector>

#include "settings/ISettingsStore.h"

namespace qv {

// The settings file: INI-style, UTF-8, CR LF line ends.
//
//   [General]
//   UnFin=1
//   LastGName="Spider Two Suit"
//
// A number is a bare signed 32-bit decimal; a text is quoted, with \" \\ \n \r
// escapes. Sections and keys keep their order.
//
// The window and quorvale-cli (or a second window) share the file while they run.
// Before each read the store looks at the file with one stat (size, modification
// time, inode) and reads it again only when that changed, so a key another program
// wrote is seen at once. An unchanged file costs the stat alone and allocates
// nothing, unless a returned text is too long for std::string's own buffer.
// A write takes an flock on "<name>.lock" beside the file (the file itself is
// replaced by rename, so it cannot carry the lock), reads the file afresh, changes
// the one key and replaces the file atomically: keys the other program wrote in
// between survive. A file rewritten twice within one clock tick to the same size
// may reuse its inode and go unseen by a read until the next change; a write
// always reads afresh, so no key is lost that way.
//
// A damaged file never stops the program and is never lost: lines that cannot be
// read are skipped, stray Windows-1252 bytes are turned into UTF-8, and the file
// as it was on disk is copied to "<name>.bad" (or ".bad-1", ".bad-2", ...) before
// a write replaces it, whoever damaged it. A missing file reads as empty and is
// only created, with its folders, by the first write. A file that is there but
// cannot be read is never replaced, and reads keep answering what was last read.
//
// Not safe to share between threads; each thread (or program) needs its own store.
class IniSettingsStore final : public ISettingsStore {
 public:
  explicit IniSettingsStore(std::filesystem::path path);

  // $XDG_CONFIG_HOME/Quorvale/6.0/quorvale.ini, falling back to ~/.config.
  static std::filesystem::path DefaultPath();

  std::optional<int32_t> ReadInt(const std::string& section, const std::string& key) const override;
  std::optional<std::string> ReadText(const std::string& section, const std::string& key) const override;
  bool WriteInt(const std::string& section, const std::string& key, int32_t value) override;
  bool WriteText(const std::string& section, const std::string& key, const std::string& value) override;

  // Why the last write was refused, to tell the user; empty after a write that worked.
  const std::string& LastError() const { return lastError_; }

 private:
  using Value = std::variant<int32_t, std::string>;
  struct Entry {
    std::string key;
    Value value;
  };
  struct Section {
    std::string name;
    std::vector<Entry> entries;
  };

  using Sections = std::vector<Section>;

  // What one stat tells of the file. Any field that differs means it changed.
  struct Stamp {
    int error = -1;  // the stat's errno, 0 when the file is there; -1 matches no real look
    uint64_t device = 0;
    uint64_t inode = 0;
    int64_t size = 0;
    int64_t seconds = 0;
    int64_t nanoseconds = 0;
    bool operator==(const Stamp&) const = default;
  };

  Stamp Look() const;
  void Refresh() const;
  bool Load(const Stamp& now) const;
  static bool ReadLine(std::string_view line, Sections& sections, size_t& section);
  static size_t SectionIndex(Sections& sections, const std::string& name);
  static bool Set(Section& section, std::string key, Value value);
  template <typename T>
  std::optional<T> Read(const std::string& section, const std::string& key) const;
  bool Write(const std::string& section, const std::string& key, Value value);
  bool KeepDamagedCopy();
  static std::string Serialize(const Sections& sections);

  std::filesystem::path path_;
  std::filesystem::path lockPath_;
  mutable Sections sections_;  // the file as last read
  mutable Stamp seen_;         // the file as it was when last read
  std::string lastError_;
};

}  // namespace qv
