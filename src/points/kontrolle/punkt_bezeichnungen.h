#pragma once
#include <vector>

#include "forms/forms.h"

namespace kolm::core {
class Anwendung;
}

namespace kolm::points {

// The captions of optDarst, one per symbol the graphic draws, in the order
// of the values stored as Darstellung.
const std::vector<std::string>& DarstellungsOptionen();
// The captions of optBes, in the order of the values stored as Beschriftung.
const std::vector<std::string>& BeschriftungsOptionen();

// "Punkt Bezeichnungen": the list of point designations with the symbol and
// the caption each draws, the colour of their points, the standard entry and
// the distance of point captions.
class PunktBezeichnungenForm : public forms::Form {
 public:
  PunktBezeichnungenForm(forms::Forms& forms, core::Anwendung& anwendung);

 protected:
  void Load() override;

 private:
  // The designation shown: the number in LabelIndex, -1 when none.
  int index() const;
  void listenFuellen(int auswahl);
  void anzeigen(int eintrag);
  void neu();
  void loeschen();
  void standard();
  void darstellung(int wert);
  void beschriftung(int wert);
  void farbe(int eintrag);
  void stdDistanz();
  void alle();
  void distanzGeaendert();
  void distanzSchritt(double schritt);
  void distanzZeigen();
  void schreiben(const char* abschnitt, const std::string& schluessel, const std::string& wert);
  void meldung(const std::string& text, const char* titel);

  core::Anwendung& anwendung_;
  std::vector<int> eintraege_;  // designation of each line of List and Combo
  std::vector<int> farben_;     // colour entry of each line of ListPktFarbe
  bool fuellen_ = false;        // controls are being filled: their events change nothing
};

}  // namespace kolm::points
