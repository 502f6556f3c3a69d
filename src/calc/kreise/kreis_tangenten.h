#pragma once
// KreisTangenten: the points where the tangents from a point touch a circle,
// and the tangent length.
#include "calc/frame/rechen_dialog.h"

namespace kolm::calc {

class KreisTangentenForm : public RechenDialog {
 public:
  KreisTangentenForm(forms::Forms& forms, core::Anwendung& anwendung);

 protected:
  bool Rechnen() override;
};

}  // namespace kolm::calc
