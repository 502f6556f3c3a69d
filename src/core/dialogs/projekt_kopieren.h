#pragma once
#include <memory>
#include <string>

#include "core/dialogs/projekt_eingabe.h"
#include "forms/forms.h"

namespace kolm::core {

class Anwendung;

// What a copy of the open project was told to do.
struct ProjektKopieAuftrag {
  std::string name;    // the copy's name
  std::string ordner;  // its folder, existing, ending in a separator
  bool eintragen = false;       // chkEintragen: into "projects"
  bool danachOeffnen = false;   // chkOpenAfterwards
};

// Copies the open project's files to the folder (each copy atomic: a target
// is replaced whole or not at all), with frmProgress showing each step and
// the busy cursor; names the copy; enters and opens it as asked. Berechnen
// and LVEditieren are closed first, since the database is copied.
void ProjektKopieren(Anwendung& anwendung, const ProjektKopieAuftrag& auftrag);

// Datei > Projekt kopieren nach: the copy's name and folder, and whether it
// is entered in the list of projects and opened afterwards.
class ProjektKopierenForm : public forms::Form {
 public:
  ProjektKopierenForm(forms::Forms& forms, Anwendung& anwendung);

 protected:
  void Load() override;

 private:
  void ok();
  Anwendung& anwendung_;
  std::unique_ptr<NameUndOrdner> felder_;
};

}  // namespace kolm::core
