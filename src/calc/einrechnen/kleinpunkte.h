#pragma once
// Kleinpunkte: from P a given distance along the line, against it, to its
// left or right; the result becomes the next P, for the outline of a
// building measured by its sides.
#include "calc/einrechnen/schritt_dialog.h"

namespace kolm::calc {

class KleinpunkteForm : public SchrittDialog {
 public:
  KleinpunkteForm(forms::Forms& forms, core::Anwendung& anwendung);

  core::Punkt& P() { return Eingabe(p_); }

 protected:
  void Load() override;
  bool Rechnen() override;

 private:
  void BerechnenKlick();
  void AGeholt();
  int Richtung() const;
  int p_ = 0;
  bool erfolg_ = false;
  double pA_ = 0, pB_ = 0;  // P as the calculation saw it, rectangular
};

}  // namespace kolm::calc
