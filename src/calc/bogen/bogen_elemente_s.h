#pragma once
// BogenElementeS: the elements of an arc from its chord or its length, and
// its radius or tangent. An arc length goes only with a radius.
#include "calc/bogen/bogen_elemente.h"

namespace kolm::calc {

class BogenElementeSForm : public BogenElementeDialog {
 public:
  BogenElementeSForm(forms::Forms& forms, core::Anwendung& anwendung);

 protected:
  void Load() override;
  bool Rechnen() override;
};

}  // namespace kolm::calc
