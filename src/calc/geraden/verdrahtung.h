#pragma once
// Line intersections and the line selector: registering the dialogs and binding the entries of Main.
#include "forms/forms.h"

namespace kolm::core {
class Anwendung;
class MainForm;
}  // namespace kolm::core

namespace kolm::calc {

void GeradenDialogeRegistrieren(forms::Forms& forms, core::Anwendung& anwendung);
void GeradenDialogeVerbinden(core::MainForm& main, core::Anwendung& anwendung);

}  // namespace kolm::calc
