#pragma once
// The calculation dialogs as forms of the program and as commands of Main.
#include "forms/forms.h"

namespace kolm::core {
class Anwendung;
class MainForm;
}  // namespace kolm::core

namespace kolm::calc {

void RechnenRegistrieren(forms::Forms& forms, core::Anwendung& anwendung);
void RechnenVerbinden(core::MainForm& main, core::Anwendung& anwendung);

// Each family of dialogs registers its forms and binds its entries of Main;
// the two functions above call them all in turn.

// Stakeout data
void AbsteckdatenDialogeRegistrieren(forms::Forms& forms, core::Anwendung& anwendung);
void AbsteckdatenDialogeVerbinden(core::MainForm& main, core::Anwendung& anwendung);

// Angles between points and the direct and indirect tie
void AnschlussDialogeRegistrieren(forms::Forms& forms, core::Anwendung& anwendung);
void AnschlussDialogeVerbinden(core::MainForm& main, core::Anwendung& anwendung);

// Vertical rounding
void AusrundungDialogeRegistrieren(forms::Forms& forms, core::Anwendung& anwendung);
void AusrundungDialogeVerbinden(core::MainForm& main, core::Anwendung& anwendung);

// Arc elements and circular segments
void BogenDialogeRegistrieren(forms::Forms& forms, core::Anwendung& anwendung);
void BogenDialogeVerbinden(core::MainForm& main, core::Anwendung& anwendung);

// Egg and inflection lines
void EilinienDialogeRegistrieren(forms::Forms& forms, core::Anwendung& anwendung);
void EilinienDialogeVerbinden(core::MainForm& main, core::Anwendung& anwendung);

// Einrechnen and Kleinpunkte
void EinrechnenDialogeRegistrieren(forms::Forms& forms, core::Anwendung& anwendung);
void EinrechnenDialogeVerbinden(core::MainForm& main, core::Anwendung& anwendung);

// Line intersections and the line selector
void GeradenDialogeRegistrieren(forms::Forms& forms, core::Anwendung& anwendung);
void GeradenDialogeVerbinden(core::MainForm& main, core::Anwendung& anwendung);

// The clothoid
void KlotoidenDialogeRegistrieren(forms::Forms& forms, core::Anwendung& anwendung);
void KlotoidenDialogeVerbinden(core::MainForm& main, core::Anwendung& anwendung);

// Setting out points on a circular arc
void KreisAbsteckDialogeRegistrieren(forms::Forms& forms, core::Anwendung& anwendung);
void KreisAbsteckDialogeVerbinden(core::MainForm& main, core::Anwendung& anwendung);

// Circle intersections, tangents and the circumcircle
void KreisDialogeRegistrieren(forms::Forms& forms, core::Anwendung& anwendung);
void KreisDialogeVerbinden(core::MainForm& main, core::Anwendung& anwendung);

// The traverse
void PolygonzugDialogeRegistrieren(forms::Forms& forms, core::Anwendung& anwendung);
void PolygonzugDialogeVerbinden(core::MainForm& main, core::Anwendung& anwendung);

// Forward intersection and resection
void SchnittDialogeRegistrieren(forms::Forms& forms, core::Anwendung& anwendung);
void SchnittDialogeVerbinden(core::MainForm& main, core::Anwendung& anwendung);

// The RPN calculator
void TaschenrechnerDialogeRegistrieren(forms::Forms& forms, core::Anwendung& anwendung);
void TaschenrechnerDialogeVerbinden(core::MainForm& main, core::Anwendung& anwendung);

}  // namespace kolm::calc
