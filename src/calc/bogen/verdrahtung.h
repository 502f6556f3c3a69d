#pragma once
// Arc elements and circular segments: registering the dialogs and binding the entries of Main.
#include "forms/forms.h"

namespace kolm::core {
class Anwendung;
class MainForm;
}  // namespace kolm::core

namespace kolm::calc {

void BogenDialogeRegistrieren(forms::Forms& forms, core::Anwendung& anwendung);
void BogenDialogeVerbinden(core::MainForm& main, core::Anwendung& anwendung);

}  // namespace kolm::calc
