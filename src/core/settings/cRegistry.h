#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "settings/ISettingsStore.h"
#include "settings/SettingKeys.h"

namespace qv {

// Access to the settings store. Nothing is cached: every read goes to the store, so a
// value written by one dialog is seen by everyone at once.
class cRegistry {
 public:
  explicit cRegistry(ISettingsStore& store) : store_(store) {}

  // The default only when nothing is stored: a stored empty text stays empty. A text with
  // %NAME% references comes back with them expanded from the environment.
  std::string RegGetStr(const std::string& section, const std::string& key, const std::string& fallback) const;
  int16_t RegGetInt(const std::string& section, const std::string& key, int16_t fallback) const;
  // False when the store refused the value; the game goes on either way.
  bool RegSaveStr(const std::string& section, const std::string& key, const std::string& value);
  bool RegSaveInt(const std::string& section, const std::string& key, int32_t value);

  int16_t Get(const IntSetting& s) const { return RegGetInt(s.section, s.key, s.fallback); }
  std::string Get(const TextSetting& s) const { return RegGetStr(s.section, s.key, s.fallback); }
  bool Set(const IntSetting& s, int32_t v) { return RegSaveInt(s.section, s.key, v); }
  bool Set(const TextSetting& s, const std::string& v) { return RegSaveStr(s.section, s.key, v); }

  // Told once a run, at the first write the store refuses, so the user learns that
  // settings are not being kept without being asked again at every change.
  std::function<void()> onFirstRefusal;

 private:
  bool Wrote(bool ok);

  ISettingsStore& store_;
  bool refused_ = false;
};

// Expands %NAME% references from the environment, as a text of that form is meant to be
// read; a lone % or an unknown name stays as it is.
std::string ExpandReferences(const std::string& text);

}  // namespace qv
