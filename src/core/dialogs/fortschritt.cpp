#include "core/dialogs/fortschritt.h"

#include <algorithm>

namespace kolm::core {

using forms::ControlKind;

FortschrittForm::FortschrittForm(forms::Forms& forms) : Form(forms, "frmProgress", "Bitte warten") {
  setResizable(false);
  setPreferredSize(740, 96);
  add(ControlKind::Label, "lblText").width(100).at(0, 0);
  add(ControlKind::PictureBox, "picBalken").width(100).at(1, 0);
  balkenZeichnen(0);
}

void FortschrittForm::Zeigen(const std::string& text, double anteil) {
  control("lblText").setCaption(text);
  balkenZeichnen(anteil);
}

void FortschrittForm::balkenZeichnen(double anteil) {
  forms::DisplayList& bild = control("picBalken").picture();
  const double a = std::clamp(anteil, 0.0, 1.0);
  bild.clear(0xE0E0E0u);
  bild.setScale(0, 0, 1, 1);
  if (a > 0) bild.polygon({{0, 0}, {a, 0}, {a, 1}, {0, 1}}, 0x3070C0u, 0);
}

}  // namespace kolm::core
