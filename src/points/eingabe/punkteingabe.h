#pragma once
// Punkteingabe: the small modal dialog in which the user types one point or
// picks it by number, for a calculation dialog or the point grid.
#include <string>

#include "core/records/records.h"
#include "forms/forms.h"

namespace kolm::core {
class Anwendung;
}

namespace kolm::points {

class PunkteingabeForm : public forms::Form {
 public:
  PunkteingabeForm(forms::Forms& forms, core::Anwendung& anwendung);

  // Fills the dialog with a point before it is shown: its designation when
  // its index is below 100, its coordinates in StandardFormat, and its
  // number in NummernFormat when mitNummer (the opener had a number).
  void Vorbelegen(const core::Punkt& punkt, bool mitNummer);

  // The answer OK left (see eingabe_text.h), empty after Cancel.
  const std::string& Ergebnis() const;

 protected:
  void Load() override;

 private:
  void BeschriftungenSetzen();
  void NummerGeaendert();
  void FeldGeaendert(forms::Control& feld);
  void Taste(forms::Control& feld, forms::EventArgs& args);
  void Ok();
  void Felder(const core::Punkt& punkt);

  core::Anwendung& anwendung_;
  bool fuellt_ = false;  // the dialog itself is setting the fields
};

// What the dialog handed back when it closed.
struct PunktEingabeAntwort {
  std::string text;     // the answer; empty when cancelled
  std::string punktNr;  // the text of PunktNr at OK
};

// Opens Punkteingabe modally, filled with vorschlag (see Vorbelegen), and
// returns once the user closed it. The opener reads the answer with
// PunktAusEingabe and stores the point with PunktSpeichern.
PunktEingabeAntwort PunktEingeben(core::Anwendung& anwendung, const core::Punkt& vorschlag, bool mitNummer);

}  // namespace kolm::points
