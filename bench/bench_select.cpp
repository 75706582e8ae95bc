// Finding a game on a full home: 5,000 favourites in 100 folders and 1,000 auto-saved
// games, on the real main window (Qt's software rasteriser, offscreen unless
// QT_QPA_PLATFORM is set). Each benchmark checks that what it timed shows what is on disk;
// otherwise the figure is reported as an error.
#include <benchmark/benchmark.h>


#include <QApplication>
#include <QElapsedTimer>
#include <QTreeWidget>
#include <filesystem>
#include <string>

#include "QtBenchMain.h"
#include "MainWindow.h"
#include "OrgFavDialog.h"
#include "SelectDialog.h"
#include "TestProgram.h"
#include "lists/Favorites.h"
#include "session/Program.h"
#include "session/SavedGameFile.h"
#include "settings/MemorySettingsStore.h"

namespace qv {
namespace {

constexpr int kFolders = 100, kPerFolder = 50, kAutoSaves = 1000;

// One main window over a home filled once for all benchmarks.
MainWindow& Main() {
  static MemorySettingsStore store;
  static MainWindow* main = [] {
    auto* m = new MainWindow(store);
    Program& app = m->app();
    const std::string fav = app.cData.FavFolder();
    for (int f = 0; f < kFolders; ++f) {
      const std::string folder = fav + "/Folder " + std::to_string(f);
      std::filesystem::create_directories(folder);
      for (int g = 0; g < kPerFolder; ++g)
        test::WriteFile(folder + "/Spider - " + std::to_string(f * kPerFolder + g),
                        FavRecordLine({"Spider", GameNo::Number(static_cast<uint64_t>(f * kPerFolder + g + 1)), "Player1",
                                       "11/17/2026 6:41:26 AM"}) +
                            "\r\n");
    }
    GameHeader h;
    h.GameName = "Spider";
    h.HPiles = 10, h.HOrder = 4, h.HSpace = 13, h.Suits = 2, h.HMulti = 1;
    const std::string autoSave = app.cData.AutoSaveFolder();
    for (int i = 0; i < kAutoSaves; ++i) {
      h.GameNo = GameNo::Number(static_cast<uint64_t>(i + 1));
      test::WriteFile(autoSave + "/Spider-" + std::to_string(i + 1) + ".vq0", FormatSavedGame(h, {}));
    }
    m->resize(1280, 800);
    m->show();
    return m;
  }();
  return *main;
}

template <typename F>
void Timed(benchmark::State& state, F&& run) {
  for (auto _ : state) {
    QElapsedTimer clock;
    clock.start();
    run();
    state.SetIterationTime(clock.nsecsElapsed() / 1e9);
  }
}

int Nodes(QTreeWidget* tree) {
  int n = 0;
  for (QTreeWidgetItemIterator it(tree); *it; ++it) ++n;
  return n;
}

void BM_SelectShownWithAllGames(benchmark::State& state) {
  MainWindow& main = Main();
  int nodes = 0;
  Timed(state, [&] {
    SelectDialog dlg(main.app(), &main);
    dlg.show();
    dlg.repaint();
    nodes = Nodes(dlg.findChild<QTreeWidget*>("tvRight"));
  });
  if (nodes != 8) state.SkipWithError("All Games is not the root and seven games");
}

void BM_CategoryClick(benchmark::State& state) {
  MainWindow& main = Main();
  SelectDialog dlg(main.app(), &main);
  dlg.show();
  const char* key = state.range(0) == 0 ? "Fav" : "Inc";
  Timed(state, [&] {
    dlg.ChooseCategory(key);
    dlg.repaint();
  });
  const int want = state.range(0) == 0 ? 1 + kFolders + kFolders * kPerFolder : 1 + kAutoSaves;
  if (Nodes(dlg.findChild<QTreeWidget*>("tvRight")) != want) state.SkipWithError("the tree does not hold the folder");
  state.SetLabel(key);
}

void BM_NodeClick(benchmark::State& state) {
  MainWindow& main = Main();
  SelectDialog dlg(main.app(), &main);
  dlg.show();
  dlg.ChooseCategory("Fav");
  auto* tree = dlg.findChild<QTreeWidget*>("tvRight");
  QTreeWidgetItem* node = tree->topLevelItem(0)->child(kFolders / 2)->child(kPerFolder / 2);
  Timed(state, [&] {
    dlg.ChooseNode(node);
    dlg.repaint();
  });
  if (dlg.SelGame() != "Spider") state.SkipWithError("no favourite chosen");
}

void BM_FavMenuRebuilt(benchmark::State& state) {
  MainWindow& main = Main();
  Timed(state, [&] { main.RefreshMenus(); });
}

void BM_OrganizeShown(benchmark::State& state) {
  MainWindow& main = Main();
  int nodes = 0;
  for (auto _ : state) {
    QElapsedTimer clock;
    clock.start();
    OrgFavDialog dlg(main.app(), &main);
    dlg.show();
    dlg.repaint();
    state.SetIterationTime(clock.nsecsElapsed() / 1e9);  // leaving rebuilds the menu: not timed
    nodes = Nodes(dlg.findChild<QTreeWidget*>("tvFav"));
  }
  if (nodes != 1 + kFolders + kFolders * kPerFolder) state.SkipWithError("the tree does not hold the favourites");
}

BENCHMARK(BM_SelectShownWithAllGames)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_CategoryClick)->Arg(0)->Arg(1)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_NodeClick)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_FavMenuRebuilt)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_OrganizeShown)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace qv

int main(int argc, char** argv) { return qv::RunQtBenchmarks(argc, argv); }
