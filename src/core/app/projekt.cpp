// The start of the program, opening a project and the end: the steps that
// tie settings, catalogue and table files together.
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>

#include "core/app/anwendung.h"
#include "core/catalog/katalog.h"
#include "core/main/main_form.h"
#include "core/profile/profile.h"
#include "core/settings/einstellungen_datei.h"
#include "core/start/projekt_aufloesen.h"
#include "points/numbers/konstanten.h"

namespace kolm::core {

namespace {

std::string MitTrenner(std::string p) {
  if (p.empty() || (p.back() != '/' && p.back() != '\\')) p += '/';
  return p;
}

bool GleicherName(const std::string& a, const std::string& b) {
  return a.size() == b.size() &&
         std::equal(a.begin(), a.end(), b.begin(), [](unsigned char x, unsigned char y) {
           return std::tolower(x) == std::tolower(y);
         });
}

std::string NameAusIni(const std::string& ini, const std::string& vorgabe) {
  return profile::ReadString(ini, "Project", "Name", vorgabe, profile::kSettingsBuffer);
}

}  // namespace

std::string Anwendung::DemoVerzeichnis() const {
  return MitTrenner(zustand_.ProgrammVerzeichnis) + "Demo Projekt/";
}

void Anwendung::TitelSetzen() {
  if (main_) main_->setProjectName(zustand_.ProjektName);
}

void Anwendung::EinstellungenEinlesen(bool mitProjektwahl, const std::string& parameter, bool demo,
                                      bool& parameterFehlt) {
  EinstellungsKontext k(zustand_, dienste());
  k.hauptfensterAnwenden = hauptfensterAnwenden;
  k.winkeleinheitAnwenden = [this](int einheit) {
    if (main_) main_->control("ComboWinkelEinheit").setListIndex(einheit);
  };
  if (mitProjektwahl) {
    k.projektAufloesen = [&](Zustand& z, const ProgrammEinstellungen& p) {
      Dateisystem fs = EchtesDateisystem();
      fs.projektName = NameAusIni;
      Projektwahl wahl;
      if (!parameter.empty()) {
        auto gefunden = ParameterProjektAufloesen(parameter, z.ProgrammVerzeichnis, fs, dienste().messages);
        if (!gefunden) {
          parameterFehlt = true;
          return;
        }
        wahl = *gefunden;
      } else if (demo) {
        wahl = LetztesProjektAufloesen("Demo Projekt", DemoVerzeichnis(), DemoVerzeichnis(), fs,
                                       dienste().messages);
      } else {
        std::optional<std::string> verzeichnis;
        for (const ProjektEintrag& e : p.Projekte)
          if (GleicherName(e.Name, p.LetztesProjekt)) verzeichnis = e.Verzeichnis;
        wahl = LetztesProjektAufloesen(p.LetztesProjekt, verzeichnis, DemoVerzeichnis(), fs,
                                       dienste().messages);
      }
      z.ProjektName = wahl.name;
      z.ProjektVerzeichnis = wahl.verzeichnis;
      z.ProjektIni = ProjektIniPfad(wahl.verzeichnis);
    };
  }
  EinstellungenLesen(k);
}

void Anwendung::AktiveTabelleEinlesen() {
  if (AktiveZeileBenannt()) {
    const Tabelle& t = zustand_.Tabellen[zustand_.AktiveTabelle];
    zustand_.M31 = t.M31;
    zustand_.Dritte = t.Dritte;
    zustand_.Polar = t.Polar;
    zustand_.Falschdrehend = t.Falschdrehend;
    TabellenDateienLesen(kontext_);
    zustand_.AnsichtAusZeile(t);
  }
  HauptfensterAusAktiverZeile();
}

bool Anwendung::Starten(const std::string& parameter, bool demo) {
  zustand_.Laden = Wahr;
  zustand_.WinkelFaktor = numbers::WinkelFaktorFuer(0);
  zustand_.AllesLeeren();

  bool parameterFehlt = false;
  EinstellungenEinlesen(true, parameter, demo, parameterFehlt);
  if (parameterFehlt) return false;
  zustand_.Laden = Wahr;  // reading the settings cleared it
  TitelSetzen();

  KatalogKontext katalog(zustand_, dienste());
  katalog.startLaeuft = true;
  KatalogLesen(katalog);
  if (::chdir(zustand_.ProjektVerzeichnis.c_str()) != 0) {
    // The folder was checked moments ago; a failure leaves the working folder.
  }
  AktiveTabelleEinlesen();
  if (lvPruefen) lvPruefen(zustand_.ProjektVerzeichnis, false);
  zustand_.Laden = Falsch;
  zustand_.TabelleGeaendert = Falsch;
  // The last reading text would otherwise stand as if the load still ran.
  if (AktiveZeileBenannt()) Status("Tabelle " + zustand_.Tabellen[zustand_.AktiveTabelle].TablName + " geladen");
  return true;
}

void Anwendung::ProjektEintragen(const std::string& name, const std::string& verzeichnis) {
  profile::ProfileFile ini = profile::ProfileFile::Load(zustand_.ProgrammIni);
  ini.WriteString("projects", name, verzeichnis);
  ini.WriteString("last project", "Name", name);
  zustand_.Einstellungen.LetztesProjekt = name;
  if (ini.modified()) ini.Save(zustand_.ProgrammIni);
}

void Anwendung::KatalogSpeichern() {
  if (zustand_.ProjektVerzeichnis.empty()) return;
  KatalogKontext katalog(zustand_, dienste());
  KatalogSchreiben(katalog);
}

void Anwendung::ProjektOeffnen(const std::string& verzeichnis) {
  if (!zustand_.ProjektIni.empty()) {
    KatalogSpeichern();
    profile::WriteString(zustand_.ProjektIni, "Defaults", "Aktive Tabelle",
                         std::to_string(zustand_.AktiveTabelle));
  }
  std::string ordner = verzeichnis;
  if (ordner.size() >= 4 && (ordner.back() == '/' || ordner.back() == '\\')) ordner.pop_back();
  if (::chdir(ordner.c_str()) != 0) {
    // Opening goes on: the files of a missing folder read as empty.
  }
  zustand_.ProjektVerzeichnis = MitTrenner(ordner);
  zustand_.ProjektIni = ProjektIniPfad(zustand_.ProjektVerzeichnis);
  zustand_.ProjektName = NameAusIni(zustand_.ProjektIni, "Unbekanntes Projekt");
  ProjektEintragen(zustand_.ProjektName, zustand_.ProjektVerzeichnis);

  Status("*.ini Dateien lesen...");
  zustand_.Laden = Wahr;
  zustand_.AllesLeeren();
  bool unbenutzt = false;
  EinstellungenEinlesen(false, "", false, unbenutzt);
  zustand_.Laden = Wahr;
  KatalogKontext katalog(zustand_, dienste());
  KatalogLesen(katalog);
  AktiveTabelleEinlesen();
  if (lvPruefen) lvPruefen(zustand_.ProjektVerzeichnis, true);
  zustand_.Laden = Falsch;
  zustand_.TabelleGeaendert = Falsch;
  TitelSetzen();
  NachTabellenwechselAuffrischen();
  forms_.trigger("Tabellenauswahl", "ReRead");
}

void Anwendung::Beenden() {
  if (hauptfensterMerken) hauptfensterMerken(zustand_.Einstellungen);
  EinstellungsKontext k(zustand_, dienste());
  EinstellungenSchreiben(k);
  KatalogSpeichern();
  for (auto& schreiben : beimBeenden_) schreiben();
}

}  // namespace kolm::core
