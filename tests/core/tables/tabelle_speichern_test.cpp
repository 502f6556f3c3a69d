// Saving the active table, the "TEST" stem, loading a table's files, and
// writes that fail half way.
#include "tabellen_hilfen.h"

namespace kolm::core {
namespace {

using namespace testhilfen;

// A table in row `zeile` with one of everything.
void Fuellen(Zustand& z, int zeile, const std::string& datei = "Prof7", const std::string& pkt = "Pkt7") {
  z.AktiveTabelle = static_cast<Integer>(zeile);
  Tabelle& t = z.Tabellen[zeile];
  t.TablName = "Profil 7";
  t.Dateiname = datei;
  t.PktDateiName = pkt;
  z.Punkte[1].A = 10;
  z.Punkte[2].B = 20;
  z.Verbindungen[0] = Verbindung{1, 2};
  z.Boegen[3].Radius = 5;
  z.Beschriftungen[0].Text = "\\T";
  z.Berechnungen[0].LVNr = LVNummer::Rechts("01.02");
  z.Berechnungen[0].Anzahl = 3;
  z.Berechnungen[0].Element[0] = 1;
  z.Berechnungen[0].Element[1] = -3;
  z.Berechnungen[0].Element[2] = 2;
  z.Hintergrundbilder[0].Breite = 2;
  z.TabelleGeaendert = Wahr;
}

const std::vector<std::string> kAlleTexte = {
    "Berechnung speichern...", "Verbindungen speichern...", "Kreisbögen speichern...",
    "Beschriftung speichern...", "Hintergrundbilder speichern...", "Punkte speichern...",
    "Punkte-Tabelle gespeichert"};

TEST(TabelleSpeichern, WritesAllSixFilesWithItsStatusTextsInOrder) {
  Umgebung u;
  Fuellen(u.z(), 12);
  TabelleSpeichern(u.kontext);
  EXPECT_EQ(u.status(), kAlleTexte);
  EXPECT_EQ(u.ordner.dateien(),
            (std::vector<std::string>{"Pkt7.pkt", "Prof7.ber", "Prof7.bes", "Prof7.bog", "Prof7.pic", "Prof7.ver"}));
  EXPECT_EQ(u.ordner.lesen("Pkt7.pkt").size(), 80u);
  EXPECT_EQ(u.ordner.lesen("Prof7.pic").size(), 1785u);
  EXPECT_EQ(u.z().TabelleGeaendert, Falsch);
}

TEST(TabelleSpeichern, DoesNothingOutsideRows0To499OrForARowWithoutName) {
  for (int zeile : {-1, 500}) {
    Umgebung u;
    Fuellen(u.z(), zeile < 0 ? 0 : zeile);
    u.z().AktiveTabelle = static_cast<Integer>(zeile);
    TabelleSpeichern(u.kontext);
    EXPECT_TRUE(u.ordner.dateien().empty()) << zeile;
    EXPECT_TRUE(u.status().empty()) << zeile;
    EXPECT_EQ(u.z().TabelleGeaendert, Wahr) << zeile;
  }
  for (const char* name : {"", "   "}) {
    Umgebung u;
    Fuellen(u.z(), 499);
    u.z().Tabellen[499].TablName = name;
    TabelleSpeichern(u.kontext);
    EXPECT_TRUE(u.ordner.dateien().empty());
  }
  Umgebung u;
  Fuellen(u.z(), 499);
  TabelleSpeichern(u.kontext);
  EXPECT_EQ(u.ordner.dateien().size(), 6u) << "row 499 is the last one saved";
}

TEST(TabelleSpeichern, ABlankStemSkipsItsFiles) {
  Umgebung u;
  Fuellen(u.z(), 0, " ", "Pkt7");
  TabelleSpeichern(u.kontext);
  EXPECT_EQ(u.ordner.dateien(), std::vector<std::string>{"Pkt7.pkt"});
  EXPECT_EQ(u.status(), (std::vector<std::string>{"Punkte speichern...", "Punkte-Tabelle gespeichert"}));

  Umgebung v;
  Fuellen(v.z(), 0, "Prof7", "");
  TabelleSpeichern(v.kontext);
  EXPECT_EQ(v.ordner.dateien().size(), 5u);
  EXPECT_EQ(v.status().back(), "Punkte speichern...");
  EXPECT_EQ(v.z().TabelleGeaendert, Falsch);
}

TEST(TabelleSpeichern, ATestStemInAnyCaseNeverReachesTheDisk) {
  for (const char* stamm : {"TEST", "test", "TeSt"}) {
    Umgebung u;
    Fuellen(u.z(), 3, stamm, stamm);
    u.ordner.schreiben(std::string(stamm) + ".pkt", "alt");
    TabelleSpeichern(u.kontext);
    EXPECT_EQ(u.ordner.dateien(), std::vector<std::string>{std::string(stamm) + ".pkt"}) << stamm;
    EXPECT_EQ(u.ordner.lesen(std::string(stamm) + ".pkt"), "alt");
    EXPECT_EQ(u.status(), kAlleTexte) << "the texts are shown all the same";
    EXPECT_EQ(u.z().TabelleGeaendert, Falsch);
  }
  EXPECT_FALSE(TestStamm("TEST1"));
  EXPECT_FALSE(TestStamm("TES"));
  EXPECT_FALSE(TestStamm(" TEST"));
}

TEST(TabelleSpeichern, BackslashesOfFolderAndStemStandForTheSeparator) {
  Umgebung u;
  std::filesystem::create_directory(u.ordner.datei("unter"));
  Fuellen(u.z(), 0, "unter\\Prof", "unter\\Pkt");
  u.z().ProjektVerzeichnis = u.ordner.pfad.string() + "\\";
  TabelleSpeichern(u.kontext);
  EXPECT_EQ(u.ordner.lesen("unter/Pkt.pkt").size(), 80u);
  EXPECT_TRUE(u.ordner.gibt("unter/Prof.ver"));
  EXPECT_TRUE(u.ordner.gibt("unter/Prof.pic"));
  EXPECT_FALSE(u.ordner.gibt("unter/Prof.bes")) << "a stem with a separator names the label file alone";
}

TEST(TabelleSpeichern, CopiesTheViewValuesBackIntoTheRow) {
  Umgebung u;
  Fuellen(u.z(), 8);
  TabellenAnsicht& a = u.z().Ansicht;
  a.Massstab = 250;
  a.Vergleichsebene = 101.5;
  a.XMitte = 1;
  a.YMitte = 2;
  a.XOffset = 3;
  a.VergleichsebeneSichtbar = 0;
  a.YOffset = 4;
  a.YAchseSichtbar = 0;
  a.Rasterabstand = 0;
  a.Achsenbeschriftung = 5;
  a.GitterFarbIndex = 6;
  a.GitterSchriftFarbIndex = 7;
  a.Gitterstil = 1;
  a.Massstabtyp = 2;
  a.LogoSichtbar = -1;
  a.Ueberhoehung = 10;
  a.KreisBeschriften = Wahr;
  TabelleSpeichern(u.kontext);
  const Tabelle& t = u.z().Tabellen[8];
  EXPECT_EQ(t.Massstab, 250);
  EXPECT_EQ(t.Vergleichsebene, 101.5);
  EXPECT_EQ(t.XMitte, 1);
  EXPECT_EQ(t.YMitte, 2);
  EXPECT_EQ(t.XOffset, 3);
  EXPECT_EQ(t.VergleichsebeneSichtbar, 0);
  EXPECT_EQ(t.YOffset, 4);
  EXPECT_EQ(t.YAchseSichtbar, 0);
  EXPECT_EQ(t.Rasterabstand, 10) << "a grid spacing of 0 becomes 10";
  EXPECT_EQ(a.Rasterabstand, 10);
  EXPECT_EQ(t.Achsenbeschriftung, 5);
  EXPECT_EQ(t.GitterFarbIndex, 6);
  EXPECT_EQ(t.GitterSchriftFarbIndex, 7);
  EXPECT_EQ(t.Gitterstil, 1);
  EXPECT_EQ(t.Massstabtyp, 2);
  EXPECT_EQ(t.LogoSichtbar, -1);
  EXPECT_EQ(t.Ueberhoehung, 1) << "only Massstab .. LogoSichtbar are copied";
  EXPECT_EQ(t.KreisBeschriften, 0);
}

TEST(TabelleSpeichern, CallsThePreviewWithTheStemAfterTheFiles) {
  Umgebung u;
  Fuellen(u.z(), 0);
  std::vector<std::string> aufrufe;
  u.kontext.vorschau = [&](const std::string& stamm) {
    aufrufe.push_back(stamm);
    EXPECT_EQ(u.z().TabelleGeaendert, Falsch);
    EXPECT_TRUE(u.ordner.gibt("Pkt7.pkt"));
  };
  TabelleSpeichern(u.kontext);
  EXPECT_EQ(aufrufe, std::vector<std::string>{u.ordner.verzeichnis() + "Prof7"});
}

TEST(TabelleSpeichern, AFailedWriteLeavesEveryPreviousFileComplete) {
  for (const char* schritt : {"open", "write", "sync", "rename"}) {
    Umgebung u;
    Fuellen(u.z(), 0);
    TabelleSpeichern(u.kontext);
    std::map<std::string, std::string> vorher;
    for (const auto& name : u.ordner.dateien()) vorher[name] = u.ordner.lesen(name);
    // Change everything, then let every write fail at one step.
    for (int n = 0; n < 300; ++n) u.z().Punkte[n].C = n + 1;
    u.z().Verbindungen[1] = Verbindung{2, 3};
    u.z().Boegen[4].Radius = 6;
    u.z().Beschriftungen[1].Text = "neu";
    u.z().Berechnungen[1].LVNr = LVNummer::Rechts("9");
    u.z().Hintergrundbilder[1].Breite = 9;
    io::SetFaultHook([schritt](std::string_view s, const std::string&) { return s == schritt; });
    TabelleSpeichern(u.kontext);
    io::SetFaultHook(nullptr);
    for (const auto& [name, bytes] : vorher) EXPECT_EQ(u.ordner.lesen(name), bytes) << schritt << " " << name;
    EXPECT_EQ(u.ordner.dateien().size(), 6u) << "no temporary file stays behind";
    EXPECT_TRUE(u.meldungen().empty()) << "a failed write shows nothing";
  }
}

TEST(TabelleSpeichern, AWriteThatFailsForOneFileStillWritesTheOthers) {
  Umgebung u;
  Fuellen(u.z(), 0);
  u.ordner.schreiben("Prof7.ver", "alt");
  io::SetFaultHook([](std::string_view s, const std::string& pfad) {
    return s == "write" && pfad.size() > 4 && pfad.substr(pfad.size() - 4) == ".ver";
  });
  TabelleSpeichern(u.kontext);
  io::SetFaultHook(nullptr);
  EXPECT_EQ(u.ordner.lesen("Prof7.ver"), "alt");
  EXPECT_EQ(u.ordner.lesen("Pkt7.pkt").size(), 80u);
  EXPECT_EQ(u.status(), kAlleTexte);
}

TEST(TabelleSpeichern, EachWriterReportsWhetherItsFileWasReplaced) {
  Umgebung u;
  using Schreiber = bool (*)(TabellenKontext&, std::string_view);
  for (Schreiber s : {&SchreibePunkte, &SchreibeVerbindungen, &SchreibeBoegen, &SchreibeBerechnungen,
                      &SchreibeBeschriftungen, &SchreibeBilder}) {
    EXPECT_TRUE(s(u.kontext, "A"));
    EXPECT_FALSE(s(u.kontext, "Test"));
    io::SetFaultHook([](std::string_view, const std::string&) { return true; });
    EXPECT_FALSE(s(u.kontext, "A"));
    io::SetFaultHook(nullptr);
  }
  EXPECT_EQ(u.ordner.dateien().size(), 6u);
}

// ---- Loading the files of the active table ---------------------------------------------

TEST(TabellenDateienLesen, ReadsInTheLoadingOrderAndSweepsTheArcs) {
  Umgebung u;
  Fuellen(u.z(), 2);
  u.z().Boegen[9].Radius = 3;  // tied to no calculation
  TabelleSpeichern(u.kontext);
  EXPECT_EQ(u.ordner.lesen("Prof7.bog").size(), 88u) << "an untied arc survives the save";

  Zustand z;
  z.ProjektVerzeichnis = u.ordner.verzeichnis();
  z.Tabellen = u.z().Tabellen;
  z.AktiveTabelle = 2;
  forms::ScriptedServices dienste;
  TabellenKontext k(z, dienste.services);
  TabellenDateienLesen(k);
  EXPECT_EQ(dienste.status.history(),
            (std::vector<std::string>{"Berechnungen lesen...", "Verbindungen lesen...", "Kreisbögen lesen...",
                                      "Beschriftungen lesen...", "Hintergrundbilder einlesen...",
                                      "Punkte-Tabelle lesen..."}));
  EXPECT_EQ(z.Boegen[3].Radius, 5) << "referenced by the calculation";
  EXPECT_EQ(z.Boegen[9].Radius, 0) << "but not the next load";
  EXPECT_EQ(z.NaechsterFreierBogen, 1);
  EXPECT_EQ(z.Punkte[1].A, 10);
  EXPECT_EQ(z.Verbindungen[0].Nach, 2);
  EXPECT_EQ(z.Beschriftungen[0].Text, "\\T");
  EXPECT_EQ(z.Hintergrundbilder[0].Breite, 2);
  EXPECT_EQ(dienste.busy.depth(), 0);
}

TEST(TabellenDateienLesen, ASharedPointFileServesTwoTables) {
  Umgebung u;
  Fuellen(u.z(), 0, "ProfA", "Gemein");
  TabelleSpeichern(u.kontext);
  Zustand z;
  z.ProjektVerzeichnis = u.ordner.verzeichnis();
  z.Tabellen[1].TablName = "Profil B";
  z.Tabellen[1].Dateiname = "ProfB";
  z.Tabellen[1].PktDateiName = "Gemein";
  z.AktiveTabelle = 1;
  forms::ScriptedServices dienste;
  TabellenKontext k(z, dienste.services);
  TabellenDateienLesen(k);
  EXPECT_EQ(z.Punkte[2].B, 20);
  EXPECT_EQ(z.Verbindungen[0].Von, -1) << "connections are the table's own";
  EXPECT_TRUE(dienste.messages.shown().empty());
}

TEST(TabellenDateienLesen, NothingForNoActiveRowOrARowWithoutName) {
  Umgebung u;
  u.z().AktiveTabelle = -1;
  u.z().Punkte[5].A = 1;
  TabellenDateienLesen(u.kontext);
  EXPECT_FALSE(u.z().PunktLeer(5));
  u.z().AktiveTabelle = 0;
  TabellenDateienLesen(u.kontext);
  EXPECT_FALSE(u.z().PunktLeer(5));
  EXPECT_TRUE(u.status().empty());
}

}  // namespace
}  // namespace kolm::core
