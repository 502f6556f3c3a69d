#pragma once
// WinkelZwischen3: the unsigned angle at P2 between the rays to P1 and P3.
// It only reports; nothing is stored.
#include "calc/frame/rechen_dialog.h"

namespace kolm::calc {

class WinkelZwischen3Form : public RechenDialog {
 public:
  WinkelZwischen3Form(forms::Forms& forms, core::Anwendung& anwendung);

 protected:
  bool Rechnen() override;
};

}  // namespace kolm::calc
