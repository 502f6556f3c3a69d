#pragma once
// PunkteKontrolle, the designations and the variable grid: registering the dialogs and binding the entries of Main.
#include "forms/forms.h"

namespace kolm::core {
class Anwendung;
class MainForm;
}  // namespace kolm::core

namespace kolm::points {

void PunkteKontrolleRegistrieren(forms::Forms& forms, core::Anwendung& anwendung);
void PunkteKontrolleVerbinden(core::MainForm& main, core::Anwendung& anwendung);

}  // namespace kolm::points
