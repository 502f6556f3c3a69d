#include "calc/verdrahtung.h"

#include <memory>

#include "calc/taschenrechner/taschenrechner.h"
#include "core/app/anwendung.h"
#include "core/main/main_form.h"

namespace kolm::calc {

void TaschenrechnerDialogeRegistrieren(forms::Forms& forms, core::Anwendung& anwendung) {
  forms.registerForm("Taschenrechner",
                     [&anwendung](forms::Forms& f) { return std::make_unique<TaschenrechnerForm>(f, anwendung); });
}

void TaschenrechnerDialogeVerbinden(core::MainForm& main, core::Anwendung& anwendung) {
  forms::Forms& forms = anwendung.forms();
  // The bar button "Taschenrechner mit UPN" runs the Werkzeuge entry.
  main.setCommand("MnuWerTaschenrechner", [&forms] { forms.show("Taschenrechner"); });
  main.setCommand("mnuAnsichtTaschenrechner", [&forms] { forms.show("Taschenrechner"); });
}

}  // namespace kolm::calc
