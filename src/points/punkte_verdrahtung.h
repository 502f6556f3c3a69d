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

// Each group of point dialogs registers its forms and binds its entries of
// Main; the two functions above call them all in turn.

// Saving a point, its history, Punkteingabe and the Bearbeiten menu
void PunktEingabeRegistrieren(forms::Forms& forms, core::Anwendung& anwendung);
void PunktEingabeVerbinden(core::MainForm& main, core::Anwendung& anwendung);

// PunkteKontrolle, the designations and the variable grid
void PunkteKontrolleRegistrieren(forms::Forms& forms, core::Anwendung& anwendung);
void PunkteKontrolleVerbinden(core::MainForm& main, core::Anwendung& anwendung);

// The point grid PunkteTabelle and the whole-table conversions
void PunkteTabelleRegistrieren(forms::Forms& forms, core::Anwendung& anwendung);
void PunkteTabelleVerbinden(core::MainForm& main, core::Anwendung& anwendung);

}  // namespace kolm::points
