#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "surface/IBackground.h"

namespace qv {

// A background that remembers what it was asked to paint, one line each, for tests and
// the command-line tool. A file "loads" when it exists; nothing is written.
class RecordingBackground : public IBackground {
 public:
  void Clear() override { painted.push_back("clear"); }
  void Gradient(Rgb t, Rgb b) override { painted.push_back("gradient " + Text(t) + " " + Text(b)); }
  bool ShowPicture(const BackPicture& p, bool tile) override {
    std::error_code ec;
    if (p.kind == BackPicture::File && !std::filesystem::is_regular_file(p.path, ec)) return false;
    const char* kinds[] = {"texture ", "image ", "file "};
    painted.push_back(kinds[p.kind] + (p.kind == BackPicture::File ? p.path : std::to_string(p.index)) +
                      (tile ? " tiled" : " centred"));
    return true;
  }
  void SetWallTimer(int ms) override { wallTimer = ms; }
  bool SaveDefaultImage(const std::string&) override { return false; }

  static std::string Text(Rgb c) {
    return std::to_string(c.r) + "," + std::to_string(c.g) + "," + std::to_string(c.b);
  }
  std::vector<std::string> painted;
  int wallTimer = 0;
};

}  // namespace qv
