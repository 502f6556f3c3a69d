#pragma once
// FormEiWendelinie: the clothoid parameter joining two circles, as an egg
// line (one clothoid between circles of the same sense, F = 1) or as an
// inflection line (two clothoids with a common origin between circles of
// opposite sense, any other F). The menu entry that opens the dialog sets F.
#include <string>

#include "calc/frame/rechen_dialog.h"

namespace kolm::calc {

class EiWendelinieForm : public RechenDialog {
 public:
  EiWendelinieForm(forms::Forms& forms, core::Anwendung& anwendung);

  // The caption of the label F: "1" for the egg line, "-1" from the menu
  // for the inflection line. Caption, picture and help topic follow it.
  void FSetzen(const std::string& text);
  bool IstEilinie() const;
  // The help topic of Skizze, and its number in the old help file.
  int HilfeNummer() const { return IstEilinie() ? 4020 : 4030; }

 protected:
  bool Rechnen() override;

 private:
  void FGeaendert();
};

// The pictures of the two cases, drawn from a real clothoid with its
// osculating circles, the gap D between them marked.
void EilinieZeichnen(forms::DisplayList& bild);
void WendelinieZeichnen(forms::DisplayList& bild);

}  // namespace kolm::calc
