#pragma once
// FormGeradenschnitt: where two lines, each given in one of nine ways, meet.
#include "calc/geraden/geraden_dialog.h"

namespace kolm::calc {

class GeradenschnittForm : public GeradenDialog {
 public:
  GeradenschnittForm(forms::Forms& forms, core::Anwendung& anwendung);

 protected:
  bool Rechnen() override;
};

}  // namespace kolm::calc
