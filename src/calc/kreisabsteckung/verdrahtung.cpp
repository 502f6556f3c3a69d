#include "calc/verdrahtung.h"

#include <memory>

#include "calc/kreisabsteckung/kreis_absteck_b.h"
#include "calc/kreisabsteckung/kreis_absteck_xys.h"
#include "core/app/anwendung.h"
#include "core/main/main_form.h"

namespace kolm::calc {

void KreisAbsteckDialogeRegistrieren(forms::Forms& forms, core::Anwendung& anwendung) {
  forms.registerForm("KreisAbsteckB",
                     [&anwendung](forms::Forms& f) { return std::make_unique<KreisAbsteckBForm>(f, anwendung); });
  forms.registerForm("KreisAbsteckXYS",
                     [&anwendung](forms::Forms& f) { return std::make_unique<KreisAbsteckXYSForm>(f, anwendung); });
}

void KreisAbsteckDialogeVerbinden(core::MainForm& main, core::Anwendung& anwendung) {
  forms::Forms& forms = anwendung.forms();
  main.setCommand("MnuKreisAbsteckungB", [&forms] { forms.show("KreisAbsteckB"); });
  main.setCommand("MnuKreisAbsteckungXYS", [&forms] { forms.show("KreisAbsteckXYS"); });
}

}  // namespace kolm::calc
