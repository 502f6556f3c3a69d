// The process-wide tables: limits, empty slots, clearing rules with their
// settings values, the next-free cursors and the arc sweep.
#include <gtest/gtest.h>

#include <memory>

#include "core/state/zustand.h"
#include "../records/fester_text_druck.h"

namespace kolm::core {
namespace {

std::unique_ptr<Zustand> Neu() { return std::make_unique<Zustand>(); }

// ---- A fresh state ------------------------------------------------------------

TEST(NeuerZustand, EveryTableHasItsSlotsAndEveryoneIsEmpty) {
  auto z = Neu();
  EXPECT_EQ(z->AnzahlPunkte, 999);
  EXPECT_EQ(z->Punkte.size(), 1000u);
  EXPECT_EQ(z->Verbindungen.size(), 2000u);
  EXPECT_EQ(z->Boegen.size(), 500u);
  EXPECT_EQ(z->Beschriftungen.size(), 1000u);
  EXPECT_EQ(z->Berechnungen.size(), 300u);
  EXPECT_EQ(z->Hintergrundbilder.size(), 21u);
  EXPECT_EQ(z->Tabellen.size(), 501u);
  EXPECT_EQ(z->Kurzbezeichnungen.size(), 100u);
  EXPECT_EQ(z->Korrekturen.size(), 25u);
  EXPECT_EQ(z->Variablen.size(), 26u);
  for (int n = 0; n <= 999; ++n) ASSERT_TRUE(z->PunktLeer(n)) << n;
  for (const auto& v : z->Verbindungen) ASSERT_EQ(v.Von, -1);
  for (const auto& b : z->Boegen) ASSERT_EQ(b.Radius, 0);
  for (const auto& b : z->Beschriftungen) ASSERT_TRUE(b.Text.empty());
  for (const auto& b : z->Berechnungen) ASSERT_TRUE(b.LVNr.IstLeer());
  for (const auto& h : z->Hintergrundbilder) ASSERT_EQ(h.Breite, 0);
  for (const auto& t : z->Tabellen) ASSERT_TRUE(t.TablName.empty());
}

TEST(NeuerZustand, TheActiveTableIsNoneAndTheSettingsHaveTheirDefaults) {
  auto z = Neu();
  EXPECT_EQ(z->AktiveTabelle, -1);
  EXPECT_EQ(z->TabelleGeaendert, Falsch);
  EXPECT_EQ(z->Laden, Falsch);
  EXPECT_DOUBLE_EQ(z->WinkelFaktor, 3.141592654 / 200) << "Neugrad";
  EXPECT_EQ(z->Intervall, 0);
  EXPECT_EQ(z->StandardDistanz, 0.1);
  EXPECT_EQ(z->StandardAusrichtung, 2);
  EXPECT_EQ(z->Ansicht.Rasterabstand, 10);
  EXPECT_EQ(z->Ansicht.Massstab, 100);
  EXPECT_EQ(z->Ansicht.Ueberhoehung, 1);
  EXPECT_EQ(z->Punkte[17].Nummer, 17);
  EXPECT_EQ(z->Punkte[17].TextDx, 0.1f) << "alignment 2 puts the caption up and right";
  EXPECT_EQ(z->Punkte[17].TextDy, 0.1f);
}

TEST(NeuerZustand, TwoStatesShareNothing) {
  auto a = Neu();
  auto b = Neu();
  a->Punkte[1].A = 5;
  a->AktiveTabelle = 3;
  EXPECT_TRUE(b->PunktLeer(1));
  EXPECT_EQ(b->AktiveTabelle, -1);
}

// ---- Points ---------------------------------------------------------------------

TEST(Punkte, AnzahlPunkteIsClampedTo999Through9999) {
  auto z = Neu();
  for (const auto& [verlangt, anzahl] : {std::pair{500, 999}, {20000, 9999}, {0, 999}, {4711, 4711}}) {
    z->PunkteDimensionieren(verlangt);
    EXPECT_EQ(z->AnzahlPunkte, anzahl) << verlangt;
    EXPECT_EQ(z->Punkte.size(), static_cast<std::size_t>(anzahl) + 1) << verlangt;
  }
}

TEST(Punkte, ResizingKeepsThePointsThatStillFit) {
  auto z = Neu();
  z->Punkte[500].A = 1.5;
  z->PunkteDimensionieren(5000);
  EXPECT_EQ(z->Punkte[500].A, 1.5);
  EXPECT_TRUE(z->PunktLeer(4000));
  EXPECT_EQ(z->Punkte[4000].Nummer, 4000) << "new slots are cleared slots";
  z->Punkte[4000].B = 2;
  z->PunkteDimensionieren(999);
  EXPECT_EQ(z->Punkte[500].A, 1.5);
  z->PunkteDimensionieren(5000);
  EXPECT_TRUE(z->PunktLeer(4000)) << "a point beyond a smaller table is lost";
}

TEST(Punkte, EmptyMeansZeroZeroZeroAndOutOfRangeIsNotEmpty) {
  auto z = Neu();
  z->Punkte[5].C = 0.001;
  EXPECT_FALSE(z->PunktLeer(5));
  z->Punkte[6].A = -0.0;
  EXPECT_TRUE(z->PunktLeer(6)) << "minus zero is zero";
  z->Punkte[7].KurzBez = 9;
  z->Punkte[7].Farbe = 255;
  EXPECT_TRUE(z->PunktLeer(7)) << "there is no used mark besides the coordinates";
  EXPECT_TRUE(z->PunktLeer(999)) << "slot AnzahlPunkte takes part in the test";
  EXPECT_FALSE(z->PunktLeer(1000));
  EXPECT_FALSE(z->PunktLeer(-1));
  EXPECT_FALSE(z->PunktLeer(70000));
}

TEST(Punkte, ClearingUsesTheStandardDesignationOffsetAndColour) {
  auto z = Neu();
  z->StandardKurzBezeichnung = 7;
  z->PunktFarben[3].Farbe = 0x00FF00;
  z->StandardPunktFarbe = 3;
  z->StandardDistanz = 0.5;
  z->StandardAusrichtung = 6;
  z->StandardVersatzBerechnen();
  z->Punkte[10] = Punkt{99, 1, 1, 2, 3, 9, 9, 1};
  z->PunktLoeschen(10);
  const Punkt& p = z->Punkte[10];
  EXPECT_EQ(p.Nummer, 10);
  EXPECT_EQ(p.KurzBez, 7);
  EXPECT_TRUE(z->PunktLeer(10));
  EXPECT_EQ(p.TextDx, -0.5f);
  EXPECT_EQ(p.TextDy, -0.5f);
  EXPECT_EQ(p.Farbe, 0x00FF00);
}

TEST(Punkte, AStandardDesignationOutsideTheListCountsAsEntryZero) {
  auto z = Neu();
  for (int wert : {100, -1, 32767}) {
    z->StandardKurzBezeichnung = static_cast<Integer>(wert);
    z->PunktLoeschen(1);
    EXPECT_EQ(z->Punkte[1].KurzBez, 0) << wert;
  }
  z->StandardKurzBezeichnung = 99;
  z->PunktLoeschen(1);
  EXPECT_EQ(z->Punkte[1].KurzBez, 99);
}

TEST(Punkte, ClearingASlotBelowTheCursorLowersIt) {
  auto z = Neu();
  z->NaechsterFreierPunkt = 50;
  z->PunktLoeschen(60);
  EXPECT_EQ(z->NaechsterFreierPunkt, 50);
  z->PunktLoeschen(12);
  EXPECT_EQ(z->NaechsterFreierPunkt, 12);
  z->PunktLoeschen(1000);  // outside the table: nothing
  z->PunktLoeschen(-3);
  EXPECT_EQ(z->NaechsterFreierPunkt, 12);
}

// ---- Connections ----------------------------------------------------------------

TEST(Verbindungen, ClearingMarksBothEndsAndTakesTheStandardLineColour) {
  auto z = Neu();
  z->LinienFarben[4].Farbe = 0x0000FF;
  z->StandardLinienFarbe = 4;
  z->Verbindungen[8] = Verbindung{1, 2, 5, 1, 1, 1, 1, 1, 0x33000000};
  z->NaechsteFreieVerbindung = 20;
  z->VerbindungLoeschen(8);
  const Verbindung& v = z->Verbindungen[8];
  EXPECT_EQ(v.Von, -1);
  EXPECT_EQ(v.Nach, -1);
  EXPECT_EQ(v.Radius, 0);
  EXPECT_EQ(v.Art, 0);
  EXPECT_EQ(v.EndWinkel, 0);
  EXPECT_EQ(v.Stil, 0x0000FF);
  EXPECT_EQ(z->NaechsteFreieVerbindung, 8);
  z->VerbindungLoeschen(2000);
  z->VerbindungLoeschen(-1);
  EXPECT_EQ(z->NaechsteFreieVerbindung, 8);
}

TEST(Verbindungen, ANewConnectionGoesUnderTheCursorWhichWalksOnToTheNextFreeSlot) {
  auto z = Neu();
  z->Verbindungen[1] = Verbindung{5, 6};
  z->Verbindungen[2] = Verbindung{6, 7};
  EXPECT_EQ(z->VerbindungBelegen(Verbindung{1, 2}), 0);
  EXPECT_EQ(z->NaechsteFreieVerbindung, 3);
  EXPECT_EQ(z->VerbindungBelegen(Verbindung{2, 3}), 3);
  EXPECT_EQ(z->Verbindungen[3].Nach, 3);
  EXPECT_EQ(z->NaechsteFreieVerbindung, 4);
}

TEST(Verbindungen, TheCursorAt1998TakesOneMoreButNotAt1999) {
  auto z = Neu();
  z->NaechsteFreieVerbindung = 1998;
  EXPECT_EQ(z->VerbindungBelegen(Verbindung{1, 2}), 1998);
  EXPECT_EQ(z->NaechsteFreieVerbindung, 1999);
  EXPECT_EQ(z->VerbindungBelegen(Verbindung{1, 2}), -1);
  EXPECT_EQ(z->Verbindungen[1999].Von, -1) << "slot 1999 stays unused by new connections";
  z->NaechsteFreieVerbindung = -1;
  EXPECT_EQ(z->VerbindungsSlot(), -1);
}

TEST(Verbindungen, ANegativePointIsRefusedAndTheCursorStays) {
  auto z = Neu();
  EXPECT_EQ(z->VerbindungBelegen(Verbindung{-1, 2}), -1);
  EXPECT_EQ(z->VerbindungBelegen(Verbindung{1, -2}), -1);
  EXPECT_EQ(z->NaechsteFreieVerbindung, 0);
  EXPECT_EQ(z->Verbindungen[0].Von, -1);
}

TEST(Verbindungen, AFullTableWalksTheCursorTo2000) {
  auto z = Neu();
  for (int n = 1; n < 2000; ++n) z->Verbindungen[n] = Verbindung{1, 2};
  EXPECT_EQ(z->VerbindungBelegen(Verbindung{3, 4}), 0);
  EXPECT_EQ(z->NaechsteFreieVerbindung, 2000);
  z->VerbindungLoeschen(700);
  EXPECT_EQ(z->VerbindungBelegen(Verbindung{5, 6}), 700) << "a cleared slot is reused";
}

// ---- Arcs -----------------------------------------------------------------------------

TEST(Boegen, ACursorOfZeroIsRaisedToOneSoSlotZeroIsNeverUsed) {
  auto z = Neu();
  z->NaechsterFreierBogen = 0;
  EXPECT_EQ(z->BogenBelegen(Bogen{0, 5}), 1);
  EXPECT_EQ(z->Boegen[1].Nummer, 1);
  EXPECT_EQ(z->Boegen[0].Radius, 0);
  EXPECT_EQ(z->NaechsterFreierBogen, 2);
}

TEST(Boegen, ANewArcIsRefusedAt499AndAboveOrBelowOne) {
  auto z = Neu();
  z->NaechsterFreierBogen = 498;
  EXPECT_EQ(z->BogenBelegen(Bogen{0, 5}), 498);
  EXPECT_EQ(z->NaechsterFreierBogen, 499);
  EXPECT_EQ(z->BogenBelegen(Bogen{0, 5}), -1);
  z->NaechsterFreierBogen = -4;
  EXPECT_EQ(z->BogenBelegen(Bogen{0, 5}), -1);
}

TEST(Boegen, ClearingWorksOnSlots1To499Only) {
  auto z = Neu();
  z->Boegen[0].Radius = 3;
  z->Boegen[7] = Bogen{1, 2, -1, 3, 4, 5, 6};
  z->NaechsterFreierBogen = 100;
  z->BogenLoeschen(0);
  z->BogenLoeschen(500);
  z->BogenLoeschen(7);
  EXPECT_EQ(z->Boegen[0].Radius, 3);
  EXPECT_EQ(z->Boegen[7].Nummer, 7);
  EXPECT_EQ(z->Boegen[7].Radius, 0);
  EXPECT_EQ(z->Boegen[7].Seite, 0);
  EXPECT_EQ(z->Boegen[7].EndWinkel, 0);
  EXPECT_EQ(z->NaechsterFreierBogen, 7);
}

TEST(Boegen, TheSweepDropsArcsNoUsedCalculationRefersTo) {
  auto z = Neu();
  for (int n : {2, 3, 5, 9, 499}) z->Boegen[n].Radius = n;
  Berechnung& b = z->Berechnungen[4];
  b.LVNr = LVNummer::Rechts("1");
  b.Anzahl = 3;
  b.Element[0] = 1;
  b.Element[1] = -3;
  b.Element[2] = -499;
  b.Element[3] = -9;  // beyond Anzahl: not used
  Berechnung& leer = z->Berechnungen[5];  // blank number: not a used calculation
  leer.Anzahl = 1;
  leer.Element[0] = -5;
  z->BoegenAufraeumen();
  EXPECT_EQ(z->Boegen[3].Radius, 3);
  EXPECT_EQ(z->Boegen[499].Radius, 499);
  EXPECT_EQ(z->Boegen[2].Radius, 0);
  EXPECT_EQ(z->Boegen[5].Radius, 0);
  EXPECT_EQ(z->Boegen[9].Radius, 0);
  EXPECT_EQ(z->NaechsterFreierBogen, 1);
}

TEST(Boegen, AfterTheSweepTheCursorStandsAtTheLowestFreeSlot) {
  auto z = Neu();
  Berechnung& b = z->Berechnungen[0];
  b.LVNr = LVNummer::Rechts("1");
  b.Anzahl = 0;
  for (int n = 1; n <= 6; ++n) {
    z->Boegen[n].Radius = 1;
    b.Element[b.Anzahl++] = static_cast<Integer>(-n);
  }
  z->BoegenAufraeumen();
  EXPECT_EQ(z->NaechsterFreierBogen, 7);
  for (int n = 1; n < 499; ++n) {
    z->Boegen[n].Radius = 1;
    b.Element[n % 500] = static_cast<Integer>(-n);
  }
  b.Anzahl = 499;
  z->BoegenAufraeumen();
  EXPECT_EQ(z->NaechsterFreierBogen, 499) << "slot 499 is never below the start of 499";
  EXPECT_EQ(z->BogenSlot(), -1);
}

// ---- Calculations, labels, images ------------------------------------------------------

TEST(Berechnungen, ClearingARecordFreesItsArcsAndKeepsTheAreaFlag) {
  auto z = Neu();
  z->Boegen[4].Radius = 2;
  z->Boegen[6].Radius = 2;
  Berechnung& b = z->Berechnungen[10];
  b.LVNr = LVNummer::Rechts("3.1");
  b.Ergebnis = 5;
  b.Flaeche = Wahr;
  b.Farbe = 9;
  b.KorrekturIndex = {1, 2, 3};
  b.Anzahl = 2;
  b.Element[0] = -4;
  b.Element[1] = 7;
  b.Element[2] = -6;  // not in use
  z->NaechsterFreierBogen = 100;
  z->BerechnungLoeschen(10);
  EXPECT_EQ(b.LVNr, LVNummer::Nul());
  EXPECT_EQ(b.Ergebnis, 0);
  EXPECT_EQ(b.Farbe, 0);
  EXPECT_EQ(b.Flaeche, Wahr);
  EXPECT_EQ(b.KorrekturIndex, (std::array<Integer, 3>{-1, -1, -1}));
  EXPECT_EQ(b.Anzahl, 0);
  EXPECT_EQ(b.Element[1], 0);
  EXPECT_EQ(b.Element[2], 0);
  EXPECT_EQ(z->Boegen[4].Radius, 0);
  EXPECT_EQ(z->Boegen[6].Radius, 2);
  EXPECT_EQ(z->NaechsterFreierBogen, 4);
  z->BerechnungLoeschen(300);  // ignored
}

TEST(Hintergrundbilder, ClearingSetsBezugOneAndLowersTheCursor) {
  auto z = Neu();
  z->Hintergrundbilder[3].Breite = 5;
  z->Hintergrundbilder[3].Bezug = -12;
  z->BildSpeicher[3].width = 4;
  z->BildSpeicher[3].height = 4;
  z->NaechstesFreiesBild = 9;
  z->HintergrundbildLoeschen(3);
  EXPECT_EQ(z->Hintergrundbilder[3].Breite, 0);
  EXPECT_EQ(z->Hintergrundbilder[3].Bezug, 1);
  EXPECT_TRUE(z->BildSpeicher[3].empty());
  EXPECT_EQ(z->NaechstesFreiesBild, 3);
  for (int n = 0; n < 21; ++n) z->Hintergrundbilder[n].Breite = 1;
  z->NaechstesFreiesBild = 0;
  z->BildCursorWeiter();
  EXPECT_EQ(z->BildSlot(), -1) << "twenty-one images fill the table";
}

// ---- Catalogue and view values ------------------------------------------------------------

TEST(Tabellen, AClearedRowTakesTheFlagsOfTheActiveTable) {
  auto z = Neu();
  Tabelle& t = z->Tabellen[4];
  t.TablName = "Profil 4";
  t.Dateiname = "P4";
  t.PktDateiName = "P4";
  t.Stationierung = 1.2;
  t.Massstab = 500;
  z->M31 = Wahr;
  z->Polar = Wahr;
  z->TabellenZeileLeeren(4);
  EXPECT_TRUE(t.TablName.empty());
  EXPECT_TRUE(t.Dateiname.empty());
  EXPECT_TRUE(t.PktDateiName.empty());
  EXPECT_EQ(t.Stationierung, 0);
  EXPECT_EQ(t.M31, Wahr);
  EXPECT_EQ(t.Polar, Wahr);
  EXPECT_EQ(t.Dritte, Falsch);
  EXPECT_EQ(t.Massstab, 500) << "view fields are not part of the row clearing";
}

TEST(Tabellen, OpeningARowCopiesEveryViewFieldAndMakesAZeroGrid10) {
  auto z = Neu();
  Tabelle t;
  t.Massstab = 250;
  t.Rasterabstand = 0;
  t.Ueberhoehung = 5;
  t.KlotoidenAnzeigen = Wahr;
  z->AnsichtAusZeile(t);
  EXPECT_EQ(z->Ansicht.Massstab, 250);
  EXPECT_EQ(z->Ansicht.Rasterabstand, 10);
  EXPECT_EQ(z->Ansicht.Ueberhoehung, 5);
  EXPECT_EQ(z->Ansicht.KlotoidenAnzeigen, Wahr);
  EXPECT_EQ(t.Rasterabstand, 0) << "the row itself is not changed";
}

TEST(Tabellen, TheActiveRowExistsOnlyFor0To500) {
  auto z = Neu();
  EXPECT_EQ(z->AktiveZeile(), nullptr);
  z->AktiveTabelle = 500;
  EXPECT_EQ(z->AktiveZeile(), &z->Tabellen[500]);
  z->AktiveTabelle = 501;
  EXPECT_EQ(z->AktiveZeile(), nullptr);
}

TEST(Leeren, OpeningATableClearsItsContentButNotCatalogueOrCorrections) {
  auto z = Neu();
  z->Tabellen[0].TablName = "A";
  z->Korrekturen[2] = Korrektur{"Zuschlag", 1.5};
  z->Punkte[1].A = 1;
  z->Verbindungen[1] = Verbindung{1, 2};
  z->Boegen[1].Radius = 1;
  z->Beschriftungen[1].Text = "x";
  z->Berechnungen[1].LVNr = LVNummer::Rechts("1");
  z->Hintergrundbilder[1].Breite = 1;
  z->TabellenInhaltLeeren();
  EXPECT_EQ(z->Tabellen[0].TablName, "A");
  EXPECT_EQ(z->Korrekturen[2].Wert, 1.5);
  EXPECT_TRUE(z->PunktLeer(1));
  EXPECT_EQ(z->Verbindungen[1].Von, -1);
  EXPECT_EQ(z->Boegen[1].Radius, 0);
  EXPECT_TRUE(z->Beschriftungen[1].Text.empty());
  EXPECT_TRUE(z->Berechnungen[1].LVNr.IstLeer());
  EXPECT_EQ(z->Hintergrundbilder[1].Breite, 0);
  z->AllesLeeren();
  EXPECT_TRUE(z->Tabellen[0].TablName.empty());
  EXPECT_TRUE(z->Korrekturen[2].Name.empty());
}

TEST(Variablen, OneValuePerLetter) {
  EXPECT_EQ(Zustand::VariablenIndex('A'), 0);
  EXPECT_EQ(Zustand::VariablenIndex('z'), 25);
  EXPECT_EQ(Zustand::VariablenIndex('1'), -1);
  EXPECT_EQ(Zustand::VariablenIndex('\xC4'), -1);
}

}  // namespace
}  // namespace kolm::core
