#include "core/io/files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <random>

namespace kolm::core::io {

namespace {
FaultHook& Hook() {
  static FaultHook hook;
  return hook;
}

bool Fails(std::string_view step, const std::string& path) {
  return Hook() && Hook()(step, path);
}

std::string TemporaryNameFor(const std::string& path) {
  static std::mt19937 random{std::random_device{}()};
  return path + ".kolm-" + std::to_string(::getpid()) + "-" + std::to_string(random() % 1000000) + ".tmp";
}
}  // namespace

void SetFaultHook(FaultHook hook) { Hook() = std::move(hook); }

std::optional<std::string> ReadFile(const std::string& path, std::size_t maxBytes) {
  const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (fd < 0) return std::nullopt;
  struct stat st {};
  if (::fstat(fd, &st) != 0 || S_ISDIR(st.st_mode)) {
    ::close(fd);
    return std::nullopt;
  }
  std::string bytes;
  char buffer[65536];
  while (bytes.size() < maxBytes) {
    const size_t want = std::min(sizeof buffer, maxBytes - bytes.size());
    const ssize_t got = ::read(fd, buffer, want);
    if (got < 0 && errno == EINTR) continue;
    if (got <= 0) break;
    bytes.append(buffer, static_cast<size_t>(got));
  }
  ::close(fd);
  return bytes;
}

bool WriteFileAtomically(const std::string& path, std::string_view bytes) {
  const std::string temp = TemporaryNameFor(path);
  if (Fails("open", path)) return false;
  const int fd = ::open(temp.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
  if (fd < 0) return false;
  bool ok = true;
  size_t done = 0;
  while (ok && done < bytes.size()) {
    if (Fails("write", path)) {
      ok = false;
      break;
    }
    const ssize_t n = ::write(fd, bytes.data() + done, bytes.size() - done);
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) ok = false;
    else done += static_cast<size_t>(n);
  }
  if (ok && (Fails("sync", path) || ::fsync(fd) != 0)) ok = false;
  if (::close(fd) != 0) ok = false;
  if (ok && (Fails("rename", path) || std::rename(temp.c_str(), path.c_str()) != 0)) ok = false;
  if (!ok) ::unlink(temp.c_str());
  return ok;
}

bool CopyFileAtomically(const std::string& from, const std::string& to) {
  const int in = ::open(from.c_str(), O_RDONLY | O_CLOEXEC);
  if (in < 0) return false;
  struct stat st {};
  if (::fstat(in, &st) != 0 || !S_ISREG(st.st_mode) || Fails("open", to)) {
    ::close(in);
    return false;
  }
  const std::string temp = TemporaryNameFor(to);
  const int out = ::open(temp.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
  if (out < 0) {
    ::close(in);
    return false;
  }
  bool ok = true;
  char buffer[65536];
  while (ok) {
    const ssize_t got = ::read(in, buffer, sizeof buffer);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) ok = false;
    if (got <= 0) break;
    ssize_t done = 0;
    while (ok && done < got) {
      if (Fails("write", to)) {
        ok = false;
        break;
      }
      const ssize_t n = ::write(out, buffer + done, static_cast<size_t>(got - done));
      if (n < 0 && errno == EINTR) continue;
      if (n <= 0) ok = false;
      else done += n;
    }
  }
  ::close(in);
  if (ok && (Fails("sync", to) || ::fsync(out) != 0)) ok = false;
  if (::close(out) != 0) ok = false;
  if (ok && (Fails("rename", to) || std::rename(temp.c_str(), to.c_str()) != 0)) ok = false;
  if (!ok) ::unlink(temp.c_str());
  return ok;
}

bool FileExists(const std::string& path) {
  struct stat st {};
  return ::stat(path.c_str(), &st) == 0 && S_ISREG(st.st_mode);
}

bool DirectoryExists(const std::string& path) {
  struct stat st {};
  return ::stat(path.c_str(), &st) == 0 && S_ISDIR(st.st_mode);
}

bool RemoveFile(const std::string& path) { return ::unlink(path.c_str()) == 0; }

}  // namespace kolm::core::io
