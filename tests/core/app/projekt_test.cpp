// Starting the program, opening a project and ending it, on real folders.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "core/app/anwendung.h"
#include "core/catalog/katalog.h"
#include "core/io/files.h"
#include "core/main/main_form.h"
#include "core/profile/profile.h"
#include "core/tables/tabellen_dateien.h"
#include "forms/scripted.h"
#include "support/test_ordner.h"

namespace kolm::core {
namespace {

namespace fs = std::filesystem;

struct Programm {
  kolm::testhilfen::TestOrdner tmp{"projekt"};
  const fs::path& wurzel = tmp.pfad;
  forms::ScriptedServices dienste;
  forms::Forms forms{dienste.services};
  Zustand zustand;
  Anwendung anwendung{zustand, forms};
  std::vector<std::string> lvGeprueft;

  Programm() {
    fs::create_directories(wurzel / "prog" / "Demo Projekt");
    ::setenv("KOLM_INI", (wurzel / "Kolm.ini").c_str(), 1);
    zustand.ProgrammIni = (wurzel / "Kolm.ini").string();
    zustand.ProgrammVerzeichnis = (wurzel / "prog").string() + "/";
    RegisterMainForms(forms, "/nicht/da");
    anwendung.setMain(static_cast<MainForm*>(forms.load("Main")));
    anwendung.lvPruefen = [this](const std::string& dir, bool anlegen) {
      lvGeprueft.push_back(dir + (anlegen ? " anlegen" : ""));
    };
  }
  ~Programm() { ::unsetenv("KOLM_INI"); }
  std::string titel() { return anwendung.main()->caption(); }

