// The form model under load: filling a large grid as the point table does,
// and finding controls by name as form logic and macros do all the time.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <string>
#include <vector>

#include "forms/control.h"
#include "forms/form.h"
#include "forms/forms.h"
#include "forms/scripted.h"

namespace {

using kolm::forms::Control;
using kolm::forms::ControlKind;
using kolm::forms::Form;
using kolm::forms::FormObserver;
using kolm::forms::Forms;
using kolm::forms::Property;
using kolm::forms::ScriptedServices;

constexpr int kDataRows = 10000;
constexpr int kCols = 8;

// Stands in for a view: counts what it is told, as a real one would redraw.
class CountingView final : public FormObserver {
 public:
  void propertyChanged(Control&, Property, int, int) override { ++count; }
  long count = 0;
};

// Cell texts as the point table shows them: number, three coordinates,
// code, and so on. Two sets, so that every fill really changes every cell.
std::vector<std::string> CellTexts(int variant) {
  std::vector<std::string> texts;
  texts.reserve(static_cast<size_t>(kDataRows) * kCols);
  char buffer[32];
  for (int r = 0; r < kDataRows; ++r) {
    for (int c = 0; c < kCols; ++c) {
      if (c == 0) {
        std::snprintf(buffer, sizeof buffer, "%d", 1000 + r + variant * 50000);
      } else {
        std::snprintf(buffer, sizeof buffer, "%.3f", 5400000.0 + r * 1.25 + c * 0.001 + variant * 0.5);
      }
      texts.emplace_back(buffer);
    }
  }
  return texts;
}

struct GridForm {
  ScriptedServices services;
  Forms forms{services.services};
  Form form{forms, "PunkteTabelle", "Punkte"};
  Control& grid = form.add(ControlKind::Grid, "Grid").grid(kDataRows + 1, kCols, 1, 0);
  CountingView view;

  GridForm() { form.addObserver(&view); }
  ~GridForm() { form.removeObserver(&view); }
};

void Fill(Control& grid, const std::vector<std::string>& texts, bool batched) {
  if (batched) grid.beginGridUpdate();
  size_t i = 0;
  for (int r = 1; r <= kDataRows; ++r)
    for (int c = 0; c < kCols; ++c) grid.setCell(r, c, texts[i++]);
  if (batched) grid.endGridUpdate();
}

void RunFill(benchmark::State& state, bool batched) {
  const std::vector<std::string> sets[2] = {CellTexts(0), CellTexts(1)};
  GridForm f;
  int variant = 0;
  for (auto _ : state) {
    Fill(f.grid, sets[variant], batched);
    variant ^= 1;
  }
  // Without these the loop above measured nothing worth having.
  const std::vector<std::string>& last = sets[variant ^ 1];
  if (f.grid.cell(kDataRows, kCols - 1) != last.back() || f.grid.cell(1, 0) != last.front()) {
    state.SkipWithError("grid does not hold the texts last written");
    return;
  }
  state.SetItemsProcessed(state.iterations() * kDataRows * kCols);
  state.counters["Meldungen_je_Fuellung"] =
      benchmark::Counter(static_cast<double>(f.view.count) / static_cast<double>(state.iterations()));
}

// The way form logic fills a grid: one notification at the end.
void BM_GridFill_Batched(benchmark::State& state) { RunFill(state, true); }
BENCHMARK(BM_GridFill_Batched)->Unit(benchmark::kMillisecond);

// For comparison: one notification per cell.
void BM_GridFill_CellByCell(benchmark::State& state) { RunFill(state, false); }
BENCHMARK(BM_GridFill_CellByCell)->Unit(benchmark::kMillisecond);

// A form of 300 controls: 240 named ones (some with umlauts) and one
// control array of 60 members, as the large calculation dialogs have.
struct WideForm {
  ScriptedServices services;
  Forms forms{services.services};
  Form form{forms, "Berechnung", "Berechnung"};
  std::vector<std::string> names;       // as declared
  std::vector<std::string> otherNames;  // lower case, umlauts spelled out

  WideForm() {
    const char* stems[] = {"PP", "Erg", "Höhe", "Straße", "Maß", "Länge"};
    const char* otherStems[] = {"pp", "erg", "hoehe", "strasse", "mass", "laenge"};
    for (int i = 0; i < 240; ++i) {
      const int s = i % 6;
      names.push_back(std::string(stems[s]) + "Nr" + std::to_string(i));
      otherNames.push_back(std::string(otherStems[s]) + "nr" + std::to_string(i));
      form.add(ControlKind::TextBox, names.back());
    }
    for (int i = 0; i < 60; ++i) form.add(ControlKind::TextBox, "Param", i);
  }
};

void RunLookup(benchmark::State& state, bool otherSpelling) {
  WideForm f;
  const std::vector<std::string>& names = otherSpelling ? f.otherNames : f.names;
  for (auto _ : state) {
    for (const std::string& name : names) {
      Control* c = f.form.find(name);
      benchmark::DoNotOptimize(c);
      if (c == nullptr) {
        state.SkipWithError(("no control found for " + name).c_str());
        return;
      }
    }
  }
  state.SetItemsProcessed(state.iterations() * static_cast<long>(names.size()));
}

void BM_FindByName(benchmark::State& state) { RunLookup(state, false); }
BENCHMARK(BM_FindByName);

void BM_FindByOtherSpelling(benchmark::State& state) { RunLookup(state, true); }
BENCHMARK(BM_FindByOtherSpelling);

void BM_FindArrayMember(benchmark::State& state) {
  WideForm f;
  for (auto _ : state) {
    for (int i = 0; i < 60; ++i) {
      Control* c = f.form.find("Param", i);
      benchmark::DoNotOptimize(c);
      if (c == nullptr || c->index() != i) {
        state.SkipWithError("control array member missing");
        return;
      }
    }
  }
  state.SetItemsProcessed(state.iterations() * 60);
}
BENCHMARK(BM_FindArrayMember);

}  // namespace
