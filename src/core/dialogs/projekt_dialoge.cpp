#include "core/dialogs/projekt_dialoge.h"

#include "core/app/anwendung.h"
#include "core/dialogs/fortschritt.h"
#include "core/dialogs/projekt_kopieren.h"
#include "core/dialogs/projekt_neu.h"
#include "core/dialogs/projekt_oeffnen.h"
#include "core/main/main_form.h"

namespace kolm::core {

void ProjektDialogeRegistrieren(forms::Forms& forms, Anwendung& anwendung) {
  forms.registerForm("ProjektNeu", [&anwendung](forms::Forms& f) {
    return std::make_unique<ProjektNeuForm>(f, anwendung);
  });
  forms.registerForm("ProjektÖffnen", [&anwendung](forms::Forms& f) {
    return std::make_unique<ProjektOeffnenForm>(f, anwendung);
  });
  forms.registerForm("ProjektKopieren", [&anwendung](forms::Forms& f) {
    return std::make_unique<ProjektKopierenForm>(f, anwendung);
  });
  forms.registerForm("frmProgress", [](forms::Forms& f) { return std::make_unique<FortschrittForm>(f); });
}

void ProjektBefehleVerbinden(MainForm& main, Anwendung& anwendung) {
  // Each leaves the active table, or copies what is on disk: unsaved changes
  // are offered for saving first.
  main.setCommand("MnuDateiNeuProjekt", [&anwendung] {
    anwendung.SpeichernFragen();
    anwendung.forms().show("ProjektNeu", true);
  });
  main.setCommand("MnuDateiÖffnenProjekt", [&anwendung] {
    anwendung.SpeichernFragen();
    anwendung.forms().show("ProjektÖffnen", true);
  });
  main.setCommand("MnuDateiProjektKopieren", [&anwendung] {
    anwendung.SpeichernFragen();
    anwendung.forms().show("ProjektKopieren", true);
  });
}

}  // namespace kolm::core
