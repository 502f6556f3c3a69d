#include "calc/anschluss/verdrahtung.h"

namespace kolm::calc {

void AnschlussDialogeRegistrieren(forms::Forms&, core::Anwendung&) {}
void AnschlussDialogeVerbinden(core::MainForm&, core::Anwendung&) {}

}  // namespace kolm::calc
