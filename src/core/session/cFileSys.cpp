#include "session/cFileSys.h"

#include <filesystem>

#include "session/AtomicFile.h"

namespace qv {

bool cFileSys::Exists(const std::string& path) const {
  std::error_code ec;
  return std::filesystem::exists(path, ec);
}

void cFileSys::CreateFolder(const std::string& path) const {
  std::error_code ec;
  std::filesystem::create_directories(path, ec);
}

bool cFileSys::Delete(const std::string& path) const {
  std::error_code ec;
  return std::filesystem::remove(path, ec);
}

bool cFileSys::WriteText(const std::string& path, std::string_view text, std::string* error) const {
  return WriteFileAtomically(path, text, error);
}

}  // namespace qv
