// The solver's inner loop, one part at a time, on the opening table of Spider 12345
// after one row: moves listed, moves made (with turn-ups and sets), positions hashed.
#include <benchmark/benchmark.h>

#include "TestProgram.h"
#include "engine/Table.h"
#include "engine/cGames.h"
#include "engine/mStudio.h"
#include "solver/SolverGame.h"

namespace {

struct Opening {
  Opening() {
    qv::test::TestProgram t;
    t->cCustom.Init("Spider");
    qv::SetupGame(t->cCustom, games);
    table.DealQuietly(games, qv::GameNo::Number(12345));
    game = std::make_unique<qv::SolverGame>(table, games, 30000);
    start = game->Start();
    game->Apply(start, {qv::SolverMove::Stock, 1, 0, 0, 0});
  }
  qv::cGames games;
  qv::Table table;
  std::unique_ptr<qv::SolverGame> game;
  qv::SolverPosition start;
};

const Opening& Table() {
  static const Opening o;
  return o;
}

void BM_SolverMoves(benchmark::State& state) {
  const Opening& o = Table();
  std::vector<qv::SolverMove> moves;
  for (auto _ : state) {
    o.game->Moves(o.start, moves);
    benchmark::DoNotOptimize(moves.data());
  }
  state.SetItemsProcessed(state.iterations() * static_cast<int64_t>(moves.size()));
}
BENCHMARK(BM_SolverMoves);

void BM_SolverApply(benchmark::State& state) {
  const Opening& o = Table();
  std::vector<qv::SolverMove> moves;
  o.game->Moves(o.start, moves);
  for (auto _ : state)
    for (const qv::SolverMove& m : moves) {
      qv::SolverPosition p = o.start;
      o.game->Apply(p, m);
      benchmark::DoNotOptimize(p);
    }
  state.SetItemsProcessed(state.iterations() * static_cast<int64_t>(moves.size()));
}
BENCHMARK(BM_SolverApply);

void BM_SolverHash(benchmark::State& state) {
  const Opening& o = Table();
  for (auto _ : state) benchmark::DoNotOptimize(o.game->Hash(o.start));
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_SolverHash);

}  // namespace

BENCHMARK_MAIN();
