// Datei > Projekt kopieren nach: what the copy holds on disk, the progress
// window, the two check boxes, and the questions before anything is
// overwritten.
#include <gtest/gtest.h>

#include "core/dialogs/fortschritt.h"
#include "projekt_umgebung.h"

namespace kolm::core {
namespace {

namespace fs = std::filesystem;
using forms::Answer;
using projekt_test::Inhalt;
using projekt_test::ProjektUmgebung;

// What frmProgress showed, text by text.
class FortschrittZeuge : public forms::FormObserver {
 public:
  void propertyChanged(forms::Control& c, forms::Property p, int, int) override {
    if (c.name() == "lblText" && p == forms::Property::Caption) {
      texte.push_back(c.captionText());
      sichtbar = sichtbar && c.form().shown();
    }
  }
  void formUnloaded() override { geschlossen = true; }
  std::vector<std::string> texte;
  bool sichtbar = true;
  bool geschlossen = false;
};

// The open project "Quelle" in <root>/quelle/ with table "Achse 1" (A1),
// a second table "Achse 2" whose stem A10 begins like A1, and a file that
// belongs to no table.
struct Kopieren : ProjektUmgebung {
  std::string quelle;
  FortschrittZeuge zeuge;
  Kopieren() {
    quelle = projektAnlegen("quelle", "Quelle");
    io::WriteFileAtomically(quelle + "A10.ber", "zweite Tabelle");
    io::WriteFileAtomically(quelle + "A1_000.jpg", "Hintergrundbild");
    io::WriteFileAtomically(quelle + "notiz.txt", "gehört zu keiner Tabelle");
    io::WriteFileAtomically(quelle + "LV.MDB", "LV der Quelle");
    anwendung.ProjektOeffnen(quelle);
    zustand.Tabellen[1].TablName = "Achse 2";
    zustand.Tabellen[1].Dateiname = "A10";
    forms.registerForm("frmProgress", [this](forms::Forms& f) {
      auto form = std::make_unique<FortschrittForm>(f);
      form->addObserver(&zeuge);
      return form;
    });
  }
  forms::Form& dialog() {
    forms::Form* f = menue("MnuDateiProjektKopieren", "ProjektKopieren");
    EXPECT_NE(f, nullptr);
    return *f;
  }
  void kopieren(const std::string& name, bool eintragen, bool oeffnen) {
    forms::Form& f = dialog();
    f.control("TextProjektName").setText(name);
    f.control("chkEintragen").setValue(eintragen ? 1 : 0);
    f.control("chkOpenAfterwards").setValue(oeffnen ? 1 : 0);
    f.control("OK").click();
  }
};

TEST(ProjektKopierenDialog, NameFolderAndTheBoxesAsTheDialogOpens) {
  Kopieren u;
  forms::Form& f = u.dialog();
  EXPECT_EQ(f.caption(), "Projekt kopieren nach");
  EXPECT_EQ(f.control("chkEintragen").value(), 1);
  EXPECT_EQ(f.control("chkOpenAfterwards").value(), 0);
  EXPECT_FALSE(f.control("OK").enabled());
  ProjektUmgebung::tippe(f, "TextProjektName", U"Quelle Kopie");
  EXPECT_EQ(f.control("TextProjektName").text(), "QuelleKopie");
  EXPECT_EQ(f.control("TextDir").text(), u.ordner("QuelleKopie"));
  EXPECT_TRUE(f.control("OK").enabled());
}

TEST(ProjektKopierenDateien, TheCopyHoldsTheProjectAndEveryTableFileUnderItsNewName) {
  Kopieren u;
  u.kopieren("Kopie", true, false);
  const std::string ziel = u.ordner("Kopie");

  EXPECT_EQ(u.forms.FormGeladen("ProjektKopieren"), -1);
  EXPECT_TRUE(u.meldungen().empty());
  for (const char* datei : {"Tabellen.ini", "Tabelle2.ini", "LV.MDB", "A1.pkt", "A1.ber", "A10.ber", "A1_000.jpg"})
    EXPECT_EQ(Inhalt(ziel + datei), Inhalt(u.quelle + datei)) << datei;
  EXPECT_FALSE(fs::exists(ziel + "notiz.txt"));
  EXPECT_EQ(profile::ReadString(ziel + "Kolmproj.ini", "Project", "Name", "", 40), "Kopie");
  EXPECT_EQ(profile::ReadString(ziel + "Kolmproj.ini", "Defaults", "Aktive Tabelle", "", 40), "0");
  EXPECT_EQ(profile::ReadString(u.quelle + "Kolmproj.ini", "Project", "Name", "", 40), "Quelle");
  EXPECT_NE(Inhalt(ziel + "Tabellen.ini").find("\"Achse 2\""), std::string::npos)
      << "the catalogue as it is in memory";

  EXPECT_EQ(u.dienste.status.text(), "Projekt Kopie wurde kopiert");
  EXPECT_EQ(u.kolmIni("projects", "Kopie"), ziel);
  EXPECT_EQ(u.kolmIni("last project", "Name"), "Quelle") << "entered, not opened";
  EXPECT_EQ(u.main->caption(), "Kolm: Quelle");
  EXPECT_EQ(u.zustand.ProjektVerzeichnis, u.quelle);
  EXPECT_EQ(u.dienste.busy.depth(), 0);
  EXPECT_GT(u.dienste.busy.times(), 0);
}

TEST(ProjektKopierenDateien, TheProgressWindowNamesEachFileWhileItIsCopied) {
  Kopieren u;
  u.kopieren("Kopie", false, false);
  const std::string ziel = u.ordner("Kopie");
  const auto text = [&](const char* datei) {
    return std::string("Kopiere ") + datei + " [" + u.quelle + "] nach [" + ziel + "]";
  };
  // Row 0 (A1) takes every file beginning so, A10.ber of row 1 included,
  // in name order; notiz.txt belongs to no table.
  EXPECT_EQ(u.zeuge.texte,
            (std::vector<std::string>{"Projekt Kopie erstellen", text("A1.ber"), text("A1.bes"), text("A1.bog"),
                                      text("A1.pic"), text("A1.pkt"), text("A1.ver"), text("A10.ber"),
                                      text("A1_000.jpg"), "Projekt Kopie erstellen"}));
  EXPECT_TRUE(u.zeuge.sichtbar);
  EXPECT_TRUE(u.zeuge.geschlossen);
  EXPECT_EQ(u.forms.FormGeladen("frmProgress"), -1);
}

TEST(ProjektKopierenDateien, WithoutTheBoxesTheCopyIsNeitherEnteredNorOpened) {
  Kopieren u;
  u.kopieren("Kopie", false, false);
  EXPECT_EQ(u.kolmIni("projects", "Kopie"), "(fehlt)");
  EXPECT_TRUE(fs::exists(u.ordner("Kopie") + "Kolmproj.ini"));
  EXPECT_EQ(u.main->caption(), "Kolm: Quelle");
}

TEST(ProjektKopierenDateien, OpenAfterwardsMakesTheCopyTheOpenProject) {
  Kopieren u;
  u.kopieren("Kopie", false, true);
  const std::string ziel = u.ordner("Kopie");
  EXPECT_EQ(u.main->caption(), "Kolm: Kopie");
  EXPECT_EQ(u.zustand.ProjektVerzeichnis, ziel);
  EXPECT_EQ(u.zustand.Punkte[5].A, 101.25);
  EXPECT_EQ(u.kolmIni("last project", "Name"), "Kopie");
  EXPECT_EQ(u.kolmIni("projects", "Kopie"), ziel) << "opening enters it anyway";
}

TEST(ProjektKopierenDateien, DialogsOnTheDatabaseAreClosedFirst) {
  Kopieren u;
  for (const char* name : {"Berechnen", "LVEditieren"}) {
    u.forms.registerForm(name, [name](forms::Forms& f) { return std::make_unique<forms::Form>(f, name, name); });
    u.forms.show(name);
  }
  u.kopieren("Kopie", false, false);
  EXPECT_EQ(u.forms.FormGeladen("Berechnen"), -1);
  EXPECT_EQ(u.forms.FormGeladen("LVEditieren"), -1);
}

TEST(ProjektKopierenRueckfragen, AKnownNameIsAskedAboutAndCancelStays) {
  Kopieren u;
  u.projektAnlegen("anders", "Vorhanden");
  u.dienste.messages.queue(Answer::Cancel);
  u.kopieren("VORHANDEN", true, false);
  ASSERT_EQ(u.dienste.messages.shown().size(), 1u);
  const forms::Message& m = u.dienste.messages.shown()[0].message;
  EXPECT_EQ(m.text,
            "Es existiert schon ein Projekt unter dem Namen 'VORHANDEN'!\nWollen Sie den Projektnamen nun für diese "
            "Kopie verwenden und das Kopieren fortsetzen?");
  EXPECT_EQ(m.title, "Projekt kopieren");
  EXPECT_EQ(m.buttons, forms::Buttons::OKCancel);
  EXPECT_NE(u.forms.find("ProjektKopieren"), nullptr);
  EXPECT_FALSE(fs::exists(u.ordner("VORHANDEN")));

  u.dienste.messages.queue(Answer::OK);
  u.forms.find("ProjektKopieren")->control("OK").click();
  EXPECT_TRUE(fs::exists(u.ordner("VORHANDEN") + "A1.pkt"));
}

TEST(ProjektKopierenRueckfragen, AnExistingFolderIsOverwrittenOnlyAfterTheQuestion) {
  Kopieren u;
  const std::string ziel = u.ordner("Ziel");
  fs::create_directories(ziel);
  io::WriteFileAtomically(ziel + "A1.pkt", "alte Punkte im Ziel");
  u.dienste.messages.queue(Answer::Cancel);
  u.kopieren("Ziel", true, false);
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_EQ(u.meldungen()[0],
            "Ordner '" + ziel + "' existiert bereits!\nEventuell vorhandene Daten werden überschrieben.");
  EXPECT_EQ(Inhalt(ziel + "A1.pkt"), "alte Punkte im Ziel");
  EXPECT_EQ(u.kolmIni("projects", "Ziel"), "(fehlt)");

  u.dienste.messages.queue(Answer::OK);
  u.forms.find("ProjektKopieren")->control("OK").click();
  EXPECT_EQ(Inhalt(ziel + "A1.pkt"), Inhalt(u.quelle + "A1.pkt"));
}

TEST(ProjektKopierenRueckfragen, TheProjectsOwnFolderIsRefused) {
  Kopieren u;
  forms::Form& f = u.dialog();
  f.control("TextProjektName").setText("Selbst");
  f.control("TextDir").setText(u.quelle);
  f.control("OK").click();
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_EQ(u.meldungen()[0], "Ein Projekt kann nicht in sein eigenes Verzeichnis kopiert werden!");
  EXPECT_EQ(profile::ReadString(u.quelle + "Kolmproj.ini", "Project", "Name", "", 40), "Quelle");
  EXPECT_NE(u.forms.find("ProjektKopieren"), nullptr);
}

TEST(ProjektKopierenRueckfragen, TheMenuOffersToSaveTheTableSoTheCopyHoldsIt) {
  Kopieren u;
  u.zustand.AktiveTabelle = 0;
  u.zustand.TabelleGeaendert = Wahr;
  u.zustand.Punkte[8].A = 77.5;
  u.dienste.messages.queue(Answer::Yes);
  u.kopieren("Kopie", false, false);
  ASSERT_GE(u.meldungen().size(), 1u);
  EXPECT_EQ(u.meldungen()[0], "Aktive Tabelle speichern?");
  Zustand z;
  z.ProjektVerzeichnis = u.ordner("Kopie");
  TabellenKontext k(z);
  LesePunkte(k, "A1");
  EXPECT_EQ(z.Punkte[8].A, 77.5);
}

}  // namespace
}  // namespace kolm::core
