#include "core/dialogs/tabellen_dialoge.h"

#include "core/app/anwendung.h"
#include "core/catalog/katalog.h"
#include "core/dialogs/neue_tabelle.h"
#include "core/dialogs/tabelle_eigenschaften.h"
#include "core/dialogs/tabellen_auswahl.h"
#include "core/main/main_form.h"

namespace kolm::core {

namespace {

bool TabellenVorhanden(const Zustand& z) {
  for (const Tabelle& t : z.Tabellen)
    if (ZeileBenannt(t)) return true;
  return false;
}

void Hinweis(Anwendung& a, const char* text, const char* titel) {
  if (auto* m = a.dienste().messages) m->show({text, titel, forms::Buttons::OK, forms::Icon::Exclamation});
}

}  // namespace

void TabellenDialogeRegistrieren(forms::Forms& forms, Anwendung& anwendung) {
  forms.registerForm("Tabellenauswahl", [&anwendung](forms::Forms& f) {
    return std::make_unique<TabellenAuswahlForm>(f, anwendung);
  });
  forms.registerForm("NeueTabelle", [&anwendung](forms::Forms& f) {
    return std::make_unique<NeueTabelleForm>(f, anwendung, NeueTabelleForm::Modus::Neu);
  });
  forms.registerForm("TabelleDuplizieren", [&anwendung](forms::Forms& f) {
    return std::make_unique<NeueTabelleForm>(f, anwendung, NeueTabelleForm::Modus::Duplizieren);
  });
  forms.registerForm("TabelleEigenschaften", [&anwendung](forms::Forms& f) {
    return std::make_unique<TabelleEigenschaftenForm>(f, anwendung);
  });
}

void TabellenBefehleVerbinden(MainForm& main, Anwendung& anwendung) {
  forms::Forms& forms = anwendung.forms();
  main.setCommand("MnuDateiNeuTabelle", [&anwendung, &forms] {
    anwendung.SpeichernFragen();
    forms.show("NeueTabelle", true);
  });
  main.setCommand("MnuDateiÖffnenTabelle", [&anwendung, &forms] {
    anwendung.SpeichernFragen();
    if (!TabellenVorhanden(anwendung.zustand())) {
      Hinweis(anwendung, "Es sind noch keine Punktetabellen angelegt!", "Öffnen einer Punktetabelle");
      forms.show("NeueTabelle", true);
      return;
    }
    if (auto* auswahl = dynamic_cast<TabellenAuswahlForm*>(forms.show("Tabellenauswahl"))) auswahl->frageGestellt();
  });
  main.setCommand("MnuDateiEigenschaftenTabelle", [&anwendung, &forms] {
    if (!anwendung.AktiveZeileBenannt()) {
      Hinweis(anwendung, "Es ist keine Tabelle geöffnet.", "Eigenschaften einer Tabelle");
      return;
    }
    forms.show("TabelleEigenschaften", true);
  });
  main.setCommand("MnuDateiDuplizieren", [&anwendung, &forms] {
    if (!anwendung.AktiveZeileBenannt()) {
      Hinweis(anwendung, "Es ist keine Tabelle geöffnet.", "Duplizieren einer Tabelle");
      return;
    }
    anwendung.SpeichernFragen("Aktive Tabelle vor dem Duplizieren/Klonen speichern?");
    forms.show("TabelleDuplizieren", true);
  });
}

}  // namespace kolm::core
