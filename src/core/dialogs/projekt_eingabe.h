#pragma once
// What ProjektNeu and ProjektKopieren share: the name field that takes
// only what a folder name can safely hold, the folder field that follows
// the name, the check of the known projects, and making the folder.
#include <memory>
#include <string>
#include <string_view>

#include "core/state/zustand.h"
#include "forms/form.h"

namespace kolm::core {

// Whether "projects" of Kolm.ini has the name, compared without regard to
// case as the settings compare key names.
bool ProjektNameBekannt(const std::string& kolmIni, std::string_view name);

// The folder new projects and copies go to unless the user picks another:
// the parent of the open project's folder, so that projects stand side by
// side. The demo project lives in the program data, which is no place for
// the user's work: then, and without an open project, the home folder.
std::string StandardBasisOrdner(const Zustand& z, const std::string& demoVerzeichnis);

// A folder as typed made absolute (relative to the working folder, which is
// the open project's), with one separator at its end; empty for a blank text.
std::string OrdnerAusEingabe(std::string_view text);

// Whether the folder exists, and else makes it with its parents. False when
// that failed or a file of that name stands in the way.
bool OrdnerAnlegen(const std::string& ordner, bool& warSchonDa);

// Wires TextProjektName, TextDir, cmdDurchsuchen and OK of a form: the name
// field takes digits, letters, "_" and "-" only; TextDir is the base folder
// plus the name; a folder typed or chosen becomes the new base; OK is
// enabled while name and folder are not blank.
class NameUndOrdner {
 public:
  NameUndOrdner(forms::Form& form, std::string basis);
  // TextDir as a folder to work with (see OrdnerAusEingabe).
  std::string ordner() const;
  std::string name() const;
  void setBasis(std::string basis);

 private:
  void nameGeaendert();
  void ordnerGetippt();
  void durchsuchen();
  void okPruefen();

  forms::Form& form_;
  std::string basis_;
  bool setzt_ = false;  // TextDir is being set from the name
};

}  // namespace kolm::core
