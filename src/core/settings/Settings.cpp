#include "settings/Settings.h"

#include <filesystem>

#include "session/Program.h"

namespace qv {

namespace {
bool IsFolder(const std::string& path) {
  std::error_code ec;
  return !path.empty() && std::filesystem::is_directory(path, ec);
}
}  // namespace

int DeckIndex(const Program& app) {
  const int deck = app.cRegistry.Get(setting::DeckIndex);
  return deck >= 1 && deck <= app.cImages.DeckCount() ? deck : setting::DeckIndex.fallback;
}

std::string SaveInitDir(const Program& app) {
  const std::string dir = app.cRegistry.Get(setting::SaveInitDir);
  return IsFolder(dir) ? dir : app.cData.SavedFolder();
}

std::string CustImageInitDir(const Program& app) {
  const std::string dir = app.cRegistry.Get(setting::CustImageInitDir);
  return IsFolder(dir) ? dir : app.folders.documents.string();
}

}  // namespace qv
