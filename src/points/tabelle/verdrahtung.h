#pragma once
// The point grid PunkteTabelle and the whole-table conversions: registering the dialogs and binding the entries of Main.
#include "forms/forms.h"

namespace kolm::core {
class Anwendung;
class MainForm;
}  // namespace kolm::core

namespace kolm::points {

void PunkteTabelleRegistrieren(forms::Forms& forms, core::Anwendung& anwendung);
void PunkteTabelleVerbinden(core::MainForm& main, core::Anwendung& anwendung);

}  // namespace kolm::points
