#include "QtSound.h"

#include <QSoundEffect>
#include <QUrl>

namespace qv {

QtSound::QtSound() = default;
QtSound::~QtSound() = default;

QSoundEffect& QtSound::Effect(const QString& path) {
  auto found = effects_.find(path);
  if (found == effects_.end()) {
    auto effect = std::make_unique<QSoundEffect>();
    effect->setSource(QUrl::fromLocalFile(path));
    found = effects_.emplace(path, std::move(effect)).first;
  }
  return *found->second;
}

void QtSound::Load(const std::string& path) { Effect(QString::fromStdString(path)); }

void QtSound::PlayWave(const std::string& path) {
  // A new sound stops the one before.
  if (last_) last_->stop();
  last_ = &Effect(QString::fromStdString(path));
  last_->play();
}

}  // namespace qv
