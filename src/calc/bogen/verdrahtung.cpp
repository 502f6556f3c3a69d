#include "calc/verdrahtung.h"

#include <memory>

#include "calc/bogen/bogen_elemente_b.h"
#include "calc/bogen/bogen_elemente_s.h"
#include "calc/bogen/bogen_elemente_w.h"
#include "calc/bogen/flaeche_bogen.h"
#include "core/app/anwendung.h"
#include "core/main/main_form.h"

namespace kolm::calc {

void BogenDialogeRegistrieren(forms::Forms& forms, core::Anwendung& anwendung) {
  forms.registerForm("BogenElementeB",
                     [&anwendung](forms::Forms& f) { return std::make_unique<BogenElementeBForm>(f, anwendung); });
  forms.registerForm("BogenElementeS",
                     [&anwendung](forms::Forms& f) { return std::make_unique<BogenElementeSForm>(f, anwendung); });
  forms.registerForm("BogenElementeW",
                     [&anwendung](forms::Forms& f) { return std::make_unique<BogenElementeWForm>(f, anwendung); });
  forms.registerForm("FlächeBogenB",
                     [&anwendung](forms::Forms& f) { return std::make_unique<FlaecheBogenBForm>(f, anwendung); });
  forms.registerForm("FlächeBogenS",
                     [&anwendung](forms::Forms& f) { return std::make_unique<FlaecheBogenSForm>(f, anwendung); });
}

void BogenDialogeVerbinden(core::MainForm& main, core::Anwendung& anwendung) {
  forms::Forms& forms = anwendung.forms();
  main.setCommand("MnuKreisBogenBABE", [&forms] { forms.show("BogenElementeB"); });
  main.setCommand("MnuKreisBogenSehne", [&forms] { forms.show("BogenElementeS"); });
  main.setCommand("MnuKreisBogenWinkel", [&forms] { forms.show("BogenElementeW"); });
  main.setCommand("MnuKreisFlächeBABE", [&forms] { forms.show("FlächeBogenB"); });
  main.setCommand("MnuKreisFlächeS", [&forms] { forms.show("FlächeBogenS"); });
}

}  // namespace kolm::calc
