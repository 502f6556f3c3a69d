#include "calc/verdrahtung.h"

#include <memory>

#include "calc/absteckdaten/absteckdaten.h"
#include "core/app/anwendung.h"
#include "core/main/main_form.h"

namespace kolm::calc {

void AbsteckdatenDialogeRegistrieren(forms::Forms& forms, core::Anwendung& anwendung) {
  forms.registerForm("Absteckdaten",
                     [&anwendung](forms::Forms& f) { return std::make_unique<AbsteckdatenForm>(f, anwendung); });
}

void AbsteckdatenDialogeVerbinden(core::MainForm& main, core::Anwendung& anwendung) {
  forms::Forms& forms = anwendung.forms();
  main.setCommand("MnuGerAbsteckdaten", [&forms] { forms.show("Absteckdaten"); });
}

}  // namespace kolm::calc
