// Saving and loading a full table: 9,999 points, 1,999 connections, 499
// arcs, 1,000 labels and 300 calculations of 500 elements each, in a
// temporary project folder.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>

#include "core/state/zustand.h"
#include "core/tables/tabellen_dateien.h"

namespace {

using namespace kolm::core;
namespace fs = std::filesystem;

struct Ordner {
  fs::path pfad;
  Ordner() {
    std::string muster = (fs::temp_directory_path() / "kolm-bench-XXXXXX").string();
    pfad = ::mkdtemp(muster.data());
  }
  ~Ordner() {
    std::error_code ec;
    fs::remove_all(pfad, ec);
  }
};

std::unique_ptr<Zustand> VolleTabelle(const std::string& verzeichnis) {
  auto z = std::make_unique<Zustand>();
  z->ProjektVerzeichnis = verzeichnis;
  z->PunkteDimensionieren(9999);
  for (int n = 1; n <= 9999; ++n) {
    Punkt& p = z->Punkte[n];
    p.A = 1000 + n * 0.137;
    p.B = 2000 - n * 0.071;
    p.C = 150 + (n % 97) * 0.01;
  }
  for (int n = 0; n < 1999; ++n) {
    Verbindung& v = z->Verbindungen[n];
    v.Von = static_cast<Integer>(n + 1);
    v.Nach = static_cast<Integer>(n + 2);
    v.Radius = n % 3 ? 0 : 25.5;
    v.Stil = StilPacken(0x0000FF, 1, 0);
  }
  for (int n = 1; n <= 499; ++n) {
    Bogen& b = z->Boegen[n];
    b.Radius = 10 + n;
    b.MitteX = n;
    b.MitteY = -n;
    b.AnfangsWinkel = 0.25;
    b.EndWinkel = 1.5;
  }
  for (int n = 0; n < 1000; ++n) {
    Beschriftung& b = z->Beschriftungen[n];
    b.Text = "Beschriftung " + std::to_string(n) + " km \\S";
    b.A = n * 1.25;
    b.B = -n * 0.5;
    b.Schrift = "Arial";
    b.Groesse = 8.5f;
    b.Massstab = 500;
    b.BezugsPunkt = static_cast<Integer>(n % 10);
  }
  for (int n = 0; n < 300; ++n) {
    Berechnung& b = z->Berechnungen[n];
    b.LVNr = LVNummer::Rechts("01." + std::to_string(n));
    b.Ergebnis = n * 12.345;
    b.Flaeche = Wahr;
    b.Anzahl = 500;
    // Every arc is tied to a calculation, so the sweep keeps them all.
    for (int e = 0; e < 500; ++e)
      b.Element[e] = static_cast<Integer>(e % 5 == 0 ? -(1 + (n * 100 + e / 5) % 499) : (n * 31 + e) % 9999);
  }
  z->Tabellen[0].TablName = "Profil 1";
  z->Tabellen[0].Dateiname = "P1";
  z->Tabellen[0].PktDateiName = "P1";
  z->AktiveTabelle = 0;
  return z;
}

void BM_TabelleSpeichern(benchmark::State& state) {
  Ordner ordner;
  auto z = VolleTabelle(ordner.pfad.string() + "/");
  TabellenKontext k(*z);
  k.dezimalzeichen = ",";
  for (auto _ : state) TabelleSpeichern(k);
  std::uintmax_t bytes = 0;
  for (const auto& e : fs::directory_iterator(ordner.pfad)) bytes += e.file_size();
  state.counters["Dateibytes"] = static_cast<double>(bytes);
}
BENCHMARK(BM_TabelleSpeichern)->Unit(benchmark::kMillisecond);

void BM_TabelleLaden(benchmark::State& state) {
  Ordner ordner;
  auto voll = VolleTabelle(ordner.pfad.string() + "/");
  TabellenKontext schreiber(*voll);
  TabelleSpeichern(schreiber);
  auto z = std::make_unique<Zustand>();
  z->ProjektVerzeichnis = voll->ProjektVerzeichnis;
  z->PunkteDimensionieren(9999);
  z->Tabellen = voll->Tabellen;
  z->AktiveTabelle = 0;
  TabellenKontext k(*z);
  for (auto _ : state) {
    TabellenDateienLesen(k);
    benchmark::DoNotOptimize(z->Punkte[9999].A);
  }
  if (z->Boegen[499].Radius == 0 || z->PunktLeer(9999)) state.SkipWithError("the table did not load whole");
}
BENCHMARK(BM_TabelleLaden)->Unit(benchmark::kMillisecond);

// One writer and one reader alone, the two text files being the slow ones.
void BM_Berechnungen(benchmark::State& state) {
  Ordner ordner;
  auto z = VolleTabelle(ordner.pfad.string() + "/");
  TabellenKontext k(*z);
  for (auto _ : state) {
    SchreibeBerechnungen(k, "P1");
    LeseBerechnungen(k, "P1");
  }
}
BENCHMARK(BM_Berechnungen)->Unit(benchmark::kMillisecond);

void BM_Beschriftungen(benchmark::State& state) {
  Ordner ordner;
  auto z = VolleTabelle(ordner.pfad.string() + "/");
  TabellenKontext k(*z);
  k.dezimalzeichen = ",";
  for (auto _ : state) {
    SchreibeBeschriftungen(k, "P1");
    LeseBeschriftungen(k, "P1");
  }
}
BENCHMARK(BM_Beschriftungen)->Unit(benchmark::kMillisecond);

}  // namespace
