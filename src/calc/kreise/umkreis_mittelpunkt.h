#pragma once
// UmkreisMittelpunkt: centre and radius of the circle through three points.
#include "calc/frame/rechen_dialog.h"

namespace kolm::calc {

class UmkreisMittelpunktForm : public RechenDialog {
 public:
  UmkreisMittelpunktForm(forms::Forms& forms, core::Anwendung& anwendung);

 protected:
  bool Rechnen() override;
  void Beschriften() override;
};

}  // namespace kolm::calc
