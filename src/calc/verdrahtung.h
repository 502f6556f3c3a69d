#pragma once
// The calculation dialogs as forms of the program and as commands of Main.
#include "forms/forms.h"

namespace kolm::core {
class Anwendung;
class MainForm;
}  // namespace kolm::core

namespace kolm::calc {

void RechnenRegistrieren(forms::Forms& forms, core::Anwendung& anwendung);
void RechnenVerbinden(core::MainForm& main, core::Anwendung& anwendung);

}  // namespace kolm::calc
