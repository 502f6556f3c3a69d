#pragma once
// Ausrundung: the corner P2 of the polyline P1, P2, P3 rounded by a circular
// arc given by one of its elements; the elements and the two tangent points.
#include "calc/frame/rechen_dialog.h"

namespace kolm::calc {

class AusrundungForm : public RechenDialog {
 public:
  AusrundungForm(forms::Forms& forms, core::Anwendung& anwendung);

 protected:
  void Load() override;
  bool Rechnen() override;

 private:
  // The tangent point at distance t from P2 toward p; false (with the box)
  // when p is P2 itself.
  bool Tangentenpunkt(const core::Punkt& p, double t, const char* warnung, core::Punkt& ergebnis);
  void Melden(const std::string& text, forms::Icon icon);
};

}  // namespace kolm::calc
