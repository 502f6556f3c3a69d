#include "points/punkte_verdrahtung.h"

namespace kolm::points {

void PunkteFormulareRegistrieren(forms::Forms& forms, core::Anwendung& anwendung) {
  PunktEingabeRegistrieren(forms, anwendung);
  PunkteTabelleRegistrieren(forms, anwendung);
  PunkteKontrolleRegistrieren(forms, anwendung);
}

void PunkteBefehleVerbinden(core::MainForm& main, core::Anwendung& anwendung) {
  PunktEingabeVerbinden(main, anwendung);
  PunkteTabelleVerbinden(main, anwendung);
  PunkteKontrolleVerbinden(main, anwendung);
}

}  // namespace kolm::points
