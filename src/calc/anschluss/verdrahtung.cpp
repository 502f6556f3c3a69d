#include "calc/verdrahtung.h"

#include <memory>

#include "calc/anschluss/direkter_anschluss.h"
#include "calc/anschluss/indirekter_anschluss.h"
#include "calc/anschluss/winkel_zwischen3.h"
#include "core/app/anwendung.h"
#include "core/main/main_form.h"

namespace kolm::calc {

void AnschlussDialogeRegistrieren(forms::Forms& forms, core::Anwendung& anwendung) {
  forms.registerForm("WinkelZwischen3",
                     [&anwendung](forms::Forms& f) { return std::make_unique<WinkelZwischen3Form>(f, anwendung); });
  forms.registerForm("DirekterAnschluß",
                     [&anwendung](forms::Forms& f) { return std::make_unique<DirekterAnschlussForm>(f, anwendung); });
  forms.registerForm("IndirekterAnschluß",
                     [&anwendung](forms::Forms& f) { return std::make_unique<IndirekterAnschlussForm>(f, anwendung); });
}

void AnschlussDialogeVerbinden(core::MainForm& main, core::Anwendung& anwendung) {
  forms::Forms& forms = anwendung.forms();
  // Showing a loaded dialog again brings it to the front with its fields.
  main.setCommand("MnuGerWinkel", [&forms] { forms.show("WinkelZwischen3"); });
  // The entry's name is spelled so, with "ss".
  main.setCommand("MnuGerDirekterAnsschluß", [&forms] { forms.show("DirekterAnschluß"); });
  main.setCommand("MnuGerIndirekterAnschluß", [&forms] { forms.show("IndirekterAnschluß"); });
}

}  // namespace kolm::calc
