#pragma once

#include <string>

namespace qv {

// The window and quorvale-cli may run at once on one user's files, and only one of them
// may keep the session: the unfinished game, its live copy and the mark of a running
// session. The first to start holds an advisory lock on a file in the data folder until it
// stops (or dies: the system lets go of the lock then). The others leave those alone.
class SessionLock {
 public:
  SessionLock() = default;
  SessionLock(const SessionLock&) = delete;
  SessionLock& operator=(const SessionLock&) = delete;
  ~SessionLock() { Release(); }

  // False when another program holds it, or the file cannot be made.
  bool Acquire(const std::string& path);
  void Release();
  bool Held() const { return fd_ >= 0; }

 private:
  int fd_ = -1;
};

}  // namespace qv
