#pragma once
// The traverse: registering the dialogs and binding the entries of Main.
#include "forms/forms.h"

namespace kolm::core {
class Anwendung;
class MainForm;
}  // namespace kolm::core

namespace kolm::calc {

void PolygonzugDialogeRegistrieren(forms::Forms& forms, core::Anwendung& anwendung);
void PolygonzugDialogeVerbinden(core::MainForm& main, core::Anwendung& anwendung);

}  // namespace kolm::calc
