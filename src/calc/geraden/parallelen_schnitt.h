#pragma once
// FormParallelenSchnitt: where the parallel to line g1 through a point P
// meets line g2, both lines given in one of nine ways.
#include "calc/geraden/geraden_dialog.h"

namespace kolm::calc {

class ParallelenSchnittForm : public GeradenDialog {
 public:
  ParallelenSchnittForm(forms::Forms& forms, core::Anwendung& anwendung);

 protected:
  bool Rechnen() override;

 private:
  int p_ = 0;
  core::Punkt roh_;  // P as the table holds it, for a polar table
};

}  // namespace kolm::calc
