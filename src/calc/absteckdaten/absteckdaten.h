#pragma once
// Absteckdaten: distance and direction from a station A to a point P, or to
// a run of table points at once, whose results replace a run of table
// points.
#include "calc/frame/rechen_dialog.h"

namespace kolm::calc {

class AbsteckdatenForm : public RechenDialog {
 public:
  AbsteckdatenForm(forms::Forms& forms, core::Anwendung& anwendung);

 protected:
  void Load() override;
  bool Rechnen() override;
  void Beschriften() override;

 private:
  void MehrereUmschalten();
  void AnzahlDrehen(int schritt);
  // Berechnen in the run mode, with its own treatment of polar records.
  void MehrereBerechnen();
  // The checks and the run over the table, A rectangular; false when refused.
  bool MehrereRechnen();
  // A stop-sign box, the focus on the field to correct.
  void Abbruch(const std::string& text, const char* feld);
};

}  // namespace kolm::calc
