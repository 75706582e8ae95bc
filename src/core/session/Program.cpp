#include "session/Program.h"

#include <chrono>

namespace qv {

Program::Program(Surface s, ISettingsStore& st, PlatformFolders f)
    : surface(s),
      folders(std::move(f)),
      store(st),
      cData(*this),
      cGames(*this),
      cScore(*this),
      cEngine(*this),
      cRegistry(st),
      cFunc(cRegistry),
      cGamePlay(*this),
      cSound(*this),
      cCustom(*this),
      cPlay(*this),
      keeper(*this),
      rng(static_cast<uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count())) {
  if (!surface.background) surface.background = &recordedBackground;
  if (!surface.sound) surface.sound = &recordedSound;
  FillProductData(cData);
  cRegistry.onFirstRefusal = [this] {
    MsgBox("Your settings cannot be saved at the moment, so changes will not be kept for the next "
           "start. The game goes on.",
           MsgStyle::Information);
  };
}

Answer Program::MsgBox(const std::string& text, MsgStyle style) {
  return surface.dialogs.MsgBox(text, style, cData.ProdName());
}

}  // namespace qv
