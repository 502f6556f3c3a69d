#pragma once
// GeradeKreis: the points where a line, given in one of nine ways, cuts a
// circle.
#include <string>

#include "calc/frame/rechen_dialog.h"

namespace kolm::calc {

// The nine ways of giving a line: what they make of its two point records
// from the entry and the two fields' values.
void GeradeAuswerten(const core::Zustand& z, int eintrag, core::Punkt& p1, core::Punkt& p2, double t1, double t2);

class GeradeKreisForm : public RechenDialog {
 public:
  GeradeKreisForm(forms::Forms& forms, core::Anwendung& anwendung);

 protected:
  void Load() override;
  bool Rechnen() override;

 private:
  void GeradeGewaehlt();
};

}  // namespace kolm::calc
