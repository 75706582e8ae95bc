#include "solver/WinnableDeal.h"

#include <set>

#include "engine/DealGenerator.h"
#include "engine/Table.h"
#include "engine/cCustom.h"
#include "engine/cGames.h"
#include "engine/mStudio.h"
#include "lists/GameNumbers.h"
#include "session/Program.h"
#include "settings/SettingKeys.h"

namespace qv {

std::vector<GameNo> DrawDistinctDeals(Program& app, int count) {
  std::vector<GameNo> out;
  std::set<uint32_t> seen;
  // The range may hold fewer distinct deals than asked for: the draws are bounded too.
  for (int draws = 0; static_cast<int>(out.size()) < count && draws < count * 50; ++draws) {
    const GameNo no = RandomGameNo(app);
    if (seen.insert(DealGenerator::SeedBits(no.Value())).second) out.push_back(no);
  }
  return out;
}

std::string WinnableGameName(const Program& app) {
  if (!app.cGamePlay.GameName().empty()) return app.cGamePlay.GameName();
  const std::string last = app.cRegistry.Get(setting::LastGName);
  return last.empty() ? "Spider" : last;
}

bool DefinitionOf(Program& app, const std::string& game, cGames& out) {
  cCustom custom(app);
  if (!custom.Init(game)) return false;
  SetupGame(custom, out);
  return true;
}

int FirstWinnable(const cGames& games, const std::vector<GameNo>& numbers, const SolverBudget& budget,
                  std::stop_token stop, const std::function<void(int)>& progress) {
  Table table;
  for (size_t i = 0; i < numbers.size() && !stop.stop_requested(); ++i) {
    if (progress) progress(static_cast<int>(i));
    table.DealQuietly(games, numbers[i]);
    if (SolveTable(table, games, cEngine::kMaxRecords, budget, stop).verdict == Verdict::Winnable)
      return static_cast<int>(i);
  }
  return -1;
}

}  // namespace qv
