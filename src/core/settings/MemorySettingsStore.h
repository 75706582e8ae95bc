#pragma once

#include <map>
#include <utility>
#include <variant>

#include "settings/ISettingsStore.h"

namespace qv {

// Settings held in memory only: for tests, and for a run that must not touch the
// user's file. SetRefuseWrites(true) makes every write answer false and change
// nothing, which is how tests play a read-only or full disk.
class MemorySettingsStore final : public ISettingsStore {
 public:
  std::optional<int32_t> ReadInt(const std::string& section, const std::string& key) const override {
    return Read<int32_t>(section, key);
  }
  std::optional<std::string> ReadText(const std::string& section, const std::string& key) const override {
    return Read<std::string>(section, key);
  }
  bool WriteInt(const std::string& section, const std::string& key, int32_t value) override {
    return Write(section, key, value);
  }
  bool WriteText(const std::string& section, const std::string& key, const std::string& value) override {
    return Write(section, key, value);
  }
  void SetRefuseWrites(bool refuse) { refuseWrites_ = refuse; }

 private:
  using Value = std::variant<int32_t, std::string>;

  template <typename T>
  std::optional<T> Read(const std::string& section, const std::string& key) const {
    const auto found = values_.find({section, key});
    if (found == values_.end() || !std::holds_alternative<T>(found->second)) return std::nullopt;
    return std::get<T>(found->second);
  }
  bool Write(const std::string& section, const std::string& key, Value value) {
    if (refuseWrites_) return false;
    values_[{section, key}] = std::move(value);
    return true;
  }

  std::map<std::pair<std::string, std::string>, Value> values_;
  bool refuseWrites_ = false;
};

}  // namespace qv
