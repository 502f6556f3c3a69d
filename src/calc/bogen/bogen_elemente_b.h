#pragma once
// BogenElementeB: the elements of the arc from its start BA to its end BE
// with a signed radius or tangent, and its centre and tangent vertex. A
// positive value turns right from BA to BE: the centre lies right of the
// chord, the vertex left of it.
#include "calc/bogen/bogen_elemente.h"

namespace kolm::calc {

class BogenElementeBForm : public BogenElementeDialog {
 public:
  BogenElementeBForm(forms::Forms& forms, core::Anwendung& anwendung);

 protected:
  bool Rechnen() override;
  void Beschriften() override;
  void RadiusGewaehlt(bool mitRadius) override;
};

}  // namespace kolm::calc
