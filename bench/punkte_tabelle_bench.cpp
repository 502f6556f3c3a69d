// The point grid with a full table of 9,999 slots: filling it from the table
// (Repaint, as opening the dialog does) and reading it back (ReRead, after
// every Delete, cut and paste).
#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#include "core/app/anwendung.h"
#include "core/main/main_form.h"
#include "forms/scripted.h"
#include "points/punkte_verdrahtung.h"
#include "points/tabelle/punkte_tabelle.h"

namespace {

using kolm::forms::Control;
using kolm::forms::FormObserver;
using kolm::forms::Property;

// Stands in for the Qt view: counts what it is told.
class CountingView final : public FormObserver {
 public:
  void propertyChanged(Control&, Property, int, int) override { ++count; }
  long count = 0;
};

struct VolleTabelle {
  kolm::forms::ScriptedServices dienste;
  kolm::forms::Forms forms{dienste.services};
  kolm::core::Zustand zustand;
  kolm::core::Anwendung anwendung{zustand, forms};
  kolm::points::PunkteTabelleForm* tabelle = nullptr;
  CountingView view;

  VolleTabelle() {
    kolm::core::RegisterMainForms(forms, "/nicht/da");
    anwendung.setMain(static_cast<kolm::core::MainForm*>(forms.load("Main")));
    kolm::points::PunkteTabelleRegistrieren(forms, anwendung);
    zustand.PunkteDimensionieren(9999);
    zustand.Dritte = kolm::core::Wahr;
    zustand.Kurzbezeichnungen[0].Text = "Pkt.";
    for (int n = 0; n < 9999; ++n) {
      kolm::core::Punkt& p = zustand.Punkte[static_cast<size_t>(n)];
      p.Nummer = static_cast<kolm::core::Integer>(n);
      p.A = 5432100.0 + n * 1.2345678;
      p.B = 1200.5 + n * 0.25;
      p.C = 310.0 + (n % 100) * 0.01;
    }
    tabelle = static_cast<kolm::points::PunkteTabelleForm*>(forms.show("PunkteTabelle"));
    tabelle->addObserver(&view);
  }
  ~VolleTabelle() {
    tabelle->removeObserver(&view);
    forms.unloadAll();
  }
  Control& grid() { return tabelle->control("Grid"); }
};

void BM_Repaint(benchmark::State& state) {
  VolleTabelle t;
  for (auto _ : state) {
    // Each round shows other values, so every cell really changes.
    state.PauseTiming();
    for (int n = 0; n < 9999; ++n) t.zustand.Punkte[static_cast<size_t>(n)].A += 1;
    t.view.count = 0;
    state.ResumeTiming();
    t.tabelle->Repaint();
  }
  if (t.grid().rows() != 10001 || t.grid().cell(9999, 2).empty() || !t.grid().cell(10000, 2).empty()) {
    state.SkipWithError("grid does not show the full table");
    return;
  }
  state.SetItemsProcessed(state.iterations() * 9999);
  state.counters["Meldungen"] = static_cast<double>(t.view.count);
}
BENCHMARK(BM_Repaint)->Unit(benchmark::kMillisecond);

// Nothing changed: every row is compared with what the table shows.
void BM_ReRead_Unveraendert(benchmark::State& state) {
  VolleTabelle t;
  for (auto _ : state) t.tabelle->ReRead();
  if (t.zustand.Punkte[5000].A != 5432100.0 + 5000 * 1.2345678) state.SkipWithError("ReRead lost digits");
  state.SetItemsProcessed(state.iterations() * 9999);
}
BENCHMARK(BM_ReRead_Unveraendert)->Unit(benchmark::kMillisecond);

// Every row pasted over: each one is read and repainted.
void BM_ReRead_AllesEingefuegt(benchmark::State& state) {
  VolleTabelle t;
  Control& g = t.grid();
  int runde = 0;
  for (auto _ : state) {
    state.PauseTiming();
    ++runde;
    g.beginGridUpdate();
    for (int r = 1; r <= 9999; ++r) g.setCell(r, 2, std::to_string(r + runde) + ",5");
    g.endGridUpdate();
    state.ResumeTiming();
    t.tabelle->ReRead();
  }
  if (t.zustand.Punkte[0].A != 1 + runde + 0.5) state.SkipWithError("pasted values not read");
  state.SetItemsProcessed(state.iterations() * 9999);
}
BENCHMARK(BM_ReRead_AllesEingefuegt)->Unit(benchmark::kMillisecond);

}  // namespace
