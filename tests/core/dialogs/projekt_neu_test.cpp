// Datei > Neues Projekt as the user fills it: the name and folder fields,
// the refusals and questions, and the project it leaves on disk.
#include <gtest/gtest.h>

#include "projekt_umgebung.h"

namespace kolm::core {
namespace {

namespace fs = std::filesystem;
using forms::Answer;
using projekt_test::Inhalt;
using projekt_test::ProjektUmgebung;

// The open project is "Alt" in <root>/alt/, so new ones go beside it.
struct Neu : ProjektUmgebung {
  std::string alt;
  Neu() {
    alt = projektAnlegen("alt", "Alt");
    anwendung.ProjektOeffnen(alt);
  }
  forms::Form& dialog() {
    forms::Form* f = menue("MnuDateiNeuProjekt", "ProjektNeu");
    EXPECT_NE(f, nullptr);
    return *f;
  }
};

TEST(ProjektNeuFelder, TheFolderFollowsTheNameBesideTheOpenProject) {
  Neu u;
  forms::Form& f = u.dialog();
  EXPECT_EQ(f.caption(), "Neues Projekt");
  EXPECT_EQ(f.control("TextDir").text(), u.wurzel.string() + "/");
  EXPECT_FALSE(f.control("OK").enabled()) << "no project without a name";

  ProjektUmgebung::tippe(f, "TextProjektName", U"B 12/Süd-Ost_2");
  EXPECT_EQ(f.control("TextProjektName").text(), "B12Sd-Ost_2") << "blanks, slashes and umlauts are not taken";
  EXPECT_EQ(f.control("TextDir").text(), u.ordner("B12Sd-Ost_2"));
  EXPECT_TRUE(f.control("OK").enabled());

  f.control("TextProjektName").setText("Nord Ost");  // pasted text passes the same filter
  EXPECT_EQ(f.control("TextProjektName").text(), "NordOst");
  EXPECT_EQ(f.control("TextDir").text(), u.ordner("NordOst"));
}

TEST(ProjektNeuFelder, AFolderTypedOrChosenBecomesTheBaseForTheName) {
  Neu u;
  forms::Form& f = u.dialog();
  f.control("TextProjektName").setText("Nord");
  f.control("TextDir").setText("/daten/vermessung/Nord");
  f.control("TextProjektName").setText("Nord2");
  EXPECT_EQ(f.control("TextDir").text(), "/daten/vermessung/Nord2/");

  f.control("TextDir").setText("/daten/baustellen/");
  f.control("TextProjektName").setText("B7");
  EXPECT_EQ(f.control("TextDir").text(), "/daten/baustellen/B7/");

  f.control("TextDir").setText("");
  EXPECT_FALSE(f.control("OK").enabled()) << "no project without a folder";

  u.dienste.files.queue("/daten/projekte/Umgehung");
  f.control("cmdDurchsuchen").click();
  ASSERT_EQ(u.dienste.files.requests().size(), 1u);
  EXPECT_TRUE(u.dienste.files.requests()[0].save);
  EXPECT_EQ(u.dienste.files.requests()[0].fileName, "B7");
  EXPECT_EQ(f.control("TextDir").text(), "/daten/projekte/Umgehung/");
  EXPECT_TRUE(f.control("OK").enabled());
  f.control("TextProjektName").setText("B8");
  EXPECT_EQ(f.control("TextDir").text(), "/daten/projekte/B8/");

  u.dienste.files.queue("");  // cancelled: nothing changes
  f.control("cmdDurchsuchen").click();
  EXPECT_EQ(f.control("TextDir").text(), "/daten/projekte/B8/");
}

TEST(ProjektNeuFelder, ThePointCountsOfferedAndTheOneOfTheOpenProject) {
  Neu u;
  u.zustand.PunkteDimensionieren(3000);
  forms::Form& f = u.dialog();
  const forms::Control& cmb = f.control("cmb");
  EXPECT_EQ(cmb.list(), (std::vector<std::string>{"999", "1999", "4999", "9999"}));
  EXPECT_EQ(cmb.text(), "4999") << "the smallest entry that holds the open project's points";
}

TEST(ProjektNeuFelder, TheDemoProjectIsNoBaseTheHomeFolderIs) {
  ProjektUmgebung u;
  fs::create_directories(u.wurzel / "heim");
  const char* home = std::getenv("HOME");
  const std::string alterHome = home ? home : "";
  ::setenv("HOME", (u.wurzel / "heim").c_str(), 1);
  ASSERT_TRUE(u.anwendung.Starten("", true));
  forms::Form* f = u.menue("MnuDateiNeuProjekt", "ProjektNeu");
  ASSERT_NE(f, nullptr);
  f->control("TextProjektName").setText("Erstes");
  EXPECT_EQ(f->control("TextDir").text(), u.ordner("heim/Erstes"));
  ::setenv("HOME", alterHome.c_str(), 1);
}

TEST(ProjektNeuAnlegen, OkMakesTheProjectOnDiskAndOpensIt) {
  Neu u;
  u.zustand.Tabellen[1].TablName = "Achse 2";  // a change to the catalogue of the project left
  u.zustand.Tabellen[1].Dateiname = "A2";
  u.zustand.AktiveTabelle = 1;
  forms::Form& f = u.dialog();
  f.control("TextProjektName").setText("Nord");
  f.control("cmb").setListIndex(2);
  f.control("OK").click();

  const std::string nord = u.ordner("Nord");
  EXPECT_EQ(u.forms.FormGeladen("ProjektNeu"), -1);
  EXPECT_TRUE(u.meldungen().empty());
  EXPECT_EQ(u.main->caption(), "Kolm: Nord");
  EXPECT_EQ(u.zustand.ProjektVerzeichnis, nord);
  EXPECT_EQ(fs::current_path().string() + "/", nord);
  EXPECT_EQ(profile::ReadString(nord + "Kolmproj.ini", "Project", "Name", "", 40), "Nord");
  EXPECT_EQ(profile::ReadString(nord + "Kolmproj.ini", "Tabelle", "AnzahlPunkte", "", 40), "4999");
  EXPECT_TRUE(fs::exists(nord + "Tabellen.ini"));
  EXPECT_TRUE(fs::exists(nord + "Tabelle2.ini"));
  EXPECT_EQ(u.lvGeprueft.back(), nord + " anlegen");
  EXPECT_TRUE(fs::exists(nord + "LV.MDB"));
  EXPECT_EQ(u.kolmIni("projects", "Nord"), nord);
  EXPECT_EQ(u.kolmIni("last project", "Name"), "Nord");

  EXPECT_EQ(u.zustand.AnzahlPunkte, 4999);
  EXPECT_EQ(u.zustand.Punkte.size(), 5000u);
  EXPECT_EQ(u.zustand.Punkte[5].A, 0) << "the tables of the project left are gone";
  EXPECT_TRUE(u.zustand.Tabellen[0].TablName.empty());
  EXPECT_EQ(u.zustand.AktiveTabelle, -1);
  EXPECT_FALSE(u.zustand.TabelleGeaendert);
  EXPECT_EQ(u.main->control("LabelAktTab").captionText(), "");

  EXPECT_EQ(profile::ReadString(u.alt + "Kolmproj.ini", "Defaults", "Aktive Tabelle", "", 40), "1");
  EXPECT_NE(Inhalt(u.alt + "Tabellen.ini").find("\"Achse 2\""), std::string::npos);

  // Leaving the program writes the settings into the new project under its name.
  u.anwendung.Beenden();
  EXPECT_EQ(profile::ReadString(nord + "Kolmproj.ini", "Project", "Name", "", 40), "Nord");
  EXPECT_EQ(profile::ReadString(u.alt + "Kolmproj.ini", "Project", "Name", "", 40), "Alt");

  // The new project opens again as it was made, without a message.
  u.anwendung.ProjektOeffnen(u.alt);
  u.anwendung.ProjektOeffnen(nord);
  EXPECT_EQ(u.zustand.AnzahlPunkte, 4999);
  EXPECT_TRUE(u.meldungen().empty());
}

TEST(ProjektNeuAnlegen, TheMenuOffersToSaveAChangedTableFirst) {
  Neu u;
  u.zustand.TabelleGeaendert = Wahr;
  u.zustand.Punkte[7].A = 12.5;
  u.dienste.messages.queue(Answer::Yes);
  u.dialog();
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_EQ(u.meldungen()[0], "Aktive Tabelle speichern?");
  EXPECT_NE(u.forms.find("ProjektNeu"), nullptr);
  Zustand z;
  z.ProjektVerzeichnis = u.alt;
  TabellenKontext k(z);
  LesePunkte(k, "A1");
  EXPECT_EQ(z.Punkte[7].A, 12.5) << "saved before the dialog opened";
}

TEST(ProjektNeuRueckfragen, AKnownNameIsRefusedWithoutRegardToCase) {
  Neu u;
  forms::Form& f = u.dialog();
  f.control("TextProjektName").setText("ALT");
  f.control("OK").click();
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_EQ(u.meldungen()[0],
            "Es existiert schon ein Projekt unter dem Namen 'ALT'!\nEs wird kein neues Projekt angelegt.");
  EXPECT_NE(u.forms.find("ProjektNeu"), nullptr) << "the dialog stays for another name";
  EXPECT_FALSE(fs::exists(u.ordner("ALT")));
  EXPECT_EQ(u.main->caption(), "Kolm: Alt");
}

TEST(ProjektNeuRueckfragen, AnExistingFolderIsOnlyUsedAfterTheQuestion) {
  Neu u;
  const std::string ordner = u.ordner("Vorhanden");
  fs::create_directories(ordner);
  forms::Form& f = u.dialog();
  f.control("TextProjektName").setText("Vorhanden");
  u.dienste.messages.queue(Answer::Cancel);
  f.control("OK").click();
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_EQ(u.meldungen()[0], "Verzeichnis " + ordner + " existiert bereits!");
  EXPECT_EQ(u.dienste.messages.shown()[0].message.buttons, forms::Buttons::OKCancel);
  EXPECT_NE(u.forms.find("ProjektNeu"), nullptr);
  EXPECT_FALSE(fs::exists(ordner + "Kolmproj.ini"));

  u.dienste.messages.queue(Answer::OK);
  f.control("OK").click();
  EXPECT_EQ(u.main->caption(), "Kolm: Vorhanden");
  EXPECT_EQ(profile::ReadString(ordner + "Kolmproj.ini", "Project", "Name", "", 40), "Vorhanden");
}

TEST(ProjektNeuRueckfragen, AnotherProjectInTheFolderIsReplacedOnlyAfterTheWarning) {
  Neu u;
  const std::string fremd = u.projektAnlegen("fremd", "Fremd");
  profile::WriteString(fremd + "Kolmproj.ini", "Vermessung", "Auftrag", "4711");
  forms::Form& f = u.dialog();
  f.control("TextProjektName").setText("Neu");
  f.control("TextDir").setText(fremd);
  u.dienste.messages.queue(Answer::OK);
  u.dienste.messages.queue(Answer::Cancel);
  f.control("OK").click();
  ASSERT_EQ(u.meldungen().size(), 2u);
  EXPECT_EQ(u.meldungen()[1], "Im Verzeichnis " + fremd +
                                  " existiert bereits eine Kolmproj.iniDatei!\nVorsicht, wenn Sie OK wählen, dann "
                                  "kann ein bestehendes Projekt gelöscht werden!");
  EXPECT_EQ(u.dienste.messages.shown()[1].message.defaultButton, 1) << "Enter does not delete";
  EXPECT_EQ(profile::ReadString(fremd + "Kolmproj.ini", "Project", "Name", "", 40), "Fremd");
  EXPECT_NE(u.forms.find("ProjektNeu"), nullptr);

  u.dienste.messages.queue(Answer::OK);
  u.dienste.messages.queue(Answer::OK);
  f.control("OK").click();
  EXPECT_EQ(profile::ReadString(fremd + "Kolmproj.ini", "Project", "Name", "", 40), "Neu");
  EXPECT_EQ(profile::ReadString(fremd + "Kolmproj.ini", "Vermessung", "Auftrag", "(fehlt)", 40), "(fehlt)")
      << "nothing of the old settings file is left";
  EXPECT_EQ(u.main->caption(), "Kolm: Neu");
}

TEST(ProjektNeuRueckfragen, AFolderThatCannotBeMadeKeepsTheDialog) {
  Neu u;
  io::WriteFileAtomically(u.ordner("datei").substr(0, u.ordner("datei").size() - 1), "keine Mappe");
  forms::Form& f = u.dialog();
  f.control("TextProjektName").setText("X");
  f.control("TextDir").setText(u.ordner("datei") + "X/");
  f.control("OK").click();
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_EQ(u.meldungen()[0], "Das Verzeichnis " + u.ordner("datei") + "X/ konnte nicht angelegt werden!");
  EXPECT_NE(u.forms.find("ProjektNeu"), nullptr);
  EXPECT_EQ(u.main->caption(), "Kolm: Alt");
  EXPECT_EQ(u.kolmIni("projects", "X"), "(fehlt)");
}

TEST(ProjektNeuRueckfragen, CancelChangesNothing) {
  Neu u;
  forms::Form& f = u.dialog();
  f.control("TextProjektName").setText("Weg");
  f.control("Cancel").click();
  EXPECT_EQ(u.forms.FormGeladen("ProjektNeu"), -1);
  EXPECT_FALSE(fs::exists(u.ordner("Weg")));
  EXPECT_EQ(u.zustand.Punkte[5].A, 101.25);
}

}  // namespace
}  // namespace kolm::core
