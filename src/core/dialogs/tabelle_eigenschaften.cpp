#include "core/dialogs/tabelle_eigenschaften.h"

#include "core/app/anwendung.h"

namespace kolm::core {

namespace {

TabellenFelderForm::Art EigenschaftenArt() {
  TabellenFelderForm::Art art;
  // Renaming keeps the stems: the files on disk stay under them.
  art.stammFolgtName = false;
  art.mitBeschriftung = false;
  art.mitLoeschen = true;
  return art;
}

}  // namespace

TabelleEigenschaftenForm::TabelleEigenschaftenForm(forms::Forms& forms, Anwendung& anwendung)
    : TabellenFelderForm(forms, anwendung, "TabelleEigenschaften", "Eigenschaften der Tabelle", EigenschaftenArt()) {
  on("OK", forms::Event::Click, [this](forms::Control&, forms::EventArgs&) { aendern(); });
  on("Löschen", forms::Event::Click, [this](forms::Control&, forms::EventArgs&) { loeschen(); });
}

void TabelleEigenschaftenForm::Load() {
  zeile_ = anwendung_.AktiveZeileBenannt() ? anwendung_.zustand().AktiveTabelle : -1;
  if (zeile_ >= 0) felderAusZeile(anwendung_.zustand().Tabellen[static_cast<std::size_t>(zeile_)]);
  control("OK").setEnabled(zeile_ >= 0);
  control("Löschen").setEnabled(zeile_ >= 0);
}

void TabelleEigenschaftenForm::aendern() {
  if (zeile_ < 0) return;
  const TabellenEntscheidung e = pruefen(TabellenDialog::Eigenschaften, zeile_);
  if (!e.weiter) return;
  Zustand& z = anwendung_.zustand();
  Tabelle& zeile = z.Tabellen[static_cast<std::size_t>(zeile_)];
  ZeileFuellen(zeile, eingabe(), e.stationierung);
  if (zeile_ == z.AktiveTabelle) {
    z.M31 = zeile.M31;
    z.Dritte = zeile.Dritte;
    z.Polar = zeile.Polar;
    z.Falschdrehend = zeile.Falschdrehend;
  }
  anwendung_.KatalogSpeichern();
  z.BoegenAufraeumen();
  anwendung_.Status("Tabelle " + zeile.TablName + " geändert.");
  anwendung_.HauptfensterAusAktiverZeile();
  anwendung_.NachTabellenwechselAuffrischen();
  forms().trigger("Tabellenauswahl", "ReRead");
  schliessen();
}

void TabelleEigenschaftenForm::loeschen() {
  if (zeile_ < 0 || !services().messages) return;
  if (services().messages->show(TabelleLoeschenFrage()) != forms::Answer::OK) return;
  Zustand& z = anwendung_.zustand();
  TabelleLoeschen(z, zeile_, services().messages);
  // These show the deleted table's records.
  for (const char* name : {"Berechnungen", "Berechnen", "Grafik", "PunkteTabelle"})
    if (forms::Form* f = forms().find(name)) forms().unload(*f);
  anwendung_.KatalogSpeichern();
  if (zeile_ == z.AktiveTabelle) {
    // Nothing is active any more; what memory held belongs to no table.
    z.TabellenInhaltLeeren();
    z.AktiveTabelle = -1;
    z.TabelleGeaendert = Falsch;
  }
  anwendung_.Status("Tabelle gelöscht!");
  anwendung_.HauptfensterAusAktiverZeile();
  anwendung_.NachTabellenwechselAuffrischen();
  forms().trigger("Tabellenauswahl", "ReRead");
  schliessen();
}

}  // namespace kolm::core
