#pragma once
// Stakeout data: registering the dialogs and binding the entries of Main.
#include "forms/forms.h"

namespace kolm::core {
class Anwendung;
class MainForm;
}  // namespace kolm::core

namespace kolm::calc {

void AbsteckdatenDialogeRegistrieren(forms::Forms& forms, core::Anwendung& anwendung);
void AbsteckdatenDialogeVerbinden(core::MainForm& main, core::Anwendung& anwendung);

}  // namespace kolm::calc
