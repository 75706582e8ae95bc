#pragma once

#include <string>
#include <vector>

#include "surface/ISoundOutput.h"

namespace qv {

// A sound output that remembers the events and the files it was asked to play.
class RecordingSound : public ISoundOutput {
 public:
  void PlayWave(const std::string& path) override { played.push_back(path); }
  void Event(const std::string& key) override { events.push_back(key); }
  std::vector<std::string> events;
  std::vector<std::string> played;
};

}  // namespace qv
