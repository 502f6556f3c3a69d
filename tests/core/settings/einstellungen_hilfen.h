#pragma once
// Shared pieces of the settings tests: a folder of their own with a program
// settings file and a project folder, a state and a context that finds them.
#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <map>
#include <memory>
#include <string>

#include "core/io/files.h"
#include "core/settings/einstellungen_datei.h"
#include "core/state/zustand.h"
#include "forms/scripted.h"
#include "support/test_ordner.h"

namespace kolm::core::einstellungstest {

namespace fs = std::filesystem;

// <tmp>/kolm-einst-XXXXXX with "config/Kolm/Kolm.ini" (not made) and the
// project folder "Projekt A/".
struct Umgebung {
  kolm::testhilfen::TestOrdner tmp{"einst"};
  const fs::path& wurzel = tmp.pfad;
  std::map<std::string, std::string> variablen;
  std::unique_ptr<Zustand> z = std::make_unique<Zustand>();
  forms::ScriptedMessages meldungen;
  forms::CountingBusy busy;
  EinstellungsKontext k{*z};

  Umgebung() {
    fs::create_directories(wurzel / "Projekt A");
    variablen["KOLM_INI"] = kolmIni();
    k.umgebung = [this](const char* name) -> const char* {
      auto it = variablen.find(name);
      return it == variablen.end() ? nullptr : it->second.c_str();
    };
    k.meldungen = &meldungen;
    k.busy = &busy;
    z->ProgrammVerzeichnis = (wurzel / "programm").string() + "/";
    projektOeffnen("Projekt A");
  }

  std::string kolmIni() const { return (wurzel / "config" / "Kolm" / "Kolm.ini").string(); }
  std::string projektVerzeichnis(const std::string& name) const { return (wurzel / name).string() + "/"; }
  std::string projektIni(const std::string& name = "Projekt A") const {
    return projektVerzeichnis(name) + "Kolmproj.ini";
  }
  // What the start-up's resolution leaves behind.
  void projektOeffnen(const std::string& name) {
    z->ProjektName = name;
    z->ProjektVerzeichnis = projektVerzeichnis(name);
    z->ProjektIni = ProjektIniPfad(z->ProjektVerzeichnis);
  }

  static std::string lesen(const std::string& pfad) { return io::ReadFile(pfad).value_or("<fehlt>"); }
  static void schreiben(const std::string& pfad, const std::string& bytes) {
    fs::create_directories(fs::path(pfad).parent_path());
    ASSERT_TRUE(io::WriteFileAtomically(pfad, bytes)) << pfad;
  }
  // A second program run: a fresh state reading the same files.
  std::unique_ptr<Zustand> neuGelesen(const std::string& projekt = "Projekt A") {
    auto neu = std::make_unique<Zustand>();
    neu->ProgrammVerzeichnis = z->ProgrammVerzeichnis;
    EinstellungsKontext k2(*neu);
    k2.umgebung = k.umgebung;
    k2.projektAufloesen = [this, projekt](Zustand& s, const ProgrammEinstellungen&) {
      s.ProjektName = projekt;
      s.ProjektVerzeichnis = projektVerzeichnis(projekt);
      s.ProjektIni = ProjektIniPfad(s.ProjektVerzeichnis);
    };
    EinstellungenLesen(k2);
    return neu;
  }
};

// The lines of a profile in Windows-1252 with CR LF, for comparing bytes.
inline std::string Zeilen(std::initializer_list<const char*> zeilen) {
  std::string s;
  for (const char* z : zeilen) s += std::string(z) + "\r\n";
  return s;
}

// The text of a section as it stands in the file, header included, up to
// the next header.
inline std::string Abschnitt(const std::string& datei, const std::string& kopf) {
  const std::size_t von = datei.find("[" + kopf + "]\r\n");
  if (von == std::string::npos) return "<kein Abschnitt " + kopf + ">";
  const std::size_t bis = datei.find("\r\n[", von);
  return datei.substr(von, bis == std::string::npos ? std::string::npos : bis + 2 - von);
}

}  // namespace kolm::core::einstellungstest
