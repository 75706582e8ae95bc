#include "settings/cRegistry.h"

#include <cstdlib>

#include "engine/Numeric.h"

namespace qv {

std::string ExpandReferences(const std::string& text) {
  std::string out;
  size_t i = 0;
  while (i < text.size()) {
    const size_t open = text.find('%', i);
    const size_t close = open == std::string::npos ? std::string::npos : text.find('%', open + 1);
    if (close == std::string::npos || close == open + 1) {
      out.append(text, i, std::string::npos);
      break;
    }
    out.append(text, i, open - i);
    const char* value = std::getenv(text.substr(open + 1, close - open - 1).c_str());
    if (value) {
      out += value;
      i = close + 1;
    } else {
      out += '%';  // not a reference: keep the % and look on from the next one
      i = open + 1;
    }
  }
  return out;
}

std::string cRegistry::RegGetStr(const std::string& section, const std::string& key,
                                 const std::string& fallback) const {
  const auto v = store_.ReadText(section, key);
  return v ? ExpandReferences(*v) : fallback;
}

int16_t cRegistry::RegGetInt(const std::string& section, const std::string& key, int16_t fallback) const {
  const auto v = store_.ReadInt(section, key);
  return v ? Saturate16(*v) : fallback;
}

bool cRegistry::Wrote(bool ok) {
  if (!ok && !refused_) {
    refused_ = true;
    if (onFirstRefusal) onFirstRefusal();
  }
  return ok;
}

bool cRegistry::RegSaveStr(const std::string& section, const std::string& key, const std::string& value) {
  return Wrote(store_.WriteText(section, key, value));
}

bool cRegistry::RegSaveInt(const std::string& section, const std::string& key, int32_t value) {
  return Wrote(store_.WriteInt(section, key, value));
}

}  // namespace qv
