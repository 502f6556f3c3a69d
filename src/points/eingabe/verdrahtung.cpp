#include "points/eingabe/verdrahtung.h"

namespace kolm::points {

void PunktEingabeRegistrieren(forms::Forms&, core::Anwendung&) {}
void PunktEingabeVerbinden(core::MainForm&, core::Anwendung&) {}

}  // namespace kolm::points
