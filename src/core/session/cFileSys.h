#pragma once

#include <string>
#include <string_view>

namespace qv {

// The file-system service: what the program does with files and folders.
class cFileSys {
 public:
  bool Exists(const std::string& path) const;
  void CreateFolder(const std::string& path) const;  // with its parents; silent on failure
  bool Delete(const std::string& path) const;
  // Replaces a file whole or not at all: a crash mid-write leaves the old file as it was.
  bool WriteText(const std::string& path, std::string_view text, std::string* error = nullptr) const;
};

}  // namespace qv
