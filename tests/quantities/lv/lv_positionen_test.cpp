// Positions: alignment of the number, adding rows, the list of LVEingabe,
// the short text by exact number, and the stored form of Datum.
#include "quantities/lv/lv_datenbank.h"
#include "quantities/lv/lv_schema.h"

#include "lv_hilfen.h"

namespace kolm::quantities {
namespace {

using testhilfen::Abfrage;
using testhilfen::Ausfuehren;
using testhilfen::Ordner;
using testhilfen::Zeilen;

TEST(LVNrAusrichten, RechtsbuendigAufZwoelfZeichen) {
  EXPECT_EQ(LVNrAusrichten("12"), "          12");
  EXPECT_EQ(LVNrAusrichten(""), "            ");
  EXPECT_EQ(LVNrAusrichten(" "), "            ");
  EXPECT_EQ(LVNrAusrichten("123456789012"), "123456789012");
  EXPECT_EQ(LVNrAusrichten("1234567890123"), "123456789012");  // the first twelve are kept
  EXPECT_EQ(LVNrAusrichten("1.2 "), "        1.2 ");            // blanks are characters too
  // Characters, not bytes: "Ä" is two bytes in UTF-8.
  EXPECT_EQ(LVNrAusrichten("Ä1"), "          Ä1");
  EXPECT_EQ(LVNrAusrichten("ÄÖÜäöüßÄÖÜäöü"), "ÄÖÜäöüßÄÖÜäö");
}

struct Positionen : ::testing::Test {
  Ordner projekt;
  void SetUp() override { ASSERT_TRUE(LVMusterErzeugen(projekt.datei("LV.MDB"))); }
  std::string lv() const { return projekt.datei("LV.MDB"); }
};

TEST_F(Positionen, HinzufuegenSchreibtJedeSpalte) {
  LVPosition p;
  p.lvnr = "12";
  p.mlvnr = "1234567890123";
  p.kurzText = std::string(49, 'x') + "äö";
  p.kurzBez = "ABC";
  p.einheit = "Kubikmeter!";
  p.lohn = 1.25;
  p.sonstiges = 0;
  p.einheitspreis = 3.5;
  p.endAusmass = 10;
  p.gesamtPreis = 35;
  p.datum = numbers::Zeitpunkt{2024, 2, 29, 7, 8, 9};
  p.linienfarbe = 255;
  p.linienstaerke = 3;
  p.flaechenfuellung = true;
  p.muster = 4;
  p.fuellfarbe = 65280;
  ASSERT_TRUE(LVPositionHinzufuegen(projekt.verzeichnis(), p));
  EXPECT_EQ(Abfrage(lv(), "SELECT * FROM Leistungsverzeichnis"),
            (Zeilen{{"          12", "123456789012", std::string(49, 'x') + "ä", "AB", "Kubikmeter", "1.25", "0.0",
                     "3.5", "10.0", "35.0", "2024-02-29 07:08:09", "255", "3", "-1", "4", "65280"}}));
  // Types as stored: numbers as numbers, not as texts.
  EXPECT_EQ(Abfrage(lv(), "SELECT typeof(LVNr), typeof(Lohn), typeof(Datum), typeof(Linienfarbe), "
                          "typeof(Flächenfüllung) FROM Leistungsverzeichnis"),
            (Zeilen{{"text", "real", "text", "integer", "integer"}}));
}

TEST_F(Positionen, LeereAngabenWerdenNullUndVorgaben) {
  LVPosition p;
  p.lvnr = "7";
  ASSERT_TRUE(LVPositionHinzufuegen(projekt.verzeichnis(), p));
  EXPECT_EQ(Abfrage(lv(), "SELECT * FROM Leistungsverzeichnis"),
            (Zeilen{{"           7", "", "", "", "<NULL>", "<NULL>", "<NULL>", "<NULL>", "<NULL>", "<NULL>",
                     "<NULL>", "0", "1", "0", "0", "16711680"}}));
}

TEST_F(Positionen, ImportiertWieGegeben) {
  LVPosition p;
  p.lvnr = "  1.01";
  p.kurzText = "Importiert";
  ASSERT_TRUE(LVPositionHinzufuegen(projekt.verzeichnis(), p, LVNrForm::WieGegeben));
  EXPECT_EQ(Abfrage(lv(), "SELECT LVNr FROM Leistungsverzeichnis"), (Zeilen{{"  1.01"}}));
  // Not aligned, so the exact lookup by the aligned number misses it.
  EXPECT_EQ(LVKurzText(projekt.verzeichnis(), "        1.01"), "");
  EXPECT_EQ(LVKurzText(projekt.verzeichnis(), "  1.01"), "Importiert");
}

TEST_F(Positionen, HinzufuegenBrauchtEineBestehendeDatenbank) {
  LVPosition p;
  p.lvnr = "1";
  Ordner leer;
  EXPECT_FALSE(LVPositionHinzufuegen(leer.verzeichnis(), p));
  EXPECT_TRUE(leer.dateien().empty());  // no database made by the way

  for (const std::string& bytes : {std::string(), testhilfen::Zufallsbytes(4096, 5), testhilfen::JetDatei()}) {
    leer.schreiben("LV.MDB", bytes);
    EXPECT_FALSE(LVPositionHinzufuegen(leer.verzeichnis(), p));
    EXPECT_EQ(leer.lesen("LV.MDB"), bytes);
    EXPECT_EQ(leer.dateien(), (std::vector<std::string>{"LV.MDB"}));
  }
}

TEST_F(Positionen, ListeInDerReihenfolgeDerDatenbank) {
  auto leer = LVListeLesen(projekt.verzeichnis());
  ASSERT_TRUE(leer.has_value());
  EXPECT_TRUE(leer->empty());

  for (const char* nr : {"3", "1", "2"}) {
    LVPosition p;
    p.lvnr = nr;
    p.kurzText = std::string("Position ") + nr;
    p.kurzBez = "P";
    ASSERT_TRUE(LVPositionHinzufuegen(projekt.verzeichnis(), p));
  }
  ASSERT_TRUE(Ausfuehren(lv(), "INSERT INTO Leistungsverzeichnis (LVNr) VALUES (NULL)"));
  auto liste = LVListeLesen(projekt.verzeichnis());
  ASSERT_TRUE(liste.has_value());
  ASSERT_EQ(liste->size(), 4u);
  EXPECT_EQ((*liste)[0].lvnr, "           3");
  EXPECT_EQ((*liste)[0].kurzText, "Position 3");
  EXPECT_EQ((*liste)[0].kurzBez, "P");
  EXPECT_EQ((*liste)[1].lvnr, "           1");
  EXPECT_EQ((*liste)[2].lvnr, "           2");
  EXPECT_EQ((*liste)[3].lvnr, "");  // NULL reads as empty
  EXPECT_EQ((*liste)[3].kurzText, "");
}

TEST_F(Positionen, ListeOhneOderMitBeschaedigterDatenbank) {
  Ordner o;
  EXPECT_EQ(LVListeLesen(o.verzeichnis()), std::nullopt);
  EXPECT_TRUE(o.dateien().empty());
  for (const std::string& bytes : {std::string(), testhilfen::Zufallsbytes(4096, 9), testhilfen::JetDatei()}) {
    o.schreiben("LV.MDB", bytes);
    EXPECT_EQ(LVListeLesen(o.verzeichnis()), std::nullopt);
    EXPECT_EQ(o.lesen("LV.MDB"), bytes);
  }
  std::filesystem::remove(o.pfad / "LV.MDB");
  std::filesystem::create_directory(o.pfad / "LV.MDB");
  EXPECT_EQ(LVListeLesen(o.verzeichnis()), std::nullopt);
}

TEST_F(Positionen, KurzTextNurBeiGenauGleicherNummer) {
  for (const auto& [nr, text] : std::vector<std::pair<std::string, std::string>>{
           {"12", "Aushub"}, {"120", "Verfüllung"}, {"Ä1", "Umlaut"}}) {
    LVPosition p;
    p.lvnr = nr;
    p.kurzText = text;
    ASSERT_TRUE(LVPositionHinzufuegen(projekt.verzeichnis(), p));
  }
  ASSERT_TRUE(Ausfuehren(lv(), "INSERT INTO Leistungsverzeichnis (LVNr, KurzText) VALUES ('           5', NULL)"));
  const std::string v = projekt.verzeichnis();
  EXPECT_EQ(LVKurzText(v, "          12"), "Aushub");
  EXPECT_EQ(LVKurzText(v, "         120"), "Verfüllung");
  EXPECT_EQ(LVKurzText(v, "          Ä1"), "Umlaut");
  // Only the first 12 characters count.
  EXPECT_EQ(LVKurzText(v, "          12 und mehr"), "Aushub");
  EXPECT_EQ(LVKurzText(v, "          Ä1ÄÄ"), "Umlaut");
  // No alignment, no prefix match, no case folding.
  EXPECT_EQ(LVKurzText(v, "12"), "");
  EXPECT_EQ(LVKurzText(v, "         12"), "");
  EXPECT_EQ(LVKurzText(v, "          1"), "");
  EXPECT_EQ(LVKurzText(v, "          ä1"), "");
  EXPECT_EQ(LVKurzText(v, "           5"), "");  // NULL text
  EXPECT_EQ(LVKurzText(v, ""), "");
}

TEST_F(Positionen, KurzTextOhneOderMitBeschaedigterDatenbank) {
  Ordner o;
  EXPECT_EQ(LVKurzText(o.verzeichnis(), "          12"), "");
  EXPECT_TRUE(o.dateien().empty());
  for (const std::string& bytes : {std::string(), testhilfen::Zufallsbytes(4096, 2), testhilfen::JetDatei()}) {
    o.schreiben("LV.MDB", bytes);
    EXPECT_EQ(LVKurzText(o.verzeichnis(), "          12"), "");
    EXPECT_EQ(o.lesen("LV.MDB"), bytes);
  }
  // A database without the table.
  std::filesystem::remove(o.pfad / "LV.MDB");
  ASSERT_TRUE(Ausfuehren(o.datei("LV.MDB"), "CREATE TABLE Positionen (LVNr TEXT, KurzText TEXT);"));
  EXPECT_EQ(LVKurzText(o.verzeichnis(), "          12"), "");
}

TEST_F(Positionen, AbgeschnitteneDatenbankGibtLeerStattAbsturz) {
  for (int i = 0; i < 500; ++i) {
    LVPosition p;
    p.lvnr = std::to_string(i);
    p.kurzText = "Position mit einem Kurztext von einiger Länge " + std::to_string(i);
    ASSERT_TRUE(LVPositionHinzufuegen(projekt.verzeichnis(), p));
  }
  const std::string voll = projekt.lesen("LV.MDB");
  ASSERT_GT(voll.size(), 4u * 4096);
  projekt.schreiben("LV.MDB", voll.substr(0, voll.size() / 2));
  // Whatever SQLite can still read: no crash, and the list is all or nothing.
  const std::string text = LVKurzText(projekt.verzeichnis(), LVNrAusrichten("499"));
  EXPECT_TRUE(text.empty() || text == "Position mit einem Kurztext von einiger Länge 499") << text;
  EXPECT_EQ(LVListeLesen(projekt.verzeichnis()), std::nullopt);
  EXPECT_EQ(projekt.lesen("LV.MDB"), voll.substr(0, voll.size() / 2));
}

TEST(LVDatum, IsoTextHinUndZurueck) {
  const numbers::Zeitpunkt t{2023, 12, 31, 23, 59, 58};
  EXPECT_EQ(LVDatumText(t), "2023-12-31 23:59:58");
  EXPECT_EQ(LVDatumText(numbers::Zeitpunkt{}), "1899-12-30 00:00:00");
  const auto zurueck = LVDatumLesen("2023-12-31 23:59:58");
  ASSERT_TRUE(zurueck.has_value());
  EXPECT_EQ(LVDatumText(*zurueck), "2023-12-31 23:59:58");
  const auto tag = LVDatumLesen("2024-02-29");
  ASSERT_TRUE(tag.has_value());
  EXPECT_EQ(LVDatumText(*tag), "2024-02-29 00:00:00");

  for (const char* falsch : {"", "2023-02-29", "2023-13-01", "2023-00-10", "2023-04-31", "2023-01-01 24:00:00",
                             "2023-01-01 12:60:00", "2023-01-01T12:00:00", "2023-1-01", "31.12.2023",
                             "2023-01-01 12:00", "abcd-ef-gh"}) {
    EXPECT_EQ(LVDatumLesen(falsch), std::nullopt) << falsch;
  }
}

TEST_F(Positionen, DatumIstFuerSQLiteEinDatum) {
  LVPosition p;
  p.lvnr = "1";
  p.datum = numbers::Zeitpunkt{2024, 3, 5, 14, 0, 30};
  ASSERT_TRUE(LVPositionHinzufuegen(projekt.verzeichnis(), p));
  EXPECT_EQ(Abfrage(lv(), "SELECT datetime(Datum, '+1 day'), strftime('%d.%m.%Y %H:%M:%S', Datum) "
                          "FROM Leistungsverzeichnis"),
            (Zeilen{{"2024-03-06 14:00:30", "05.03.2024 14:00:30"}}));
}

}  // namespace
}  // namespace kolm::quantities
