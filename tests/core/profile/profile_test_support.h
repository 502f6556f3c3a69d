#pragma once
// A private temporary folder per test and byte-exact file access.
#include <unistd.h>

#include <atomic>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>

#include "core/io/files.h"

namespace kolm::core::profile::support {

struct TempDir {
  std::filesystem::path path;
  TempDir() {
    static std::atomic<int> counter{0};
    path = std::filesystem::temp_directory_path() /
           ("kolm-profile-" + std::to_string(::getpid()) + "-" + std::to_string(counter++));
    std::filesystem::remove_all(path);
    std::filesystem::create_directories(path);
  }
  ~TempDir() {
    io::SetFaultHook(nullptr);
    std::error_code ec;
    std::filesystem::remove_all(path, ec);
  }
  std::string file(std::string_view name) const { return (path / name).string(); }
  std::size_t entries() const {
    std::size_t n = 0;
    for (auto it = std::filesystem::directory_iterator(path); it != std::filesystem::directory_iterator(); ++it) ++n;
    return n;
  }
};

inline std::string Put(const std::string& path, std::string_view bytes) {
  if (!io::WriteFileAtomically(path, bytes)) throw std::runtime_error("cannot prepare " + path);
  return path;
}

inline std::string Disk(const std::string& path) { return io::ReadFile(path).value_or("<missing>"); }

}  // namespace kolm::core::profile::support
