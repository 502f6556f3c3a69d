#pragma once
// The dialogs of points and the entries of Main they serve.
#include "forms/forms.h"

namespace kolm::core {
class Anwendung;
class MainForm;
}  // namespace kolm::core

namespace kolm::points {

void PunkteFormulareRegistrieren(forms::Forms& forms, core::Anwendung& anwendung);
void PunkteBefehleVerbinden(core::MainForm& main, core::Anwendung& anwendung);

}  // namespace kolm::points
