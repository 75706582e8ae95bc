#include "session/SessionLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace qv {

bool SessionLock::Acquire(const std::string& path) {
  if (Held()) return true;
  const int fd = open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
  if (fd < 0) return false;
  if (flock(fd, LOCK_EX | LOCK_NB) != 0) {
    close(fd);
    return false;
  }
  fd_ = fd;
  return true;
}

void SessionLock::Release() {
  if (!Held()) return;
  close(fd_);  // closing lets go of the lock
  fd_ = -1;
}

}  // namespace qv
