#include "points/punkte_verdrahtung.h"

#include <memory>

#include "core/app/anwendung.h"
#include "core/main/main_form.h"
#include "points/kontrolle/pkt_kurzbez_eingabe.h"
#include "points/kontrolle/punkt_bezeichnungen.h"
#include "points/kontrolle/punkte_kontrolle.h"
#include "points/kontrolle/variablen_tabelle.h"

namespace kolm::points {

void PunkteKontrolleRegistrieren(forms::Forms& forms, core::Anwendung& anwendung) {
  forms.registerForm("PunkteKontrolle", [&anwendung](forms::Forms& f) {
    return std::make_unique<PunkteKontrolleForm>(f, anwendung);
  });
  forms.registerForm("PunktBezeichnungen", [&anwendung](forms::Forms& f) {
    return std::make_unique<PunktBezeichnungenForm>(f, anwendung);
  });
  forms.registerForm("PktKurzBezEingabe", [&anwendung](forms::Forms& f) {
    return std::make_unique<PktKurzBezEingabeForm>(f, anwendung);
  });
  forms.registerForm("VariablenTabelle", [&anwendung](forms::Forms& f) {
    return std::make_unique<VariablenTabelleForm>(f, anwendung);
  });
}

// The buttons of the bar that stand for these entries follow them.
void PunkteKontrolleVerbinden(core::MainForm& main, core::Anwendung& anwendung) {
  forms::Forms& forms = anwendung.forms();
  const auto kontrolle = [&forms] { forms.show("PunkteKontrolle"); };
  main.setCommand("MnuWerkzeugePunkteKontrolle", kontrolle);
  main.setCommand("mnuAnsichtPunkteKontrolle", kontrolle);
  main.setCommand("MnuTabelleBezeichnung", [&forms] { forms.show("PunktBezeichnungen"); });
  main.setCommand("MnuTabelleVariablen", [&forms] { forms.show("VariablenTabelle"); });
}

}  // namespace kolm::points
