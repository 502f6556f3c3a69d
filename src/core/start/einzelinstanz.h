#pragma once
#include <string>

namespace kolm::core {

// Holds the lock that lets one instance of the program run per user session.
// The lock is a file in the runtime folder, locked for the life of this
// object; the operating system frees it when the process ends, also after a
// crash, so a stale file never blocks a new start.
class Einzelinstanz {
 public:
  // path: the lock file; its folder must exist.
  explicit Einzelinstanz(const std::string& path);
  ~Einzelinstanz();
  Einzelinstanz(const Einzelinstanz&) = delete;
  Einzelinstanz& operator=(const Einzelinstanz&) = delete;

  // False when another instance holds the lock.
  bool erhalten() const { return fd_ >= 0; }

 private:
  int fd_ = -1;
};

// The lock file of the session: $XDG_RUNTIME_DIR/kolm.lock, else
// /tmp/kolm-<uid>.lock.
std::string EinzelinstanzDatei();

// Message and title when another instance runs.
extern const char* const kMeldungZweiteInstanz;
extern const char* const kTitelZweiteInstanz;

}  // namespace kolm::core