  // A project folder with one table "Achse 1" holding point 5.
  std::string projektAnlegen(const std::string& ordner, const std::string& name) {
    const fs::path dir = wurzel / ordner;
    fs::create_directories(dir);
    Zustand z;
    z.ProjektVerzeichnis = dir.string() + "/";
    z.Tabellen[0].TablName = "Achse 1";
    z.Tabellen[0].Dateiname = "A1";
    z.Tabellen[0].PktDateiName = "A1";
    z.Tabellen[0].Dritte = Wahr;
    z.AktiveTabelle = 0;
    z.Punkte[5].A = 101.25;
    TabellenKontext k(z);
    TabelleSpeichern(k);
    KatalogKontext kat(z);
    KatalogSchreiben(kat);
    profile::WriteString((dir / "Kolmproj.ini").string(), "Project", "Name", name);
    profile::WriteString((dir / "Kolmproj.ini").string(), "Defaults", "Aktive Tabelle", "0");
    return dir.string() + "/";
  }
};

TEST(Start, AFreshMachineOpensTheDemoProject) {
  Programm p;
  ASSERT_TRUE(p.anwendung.Starten(""));
  EXPECT_EQ(p.zustand.ProjektName, "Demo Projekt");
  EXPECT_EQ(p.zustand.ProjektVerzeichnis, (p.wurzel / "prog" / "Demo Projekt").string() + "/");
  EXPECT_EQ(p.titel(), "Kolm: Demo Projekt");
  EXPECT_TRUE(p.dienste.messages.shown().empty()) << "no catalogue is no message at start";
  EXPECT_FALSE(p.zustand.Laden);
  EXPECT_EQ(p.lvGeprueft.size(), 1u);
}

TEST(Start, TheLastProjectOpensWithItsActiveTable) {
  Programm p;
  const std::string dir = p.projektAnlegen("B12", "Ortsumgehung");
  p.anwendung.ProjektEintragen("Ortsumgehung", dir);
  ASSERT_TRUE(p.anwendung.Starten(""));
  EXPECT_EQ(p.titel(), "Kolm: Ortsumgehung");
  EXPECT_EQ(p.zustand.AktiveTabelle, 0);
  EXPECT_EQ(p.zustand.Punkte[5].A, 101.25);
  EXPECT_EQ(p.anwendung.main()->control("LabelAktTab").captionText(), "Achse 1");
  EXPECT_EQ(p.dienste.status.text(), "Tabelle Achse 1 geladen");
  EXPECT_EQ(p.anwendung.main()->control("Check3D").value(), 1);
  EXPECT_EQ(p.zustand.Tabellen[0].Dritte, Wahr);
  EXPECT_EQ(fs::current_path().string() + "/", dir) << "the working folder is the project";
}

TEST(Start, AVanishedProjectFolderFallsBackToTheDemoWithOneMessage) {
  Programm p;
  const std::string dir = p.projektAnlegen("B13", "Brücke");
  p.anwendung.ProjektEintragen("Brücke", dir);
  fs::remove_all(dir);
  ASSERT_TRUE(p.anwendung.Starten(""));
  EXPECT_EQ(p.zustand.ProjektName, "Demo Projekt");
  ASSERT_EQ(p.dienste.messages.shown().size(), 1u);
  EXPECT_EQ(p.dienste.messages.shown()[0].message.title, "Nicht vorhandenes Laufwerk oder Ordner");
}

TEST(Start, AParameterOpensItsKolmFolderAndABadOneEndsTheProgram) {
  Programm p;
  fs::create_directories(p.wurzel / "baustelle");
  ASSERT_TRUE(p.anwendung.Starten((p.wurzel / "baustelle").string()));
  EXPECT_EQ(p.zustand.ProjektVerzeichnis, (p.wurzel / "baustelle" / "KOLM").string() + "/");
  EXPECT_TRUE(fs::is_directory(p.wurzel / "baustelle" / "KOLM"));
  Programm q;
  EXPECT_FALSE(q.anwendung.Starten((q.wurzel / "gibtsnicht").string()));
  ASSERT_EQ(q.dienste.messages.shown().size(), 1u);
  EXPECT_NE(q.dienste.messages.shown()[0].message.text.find("Kolm wird beendet!"), std::string::npos);
}

TEST(OpeningAProject, WritesTheOldCatalogueAndReadsTheNewProject) {
  Programm p;
  const std::string erstes = p.projektAnlegen("eins", "Erstes");
  const std::string zweites = p.projektAnlegen("zwei", "Zweites");
  p.anwendung.ProjektEintragen("Erstes", erstes);
  ASSERT_TRUE(p.anwendung.Starten(""));
  p.zustand.Tabellen[1].TablName = "Achse 2";  // a change to the catalogue of the first
  p.zustand.Tabellen[1].Dateiname = "A2";
  p.zustand.AktiveTabelle = 1;
  const size_t statusVorher = p.dienste.status.history().size();

  p.anwendung.ProjektOeffnen(zweites);

  EXPECT_EQ(p.titel(), "Kolm: Zweites");
  EXPECT_EQ(p.zustand.Punkte[5].A, 101.25);
  EXPECT_TRUE(p.zustand.Tabellen[1].TablName.empty()) << "the tables of the second project only";
  EXPECT_EQ(profile::ReadString(erstes + "Kolmproj.ini", "Defaults", "Aktive Tabelle", "", 40), "1");
  const auto alt = io::ReadFile(erstes + "Tabellen.ini");
  ASSERT_TRUE(alt);
  EXPECT_NE(alt->find("\"Achse 2\""), std::string::npos);
  EXPECT_EQ(profile::ReadString(p.zustand.ProgrammIni, "projects", "Zweites", "", 100), zweites);
  EXPECT_EQ(profile::ReadString(p.zustand.ProgrammIni, "last project", "Name", "", 40), "Zweites");
  EXPECT_EQ(p.lvGeprueft.back(), zweites + " anlegen");
  ASSERT_GT(p.dienste.status.history().size(), statusVorher + 1);
  EXPECT_EQ(p.dienste.status.history()[statusVorher], "*.ini Dateien lesen...");
  EXPECT_EQ(p.dienste.status.history()[statusVorher + 1], "Berechnungen lesen...");
}

TEST(Ending, WritesBothSettingsFilesAndTheCatalogue) {
  Programm p;
  const std::string dir = p.projektAnlegen("B14", "Kreisel");
  p.anwendung.ProjektEintragen("Kreisel", dir);
  ASSERT_TRUE(p.anwendung.Starten(""));
  fs::remove(dir + "Kolmproj.ini");
  fs::remove(dir + "Tabelle2.ini");
  p.anwendung.IntervallSetzen(4);
  p.anwendung.Beenden();
  EXPECT_EQ(profile::ReadString(p.zustand.ProgrammIni, "Automatisch Speichern", "Intervall", "", 40), "4");
  EXPECT_TRUE(fs::exists(dir + "Kolmproj.ini")) << "a project without settings gets them on leaving";
  EXPECT_TRUE(fs::exists(dir + "Tabelle2.ini"));
}

}  // namespace
}  // namespace kolm::core
