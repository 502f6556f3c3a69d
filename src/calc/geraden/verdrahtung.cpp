#include "calc/verdrahtung.h"

#include <memory>

#include "calc/geraden/geradenschnitt.h"
#include "calc/geraden/parallelen_schnitt.h"
#include "calc/geraden/rechtwinkeliger_schnitt.h"
#include "core/app/anwendung.h"
#include "core/main/main_form.h"

namespace kolm::calc {

void GeradenDialogeRegistrieren(forms::Forms& forms, core::Anwendung& anwendung) {
  forms.registerForm("FormGeradenschnitt",
                     [&anwendung](forms::Forms& f) { return std::make_unique<GeradenschnittForm>(f, anwendung); });
  forms.registerForm("Form3PktGeradenschnitt", [&anwendung](forms::Forms& f) {
    return std::make_unique<RechtwinkeligerSchnittForm>(f, anwendung);
  });
  forms.registerForm("FormParallelenSchnitt",
                     [&anwendung](forms::Forms& f) { return std::make_unique<ParallelenSchnittForm>(f, anwendung); });
}

void GeradenDialogeVerbinden(core::MainForm& main, core::Anwendung& anwendung) {
  forms::Forms& forms = anwendung.forms();
  main.setCommand("MnuGer4Pkt", [&forms] { forms.show("FormGeradenschnitt"); });
  main.setCommand("MnuGer3Pkt", [&forms] { forms.show("Form3PktGeradenschnitt"); });
  main.setCommand("MnuGerParallelenschnitt", [&forms] { forms.show("FormParallelenSchnitt"); });
}

}  // namespace kolm::calc
