#include "calc/verdrahtung.h"

#include <memory>

#include "calc/klotoide/klotoide.h"
#include "core/app/anwendung.h"
#include "core/main/main_form.h"

namespace kolm::calc {

void KlotoidenDialogeRegistrieren(forms::Forms& forms, core::Anwendung& anwendung) {
  forms.registerForm("FormKlotoide",
                     [&anwendung](forms::Forms& f) { return std::make_unique<KlotoideForm>(f, anwendung); });
}

void KlotoidenDialogeVerbinden(core::MainForm& main, core::Anwendung& anwendung) {
  forms::Forms& forms = anwendung.forms();
  main.setCommand("MnuKreisKlotoide", [&forms] { forms.show("FormKlotoide"); });
}

}  // namespace kolm::calc
