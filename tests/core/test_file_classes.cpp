#include <gtest/gtest.h>

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
  EXPECT_EQ(GetFileClass(*t.app, ".vq0"), "Quorvale.Incomplete");
  EXPECT_EQ(GetFileClass(*t.app, ".vq1"), "Quorvale.Finished");
  EXPECT_EQ(GetFileClass(*t.app, ".txt"), "");
  const std::string defaults = test::ReadFile(mimeapps.string());
  EXPECT_NE(defaults.find("text/plain=editor.desktop"), std::string::npos);
  EXPECT_NE(defaults.find("image/png=viewer.desktop"), std::string::npos);
  EXPECT_NE(defaults.find("application/x-quorvale-finished=quorvale.desktop"), std::string::npos);
  EXPECT_EQ(defaults.find("old.desktop"), std::string::npos);
  const std::string entry = test::ReadFile((t.home.Path() / "data" / "applications" / "quorvale.desktop").string());
  EXPECT_NE(entry.find("MimeType=application/x-quorvale-finished;application/x-quorvale-incomplete;"), std::string::npos);
  EXPECT_NE(entry.find("%f"), std::string::npos);
  // The user's mime database now names the types by their extensions.
  const fs::path globs = t.home.Path() / "data" / "mime" / "globs2";
  if (fs::exists(globs)) {
    EXPECT_NE(test::ReadFile(globs.string()).find("application/x-quorvale-incomplete:*.vq0"), std::string::npos);
  }
}

TEST(FileClasses, AMissingPieceMeansNotRegistered) {
  test::TestProgram t;
  RegisterFileTypes(*t.app);
  fs::remove(t.home.Path() / "data" / "applications" / "quorvale.desktop");
  EXPECT_EQ(GetFileClass(*t.app, ".vq1"), "");
}

}  // namespace
}  // namespace qv
