// Datei > Projekt öffnen: the list of known projects, the folder field and
// its button, the label that tells whether a folder holds a project,
// removing an entry, and opening.
#include <gtest/gtest.h>

#include "projekt_umgebung.h"

namespace kolm::core {
namespace {

namespace fs = std::filesystem;
using forms::Answer;
using projekt_test::ProjektUmgebung;

// Two known projects, "Erstes" open; a third entry whose folder is gone.
struct Oeffnen : ProjektUmgebung {
  std::string erstes, zweites;
  Oeffnen() {
    erstes = projektAnlegen("eins", "Erstes");
    zweites = projektAnlegen("zwei", "Zweites");
    const std::string weg = projektAnlegen("weg", "Verschwunden");
    fs::remove_all(weg);
    anwendung.ProjektOeffnen(erstes);
  }
  forms::Form& dialog() {
    forms::Form* f = menue("MnuDateiÖffnenProjekt", "ProjektÖffnen");
    EXPECT_NE(f, nullptr);
    return *f;
  }
};

TEST(ProjektOeffnenListe, ShowsTheKnownProjectsWithTheOpenOneChosen) {
  Oeffnen u;
  forms::Form& f = u.dialog();
  EXPECT_EQ(f.caption(), "Projekt öffnen");
  EXPECT_EQ(f.control("List").list(), (std::vector<std::string>{"Erstes", "Zweites", "Verschwunden"}));
  EXPECT_EQ(f.control("List").listIndex(), 0);
  EXPECT_EQ(f.control("Directory").text(), u.erstes);
  EXPECT_EQ(f.control("lblInfo").captionText(), "Projekt 'Erstes' öffnen");
  EXPECT_TRUE(f.control("OK").enabled());
  EXPECT_TRUE(f.control("cmdRemove").enabled());

  f.control("List").setListIndex(2);
  EXPECT_EQ(f.control("lblInfo").captionText(), "Kein Projekt in diesem Verzeichnis vorhanden!");
  EXPECT_FALSE(f.control("OK").enabled());

  f.control("List").setListIndex(1);
  EXPECT_EQ(f.control("lblInfo").captionText(), "Projekt 'Zweites' öffnen");
  EXPECT_TRUE(f.control("OK").enabled());
}

TEST(ProjektOeffnenListe, AFolderTypedIsCheckedAndNamedFromItsOwnSettings) {
  Oeffnen u;
  forms::Form& f = u.dialog();
  profile::WriteString(u.zweites + "Kolmproj.ini", "Project", "Name", "Zweites (umbenannt)");
  f.control("Directory").setText(u.zweites.substr(0, u.zweites.size() - 1));
  EXPECT_EQ(f.control("lblInfo").captionText(), "Projekt 'Zweites (umbenannt)' öffnen");
  EXPECT_TRUE(f.control("OK").enabled());

  f.control("Directory").setText(u.wurzel.string());
  EXPECT_EQ(f.control("lblInfo").captionText(), "Kein Projekt in diesem Verzeichnis vorhanden!");
  EXPECT_FALSE(f.control("OK").enabled());

  f.control("Directory").setText("");
  EXPECT_EQ(f.control("lblInfo").captionText(), "");
  EXPECT_FALSE(f.control("OK").enabled());
}

TEST(ProjektOeffnenListe, WithoutKolmIniTheMessageAndAnEmptyList) {
  ProjektUmgebung u;
  u.zustand.ProgrammIni = (u.wurzel / "gibtsnicht.ini").string();
  forms::Form* f = u.menue("MnuDateiÖffnenProjekt", "ProjektÖffnen");
  ASSERT_NE(f, nullptr);
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_EQ(u.meldungen()[0], "Initialisierungsdatei '" + u.zustand.ProgrammIni + "' konnte nicht gefunden werden!");
  EXPECT_EQ(f->control("List").listCount(), 0);
  EXPECT_FALSE(f->control("OK").enabled());
}

TEST(ProjektOeffnenOrdnerwahl, TheButtonTakesTheFolderOfTheChosenProjectFile) {
  Oeffnen u;
  forms::Form& f = u.dialog();
  u.dienste.files.queue(u.zweites + "Kolmproj.ini");
  f.control("Drive").click();
  ASSERT_EQ(u.dienste.files.requests().size(), 1u);
  const forms::FileRequest& r = u.dienste.files.requests()[0];
  EXPECT_FALSE(r.save);
  EXPECT_NE(r.filter.find("Kolmproj.ini"), std::string::npos);
  EXPECT_EQ(r.directory, u.erstes) << "it starts where the field points";
  EXPECT_EQ(f.control("Directory").text(), u.zweites);
  EXPECT_EQ(f.control("lblInfo").captionText(), "Projekt 'Zweites' öffnen");

  u.dienste.files.queue("");  // cancelled
  f.control("Drive").click();
  EXPECT_EQ(f.control("Directory").text(), u.zweites);
}

TEST(ProjektOeffnenOeffnen, OkOpensTheChosenProject) {
  Oeffnen u;
  u.zustand.Tabellen[1].TablName = "Achse 2";  // not yet written
  u.zustand.Tabellen[1].Dateiname = "A2";
  forms::Form& f = u.dialog();
  f.control("List").setListIndex(1);
  f.control("OK").click();
  EXPECT_EQ(u.forms.FormGeladen("ProjektÖffnen"), -1);
  EXPECT_EQ(u.main->caption(), "Kolm: Zweites");
  EXPECT_EQ(u.zustand.ProjektVerzeichnis, u.zweites);
  EXPECT_EQ(u.zustand.Punkte[5].A, 101.25);
  EXPECT_EQ(u.kolmIni("last project", "Name"), "Zweites");
  EXPECT_NE(projekt_test::Inhalt(u.erstes + "Tabellen.ini").find("\"Achse 2\""), std::string::npos)
      << "the catalogue of the project left is written";
  EXPECT_GT(u.dienste.busy.times(), 0);
  EXPECT_EQ(u.dienste.busy.depth(), 0);
}

TEST(ProjektOeffnenOeffnen, ADoubleClickOpensButNotAFolderWithoutProject) {
  Oeffnen u;
  forms::Form& f = u.dialog();
  f.control("List").setListIndex(2);
  f.control("List").doubleClick();
  EXPECT_NE(u.forms.find("ProjektÖffnen"), nullptr);
  EXPECT_EQ(u.main->caption(), "Kolm: Erstes");
  f.control("List").setListIndex(1);
  f.control("List").doubleClick();
  EXPECT_EQ(u.forms.FormGeladen("ProjektÖffnen"), -1);
  EXPECT_EQ(u.main->caption(), "Kolm: Zweites");
}

TEST(ProjektOeffnenOeffnen, TheMenuAsksAboutAChangedTableAndCancelStaysInTheProject) {
  Oeffnen u;
  u.zustand.TabelleGeaendert = Wahr;
  u.dienste.messages.queue(Answer::No);
  forms::Form& f = u.dialog();
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_EQ(u.meldungen()[0], "Aktive Tabelle speichern?");
  f.control("List").setListIndex(1);
  f.control("Cancel").click();
  EXPECT_EQ(u.forms.FormGeladen("ProjektÖffnen"), -1);
  EXPECT_EQ(u.main->caption(), "Kolm: Erstes");
  EXPECT_TRUE(u.zustand.TabelleGeaendert) << "nothing was opened, nothing saved";
}

TEST(ProjektOeffnenEntfernen, YesTakesTheEntryFromKolmIniAndNothingElse) {
  Oeffnen u;
  forms::Form& f = u.dialog();
  f.control("List").setListIndex(1);
  u.dienste.messages.queue(Answer::No);
  f.control("cmdRemove").click();
  ASSERT_EQ(u.dienste.messages.shown().size(), 1u);
  const forms::Message& frage = u.dienste.messages.shown()[0].message;
  EXPECT_EQ(frage.text,
            "Wollen Sie das Projekt [Zweites] aus dieser Liste entfernen?\nHinweis: Das Verzeichnis wird nicht "
            "gelöscht.");
  EXPECT_EQ(frage.title, "Projekt entfernen");
  EXPECT_EQ(frage.buttons, forms::Buttons::YesNo);
  EXPECT_EQ(f.control("List").listCount(), 3);
  EXPECT_EQ(u.kolmIni("projects", "Zweites"), u.zweites);

  u.dienste.messages.queue(Answer::Yes);
  f.control("cmdRemove").click();
  EXPECT_EQ(f.control("List").list(), (std::vector<std::string>{"Erstes", "Verschwunden"}));
  EXPECT_EQ(f.control("List").listIndex(), -1);
  EXPECT_FALSE(f.control("cmdRemove").enabled());
  EXPECT_EQ(u.kolmIni("projects", "Zweites"), "(fehlt)");
  EXPECT_EQ(u.kolmIni("projects", "Erstes"), u.erstes);
  EXPECT_TRUE(fs::exists(u.zweites + "Kolmproj.ini")) << "the folder stays";
  EXPECT_TRUE(fs::exists(u.zweites + "A1.pkt"));

  f.control("Cancel").click();
  forms::Form& g = u.dialog();
  EXPECT_EQ(g.control("List").list(), (std::vector<std::string>{"Erstes", "Verschwunden"}));
}

TEST(ProjektOeffnenEntfernen, TheOpenProjectCanLeaveTheListAndStaysOpen) {
  Oeffnen u;
  forms::Form& f = u.dialog();
  u.dienste.messages.queue(Answer::Yes);
  f.control("cmdRemove").click();
  EXPECT_EQ(u.kolmIni("projects", "Erstes"), "(fehlt)");
  EXPECT_EQ(u.kolmIni("last project", "Name"), "Erstes");
  EXPECT_EQ(u.main->caption(), "Kolm: Erstes");
  EXPECT_EQ(u.zustand.Punkte[5].A, 101.25);
}

}  // namespace
}  // namespace kolm::core
