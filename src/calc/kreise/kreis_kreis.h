#pragma once
// KreisKreis: the two points where two circles, each a centre and a radius,
// cut each other.
#include "calc/frame/rechen_dialog.h"

namespace kolm::calc {

class KreisKreisForm : public RechenDialog {
 public:
  KreisKreisForm(forms::Forms& forms, core::Anwendung& anwendung);

 protected:
  bool Rechnen() override;
};

}  // namespace kolm::calc
