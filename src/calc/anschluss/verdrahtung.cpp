#include "calc/anschluss/verdrahtung.h"

#include <memory>

#include "calc/anschluss/winkel_zwischen3.h"
#include "core/app/anwendung.h"
#include "core/main/main_form.h"

namespace kolm::calc {

void AnschlussDialogeRegistrieren(forms::Forms& forms, core::Anwendung& anwendung) {
  forms.registerForm("WinkelZwischen3",
                     [&anwendung](forms::Forms& f) { return std::make_unique<WinkelZwischen3Form>(f, anwendung); });
}

void AnschlussDialogeVerbinden(core::MainForm& main, core::Anwendung& anwendung) {
  forms::Forms& forms = anwendung.forms();
  // Showing a loaded dialog again brings it to the front with its fields.
  main.setCommand("MnuGerWinkel", [&forms] { forms.show("WinkelZwischen3"); });
}

}  // namespace kolm::calc
