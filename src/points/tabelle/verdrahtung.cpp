#include "points/punkte_verdrahtung.h"

#include "core/app/anwendung.h"
#include "core/main/main_form.h"
#include "points/tabelle/punkte_tabelle.h"
#include "points/tabelle/umwandlung.h"

namespace kolm::points {

void PunkteTabelleRegistrieren(forms::Forms& forms, core::Anwendung& anwendung) {
  forms.registerForm("PunkteTabelle", [&anwendung](forms::Forms& f) {
    return std::make_unique<PunkteTabelleForm>(f, anwendung);
  });
}

void PunkteTabelleVerbinden(core::MainForm& main, core::Anwendung& anwendung) {
  forms::Forms& forms = anwendung.forms();
  // Showing a loaded form again brings it to the front.
  main.setCommand("MnuTabellePunkte", [&forms] { forms.show("PunkteTabelle"); });
  main.setCommand("MnuWerKoorPzuR", [&anwendung] { UmwandlungBefehl(anwendung, Umwandlung::PolarZuRechtwinklig); });
  main.setCommand("MnuWerKoorRzuP", [&anwendung] { UmwandlungBefehl(anwendung, Umwandlung::RechtwinkligZuPolar); });
}

}  // namespace kolm::points
