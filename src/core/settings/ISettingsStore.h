#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace qv {

// The four operations the program needs of a settings store. A key that was never
// written reads as std::nullopt, which is not the same as a stored empty text.
// A write answers false when the store refused it (read-only file, full disk).
class ISettingsStore {
 public:
  virtual ~ISettingsStore() = default;
  virtual std::optional<int32_t> ReadInt(const std::string& section, const std::string& key) const = 0;
  virtual std::optional<std::string> ReadText(const std::string& section, const std::string& key) const = 0;
  virtual bool WriteInt(const std::string& section, const std::string& key, int32_t value) = 0;
  virtual bool WriteText(const std::string& section, const std::string& key, const std::string& value) = 0;
};

}  // namespace qv
