#pragma once
#include <vector>

#include "forms/forms.h"

namespace kolm::core {
class Anwendung;
}

namespace kolm::points {

// "Punkt Bezeichnung": picks one designation, modally. The opener writes the
// proposed index into the hidden field Vorschlag after loading the form and
// reads the hidden field Ergebnis once it closes: the chosen index as text,
// "-1" when cancelled.
class PktKurzBezEingabeForm : public forms::Form {
 public:
  PktKurzBezEingabeForm(forms::Forms& forms, core::Anwendung& anwendung);

 protected:
  void Load() override;
  void Activate() override;

 private:
  void vorschlagen();
  void ok();

  core::Anwendung& anwendung_;
  std::vector<int> eintraege_;  // designation of each line of List
};

}  // namespace kolm::points
