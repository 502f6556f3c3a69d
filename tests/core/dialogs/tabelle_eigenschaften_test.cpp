// TabelleEigenschaften: changing the active row, and deleting a table with
// its files.
#include "tabelle_umgebung.h"

namespace kolm::core {
namespace {

using forms::Answer;
using testing::TabellenUmgebung;

TEST(TabelleEigenschaften, ShowsTheActiveRowAndOkStoresItWritesTheCatalogueAndSaysSo) {
  TabellenUmgebung u;
  u.zeile(0, "Profil 1", "P1");
  Tabelle& t = u.zeile(1, "Profil 2", "P2", 1.25);
  t.Polar = Wahr;
  t.Falschdrehend = Wahr;
  u.anwendung.TabelleOeffnen(1);
  u.menue("MnuDateiEigenschaftenTabelle");
  forms::Form& f = *u.dialog("TabelleEigenschaften");
  EXPECT_EQ(f.control("TablName").text(), "Profil 2");
  EXPECT_EQ(f.control("Stationierung").text(), "1.25");
  EXPECT_EQ(f.control("Dateiname").text(), "P2");
  EXPECT_EQ(f.control("KoordinatenSystem").text(), "? Math rechts");
  EXPECT_EQ(f.control("CheckPolar").value(), 1);
  EXPECT_FALSE(f.control("FrameBeschriftung").visible());
  EXPECT_TRUE(f.control("Löschen").visible());

  f.control("TablName").setText("Profil 2a");
  EXPECT_EQ(f.control("Dateiname").text(), "P2") << "renaming keeps the stems";
  f.control("Stationierung").setText("1,5");
  f.control("KoordinatenSystem").setListIndex(1);
  f.control("CheckDritte").setValue(1);
  f.control("OK").click();

  EXPECT_TRUE(u.meldungen().empty());
  EXPECT_EQ(u.forms.FormGeladen("TabelleEigenschaften"), -1);
  const Tabelle& neu = u.zustand.Tabellen[1];
  EXPECT_EQ(neu.TablName, "Profil 2a");
  EXPECT_EQ(neu.Stationierung, 1.5);
  EXPECT_TRUE(neu.M31);
  EXPECT_FALSE(neu.Falschdrehend);
  EXPECT_TRUE(neu.Dritte);
  EXPECT_EQ(u.namenAufPlatte(), (std::vector<std::string>{"Profil 1", "Profil 2a"}));
  EXPECT_EQ(u.dienste.status.text(), "Tabelle Profil 2a geändert.");
  EXPECT_EQ(u.main().control("LabelAktTab").captionText(), "Profil 2a");
  EXPECT_EQ(u.main().control("KoordinatenSystem").listIndex(), 1);
  EXPECT_EQ(u.main().control("Check3D").value(), 1);
  EXPECT_TRUE(u.zustand.Dritte);
}

TEST(TabelleEigenschaften, ANameInUseIsRefusedAndAStemChangeRenamesNoFile) {
  TabellenUmgebung u;
  u.zeile(0, "Profil 1", "P1");
  u.zeile(1, "Profil 2", "P2");
  u.gespeichert(1);
  u.menue("MnuDateiEigenschaftenTabelle");
  forms::Form& f = *u.dialog("TabelleEigenschaften");
  f.control("TablName").setText("Profil 1");
  f.control("OK").click();
  EXPECT_EQ(u.meldungen(), (std::vector<std::string>{"Profil 1 existiert bereits! Wählen Sie bitte einen anderen Namen."}));
  EXPECT_EQ(u.zustand.Tabellen[1].TablName, "Profil 2");

  f.control("TablName").setText("Profil 2");
  f.control("Dateiname").setText("Q2.x");
  EXPECT_EQ(f.control("Dateiname").text(), "Q2x");
  f.control("OK").click();
  EXPECT_EQ(u.zustand.Tabellen[1].Dateiname, "Q2x");
  EXPECT_TRUE(u.da("P2.ber")) << "the files stay under the old stem";
  EXPECT_FALSE(u.da("Q2x.ber"));
  u.menue("MnuDateiSpeichernTabelle");
  EXPECT_TRUE(u.da("Q2x.ber")) << "until the next save";
}

TEST(TabelleEigenschaften, OkDropsArcsNoCalculationUses) {
  TabellenUmgebung u;
  u.zeile(0, "Profil 1", "P1");
  u.anwendung.TabelleOeffnen(0);
  u.zustand.Boegen[4].Radius = 10;
  u.zustand.Boegen[5].Radius = 20;
  Berechnung& b = u.zustand.Berechnungen[0];
  b.LVNr = LVNummer::Links("01.02");
  b.Anzahl = 1;
  b.Element[0] = -5;
  u.menue("MnuDateiEigenschaftenTabelle");
  u.dialog("TabelleEigenschaften")->control("OK").click();
  EXPECT_EQ(u.zustand.Boegen[4].Radius, 0);
  EXPECT_EQ(u.zustand.Boegen[5].Radius, 20);
}

TEST(TabelleEigenschaften, WithoutAnOpenTableThereIsNothingToChange) {
  TabellenUmgebung u;
  u.zeile(0, "Profil 1", "P1");
  u.menue("MnuDateiEigenschaftenTabelle");
  EXPECT_EQ(u.meldungen(), (std::vector<std::string>{"Es ist keine Tabelle geöffnet."}));
  EXPECT_EQ(u.forms.FormGeladen("TabelleEigenschaften"), -1);
  // Opened some other way its buttons stay off.
  forms::Form& f = *u.forms.show("TabelleEigenschaften");
  EXPECT_FALSE(f.control("OK").enabled());
  EXPECT_FALSE(f.control("Löschen").enabled());
}

TEST(TabelleLoeschen, AsksFirstThenDeletesTheFilesClosesTheDialogsAndClearsTheRow) {
  TabellenUmgebung u;
  u.zeile(0, "Profil 1", "P1");
  u.zeile(1, "Profil 2", "P2");
  u.gespeichert(1);
  std::ofstream(u.datei("P2.jpg")) << "jpg";
  for (const char* name : {"Grafik", "PunkteTabelle", "Berechnungen", "Verbindungen"}) u.forms.show(name);

  u.menue("MnuDateiEigenschaftenTabelle");
  u.dienste.messages.queue(Answer::Cancel);
  u.dialog("TabelleEigenschaften")->control("Löschen").click();
  ASSERT_EQ(u.dienste.messages.shown().size(), 1u);
  EXPECT_EQ(u.letzteMeldung().text, "Mit der Tabelle werden auch alle zugehörigen Aufzeichnungen gelöscht.");
  EXPECT_EQ(u.letzteMeldung().title, "Tabelle löschen");
  EXPECT_EQ(u.letzteMeldung().buttons, forms::Buttons::OKCancel);
  u.meldungen();
  EXPECT_TRUE(u.da("P2.pkt")) << "cancel deletes nothing";
  EXPECT_NE(u.forms.FormGeladen("TabelleEigenschaften"), -1);

  u.dienste.messages.queue(Answer::OK);
  u.dialog("TabelleEigenschaften")->control("Löschen").click();
  EXPECT_EQ(u.meldungen().size(), 1u) << "only the question";
  for (const char* endung : {".ver", ".bog", ".ber", ".pkt"})
    EXPECT_FALSE(u.da(std::string("P2") + endung)) << endung;
  for (const char* endung : {".bes", ".pic", ".jpg"}) EXPECT_TRUE(u.da(std::string("P2") + endung)) << endung;
  for (const char* name : {"Grafik", "PunkteTabelle", "Berechnungen", "TabelleEigenschaften"})
    EXPECT_EQ(u.forms.FormGeladen(name), -1) << name;
  EXPECT_NE(u.forms.FormGeladen("Verbindungen"), -1) << "other dialogs stay";
  EXPECT_FALSE(ZeileBenannt(u.zustand.Tabellen[1]));
  EXPECT_EQ(u.namenAufPlatte(), (std::vector<std::string>{"Profil 1"}));
  EXPECT_EQ(u.dienste.status.text(), "Tabelle gelöscht!");
  EXPECT_EQ(u.zustand.AktiveTabelle, -1);
  EXPECT_TRUE(u.zustand.PunktLeer(7)) << "the deleted table is no longer in memory";
  EXPECT_EQ(u.main().control("LabelAktTab").captionText(), "");
  u.menue("MnuDateiSpeichernTabelle");
  EXPECT_FALSE(u.da("P2.pkt")) << "nothing to save any more";
}

TEST(TabelleLoeschen, OneTableOfADoppelprofilLeavesThePointFileToTheOther) {
  TabellenUmgebung u;
  u.zeile(0, "Profil 1 links", "P1L", 0, "P1");
  u.zeile(1, "Profil 1 rechts", "P1R", 0, "P1");
  u.gespeichert(1);
  u.menue("MnuDateiEigenschaftenTabelle");
  u.dienste.messages.queue(Answer::OK);
  u.dialog("TabelleEigenschaften")->control("Löschen").click();
  const std::vector<std::string> gezeigt = u.meldungen();
  ASSERT_EQ(gezeigt.size(), 2u);
  EXPECT_EQ(gezeigt[1], "Die Punkte-Tabelle in der Datei 'P1' wird noch von mindestens einer weiteren Tabelle "
                        "benutzt und wird daher nicht gelöscht!");
  EXPECT_EQ(u.punkteIn("P1.pkt"), (std::vector<int>{7}));
  EXPECT_FALSE(u.da("P1R.ber"));
  EXPECT_EQ(u.namenAufPlatte(), (std::vector<std::string>{"Profil 1 links"}));
}

}  // namespace
}  // namespace kolm::core
