#pragma once

#include <string>

namespace qv {

// Plays wave files. A play returns at once and stops the sound before it; no file or no
// audio device is silent, never an error.
class ISoundOutput {
 public:
  virtual ~ISoundOutput() = default;
  virtual void PlayWave(const std::string& path) = 0;
  // Gets a file ready ahead of its first event, so that event sounds at once.
  virtual void Load(const std::string& /*path*/) {}
  // Each sound event as it happens, heard or silent: what a recording output keeps.
  virtual void Event(const std::string& /*key*/) {}
};

}  // namespace qv
