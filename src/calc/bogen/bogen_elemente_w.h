#pragma once
// BogenElementeW: the elements of an arc from its central angle and its
// radius or tangent.
#include "calc/bogen/bogen_elemente.h"

namespace kolm::calc {

class BogenElementeWForm : public BogenElementeDialog {
 public:
  BogenElementeWForm(forms::Forms& forms, core::Anwendung& anwendung);

 protected:
  bool Rechnen() override;
};

}  // namespace kolm::calc
