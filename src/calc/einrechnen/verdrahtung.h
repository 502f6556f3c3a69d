#pragma once
// Einrechnen and Kleinpunkte: registering the dialogs and binding the entries of Main.
#include "forms/forms.h"

namespace kolm::core {
class Anwendung;
class MainForm;
}  // namespace kolm::core

namespace kolm::calc {

void EinrechnenDialogeRegistrieren(forms::Forms& forms, core::Anwendung& anwendung);
void EinrechnenDialogeVerbinden(core::MainForm& main, core::Anwendung& anwendung);

}  // namespace kolm::calc
