#include "scores/PlayerEdit.h"

#include <fstream>
#include <iterator>

#include "lists/ValidName.h"
#include "scores/Players.h"
#include "session/Program.h"

namespace qv {

namespace {

int SlotOf(const cRegistry& reg, const std::string& name) {
  for (int slot = 1; slot <= kMaxPlayers; ++slot)
    if (GetPlayer(reg, slot) == name) return slot;
  return 0;
}

// The games of the old name go along; onto a file that is there already they are added,
// so no game is lost either way.
void MoveScoreFile(Program& app, const std::string& from, const std::string& to) {
  if (!app.cFileSys.Exists(from) || app.cFileSys.Rename(from, to)) return;
  std::ifstream in(from, std::ios::binary);
  const std::string games(std::istreambuf_iterator<char>(in), {});
  if (in.bad() || !app.cFileSys.AppendText(to, games)) return;
  app.cFileSys.Delete(from);
}

}  // namespace

std::string CheckNewName(const Program& app, const std::string& name) {
  if (name.empty() || !IsValidName(name)) return "Please Enter a Valid Name";
  if (SlotOf(app.cRegistry, name) != 0) return "Player Exists !";
  return "";
}

std::string AddPlayer(Program& app, const std::string& name) {
  if (PlayerCount(app.cRegistry) >= kMaxPlayers) return "Maximum 20 Players Only!";
  if (auto why = CheckNewName(app, name); !why.empty()) return why;
  SetPlayer(app.cRegistry, SlotOf(app.cRegistry, ""), name, false);
  return "";
}

std::string RenamePlayer(Program& app, const std::string& oldName, const std::string& newName) {
  if (auto why = CheckNewName(app, newName); !why.empty()) return why;
  const int slot = SlotOf(app.cRegistry, oldName);
  if (slot == 0 || oldName.empty()) return "There is no player \"" + oldName + "\".";
  SetPlayer(app.cRegistry, slot, newName, GetCurPlayer(app.cRegistry) == oldName);
  MoveScoreFile(app, app.cScore.ScoreFile(oldName), app.cScore.ScoreFile(newName, FolderUse::Write));
  return "";
}

std::string DeletePlayer(Program& app, const std::string& name) {
  cRegistry& reg = app.cRegistry;
  if (name == GetCurPlayer(reg)) return "The current player cannot be deleted.";
  const int slot = SlotOf(reg, name);
  if (slot == 0 || name.empty()) return "There is no player \"" + name + "\".";
  SetPlayer(reg, slot, "", false);
  for (int i = 1; i < kMaxPlayers; ++i) {
    if (!GetPlayer(reg, i).empty()) continue;
    const std::string next = GetPlayer(reg, i + 1);
    if (next.empty()) continue;
    SetPlayer(reg, i, next, false);
    SetPlayer(reg, i + 1, "", false);
  }
  const std::string file = app.cScore.ScoreFile(name);
  if (app.cFileSys.Exists(file)) app.cFileSys.Delete(file);
  return "";
}

}  // namespace qv
