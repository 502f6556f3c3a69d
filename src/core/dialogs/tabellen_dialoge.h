#pragma once
#include "forms/forms.h"

namespace kolm::core {

class Anwendung;
class MainForm;

// The dialogs of tables: Tabellenauswahl, NeueTabelle, TabelleDuplizieren
// and TabelleEigenschaften.
void TabellenDialogeRegistrieren(forms::Forms& forms, Anwendung& anwendung);
void TabellenBefehleVerbinden(MainForm& main, Anwendung& anwendung);

}  // namespace kolm::core
