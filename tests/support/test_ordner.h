#pragma once
// A fresh folder for one test, removed again with everything in it, with
// the small file look-ups the tests of files need.
#include <gtest/gtest.h>
#include <stdlib.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

#include "core/io/files.h"

namespace kolm::testhilfen {

class TestOrdner {
 public:
  explicit TestOrdner(const char* art = "test") {
    std::string muster =
        (std::filesystem::temp_directory_path() / ("kolm-" + std::string(art) + "-XXXXXX")).string();
    pfad = ::mkdtemp(muster.data());
  }
  ~TestOrdner() {
    core::io::SetFaultHook(nullptr);  // a test that injected faults must not leak them
    std::error_code ec;
    std::filesystem::remove_all(pfad, ec);
  }
  TestOrdner(const TestOrdner&) = delete;
  TestOrdner& operator=(const TestOrdner&) = delete;

  std::filesystem::path pfad;

  // The folder with a trailing separator, as the program keeps folders.
  std::string verzeichnis() const { return pfad.string() + "/"; }
  std::string datei(const std::string& name) const { return (pfad / name).string(); }
  std::string lesen(const std::string& name) const {
    return core::io::ReadFile(datei(name)).value_or("<fehlt>");
  }
  bool gibt(const std::string& name) const { return std::filesystem::exists(pfad / name); }
  void schreiben(const std::string& name, const std::string& bytes) const {
    ASSERT_TRUE(core::io::WriteFileAtomically(datei(name), bytes)) << name;
  }
  // Names of the files in the folder, sorted.
  std::vector<std::string> dateien() const {
    std::vector<std::string> namen;
    for (const auto& e : std::filesystem::directory_iterator(pfad))
      namen.push_back(e.path().filename().string());
    std::sort(namen.begin(), namen.end());
    return namen;
  }
  // Sets a file's modification time to a fixed moment plus `sekunden`.
  void zeit(const std::string& name, int sekunden) const {
    static const auto basis = std::filesystem::file_time_type::clock::now() - std::chrono::hours(24);
    std::filesystem::last_write_time(pfad / name, basis + std::chrono::seconds(sekunden));
  }
};

}  // namespace kolm::testhilfen
