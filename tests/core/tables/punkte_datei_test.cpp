// The point file ".pkt": its bytes, the order rule of reading, the one
// message, and what saving does to empty points.
#include "tabellen_hilfen.h"

namespace kolm::core {
namespace {

using namespace testhilfen;

void Setze(Zustand& z, int n, double a, double b, double c) {
  z.Punkte[n].A = a;
  z.Punkte[n].B = b;
  z.Punkte[n].C = c;
}

TEST(PunkteDatei, ARecordIsFortyLittleEndianBytesInFieldOrder) {
  Umgebung u;
  Punkt& p = u.z().Punkte[258];
  p.KurzBez = 3;
  p.A = 1.0;
  p.B = -2.5;
  p.C = 0.0;
  p.TextDx = 0.5f;
  p.TextDy = -1.0f;
  p.Farbe = 0x0000FF;
  ASSERT_TRUE(SchreibePunkte(u.kontext, "P1"));
  const std::string erwartet(
      "\x02\x01"                          // Nummer 258
      "\x03\x00"                          // KurzBez 3
      "\x00\x00\x00\x00\x00\x00\xF0\x3F"  // A 1.0
      "\x00\x00\x00\x00\x00\x00\x04\xC0"  // B -2.5
      "\x00\x00\x00\x00\x00\x00\x00\x00"  // C 0
      "\x00\x00\x00\x3F"                  // TextDx 0.5
      "\x00\x00\x80\xBF"                  // TextDy -1
      "\xFF\x00\x00\x00",                 // Farbe red
      40);
  EXPECT_EQ(u.ordner.lesen("P1.pkt"), erwartet);
}

TEST(PunkteDatei, SavingWritesOnlyNonEmptyPointsSortedWithTheirSlotNumber) {
  Umgebung u;
  Setze(u.z(), 7, 1, 2, 3);
  Setze(u.z(), 3, 0, 0, 5);   // only C set: a point
  Setze(u.z(), 5, 0, 0, 0);   // surveyed at 0/0/0: not a point
  u.z().Punkte[7].Nummer = 99;  // a stale number is corrected on saving
  u.z().Punkte[999].A = 4;    // the last slot, reachable by reading only
  ASSERT_TRUE(SchreibePunkte(u.kontext, "P1"));
  const std::string d = u.ordner.lesen("P1.pkt");
  ASSERT_EQ(d.size(), 3 * 40u);
  EXPECT_EQ(d.substr(0, 40), PunktBytes(3, 0, 0, 0, 5, 0.1f, 0.1f));
  EXPECT_EQ(d.substr(40, 40), PunktBytes(7, 0, 1, 2, 3, 0.1f, 0.1f));
  EXPECT_EQ(d.substr(80, 40), PunktBytes(999, 0, 4, 0, 0, 0.1f, 0.1f));
  EXPECT_EQ(u.z().Punkte[7].Nummer, 7);
}

TEST(PunkteDatei, APointEnteredAsZeroZeroZeroIsGoneAfterSavingAndLoading) {
  Umgebung u;
  Setze(u.z(), 10, 1, 1, 1);
  Setze(u.z(), 11, 0, 0, 0);
  u.z().Punkte[11].KurzBez = 4;  // a designation alone does not make a point
  ASSERT_TRUE(SchreibePunkte(u.kontext, "P"));
  Zustand frisch;
  frisch.ProjektVerzeichnis = u.ordner.verzeichnis();
  TabellenKontext k(frisch);
  LesePunkte(k, "P");
  EXPECT_FALSE(frisch.PunktLeer(10));
  EXPECT_TRUE(frisch.PunktLeer(11));
  EXPECT_EQ(frisch.Punkte[11].KurzBez, 0) << "slot 11 is as cleared";
}

TEST(PunkteDatei, ReadingKeepsOnlyARisingSequenceUpToAnzahlPunkte) {
  Umgebung u;
  u.ordner.schreiben("P.pkt", PunktBytes(5, 1, 5, 5, 5) + PunktBytes(3, 1, 3, 3, 3) + PunktBytes(7, 1, 7, 7, 7) +
                                  PunktBytes(7, 1, 8, 8, 8) + PunktBytes(-1, 1, 9, 9, 9) +
                                  PunktBytes(1000, 1, 10, 10, 10) + PunktBytes(999, 2, 11, 11, 11));
  LesePunkte(u.kontext, "P");
  EXPECT_EQ(u.z().Punkte[5].A, 5);
  EXPECT_TRUE(u.z().PunktLeer(3)) << "3 after 5 is out of order";
  EXPECT_EQ(u.z().Punkte[7].A, 7) << "a repeated number is dropped";
  EXPECT_EQ(u.z().Punkte[999].A, 11) << "slot AnzahlPunkte is filled by reading; 1000 was dropped";
  EXPECT_EQ(u.z().Punkte[999].KurzBez, 2);
  int benutzt = 0;
  for (int n = 0; n <= 999; ++n) benutzt += !u.z().PunktLeer(n);
  EXPECT_EQ(benutzt, 3);
}

TEST(PunkteDatei, ABiggerTableReadsNumbersAboveTheOldLimit) {
  Umgebung u;
  u.ordner.schreiben("P.pkt", PunktBytes(2000, 0, 1, 2, 3) + PunktBytes(9999, 0, 4, 5, 6));
  LesePunkte(u.kontext, "P");
  for (int n = 0; n <= 999; ++n) ASSERT_TRUE(u.z().PunktLeer(n)) << "2000 and 9999 lie beyond 999: " << n;
  u.z().PunkteDimensionieren(9999);
  LesePunkte(u.kontext, "P");
  EXPECT_EQ(u.z().Punkte[2000].B, 2);
  EXPECT_EQ(u.z().Punkte[9999].C, 6);
}

TEST(PunkteDatei, AMissingFileEmptiesTheTableAndShowsTheOneMessage) {
  Umgebung u;
  Setze(u.z(), 4, 1, 2, 3);
  LesePunkte(u.kontext, "Fehlt1");
  EXPECT_TRUE(u.z().PunktLeer(4));
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_EQ(u.meldungen()[0].message.text, "Datei Fehlt1 kann nicht geöffnet werden!");
  EXPECT_EQ(u.status(), std::vector<std::string>{"Punkte-Tabelle lesen..."});
  EXPECT_EQ(u.dienste.busy.times(), 1);
  EXPECT_EQ(u.dienste.busy.depth(), 0) << "the busy cursor is back to normal";
}

TEST(PunkteDatei, AFolderNamedLikeTheFileCountsAsMissing) {
  Umgebung u;
  std::filesystem::create_directory(u.ordner.datei("Ordner.pkt"));
  LesePunkte(u.kontext, "Ordner");
  EXPECT_EQ(u.meldungen().size(), 1u);
}

TEST(PunkteDatei, ATruncatedLastRecordIsDroppedAndTheRestKept) {
  Umgebung u;
  const std::string zwei = PunktBytes(1, 0, 1, 1, 1) + PunktBytes(2, 0, 2, 2, 2);
  for (std::size_t laenge = 0; laenge <= zwei.size(); ++laenge) {
    u.ordner.schreiben("P.pkt", zwei.substr(0, laenge));
    LesePunkte(u.kontext, "P");
    EXPECT_EQ(!u.z().PunktLeer(1), laenge >= 40) << laenge;
    EXPECT_EQ(!u.z().PunktLeer(2), laenge == 80) << laenge;
  }
  EXPECT_TRUE(u.meldungen().empty()) << "an existing file, however short, gives no message";
}

TEST(PunkteDatei, SavedFilesReadBackAndWriteBackByteForByte) {
  Umgebung u;
  u.z().PunkteDimensionieren(9999);
  for (int n = 0; n <= 9999; n += 7) {
    Punkt& p = u.z().Punkte[n];
    p.KurzBez = static_cast<Integer>(n % 120);
    p.A = n * 1.000001 - 5000;
    p.B = -n / 3.0;
    p.C = n % 3 ? 0.125 * n : 0;
    p.TextDx = static_cast<float>(n) / 7.0f;
    p.TextDy = -0.3f;
    p.Farbe = n * 1571;
  }
  ASSERT_TRUE(SchreibePunkte(u.kontext, "Gross"));
  const std::string erst = u.ordner.lesen("Gross.pkt");
  Zustand zweiter;
  zweiter.PunkteDimensionieren(9999);
  zweiter.ProjektVerzeichnis = u.ordner.verzeichnis();
  TabellenKontext k(zweiter);
  LesePunkte(k, "Gross");
  ASSERT_TRUE(SchreibePunkte(k, "Kopie"));
  EXPECT_EQ(u.ordner.lesen("Kopie.pkt"), erst);
  EXPECT_EQ(erst.size() % 40, 0u);
}

TEST(PunkteDatei, NotANumberAndOddValuesPassThroughUnchanged) {
  Umgebung u;
  const std::string seltsam = Bytes()
                                  .i16(12)
                                  .i16(-7)
                                  .u(0x7FF8000000000123ull, 8)  // a NaN with payload
                                  .f64(-0.0)
                                  .f64(1e308)
                                  .u(0x7F800000u, 4)  // infinity
                                  .u(0xFFFFFFFFu, 4)
                                  .i32(-1)
                                  .b;
  u.ordner.schreiben("P.pkt", seltsam);
  LesePunkte(u.kontext, "P");
  EXPECT_FALSE(u.z().PunktLeer(12));
  ASSERT_TRUE(SchreibePunkte(u.kontext, "P2"));
  EXPECT_EQ(u.ordner.lesen("P2.pkt"), seltsam);
}

}  // namespace
}  // namespace kolm::core
