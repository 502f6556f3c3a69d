#pragma once
// Setting out points on a circular arc: registering the dialogs and binding the entries of Main.
#include "forms/forms.h"

namespace kolm::core {
class Anwendung;
class MainForm;
}  // namespace kolm::core

namespace kolm::calc {

void KreisAbsteckDialogeRegistrieren(forms::Forms& forms, core::Anwendung& anwendung);
void KreisAbsteckDialogeVerbinden(core::MainForm& main, core::Anwendung& anwendung);

}  // namespace kolm::calc
