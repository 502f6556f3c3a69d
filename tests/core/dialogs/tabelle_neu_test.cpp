// NeueTabelle and TabelleDuplizieren as the user fills them: the proposal,
// the stems, the checks on OK, the files and the labels of the new table.
#include "tabelle_umgebung.h"

namespace kolm::core {
namespace {

using forms::Answer;
using testing::TabellenUmgebung;

TEST(NeueTabelle, ProposesTheNextNameWithTheActiveTablesSettingsAndTheStemsFollowTheName) {
  TabellenUmgebung u;
  Tabelle& t = u.zeile(0, "Profil 7", "P7");
  t.M31 = Wahr;
  u.zustand.AktiveTabelle = 0;
  u.zustand.M31 = Wahr;
  u.zustand.Falschdrehend = Wahr;
  u.zustand.Dritte = Wahr;
  u.menue("MnuDateiNeuTabelle");
  forms::Form& f = *u.dialog("NeueTabelle");
  EXPECT_EQ(f.control("TablName").text(), "Profil 8");
  EXPECT_EQ(f.control("Dateiname").text(), "P8");
  EXPECT_EQ(f.control("PktDateiName").text(), "P8");
  EXPECT_EQ(f.control("Stationierung").text(), "");
  EXPECT_EQ(f.control("KoordinatenSystem").text(), "? M31 links");
  EXPECT_EQ(f.control("CheckDritte").value(), 1);
  EXPECT_EQ(f.control("CheckPolar").value(), 0);
  EXPECT_EQ(f.control("optBeschriftung", 0).value(), 1);

  f.control("TablName").setText("Querprofil 12");
  EXPECT_EQ(f.control("Dateiname").text(), "Q12");
  EXPECT_EQ(f.control("PktDateiName").text(), "Q12");
  f.control("TablName").setText("A-1");
  EXPECT_EQ(f.control("Dateiname").text(), "A-1");
}

TEST(NeueTabelle, TheStemFieldsTakeOnlyDigitsLettersDashAndUnderscore) {
  TabellenUmgebung u;
  u.menue("MnuDateiNeuTabelle");
  forms::Form& f = *u.dialog("NeueTabelle");
  EXPECT_EQ(f.control("TablName").text(), "Profil 1") << "no active table";
  forms::Control& datei = f.control("Dateiname");
  datei.setText("");
  TabellenUmgebung::tippen(datei, U"Ab ä.1_-/x");
  EXPECT_EQ(datei.text(), "Ab1_-x");
  f.control("PktDateiName").setText("Straße 5!");
  EXPECT_EQ(f.control("PktDateiName").text(), "Strae5") << "a set or pasted text is filtered too";
}

TEST(NeueTabelle, OkWritesTheCatalogueAndTheFilesMakesTheTableActiveAndSaysSo) {
  TabellenUmgebung u;
  u.zeile(0, "Profil 1", "P1");
  u.gespeichert(0);
  u.anwendung.HauptfensterAusAktiverZeile();
  u.menue("MnuDateiNeuTabelle");
  forms::Form& f = *u.dialog("NeueTabelle");
  f.control("Stationierung").setText("0,25");
  f.control("KoordinatenSystem").setListIndex(1);
  f.control("CheckPolar").setValue(1);
  f.control("OK").click();

  EXPECT_TRUE(u.meldungen().empty());
  EXPECT_EQ(u.forms.FormGeladen("NeueTabelle"), -1);
  const Tabelle& neu = u.zustand.Tabellen[1];
  EXPECT_EQ(neu.TablName, "Profil 2");
  EXPECT_EQ(neu.Stationierung, 0.25);
  EXPECT_EQ(neu.Dateiname, "P2");
  EXPECT_TRUE(neu.M31);
  EXPECT_FALSE(neu.Falschdrehend);
  EXPECT_TRUE(neu.Polar);
  EXPECT_EQ(u.zustand.AktiveTabelle, 1);
  EXPECT_TRUE(u.zustand.PunktLeer(7)) << "the new table starts empty";
  EXPECT_FALSE(u.zustand.TabelleGeaendert);
  EXPECT_EQ(u.namenAufPlatte(), (std::vector<std::string>{"Profil 1", "Profil 2"}));
  for (const char* endung : {".ber", ".ver", ".bog", ".bes", ".pic", ".pkt"})
    EXPECT_TRUE(u.da(std::string("P2") + endung)) << endung;
  EXPECT_EQ(u.punkteIn("P1.pkt"), (std::vector<int>{7})) << "the other table's points stay";
  EXPECT_EQ(u.dienste.status.text(), "Neue Tabelle Profil 2 angelegt");
  EXPECT_EQ(u.main().control("LabelAktTab").captionText(), "Profil 2");
  EXPECT_EQ(u.main().control("KoordinatenSystem").listIndex(), 1);
  EXPECT_EQ(u.main().control("CheckPolar").value(), 1);
  EXPECT_TRUE(u.zustand.M31);
}

TEST(NeueTabelle, TheChosenLabelsAreInMemoryBoldBlackAtTheUpperLeftCornerUntilSaved) {
  TabellenUmgebung u;
  u.zustand.Einstellungen.GrafikFont = "Courier";
  u.zustand.Einstellungen.GrafikFontSize = 10;
  u.menue("MnuDateiNeuTabelle");
  forms::Form& f = *u.dialog("NeueTabelle");
  f.control("optBeschriftung", 2).click();
  f.control("OK").click();

  const auto& b = u.zustand.Beschriftungen;
  EXPECT_EQ(b[0].Text, "\\T");
  EXPECT_EQ(b[1].Text, "Maßstab 1 : \\M");
  EXPECT_EQ(b[2].Text, "Stationierung km \\S");
  EXPECT_TRUE(b[3].Text.empty());
  for (int i = 0; i < 3; ++i) {
    SCOPED_TRACE(i);
    EXPECT_TRUE(b[i].Fett);
    EXPECT_EQ(b[i].Farbe, 0);
    EXPECT_EQ(b[i].BezugsPunkt, 1);
    EXPECT_EQ(b[i].Massstab, 0);
    EXPECT_EQ(b[i].Schrift, "Courier");
    EXPECT_EQ(b[i].Groesse, 10.0f);
  }
  EXPECT_GT(b[0].B, b[1].B) << "one below the other";
  EXPECT_GT(b[1].B, b[2].B);
  EXPECT_TRUE(u.zustand.TabelleGeaendert) << "the labels are not on disk yet";
  EXPECT_EQ(u.inhalt("P1.bes"), "");
  u.menue("MnuDateiSpeichernTabelle");
  EXPECT_NE(u.inhalt("P1.bes").find("Stationierung km \\S;"), std::string::npos);

  u.menue("MnuDateiNeuTabelle");
  u.dialog("NeueTabelle")->control("optBeschriftung", 1).click();
  u.dialog("NeueTabelle")->control("OK").click();
  EXPECT_EQ(u.zustand.Tabellen[1].TablName, "Profil 2");
  EXPECT_EQ(u.zustand.Beschriftungen[1].Text, "Maßstab 1 : \\M");
  EXPECT_TRUE(u.zustand.Beschriftungen[2].Text.empty()) << "name and scale only";
}

TEST(NeueTabelle, AskedToSaveTheChangedActiveTableFirst) {
  TabellenUmgebung u;
  u.zeile(0, "Profil 1", "P1");
  u.gespeichert(0);
  u.zustand.Punkte[8].A = 3;
  u.zustand.TabelleGeaendert = Wahr;
  u.dienste.messages.queue(Answer::No);
  u.menue("MnuDateiNeuTabelle");
  EXPECT_EQ(u.meldungen(), (std::vector<std::string>{"Aktive Tabelle speichern?"}));
  EXPECT_EQ(u.punkteIn("P1.pkt"), (std::vector<int>{7}));
  u.dialog("NeueTabelle")->control("Cancel").click();
  EXPECT_EQ(u.zustand.AktiveTabelle, 0) << "cancel changes nothing";
  EXPECT_FALSE(ZeileBenannt(u.zustand.Tabellen[1]));

  u.dienste.messages.queue(Answer::Yes);
  u.menue("MnuDateiNeuTabelle");
  EXPECT_EQ(u.punkteIn("P1.pkt"), (std::vector<int>{7, 8}));
}

TEST(NeueTabelle, ATakenNameOrStemOrABlankNameKeepsTheDialogOpen) {
  TabellenUmgebung u;
  u.zeile(0, "Profil 1", "P1");
  u.zeile(3, "Achse", "AX", 0, "AXP");
  u.menue("MnuDateiNeuTabelle");
  forms::Form& f = *u.dialog("NeueTabelle");
  f.control("TablName").setText("Achse");
  f.control("OK").click();
  EXPECT_EQ(u.meldungen(), (std::vector<std::string>{"Achse existiert bereits! Wählen Sie bitte einen anderen Namen."}));
  f.control("TablName").setText("Achse neu");
  f.control("Dateiname").setText("AX");
  f.control("OK").click();
  EXPECT_EQ(u.meldungen(), (std::vector<std::string>{"Der Dateiname AX wird bereits von der Tabelle 'Achse' "
                                                     "verwendet! Wählen Sie bitte einen anderen Namen."}));
  f.control("TablName").setText("   ");
  f.control("OK").click();
  EXPECT_EQ(u.meldungen().size(), 1u);
  EXPECT_NE(u.forms.FormGeladen("NeueTabelle"), -1);
  EXPECT_EQ(u.namenAufPlatte(), std::vector<std::string>{}) << "nothing written";
  EXPECT_FALSE(u.da("AX.pkt"));
}

TEST(NeueTabelle, ASharedPointFileIsADoppelprofilAskedForWithTheStationing) {
  TabellenUmgebung u;
  u.zeile(0, "Profil 1", "P1", 0.1);
  u.gespeichert(0);
  u.menue("MnuDateiNeuTabelle");
  forms::Form& f = *u.dialog("NeueTabelle");
  f.control("TablName").setText("Profil 1 rechts");
  EXPECT_EQ(f.control("PktDateiName").text(), "P1rechts");
  f.control("Dateiname").setText("P1R");
  f.control("PktDateiName").setText("P1");
  f.control("Stationierung").setText("0.2");
  u.anwendung.kontext().dezimalzeichen = ",";

  u.dienste.messages.queue(Answer::Cancel);
  f.control("OK").click();
  ASSERT_EQ(u.dienste.messages.shown().size(), 1u);
  EXPECT_EQ(u.letzteMeldung().buttons, forms::Buttons::OKCancel);
  EXPECT_EQ(u.meldungen(), (std::vector<std::string>{
                               "Der Punkt-Dateiname P1 wird auch von der Tabelle 'Profil 1' verwendet!\nWenn Sie OK "
                               "wählen, dann werden die Punkte von beiden Tabellen verwendet. Dies entspricht im "
                               "Tiefbau einem Doppelprofil."}));
  EXPECT_FALSE(ZeileBenannt(u.zustand.Tabellen[1])) << "cancel returns to the dialog";

  u.dienste.messages.queue(Answer::OK);
  u.dienste.messages.queue(Answer::Yes);
  f.control("OK").click();
  const std::vector<std::string> gezeigt = u.meldungen();
  ASSERT_EQ(gezeigt.size(), 2u);
  EXPECT_EQ(gezeigt[1], "Soll die Stationierung 0,1 aus Tabelle 'Profil 1' übernommen werden?");
  const Tabelle& neu = u.zustand.Tabellen[1];
  EXPECT_EQ(neu.PktDateiName, "P1");
  EXPECT_EQ(neu.Stationierung, 0.1) << "taken over";
  EXPECT_EQ(u.zustand.Punkte[7].A, 12.5) << "the shared points were read";
  const auto& verlauf = u.dienste.status.history();
  EXPECT_NE(std::find(verlauf.begin(), verlauf.end(), "Punkte-Tabelle lesen..."), verlauf.end());
  EXPECT_EQ(u.punkteIn("P1.pkt"), (std::vector<int>{7})) << "saving the new table kept them";
  EXPECT_TRUE(u.da("P1R.ber"));
  EXPECT_FALSE(u.da("P1R.pkt"));
}

TEST(NeueTabelle, TheStationingStaysWhenTheTakeoverIsDeclined) {
  TabellenUmgebung u;
  u.zeile(0, "Profil 1", "P1", 0.1);
  u.menue("MnuDateiNeuTabelle");
  forms::Form& f = *u.dialog("NeueTabelle");
  f.control("TablName").setText("Profil 2");
  f.control("Dateiname").setText("P2");
  f.control("PktDateiName").setText("P1");
  f.control("Stationierung").setText("0,2");
  u.dienste.messages.queue(Answer::OK);
  u.dienste.messages.queue(Answer::No);
  f.control("OK").click();
  EXPECT_EQ(u.meldungen().size(), 2u);
  EXPECT_EQ(u.zustand.Tabellen[1].Stationierung, 0.2);
  EXPECT_TRUE(u.zustand.PunktLeer(7)) << "the shared file holds no points";
}

TEST(NeueTabelle, The502ndTableIsRefused) {
  TabellenUmgebung u;
  for (int n = 0; n < AnzahlTabellen; ++n) u.zeile(n, "T" + std::to_string(n), "T" + std::to_string(n));
  u.menue("MnuDateiNeuTabelle");
  forms::Form& f = *u.dialog("NeueTabelle");
  f.control("TablName").setText("Noch eine");
  f.control("OK").click();
  ASSERT_EQ(u.dienste.messages.shown().size(), 1u);
  EXPECT_EQ(u.letzteMeldung().text, "Es ist leider keine Platz mehr für eine neue Tabelle vorhanden!");
  EXPECT_EQ(u.letzteMeldung().title, "Kolm roars...");
  EXPECT_NE(u.forms.FormGeladen("NeueTabelle"), -1);
  EXPECT_FALSE(u.da("Nocheine.ber"));
}

TEST(TabelleDuplizieren, TheTablesInMemoryAreSavedUnderTheNewStemsAndTheCopyIsActive) {
  TabellenUmgebung u;
  u.zeile(0, "Profil 1", "P1", 0.5);
  u.gespeichert(0);
  u.zustand.Punkte[9].B = 4;  // a change not saved
  u.zustand.Beschriftungen[0].Text = "Achse";
  u.zustand.TabelleGeaendert = Wahr;
  u.dienste.messages.queue(Answer::No);
  u.menue("MnuDateiDuplizieren");
  EXPECT_EQ(u.meldungen(), (std::vector<std::string>{"Aktive Tabelle vor dem Duplizieren/Klonen speichern?"}));
  forms::Form& f = *u.dialog("TabelleDuplizieren");
  EXPECT_EQ(f.control("TablName").text(), "Profil 2");
  EXPECT_FALSE(f.control("FrameBeschriftung").visible()) << "a copy keeps its labels";
  f.control("OK").click();

  EXPECT_EQ(u.zustand.AktiveTabelle, 1);
  EXPECT_EQ(u.zustand.Tabellen[1].Dateiname, "P2");
  EXPECT_EQ(u.punkteIn("P2.pkt"), (std::vector<int>{7, 9}));
  EXPECT_EQ(u.punkteIn("P1.pkt"), (std::vector<int>{7})) << "the original was not saved";
  EXPECT_NE(u.inhalt("P2.bes").find("Achse;"), std::string::npos);
  EXPECT_EQ(u.zustand.Punkte[9].B, 4) << "memory stays";
  EXPECT_FALSE(u.zustand.TabelleGeaendert);
  EXPECT_EQ(u.dienste.status.text(), "Tabelle Profil 2 als Duplikat geladen.");
  EXPECT_EQ(u.main().control("LabelAktTab").captionText(), "Profil 2");
  EXPECT_EQ(u.namenAufPlatte(), (std::vector<std::string>{"Profil 1", "Profil 2"}));
}

TEST(TabelleDuplizieren, WithTheSamePointFileThePointsAreSharedAndWithoutATableThereIsNothingToCopy) {
  TabellenUmgebung u;
  u.menue("MnuDateiDuplizieren");
  EXPECT_EQ(u.meldungen(), (std::vector<std::string>{"Es ist keine Tabelle geöffnet."}));
  EXPECT_EQ(u.forms.FormGeladen("TabelleDuplizieren"), -1);

  u.zeile(0, "Profil 1", "P1");
  u.gespeichert(0);
  u.zustand.Punkte[9].A = 1;
  u.menue("MnuDateiDuplizieren");
  forms::Form& f = *u.dialog("TabelleDuplizieren");
  f.control("Dateiname").setText("P1B");
  f.control("PktDateiName").setText("P1");
  u.dienste.messages.queue(Answer::OK);
  f.control("OK").click();
  EXPECT_EQ(u.zustand.Tabellen[1].PktDateiName, "P1");
  EXPECT_EQ(u.punkteIn("P1.pkt"), (std::vector<int>{7, 9})) << "one point file for both";
  EXPECT_FALSE(u.da("P1B.pkt"));
}

}  // namespace
}  // namespace kolm::core
