#include "points/eingabe/ueberschreibliste.h"

#include "core/app/anwendung.h"
#include "core/main/main_form.h"
#include "points/koordinaten.h"

namespace kolm::points {

void Ueberschreibliste::Aufnehmen(UeberschriebenerPunkt eintrag) {
  eintraege_.insert(eintraege_.begin(), std::move(eintrag));
  if (eintraege_.size() > static_cast<size_t>(Laenge)) eintraege_.resize(Laenge);
}

Ueberschreibliste& UeberschreiblisteVon(core::Anwendung& anwendung) {
  return anwendung.modulZustand<Ueberschreibliste>();
}

void UeberschriebenMerken(core::Anwendung& anwendung, const core::Punkt& alt, int nummer) {
  UeberschriebenerPunkt eintrag;
  eintrag.Punkt = alt;
  eintrag.Punkt.Nummer = static_cast<core::Integer>(nummer);
  eintrag.Nummer = eintrag.Punkt.Nummer;
  eintrag.Wert = nummer;
  eintrag.Text = "Alter " + PunktZeile(anwendung.zustand(), eintrag.Punkt);
  const std::string zeile = eintrag.Text;
  UeberschreiblisteVon(anwendung).Aufnehmen(std::move(eintrag));

  core::MainForm* main = anwendung.main();
  if (!main) return;
  forms::Control& liste = main->control("cmbBlueBox");
  std::vector<std::string> zeilen = liste.list();
  zeilen.insert(zeilen.begin(), zeile);
  if (zeilen.size() > static_cast<size_t>(Ueberschreibliste::Laenge)) zeilen.resize(Ueberschreibliste::Laenge);
  // Index 0 must be a change, or the combo would keep showing the line
  // that has just moved down.
  if (liste.listIndex() == 0) liste.setListIndex(-1);
  liste.setList(std::move(zeilen));
  liste.setListIndex(0);
}

}  // namespace kolm::points
