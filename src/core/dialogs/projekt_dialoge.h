#pragma once
#include "forms/forms.h"

namespace kolm::core {

class Anwendung;
class MainForm;

// The dialogs of projects: ProjektNeu, ProjektÖffnen, ProjektKopieren and
// its progress window.
void ProjektDialogeRegistrieren(forms::Forms& forms, Anwendung& anwendung);
void ProjektBefehleVerbinden(MainForm& main, Anwendung& anwendung);

}  // namespace kolm::core
