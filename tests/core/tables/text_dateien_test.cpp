// The two text files: calculations ".ber" (one value a line) and labels
// ".bes" (";"-ended fields in the locale's number form), in Windows-1252
// with CR LF.
#include <cstdlib>

#include "tabellen_hilfen.h"

namespace kolm::core {
namespace {

using namespace testhilfen;

Berechnung Rechnung(const std::string& lv, double ergebnis, std::initializer_list<int> elemente) {
  Berechnung b;
  b.LVNr = LVNummer::Rechts(lv);
  b.Ergebnis = ergebnis;
  b.Flaeche = Wahr;
  b.Farbe = 255;
  b.KorrekturIndex = {0, -1, 24};
  b.Anzahl = static_cast<Integer>(elemente.size());
  int i = 0;
  for (int e : elemente) b.Element[i++] = static_cast<Integer>(e);
  return b;
}

// ---- Calculations ---------------------------------------------------------------

TEST(BerechnungenDatei, OneValueALineWithTheLVNumberInQuotes) {
  Umgebung u;
  u.z().Berechnungen[4] = Rechnung("1.2.3.4", 12.5, {1, -5, 2});
  u.z().Berechnungen[7] = Rechnung("Ä", -0.25, {});
  u.z().Berechnungen[7].Flaeche = Falsch;
  ASSERT_TRUE(SchreibeBerechnungen(u.kontext, "T"));
  EXPECT_EQ(u.ordner.lesen("T.ber"),
            "\"     1.2.3.4\"\r\n12.5\r\n-1\r\n255\r\n0\r\n-1\r\n24\r\n3\r\n1\r\n-5\r\n2\r\n"
            "\"           \xC4\"\r\n-0.25\r\n0\r\n255\r\n0\r\n-1\r\n24\r\n0\r\n");
}

TEST(BerechnungenDatei, NumbersUseThePointWhateverTheLocale) {
  Umgebung u;
  u.kontext.dezimalzeichen = ",";
  u.z().Berechnungen[0] = Rechnung("9", 1234.5678, {});
  ASSERT_TRUE(SchreibeBerechnungen(u.kontext, "T"));
  EXPECT_NE(u.ordner.lesen("T.ber").find("\r\n1234.5678\r\n"), std::string::npos);
}

TEST(BerechnungenDatei, BlankAndNulNumbersAreNotWrittenAndLaterOnesMoveUpOnLoading) {
  Umgebung u;
  u.z().Berechnungen[0] = Rechnung("A", 1, {3});
  u.z().Berechnungen[1] = Rechnung("B", 2, {4});
  u.z().Berechnungen[1].LVNr = LVNummer::Links("");  // twelve blanks
  u.z().Berechnungen[2] = Rechnung("C", 3, {5, 6});
  u.z().Berechnungen[3].LVNr = LVNummer::Nul();
  u.z().Berechnungen[3].Ergebnis = 99;
  ASSERT_TRUE(SchreibeBerechnungen(u.kontext, "T"));
  LeseBerechnungen(u.kontext, "T");
  const auto& b = u.z().Berechnungen;
  EXPECT_EQ(b[0].LVNr, LVNummer::Rechts("A"));
  EXPECT_EQ(b[1].LVNr, LVNummer::Rechts("C"));
  EXPECT_EQ(b[1].Ergebnis, 3);
  EXPECT_EQ(b[1].Anzahl, 2);
  EXPECT_EQ(b[1].Element[1], 6);
  EXPECT_TRUE(b[2].LVNr.IstLeer());
  EXPECT_EQ(b[2].KorrekturIndex[0], -1) << "slots after the last one stay cleared";
  EXPECT_EQ(u.status(), std::vector<std::string>{"Berechnungen lesen..."});
}

TEST(BerechnungenDatei, SavedFilesWriteBackByteForByte) {
  Umgebung u;
  for (int i = 0; i < 300; ++i) {
    Berechnung b = Rechnung(std::to_string(i) + ".01", i * 1.5 - 7.125, {});
    b.Anzahl = 500;
    for (int e = 0; e < 500; ++e) b.Element[e] = static_cast<Integer>((e * 37 + i) % 1000 - 400);
    u.z().Berechnungen[i] = b;
  }
  ASSERT_TRUE(SchreibeBerechnungen(u.kontext, "T"));
  LeseBerechnungen(u.kontext, "T");
  ASSERT_TRUE(SchreibeBerechnungen(u.kontext, "T2"));
  EXPECT_EQ(u.ordner.lesen("T2.ber"), u.ordner.lesen("T.ber"));
  EXPECT_EQ(u.z().Berechnungen[299].Element[499], (499 * 37 + 299) % 1000 - 400);
}

// The values of the first two records in file order, as texts.
std::vector<std::string> Werte(const std::vector<Berechnung>& b, int anzahl0, int anzahl1) {
  std::vector<std::string> w;
  for (int s = 0; s < 2; ++s) {
    w.push_back(b[s].LVNr.Text());
    w.push_back(std::to_string(b[s].Ergebnis));
    w.push_back(std::to_string(b[s].Flaeche));
    w.push_back(std::to_string(b[s].Farbe));
    for (Integer k : b[s].KorrekturIndex) w.push_back(std::to_string(k));
    w.push_back(std::to_string(b[s].Anzahl));
    for (int e = 0; e < (s == 0 ? anzahl0 : anzahl1); ++e) w.push_back(std::to_string(b[s].Element[e]));
  }
  return w;
}

TEST(BerechnungenDatei, CutAfterAnyLineTheLeadingValuesAreReadAndTheRestIsCleared) {
  Umgebung u;
  u.z().Berechnungen[0] = Rechnung("1.1", 250.5, {1, 2, -3});
  u.z().Berechnungen[1] = Rechnung("1.2", 17, {4});
  const auto original = Werte(u.z().Berechnungen, 3, 1);
  const auto geleert = Werte(Zustand().Berechnungen, 3, 1);
  ASSERT_TRUE(SchreibeBerechnungen(u.kontext, "Voll"));
  const std::string voll = u.ordner.lesen("Voll.ber");
  std::size_t gelesen = 0;
  for (std::size_t ende = 0;; ende = voll.find("\r\n", ende) + 2, ++gelesen) {
    u.ordner.schreiben("T.ber", voll.substr(0, ende));
    LeseBerechnungen(u.kontext, "T");
    auto erwartet = geleert;
    for (std::size_t i = 0; i < gelesen; ++i) erwartet[i] = original[i];
    // The element count is in as soon as its line is.
    EXPECT_EQ(Werte(u.z().Berechnungen, 3, 1), erwartet) << gelesen << " values";
    if (ende == voll.size()) break;
  }
  EXPECT_EQ(gelesen, original.size());
}

TEST(BerechnungenDatei, CutInsideAnyValueTheReaderStillStops) {
  Umgebung u;
  u.z().Berechnungen[0] = Rechnung("1.1", 250.5, {1, 2, -3});
  ASSERT_TRUE(SchreibeBerechnungen(u.kontext, "Voll"));
  const std::string voll = u.ordner.lesen("Voll.ber");
  for (std::size_t n = 0; n <= voll.size(); ++n) {
    u.ordner.schreiben("T.ber", voll.substr(0, n));
    LeseBerechnungen(u.kontext, "T");
    EXPECT_TRUE(u.z().Berechnungen[1].LVNr.IstLeer()) << n;
    EXPECT_LE(u.z().Berechnungen[0].Anzahl, 3) << n;
  }
  // Cut inside "250.5": the digits read so far.
  u.ordner.schreiben("T.ber", voll.substr(0, voll.find("250.5") + 2));
  LeseBerechnungen(u.kontext, "T");
  EXPECT_EQ(u.z().Berechnungen[0].Ergebnis, 25);
}

TEST(BerechnungenDatei, NonNumericAndOverflowingValuesDoNotStopTheReader) {
  Umgebung u;
  u.ordner.schreiben("T.ber",
                     "\"X\"\r\nabc\r\n99999\r\n1e99\r\nzwei\r\n-1\r\n3\r\n2\r\n7\r\n-40000\r\n"
                     "\"Y\"\r\n1E+400\r\n-1\r\n255\r\n0\r\n0\r\n0\r\n1\r\n2.5\r\n");
  LeseBerechnungen(u.kontext, "T");
  const auto& b = u.z().Berechnungen;
  EXPECT_EQ(b[0].LVNr, LVNummer::Links("X")) << "a read text is left-justified";
  EXPECT_EQ(b[0].Ergebnis, 0) << "letters read as 0";
  EXPECT_EQ(b[0].Flaeche, 0) << "a value beyond Integer leaves the field as cleared";
  EXPECT_EQ(b[0].Farbe, 0);
  EXPECT_EQ(b[0].KorrekturIndex, (std::array<Integer, 3>{0, -1, 3}));
  EXPECT_EQ(b[0].Anzahl, 2);
  EXPECT_EQ(b[0].Element[0], 7);
  EXPECT_EQ(b[0].Element[1], 0);
  EXPECT_EQ(b[1].LVNr, LVNummer::Links("Y"));
  EXPECT_EQ(b[1].Ergebnis, 0) << "beyond the Double range";
  EXPECT_EQ(b[1].Farbe, 255);
  EXPECT_EQ(b[1].Element[0], 2) << "2.5 rounds half to even";
}

TEST(BerechnungenDatei, MoreThan500AnnouncedElementsAreReadButOnly500Kept) {
  Umgebung u;
  std::string d = "\"A\"\r\n1\r\n0\r\n0\r\n0\r\n0\r\n0\r\n600\r\n";
  for (int i = 0; i < 600; ++i) d += std::to_string(i) + "\r\n";
  d += "\"B\"\r\n2\r\n";
  u.ordner.schreiben("T.ber", d);
  LeseBerechnungen(u.kontext, "T");
  EXPECT_EQ(u.z().Berechnungen[0].Anzahl, 500);
  EXPECT_EQ(u.z().Berechnungen[0].Element[499], 499);
  EXPECT_EQ(u.z().Berechnungen[1].LVNr, LVNummer::Links("B")) << "the next record starts after all 600";
  EXPECT_EQ(u.z().Berechnungen[1].Ergebnis, 2);
}

TEST(BerechnungenDatei, QuotesCommasAndLineEndsAsInTheValueFormat) {
  Umgebung u;
  // A comma separates values, text after a closing quote is skipped, a
  // bare LF ends a line too, and a long number text is cut to 12.
  u.ordner.schreiben("T.ber", "\"ABCDEFGHIJKLMNO\"rest\n1,5\n\"7\"\r\n");
  LeseBerechnungen(u.kontext, "T");
  const Berechnung& b = u.z().Berechnungen[0];
  EXPECT_EQ(b.LVNr.Text(), "ABCDEFGHIJKL");
  EXPECT_EQ(b.Ergebnis, 1);
  EXPECT_EQ(b.Flaeche, 5);
  EXPECT_EQ(b.Farbe, 7);
}

// ---- Labels ---------------------------------------------------------------------------

Beschriftung Etikett() {
  Beschriftung b;
  b.Text = "Maßstab 1 : \\M";
  b.A = 12.5;
  b.B = -3.25;
  b.Winkel = 90;
  b.Farbe = 255;
  b.Schrift = "Arial";
  b.Groesse = 8.5f;
  b.Fett = Wahr;
  b.Massstab = 2.5;
  b.BezugsPunkt = 1;
  return b;
}

TEST(BeschriftungenDatei, OneLinePerLabelEveryFieldEndedBySemicolon) {
  Umgebung u;
  u.z().Beschriftungen[3] = Etikett();
  u.z().Beschriftungen[999] = Beschriftung{};
  u.z().Beschriftungen[999].Text = " ";
  ASSERT_TRUE(SchreibeBeschriftungen(u.kontext, "T"));
  EXPECT_EQ(u.ordner.lesen("T.bes"),
            "3;Ma\xDF" "stab 1 : \\M;12.5;-3.25;90;255;Arial;8.5;-1;0;0;2.5;1;\r\n"
            "999; ;0;0;0;0;;0;0;0;0;0;0;\r\n");
}

TEST(BeschriftungenDatei, ASizeShowsTheDigitsOfASingleNotItsBinaryTail) {
  Umgebung u;
  u.z().Beschriftungen[0].Text = "a";
  u.z().Beschriftungen[0].Groesse = 8.1f;
  u.z().Beschriftungen[1].Text = "b";
  u.z().Beschriftungen[1].Groesse = 1234567.0f / 3.0f;
  ASSERT_TRUE(SchreibeBeschriftungen(u.kontext, "T"));
  const std::string d = u.ordner.lesen("T.bes");
  EXPECT_NE(d.find("0;a;0;0;0;0;;8.1;"), std::string::npos) << d;
  EXPECT_NE(d.find("1;b;0;0;0;0;;411522.3;"), std::string::npos) << d;
}

TEST(BeschriftungenDatei, WithADecimalCommaTheNumbersCarryCommas) {
  Umgebung u;
  u.kontext.dezimalzeichen = ",";
  u.z().Beschriftungen[3] = Etikett();
  ASSERT_TRUE(SchreibeBeschriftungen(u.kontext, "T"));
  EXPECT_EQ(u.ordner.lesen("T.bes"), "3;Ma\xDF" "stab 1 : \\M;12,5;-3,25;90;255;Arial;8,5;-1;0;0;2,5;1;\r\n");
}

TEST(BeschriftungenDatei, TheSystemDecimalCharacterComesFromTheEnvironmentOverride) {
  Umgebung u;
  u.kontext.dezimalzeichen.clear();
  u.z().Beschriftungen[0] = Etikett();
  ::setenv("KOLM_DEZIMALZEICHEN", ",", 1);
  const bool ok = SchreibeBeschriftungen(u.kontext, "Komma");
  ::setenv("KOLM_DEZIMALZEICHEN", ".", 1);
  const bool ok2 = SchreibeBeschriftungen(u.kontext, "Punkt");
  ::unsetenv("KOLM_DEZIMALZEICHEN");
  ASSERT_TRUE(ok && ok2);
  EXPECT_NE(u.ordner.lesen("Komma.bes").find(";12,5;"), std::string::npos);
  EXPECT_NE(u.ordner.lesen("Punkt.bes").find(";12.5;"), std::string::npos);
}

TEST(BeschriftungenDatei, ACommaLocaleLosesTheFractionsOfSizeAndScaleButNotOfTheAnchor) {
  Umgebung u;
  u.kontext.dezimalzeichen = ",";
  u.z().Beschriftungen[3] = Etikett();
  ASSERT_TRUE(SchreibeBeschriftungen(u.kontext, "T"));
  LeseBeschriftungen(u.kontext, "T");
  const Beschriftung& b = u.z().Beschriftungen[3];
  EXPECT_EQ(b.Text, "Maßstab 1 : \\M");
  EXPECT_EQ(b.A, 12.5);
  EXPECT_EQ(b.B, -3.25);
  EXPECT_EQ(b.Groesse, 8.0f);
  EXPECT_EQ(b.Massstab, 2.0);
  EXPECT_EQ(b.Fett, Wahr);
  EXPECT_EQ(b.BezugsPunkt, 1);
}

TEST(BeschriftungenDatei, WithAPointLocaleAFileRoundTripsByteForByte) {
  Umgebung u;
  for (int i = 0; i < 1000; i += 3) {
    Beschriftung b = Etikett();
    b.Text = "Text " + std::to_string(i) + " äöü €";
    b.A = i / 8.0;
    b.B = -i * 1000.125;
    b.Groesse = 6.0f + static_cast<float>(i % 7) / 4.0f;
    b.Massstab = i % 2 ? 0 : 500.75;
    u.z().Beschriftungen[i] = b;
  }
  ASSERT_TRUE(SchreibeBeschriftungen(u.kontext, "T"));
  LeseBeschriftungen(u.kontext, "T");
  ASSERT_TRUE(SchreibeBeschriftungen(u.kontext, "T2"));
  EXPECT_EQ(u.ordner.lesen("T2.bes"), u.ordner.lesen("T.bes"));
  EXPECT_EQ(u.z().Beschriftungen[999].B, -999124.875);
}

TEST(BeschriftungenDatei, ASemicolonInTheTextShiftsTheLaterColumns) {
  Umgebung u;
  u.z().Beschriftungen[5] = Etikett();
  u.z().Beschriftungen[5].Text = "a;b";
  ASSERT_TRUE(SchreibeBeschriftungen(u.kontext, "T"));
  LeseBeschriftungen(u.kontext, "T");
  const Beschriftung& b = u.z().Beschriftungen[5];
  EXPECT_EQ(b.Text, "a");
  EXPECT_EQ(b.A, 0) << "column 2 now holds \"b\"";
  EXPECT_EQ(b.B, 12.5);
  EXPECT_EQ(b.Winkel, -3) << "-3.25 rounded";
  EXPECT_EQ(b.Farbe, 90);
  EXPECT_EQ(b.Schrift, "255");
  EXPECT_EQ(b.BezugsPunkt, 2) << "2.5 rounds half to even";
}

TEST(BeschriftungenDatei, ShortLinesKeepClearedFieldsAndOddLinesAreSkipped) {
  Umgebung u;
  u.z().Beschriftungen[9] = Etikett();  // cleared by the reader
  u.ordner.schreiben("T.bes",
                     "\r\n"
                     "4;Nur Text;7.5\r\n"
                     "\n\n7;Sieben;1;2\r\r\n"
                     "1000;Zu gross;1;1;\r\n"
                     "-1;Negativ;\r\n"
                     "abc\r\n"
                     "2.5;Halb;\r\n"
                     "3.5;Halb3\r\n"
                     "6;A;1;2;3;4;S;5;6;7;8;9;10;11;12;13\r\n");
  LeseBeschriftungen(u.kontext, "T");
  const auto& b = u.z().Beschriftungen;
  EXPECT_EQ(b[4].Schrift, "");
  EXPECT_EQ(b[7].Text, "Sieben");
  EXPECT_EQ(b[7].B, 2);
  EXPECT_TRUE(b[9].Text.empty());
  EXPECT_EQ(b[2].Text, "Halb") << "the slot is rounded half to even";
  EXPECT_EQ(b[4].Text, "Halb3") << "3.5 rounds to slot 4, whose text it replaces";
  EXPECT_EQ(b[4].A, 7.5) << "a field the later line lacks stays";
  EXPECT_EQ(b[0].Text, "") << "abc names slot 0 but sets nothing";
  EXPECT_EQ(b[6].BezugsPunkt, 10) << "columns beyond 12 are ignored";
  EXPECT_EQ(b[6].Groesse, 5.0f);
  EXPECT_EQ(b[6].Massstab, 9);
  int benutzt = 0;
  for (const auto& x : b) benutzt += !x.Text.empty();
  EXPECT_EQ(benutzt, 4);
}

TEST(BeschriftungenDatei, LinesAreCutAtCROnlySoAFileWithBareLineFeedsIsOneLine) {
  Umgebung u;
  u.ordner.schreiben("T.bes", "1;Eins;\n2;Zwei;\n");
  LeseBeschriftungen(u.kontext, "T");
  EXPECT_EQ(u.z().Beschriftungen[1].Text, "Eins");
  EXPECT_TRUE(u.z().Beschriftungen[2].Text.empty());
}

TEST(BeschriftungenDatei, AStemWithASeparatorIsAPathOfItsOwn) {
  Umgebung u;
  std::filesystem::create_directory(u.ordner.datei("unter"));
  Zustand& z = u.z();
  z.Beschriftungen[1].Text = "x";
  const std::string stamm = u.ordner.pfad.string() + "\\unter\\Prof";
  z.ProjektVerzeichnis = "/gibt/es/nicht/";
  ASSERT_TRUE(SchreibeBeschriftungen(u.kontext, stamm));
  EXPECT_EQ(u.ordner.lesen("unter/Prof.bes"), "1;x;0;0;0;0;;0;0;0;0;0;0;\r\n");
  z.Beschriftungen[1].Text.clear();
  LeseBeschriftungen(u.kontext, stamm);
  EXPECT_EQ(z.Beschriftungen[1].Text, "x");
  EXPECT_EQ(BeschriftungsDatei(z, "P1"), "/gibt/es/nicht/P1.bes");
}

TEST(BeschriftungenDatei, AMissingFileEmptiesEveryLabel) {
  Umgebung u;
  u.z().Beschriftungen[9] = Etikett();
  LeseBeschriftungen(u.kontext, "Fehlt");
  EXPECT_TRUE(u.z().Beschriftungen[9].Text.empty());
  EXPECT_TRUE(u.meldungen().empty());
  EXPECT_EQ(u.status(), std::vector<std::string>{"Beschriftungen lesen..."});
}

}  // namespace
}  // namespace kolm::core
