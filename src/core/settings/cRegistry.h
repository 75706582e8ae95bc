#pragma once

#include <cstdint>
#include <string>

#include "settings/ISettingsStore.h"
#include "settings/SettingKeys.h"

namespace qv {

// Access to the settings store. Nothing is cached: every read goes to the store, so a
// value written by one dialog is seen by everyone at once.
class cRegistry {
 public:
  explicit cRegistry(ISettingsStore& store) : store_(store) {}

  // The default only when nothing is stored: a stored empty text stays empty.
  std::string RegGetStr(const std::string& section, const std::string& key, const std::string& fallback) const;
  int16_t RegGetInt(const std::string& section, const std::string& key, int16_t fallback) const;
  // False when the store refused the value; the game goes on either way.
  bool RegSaveStr(const std::string& section, const std::string& key, const std::string& value);
  bool RegSaveInt(const std::string& section, const std::string& key, int32_t value);

  int16_t Get(const IntSetting& s) const { return RegGetInt(s.section, s.key, s.fallback); }
  std::string Get(const TextSetting& s) const { return RegGetStr(s.section, s.key, s.fallback); }
  bool Set(const IntSetting& s, int32_t v) { return RegSaveInt(s.section, s.key, v); }
  bool Set(const TextSetting& s, const std::string& v) { return RegSaveStr(s.section, s.key, v); }

 private:
  ISettingsStore& store_;
};

}  // namespace qv
