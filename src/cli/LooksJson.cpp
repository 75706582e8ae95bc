#include "LooksJson.h"

#include <filesystem>

#include "StateJson.h"
#include "session/Program.h"
#include "settings/BackgroundSettings.h"
#include "settings/ColorScheme.h"

namespace qv {

namespace {

std::string Colour(Rgb c) {
  return "[" + std::to_string(c.r) + "," + std::to_string(c.g) + "," + std::to_string(c.b) + "]";
}

std::string Gradient(Rgb top, Rgb bottom) { return ",\"top\":" + Colour(top) + ",\"bottom\":" + Colour(bottom); }

}  // namespace

std::string BackgroundJson(const Program& app) {
  const auto& reg = app.cRegistry;
  const int kind = reg.Get(setting::BackIndex);
  std::string out = "{\"kind\":" + std::to_string(kind);
  switch (kind) {
    case 0: out += ",\"index\":" + std::to_string(TextureIndex(app)); break;
    case 1: {
      const int index = ColorIndex(app);
      const Rgb top = app.cImages.ColorValue(index);
      out += ",\"index\":" + std::to_string(index) + ",\"name\":" + JsonText(app.cImages.ColorName(index)) +
             Gradient(top, reg.Get(setting::FadeIndex) == 0 ? top : Rgb{});
      break;
    }
    case 2: out += ",\"index\":" + std::to_string(ImageIndex(app)); break;
    case 3: {
      const std::string path = SchemeFile(app, FolderUse::Read);
      const Scheme s = ReadScheme(path).value_or(kDefaultScheme);
      out += ",\"path\":" + JsonText(path) + Gradient(SchemeTop(s), SchemeBottom(s));
      break;
    }
    case 4: out += ",\"path\":" + JsonText(CustImageFile(app, FolderUse::Read)); break;
    case 5: out += ",\"path\":" + JsonText(ImageFolderFile(app, FolderUse::Read)); break;
    default: break;
  }
  return out + ",\"fade\":" + std::to_string(reg.Get(setting::FadeIndex)) +
         ",\"tile\":" + std::to_string(reg.Get(setting::EnableTile)) +
         ",\"timer\":" + std::to_string(reg.Get(setting::WPTimerValue)) + "}";
}

std::string SchemesJson(const Program& app) {
  std::string out = "[";
  for (const std::string& path : SchemeFiles(app, FolderUse::Read)) {
    const Scheme s = ReadScheme(path).value_or(kDefaultScheme);
    out += (out.size() > 1 ? "," : "") + std::string("{\"name\":") +
           JsonText(std::filesystem::path(path).filename().string()) + ",\"path\":" + JsonText(path) +
           Gradient(SchemeTop(s), SchemeBottom(s)) + "}";
  }
  return out + "]";
}

std::string SoundsJson(const Program& app) {
  std::string out = "[";
  for (const SoundEvent& e : SoundEvents()) {
    const std::string path = app.cSound.GetSound(e.key);
    std::error_code ec;
    const bool exists = !path.empty() && std::filesystem::is_regular_file(path, ec);
    out += (out.size() > 1 ? "," : "") + std::string("{\"key\":") + JsonText(e.key) + ",\"group\":" + JsonText(e.group) +
           ",\"label\":" + JsonText(e.label) + ",\"path\":" + JsonText(path) + ",\"exists\":" + (exists ? "true" : "false") +
           "}";
  }
  return out + "]";
}

std::string JsonTexts(const std::vector<std::string>& items) {
  std::string out = "[";
  for (size_t i = 0; i < items.size(); ++i) out += (i ? "," : "") + JsonText(items[i]);
  return out + "]";
}

}  // namespace qv
