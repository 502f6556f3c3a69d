#include "calc/geraden/verdrahtung.h"

namespace kolm::calc {

void GeradenDialogeRegistrieren(forms::Forms&, core::Anwendung&) {}
void GeradenDialogeVerbinden(core::MainForm&, core::Anwendung&) {}

}  // namespace kolm::calc
