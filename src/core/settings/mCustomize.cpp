#include "settings/mCustomize.h"

#include <algorithm>
#include <filesystem>
#include <random>

#include "session/Program.h"
#include "settings/BackgroundSettings.h"
#include "settings/ColorScheme.h"

namespace qv {

namespace {

// Int(count x r + base), kept inside the list: a drawn r can round up to 1.0.
int Pick(size_t count, double r, int base) {
  const int n = static_cast<int>(static_cast<double>(count) * r + base);
  return std::min(n, static_cast<int>(count) - 1 + base);
}

bool IsFile(const std::string& path) {
  std::error_code ec;
  return !path.empty() && std::filesystem::is_regular_file(path, ec);
}

void ShowFile(Program& app, const std::string& path) {
  if (IsFile(path)) ShowPicture(app, {BackPicture::File, 0, path});
}

}  // namespace

void ShowTexture(Program& app, int index) { app.surface.background->ShowPicture({BackPicture::Texture, index, {}}, true); }

void ShowColor(Program& app, int index) {
  const Rgb top = app.cImages.ColorValue(index);
  app.surface.background->Gradient(top, app.cRegistry.Get(setting::FadeIndex) == 0 ? top : Rgb{});
}

bool ShowPicture(Program& app, const BackPicture& picture) {
  return app.surface.background->ShowPicture(picture, app.cRegistry.Get(setting::EnableTile) == 1);
}

void ShowScheme(Program& app, const std::string& path) {
  // A scheme that does not read paints the default colours.
  const Scheme s = ReadScheme(path).value_or(kDefaultScheme);
  app.surface.background->Gradient(SchemeTop(s), SchemeBottom(s));
}

void ApplyBackground(Program& app) {
  app.surface.background->Clear();
  switch (app.cRegistry.Get(setting::BackIndex)) {
    case 0: ShowTexture(app, TextureIndex(app)); break;
    case 1: ShowColor(app, ColorIndex(app)); break;
    case 2: ShowPicture(app, {BackPicture::Image, ImageIndex(app), {}}); break;
    case 3: ShowScheme(app, SchemeFile(app)); break;
    case 4: ShowFile(app, CustImageFile(app)); break;
    case 5: ShowFile(app, ImageFolderFile(app)); break;
    default: break;
  }
  SetWallTimer(app);
}

void PickWallpaper(Program& app) {
  // A generator of its own, freshly seeded: the game numbers' generator is left alone.
  std::mt19937_64 gen(std::random_device{}());
  PickWallpaperAt(app, std::uniform_real_distribution<double>(0.0, 1.0)(gen));
}

void PickWallpaperAt(Program& app, double r) {
  const cImages& images = app.cImages;
  switch (app.cRegistry.Get(setting::BackIndex)) {
    case 0:
      if (images.TextureCount() > 0) ShowTexture(app, Pick(images.TextureCount(), r, 1));
      break;
    case 1:
      if (images.ColorCount() > 0) ShowColor(app, Pick(images.ColorCount(), r, 1));
      break;
    case 2:
      if (images.ImageCount() > 0) ShowPicture(app, {BackPicture::Image, Pick(images.ImageCount(), r, 1), {}});
      break;
    case 3: {
      const auto schemes = SchemeFiles(app, FolderUse::Read);
      if (!schemes.empty()) ShowScheme(app, schemes[Pick(schemes.size(), r, 0)]);
      break;
    }
    case 4: {
      const auto list = app.cFunc.GetLIST(0);
      if (list.size() > 1) ShowFile(app, list[Pick(list.size() - 1, r, 1)]);
      break;
    }
    case 5: {
      const auto folder = std::filesystem::path(ImageFolderFile(app, FolderUse::Read)).parent_path().string();
      const auto files = PictureFiles(folder);
      if (!files.empty()) ShowFile(app, files[Pick(files.size(), r, 0)]);
      break;
    }
    default: break;
  }
}

int WallTimerInterval(int wpTimerValue) {
  switch (wpTimerValue) {
    case 1: return 5000;
    case 2: return 15000;
    case 3: return 60000;
    default: return 0;
  }
}

void SetWallTimer(Program& app) {
  app.surface.background->SetWallTimer(WallTimerInterval(app.cRegistry.Get(setting::WPTimerValue)));
}

}  // namespace qv
