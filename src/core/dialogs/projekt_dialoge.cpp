#include "core/dialogs/projekt_dialoge.h"

namespace kolm::core {

void ProjektDialogeRegistrieren(forms::Forms&, Anwendung&) {}
void ProjektBefehleVerbinden(MainForm&, Anwendung&) {}

}  // namespace kolm::core
