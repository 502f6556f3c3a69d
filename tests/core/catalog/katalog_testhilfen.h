#pragma once
// Shared pieces of the catalogue tests: a project folder of their own, a
// state with scripted services, rows built in one line, file times set.
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "core/catalog/katalog.h"
#include "core/io/files.h"
#include "core/state/zustand.h"
#include "forms/scripted.h"

namespace kolm::core::katalogtest {

namespace fs = std::filesystem;

struct Ordner {
  fs::path pfad;
  Ordner() {
    std::string muster = (fs::temp_directory_path() / "kolm-katalog-XXXXXX").string();
    pfad = ::mkdtemp(muster.data());
  }
  ~Ordner() {
    io::SetFaultHook(nullptr);
    std::error_code ec;
    fs::remove_all(pfad, ec);
  }
  Ordner(const Ordner&) = delete;
  Ordner& operator=(const Ordner&) = delete;
  std::string verzeichnis() const { return pfad.string() + "/"; }
  std::string datei(const std::string& name) const { return (pfad / name).string(); }
  std::string lesen(const std::string& name) const { return io::ReadFile(datei(name)).value_or("<fehlt>"); }
  bool gibt(const std::string& name) const { return fs::exists(pfad / name); }
  void schreiben(const std::string& name, const std::string& bytes) const {
    ASSERT_TRUE(io::WriteFileAtomically(datei(name), bytes)) << name;
  }
  // Sets the file's modification time to a fixed moment plus `sekunden`.
  void zeit(const std::string& name, int sekunden) const {
    static const auto basis = fs::file_time_type::clock::now() - std::chrono::hours(24);
    fs::last_write_time(pfad / name, basis + std::chrono::seconds(sekunden));
  }
  std::vector<std::string> dateien() const {
    std::vector<std::string> namen;
    for (const auto& e : fs::directory_iterator(pfad)) namen.push_back(e.path().filename().string());
    std::sort(namen.begin(), namen.end());
    return namen;
  }
};

struct Umgebung {
  Ordner ordner;
  std::unique_ptr<Zustand> zustand = std::make_unique<Zustand>();
  forms::ScriptedServices dienste;
  KatalogKontext kontext{*zustand, dienste.services};

  Umgebung() { zustand->ProjektVerzeichnis = ordner.verzeichnis(); }
  Zustand& z() { return *zustand; }
  Tabelle& zeile(int n) { return zustand->Tabellen.at(static_cast<size_t>(n)); }
  std::vector<forms::ShownMessage>& meldungen() { return dienste.messages.shown(); }
};

// A named row with its stems and stationing; flags and view fields default.
inline Tabelle Zeile(const std::string& name, double stationierung = 0, const std::string& datei = "",
                     const std::string& pkt = "") {
  Tabelle t;
  t.TablName = name;
  t.Stationierung = stationierung;
  t.Dateiname = datei;
  t.PktDateiName = pkt;
  return t;
}

// The names of rows 0 .. n - 1.
inline std::vector<std::string> Namen(const Zustand& z, int n) {
  std::vector<std::string> v;
  for (int i = 0; i < n; ++i) v.push_back(z.Tabellen[static_cast<size_t>(i)].TablName);
  return v;
}

}  // namespace kolm::core::katalogtest
