#pragma once
// DirekterAnschluß: the station S from P1, P2, the directions alpha to P1
// and beta to P2 read at S, and the distance e from S to P1.
#include "calc/frame/rechen_dialog.h"

namespace kolm::calc {

class DirekterAnschlussForm : public RechenDialog {
 public:
  DirekterAnschlussForm(forms::Forms& forms, core::Anwendung& anwendung);

 protected:
  bool Rechnen() override;
};

}  // namespace kolm::calc
