// The two catalogue files: what is written, byte for byte, and how each
// form is read back, with the choice between them by file time.
#include "katalog_testhilfen.h"

namespace kolm::core {
namespace {

using namespace katalogtest;

// The row the writing tests use, with every view field set off its default.
Tabelle VolleZeile() {
  Tabelle t = Zeile("Straße 1", 12.5, "S1", "S1");
  t.M31 = Wahr;
  t.Polar = Wahr;
  t.Massstab = 250;
  t.Vergleichsebene = 100.25;
  t.XMitte = 1;
  t.YMitte = 2;
  t.XOffset = 0.5;
  t.VergleichsebeneSichtbar = 1;
  t.YOffset = -3;
  t.YAchseSichtbar = 0;
  t.Rasterabstand = 5;
  t.Achsenbeschriftung = 2;
  t.GitterFarbIndex = 8;
  t.GitterSchriftFarbIndex = 9;
  t.Gitterstil = 3;
  t.Massstabtyp = 1;
  t.LogoSichtbar = -1;
  return t;
}

const char* const kVolleZeileAlt = "\"Stra\xDF" "e 1\"\r\n12.5\r\n\"S1\"\r\n\"S1\"\r\n-1\r\n0\r\n-1\r\n0\r\n";
const char* const kVolleZeileNeu =
    "\"Stra\xDF" "e 1\"\r\n12.5\r\n\"S1\"\r\n\"S1\"\r\n-1\r\n0\r\n-1\r\n"
    "0,250,100.25,1,2,0.5,1,-3,0,5,2,8,9,3,1,-1\r\n";

// Sets the global view values and flags to values no file of these tests
// holds, so that taking them over shows.
void GlobaleWerte(Zustand& z) {
  z.M31 = Wahr;
  z.Dritte = Wahr;
  z.Polar = Falsch;
  z.Falschdrehend = Wahr;
  z.Ansicht.Massstab = 777;
  z.Ansicht.Vergleichsebene = 33;
  z.Ansicht.Rasterabstand = 0;
  z.Ansicht.GitterFarbIndex = 4;
  z.Ansicht.Massstabtyp = 2;
  z.Ansicht.LogoSichtbar = 1;
}

// ---- Writing ----------------------------------------------------------------------

TEST(KatalogSchreiben, BothFilesHoldTheUsedRowsPackedInWindows1252WithCrLf) {
  Umgebung u;
  u.zeile(2) = VolleZeile();
  u.zeile(5) = Zeile("   ", 3, "X", "X");  // a blank name is no row in use
  u.zeile(7) = Zeile("B", 0.1, "B", "S1");
  u.zeile(7).Falschdrehend = Wahr;
  u.zeile(7).Dritte = Wahr;
  ASSERT_TRUE(KatalogSchreiben(u.kontext));
  const std::string zweiteAlt = "\"B\"\r\n0.1\r\n\"B\"\r\n\"S1\"\r\n0\r\n-1\r\n0\r\n-1\r\n";
  EXPECT_EQ(u.ordner.lesen("Tabellen.ini"), kVolleZeileAlt + zweiteAlt);
  EXPECT_EQ(u.ordner.lesen("Tabelle2.ini"),
            std::string(kVolleZeileNeu) + "\"B\"\r\n0.1\r\n\"B\"\r\n\"S1\"\r\n0\r\n-1\r\n0\r\n" +
                "-1,100,0,0,0,0,1,0,1,10,0,8,8,3,1,0\r\n");
}

TEST(KatalogSchreiben, NumbersUseThePointAndTheGeneralFormWhateverTheLocale) {
  Umgebung u;
  ::setenv("KOLM_DEZIMALZEICHEN", ",", 1);
  u.zeile(0) = Zeile("A", 1234567.125);
  u.zeile(0).XMitte = 0.00001;
  u.zeile(0).Massstab = 1.5e15;
  const bool ok = KatalogSchreiben(u.kontext);
  ::unsetenv("KOLM_DEZIMALZEICHEN");
  ASSERT_TRUE(ok);
  EXPECT_EQ(u.ordner.lesen("Tabelle2.ini"),
            "\"A\"\r\n1234567.125\r\n\"\"\r\n\"\"\r\n0\r\n0\r\n0\r\n0,1.5E+15,0,1E-05,0,0,1,0,1,10,0,8,8,3,1,0\r\n");
}

TEST(KatalogSchreiben, AnEmptyCatalogueGivesTwoEmptyFiles) {
  Umgebung u;
  u.ordner.schreiben("Tabellen.ini", "\"alt\"\r\n");
  ASSERT_TRUE(KatalogSchreiben(u.kontext));
  EXPECT_EQ(u.ordner.lesen("Tabellen.ini"), "");
  EXPECT_EQ(u.ordner.lesen("Tabelle2.ini"), "");
}

TEST(KatalogSchreiben, TextsTheFormatCannotHoldAreWrittenSoNoLaterRowShifts) {
  Umgebung u;
  u.zeile(0) = Zeile("Erste\r\nZeile", 1, "E1", "E1");
  u.zeile(1) = Zeile("Profil \"Nord\" 2", 2, "N2", "N2");
  u.zeile(2) = Zeile("\nnur Umbruch", 3, "U3", "U3");  // blank once cut: no row
  u.zeile(3) = Zeile("Vierte", 4, "V4", "V4");
  ASSERT_TRUE(KatalogSchreiben(u.kontext));
  EXPECT_EQ(u.ordner.lesen("Tabellen.ini"),
            "\"Erste\"\r\n1\r\n\"E1\"\r\n\"E1\"\r\n0\r\n0\r\n0\r\n0\r\n"
            "\"Profil 'Nord' 2\"\r\n2\r\n\"N2\"\r\n\"N2\"\r\n0\r\n0\r\n0\r\n0\r\n"
            "\"Vierte\"\r\n4\r\n\"V4\"\r\n\"V4\"\r\n0\r\n0\r\n0\r\n0\r\n");
  u.z().TabellenLeeren();
  ASSERT_TRUE(KatalogLesen(u.kontext));
  EXPECT_EQ(Namen(u.z(), 4), (std::vector<std::string>{"Erste", "Profil 'Nord' 2", "Vierte", ""}));
  EXPECT_EQ(u.zeile(2).Dateiname, "V4");
}

TEST(KatalogSchreiben, WritesTheOlderFormFirstAndEachFileAtomically) {
  Umgebung u;
  u.zeile(0) = VolleZeile();
  std::vector<std::string> geoeffnet;
  io::SetFaultHook([&](std::string_view schritt, const std::string& pfad) {
    if (schritt == "open") geoeffnet.push_back(fs::path(pfad).filename().string());
    return false;
  });
  ASSERT_TRUE(KatalogSchreiben(u.kontext));
  EXPECT_EQ(geoeffnet, (std::vector<std::string>{"Tabellen.ini", "Tabelle2.ini"}));

  // A failure while writing the newer form leaves its previous content.
  u.zeile(0).TablName = "Neu";
  io::SetFaultHook([](std::string_view schritt, const std::string& pfad) {
    return schritt == "write" && pfad.find("Tabelle2.ini") != std::string::npos;
  });
  EXPECT_FALSE(KatalogSchreiben(u.kontext));
  io::SetFaultHook(nullptr);
  EXPECT_EQ(u.ordner.lesen("Tabelle2.ini"), kVolleZeileNeu);
  EXPECT_EQ(u.ordner.lesen("Tabellen.ini").rfind("\"Neu\"\r\n", 0), 0u);
}

TEST(KatalogSchreiben, WhatIsWrittenReadsBackAndWritesAgainByteForByte) {
  Umgebung u;
  u.zeile(0) = VolleZeile();
  u.zeile(1) = Zeile("Komma, im Namen", -0.75, "K", "S1");
  u.zeile(1).Falschdrehend = Wahr;
  u.zeile(1).Massstab = 333.333;
  for (int i = 2; i < 501; ++i) u.zeile(i) = Zeile("T" + std::to_string(i), i * 0.5, "T" + std::to_string(i));
  ASSERT_TRUE(KatalogSchreiben(u.kontext));
  const std::string alt = u.ordner.lesen("Tabellen.ini");
  const std::string neu = u.ordner.lesen("Tabelle2.ini");

  Umgebung v;
  v.ordner.schreiben("Tabellen.ini", alt);
  v.ordner.schreiben("Tabelle2.ini", neu);
  v.ordner.zeit("Tabellen.ini", 0);
  v.ordner.zeit("Tabelle2.ini", 0);
  ASSERT_TRUE(KatalogLesen(v.kontext));
  EXPECT_EQ(v.zeile(1).TablName, "Komma, im Namen");
  EXPECT_EQ(v.zeile(1).Stationierung, -0.75);
  EXPECT_EQ(v.zeile(1).Falschdrehend, Wahr);
  EXPECT_EQ(v.zeile(1).Massstab, 333.333);
  EXPECT_EQ(v.zeile(0).TablName, "Straße 1");
  EXPECT_EQ(v.zeile(0).LogoSichtbar, -1);
  EXPECT_EQ(v.zeile(500).TablName, "T500");
  ASSERT_TRUE(KatalogSchreiben(v.kontext));
  EXPECT_EQ(v.ordner.lesen("Tabellen.ini"), alt);
  EXPECT_EQ(v.ordner.lesen("Tabelle2.ini"), neu);
}

// ---- Reading the current form -----------------------------------------------------------

TEST(KatalogLesen, TheEighthLineHoldsSixteenValuesByPosition) {
  Umgebung u;
  GlobaleWerte(u.z());
  u.ordner.schreiben("Tabelle2.ini", kVolleZeileNeu);
  ASSERT_TRUE(KatalogLesen(u.kontext));
  const Tabelle& t = u.zeile(0);
  EXPECT_EQ(t.TablName, "Straße 1");
  EXPECT_EQ(t.Stationierung, 12.5);
  EXPECT_EQ(t.Dateiname, "S1");
  EXPECT_EQ(t.PktDateiName, "S1");
  EXPECT_EQ(t.M31, Wahr);
  EXPECT_EQ(t.Dritte, Falsch);
  EXPECT_EQ(t.Polar, Wahr);
  EXPECT_EQ(t.Falschdrehend, Falsch);
  EXPECT_TRUE(u.meldungen().empty());
  // Every view value at its position: written back, the row gives the same
  // line again (the writer's bytes are checked above); no value is the
  // global one left over.
  ASSERT_TRUE(KatalogSchreiben(u.kontext));
  EXPECT_EQ(u.ordner.lesen("Tabelle2.ini"), kVolleZeileNeu);
}

TEST(KatalogLesen, RowsPastTheEndTakeEmptyTextsAndTheGlobalValues) {
  Umgebung u;
  GlobaleWerte(u.z());
  u.zeile(3) = Zeile("vorher", 9, "V", "V");
  u.ordner.schreiben("Tabelle2.ini", kVolleZeileNeu);
  ASSERT_TRUE(KatalogLesen(u.kontext));
  for (int n : {1, 3, 500}) {
    const Tabelle& t = u.zeile(n);
    EXPECT_EQ(t.TablName, "") << n;
    EXPECT_EQ(t.Dateiname, "") << n;
    EXPECT_EQ(t.PktDateiName, "") << n;
    EXPECT_EQ(t.Stationierung, 0) << n;
    EXPECT_EQ(t.M31, Wahr) << n;
    EXPECT_EQ(t.Dritte, Wahr) << n;
    EXPECT_EQ(t.Polar, Falsch) << n;
    EXPECT_EQ(t.Falschdrehend, Wahr) << n;
    EXPECT_EQ(t.Massstab, 777) << n;
    EXPECT_EQ(t.Massstabtyp, 2) << n;
    EXPECT_EQ(t.Rasterabstand, 10) << "the global 0 is made 10 first";
  }
  EXPECT_EQ(u.z().Ansicht.Rasterabstand, 10);
}

TEST(KatalogLesen, AShortEighthLineIsTheOldFormWithFalschdrehendOnly) {
  Umgebung u;
  GlobaleWerte(u.z());
  // Nine characters: still the old form; ten: the new one, missing
  // positions keep the global value.
  u.ordner.schreiben("Tabelle2.ini",
                     "\"A\"\r\n1\r\n\"A\"\r\n\"A\"\r\n0\r\n0\r\n0\r\n        0\r\n"
                     "\"B\"\r\n2\r\n\"B\"\r\n\"B\"\r\n0\r\n0\r\n0\r\n0,250,7,80\r\n"
                     "\"C\"\r\n3\r\n\"C\"\r\n\"C\"\r\n0\r\n0\r\n0\r\n-1\r\n"
                     "\"D\"\r\n4\r\n\"D\"\r\n\"D\"\r\n0\r\n0\r\n0\r\n\r\n");
  ASSERT_TRUE(KatalogLesen(u.kontext));
  EXPECT_EQ(u.zeile(0).Falschdrehend, Falsch);
  EXPECT_EQ(u.zeile(0).Massstab, 777);
  EXPECT_EQ(u.zeile(0).Vergleichsebene, 33);
  EXPECT_EQ(u.zeile(0).GitterFarbIndex, 4);
  EXPECT_EQ(u.zeile(0).LogoSichtbar, 1);
  EXPECT_EQ(u.zeile(0).Rasterabstand, 10);

  EXPECT_EQ(u.zeile(1).Falschdrehend, Falsch);
  EXPECT_EQ(u.zeile(1).Massstab, 250);
  EXPECT_EQ(u.zeile(1).Vergleichsebene, 7);
  EXPECT_EQ(u.zeile(1).XMitte, 80);
  EXPECT_EQ(u.zeile(1).GitterFarbIndex, 4);
  EXPECT_EQ(u.zeile(1).Rasterabstand, 10);

  EXPECT_EQ(u.zeile(2).Falschdrehend, Wahr);
  EXPECT_EQ(u.zeile(2).Massstab, 777);
  EXPECT_EQ(u.zeile(3).TablName, "D");
  EXPECT_EQ(u.zeile(3).Falschdrehend, Falsch) << "an empty eighth line reads as 0";
  EXPECT_EQ(u.zeile(4).TablName, "");
}

TEST(KatalogLesen, ARasterabstandOfZeroInTheFileBecomesTen) {
  Umgebung u;
  u.ordner.schreiben("Tabelle2.ini", "\"A\"\r\n0\r\n\"A\"\r\n\"A\"\r\n0\r\n0\r\n0\r\n"
                                     "0,100,0,0,0,0,1,0,1,0,0,8,8,3,1,0\r\n");
  ASSERT_TRUE(KatalogLesen(u.kontext));
  EXPECT_EQ(u.zeile(0).Rasterabstand, 10);
}

TEST(KatalogLesen, LineEndsOfLfAloneAndAQuotedEighthLineAreRead) {
  Umgebung u;
  u.ordner.schreiben("Tabelle2.ini", "\"A\"\n2.5\n\"A1\"\n\"P\"\n-1\n0\n-1\n\"-1,500,0,0,0,0,1,0,1,20,0,8,8,3,1,0\"\n"
                                     "\"B\"\n3\n\"B1\"\n\"P\"\n0\n-1\n0\n0\n");
  ASSERT_TRUE(KatalogLesen(u.kontext));
  EXPECT_EQ(u.zeile(0).Stationierung, 2.5);
  EXPECT_EQ(u.zeile(0).Falschdrehend, Wahr);
  EXPECT_EQ(u.zeile(0).Massstab, 500);
  EXPECT_EQ(u.zeile(0).Rasterabstand, 20);
  EXPECT_EQ(u.zeile(1).Dateiname, "B1");
  EXPECT_EQ(u.zeile(1).Dritte, Wahr);
}

TEST(KatalogLesen, AFileEndingInsideARowGivesTheRestItsDefaults) {
  Umgebung u;
  GlobaleWerte(u.z());
  u.ordner.schreiben("Tabelle2.ini", "\"A\"\r\n4.5\r\n\"A1\"\r\n");
  ASSERT_TRUE(KatalogLesen(u.kontext));
  EXPECT_EQ(u.zeile(0).TablName, "A");
  EXPECT_EQ(u.zeile(0).Stationierung, 4.5);
  EXPECT_EQ(u.zeile(0).Dateiname, "A1");
  EXPECT_EQ(u.zeile(0).PktDateiName, "");
  EXPECT_EQ(u.zeile(0).M31, Wahr);
  EXPECT_EQ(u.zeile(0).Falschdrehend, Wahr);
  EXPECT_EQ(u.zeile(0).Massstab, 777);
  EXPECT_EQ(u.zeile(1).TablName, "");
}

// ---- The older form and the choice by time -----------------------------------------------

const char* const kAltZweiZeilen =
    "\"Alt A\"\r\n1\r\n\"AA\"\r\n\"AP\"\r\n-1\r\n-1\r\n0\r\n-1\r\n"
    "\"Alt B\"\r\n2\r\n\"BB\"\r\n\"BP\"\r\n0\r\n0\r\n-1\r\n0\r\n";
const char* const kNeuEineZeile =
    "\"Neu A\"\r\n9\r\n\"NA\"\r\n\"NP\"\r\n0\r\n0\r\n-1\r\n0,250,1,2,3,4,0,5,0,7,1,2,3,4,2,1\r\n";

TEST(KatalogLesen, WithoutTheNewerFileTheOlderIsCopiedAndTheViewFieldsAreGlobal) {
  Umgebung u;
  GlobaleWerte(u.z());
  u.ordner.schreiben("Tabellen.ini", kAltZweiZeilen);
  ASSERT_TRUE(KatalogLesen(u.kontext));
  EXPECT_EQ(u.ordner.lesen("Tabelle2.ini"), kAltZweiZeilen);
  EXPECT_EQ(Namen(u.z(), 3), (std::vector<std::string>{"Alt A", "Alt B", ""}));
  EXPECT_EQ(u.zeile(0).Dateiname, "AA");
  EXPECT_EQ(u.zeile(0).PktDateiName, "AP");
  EXPECT_EQ(u.zeile(0).Dritte, Wahr);
  EXPECT_EQ(u.zeile(0).Falschdrehend, Wahr);
  EXPECT_EQ(u.zeile(1).Polar, Wahr);
  EXPECT_EQ(u.zeile(1).Falschdrehend, Falsch);
  EXPECT_EQ(u.zeile(1).Massstab, 777);
  EXPECT_EQ(u.zeile(1).GitterFarbIndex, 4);
  EXPECT_EQ(u.zeile(1).Rasterabstand, 10);
  EXPECT_TRUE(u.meldungen().empty());
}

TEST(KatalogLesen, ANewerOlderFileGivesNamesStemsAndFlagsTheNewerOneTheView) {
  Umgebung u;
  GlobaleWerte(u.z());
  u.ordner.schreiben("Tabellen.ini", kAltZweiZeilen);
  u.ordner.schreiben("Tabelle2.ini", kNeuEineZeile);
  u.ordner.zeit("Tabelle2.ini", 0);
  u.ordner.zeit("Tabellen.ini", 2);
  ASSERT_TRUE(KatalogLesen(u.kontext));
  const Tabelle& a = u.zeile(0);
  EXPECT_EQ(a.TablName, "Alt A");
  EXPECT_EQ(a.Stationierung, 1);
  EXPECT_EQ(a.Dateiname, "AA");
  EXPECT_EQ(a.PktDateiName, "AP");
  EXPECT_EQ(a.M31, Wahr);
  EXPECT_EQ(a.Dritte, Wahr);
  EXPECT_EQ(a.Polar, Falsch);
  EXPECT_EQ(a.Falschdrehend, Wahr);
  EXPECT_EQ(a.Massstab, 250);
  EXPECT_EQ(a.YOffset, 5);
  EXPECT_EQ(a.LogoSichtbar, 1);
  // The second row is only in the older file: the view is the globals'.
  EXPECT_EQ(u.zeile(1).TablName, "Alt B");
  EXPECT_EQ(u.zeile(1).Polar, Wahr);
  EXPECT_EQ(u.zeile(1).Massstab, 777);
  // A row in neither: empty texts, global flags.
  EXPECT_EQ(u.zeile(2).TablName, "");
  EXPECT_EQ(u.zeile(2).M31, Wahr);
}

TEST(KatalogLesen, ANewerOlderFileWithFewerRowsEmptiesTheRestOfTheNewer) {
  Umgebung u;
  GlobaleWerte(u.z());
  u.ordner.schreiben("Tabellen.ini", "\"Nur eine\"\r\n0\r\n\"E\"\r\n\"E\"\r\n0\r\n0\r\n0\r\n0\r\n");
  u.ordner.schreiben("Tabelle2.ini", std::string(kNeuEineZeile) + kNeuEineZeile);
  u.ordner.zeit("Tabelle2.ini", 0);
  u.ordner.zeit("Tabellen.ini", 5);
  ASSERT_TRUE(KatalogLesen(u.kontext));
  EXPECT_EQ(u.zeile(0).TablName, "Nur eine");
  EXPECT_EQ(u.zeile(1).TablName, "");
  EXPECT_EQ(u.zeile(1).Stationierung, 0);
  EXPECT_EQ(u.zeile(1).Falschdrehend, Wahr) << "the global flag";
  EXPECT_EQ(u.zeile(1).Massstab, 250) << "the view still comes from the newer file";
}

TEST(KatalogLesen, EqualOrOlderTimesKeepTheNewerFile) {
  for (int altSekunden : {0, -3}) {
    Umgebung u;
    u.ordner.schreiben("Tabellen.ini", kAltZweiZeilen);
    u.ordner.schreiben("Tabelle2.ini", kNeuEineZeile);
    u.ordner.zeit("Tabelle2.ini", 0);
    u.ordner.zeit("Tabellen.ini", altSekunden);
    ASSERT_TRUE(KatalogLesen(u.kontext));
    EXPECT_EQ(u.zeile(0).TablName, "Neu A") << altSekunden;
    EXPECT_EQ(u.zeile(1).TablName, "") << altSekunden;
  }
}

TEST(KatalogLesen, WithoutAnyFileTheCatalogueIsEmptyAndTheUserIsTold) {
  Umgebung u;
  u.zeile(4) = Zeile("alt", 1, "A", "A");
  EXPECT_FALSE(KatalogLesen(u.kontext));
  EXPECT_EQ(u.zeile(4).TablName, "");
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_EQ(u.meldungen()[0].message.text,
            "Im Verzeichnis " + u.ordner.verzeichnis() + " existiert keine Datei Tabellen.ini!");
  EXPECT_EQ(u.meldungen()[0].message.title, "Kolm");
  EXPECT_EQ(u.meldungen()[0].message.buttons, forms::Buttons::OK);
  EXPECT_FALSE(u.ordner.gibt("Tabelle2.ini"));
}

TEST(KatalogLesen, DuringTheStartAMissingCatalogueIsNotReported) {
  Umgebung u;
  u.kontext.startLaeuft = true;
  u.zeile(0) = Zeile("alt");
  EXPECT_FALSE(KatalogLesen(u.kontext));
  EXPECT_TRUE(u.meldungen().empty());
  EXPECT_EQ(u.zeile(0).TablName, "");
}

TEST(KatalogLesen, AProjectFolderGivenWithBackslashesIsFound) {
  Umgebung u;
  u.ordner.schreiben("Tabelle2.ini", kNeuEineZeile);
  std::string mitBackslash = u.ordner.verzeichnis();
  std::replace(mitBackslash.begin(), mitBackslash.end(), '/', '\\');
  u.z().ProjektVerzeichnis = mitBackslash;
  ASSERT_TRUE(KatalogLesen(u.kontext));
  EXPECT_EQ(u.zeile(0).TablName, "Neu A");
}

}  // namespace
}  // namespace kolm::core
