#include "BackgroundPainter.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <algorithm>
#include <cmath>
#include <cstdint>

namespace qv {

namespace {

// A repeatable number in [0, 1) for a lattice point.
float Hash(int x, int y, int seed) {
  uint32_t h = static_cast<uint32_t>(x) * 374761393u + static_cast<uint32_t>(y) * 668265263u +
               static_cast<uint32_t>(seed) * 2246822519u;
  h = (h ^ (h >> 13)) * 1274126177u;
  h ^= h >> 16;
  return static_cast<float>(h & 0xffffff) / 16777216.0f;
}

// Smooth value noise that repeats every `period` lattice steps, so a tile has no seams.
float Noise(float x, float y, int period, int seed) {
  const int x0 = static_cast<int>(std::floor(x)), y0 = static_cast<int>(std::floor(y));
  const float fx = x - x0, fy = y - y0;
  const float sx = fx * fx * (3 - 2 * fx), sy = fy * fy * (3 - 2 * fy);
  auto at = [&](int i, int j) {
    return Hash(((i % period) + period) % period, ((j % period) + period) % period, seed);
  };
  const float a = at(x0, y0) + (at(x0 + 1, y0) - at(x0, y0)) * sx;
  const float b = at(x0, y0 + 1) + (at(x0 + 1, y0 + 1) - at(x0, y0 + 1)) * sx;
  return a + (b - a) * sy;
}

// Octaves of noise over a tile: u, v in [0, 1) and the result in [0, 1).
float Fractal(float u, float v, int base, int octaves, int seed) {
  float sum = 0, weight = 0.5f, total = 0;
  for (int o = 0, period = base; o < octaves; ++o, period *= 2, weight *= 0.5f) {
    sum += weight * Noise(u * period, v * period, period, seed + o);
    total += weight;
  }
  return sum / total;
}

QRgb Mix(QColor a, QColor b, float t) {
  t = std::clamp(t, 0.0f, 1.0f);
  return qRgb(static_cast<int>(a.red() + (b.red() - a.red()) * t), static_cast<int>(a.green() + (b.green() - a.green()) * t),
              static_cast<int>(a.blue() + (b.blue() - a.blue()) * t));
}

struct TextureDef {
  QColor dark, light;
};
// Felt, wood, stone and linen, three each: dark enough that white cards stand out.
const TextureDef kTextures[12] = {
    {{10, 70, 32}, {30, 110, 55}},   {{12, 40, 85}, {35, 75, 130}},  {{80, 14, 26}, {125, 35, 50}},
    {{50, 28, 14}, {100, 62, 32}},   {{34, 22, 16}, {78, 52, 36}},   {{70, 44, 22}, {130, 92, 52}},
    {{44, 46, 50}, {96, 100, 106}},  {{18, 46, 40}, {60, 98, 86}},   {{40, 30, 34}, {92, 76, 80}},
    {{60, 62, 50}, {108, 108, 90}},  {{30, 50, 70}, {72, 96, 120}},  {{64, 40, 50}, {112, 82, 92}},
};

float TextureValue(int group, float u, float v, int seed) {
  switch (group) {
    case 0:  // felt: fine fibres over a soft cloud
      return 0.55f * Fractal(u, v, 4, 3, seed) + 0.45f * Hash(static_cast<int>(u * 4096), static_cast<int>(v * 4096), seed);
    case 1: {  // wood: long grain bent by noise
      const float bend = Fractal(u, v, 2, 3, seed) * 6.0f;
      const float grain = 0.5f + 0.5f * std::sin((v * 18.0f + bend) * 6.2831853f);
      return 0.7f * grain * grain + 0.3f * Fractal(u * 8, v, 8, 2, seed + 7);
    }
    case 2: {  // stone: marble veins through turbulence
      const float turb = Fractal(u, v, 4, 5, seed);
      const float vein = std::abs(std::sin((u + v + turb * 2.5f) * 6.2831853f * 2));
      return 0.6f * turb + 0.4f * std::pow(vein, 0.35f);
    }
    default: {  // linen: woven threads
      const float across = 0.5f + 0.5f * std::sin(u * 6.2831853f * 64);
      const float down = 0.5f + 0.5f * std::sin(v * 6.2831853f * 64);
      const bool over = (static_cast<int>(u * 64) + static_cast<int>(v * 64)) % 2 == 0;
      return 0.25f + 0.45f * (over ? across : down) + 0.3f * Fractal(u, v, 16, 2, seed);
    }
  }
}

// Little random dots: the stars and specks of the pictures, the same at every paint.
template <typename Draw>
void Scatter(int count, int seed, Draw draw) {
  for (int i = 0; i < count; ++i) draw(Hash(i, 1, seed), Hash(i, 2, seed), Hash(i, 3, seed));
}

QPainterPath Ridge(double w, double h, double base, double amp, double waves, double phase) {
  QPainterPath path(QPointF(0, h));
  for (int i = 0; i <= 64; ++i) {
    const double x = w * i / 64.0;
    path.lineTo(x, base + amp * std::sin(waves * 6.2831853 * i / 64.0 + phase) +
                       amp * 0.4 * std::sin(waves * 2.7 * 6.2831853 * i / 64.0 + phase * 1.7));
  }
  path.lineTo(w, h);
  path.closeSubpath();
  return path;
}

void Sky(QPainter& p, double w, double h, QColor top, QColor bottom) {
  QLinearGradient g(0, 0, 0, h);
  g.setColorAt(0, top);
  g.setColorAt(1, bottom);
  p.fillRect(QRectF(0, 0, w, h), g);
}

void PaintPicture(QPainter& p, int index, double w, double h) {
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(Qt::NoPen);
  switch (index) {
    case 1: {  // Night Sky
      Sky(p, w, h, QColor(6, 10, 30), QColor(24, 34, 72));
      Scatter(420, 11, [&](float x, float y, float s) {
        p.setBrush(QColor(255, 255, 240, 90 + static_cast<int>(140 * s)));
        p.drawEllipse(QPointF(x * w, y * h * 0.8), 0.6 + 1.4 * s * s, 0.6 + 1.4 * s * s);
      });
      QRadialGradient glow(QPointF(w * 0.78, h * 0.2), h * 0.12);
      glow.setColorAt(0, QColor(255, 250, 220, 70));
      glow.setColorAt(1, QColor(255, 250, 220, 0));
      p.setBrush(glow);
      p.drawEllipse(QPointF(w * 0.78, h * 0.2), h * 0.12, h * 0.12);
      p.setBrush(QColor(236, 232, 210));
      p.drawEllipse(QPointF(w * 0.78, h * 0.2), h * 0.045, h * 0.045);
      p.setBrush(QColor(8, 12, 22));
      p.drawPath(Ridge(w, h, h * 0.86, h * 0.04, 2.5, 0.4));
      break;
    }
    case 2: {  // Rolling Hills
      Sky(p, w, h, QColor(46, 60, 92), QColor(120, 104, 96));
      const QColor hills[] = {{58, 84, 62}, {40, 70, 44}, {26, 54, 32}, {16, 38, 22}};
      for (int i = 0; i < 4; ++i) {
        p.setBrush(hills[i]);
        p.drawPath(Ridge(w, h, h * (0.5 + 0.13 * i), h * (0.06 - 0.008 * i), 1.2 + 0.5 * i, i * 1.3));
      }
      break;
    }
    case 3: {  // Sea Waves
      Sky(p, w, h, QColor(10, 40, 70), QColor(4, 18, 36));
      for (int i = 0; i < 14; ++i) {
        QColor c(40 + 4 * i, 90 + 3 * i, 130 + 2 * i, 70);
        p.setPen(QPen(c, 2 + i * 0.4));
        p.setBrush(Qt::NoBrush);
        QPainterPath wave;
        const double y0 = h * (0.08 + 0.065 * i);
        wave.moveTo(0, y0);
        for (int k = 1; k <= 64; ++k)
          wave.lineTo(w * k / 64.0, y0 + h * 0.02 * std::sin(k / 64.0 * 6.2831853 * (3 + i % 3) + i));
        p.drawPath(wave);
      }
      p.setPen(Qt::NoPen);
      break;
    }
    case 4: {  // Autumn Woods
      Sky(p, w, h, QColor(70, 40, 22), QColor(32, 18, 12));
      Scatter(900, 23, [&](float x, float y, float s) {
        p.setBrush(QColor(150 + static_cast<int>(80 * s), 60 + static_cast<int>(60 * y), 20, 90));
        p.drawEllipse(QPointF(x * w, y * h * 0.7), 6 + 10 * s, 4 + 6 * s);
      });
      Scatter(18, 29, [&](float x, float, float s) {
        p.setBrush(QColor(24 + static_cast<int>(20 * s), 14, 8));
        p.drawRect(QRectF(x * w, 0, 10 + 26 * s, h));
      });
      p.setBrush(QColor(40, 22, 10));
      p.drawPath(Ridge(w, h, h * 0.9, h * 0.02, 3, 1));
      break;
    }
    case 5: {  // Desert Dunes
      Sky(p, w, h, QColor(92, 58, 48), QColor(150, 96, 60));
      const QColor dunes[] = {{130, 80, 44}, {112, 66, 36}, {90, 52, 28}, {66, 38, 22}};
      for (int i = 0; i < 4; ++i) {
        p.setBrush(dunes[i]);
        p.drawPath(Ridge(w, h, h * (0.45 + 0.14 * i), h * 0.05, 0.8 + 0.3 * i, 2 + i));
      }
      break;
    }
    default: {  // Northern Lights
      Sky(p, w, h, QColor(4, 10, 22), QColor(10, 30, 40));
      for (int i = 0; i < 5; ++i) {
        QPainterPath band;
        const double y0 = h * (0.18 + 0.06 * i);
        band.moveTo(0, y0);
        for (int k = 1; k <= 64; ++k) band.lineTo(w * k / 64.0, y0 + h * 0.08 * std::sin(k / 64.0 * 6.2831853 * 1.3 + i * 0.9));
        band.lineTo(w, y0 + h * 0.3);
        for (int k = 64; k >= 0; --k)
          band.lineTo(w * k / 64.0, y0 + h * 0.22 + h * 0.08 * std::sin(k / 64.0 * 6.2831853 * 1.3 + i * 0.9 + 0.5));
        QLinearGradient g(0, y0, 0, y0 + h * 0.3);
        g.setColorAt(0, QColor(60, 220, 150, 0));
        g.setColorAt(0.4, QColor(60 + 20 * i, 200, 160, 34));
        g.setColorAt(1, QColor(40, 120, 160, 0));
        p.setBrush(g);
        p.drawPath(band);
      }
      p.setBrush(QColor(6, 12, 18));
      p.drawPath(Ridge(w, h, h * 0.82, h * 0.07, 1.7, 0.2));
      break;
    }
  }
}

}  // namespace

QImage BackgroundPainter::Texture(int index, qreal dpr) {
  const int n = std::clamp(index, 1, 12) - 1;
  const QSize size = kTextureSize * dpr;
  QImage image(size, QImage::Format_RGB32);
  for (int y = 0; y < size.height(); ++y) {
    auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < size.width(); ++x) {
      const float v = TextureValue(n / 3, static_cast<float>(x) / size.width(), static_cast<float>(y) / size.height(), n);
      line[x] = Mix(kTextures[n].dark, kTextures[n].light, v);
    }
  }
  image.setDevicePixelRatio(dpr);
  return image;
}

