#pragma once

namespace qv {

class Program;

// Auto-saved copies of ended games. The session calls this where a game ends; the
// copies are written once the auto-save folder's lists and dialog are built.
inline void AutoSaveGame(Program& /*app*/, bool /*Won*/) {}

}  // namespace qv
