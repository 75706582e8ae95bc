// Created games in numbers: the list read at every start over 500 .gam files, the Game
// Editor opened with them, and one combo change of the New Game form up to its preview on
// screen. Each benchmark checks afterwards that the work it timed came out right.

#include <benchmark/benchmark.h>


#include <QComboBox>
#include <QTreeWidget>

#include "QtBenchMain.h"
#include "AddGameDialog.h"
#include "GameStudioDialog.h"
#include "PreviewPainter.h"
#include "TestProgram.h"

namespace qv {
namespace {

constexpr int kGames = 500;

void Make500(test::TestProgram& t) {
  const std::string folder = t->cData.GamesFolder();
  for (int i = 0; i < kGames; ++i) {
    const std::string name = "Game " + std::to_string(i);
    test::WriteFile(folder + "/" + name + ".gam", "\"" + name + "\"\r\n" + std::to_string(6 + i % 5) + ",4,13,0,1,2,0\r\n");
  }
}

void BM_RefreshNewGames500(benchmark::State& state) {
  test::TestProgram t;
  Make500(t);
  for (auto _ : state) t->cData.Refresh_NewGames();
  if (t->cData.TotalGames() != 7 + kGames) state.SkipWithError("the games were not all listed");
}

void BM_EditorOpen500(benchmark::State& state) {
  test::TestProgram t;
  Make500(t);
  t->cData.Refresh_NewGames();
  int rows = 0;
  for (auto _ : state) {
    GameStudioDialog dlg(*t);
    dlg.show();
    benchmark::DoNotOptimize(dlg.grab());  // painted whole, as the screen would get it
    rows = dlg.findChild<QTreeWidget*>("lvGames")->topLevelItemCount();
  }
  if (rows != kGames) state.SkipWithError("the editor did not list every game");
}

// A change of piles in the form: the handler, Update_Pic and the repaint of the preview.
void BM_ComboToPreview(benchmark::State& state) {
  test::TestProgram t;
  AddGameDialog form(*t, "");
  form.show();
  auto* piles = form.findChild<QComboBox*>("imcHPiles");
  auto* preview = form.findChild<PreviewBox*>("Pic1");
  int i = 0;
  for (auto _ : state) {
    piles->setCurrentIndex(++i % 5);
    benchmark::DoNotOptimize(preview->grab());
  }
  if (preview->Parts().back() != t->cImages.HomePicture(6 + i % 5, 2)) state.SkipWithError("the preview lags");
}

BENCHMARK(BM_RefreshNewGames500)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_EditorOpen500)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ComboToPreview)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace qv

int main(int argc, char** argv) { return qv::RunQtBenchmarks(argc, argv); }
