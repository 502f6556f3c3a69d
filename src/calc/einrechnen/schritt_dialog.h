#pragma once
// What Einrechnen and Kleinpunkte share: the line "Gerade g" through A and
// E, offered in eight ways with A, and the step of a given length along a
// direction that the line gives.
#include <string>

#include "calc/frame/gerade_auswahl.h"
#include "calc/frame/rechen_dialog.h"

namespace kolm::calc {

// The second point of the line: GeradeAuswerten, except that entry 4 keeps
// the direction of the typed angle instead of only its half circle, since
// these dialogs walk along the line.
void GeradeRichten(const core::Zustand& z, int eintrag, const core::Punkt& a, core::Punkt& e, double t1, double t2);

class SchrittDialog : public RechenDialog {
 public:
  SchrittDialog(forms::Forms& forms, core::Anwendung& anwendung, std::string name, std::string caption);

  core::Punkt& A() { return Eingabe(a_); }
  core::Punkt& E() { return Eingabe(e_); }

 protected:
  void Load() override;
  // Declares the line group; its frame at the given row of the form.
  void GeradeAnlegen(int zeile);
  // E from A and the entry; false, with the message, when E equals A.
  bool GeradeHolen();
  // The vector (da, db) brought to the length Param(0) under the table's
  // own polar conversion, so that a negative length turns it round, added
  // to p into the result record.
  void Schritt(const core::Punkt& p, double da, double db);

 private:
  GeradeAuswahl gerade_;
  int a_ = 0, e_ = 0;
};

}  // namespace kolm::calc
