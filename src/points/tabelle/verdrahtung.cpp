#include "points/tabelle/verdrahtung.h"

namespace kolm::points {

void PunkteTabelleRegistrieren(forms::Forms&, core::Anwendung&) {}
void PunkteTabelleVerbinden(core::MainForm&, core::Anwendung&) {}

}  // namespace kolm::points
