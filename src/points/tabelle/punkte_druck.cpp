#include "points/tabelle/punkte_druck.h"

#include <algorithm>
#include <memory>

#include "points/numbers/numbers.h"
#include "points/tabelle/listen_druck.h"

namespace kolm::points {

namespace {

std::vector<std::string> Zeile(const forms::Control& grid, int r) {
  std::vector<std::string> spalten;
  for (int c = 0; c < grid.cols(); ++c) spalten.push_back(grid.cell(r, c));
  return spalten;
}

bool ZeigtPunkt(const forms::Control& grid, int r) {
  for (int c = grid.gridData().fixedCols; c < grid.cols(); ++c)
    if (!numbers::IstLeer(grid.cell(r, c))) return true;
  return false;
}

}  // namespace

bool PunkteListeDrucken(forms::Services& dienste, const core::Zustand& z, const forms::Control& grid) {
  if (!dienste.printer || grid.rows() < 1) return false;
  forms::BusyGuard busy(dienste.busy);
  std::unique_ptr<forms::PrintJob> job = dienste.printer->begin("Punkte-Tabelle");
  if (!job) return false;
  ListenLayout layout;
  // Number, designation, then the coordinates at equal distances.
  layout.tabsMm = {0, 22, 55, 95, 135};
  layout.schrift.family = z.Einstellungen.Font.empty() ? "Arial" : z.Einstellungen.Font;
  // The tab stops leave room for the settings' font up to 12 pt.
  layout.schrift.sizePt = z.Einstellungen.FontSize > 0 ? std::min(z.Einstellungen.FontSize, 12.0) : 10.0;
  layout.schrift.bold = z.Einstellungen.FontBold != 0;
  layout.schrift.italic = z.Einstellungen.FontItalic != 0;
  ListenDruck druck(*job, layout, Zeile(grid, 0));
  for (int r = grid.gridData().fixedRows; r < grid.rows(); ++r)
    if (ZeigtPunkt(grid, r)) druck.zeile(Zeile(grid, r));
  return job->finish();
}

}  // namespace kolm::points
