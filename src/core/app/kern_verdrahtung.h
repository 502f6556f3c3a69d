#pragma once
#include "forms/forms.h"

namespace kolm::core {

class Anwendung;
class MainForm;

// Registers the dialogs of projects, tables and settings.
void KernFormulareRegistrieren(forms::Forms& forms, Anwendung& anwendung);

// Binds the entries of Main that those dialogs and commands serve, and the
// question and the writing on closing.
void KernBefehleVerbinden(MainForm& main, Anwendung& anwendung);

}  // namespace kolm::core
