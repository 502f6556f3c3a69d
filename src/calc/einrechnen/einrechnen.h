#pragma once
// Einrechnen: the point at a given distance along a line from A; in mode
// Fortlaufend each result becomes the next start.
#include "calc/einrechnen/schritt_dialog.h"

namespace kolm::calc {

class EinrechnenForm : public SchrittDialog {
 public:
  EinrechnenForm(forms::Forms& forms, core::Anwendung& anwendung);

 protected:
  void Load() override;
  bool Rechnen() override;

 private:
  void BerechnenKlick();
  bool erfolg_ = false;
  double aA_ = 0, aB_ = 0;  // A as the calculation saw it, rectangular
};

}  // namespace kolm::calc
