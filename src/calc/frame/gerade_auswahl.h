#pragma once
// The one way of choosing a line in nine ways, for every dialog that takes a
// line: the selector `ComboGeradeN`, its two number fields `TextGN_1`,
// `TextGN_2` with their captions, and what an entry makes of the line's two
// point records. The point slots `GNP1`, `GNP2` are the dialog's own.
#include <functional>
#include <string>

#include "core/records/records.h"
#include "core/state/zustand.h"
#include "forms/forms.h"

namespace kolm::calc {

// The nine ways of giving a line: what they make of its two point records
// from the entry and the two fields' values.
void GeradeAuswerten(const core::Zustand& z, int eintrag, core::Punkt& p1, core::Punkt& p2, double t1, double t2);

class GeradeAuswahl {
 public:
  using Taste = std::function<void(forms::Control&, forms::EventArgs&)>;

  // gerade: 1 or 2, the N of the control names; erster: the number the
  // first point has in the captions (P1 for line one, P3 for line two).
  GeradeAuswahl(forms::Form& form, int gerade, int erster = 1);

  // Declares the selector and the two fields in frame rahmen, which the
  // dialog places; taste handles the letter keys of the fields.
  void Anlegen(const std::string& rahmen, Taste taste);
  // At load: entry 0.
  void Laden();
  // Shows and hides the group's controls as the entry asks, sets the captions.
  void Zeigen();
  int Eintrag() const;
  // GeradeAuswerten with the selector's entry and the fields' values.
  void Auswerten(const core::Zustand& z, core::Punkt& p1, core::Punkt& p2) const;

 private:
  std::string Name(const std::string& stamm) const;
  forms::Form& form_;
  int gerade_;
  int erster_;
};

}  // namespace kolm::calc
