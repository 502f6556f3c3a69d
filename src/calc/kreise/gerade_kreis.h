#pragma once
// GeradeKreis: the points where a line, given in one of nine ways, cuts a
// circle.
#include <string>

#include "calc/frame/gerade_auswahl.h"
#include "calc/frame/rechen_dialog.h"

namespace kolm::calc {

class GeradeKreisForm : public RechenDialog {
 public:
  GeradeKreisForm(forms::Forms& forms, core::Anwendung& anwendung);

 protected:
  void Load() override;
  bool Rechnen() override;

 private:
  GeradeAuswahl gerade1_{*this, 1};
};

}  // namespace kolm::calc
