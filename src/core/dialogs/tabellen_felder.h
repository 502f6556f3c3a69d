#pragma once
#include "core/catalog/tabellen_eingabe.h"
#include "forms/forms.h"

namespace kolm::core {

class Anwendung;

// The fields NeueTabelle, TabelleDuplizieren and TabelleEigenschaften share:
// name, stationing, the two file stems, coordinate system, polar and 3D,
// and the labels a new table begins with. The rules behind them live in
// tabellen_eingabe.h; this only shows and collects.
class TabellenFelderForm : public forms::Form {
 public:
  struct Art {
    bool stammFolgtName = true;    // the stems follow the name as it is typed
    bool mitBeschriftung = true;   // the frame optBeschriftung is shown
    bool mitLoeschen = false;      // the button Löschen
  };

  TabellenFelderForm(forms::Forms& forms, Anwendung& anwendung, std::string name, std::string caption, Art art);

  // What the fields hold now.
  TabellenEingabe eingabe() const;
  // Chosen entry of optBeschriftung, 0 .. 2.
  int beschriftung() const;

 protected:
  // Name proposal, empty stationing, the flags of the active table.
  void felderFuerNeueTabelle();
  void felderAusZeile(const Tabelle& zeile);
  // Runs the checks with their messages; the row to fill and the stationing
  // to store, or weiter false when the dialog stays.
  TabellenEntscheidung pruefen(TabellenDialog dialog, int eigeneZeile = -1);
  void schliessen();

  Anwendung& anwendung_;

 private:
  void stammFiltern(forms::Control& feld);
  Art art_;
};

}  // namespace kolm::core
