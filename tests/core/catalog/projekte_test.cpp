// Projects as folders: the list of known projects, a folder's identity and
// name, and the files a copy of a project takes.
#include "core/catalog/projekte.h"

#include "katalog_testhilfen.h"

namespace kolm::core {
namespace {

using namespace katalogtest;

// ---- Known projects -----------------------------------------------------------------

TEST(BekannteProjekte, EveryKeyOfTheProjectsSectionUpToTheNextSection) {
  Ordner o;
  o.schreiben("Kolm.ini",
              "[kolm]\r\nProgramDir=C:\\Kolm\\\r\n"
              "[projects]\r\n"
              "Demo Projekt=C:\\Kolm\\Demo Projekt\\\r\n"
              "  Stra\xDF" "enbau 2024 = D:\\Bau\\\r\n"
              "; Kommentar=nein\r\n"
              "ohne Gleichheitszeichen\r\n"
              "\r\n"
              "=leer\r\n"
              "Nur\n"
              "[last project]\r\nName=Demo Projekt\r\n"
              " [PROJECTS] \r\nSpaeter=X\\\r\n");
  const BekannteProjekte b = BekannteProjekteLesen(o.datei("Kolm.ini"));
  EXPECT_TRUE(b.dateiGefunden);
  EXPECT_FALSE(b.meldung);
  EXPECT_EQ(b.namen, (std::vector<std::string>{"Demo Projekt", "Straßenbau 2024", "Spaeter"}));
}

TEST(BekannteProjekte, AMissingFileIsReported) {
  Ordner o;
  const std::string pfad = o.datei("Kolm.ini");
  const BekannteProjekte b = BekannteProjekteLesen(pfad);
  EXPECT_FALSE(b.dateiGefunden);
  EXPECT_TRUE(b.namen.empty());
  EXPECT_TRUE(b.meldung);  // its text: ProjektOeffnenListe.WithoutKolmIniTheMessageAndAnEmptyList
}

TEST(BekannteProjekte, ASectionWithoutProjectsAndDamagedFilesGiveNoEntries) {
  Ordner o;
  o.schreiben("a.ini", "[kolm]\r\nA=1\r\n");
  EXPECT_TRUE(BekannteProjekteLesen(o.datei("a.ini")).namen.empty());
  o.schreiben("b.ini", std::string("[Projects]\r\n") + std::string(10000, '\0') + "=\r\nX=1");
  EXPECT_EQ(BekannteProjekteLesen(o.datei("b.ini")).namen.size(), 2u);
  o.schreiben("c.ini", "[Projects");
  EXPECT_TRUE(BekannteProjekteLesen(o.datei("c.ini")).namen.empty());
}

// ---- Project identity --------------------------------------------------------------------

TEST(ProjektOrdner, AFolderIsAProjectExactlyWhenItHoldsKolmproj) {
  Ordner o;
  ProjektOrdnerInfo info = ProjektOrdnerPruefen(o.verzeichnis());
  EXPECT_FALSE(info.istProjekt);
  EXPECT_EQ(info.text, "Kein Projekt in diesem Verzeichnis vorhanden!");

  o.schreiben("Kolmproj.ini", "[Defaults]\r\nAktive Tabelle=3\r\n");
  info = ProjektOrdnerPruefen(o.pfad.string());  // without a trailing separator
  EXPECT_TRUE(info.istProjekt);
  EXPECT_EQ(info.name, "Unbekanntes Projekt");
  EXPECT_EQ(info.text, "Projekt 'Unbekanntes Projekt' öffnen");

  o.schreiben("Kolmproj.ini", "[project]\r\nname=Br\xFC" "cke Nord\r\n");
  std::string mitBackslash = o.verzeichnis();
  std::replace(mitBackslash.begin(), mitBackslash.end(), '/', '\\');
  EXPECT_TRUE(IstProjektOrdner(mitBackslash));
  EXPECT_EQ(ProjektNameIn(mitBackslash), "Brücke Nord");
  EXPECT_EQ(ProjektOrdnerPruefen(o.verzeichnis()).text, "Projekt 'Brücke Nord' öffnen");
}

TEST(ProjektOrdner, OtherSpellingsOrAFolderOfThatNameAreNoProject) {
  Ordner o;
  o.schreiben("KOLMPROJ.INI", "[Project]\r\nName=X\r\n");
  EXPECT_FALSE(IstProjektOrdner(o.verzeichnis()));
  Ordner p;
  fs::create_directory(p.pfad / "Kolmproj.ini");
  EXPECT_FALSE(IstProjektOrdner(p.verzeichnis()));
}

// ---- Copying a project -------------------------------------------------------------------

TEST(ProjektKopie, ProjectFilesFirstThenEachTablesFilesByPrefix) {
  Umgebung u;
  for (const char* d : {"Kolmproj.ini", "Tabellen.ini", "Tabelle2.ini", "P1.ber", "P1.ver", "p1.pkt", "P10.ber",
                        "P1_000.jpg", "Q1.ber", "GEM.pkt", "andere.txt"})
    u.ordner.schreiben(d, "x");
  fs::create_directory(u.ordner.pfad / "P1ordner");
  u.zeile(0) = Zeile("Profil 1", 0, "P1", "P1");
  u.zeile(1) = Zeile("ohne Dateiname", 0, "", "andere");
  u.zeile(2) = Zeile("Q", 0, "Q1", "GEM");
  const std::string ziel = "/ziel/Kopie/";
  const auto schritte = ProjektKopieDateien(u.z(), u.ordner.verzeichnis(), ziel);
  std::vector<std::string> dateien;
  for (const KopierSchritt& s : schritte) dateien.push_back(s.datei);
  EXPECT_EQ(dateien, (std::vector<std::string>{"Kolmproj.ini", "Tabellen.ini", "Tabelle2.ini", "P1.ber", "P1.ver",
                                               "P10.ber", "P1_000.jpg", "p1.pkt", "Q1.ber", "GEM.pkt"}));
  EXPECT_EQ(schritte[0].quelle, u.ordner.verzeichnis() + "Kolmproj.ini");
  EXPECT_EQ(schritte[0].ziel, "/ziel/Kopie/Kolmproj.ini");
  EXPECT_EQ(schritte[0].text, "");
  EXPECT_EQ(schritte[7].quelle, u.ordner.verzeichnis() + "p1.pkt");
  EXPECT_EQ(schritte[7].ziel, "/ziel/Kopie/p1.pkt");
  EXPECT_EQ(schritte[7].text, "Kopiere p1.pkt [" + u.ordner.verzeichnis() + "] nach [/ziel/Kopie/]");
}

TEST(ProjektKopie, TheDatabaseComesAlongAndTheTargetGetsItsSeparator) {
  Umgebung u;
  u.ordner.schreiben("LV.MDB", "db");
  const auto schritte = ProjektKopieDateien(u.z(), u.ordner.verzeichnis(), "/ziel");
  ASSERT_EQ(schritte.size(), 1u);
  EXPECT_EQ(schritte[0].ziel, "/ziel/LV.MDB");
}

TEST(ProjektKopie, TheListCopiesAProjectThatThenReadsTheSame) {
  Umgebung u;
  Ordner ziel;
  u.zeile(0) = Zeile("Profil 1", 2.5, "P1", "P1");
  u.ordner.schreiben("P1.ber", "\"1\"\r\n");
  u.ordner.schreiben("P1.pkt", std::string(40, '\x01'));
  u.ordner.schreiben("Kolmproj.ini", "[Project]\r\nName=Alt\r\n");
  ASSERT_TRUE(KatalogSchreiben(u.kontext));
  for (const KopierSchritt& s : ProjektKopieDateien(u.z(), u.ordner.verzeichnis(), ziel.verzeichnis()))
    ASSERT_TRUE(io::CopyFileAtomically(s.quelle, s.ziel)) << s.datei;
  EXPECT_EQ(ziel.dateien(), u.ordner.dateien());
  for (const std::string& d : u.ordner.dateien()) EXPECT_EQ(ziel.lesen(d), u.ordner.lesen(d)) << d;
  EXPECT_FALSE(io::CopyFileAtomically(u.ordner.datei("fehlt"), ziel.datei("fehlt")));
  EXPECT_FALSE(ziel.gibt("fehlt"));
}

}  // namespace
}  // namespace kolm::core
