#include "core/dialogs/tabellen_dialoge.h"

namespace kolm::core {

void TabellenDialogeRegistrieren(forms::Forms&, Anwendung&) {}
void TabellenBefehleVerbinden(MainForm&, Anwendung&) {}

}  // namespace kolm::core
