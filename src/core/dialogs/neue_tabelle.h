#pragma once
#include "core/dialogs/tabellen_felder.h"

namespace kolm::core {

// File > New (NeueTabelle) and File > Duplicate (TabelleDuplizieren): the
// same fields and checks. A new table starts empty with the labels chosen;
// a duplicate takes the tables in memory along under its new stems.
class NeueTabelleForm : public TabellenFelderForm {
 public:
  enum class Modus { Neu, Duplizieren };
  NeueTabelleForm(forms::Forms& forms, Anwendung& anwendung, Modus modus);

 protected:
  void Load() override;

 private:
  void anlegen();
  Modus modus_;
};

}  // namespace kolm::core
