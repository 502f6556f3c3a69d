#pragma once
// Polygonzug: a run of measured legs (distance e and direction Phi, stored
// as the points Start .. Ende of the active table) turned into coordinates
// in place, from PA onward; with Ausgleichen tied to PE, the misclosure
// shared out by the legs' lengths.
#include "calc/frame/rechen_dialog.h"

namespace kolm::calc {

class PolygonzugForm : public RechenDialog {
 public:
  PolygonzugForm(forms::Forms& forms, core::Anwendung& anwendung);

 protected:
  void Load() override;
  // The frame's protocol does not fit a dialog that writes the table
  // itself: the button runs PolygonzugBerechnen, so this is never reached.
  bool Rechnen() override { return false; }
  void Beschriften() override;

 private:
  void PolygonzugBerechnen();
  // The range Start .. Ende after its messages; false on one of them.
  bool BereichLesen(int& s, int& t);
  void Fliegend(int s, int t);
  // False when the user stops at the question on the relative error.
  bool Ausgeglichen(int s, int t);
  void TabelleGeaendert();
  forms::Answer Melden(const std::string& text, forms::Buttons knoepfe, forms::Icon symbol);
};

}  // namespace kolm::calc
