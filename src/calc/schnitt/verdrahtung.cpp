#include "calc/schnitt/verdrahtung.h"

namespace kolm::calc {

void SchnittDialogeRegistrieren(forms::Forms&, core::Anwendung&) {}
void SchnittDialogeVerbinden(core::MainForm&, core::Anwendung&) {}

}  // namespace kolm::calc
