#pragma once
// Circle intersections, tangents and the circumcircle: registering the dialogs and binding the entries of Main.
#include "forms/forms.h"

namespace kolm::core {
class Anwendung;
class MainForm;
}  // namespace kolm::core

namespace kolm::calc {

void KreisDialogeRegistrieren(forms::Forms& forms, core::Anwendung& anwendung);
void KreisDialogeVerbinden(core::MainForm& main, core::Anwendung& anwendung);

}  // namespace kolm::calc
