#pragma once
#include <vector>

#include "forms/forms.h"

namespace kolm::core {

class Anwendung;

// File > Open (Tabellenauswahl): the named rows of the catalogue with the
// stems, the coordinate settings and the preview picture of the one
// selected, sorting the catalogue, and opening the selected table.
class TabellenAuswahlForm : public forms::Form {
 public:
  TabellenAuswahlForm(forms::Forms& forms, Anwendung& anwendung);

  // The menu asked the save question already; OK does not ask again.
  void frageGestellt() { gefragt_ = true; }
  // Catalogue row of list entry i, -1 for none.
  int zeileVon(int eintrag) const;

 protected:
  void Load() override;
  void Activate() override;

 private:
  // Fills List from the catalogue, selecting the row given (or none).
  void listeFuellen(int zeile);
  void anzeigen();
  void vorschauZeigen(const std::string& datei);
  int buchstaben() const;
  void schritt(int um);
  void oeffnen();
  void sortieren();

  Anwendung& anwendung_;
  std::vector<int> zeilen_;  // catalogue row of each list entry
  bool gefragt_ = false;
};

}  // namespace kolm::core
