#pragma once
// Form3PktGeradenschnitt: the foot of the perpendicular from a point P to a
// line given in one of nine ways.
#include "calc/geraden/geraden_dialog.h"

namespace kolm::calc {

class RechtwinkeligerSchnittForm : public GeradenDialog {
 public:
  RechtwinkeligerSchnittForm(forms::Forms& forms, core::Anwendung& anwendung);

 protected:
  bool Rechnen() override;

 private:
  int p_ = 0;
};

}  // namespace kolm::calc
