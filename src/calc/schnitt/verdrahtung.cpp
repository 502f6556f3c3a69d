#include "calc/schnitt/verdrahtung.h"

#include "calc/schnitt/vorwaertsschnitt.h"
#include "core/app/anwendung.h"
#include "core/main/main_form.h"

namespace kolm::calc {

void SchnittDialogeRegistrieren(forms::Forms& forms, core::Anwendung& anwendung) {
  forms.registerForm("Vorwärtsschnitt",
                     [&anwendung](forms::Forms& f) { return std::make_unique<VorwaertsschnittForm>(f, anwendung); });
}

void SchnittDialogeVerbinden(core::MainForm& main, core::Anwendung& anwendung) {
  forms::Forms& forms = anwendung.forms();
  main.setCommand("MnuGerVorwärtsschnitt", [&forms] { forms.show("Vorwärtsschnitt"); });
}

}  // namespace kolm::calc
