#include "calc/verdrahtung.h"

#include <memory>

#include "calc/einrechnen/einrechnen.h"
#include "calc/einrechnen/kleinpunkte.h"
#include "core/app/anwendung.h"
#include "core/main/main_form.h"

namespace kolm::calc {

void EinrechnenDialogeRegistrieren(forms::Forms& forms, core::Anwendung& anwendung) {
  forms.registerForm("Einrechnen",
                     [&anwendung](forms::Forms& f) { return std::make_unique<EinrechnenForm>(f, anwendung); });
  forms.registerForm("Kleinpunkte",
                     [&anwendung](forms::Forms& f) { return std::make_unique<KleinpunkteForm>(f, anwendung); });
}

void EinrechnenDialogeVerbinden(core::MainForm& main, core::Anwendung& anwendung) {
  forms::Forms& forms = anwendung.forms();
  main.setCommand("MnuGerEinrechnen", [&forms] { forms.show("Einrechnen"); });
  main.setCommand("MnuGerKleinPunkte", [&forms] { forms.show("Kleinpunkte"); });
}

}  // namespace kolm::calc
