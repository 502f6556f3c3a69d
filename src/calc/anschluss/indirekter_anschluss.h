#pragma once
// IndirekterAnschluß: the station S from P1, P2, a base a measured beside
// P1 with the angles alpha and beta at its ends, and the angle lambda at S
// between P1 and P2.
#include "calc/frame/rechen_dialog.h"

namespace kolm::calc {

class IndirekterAnschlussForm : public RechenDialog {
 public:
  IndirekterAnschlussForm(forms::Forms& forms, core::Anwendung& anwendung);

 protected:
  bool Rechnen() override;
};

}  // namespace kolm::calc
