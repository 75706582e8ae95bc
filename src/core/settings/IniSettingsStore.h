#pragma once

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
// escapes. The file is read once, when the store is made, and every write
// rewrites it whole from memory, keeping sections and keys in their order.
//
// A damaged file never stops the program and is never lost: lines that cannot be
// read are skipped, stray Windows-1252 bytes are turned into UTF-8, and the file
// as it was on disk is copied to "<name>.bad" (or ".bad-1", ".bad-2", ...) before
// the first write replaces it. A missing file reads as empty and is only created,
// with its folders, by the first write.
//
// Not safe to share between threads.
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

  void Load();
  bool ReadLine(std::string_view line, size_t& section);
  size_t SectionIndex(const std::string& name);
  static bool Set(Section& section, std::string key, Value value);
  template <typename T>
  std::optional<T> Read(const std::string& section, const std::string& key) const;
  bool Write(const std::string& section, const std::string& key, Value value);
  bool KeepDamagedCopy();
  std::string Serialize() const;

  std::filesystem::path path_;
  std::vector<Section> sections_;
  bool damaged_ = false;  // the file on disk did not read whole and is not yet copied aside
  std::string lastError_;
};

}  // namespace qv
