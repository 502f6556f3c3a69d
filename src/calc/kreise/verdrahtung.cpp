#include "calc/kreise/verdrahtung.h"

namespace kolm::calc {

void KreisDialogeRegistrieren(forms::Forms&, core::Anwendung&) {}
void KreisDialogeVerbinden(core::MainForm&, core::Anwendung&) {}

}  // namespace kolm::calc
