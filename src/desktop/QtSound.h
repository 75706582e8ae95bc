#pragma once

#include <QString>
#include <map>
#include <memory>

#include "surface/ISoundOutput.h"

class QSoundEffect;

namespace qv {

// Wave files through Qt Multimedia: one sound effect per file, loaded once and kept, so
// an event only starts it. Nothing waits on a sound: without an audio device a play
// returns at once and stays silent.
class QtSound : public ISoundOutput {
 public:
  QtSound();
  ~QtSound() override;
  void PlayWave(const std::string& path) override;
  void Load(const std::string& path) override;

 private:
  QSoundEffect& Effect(const QString& path);

  std::map<QString, std::unique_ptr<QSoundEffect>> effects_;
  QSoundEffect* last_ = nullptr;
};

}  // namespace qv
