#include "calc/verdrahtung.h"

#include "calc/distanz.h"
#include "core/app/anwendung.h"
#include "core/main/main_form.h"

namespace kolm::calc {

void RechnenRegistrieren(forms::Forms& forms, core::Anwendung& anwendung) {
  forms.registerForm("Distanz", [&anwendung](forms::Forms& f) { return std::make_unique<DistanzForm>(f, anwendung); });
  AnschlussDialogeRegistrieren(forms, anwendung);
  SchnittDialogeRegistrieren(forms, anwendung);
  KreisDialogeRegistrieren(forms, anwendung);
  GeradenDialogeRegistrieren(forms, anwendung);
  EinrechnenDialogeRegistrieren(forms, anwendung);
  PolygonzugDialogeRegistrieren(forms, anwendung);
  BogenDialogeRegistrieren(forms, anwendung);
  KreisAbsteckDialogeRegistrieren(forms, anwendung);
  AusrundungDialogeRegistrieren(forms, anwendung);
  KlotoidenDialogeRegistrieren(forms, anwendung);
  EilinienDialogeRegistrieren(forms, anwendung);
  AbsteckdatenDialogeRegistrieren(forms, anwendung);
  TaschenrechnerDialogeRegistrieren(forms, anwendung);
}

void RechnenVerbinden(core::MainForm& main, core::Anwendung& anwendung) {
  forms::Forms& forms = anwendung.forms();
  // Showing a loaded dialog again brings it to the front with its fields.
  main.setCommand("MnuGerDist", [&forms] { forms.show("Distanz"); });
  AnschlussDialogeVerbinden(main, anwendung);
  SchnittDialogeVerbinden(main, anwendung);
  KreisDialogeVerbinden(main, anwendung);
  GeradenDialogeVerbinden(main, anwendung);
  EinrechnenDialogeVerbinden(main, anwendung);
  PolygonzugDialogeVerbinden(main, anwendung);
  BogenDialogeVerbinden(main, anwendung);
  KreisAbsteckDialogeVerbinden(main, anwendung);
  AusrundungDialogeVerbinden(main, anwendung);
  KlotoidenDialogeVerbinden(main, anwendung);
  EilinienDialogeVerbinden(main, anwendung);
  AbsteckdatenDialogeVerbinden(main, anwendung);
  TaschenrechnerDialogeVerbinden(main, anwendung);
}

}  // namespace kolm::calc
