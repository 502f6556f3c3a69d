#pragma once
#include "core/dialogs/tabellen_felder.h"

namespace kolm::core {

// File > Properties (TabelleEigenschaften): the fields of the active row,
// changed in place, and Löschen, which deletes the table with its files.
class TabelleEigenschaftenForm : public TabellenFelderForm {
 public:
  TabelleEigenschaftenForm(forms::Forms& forms, Anwendung& anwendung);

 protected:
  void Load() override;

 private:
  void aendern();
  void loeschen();
  int zeile_ = -1;  // the row shown, fixed when the dialog opened
};

}  // namespace kolm::core
