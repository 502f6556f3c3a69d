#include "calc/verdrahtung.h"

#include <memory>

#include "calc/ausrundung/ausrundung.h"
#include "core/app/anwendung.h"
#include "core/main/main_form.h"

namespace kolm::calc {

void AusrundungDialogeRegistrieren(forms::Forms& forms, core::Anwendung& anwendung) {
  forms.registerForm("Ausrundung",
                     [&anwendung](forms::Forms& f) { return std::make_unique<AusrundungForm>(f, anwendung); });
}

void AusrundungDialogeVerbinden(core::MainForm& main, core::Anwendung& anwendung) {
  forms::Forms& forms = anwendung.forms();
  main.setCommand("MnuKreisAusrundung", [&forms] { forms.show("Ausrundung"); });
}

}  // namespace kolm::calc
