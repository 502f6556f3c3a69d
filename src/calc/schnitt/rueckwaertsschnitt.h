#pragma once
// Rückwärtsschnitt: the station from three known points and the two angles
// measured at it between them.
#include "calc/frame/rechen_dialog.h"

namespace kolm::calc {

class RueckwaertsschnittForm : public RechenDialog {
 public:
  RueckwaertsschnittForm(forms::Forms& forms, core::Anwendung& anwendung);

 protected:
  bool Rechnen() override;
};

}  // namespace kolm::calc
