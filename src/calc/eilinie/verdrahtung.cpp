#include "calc/verdrahtung.h"

#include <memory>

#include "calc/eilinie/ei_wendelinie.h"
#include "core/app/anwendung.h"
#include "core/main/main_form.h"

namespace kolm::calc {

void EilinienDialogeRegistrieren(forms::Forms& forms, core::Anwendung& anwendung) {
  forms.registerForm("FormEiWendelinie",
                     [&anwendung](forms::Forms& f) { return std::make_unique<EiWendelinieForm>(f, anwendung); });
}

void EilinienDialogeVerbinden(core::MainForm& main, core::Anwendung& anwendung) {
  forms::Forms& forms = anwendung.forms();
  // One dialog for both: the entry writes the sign F, an open dialog switches.
  auto oeffnen = [&forms](const char* f) {
    if (auto* form = dynamic_cast<EiWendelinieForm*>(forms.show("FormEiWendelinie"))) form->FSetzen(f);
  };
  main.setCommand("MnuKreisEilinie", [oeffnen] { oeffnen("1"); });
  main.setCommand("MnuKreisWendelinie", [oeffnen] { oeffnen("-1"); });
}

}  // namespace kolm::calc
