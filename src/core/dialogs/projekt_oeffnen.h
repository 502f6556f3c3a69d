#pragma once
#include "forms/forms.h"

namespace kolm::core {

class Anwendung;

// Datei > Projekt öffnen: the known projects of Kolm.ini in `List`, or any
// folder. `Directory` is the folder field (a list entry fills it with its
// folder; it may be typed), `Drive` the button that picks a project's
// Kolmproj.ini through the file dialog and takes its folder. `lblInfo`
// tells whether the folder holds a project; OK opens it.
class ProjektOeffnenForm : public forms::Form {
 public:
  ProjektOeffnenForm(forms::Forms& forms, Anwendung& anwendung);

 protected:
  void Load() override;

 private:
  void eintragGewaehlt();
  void ordnerGeaendert();
  void entfernen();
  void durchsuchen();
  void ok();
  Anwendung& anwendung_;
};

}  // namespace kolm::core
