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
  // Adds lines at the end of a text file, making it when missing. A last line left without
  // its CR LF (a write cut short) is ended first, so the new line starts a line of its own;
  // a crash mid-append can cost only the line being added.
  bool AppendText(const std::string& path, std::string_view text, std::string* error = nullptr) const;
  // False, with the reason in *error, when the file is missing or the new name is taken.
  bool Rename(const std::string& from, const std::string& to, std::string* error = nullptr) const;
  // Removes a folder with everything in it.
  bool DeleteFolder(const std::string& path) const;
};

}  // namespace qv
