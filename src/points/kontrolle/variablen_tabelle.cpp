#include "points/kontrolle/variablen_tabelle.h"

#include <algorithm>
#include <string>

#include "core/app/anwendung.h"
#include "forms/keys.h"
#include "points/numbers/numbers.h"
#include "points/variablen.h"
#include "points/zellen_eingabe.h"

namespace kolm::points {

using forms::Control;
using forms::ControlKind;
using forms::Event;
using forms::EventArgs;

namespace {
constexpr int kWertSpalte = 1;
}

VariablenTabelleForm::VariablenTabelleForm(forms::Forms& forms, core::Anwendung& anwendung)
    : Form(forms, "VariablenTabelle", "Variablen"), anwendung_(anwendung) {
  Control& grid = add(ControlKind::Grid, "Grid").grid(core::AnzahlVariablen, 2, 0, 1).at(0, 0);
  grid.setColWidth(0, 4);
  grid.setColWidth(1, 24);
  grid.tip("Kleinbuchstabe: Wert der Variablen einsetzen, Großbuchstabe: Wert in der Variablen speichern");
  // Hidden commands: the variables changed elsewhere; cells were cut or pasted.
  add(ControlKind::CommandButton, "Repaint").hidden();
  add(ControlKind::CommandButton, "ReRead").hidden();
  setPreferredSize(215, 545);

  on("Grid", Event::KeyPress, [this](Control&, EventArgs& a) { tastenDruck(a); });
  on("Grid", Event::KeyDown, [this](Control&, EventArgs& a) { tasteUnten(a); });
  on("Grid", Event::RowColChange, [this](Control&, EventArgs&) { uebernehmen(); });
  on("Grid", Event::SelChange, [this](Control&, EventArgs&) { uebernehmen(); });
  on("Grid", Event::LostFocus, [this](Control&, EventArgs&) { uebernehmen(); });
  // A cell set as a whole (a macro's setze) counts at once.
  on("Grid", Event::Change, [this](Control&, EventArgs& a) {
    if (a.col != kWertSpalte || a.row < 0 || a.row >= core::AnzahlVariablen) return;
    bearbeitet_ = a.row;
    uebernehmen();
  });
  on("Repaint", Event::Click, [this](Control&, EventArgs&) { repaint(); });
  on("ReRead", Event::Click, [this](Control&, EventArgs&) { reRead(); });
}

void VariablenTabelleForm::Load() {
  Control& grid = control("Grid");
  grid.beginGridUpdate();
  for (int i = 0; i < core::AnzahlVariablen; ++i)
    grid.setCell(i, 0, std::string(1, static_cast<char>('A' + i)) + " =");
  grid.endGridUpdate();
  repaint();
}

void VariablenTabelleForm::Unload() { uebernehmen(); }

void VariablenTabelleForm::zeileZeigen(int zeile) {
  const core::Zustand& z = anwendung_.zustand();
  control("Grid").setCell(zeile, kWertSpalte,
                          numbers::ZahlText(z.Variablen[static_cast<std::size_t>(zeile)], z.Einstellungen.StandardFormat));
}

void VariablenTabelleForm::repaint() {
  // What was being typed counts before the grid is filled anew.
  uebernehmen();
  Control& grid = control("Grid");
  grid.beginGridUpdate();
  for (int i = 0; i < core::AnzahlVariablen; ++i) zeileZeigen(i);
  grid.endGridUpdate();
}

void VariablenTabelleForm::reRead() {
  core::Zustand& z = anwendung_.zustand();
  const Control& grid = control("Grid");
  bearbeitet_ = -1;
  for (int i = 0; i < core::AnzahlVariablen; ++i)
    z.Variablen[static_cast<std::size_t>(i)] = numbers::ZahlLesen(grid.cell(i, kWertSpalte));
  repaint();
}

// The cell being typed into becomes its variable's value, shown in the
// standard format again.
void VariablenTabelleForm::uebernehmen() {
  if (bearbeitet_ < 0) return;
  const int zeile = bearbeitet_;
  bearbeitet_ = -1;
  anwendung_.zustand().Variablen[static_cast<std::size_t>(zeile)] =
      numbers::ZahlLesen(control("Grid").cell(zeile, kWertSpalte));
  zeileZeigen(zeile);
}

void VariablenTabelleForm::tastenDruck(EventArgs& args) {
  Control& grid = control("Grid");
  const int zeile = grid.gridData().row;
  const int taste = args.keyAscii;
  args.keyAscii = 0;  // the grid has no editor: the cell text is built here
  if (grid.gridData().col != kWertSpalte || zeile < 0 || zeile >= core::AnzahlVariablen) return;
  core::Zustand& z = anwendung_.zustand();

  std::string text = grid.cell(zeile, kWertSpalte);
  int variable = taste;
  const VariablenWirkung wirkung = VariablenTaste(z, variable, text);
  if (wirkung != VariablenWirkung::Keine) {
    // A cell not being typed into stands for its exact value, not the shown one.
    const int andere = VariablenIndexVonTaste(taste);
    auto& v = z.Variablen;
    if (wirkung == VariablenWirkung::Gespeichert) {
      if (bearbeitet_ != zeile) v[static_cast<std::size_t>(andere)] = v[static_cast<std::size_t>(zeile)];
      if (andere == zeile) bearbeitet_ = -1;
      zeileZeigen(andere);
    } else {
      v[static_cast<std::size_t>(zeile)] = v[static_cast<std::size_t>(andere)];
      bearbeitet_ = -1;
      zeileZeigen(zeile);
    }
    return;
  }

  if (bearbeitet_ != zeile) {
    uebernehmen();
    text = ZellenBearbeitungsText(z.Variablen[static_cast<std::size_t>(zeile)]);
  }
  if (!ZellenTaste(text, taste)) return;
  grid.setCell(zeile, kWertSpalte, text);
  bearbeitet_ = zeile;
}

void VariablenTabelleForm::tasteUnten(EventArgs& args) {
  switch (args.keyCode) {
    case forms::keys::Return: case forms::keys::Tab:
    case forms::keys::Up: case forms::keys::Down: case forms::keys::Left: case forms::keys::Right:
    case forms::keys::PageUp: case forms::keys::PageDown: case forms::keys::Home: case forms::keys::End:
      uebernehmen();
      return;
    case forms::keys::Delete: {
      if (args.shift != 0) return;
      // The marked cells are blanked and read back, as in the point grid.
      Control& grid = control("Grid");
      const forms::GridData& g = grid.gridData();
      const int von = std::min(g.row, g.rowSel), bis = std::max(g.row, g.rowSel);
      if (std::max(g.col, g.colSel) < kWertSpalte) return;
      bearbeitet_ = -1;
      for (int r = von; r <= bis; ++r) grid.setCell(r, kWertSpalte, "");
      reRead();
      return;
    }
    default:
      return;
  }
}

}  // namespace kolm::points
