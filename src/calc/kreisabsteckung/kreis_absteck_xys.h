#pragma once
// KreisAbsteckXYS: a point on an arc given by radius and chord, as
// rectangular values x, y from the arc's start with the chord as the first
// axis, by the arc length to it.
#include "calc/frame/rechen_dialog.h"

namespace kolm::calc {

class KreisAbsteckXYSForm : public RechenDialog {
 public:
  KreisAbsteckXYSForm(forms::Forms& forms, core::Anwendung& anwendung);

 protected:
  bool Rechnen() override;
};

}  // namespace kolm::calc
