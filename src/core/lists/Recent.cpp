#include "lists/Recent.h"

#include "engine/GameNo.h"
#include "session/Program.h"
#include "session/SavedGameFile.h"

namespace qv {

std::optional<std::pair<std::string, GameNo>> SplitPlayed(const std::string& entry) {
  const auto cut = entry.rfind(" - ");
  if (cut == std::string::npos || cut == 0) return std::nullopt;
  const std::string number = entry.substr(cut + 3);
  // One read in its number form from a file ("-5") would make an entry that does nothing.
  if (!GameNo::IsDigitText(number)) return std::nullopt;
  return std::make_pair(entry.substr(0, cut), GameNo::Typed(number));
}

std::vector<std::string> PlayableEntries(const Program& app) {
  std::vector<std::string> shown;
  const auto slots = app.cFunc.GetMRU(kRecentPlayed);
  for (size_t i = 1; i < slots.size(); ++i) {
    // Its game may come and go (a created game deleted, made again): that is asked when listed.
    const auto played = SplitPlayed(slots[i]);
    if (played && app.cData.GameExists(played->first)) shown.push_back(slots[i]);
  }
  return shown;
}

void AddRecent(Program& app, int mType, const std::string& item) {
  if (mType == kRecentPlayed && !SplitPlayed(item)) return;
  app.cFunc.AddtoMRU(mType, item);
  app.surface.window.RefreshMenus();
}

void ClearRecent(Program& app, int mType) {
  app.cFunc.ClearMRU(mType);
  app.surface.window.RefreshMenus();
}

int GetRecentCount(const Program& app, int mType) { return app.cFunc.GetMRUCount(mType); }

std::vector<std::string> RecentMenuEntries(const Program& app, int mType) {
  if (mType == kRecentPlayed) return PlayableEntries(app);
  std::vector<std::string> shown;
  const auto slots = app.cFunc.GetMRU(mType);
  for (size_t i = 1; i < slots.size(); ++i)
    if (!slots[i].empty() && ReadGameHeader(slots[i])) shown.push_back(slots[i]);
  return shown;
}

int RecentCode(int mType) { return mType == kRecentSaved ? 200 : mType == kRecentOpened ? 201 : 202; }

bool PlayRecent(Program& app, int code, const std::string& tag) {
  if (code == 200 || code == 201) return app.cGamePlay.PlayFile(tag, true);
  if (code == 202) return app.cGamePlay.PlayString(tag);
  return false;
}

}  // namespace qv
