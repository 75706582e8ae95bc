// make-waves FOLDER: writes the program's five default sounds into FOLDER. They are
// synthesised from fixed numbers, so every build makes the same bytes.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

namespace {

constexpr int kRate = 44100;
constexpr double kPi = 3.14159265358979323846;
constexpr double kPeak = 0.63;  // about -4 dBFS: loud enough, never clipped

using Samples = std::vector<double>;

// A fixed-seed noise source: the same sequence on every machine.
struct Noise {
  uint32_t state;
  double Next() {
    state = state * 1664525u + 1013904223u;
    return static_cast<double>(state >> 8) / 8388608.0 - 1.0;
  }
};

Samples Silence(double seconds) { return Samples(static_cast<size_t>(seconds * kRate), 0.0); }

void Add(Samples& into, const Samples& what, double at) {
  const size_t start = static_cast<size_t>(at * kRate);
  if (into.size() < start + what.size()) into.resize(start + what.size(), 0.0);
  for (size_t i = 0; i < what.size(); ++i) into[start + i] += what[i];
}

// A card meeting the table: a filtered click over a low thump, gone in a few hundredths.
Samples Snap(double seconds, double brightness, uint32_t seed) {
  Samples s = Silence(seconds);
  Noise noise{seed};
  double low = 0;
  for (size_t i = 0; i < s.size(); ++i) {
    const double t = static_cast<double>(i) / kRate;
    low += brightness * (noise.Next() - low);
    s[i] = low * std::exp(-t * 70) + 0.5 * std::sin(2 * kPi * 170 * t) * std::exp(-t * 45);
  }
  return s;
}

// Air past a moving card: noise whose filter opens and closes under a smooth swell.
Samples Swish(double seconds, uint32_t seed) {
  Samples s = Silence(seconds);
  Noise noise{seed};
  double low = 0, lower = 0;
  for (size_t i = 0; i < s.size(); ++i) {
    const double x = static_cast<double>(i) / s.size();
    const double cutoff = 0.04 + 0.25 * std::sin(kPi * x);
    low += cutoff * (noise.Next() - low);
    lower += cutoff * (low - lower);
    s[i] = (low - lower) * std::pow(std::sin(kPi * x), 2);
  }
  return s;
}

// A bell-like note: a few harmonics with a quick attack and a long fall.
Samples Note(double hz, double seconds, double decay) {
  Samples s = Silence(seconds);
  for (size_t i = 0; i < s.size(); ++i) {
    const double t = static_cast<double>(i) / kRate;
    const double attack = std::min(1.0, t / 0.004);
    s[i] = attack * std::exp(-t * decay) *
           (std::sin(2 * kPi * hz * t) + 0.35 * std::sin(4 * kPi * hz * t) + 0.12 * std::sin(6 * kPi * hz * t));
  }
  return s;
}

// Brass-like: odd harmonics, a soft attack, a slight vibrato on long notes.
Samples Horn(double hz, double seconds) {
  Samples s = Silence(seconds);
  double phase = 0;
  for (size_t i = 0; i < s.size(); ++i) {
    const double t = static_cast<double>(i) / kRate;
    phase += 2 * kPi * hz * (1 + 0.004 * std::sin(2 * kPi * 5.5 * t) * std::min(1.0, t / 0.3)) / kRate;
    const double env = std::min(1.0, t / 0.03) * std::min(1.0, (seconds - t) / 0.08);
    s[i] = env * (std::sin(phase) + 0.45 * std::sin(3 * phase) + 0.2 * std::sin(5 * phase) + 0.1 * std::sin(7 * phase));
  }
  return s;
}

// Scales to the peak and fades both ends, so the sound starts and stops on silence.
void Finish(Samples& s) {
  double peak = 0;
  for (double v : s) peak = std::max(peak, std::abs(v));
  const size_t fade = kRate / 200;  // 5 ms
  for (size_t i = 0; i < s.size(); ++i) {
    double g = peak > 0 ? kPeak / peak : 0;
    if (i < fade) g *= static_cast<double>(i) / fade;
    if (i + fade >= s.size()) g *= static_cast<double>(s.size() - 1 - i) / fade;
    s[i] *= g;
  }
}

void Put(std::string& out, uint32_t v, int bytes) {
  for (int b = 0; b < bytes; ++b) out += static_cast<char>((v >> (8 * b)) & 0xff);
}

bool Write(const std::string& path, Samples s) {
  Finish(s);
  std::string data;
  for (double v : s) Put(data, static_cast<uint16_t>(static_cast<int16_t>(std::lround(v * 32767))), 2);
  std::string out = "RIFF";
  Put(out, 36 + static_cast<uint32_t>(data.size()), 4);
  out += "WAVEfmt ";
  Put(out, 16, 4);
  Put(out, 1, 2);  // PCM
  Put(out, 1, 2);  // mono
  Put(out, kRate, 4);
  Put(out, kRate * 2, 4);
  Put(out, 2, 2);
  Put(out, 16, 2);
  out += "data";
  Put(out, static_cast<uint32_t>(data.size()), 4);
  out += data;
  std::ofstream file(path, std::ios::binary);
  file << out;
  return static_cast<bool>(file);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: make-waves FOLDER\n";
    return 2;
  }
  const std::string folder = argv[1];
  Samples riffle;  // twenty-four cards falling, quicker towards the end
  for (int k = 0; k < 24; ++k) {
    const double at = 0.72 * (1 - std::pow(1 - k / 24.0, 1.4));
    Samples snap = Snap(0.06, 0.35 + 0.02 * (k % 5), 100 + k);
    for (double& v : snap) v *= 0.6 + 0.4 * std::sin(kPi * (k + 1) / 25.0);
    Add(riffle, snap, at);
  }
  Add(riffle, Silence(0.02), 0.78);
  Samples chime;
  Add(chime, Note(1046.5, 0.16, 18), 0.0);
  Add(chime, Note(1318.5, 0.16, 18), 0.06);
  Add(chime, Note(1568.0, 0.17, 16), 0.12);
  Samples fanfare;
  const double hz[] = {523.25, 659.25, 783.99, 1046.5};
  for (int k = 0; k < 3; ++k) Add(fanfare, Horn(hz[k], 0.2), 0.18 * k);
  Add(fanfare, Horn(hz[3], 1.3), 0.54);
  Add(fanfare, Horn(hz[1], 1.3), 0.54);
  const bool ok = Write(folder + "/Sel.wav", Snap(0.09, 0.45, 7)) && Write(folder + "/Undo.wav", Swish(0.22, 11)) &&
                  Write(folder + "/Start.wav", riffle) && Write(folder + "/AutoPlay.wav", chime) &&
                  Write(folder + "/Win.wav", fanfare);
  if (!ok) std::cerr << "make-waves: cannot write into " << folder << "\n";
  return ok ? 0 : 1;
}
