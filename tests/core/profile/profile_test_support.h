#pragma once
// A private temporary folder per test and byte-exact file access.
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>

#include "core/io/files.h"
#include "support/test_ordner.h"

namespace kolm::core::profile::support {

struct TempDir : kolm::testhilfen::TestOrdner {
  TempDir() : TestOrdner("profile") {}
  const std::filesystem::path& path = pfad;
  std::string file(std::string_view name) const { return datei(std::string(name)); }
  std::size_t entries() const { return dateien().size(); }
};

inline std::string Put(const std::string& path, std::string_view bytes) {
  if (!io::WriteFileAtomically(path, bytes)) throw std::runtime_error("cannot prepare " + path);
  return path;
}

inline std::string Disk(const std::string& path) { return io::ReadFile(path).value_or("<missing>"); }

}  // namespace kolm::core::profile::support
