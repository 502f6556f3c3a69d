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
#include "support/test_ordner.h"
#include "core/state/zustand.h"
#include "forms/scripted.h"

namespace kolm::core::katalogtest {

namespace fs = std::filesystem;

struct Ordner : ::kolm::testhilfen::TestOrdner {
  Ordner() : TestOrdner("katalog") {}
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