QImage BackgroundPainter::Picture(int index, qreal dpr) {
  QImage image(kPictureSize * dpr, QImage::Format_RGB32);
  image.setDevicePixelRatio(dpr);
  QPainter p(&image);
  PaintPicture(p, std::clamp(index, 1, 6), kPictureSize.width(), kPictureSize.height());
  return image;
}

QImage BackgroundPainter::Gradient(QSize pixels, QColor top, QColor bottom) {
  QImage image(pixels, QImage::Format_RGB32);
  const int h = std::max(1, pixels.height() - 1);
  // A 4x4 ordered dither spreads each step of 1/255 over the rows, so no band shows.
  static constexpr float kBayer[4][4] = {{0, 8, 2, 10}, {12, 4, 14, 6}, {3, 11, 1, 9}, {15, 7, 13, 5}};
  for (int y = 0; y < pixels.height(); ++y) {
    const float t = static_cast<float>(y) / h;
    const float r = top.red() + (bottom.red() - top.red()) * t;
    const float g = top.green() + (bottom.green() - top.green()) * t;
    const float b = top.blue() + (bottom.blue() - top.blue()) * t;
    auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
    QRgb row[4];
    for (int k = 0; k < 4; ++k) {
      const float d = (kBayer[y & 3][k] + 0.5f) / 16.0f;
      row[k] = qRgb(std::min(255, static_cast<int>(r + d)), std::min(255, static_cast<int>(g + d)),
                    std::min(255, static_cast<int>(b + d)));
    }
    for (int x = 0; x < pixels.width(); ++x) line[x] = row[x & 3];
  }
  return image;
}

QImage BackgroundPainter::DefaultImage() {
  // Whole tiles of the first felt: tiled, as pictures are at first, it shows no seam.
  QImage image(QSize(768, 512), QImage::Format_RGB32);
  QPainter p(&image);
  p.drawTiledPixmap(image.rect(), QPixmap::fromImage(Texture(1, 1)));
  return image;
}

}  // namespace qv
