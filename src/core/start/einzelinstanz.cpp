#include "core/start/einzelinstanz.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cstdlib>

namespace kolm::core {

const char* const kMeldungZweiteInstanz =
    "Eine Instanz des Programmes Kolm ist bereits aktiv. Sie können Kolm nicht mehrfach ausführen!";
const char* const kTitelZweiteInstanz = "Starten von KOLM";

Einzelinstanz::Einzelinstanz(const std::string& path) {
  fd_ = ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
  if (fd_ < 0) return;
  if (::flock(fd_, LOCK_EX | LOCK_NB) != 0) {
    ::close(fd_);
    fd_ = -1;
  }
}

Einzelinstanz::~Einzelinstanz() {
  if (fd_ >= 0) ::close(fd_);
}

std::string EinzelinstanzDatei() {
  const char* runtime = std::getenv("XDG_RUNTIME_DIR");
  if (runtime && *runtime) return std::string(runtime) + "/kolm.lock";
  return "/tmp/kolm-" + std::to_string(::getuid()) + ".lock";
}

}  // namespace kolm::core
