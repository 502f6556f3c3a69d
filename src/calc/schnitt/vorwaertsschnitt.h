#pragma once
// Vorwärtsschnitt: a new point from two known points and the angles measured
// at them, each from the base line and in opposite senses.
#include "calc/frame/rechen_dialog.h"

namespace kolm::calc {

class VorwaertsschnittForm : public RechenDialog {
 public:
  VorwaertsschnittForm(forms::Forms& forms, core::Anwendung& anwendung);

 protected:
  bool Rechnen() override;
};

}  // namespace kolm::calc
