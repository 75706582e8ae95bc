#include "lists/Recent.h"

#include "session/Program.h"
#include "session/SavedGameFile.h"

namespace qv {

void AddRecent(Program& app, int mType, const std::string& item) {
  app.cFunc.AddtoMRU(mType, item);
  app.surface.window.RefreshMenus();
}

void ClearRecent(Program& app, int mType) {
  app.cFunc.ClearMRU(mType);
  app.surface.window.RefreshMenus();
}

int GetRecentCount(const Program& app, int mType) { return app.cFunc.GetMRUCount(mType); }

std::vector<std::string> RecentMenuEntries(const Program& app, int mType) {
  std::vector<std::string> shown;
  const auto slots = app.cFunc.GetMRU(mType);
  for (size_t i = 1; i < slots.size(); ++i) {
    const std::string& item = slots[i];
    if (item.empty()) continue;
    if (mType == kRecentPlayed) {
      // The entry plays from the last " - ", as PlayString reads it.
      const auto cut = item.rfind(" - ");
      if (cut != std::string::npos && app.cData.GameExists(item.substr(0, cut))) shown.push_back(item);
    } else if (ReadGameHeader(item)) {
      shown.push_back(item);
    }
  }
  return shown;
}

int RecentCode(int mType) { return mType == kRecentSaved ? 200 : mType == kRecentOpened ? 201 : 202; }

bool PlayRecent(Program& app, int code, const std::string& tag) {
  if (code == 200 || code == 201) return app.cGamePlay.PlayFile(tag, true);
  if (code == 202) return app.cGamePlay.PlayString(tag);
  return false;
}

}  // namespace qv
