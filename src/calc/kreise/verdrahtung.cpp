#include "calc/verdrahtung.h"

#include <memory>

#include "calc/kreise/gerade_kreis.h"
#include "calc/kreise/kreis_kreis.h"
#include "calc/kreise/kreis_tangenten.h"
#include "calc/kreise/umkreis_mittelpunkt.h"
#include "core/app/anwendung.h"
#include "core/main/main_form.h"

namespace kolm::calc {

void KreisDialogeRegistrieren(forms::Forms& forms, core::Anwendung& anwendung) {
  forms.registerForm("KreisKreis",
                     [&anwendung](forms::Forms& f) { return std::make_unique<KreisKreisForm>(f, anwendung); });
  forms.registerForm("GeradeKreis",
                     [&anwendung](forms::Forms& f) { return std::make_unique<GeradeKreisForm>(f, anwendung); });
  forms.registerForm("KreisTangenten",
                     [&anwendung](forms::Forms& f) { return std::make_unique<KreisTangentenForm>(f, anwendung); });
  forms.registerForm("UmkreisMittelpunkt", [&anwendung](forms::Forms& f) {
    return std::make_unique<UmkreisMittelpunktForm>(f, anwendung);
  });
}

void KreisDialogeVerbinden(core::MainForm& main, core::Anwendung& anwendung) {
  forms::Forms& forms = anwendung.forms();
  main.setCommand("MnuKreisKreisKreis", [&forms] { forms.show("KreisKreis"); });
  main.setCommand("MnuKreisKreisGerade", [&forms] { forms.show("GeradeKreis"); });
  main.setCommand("MnuKreisTangenten", [&forms] { forms.show("KreisTangenten"); });
  main.setCommand("MnuKreisUmkreis", [&forms] { forms.show("UmkreisMittelpunkt"); });
}

}  // namespace kolm::calc
