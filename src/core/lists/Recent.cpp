#include "lists/Recent.h"

#include "engine/GameNo.h"
#include "session/Program.h"
#include "session/SavedGameFile.h"

namespace qv {

namespace {
// A recently-played entry "Name - Number" is read from its last " - ", as PlayString
// reads it, so a name may hold a dash. It plays only with a number in digits: one read in
// its number form from a file ("-5") would make an entry that does nothing.
bool NumberPlays(const std::string& item) {
  const auto cut = item.rfind(" - ");
  return cut != std::string::npos && cut > 0 && GameNo::IsDigitText(item.substr(cut + 3));
}
// Its game may come and go (a created game deleted, made again): that is asked when listed.
bool Plays(const Program& app, const std::string& item) {
  return NumberPlays(item) && app.cData.GameExists(item.substr(0, item.rfind(" - ")));
}
}  // namespace

void AddRecent(Program& app, int mType, const std::string& item) {
  if (mType == kRecentPlayed && !NumberPlays(item)) return;
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
      if (Plays(app, item)) shown.push_back(item);
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
