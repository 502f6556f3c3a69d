#include "core/dialogs/neue_tabelle.h"

#include <algorithm>
#include <string>

#include "core/app/anwendung.h"
#include "core/io/files.h"
#include "core/tables/tabellen_dateien.h"

namespace kolm::core {

namespace {

TabellenFelderForm::Art ArtFuer(NeueTabelleForm::Modus modus) {
  TabellenFelderForm::Art art;
  art.mitBeschriftung = modus == NeueTabelleForm::Modus::Neu;
  return art;
}

// The labels a new table begins with: 0 none, 1 name and scale, 2 also the
// stationing; into the first free slots. True when any was added.
bool StartBeschriftungenAnlegen(Zustand& z, int wahl) {
  struct Vorlage {
    const char* text;
    double b;
  };
  // Below one another from the upper left corner of the graphic, in cm.
  const Vorlage vorlagen[] = {{"\\T", -0.2}, {"Maßstab 1 : \\M", -1.0}, {"Stationierung km \\S", -1.5}};
  const int anzahl = wahl == 1 ? 2 : wahl == 2 ? 3 : 0;
  bool angelegt = false;
  std::size_t slot = 0;
  for (int i = 0; i < anzahl; ++i) {
    while (slot < z.Beschriftungen.size() && !z.Beschriftungen[slot].Text.empty()) ++slot;
    if (slot >= z.Beschriftungen.size()) break;
    Beschriftung& b = z.Beschriftungen[slot];
    b = Beschriftung{};
    b.Text = vorlagen[i].text;
    b.A = 0.5;
    b.B = vorlagen[i].b;
    b.Farbe = 0;
    b.Schrift = z.Einstellungen.GrafikFont;
    b.Groesse = static_cast<Single>(std::max(3.0, z.Einstellungen.GrafikFontSize));
    b.Fett = Wahr;
    b.Massstab = 0;
    b.BezugsPunkt = 1;
    angelegt = true;
  }
  return angelegt;
}

}  // namespace

NeueTabelleForm::NeueTabelleForm(forms::Forms& forms, Anwendung& anwendung, Modus modus)
    : TabellenFelderForm(forms, anwendung, modus == Modus::Neu ? "NeueTabelle" : "TabelleDuplizieren",
                         modus == Modus::Neu ? "Neue Tabelle" : "Tabelle duplizieren", ArtFuer(modus)),
      modus_(modus) {
  on("OK", forms::Event::Click, [this](forms::Control&, forms::EventArgs&) { anlegen(); });
}

void NeueTabelleForm::Load() { felderFuerNeueTabelle(); }

void NeueTabelleForm::anlegen() {
  const bool neu = modus_ == Modus::Neu;
  const TabellenEntscheidung e = pruefen(neu ? TabellenDialog::Neu : TabellenDialog::Duplizieren);
  if (!e.weiter) return;
  Zustand& z = anwendung_.zustand();
  Tabelle& zeile = z.Tabellen[static_cast<std::size_t>(e.zeile)];
  ZeileFuellen(zeile, eingabe(), e.stationierung);
  const std::string name = zeile.TablName;
  anwendung_.KatalogSpeichern();

  // A duplicate keeps what is in memory: the save below writes it under
  // the new stems.
  if (neu) z.TabellenInhaltLeeren();
  z.AktiveTabelle = static_cast<Integer>(e.zeile);
  z.M31 = zeile.M31;
  z.Dritte = zeile.Dritte;
  z.Polar = zeile.Polar;
  z.Falschdrehend = zeile.Falschdrehend;
  if (neu && e.punkteGemeinsam && io::FileExists(TabellenDatei(z, zeile.PktDateiName, ".pkt")))
    LesePunkte(anwendung_.kontext(), zeile.PktDateiName);
  anwendung_.TabelleSpeichernBefehl();
  // The starting labels are in memory only, so the table counts as changed.
  if (neu && StartBeschriftungenAnlegen(z, beschriftung())) z.TabelleGeaendert = Wahr;

  anwendung_.Status(neu ? "Neue Tabelle " + name + " angelegt" : "Tabelle " + name + " als Duplikat geladen.");
  anwendung_.HauptfensterAusAktiverZeile();
  anwendung_.NachTabellenwechselAuffrischen();
  forms().trigger("Tabellenauswahl", "ReRead");
  schliessen();
}

}  // namespace kolm::core
