#include "calc/verdrahtung.h"

#include "calc/schnitt/rueckwaertsschnitt.h"
#include "calc/schnitt/vorwaertsschnitt.h"
#include "core/app/anwendung.h"
#include "core/main/main_form.h"

namespace kolm::calc {

void SchnittDialogeRegistrieren(forms::Forms& forms, core::Anwendung& anwendung) {
  forms.registerForm("Vorwärtsschnitt",
                     [&anwendung](forms::Forms& f) { return std::make_unique<VorwaertsschnittForm>(f, anwendung); });
  forms.registerForm("Rückwärtsschnitt",
                     [&anwendung](forms::Forms& f) { return std::make_unique<RueckwaertsschnittForm>(f, anwendung); });
}

void SchnittDialogeVerbinden(core::MainForm& main, core::Anwendung& anwendung) {
  forms::Forms& forms = anwendung.forms();
  main.setCommand("MnuGerVorwärtsschnitt", [&forms] { forms.show("Vorwärtsschnitt"); });
  main.setCommand("MnuGerRückwärtsschnitt", [&forms] { forms.show("Rückwärtsschnitt"); });
}

}  // namespace kolm::calc
