#include "surface/cSound.h"

#include <filesystem>

#include "session/Program.h"

namespace qv {

const std::array<SoundEvent, 30>& SoundEvents() {
  static const std::array<SoundEvent, 30> kEvents{{
      {"Select", "", "Game", "Select Dialog"},
      {"Start", "Start.wav", "Game", "Start"},
      {"Move", "Sel.wav", "Game", "Move Card"},
      {"Undo", "Undo.wav", "Game", "Undo"},
      {"Redo", "Undo.wav", "Game", "Redo"},
      {"AutoPlay", "AutoPlay.wav", "Game", "AutoPlay"},
      {"Pause", "", "Game", "Pause Game"},
      {"Close", "", "Game", "Close Game"},
      {"Win", "Win.wav", "Game", "Win"},
      {"AddFav", "", "Favorites", "Add to Favorites"},
      {"OrgFav", "", "Favorites", "Organize Favorites"},
      {"AddPend", "", "Pending List", "Move to Pending List"},
      {"OrgPend", "", "Pending List", "Organize Pending List"},
      {"GameStat", "", "Statistics", "Game Statistics"},
      {"SessionStat", "", "Statistics", "Session Statistics"},
      {"HighScore", "", "Statistics", "High Score"},
      {"LogStat", "", "Statistics", "Log Statistics"},
      {"Toolbar", "", "Customize", "Toolbar"},
      {"Sounds", "", "Customize", "Sounds"},
      {"Animation", "", "Customize", "Animation"},
      {"Background", "", "Customize", "Background"},
      {"Deck", "", "Customize", "Deck"},
      {"Players", "", "Tools", "Players"},
      {"AutoSave", "", "Tools", "AutoSave"},
      {"Hot", "", "Tools", "Hot Games"},
      {"History", "", "Tools", "Game History"},
      {"Options", "", "Tools", "Options"},
      {"Rules", "", "Help", "Rules"},
      {"Contents", "", "Help", "Contents"},
      {"About", "", "Help", "About"},
  }};
  return kEvents;
}

void cSound::AutoPlay() {
  if (app_.cGamePlay.Game_Status() == 1) Event("AutoPlay");
}

void cSound::Event(const std::string& key) {
  app_.surface.sound->Event(key);
  Play(GetSound(key));
}

void cSound::Play(const std::string& mWav) {
  std::error_code ec;
  if (!mWav.empty() && std::filesystem::is_regular_file(mWav, ec)) app_.surface.sound->PlayWave(mWav);
}

std::string cSound::GetSound(const std::string& key) const {
  std::string fallback;
  for (const SoundEvent& e : SoundEvents())
    if (key == e.key && *e.file) fallback = GetDefault(e.file);
  return app_.cRegistry.RegGetStr(section::Sounds, key, fallback);
}

std::string cSound::GetDefault(const std::string& fName) const {
  return (std::filesystem::path(app_.cData.ProgramFolder()) / fName).string();
}

void cSound::SetSound(const std::string& key, const std::string& value) {
  app_.cRegistry.RegSaveStr(section::Sounds, key, value);
  if (!value.empty()) app_.surface.sound->Load(value);
}

void cSound::Preload() {
  for (const SoundEvent& e : SoundEvents()) {
    const std::string path = GetSound(e.key);
    std::error_code ec;
    if (!path.empty() && std::filesystem::is_regular_file(path, ec)) app_.surface.sound->Load(path);
  }
}

}  // namespace qv
