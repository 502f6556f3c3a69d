#pragma once
// KreisAbsteckB: the point reached along a circle from the arc's start,
// given the centre and the arc length.
#include "calc/frame/rechen_dialog.h"

namespace kolm::calc {

class KreisAbsteckBForm : public RechenDialog {
 public:
  KreisAbsteckBForm(forms::Forms& forms, core::Anwendung& anwendung);

 protected:
  bool Rechnen() override;
};

}  // namespace kolm::calc
