#include "calc/verdrahtung.h"

#include "calc/distanz.h"
#include "core/app/anwendung.h"
#include "core/main/main_form.h"

namespace kolm::calc {

void RechnenRegistrieren(forms::Forms& forms, core::Anwendung& anwendung) {
  forms.registerForm("Distanz", [&anwendung](forms::Forms& f) { return std::make_unique<DistanzForm>(f, anwendung); });
}

void RechnenVerbinden(core::MainForm& main, core::Anwendung& anwendung) {
  forms::Forms& forms = anwendung.forms();
  // Showing a loaded dialog again brings it to the front with its fields.
  main.setCommand("MnuGerDist", [&forms] { forms.show("Distanz"); });
}

}  // namespace kolm::calc
