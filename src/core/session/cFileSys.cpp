#include "session/cFileSys.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
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

namespace {

bool Fail(std::string* error, const std::string& why) {
  if (error) *error = why;
  return false;
}

// Whether the file's last byte is a line end (an empty file counts as ended).
bool EndsWithLineEnd(int fd) {
  const off_t size = lseek(fd, 0, SEEK_END);
  char last = '\n';
  return size <= 0 || (pread(fd, &last, 1, size - 1) == 1 && last == '\n');
}

}  // namespace

bool cFileSys::AppendText(const std::string& path, std::string_view text, std::string* error) const {
  const int fd = open(path.c_str(), O_RDWR | O_CREAT | O_APPEND | O_CLOEXEC, 0644);
  if (fd < 0) return Fail(error, "cannot open " + path + ": " + std::strerror(errno));
  std::string out = EndsWithLineEnd(fd) ? std::string(text) : "\r\n" + std::string(text);
  bool ok = true;
  for (std::string_view rest = out; ok && !rest.empty();) {
    const ssize_t n = write(fd, rest.data(), rest.size());
    if (n < 0 && errno == EINTR) continue;
    ok = n > 0 || Fail(error, "cannot write " + path + ": " + std::strerror(errno));
    if (ok) rest.remove_prefix(static_cast<size_t>(n));
  }
  ok = ok && (fsync(fd) == 0 || Fail(error, "cannot flush " + path + ": " + std::strerror(errno)));
  close(fd);
  return ok;
}

bool cFileSys::Rename(const std::string& from, const std::string& to, std::string* error) const {
  std::error_code ec;
  if (!std::filesystem::exists(from, ec)) return Fail(error, from + " does not exist");
  if (std::filesystem::exists(to, ec)) return Fail(error, to + " exists already");
  std::filesystem::rename(from, to, ec);
  return !ec || Fail(error, "cannot rename " + from + ": " + ec.message());
}

bool cFileSys::DeleteFolder(const std::string& path) const {
  std::error_code ec;
  return std::filesystem::remove_all(path, ec) > 0 && !ec;
}

}  // namespace qv
