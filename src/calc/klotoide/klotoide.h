#pragma once
// FormKlotoide: the main elements of a clothoid from two of its length L,
// parameter A and end radius R. Numbers only: no point is read or stored.
#include "calc/frame/rechen_dialog.h"

namespace kolm::calc {

class KlotoideForm : public RechenDialog {
 public:
  KlotoideForm(forms::Forms& forms, core::Anwendung& anwendung);

  // Empties the three fields and the ten results.
  void Loeschen();

 protected:
  void Load() override;
  // False when a step fails: the results written so far stay, no message.
  bool Rechnen() override;

 private:
  // Two fields filled: the third is shut and Berechnen offered; fewer: all
  // open and Berechnen off; three: left as they are.
  void ZweiVonDrei();
};

}  // namespace kolm::calc
