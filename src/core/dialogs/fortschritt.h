#pragma once
#include <string>

#include "forms/forms.h"

namespace kolm::core {

// frmProgress: what a long piece of work is doing, and how far it got.
// It has no buttons: work shown here runs to its end.
class FortschrittForm : public forms::Form {
 public:
  explicit FortschrittForm(forms::Forms& forms);
  // The text of the step and the share done, 0 .. 1.
  void Zeigen(const std::string& text, double anteil);

 protected:
  bool storesPlacement() const override { return false; }

 private:
  void balkenZeichnen(double anteil);
};

}  // namespace kolm::core
