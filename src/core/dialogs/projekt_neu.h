#pragma once
#include <memory>
#include <string>
#include <vector>

#include "core/dialogs/projekt_eingabe.h"
#include "forms/forms.h"

namespace kolm::core {

class Anwendung;

// The point counts the list cmb offers for a new project.
const std::vector<int>& ProjektNeuPunktAnzahlen();

// Makes `ordner` (which exists, ending in a separator) the open project
// `name`: the project left keeps its catalogue and active table; the new one
// is entered in "projects" and "last project", gets its Kolmproj.ini with
// the name and the settings in use, an empty catalogue and the LV database;
// every table is cleared and the point table sized to `anzahlPunkte`.
void NeuesProjektAnlegen(Anwendung& anwendung, const std::string& name, const std::string& ordner,
                         int anzahlPunkte);

// Datei > Neues Projekt: name, folder and number of points of a new project.
class ProjektNeuForm : public forms::Form {
 public:
  ProjektNeuForm(forms::Forms& forms, Anwendung& anwendung);

 protected:
  void Load() override;

 private:
  void ok();
  Anwendung& anwendung_;
  std::unique_ptr<NameUndOrdner> felder_;
};

}  // namespace kolm::core
