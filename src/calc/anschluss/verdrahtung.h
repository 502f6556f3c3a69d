#pragma once
// Angles between points and the direct and indirect tie: registering the dialogs and binding the entries of Main.
#include "forms/forms.h"

namespace kolm::core {
class Anwendung;
class MainForm;
}  // namespace kolm::core

namespace kolm::calc {

void AnschlussDialogeRegistrieren(forms::Forms& forms, core::Anwendung& anwendung);
void AnschlussDialogeVerbinden(core::MainForm& main, core::Anwendung& anwendung);

}  // namespace kolm::calc
