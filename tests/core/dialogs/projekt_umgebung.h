#pragma once
// A program without windows for the project dialogs: real folders under a
// temporary root, Kolm.ini there (KOLM_INI points at it), the main window
// model with the project menu entries bound, scripted message and file
// answers.
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "core/app/anwendung.h"
#include "core/catalog/katalog.h"
#include "core/dialogs/projekt_dialoge.h"
#include "core/io/files.h"
#include "core/main/main_form.h"
#include "core/profile/profile.h"
#include "core/tables/tabellen_dateien.h"
#include "forms/keys.h"
#include "forms/scripted.h"
#include "support/test_ordner.h"

namespace kolm::core::projekt_test {

namespace fs = std::filesystem;

struct ProjektUmgebung {
  kolm::testhilfen::TestOrdner tmp{"projdlg"};
  const fs::path& wurzel = tmp.pfad;
  forms::ScriptedServices dienste;
  forms::HeadlessHost host;
  forms::Forms forms{dienste.services};
  Zustand zustand;
  Anwendung anwendung{zustand, forms};
  MainForm* main = nullptr;
  // Folders the LV database was checked for, " anlegen" when it was to be made.
  std::vector<std::string> lvGeprueft;
  // Another test may have left the working folder in a folder since removed.
  fs::path vorherigerOrdner = [] {
    std::error_code ec;
    const fs::path p = fs::current_path(ec);
    return ec ? fs::temp_directory_path() : p;
  }();

  ProjektUmgebung() {
    fs::create_directories(wurzel / "prog" / "Demo Projekt");
    ::setenv("KOLM_INI", (wurzel / "Kolm.ini").c_str(), 1);
    zustand.ProgrammIni = (wurzel / "Kolm.ini").string();
    zustand.ProgrammVerzeichnis = (wurzel / "prog").string() + "/";
    forms.setHost(&host);
    RegisterMainForms(forms, "/nicht/da");
    ProjektDialogeRegistrieren(forms, anwendung);
    main = static_cast<MainForm*>(forms.load("Main"));
    anwendung.setMain(main);
    ProjektBefehleVerbinden(*main, anwendung);
    anwendung.lvPruefen = [this](const std::string& dir, bool anlegen) {
      lvGeprueft.push_back(dir + (anlegen ? " anlegen" : ""));
      if (anlegen && !fs::exists(dir + "LV.MDB")) io::WriteFileAtomically(dir + "LV.MDB", "leere LV-Datenbank");
    };
  }
  ~ProjektUmgebung() {
    forms.unloadAll();
    forms.collect();
    std::error_code ec;
    fs::current_path(vorherigerOrdner, ec);
    ::unsetenv("KOLM_INI");
  }

  std::string ordner(const std::string& name) const { return (wurzel / name).string() + "/"; }

  // A project folder with the table "Achse 1" (stems A1) holding point 5,
  // entered in Kolm.ini.
  std::string projektAnlegen(const std::string& ordnerName, const std::string& name) {
    const std::string dir = ordner(ordnerName);
    fs::create_directories(dir);
    Zustand z;
    z.ProjektVerzeichnis = dir;
    z.Tabellen[0].TablName = "Achse 1";
    z.Tabellen[0].Dateiname = "A1";
    z.Tabellen[0].PktDateiName = "A1";
    z.AktiveTabelle = 0;
    z.Punkte[5].A = 101.25;
    TabellenKontext k(z);
    TabelleSpeichern(k);
    KatalogKontext kat(z);
    KatalogSchreiben(kat);
    profile::WriteString(dir + "Kolmproj.ini", "Project", "Name", name);
    profile::WriteString(dir + "Kolmproj.ini", "Defaults", "Aktive Tabelle", "0");
    profile::WriteString(zustand.ProgrammIni, "projects", name, dir);
    return dir;
  }

  // Runs a menu entry of Main; the modal dialog it shows stays open for the
  // test to fill.
  forms::Form* menue(const char* eintrag, const char* dialog) {
    main->control(eintrag).click();
    return forms.find(dialog);
  }

  // Types text into a field key by key, as the keyboard does.
  static void tippe(forms::Form& f, const char* feld, const std::u32string& text) {
    forms::Control& c = f.control(feld);
    f.setActiveControl(&c);
    for (char32_t ch : text) f.sendKey(c, forms::keys::KeyCodeOfChar(ch), 0, ch);
  }

  std::string kolmIni(const char* abschnitt, const std::string& schluessel) const {
    return profile::ReadString(zustand.ProgrammIni, abschnitt, schluessel, "(fehlt)", 260);
  }

  // Messages shown so far, text only.
  std::vector<std::string> meldungen() {
    std::vector<std::string> texte;
    for (const auto& m : dienste.messages.shown()) texte.push_back(m.message.text);
    return texte;
  }
};

inline std::string Inhalt(const std::string& pfad) {
  const auto bytes = io::ReadFile(pfad);
  return bytes ? *bytes : std::string("(fehlt)");
}

}  // namespace kolm::core::projekt_test
