#include "settings/FileClasses.h"

#include <cstdlib>
#include <filesystem>
#include <sstream>

#include "session/AtomicFile.h"
#include "session/Program.h"

namespace qv {

namespace fs = std::filesystem;

namespace {

constexpr const char* kMimePackage = "quorvale-savedgame.xml";
constexpr const char* kDesktopEntry = "quorvale.desktop";

struct FileType {
  std::string mime, className, description, ext;
};

std::vector<FileType> Types(const Program& app) {
  const std::string x = app.cData.ProdNameX();
  std::string lower = x;
  for (char& c : lower) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return {{"application/x-" + lower + "-finished", x + ".Finished", x + " Finished Game", app.cData.FinExt()},
          {"application/x-" + lower + "-incomplete", x + ".Incomplete", x + " Incomplete Game", app.cData.IncExt()}};
}

fs::path MimeFile(const Program& app) { return app.folders.appData / "mime" / "packages" / kMimePackage; }
fs::path DesktopFile(const Program& app) { return app.folders.appData / "applications" / kDesktopEntry; }
fs::path MimeApps(const Program& app) { return app.folders.config / "mimeapps.list"; }
// What update-mime-database makes of the packages: the patterns the desktop goes by.
fs::path MimeDatabaseGlobs(const Program& app) { return app.folders.appData / "mime" / "globs2"; }

bool Holds(const fs::path& file, const std::string& text) {
  const auto content = ReadWholeFile(file);
  return content && content->find(text) != std::string::npos;
}

// The application mimeapps.list names as a type's default, or the empty text. The user may
// have chosen another one since: that is a registration in place too.
std::string DefaultApplication(const std::string& mimeapps, const std::string& mime) {
  std::istringstream in(mimeapps);
  std::string line;
  bool inDefaults = false;
  while (std::getline(in, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (line.starts_with("[")) inDefaults = line == "[Default Applications]";
    else if (inDefaults && line.starts_with(mime + "=")) return line.substr(mime.size() + 1);
  }
  return {};
}

std::string MimeXml(const std::vector<FileType>& types) {
  std::string xml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                    "<mime-info xmlns=\"http://www.freedesktop.org/standards/shared-mime-info\">\n";
  for (const auto& t : types)
    xml += "  <mime-type type=\"" + t.mime + "\">\n    <comment>" + t.description + "</comment>\n    <glob pattern=\"*" +
           t.ext + "\"/>\n  </mime-type>\n";
  return xml + "</mime-info>\n";
}

std::string DesktopText(const Program& app, const std::vector<FileType>& types) {
  const std::string exe = (app.folders.program / "quorvale").string();
  std::string mimes;
  for (const auto& t : types) mimes += t.mime + ";";
  return "[Desktop Entry]\nType=Application\nName=" + app.cData.ProdNameX() +
         "\nComment=Spider solitaire\nExec=\"" + exe + "\" %f\nTerminal=false\nCategories=Game;CardGame;\nMimeType=" +
         mimes + "\n";
}

// Sets our types' default application in the user's mimeapps.list, keeping every other line.
std::string WithDefaults(const std::string& old, const std::vector<FileType>& types) {
  std::istringstream in(old);
  std::string line, out;
  bool inDefaults = false, placed = false;
  auto ours = [&](const std::string& l) {
    for (const auto& t : types)
      if (l.starts_with(t.mime + "=")) return true;
    return false;
  };
  auto add = [&] {
    for (const auto& t : types) out += t.mime + "=" + kDesktopEntry + "\n";
    placed = true;
  };
  while (std::getline(in, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (line.starts_with("[")) {
      if (inDefaults && !placed) add();
      inDefaults = line == "[Default Applications]";
    }
    if (inDefaults && ours(line)) continue;
    out += line + "\n";
    if (line == "[Default Applications]") add();
  }
  if (!placed) out += "[Default Applications]\n", add();
  return out;
}

}  // namespace

std::string GetFileClass(const Program& app, const std::string& ext) {
  for (const auto& t : Types(app)) {
    if (t.ext != ext) continue;
    // Every part must stand, or a double-click in the file manager does not reach us: a
    // part missing means that registering failed there, and the next start tries again.
    const bool known = Holds(MimeFile(app), "pattern=\"*" + ext + "\"") &&
                       Holds(DesktopFile(app), t.mime + ";") &&
                       !DefaultApplication(ReadWholeFile(MimeApps(app)).value_or(""), t.mime).empty() &&
                       Holds(MimeDatabaseGlobs(app), ":" + t.mime + ":*" + ext);
    return known ? t.className : "";
  }
  return {};
}

void RegisterFileTypes(const Program& app) {
  const auto types = Types(app);
  std::error_code ec;
  fs::create_directories(MimeFile(app).parent_path(), ec);
  fs::create_directories(DesktopFile(app).parent_path(), ec);
  fs::create_directories(MimeApps(app).parent_path(), ec);
  if (!WriteFileAtomically(MimeFile(app), MimeXml(types))) return;
  if (!WriteFileAtomically(DesktopFile(app), DesktopText(app, types))) return;
  WriteFileAtomically(MimeApps(app), WithDefaults(ReadWholeFile(MimeApps(app)).value_or(""), types));
  // The desktop learns the new types from its mime database; without the tool it stays silent.
  const std::string mime = (app.folders.appData / "mime").string();
  if (mime.find('\'') != std::string::npos) return;
  const int status = std::system(("update-mime-database '" + mime + "' >/dev/null 2>&1").c_str());
  (void)status;
}

}  // namespace qv
