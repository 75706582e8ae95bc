#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "TestProgram.h"
#include "settings/FileClasses.h"

namespace qv {
namespace {

namespace fs = std::filesystem;

TEST(FileClasses, RegisteringMakesBothTypesKnownAndKeepsOtherDefaults) {
  test::TestProgram t;
  EXPECT_EQ(GetFileClass(*t.app, ".vq0"), "");
  const fs::path mimeapps = t.home.Path() / "config" / "mimeapps.list";
  fs::create_directories(mimeapps.parent_path());
  test::WriteFile(mimeapps.string(),
                  "[Default Applications]\ntext/plain=editor.desktop\napplication/x-quorvale-finished=old.desktop\n"
                  "[Added Associations]\nimage/png=viewer.desktop\n");
  RegisterFileTypes(*t.app);
  EXPECT_EQ(std::tuple(GetFileClass(*t.app, ".vq0"), GetFileClass(*t.app, ".vq1"), GetFileClass(*t.app, ".txt")),
            std::tuple("Quorvale.Incomplete", "Quorvale.Finished", ""));
  const std::string defaults = test::ReadFile(mimeapps.string());
  for (const char* kept :
       {"text/plain=editor.desktop", "image/png=viewer.desktop", "application/x-quorvale-finished=quorvale.desktop"})
    EXPECT_NE(defaults.find(kept), std::string::npos) << kept;
  EXPECT_EQ(defaults.find("old.desktop"), std::string::npos);
  const std::string entry = test::ReadFile((t.home.Path() / "data" / "applications" / "quorvale.desktop").string());
  for (const char* line : {"MimeType=application/x-quorvale-finished;application/x-quorvale-incomplete;", "%f"})
    EXPECT_NE(entry.find(line), std::string::npos) << line;
  // A default the user chose since is theirs: the types stay registered.
  test::WriteFile(mimeapps.string(), "[Default Applications]\napplication/x-quorvale-finished=other.desktop\n"
                                     "application/x-quorvale-incomplete=other.desktop\n");
  EXPECT_EQ(GetFileClass(*t.app, ".vq1"), "Quorvale.Finished");
}

// Each part of the registration failing in turn: the types do not count as registered,
// so the next start registers again, and then they do.
TEST(FileClasses, APartThatFailedIsTriedAgainAtTheNextStart) {
  const char* const parts[] = {"data/mime/packages/quorvale-savedgame.xml", "data/applications/quorvale.desktop",
                               "config/mimeapps.list", "update-mime-database"};
  const std::string path = std::getenv("PATH");
  for (const std::string part : parts) {
    SCOPED_TRACE(part);
    test::TestProgram t;
    // A folder where the file must go refuses its write, as a full disk would (root ignores
    // permissions); a tool that is not found fails as a missing one would.
    const bool tool = part == "update-mime-database";
    if (tool) setenv("PATH", t.home.File("no-tools").c_str(), 1);
    else fs::create_directories(t.home.Path() / part / "in-the-way");
    RegisterFileTypes(*t.app);
    EXPECT_EQ(std::tuple(GetFileClass(*t.app, ".vq0"), GetFileClass(*t.app, ".vq1")), std::tuple("", ""));
    if (tool) setenv("PATH", path.c_str(), 1);
    else fs::remove_all(t.home.Path() / part);
    RegisterFileTypes(*t.app);
    EXPECT_EQ(std::tuple(GetFileClass(*t.app, ".vq0"), GetFileClass(*t.app, ".vq1")),
              std::tuple("Quorvale.Incomplete", "Quorvale.Finished"));
  }
}

}  // namespace
}  // namespace qv
