#include "solver/TableVerdict.h"

#include "session/Program.h"
#include "settings/SettingKeys.h"

namespace qv {

uint64_t PositionKey(const Program& app) {
  const auto& e = app.cEngine;
  return (static_cast<uint64_t>(e.Revision()) << 32) ^ (static_cast<uint64_t>(e.GetTransID()) << 16) ^
         static_cast<uint64_t>(app.cGamePlay.Game_Status()) ^ (app.cPlay.table().Exists() ? 0x8000 : 0);
}

bool TableAtRest(const Program& app) {
  const auto& w = app.surface.window;
  return app.cGamePlay.Game_Status() == 1 && app.cGamePlay.Game_Running() && app.cPlay.table().Exists() &&
         !app.drag.Dragging && !app.motion.Moving() && !w.TimerEnabled(Timer::Forward) &&
         !w.TimerEnabled(Timer::Backward);
}

TableCopy CopyTable(const Program& app) {
  return {app.cPlay.table(), app.cGames, cEngine::kMaxRecords - app.cEngine.GetTransID(), PositionKey(app)};
}

bool SolverIndicatorOn(const Program& app) { return app.cRegistry.Get(setting::SolverIndicator) != 0; }

SolverBudget SolverBudgetOf(const Program& app) {
  int seconds = app.cRegistry.Get(setting::SolverSeconds);
  int mb = app.cRegistry.Get(setting::SolverMB);
  if (seconds < 1 || seconds > 60) seconds = setting::SolverSeconds.fallback;
  if (mb < 64 || mb > 2048) mb = setting::SolverMB.fallback;
  return {seconds * 1000LL, mb, 0};
}

SolverResult SolveCopy(const TableCopy& copy, const SolverBudget& budget, std::stop_token stop) {
  return SolveTable(copy.table, copy.games, copy.room, budget, std::move(stop));
}

}  // namespace qv
