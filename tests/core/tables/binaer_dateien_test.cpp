// Connections ".ver", arcs ".bog" and background images ".pic": layouts,
// the packing and dropping rules of reading, and the image copies.
#include "tabellen_hilfen.h"

namespace kolm::core {
namespace {

using namespace testhilfen;

// ---- Connections ---------------------------------------------------------------

TEST(VerbindungenDatei, ARecordIsFiftyBytesInFieldOrder) {
  Umgebung u;
  Verbindung& v = u.z().Verbindungen[3];
  v.Von = 1;
  v.Nach = 2;
  v.Radius = 1.0;
  v.Art = -1;
  v.MitteX = 2.0;
  v.MitteY = 0.5;
  v.AnfangsWinkel = 0.0;
  v.EndWinkel = -2.0;
  v.Stil = 0x120000FF;
  ASSERT_TRUE(SchreibeVerbindungen(u.kontext, "T"));
  const std::string erwartet(
      "\x01\x00\x02\x00"
      "\x00\x00\x00\x00\x00\x00\xF0\x3F"  // Radius 1
      "\xFF\xFF"                          // Art -1
      "\x00\x00\x00\x00\x00\x00\x00\x40"  // MitteX 2
      "\x00\x00\x00\x00\x00\x00\xE0\x3F"  // MitteY 0.5
      "\x00\x00\x00\x00\x00\x00\x00\x00"  // AnfangsWinkel 0
      "\x00\x00\x00\x00\x00\x00\x00\xC0"  // EndWinkel -2
      "\xFF\x00\x00\x12",                 // Stil
      50);
  EXPECT_EQ(u.ordner.lesen("T.ver"), erwartet);
}

TEST(VerbindungenDatei, WritingSkipsSlotsWithANegativeEndAndKeepsVonEqualNach) {
  Umgebung u;
  u.z().Verbindungen[0] = Verbindung{4, 4};    // same point at both ends: still written
  u.z().Verbindungen[5] = Verbindung{-1, 3};   // marked empty
  u.z().Verbindungen[6] = Verbindung{3, -2};
  u.z().Verbindungen[1999] = Verbindung{0, 9};  // the last slot too
  ASSERT_TRUE(SchreibeVerbindungen(u.kontext, "T"));
  EXPECT_EQ(u.ordner.lesen("T.ver"), VerbindungBytes(4, 4) + VerbindungBytes(0, 9));
}

TEST(VerbindungenDatei, ReadingPacksTheRecordsAndDropsVonEqualNach) {
  Umgebung u;
  u.z().Verbindungen[10] = Verbindung{1, 2};  // gone after reading
  u.ordner.schreiben("T.ver", VerbindungBytes(1, 2, 0, 0, 0, 0, 0, 0, 7) + VerbindungBytes(3, 3) +
                                  VerbindungBytes(-1, 5) + VerbindungBytes(-1, -1) + VerbindungBytes(8, 9));
  LeseVerbindungen(u.kontext, "T");
  const auto& v = u.z().Verbindungen;
  EXPECT_EQ(v[0].Von, 1);
  EXPECT_EQ(v[0].Stil, 7);
  EXPECT_EQ(v[1].Von, -1) << "a record with one negative end is still read";
  EXPECT_EQ(v[1].Nach, 5);
  EXPECT_EQ(v[2].Von, 8);
  EXPECT_EQ(v[3].Von, -1);
  EXPECT_EQ(v[10].Von, -1);
  EXPECT_EQ(u.z().NaechsteFreieVerbindung, 3) << "the cursor ends as the counter";
}

TEST(VerbindungenDatei, ConnectionNumbersCloseTheirGapsOnTheNextLoad) {
  Umgebung u;
  u.z().Verbindungen[4] = Verbindung{1, 2};
  u.z().Verbindungen[9] = Verbindung{2, 3};
  ASSERT_TRUE(SchreibeVerbindungen(u.kontext, "T"));
  LeseVerbindungen(u.kontext, "T");
  EXPECT_EQ(u.z().Verbindungen[0].Nach, 2);
  EXPECT_EQ(u.z().Verbindungen[1].Nach, 3);
  EXPECT_EQ(u.z().Verbindungen[4].Von, -1);
  EXPECT_EQ(u.z().Verbindungen[9].Von, -1);
}

TEST(VerbindungenDatei, MoreThanTwoThousandRecordsFillEverySlotAndStop) {
  Umgebung u;
  std::string d;
  for (int i = 0; i < 2100; ++i) d += VerbindungBytes(i % 500, i % 500 + 1);
  u.ordner.schreiben("T.ver", d);
  LeseVerbindungen(u.kontext, "T");
  EXPECT_EQ(u.z().Verbindungen[1999].Von, 1999 % 500);
  EXPECT_EQ(u.z().NaechsteFreieVerbindung, 2000);
  EXPECT_EQ(u.z().VerbindungsSlot(), -1) << "a full table takes no new connection";
}

TEST(VerbindungenDatei, AMissingFileLeavesTheClearedTable) {
  Umgebung u;
  u.z().LinienFarben[2].Farbe = 0x00FF00;
  u.z().StandardLinienFarbe = 2;
  u.z().Verbindungen[0] = Verbindung{1, 2};
  LeseVerbindungen(u.kontext, "Nichts");
  EXPECT_EQ(u.z().Verbindungen[0].Von, -1);
  EXPECT_EQ(u.z().Verbindungen[0].Stil, 0x00FF00) << "cleared with the standard line colour";
  EXPECT_EQ(u.z().NaechsteFreieVerbindung, 0);
  EXPECT_TRUE(u.meldungen().empty());
  EXPECT_EQ(u.status(), std::vector<std::string>{"Verbindungen lesen..."});
}

// ---- Arcs -------------------------------------------------------------------------

TEST(BoegenDatei, ARecordIsFortyFourBytesAndCarriesItsSlotNumber) {
  Umgebung u;
  Bogen& b = u.z().Boegen[300];
  b.Nummer = 1;  // corrected to the slot on saving
  b.Radius = -2.0;
  b.Seite = -1;
  b.MitteX = 1.0;
  b.MitteY = 0.0;
  b.AnfangsWinkel = 0.5;
  b.EndWinkel = 1.0;
  ASSERT_TRUE(SchreibeBoegen(u.kontext, "T"));
  const std::string erwartet(
      "\x2C\x01"                          // Nummer 300
      "\x00\x00\x00\x00\x00\x00\x00\xC0"  // Radius -2
      "\xFF\xFF"                          // Seite -1
      "\x00\x00\x00\x00\x00\x00\xF0\x3F"
      "\x00\x00\x00\x00\x00\x00\x00\x00"
      "\x00\x00\x00\x00\x00\x00\xE0\x3F"
      "\x00\x00\x00\x00\x00\x00\xF0\x3F",
      44);
  EXPECT_EQ(u.ordner.lesen("T.bog"), erwartet);
  EXPECT_EQ(b.Nummer, 300);
}

TEST(BoegenDatei, ReadingStoresByNumberAndDropsNumbersOutsideTheTable) {
  Umgebung u;
  u.ordner.schreiben("T.bog", BogenBytes(17, 5) + BogenBytes(500, 6) + BogenBytes(-3, 7) + BogenBytes(0, 8) +
                                  BogenBytes(17, 9) + BogenBytes(499, 10));
  LeseBoegen(u.kontext, "T");
  EXPECT_EQ(u.z().Boegen[17].Radius, 9) << "a later record of the same number wins";
  EXPECT_EQ(u.z().Boegen[0].Radius, 8) << "slot 0 can be filled by a file";
  EXPECT_EQ(u.z().Boegen[499].Radius, 10);
  int benutzt = 0;
  for (const Bogen& b : u.z().Boegen) benutzt += b.Radius != 0;
  EXPECT_EQ(benutzt, 3);
}

TEST(BoegenDatei, ArcNumbersAreStableAcrossSaveAndLoad) {
  Umgebung u;
  u.z().Boegen[42].Radius = 12.5;
  u.z().Boegen[42].MitteX = 3;
  ASSERT_TRUE(SchreibeBoegen(u.kontext, "T"));
  u.z().BoegenLeeren();
  LeseBoegen(u.kontext, "T");
  EXPECT_EQ(u.z().Boegen[42].Radius, 12.5);
  EXPECT_EQ(u.z().Boegen[42].MitteX, 3);
  EXPECT_EQ(u.ordner.lesen("T.bog").size(), 44u) << "empty arcs are not written";
}

// ---- Background images --------------------------------------------------------------

TEST(BilderDatei, TheFileAlwaysHoldsTwentyOneRecordsOf85Bytes) {
  Umgebung u;
  ASSERT_TRUE(SchreibeBilder(u.kontext, "T"));
  const std::string leer = u.ordner.lesen("T.pic");
  ASSERT_EQ(leer.size(), 1785u);
  const std::string leererSatz =
      Bytes().f64(0).f64(0).f64(0).f64(0).i32(0).i16(0).i16(1).i16(0).text("   ").f64(0).f64(0).f64(0).f64(0)
          .i16(0).i16(0).i16(0).i16(0).b;
  EXPECT_EQ(leer.substr(0, 85), leererSatz) << "a cleared slot: Bezug 1, Endung blank";
  u.z().Hintergrundbilder[20].Breite = 3;
  ASSERT_TRUE(SchreibeBilder(u.kontext, "T"));
  EXPECT_EQ(u.ordner.lesen("T.pic").size(), 1785u);
}

TEST(BilderDatei, ARecordHoldsEveryFieldAndTheReservedOnesAsHeld) {
  Umgebung u;
  Hintergrundbild& h = u.z().Hintergrundbilder[0];
  h.A = 1;
  h.B = 2;
  h.Breite = 3;
  h.Hoehe = 4;
  h.Farbe = 0x102030;
  h.Rahmen = 2;
  h.Bezug = -17;
  h.NurDruck = -1;
  h.Endung = FesterText<3>::Links("jpg");
  h.ReserveDouble = {5, 6, 7, 8};
  h.ReserveInteger = {9, -10, 11, -12};
  ASSERT_TRUE(SchreibeBilder(u.kontext, "T"));
  const std::string satz = Bytes()
                               .f64(1).f64(2).f64(3).f64(4)
                               .i32(0x102030).i16(2).i16(-17).i16(-1)
                               .text("jpg")
                               .f64(5).f64(6).f64(7).f64(8)
                               .i16(9).i16(-10).i16(11).i16(-12)
                               .b;
  EXPECT_EQ(u.ordner.lesen("T.pic").substr(0, 85), satz);
}

TEST(BilderDatei, ReadingFillsSlotsInOrderAndSetsTheFreeCursor) {
  Umgebung u;
  std::string d;
  for (int i = 0; i < 25; ++i) {
    Bytes s;
    s.f64(i).f64(0).f64(i == 2 ? 0 : 10).f64(5).i32(0).i16(0).i16(0).i16(0).text("bmp");
    for (int r = 0; r < 4; ++r) s.f64(r + 0.5);
    for (int r = 0; r < 4; ++r) s.i16(-r);
    d += s.b;
  }
  u.ordner.schreiben("T.pic", d);
  LeseBilder(u.kontext, "T");
  EXPECT_EQ(u.z().Hintergrundbilder[20].A, 20) << "records past slot 20 are dropped";
  EXPECT_EQ(u.z().NaechstesFreiesBild, 2) << "the first slot with width 0";
  EXPECT_EQ(u.z().Hintergrundbilder[5].Endung.Text(), "bmp");
  EXPECT_EQ(u.z().Hintergrundbilder[5].ReserveDouble[3], 3.5);
  EXPECT_EQ(u.z().Hintergrundbilder[5].ReserveInteger[3], -3);
  ASSERT_TRUE(SchreibeBilder(u.kontext, "T2"));
  EXPECT_EQ(u.ordner.lesen("T2.pic"), d.substr(0, 1785)) << "read and written back unchanged";
}

TEST(BilderDatei, AFullTableLeavesNoFreeSlot) {
  Umgebung u;
  for (auto& h : u.z().Hintergrundbilder) h.Breite = 1;
  ASSERT_TRUE(SchreibeBilder(u.kontext, "T"));
  LeseBilder(u.kontext, "T");
  EXPECT_EQ(u.z().BildSlot(), -1);
}

TEST(BilderDatei, EachUsedSlotLoadsItsCopyNamedByStemSlotAndSuffix) {
  Umgebung u;
  u.z().Hintergrundbilder[0].Breite = 1;
  u.z().Hintergrundbilder[0].Endung = FesterText<3>::Links("jpg");
  u.z().Hintergrundbilder[7].Breite = 1;
  u.z().Hintergrundbilder[7].Endung = FesterText<3>::Links("bmp");
  u.z().Hintergrundbilder[12].Breite = 1;  // its copy is missing
  u.z().Hintergrundbilder[12].Endung = FesterText<3>::Links("jpg");
  ASSERT_TRUE(SchreibeBilder(u.kontext, "Prof1"));
  u.ordner.schreiben("Prof1_000.jpg", "BILD");
  u.ordner.schreiben("Prof1_007.bmp", "BILD");
  u.ordner.schreiben("Prof1_003.jpg", "BILD");  // slot 3 is not used
  LeseBilder(u.kontext, "Prof1");
  const auto& speicher = u.z().BildSpeicher;
  EXPECT_EQ(speicher[0].width, 2);
  EXPECT_EQ(speicher[7].width, 2);
  EXPECT_TRUE(speicher[3].empty());
  EXPECT_TRUE(speicher[12].empty()) << "the slot stays, without a picture";
  EXPECT_EQ(u.z().Hintergrundbilder[12].Breite, 1);
  EXPECT_EQ(u.codec.gelesen,
            (std::vector<std::string>{u.ordner.datei("Prof1_000.jpg"), u.ordner.datei("Prof1_007.bmp")}));
  EXPECT_EQ(u.status(), std::vector<std::string>{"Hintergrundbilder einlesen..."});
}

TEST(BilderDatei, WithoutACodecTheSlotsAreReadButNoPictureIsLoaded) {
  Umgebung u;
  u.kontext.bilder = nullptr;
  u.z().Hintergrundbilder[0].Breite = 1;
  u.z().Hintergrundbilder[0].Endung = FesterText<3>::Links("jpg");
  ASSERT_TRUE(SchreibeBilder(u.kontext, "T"));
  u.ordner.schreiben("T_000.jpg", "BILD");
  LeseBilder(u.kontext, "T");
  EXPECT_EQ(u.z().Hintergrundbilder[0].Breite, 1);
  EXPECT_TRUE(u.z().BildSpeicher[0].empty());
}

TEST(BilderDatei, FileNamesOfImageCopies) {
  Zustand z;
  z.ProjektVerzeichnis = "/p/";
  EXPECT_EQ(BildDatei(z, "Prof1", 0, FesterText<3>::Links("jpg")), "/p/Prof1_000.jpg");
  EXPECT_EQ(BildDatei(z, "Prof1", 20, FesterText<3>::Links("bmp")), "/p/Prof1_020.bmp");
  EXPECT_EQ(BildDatei(z, "X", 5, FesterText<3>::Links("tf")), "/p/X_005.tf") << "fill blanks are no part of it";
}

}  // namespace
}  // namespace kolm::core
