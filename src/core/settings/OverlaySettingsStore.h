#pragma once

#include "settings/ISettingsStore.h"
#include "settings/MemorySettingsStore.h"

namespace qv {

// Reads the user's settings and keeps every write in memory: a run that only looks
// sees the user's choices and leaves the settings file exactly as it was.
class OverlaySettingsStore final : public ISettingsStore {
 public:
  explicit OverlaySettingsStore(const ISettingsStore& base) : base_(base) {}

  std::optional<int32_t> ReadInt(const std::string& section, const std::string& key) const override {
    if (auto v = written_.ReadInt(section, key)) return v;
    return written_.ReadText(section, key) ? std::nullopt : base_.ReadInt(section, key);
  }
  std::optional<std::string> ReadText(const std::string& section, const std::string& key) const override {
    if (auto v = written_.ReadText(section, key)) return v;
    return written_.ReadInt(section, key) ? std::nullopt : base_.ReadText(section, key);
  }
  bool WriteInt(const std::string& section, const std::string& key, int32_t value) override {
    return written_.WriteInt(section, key, value);
  }
  bool WriteText(const std::string& section, const std::string& key, const std::string& value) override {
    return written_.WriteText(section, key, value);
  }

 private:
  const ISettingsStore& base_;
  MemorySettingsStore written_;
};

}  // namespace qv
