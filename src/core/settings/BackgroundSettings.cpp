#include "settings/BackgroundSettings.h"

#include <algorithm>
#include <cctype>
#include <filesystem>

#include "session/Program.h"
#include "settings/ColorScheme.h"

namespace qv {

namespace {

int InRange(int v, int count) { return v >= 1 && v <= count ? v : 1; }

bool IsFile(const std::string& path) {
  std::error_code ec;
  return !path.empty() && std::filesystem::is_regular_file(path, ec);
}

std::string Lower(std::string s) {
  std::transform(s.begin(), s.end(), s.begin(), [](unsigned char c) { return std::tolower(c); });
  return s;
}

// The regular files of a folder that pass `keep`, sorted by name; none for a missing folder.
template <typename Keep>
std::vector<std::string> FilesOf(const std::string& folder, Keep keep) {
  std::vector<std::string> files;
  std::error_code ec;
  for (auto it = std::filesystem::directory_iterator(folder, ec); !ec && it != std::filesystem::directory_iterator();
       it.increment(ec)) {
    std::error_code fileEc;
    if (it->is_regular_file(fileEc) && keep(it->path())) files.push_back(it->path().string());
  }
  std::sort(files.begin(), files.end());
  return files;
}

}  // namespace

int TextureIndex(const Program& app) { return InRange(app.cRegistry.Get(setting::TextureIndex), app.cImages.TextureCount()); }
int ColorIndex(const Program& app) { return InRange(app.cRegistry.Get(setting::ColorIndex), app.cImages.ColorCount()); }
int ImageIndex(const Program& app) { return InRange(app.cRegistry.Get(setting::ImageIndex), app.cImages.ImageCount()); }

std::string SchemeFile(const Program& app, FolderUse use) {
  if (use == FolderUse::Write) app.cData.CreateDefaultSchemeFile();
  const std::string stored = app.cRegistry.Get(setting::SchemeFile);
  return IsFile(stored) ? stored : app.cData.DefaultSchemeFile(use);
}

std::string CustImageFile(const Program& app, FolderUse use) {
  const std::string stored = app.cRegistry.Get(setting::CustImageFile);
  return IsFile(stored) && app.cFunc.IsExists(0, stored) ? stored : app.cData.DefaultCustImageFile(use);
}

std::string ImageFolderFile(const Program& app, FolderUse use) {
  const std::string stored = app.cRegistry.Get(setting::ImageFolderFile);
  return IsFile(stored) ? stored : app.cData.DefaultCustImageFile(use);
}

std::vector<std::string> SchemeFiles(const Program& app, FolderUse use) {
  // Scheme files have no extension: every file of the folder is a candidate.
  return FilesOf(app.cData.SchemeFolder(use), [](const std::filesystem::path& p) { return ReadScheme(p.string()).has_value(); });
}

std::vector<std::string> PictureFiles(const std::string& folder) {
  return FilesOf(folder, [](const std::filesystem::path& p) {
    const std::string ext = Lower(p.extension().string());
    return ext == ".bmp" || ext == ".gif" || ext == ".jpg" || ext == ".jpeg" || ext == ".png";
  });
}

}  // namespace qv
