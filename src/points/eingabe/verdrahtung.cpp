#include "points/punkte_verdrahtung.h"

#include "core/app/anwendung.h"
#include "core/main/main_form.h"
#include "points/eingabe/bearbeiten.h"
#include "points/eingabe/punkteingabe.h"

namespace kolm::points {

// Punkteingabe has no menu entry: calculation dialogs and the point grid
// open it through PunktEingeben.
void PunktEingabeRegistrieren(forms::Forms& forms, core::Anwendung& anwendung) {
  forms.registerForm("Punkteingabe", [&anwendung](forms::Forms& f) {
    return std::make_unique<PunkteingabeForm>(f, anwendung);
  });
}

void PunktEingabeVerbinden(core::MainForm& main, core::Anwendung& anwendung) {
  BearbeitenVerbinden(main, anwendung);
}

}  // namespace kolm::points
