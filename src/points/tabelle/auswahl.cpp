#include "points/tabelle/auswahl.h"

#include <algorithm>

#include "points/tabelle/zeilen.h"

namespace kolm::points {

Punktbereich MarkierteZeilen(const core::Zustand& z, const forms::Control& grid) {
  const forms::GridData& g = grid.gridData();
  const auto nummer = [&](int zeile) { return std::clamp(PunktVonZeile(zeile), 0, z.AnzahlPunkte); };
  const int a = nummer(g.row), b = nummer(g.rowSel);
  return {std::min(a, b), std::max(a, b)};
}

std::optional<Punktbereich> MarkiertePunkte(const core::Zustand& z, const forms::Forms& forms) {
  const forms::Form* tabelle = forms.find("PunkteTabelle");
  if (!tabelle) return std::nullopt;
  const forms::Control* grid = tabelle->find("Grid");
  if (!grid) return std::nullopt;
  return MarkierteZeilen(z, *grid);
}

}  // namespace kolm::points
