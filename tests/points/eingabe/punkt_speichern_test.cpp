// Saving a point under its number: the range, the overwrite question, what
// the slot and the other dialogs get, and the numbers offered next.
#include <gtest/gtest.h>

#include "points/eingabe/punkt_speichern.h"
#include "points/eingabe/ueberschreibliste.h"
#include "umgebung.h"

namespace kolm::points::testing {
namespace {

using forms::Answer;

TEST(PunktSpeichern, StoresIntoAnEmptySlotWithTheStandardOffsets) {
  Umgebung u;
  u.zustand.StandardAusrichtung = 4;
  u.zustand.StandardDistanz = 2.5;
  u.zustand.StandardVersatzBerechnen();
  core::Punkt p = Rekord(10.5, -3.25, 1, 3);
  p.Farbe = 255;
  p.TextDx = 9;
  EXPECT_TRUE(PunktSpeichern(u.anwendung, p, 12));
  EXPECT_EQ(p.Nummer, 12);
  const core::Punkt& slot = u.zustand.Punkte[12];
  EXPECT_EQ(slot.Nummer, 12);
  EXPECT_DOUBLE_EQ(slot.A, 10.5);
  EXPECT_DOUBLE_EQ(slot.B, -3.25);
  EXPECT_DOUBLE_EQ(slot.C, 1);
  EXPECT_EQ(slot.KurzBez, 3);
  EXPECT_EQ(slot.Farbe, 255);
  EXPECT_FLOAT_EQ(slot.TextDx, 2.5f) << "alignment 4 puts the caption right and below";
  EXPECT_FLOAT_EQ(slot.TextDy, -2.5f);
  EXPECT_TRUE(u.zustand.TabelleGeaendert);
  EXPECT_TRUE(u.meldungen().empty()) << "an empty slot takes the point without a question";
}

TEST(PunktSpeichern, NumberZeroIsALegalPoint) {
  Umgebung u;
  core::Punkt p = Rekord(1, 2);
  EXPECT_TRUE(PunktSpeichern(u.anwendung, p, 0));
  EXPECT_EQ(p.Nummer, 0);
  EXPECT_FALSE(u.zustand.PunktLeer(0));
}

TEST(PunktSpeichern, RefusesNumbersOutsideTheTableWithTheMessage) {
  Umgebung u;
  for (int nummer : {u.zustand.AnzahlPunkte, -1, 32767}) {
    u.zustand.TabelleGeaendert = core::Falsch;
    core::Punkt p = Rekord(1, 2);
    EXPECT_FALSE(PunktSpeichern(u.anwendung, p, nummer)) << nummer;
    EXPECT_EQ(p.Nummer, -1) << nummer;
    EXPECT_TRUE(u.zustand.TabelleGeaendert) << "set in every case, a refusal too";
  }
  EXPECT_TRUE(u.zustand.PunktLeer(u.zustand.AnzahlPunkte)) << "the grid's last row stays empty";
  ASSERT_EQ(u.meldungen().size(), 3u);
  EXPECT_EQ(u.meldungen()[0].message.text, "Die Punktnummer muß zwischen 0 und 999liegen!");
  EXPECT_EQ(u.meldungen()[0].message.title, "Punkt speichern");
}

TEST(PunktSpeichern, TheRangeMessageShowsTheTableSizeInTheNumberFormat) {
  Umgebung u;
  u.zustand.PunkteDimensionieren(2500);
  u.zustand.Einstellungen.NummernFormat = "00000";
  core::Punkt p = Rekord(1, 2);
  PunktSpeichern(u.anwendung, p, 2500);
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_EQ(u.meldungen()[0].message.text, "Die Punktnummer muß zwischen 0 und 02500liegen!");
  core::Punkt q = Rekord(1, 2);
  EXPECT_TRUE(PunktSpeichern(u.anwendung, q, 2499));
}

TEST(PunktSpeichern, AUsedSlotIsOverwrittenOnlyAfterYes) {
  Umgebung u;
  u.zustand.Kurzbezeichnungen[2].Text = "Grenzstein";
  u.punkt(5, 1234.5, -7, 3, 2);
  u.dienste.messages.queue(Answer::Yes);
  core::Punkt p = Rekord(1, 2, 3);
  EXPECT_TRUE(PunktSpeichern(u.anwendung, p, 5));
  ASSERT_EQ(u.meldungen().size(), 1u);
  const forms::Message& frage = u.meldungen()[0].message;
  EXPECT_EQ(frage.text, "Soll Grenzstein 5: (1234.500/-7.000) überschrieben werden?");
  EXPECT_EQ(frage.title, "Punkt abspeichern");
  EXPECT_EQ(frage.buttons, forms::Buttons::YesNo);
  EXPECT_EQ(p.Nummer, 5);
  EXPECT_DOUBLE_EQ(u.zustand.Punkte[5].A, 1);
  EXPECT_EQ(u.zustand.Punkte[5].KurzBez, 0);
}

TEST(PunktSpeichern, NoLeavesTheSlotAndGivesMinusOne) {
  Umgebung u;
  u.punkt(5, 1234.5, -7, 3);
  u.zustand.TabelleGeaendert = core::Falsch;
  u.dienste.messages.queue(Answer::No);
  core::Punkt p = Rekord(1, 2, 3);
  EXPECT_FALSE(PunktSpeichern(u.anwendung, p, 5));
  EXPECT_EQ(p.Nummer, -1);
  EXPECT_DOUBLE_EQ(u.zustand.Punkte[5].A, 1234.5);
  EXPECT_DOUBLE_EQ(u.zustand.Punkte[5].B, -7);
  EXPECT_EQ(u.zustand.Punkte[5].Nummer, 5);
  EXPECT_TRUE(u.zustand.TabelleGeaendert);
  EXPECT_EQ(UeberschreiblisteVon(u.anwendung).Anzahl(), 0) << "nothing was overwritten";
  EXPECT_EQ(u.main().control("cmbBlueBox").listCount(), 0);
}

TEST(PunktSpeichern, ZeroOverAUsedPointAsksAndThenEmptiesTheSlot) {
  Umgebung u;
  u.punkt(8, 4, 5, 6);
  u.dienste.messages.queue(Answer::Yes);
  core::Punkt null = Rekord(0, 0, 0);
  EXPECT_TRUE(PunktSpeichern(u.anwendung, null, 8));
  EXPECT_EQ(u.meldungen().size(), 1u);
  EXPECT_TRUE(u.zustand.PunktLeer(8));
  EXPECT_EQ(NaechsteNummer(u.zustand), 0);
}

TEST(PunktSpeichern, ADesignationOf100OrAboveIsOverwrittenWithoutAQuestion) {
  Umgebung u;
  u.punkt(3, 1, 1, 0, 100);
  core::Punkt p = Rekord(2, 2);
  EXPECT_TRUE(PunktSpeichern(u.anwendung, p, 3));
  EXPECT_TRUE(u.meldungen().empty());
  EXPECT_DOUBLE_EQ(u.zustand.Punkte[3].A, 2);
  EXPECT_EQ(UeberschreiblisteVon(u.anwendung).Anzahl(), 1) << "the old point is kept all the same";
}

TEST(PunktSpeichern, TheQuestionShowsValuesInTheStandardFormat) {
  Umgebung u;
  u.zustand.Einstellungen.StandardFormat = "0.0";
  u.zustand.Kurzbezeichnungen[0].Text = "Pkt.";
  u.punkt(12, 0.25, 1e6);
  u.dienste.messages.queue(Answer::No);
  core::Punkt p = Rekord(1, 1);
  PunktSpeichern(u.anwendung, p, 12);
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_EQ(u.meldungen()[0].message.text, "Soll Pkt. 12: (0.3/1000000.0) überschrieben werden?");
}

TEST(PunktSpeichern, RepaintsTheGridRowAndDrawsThePointOnlyWithTheGraphicLoaded) {
  Umgebung u;
  Protokoll& tabelle = u.dialog("PunkteTabelle");
  std::vector<int> gezeichnet;
  GrafikPunktZeichnerSetzen(u.anwendung, [&](int n) { gezeichnet.push_back(n); });
  core::Punkt p = Rekord(1, 2);
  PunktSpeichern(u.anwendung, p, 4);
  EXPECT_EQ(tabelle.gerufen, std::vector<std::string>{"RepaintPunkt"});
  EXPECT_EQ(u.anwendung.PunktZumAuffrischen(), 4);
  EXPECT_TRUE(gezeichnet.empty()) << "no graphic is open";

  Protokoll& grafik = u.dialog("Grafik");
  core::Punkt q = Rekord(3, 4);
  PunktSpeichern(u.anwendung, q, 6);
  EXPECT_EQ(gezeichnet, std::vector<int>{6});
  EXPECT_TRUE(grafik.gerufen.empty()) << "the one point is drawn, the graphic is not repainted";

  core::Punkt r = Rekord(3, 4);
  PunktSpeichern(u.anwendung, r, 999);
  EXPECT_EQ(gezeichnet, std::vector<int>{6}) << "a refused point draws nothing";
}

TEST(Ueberschreibliste, KeepsTheLastSevenNewestFirstAndMirrorsThemInTheBlueBox) {
  Umgebung u;
  u.zustand.Kurzbezeichnungen[0].Text = "Pkt.";
  for (int i = 1; i <= 8; ++i) {
    u.punkt(20, i, 10 * i);
    u.dienste.messages.queue(Answer::Yes);
    core::Punkt p = Rekord(100 + i, 0);
    ASSERT_TRUE(PunktSpeichern(u.anwendung, p, 20));
  }
  const Ueberschreibliste& liste = UeberschreiblisteVon(u.anwendung);
  ASSERT_EQ(liste.Anzahl(), 7) << "the eighth overwrite pushed the first out";
  EXPECT_DOUBLE_EQ(liste.Eintrag(0).Punkt.A, 8);
  EXPECT_DOUBLE_EQ(liste.Eintrag(6).Punkt.A, 2);
  EXPECT_EQ(liste.Eintrag(0).Art, 4);
  EXPECT_EQ(liste.Eintrag(0).Nummer, 20);
  EXPECT_EQ(liste.Eintrag(0).Punkt.Nummer, 20);

  const forms::Control& box = u.main().control("cmbBlueBox");
  ASSERT_EQ(box.listCount(), 7);
  EXPECT_EQ(box.list()[0], "Alter Pkt. 20  X= 8.000  Y= 80.000");
  EXPECT_EQ(box.list()[6], "Alter Pkt. 20  X= 2.000  Y= 20.000");
  EXPECT_EQ(box.listIndex(), 0);
  EXPECT_EQ(box.text(), box.list()[0]) << "the box shows the newest line";
  EXPECT_EQ(liste.Eintrag(0).Text, box.list()[0]);
}

TEST(Ueberschreibliste, TheLineFollowsTheTableForm) {
  Umgebung u;
  u.zustand.Dritte = core::Wahr;
  u.zustand.M31 = core::Wahr;
  u.punkt(7, 1, 2, 3);
  UeberschriebenMerken(u.anwendung, u.zustand.Punkte[7], 7);
  EXPECT_EQ(u.main().control("cmbBlueBox").list().at(0), "Alter  7  Y= 1.000  X= 2.000   H= 3.000");
}

TEST(NaechsteNummer, IsOneAboveTheHighestUsedSlot) {
  core::Zustand z;
  EXPECT_EQ(NaechsteNummer(z), 0) << "empty table";
  z.Punkte[5].A = 1;
  EXPECT_EQ(NaechsteNummer(z), 6) << "only point 5";
  z.Punkte[2].C = -1;
  EXPECT_EQ(NaechsteNummer(z), 6) << "gaps are not filled";
  z.Punkte[0].B = 1;
  z.Punkte[5].A = 0;
  EXPECT_EQ(NaechsteNummer(z), 3);
  z.Punkte[998].A = 1;
  EXPECT_EQ(NaechsteNummer(z), 999) << "the last savable slot gives a number PunktSpeichern refuses";
  z.Punkte[static_cast<size_t>(z.AnzahlPunkte)].A = 1;
  EXPECT_EQ(NaechsteNummer(z), 0) << "slot AnzahlPunkte used: start again at 0";
}

TEST(PunktAusListe, TakesTheNumberFromTheLastFourCharacters) {
  core::Zustand z;
  z.Punkte[12].A = 7;
  z.Punkte[12].KurzBez = 4;
  z.Punkte[12].Nummer = 3;  // as a file may have left it
  core::Punkt p;
  EXPECT_TRUE(PunktAusListe(z, "Punkt Nr.   12", p));
  EXPECT_DOUBLE_EQ(p.A, 7);
  EXPECT_EQ(p.KurzBez, 4);
  EXPECT_EQ(p.Nummer, 12);
  EXPECT_TRUE(PunktAusListe(z, "X= 1.000  Nr 999", p)) << "slot AnzahlPunkte exists";
  EXPECT_EQ(p.Nummer, 999);
}

TEST(PunktAusListe, BadTextsGiveNoPointAndLeaveTheRecord) {
  core::Zustand z;
  z.Punkte[0].A = 5;
  for (const char* text : {"", "    ", "123456789", "-5", "1e30", "12,5e9", "Nr.1000"}) {
    core::Punkt p;
    p.A = -1;
    EXPECT_FALSE(PunktAusListe(z, text, p)) << text;
    EXPECT_DOUBLE_EQ(p.A, -1) << text;
  }
  EXPECT_EQ(NummerAmEnde(z, "Nr. 12,5"), 12) << "12.5 rounds half to even";
  EXPECT_EQ(NummerAmEnde(z, "x13.5"), 14);
  EXPECT_EQ(NummerAmEnde(z, "Nr.5ä99"), 5) << "four characters, not bytes";
  EXPECT_EQ(NummerAmEnde(z, "--12"), 0) << "a second sign stops the reading at 0";
}

}  // namespace
}  // namespace kolm::points::testing
