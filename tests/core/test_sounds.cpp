// Sounds: which file an event plays, which events the game's actions play, and the five
// default waves the build makes.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <tuple>

#include "TestProgram.h"
#include "engine/Pointer.h"
#include "lists/Pending.h"
#include "session/Commands.h"

namespace qv {
namespace {

namespace fs = std::filesystem;
using Events = std::vector<std::string>;

TEST(Sounds, DefaultsStoredPathsAndSilence) {
  test::TestProgram t;
  const std::string folder = t->cData.ProgramFolder();
  for (const auto& [key, file] : {std::pair{"Undo", "/Undo.wav"}, {"Redo", "/Undo.wav"}, {"Move", "/Sel.wav"}})
    EXPECT_EQ(t->cSound.GetSound(key), folder + file) << key;
  EXPECT_EQ(t->cSound.GetSound("Options"), "");
  EXPECT_EQ(std::ranges::count_if(SoundEvents(), [&](const SoundEvent& e) { return !t->cSound.GetSound(e.key).empty(); }),
            6);

  // A file that exists plays; a stored empty text silences for good; a missing file is silent.
  const std::string wave = t.home.File("knock.wav");
  test::WriteFile(wave, "RIFF");
  t->cSound.SetSound("Options", wave);
  t->cSound.SetSound("Undo", "");
  t->cSound.Options();
  t->cSound.Undo();
  t->cSound.Redo();  // its default file is not in the test's program folder
  EXPECT_EQ(t->recordedSound.played, Events{wave});
  EXPECT_EQ(t->recordedSound.events, (Events{"Options", "Undo", "Redo"}));
  EXPECT_EQ(t->cSound.GetSound("Undo"), "");
}

TEST(Sounds, TheGamesActionsPlayTheirEvents) {
  test::TestProgram t;
  auto& events = t->recordedSound.events;
  t->cSound.AutoPlay();  // no game: silent
  t.Deal("Spider", 3);
  EXPECT_EQ(events, Events{"Start"});
  events.clear();
  const int card = t->cPlay.GetTopPicID(0, 0);
  DragCardTo(*t, card, 0, 0);  // dropped where nothing takes it: still a sound
  ASSERT_TRUE(test::MakeAnyLegalMove(t));
  EXPECT_EQ(events, (Events{"Move", "Move"}));
  events.clear();
  for (const char* command : {"Undo", "Redo"}) ExecCommand(*t, command);  // UndoSpeed 5, above 3
  EXPECT_EQ(events, (Events{"Undo", "Redo"}));
  events.clear();
  MoveToPending(*t);
  EXPECT_EQ(events, Events{"AddPend"});

  // A drop that completes a set: the chime as the set leaves, and no Move over it.
  test::PlayWithRules(t, {.HOrder = 5, .MOrder = 5});
  test::DealRows(t, 6);
  events.clear();
  ASSERT_TRUE(test::CompleteASet(t));
  ASSERT_EQ(std::ranges::count(events, "AutoPlay"), 1);
  EXPECT_EQ(events.back(), "AutoPlay");
}

// The fields of a 16-bit mono PCM wave, read as a player would.
struct Wave {
  int format = 0, channels = 0, rate = 0, bits = 0;
  std::vector<int16_t> samples;
};
Wave ReadWave(const std::string& bytes) {
  auto u16 = [&](size_t at) { return int(uint8_t(bytes[at])) | int(uint8_t(bytes[at + 1])) << 8; };
  auto u32 = [&](size_t at) { return uint32_t(u16(at)) | uint32_t(u16(at + 2)) << 16; };
  Wave w;
  if (bytes.size() < 44 || bytes.compare(0, 4, "RIFF") || bytes.compare(8, 8, "WAVEfmt ") || bytes.compare(36, 4, "data") ||
      u32(4) != bytes.size() - 8 || u32(40) != bytes.size() - 44)
    return w;
  w.format = u16(20), w.channels = u16(22), w.rate = int(u32(24)), w.bits = u16(34);
  for (size_t at = 44; at + 1 < bytes.size(); at += 2) w.samples.push_back(int16_t(u16(at)));
  return w;
}

TEST(Sounds, TheFiveWavesAreShortQuietAtTheirEndsAndTheSameEachBuild) {
  const fs::path built = QUORVALE_WAVES;
  test::TempHome again;
  ASSERT_EQ(std::system(((built / "make-waves").string() + " '" + again.Path().string() + "'").c_str()), 0);
  const std::pair<const char*, double> limits[] = {
      {"Sel.wav", 0.15}, {"Undo.wav", 0.5}, {"Start.wav", 1.0}, {"AutoPlay.wav", 0.3}, {"Win.wav", 3.0}};
  for (const auto& [name, longest] : limits) {
    const std::string bytes = test::ReadFile((built / name).string());
    EXPECT_EQ(bytes, test::ReadFile(again.File(name))) << name;
    const Wave w = ReadWave(bytes);
    ASSERT_EQ(std::tuple(w.format, w.channels, w.bits, w.rate), std::tuple(1, 1, 16, 44100)) << name;
    const double seconds = double(w.samples.size()) / w.rate;
    ASSERT_TRUE(seconds > 0.03 && seconds < longest) << name << ": " << seconds << " s";
    const int peak = std::abs(int(std::ranges::max(w.samples, {}, [](int16_t s) { return std::abs(int(s)); })));
    EXPECT_TRUE(peak > 8000 && 20 * std::log10(peak / 32768.0) < -3.0) << name << ": peak " << peak;  // heard, not loud
    // No click: each end starts from silence and the last 2 ms fall to it.
    EXPECT_TRUE(w.samples.front() == 0 && w.samples.back() == 0) << name;
    for (size_t i = w.samples.size() - 88; i < w.samples.size(); ++i) EXPECT_LT(std::abs(int(w.samples[i])), peak / 5) << name;
  }
}

}  // namespace
}  // namespace qv
