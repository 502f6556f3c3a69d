#pragma once
// Egg and inflection lines: registering the dialogs and binding the entries of Main.
#include "forms/forms.h"

namespace kolm::core {
class Anwendung;
class MainForm;
}  // namespace kolm::core

namespace kolm::calc {

void EilinienDialogeRegistrieren(forms::Forms& forms, core::Anwendung& anwendung);
void EilinienDialogeVerbinden(core::MainForm& main, core::Anwendung& anwendung);

}  // namespace kolm::calc
