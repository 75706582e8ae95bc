// A sound event as the event loop pays for it, and a background change to its frame at 3840x2160: the background painted into the view's
// picture and the whole frame rendered from it, for each built-in kind, a gradient and a
// 12-megapixel photo (tiled and centred), with the photo's decoding timed apart. The
// painting is Qt's software rasteriser: QT_QPA_PLATFORM is offscreen unless it is set.

#include <benchmark/benchmark.h>


#include <QApplication>
#include <QCoreApplication>
#include <QImage>
#include <QImageReader>
#include <QPainter>
#include <QWidget>
#include <cstdlib>
#include <filesystem>

#include "QtBenchMain.h"
#include "BackgroundPainter.h"
#include "MainWindow.h"
#include "QtBackground.h"
#include "QtSprites.h"
#include "TableView.h"
#include "session/Program.h"
#include "settings/MemorySettingsStore.h"
#include "QtSound.h"

namespace qv {
namespace {

const QSize kScreen(3840, 2160);

// Shows the background's picture as the table view does: a copy, no scaling.
class Frame : public QWidget {
 public:
  Frame() : background(*this) {
    resize(kScreen);
    background.Resize(kScreen, 1);
  }
  void paintEvent(QPaintEvent*) override { QPainter(this).drawPixmap(0, 0, background.Canvas()); }
  QtBackground background;
};

Frame& TheFrame() {
  static Frame frame;
  return frame;
}

std::string Photo() {
  static const std::string path = [] {
    const auto p = std::filesystem::temp_directory_path() / "quorvale-bench-photo.jpg";
    QImage photo(4000, 3000, QImage::Format_RGB32);
    QPainter g(&photo);
    QLinearGradient run(0, 0, 4000, 3000);
    run.setColorAt(0, QColor(20, 60, 90));
    run.setColorAt(1, QColor(140, 90, 40));
    g.fillRect(photo.rect(), run);
    for (int i = 0; i < 400; ++i) g.fillRect((i * 7919) % 4000, (i * 104729) % 3000, 60, 60, QColor::fromHsv(i % 360, 120, 200));
    g.end();
    photo.save(QString::fromStdString(p.string()), "JPG", 90);
    return p.string();
  }();
  return path;
}

// Arg: 0 texture, 1 colour fading, 2 built-in picture tiled, 3 picture centred, 4 photo tiled, 5 photo centred.
void BM_BackgroundChange(benchmark::State& state) {
  Frame& frame = TheFrame();
  const std::string photo = Photo();
  static QImage screen(kScreen, QImage::Format_RGB32);
  int n = 0;
  for (auto _ : state) {
    ++n;
    switch (state.range(0)) {
      case 0: frame.background.ShowPicture({BackPicture::Texture, 1 + n % 12, {}}, true); break;
      case 1: frame.background.Gradient({20, 105, 45}, {0, 0, 0}); break;
      case 2: frame.background.ShowPicture({BackPicture::Image, 1 + n % 6, {}}, true); break;
      case 3: frame.background.ShowPicture({BackPicture::Image, 1 + n % 6, {}}, false); break;
      case 4: frame.background.ShowPicture({BackPicture::File, 0, photo}, true); break;
      default: frame.background.ShowPicture({BackPicture::File, 0, photo}, false); break;
    }
    frame.render(&screen);  // the frame, as the window system would get it
  }
}

void BM_PhotoDecode(benchmark::State& state) {
  const QString photo = QString::fromStdString(Photo());
  for (auto _ : state) {
    QImage image = QImageReader(photo).read();
    benchmark::DoNotOptimize(image);
    if (image.width() != 4000) state.SkipWithError("the photo did not decode");
  }
}

// A sound event's cost on the event loop: the last sound stopped and a loaded one started.
void BM_SoundPlay(benchmark::State& state) {
  QtSound sound;
  const std::string wave = QUORVALE_WAVES "/Sel.wav";
  sound.Load(wave);
  for (auto _ : state) sound.PlayWave(wave);
}

// A whole frame of the table at 1920x1080 over each kind of background (Arg: BackIndex 0
// to 3), as an animation frame paints it: the cards over a copy of the background.
void BM_TableFrame(benchmark::State& state) {
  MemorySettingsStore store;
  store.WriteInt("BackGround", "BackIndex", static_cast<int>(state.range(0)));
  store.WriteInt("BackGround", "WPTimerValue", 0);
  MainWindow w(store);
  w.sprites().SetFramePacing(false);
  w.resize(1920, 1080);
  w.show();
  w.Load();
  w.app().cGamePlay.PlayNumber("Spider", GameNo::Number(7));
  for (int i = 0; i < 20; ++i) QCoreApplication::processEvents();
  for (auto _ : state) w.view().viewport()->repaint();
}

BENCHMARK(BM_TableFrame)->DenseRange(0, 3)->UseRealTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_SoundPlay)->UseRealTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_BackgroundChange)->DenseRange(0, 5)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_PhotoDecode)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace qv

int main(int argc, char** argv) { return qv::RunQtBenchmarks(argc, argv); }
