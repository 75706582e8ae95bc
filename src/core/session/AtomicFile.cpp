#include "session/AtomicFile.h"

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace qv {
namespace {

// Unique within the process by the counter, and across processes by the pid, so
// two writers never share a temporary file.
std::filesystem::path TemporaryPathFor(const std::filesystem::path& path) {
  static std::atomic<unsigned> counter{0};
  std::filesystem::path temporary = path;
  temporary += ".tmp-" + std::to_string(getpid()) + "-" + std::to_string(counter++);
  return temporary;
}

bool Fail(std::string* error, const std::string& what) {
  if (error) *error = what + ": " + std::strerror(errno);
  return false;
}

bool WriteAll(int fd, std::string_view content) {
  while (!content.empty()) {
    const ssize_t written = write(fd, content.data(), content.size());
    if (written < 0) {
      if (errno == EINTR) continue;
      return false;
    }
    content.remove_prefix(static_cast<size_t>(written));
  }
  return true;
}

// Makes the rename itself survive a power cut. Best effort: by now the new file
// is complete either way.
void SyncFolder(const std::filesystem::path& folder) {
  const int fd = open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (fd < 0) return;
  fsync(fd);
  close(fd);
}

}  // namespace

bool WriteFileAtomically(const std::filesystem::path& path, std::string_view content,
                         std::string* error) {
  const std::filesystem::path temporary = TemporaryPathFor(path);
  const int fd = open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
  if (fd < 0) return Fail(error, "cannot create a temporary file next to " + path.string());

  bool ok = WriteAll(fd, content) || Fail(error, "cannot write " + temporary.string());
  ok = ok && (fsync(fd) == 0 || Fail(error, "cannot flush " + temporary.string()));
  // close() can report a delayed write error, so it counts too.
  ok = close(fd) == 0 ? ok : ok && Fail(error, "cannot close " + temporary.string());
  ok = ok && (std::rename(temporary.c_str(), path.c_str()) == 0 ||
              Fail(error, "cannot replace " + path.string()));
  if (!ok) {
    unlink(temporary.c_str());
    return false;
  }
  SyncFolder(path.parent_path());
  return true;
}

// Plain read() rather than a stream: a stream hides read errors (a folder opens
// fine and then fails to read) behind an ordinary end of file.
std::optional<std::string> ReadWholeFile(const std::filesystem::path& path) {
  const int fd = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (fd < 0) return std::nullopt;
  std::string content;
  // Sized once from the file's length, so a long journal is not copied as it grows.
  struct stat info {};
  if (fstat(fd, &info) == 0 && S_ISREG(info.st_mode)) content.reserve(static_cast<size_t>(info.st_size));
  char buffer[65536];
  ssize_t got;
  while ((got = read(fd, buffer, sizeof buffer)) != 0) {
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) break;
    content.append(buffer, static_cast<size_t>(got));
  }
  close(fd);
  if (got < 0) return std::nullopt;
  return content;
}

}  // namespace qv
