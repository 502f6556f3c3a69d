#pragma once
// The Bearbeiten menu: cut, copy, paste and select-all on the control the
// user works in, that is the active control of the active form.
//
// - A text field or a combo box with an editable text: its selected text.
// - A grid: the selected rectangle without the fixed rows and columns, as
//   text with cells separated by TAB and rows by CR; copying turns "." into
//   the system's decimal character. After cut or paste the grid's form
//   rereads its cells: its hidden command "ReRead" is triggered.
// - A form with hidden commands "Ausschneiden", "Kopieren", "Einfügen"
//   (the RPN calculator) does its own: those commands run instead, whatever
//   control is active.
#include "forms/forms.h"

namespace kolm::core {
class Anwendung;
class MainForm;
}  // namespace kolm::core

namespace kolm::points {

void Ausschneiden(forms::Forms& forms);
void Kopieren(forms::Forms& forms);
void Einfuegen(forms::Forms& forms);
void AllesMarkieren(forms::Forms& forms);

// On opening MnuBearbeiten: cut, copy and paste are enabled only for a text
// field, a grid or a form with its own command; select-all only for a text
// field or a grid.
void BearbeitenFreigeben(core::MainForm& main, const forms::Forms& forms);

// Binds the four entries, the opening of the menu and the buttons of the
// function bar that stand for cut, copy and paste.
void BearbeitenVerbinden(core::MainForm& main, core::Anwendung& anwendung);

}  // namespace kolm::points
