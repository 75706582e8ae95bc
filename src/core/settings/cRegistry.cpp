#include "settings/cRegistry.h"

#include "engine/Numeric.h"

namespace qv {

std::string cRegistry::RegGetStr(const std::string& section, const std::string& key,
                                 const std::string& fallback) const {
  return store_.ReadText(section, key).value_or(fallback);
}

int16_t cRegistry::RegGetInt(const std::string& section, const std::string& key, int16_t fallback) const {
  const auto v = store_.ReadInt(section, key);
  return v ? Saturate16(*v) : fallback;
}

bool cRegistry::RegSaveStr(const std::string& section, const std::string& key, const std::string& value) {
  return store_.WriteText(section, key, value);
}

bool cRegistry::RegSaveInt(const std::string& section, const std::string& key, int32_t value) {
  return store_.WriteInt(section, key, value);
}

}  // namespace qv
