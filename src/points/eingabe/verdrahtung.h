#pragma once
// Saving a point, its history, Punkteingabe and the Bearbeiten menu: registering the dialogs and binding the entries of Main.
#include "forms/forms.h"

namespace kolm::core {
class Anwendung;
class MainForm;
}  // namespace kolm::core

namespace kolm::points {

void PunktEingabeRegistrieren(forms::Forms& forms, core::Anwendung& anwendung);
void PunktEingabeVerbinden(core::MainForm& main, core::Anwendung& anwendung);

}  // namespace kolm::points
