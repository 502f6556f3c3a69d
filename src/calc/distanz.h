#pragma once
// Distanz: distance, direction, gradient and coordinate differences of two
// points. It only reports; nothing is stored.
#include "calc/frame/rechen_dialog.h"

namespace kolm::calc {

class DistanzForm : public RechenDialog {
 public:
  DistanzForm(forms::Forms& forms, core::Anwendung& anwendung);

 protected:
  void Load() override;
  bool Rechnen() override;
};

}  // namespace kolm::calc
