// The template LVMuster.MDB: what the file holds, that every statement of
// the program runs on it, and that writing it never leaves half a file.
#include "quantities/lv/lv_schema.h"

#include "lv_hilfen.h"

namespace kolm::quantities {
namespace {

using testhilfen::Abfrage;
using testhilfen::Ausfuehren;
using testhilfen::Ordner;
using testhilfen::Zeilen;

TEST(LVMuster, HaeltTabelleSpaltenIndexUndVersion) {
  Ordner o;
  ASSERT_TRUE(LVMusterErzeugen(o.datei("LVMuster.MDB")));
  EXPECT_EQ(o.lesen("LVMuster.MDB").substr(0, 16), std::string("SQLite format 3\0", 16));
  EXPECT_EQ(testhilfen::Spalten(o.datei("LVMuster.MDB")),
            (Zeilen{{"LVNr", "TEXT", "0", "<NULL>", "0"},
                    {"MLVNr", "TEXT", "0", "<NULL>", "0"},
                    {"KurzText", "TEXT", "0", "<NULL>", "0"},
                    {"KurzBez", "TEXT", "0", "<NULL>", "0"},
                    {"Einheit", "TEXT", "0", "<NULL>", "0"},
                    {"Lohn", "REAL", "0", "<NULL>", "0"},
                    {"Sonstiges", "REAL", "0", "<NULL>", "0"},
                    {"Einheitspreis", "REAL", "0", "<NULL>", "0"},
                    {"EndAusmaß", "REAL", "0", "<NULL>", "0"},
                    {"GesamtPreis", "REAL", "0", "<NULL>", "0"},
                    {"Datum", "TEXT", "0", "<NULL>", "0"},
                    {"Linienfarbe", "INTEGER", "0", "0", "0"},
                    {"Linienstärke", "INTEGER", "0", "1", "0"},
                    {"Flächenfüllung", "INTEGER", "0", "0", "0"},
                    {"Muster", "INTEGER", "0", "0", "0"},
                    {"Füllfarbe", "INTEGER", "0", "16711680", "0"}}));
  // One table and one index, named LVNr, over the column LVNr alone.
  EXPECT_EQ(Abfrage(o.datei("LVMuster.MDB"), "SELECT type, name, tbl_name FROM sqlite_schema ORDER BY type"),
            (Zeilen{{"index", "LVNr", "Leistungsverzeichnis"}, {"table", "Leistungsverzeichnis", "Leistungsverzeichnis"}}));
  EXPECT_EQ(Abfrage(o.datei("LVMuster.MDB"), "SELECT name FROM pragma_index_info('LVNr')"), (Zeilen{{"LVNr"}}));
  EXPECT_EQ(Abfrage(o.datei("LVMuster.MDB"), "SELECT \"unique\" FROM pragma_index_list('Leistungsverzeichnis')"),
            (Zeilen{{"0"}}));  // two positions may share a number
  EXPECT_EQ(Abfrage(o.datei("LVMuster.MDB"), "PRAGMA user_version"), (Zeilen{{"1"}}));
  EXPECT_EQ(Abfrage(o.datei("LVMuster.MDB"), "SELECT count(*) FROM Leistungsverzeichnis"), (Zeilen{{"0"}}));
  EXPECT_EQ(Abfrage(o.datei("LVMuster.MDB"), "PRAGMA integrity_check"), (Zeilen{{"ok"}}));
  EXPECT_EQ(Abfrage(o.datei("LVMuster.MDB"), "PRAGMA journal_mode"), (Zeilen{{"delete"}}));
  EXPECT_EQ(o.dateien(), (std::vector<std::string>{"LVMuster.MDB"}));  // no journal, no temporary file
}

TEST(LVMuster, NeueZeilenBekommenDieVorgabenDerStilspalten) {
  Ordner o;
  ASSERT_TRUE(LVMusterErzeugen(o.datei("LV.MDB")));
  ASSERT_TRUE(Ausfuehren(o.datei("LV.MDB"), "INSERT INTO Leistungsverzeichnis (LVNr) VALUES ('           1')"));
  EXPECT_EQ(Abfrage(o.datei("LV.MDB"),
                    "SELECT Linienfarbe, Linienstärke, Flächenfüllung, Muster, Füllfarbe, Einheit, Datum "
                    "FROM Leistungsverzeichnis"),
            (Zeilen{{"0", "1", "0", "0", "16711680", "<NULL>", "<NULL>"}}));
}

TEST(LVMuster, JedeAnweisungDesProgrammsLaeuft) {
  Ordner o;
  ASSERT_TRUE(LVMusterErzeugen(o.datei("LV.MDB")));
  ASSERT_TRUE(Ausfuehren(o.datei("LV.MDB"),
                         "INSERT INTO Leistungsverzeichnis (LVNr, KurzText, Einheitspreis, EndAusmaß, GesamtPreis) "
                         "VALUES ('          12', 'Aushub', 2.5, 4, 10)"));
  // Column names in the spellings the program uses, with other cases.
  for (const char* sql : {
           "SELECT * FROM Leistungsverzeichnis",
           "SELECT * FROM Leistungsverzeichnis;",
           "SELECT LVNr, KurzText FROM Leistungsverzeichnis;",
           "SELECT LVNr, KurzText, KurzBez FROM Leistungsverzeichnis;",
           "SELECT LVNr, Einheit, KurzText FROM Leistungsverzeichnis;",
           "SELECT LinienFarbe, Gesamtpreis, EndausMaß, linienstärke FROM Leistungsverzeichnis",
       }) {
    SCOPED_TRACE(sql);
    const Zeilen z = Abfrage(o.datei("LV.MDB"), sql);
    ASSERT_EQ(z.size(), 1u);
    EXPECT_NE(z[0][0], "<FEHLER>") << z[0].back();
  }
  EXPECT_EQ(Abfrage(o.datei("LV.MDB"),
                    "SELECT LVNr, Einheitspreis, EndAusmaß, GesamtPreis, Datum FROM Leistungsverzeichnis "
                    "WHERE LVNr = '          12';"),
            (Zeilen{{"          12", "2.5", "4.0", "10.0", "<NULL>"}}));
  // The upgrade's statement in its SQLite form.
  ASSERT_TRUE(Ausfuehren(o.datei("LV.MDB"), SqliteDialekt(kLVStilUpdate)));
}

TEST(LVMuster, UeberschreibtAtomarOderGarNicht) {
  Ordner o;
  o.schreiben("LVMuster.MDB", "alter Inhalt");
  ASSERT_TRUE(LVMusterErzeugen(o.datei("LVMuster.MDB")));
  EXPECT_EQ(Abfrage(o.datei("LVMuster.MDB"), "PRAGMA user_version"), (Zeilen{{"1"}}));

  // A folder that does not exist, and a folder standing where the file
  // should go: false, and nothing is left behind.
  EXPECT_FALSE(LVMusterErzeugen(o.datei("fehlt/LVMuster.MDB")));
  std::filesystem::create_directory(o.pfad / "Ordner.MDB");
  EXPECT_FALSE(LVMusterErzeugen(o.datei("Ordner.MDB")));
  EXPECT_TRUE(std::filesystem::is_directory(o.pfad / "Ordner.MDB"));
  EXPECT_EQ(o.dateien(), (std::vector<std::string>{"LVMuster.MDB", "Ordner.MDB"}));
}

TEST(LVMuster, ZweiVorlagenSindGleich) {
  Ordner o;
  ASSERT_TRUE(LVMusterErzeugen(o.datei("a")));
  ASSERT_TRUE(LVMusterErzeugen(o.datei("b")));
  EXPECT_EQ(o.lesen("a"), o.lesen("b"));  // a rebuild gives the same bytes
}

TEST(LVSchema, StilspaltenSindDieLetztenFuenf) {
  ASSERT_EQ(LVSpalten().size(), 16u);
  ASSERT_EQ(LVStilSpalten().size(), 5u);
  std::vector<std::string> namen;
  for (const auto& s : LVStilSpalten()) namen.emplace_back(s.name);
  EXPECT_EQ(namen, (std::vector<std::string>{"Linienfarbe", "Linienstärke", "Flächenfüllung", "Muster", "Füllfarbe"}));
  EXPECT_EQ(LVSpaltenDefinition(LVStilSpalten()[4]), "\"Füllfarbe\" INTEGER DEFAULT 16711680");
  EXPECT_EQ(LVSpaltenDefinition(LVSpalten()[0]), "\"LVNr\" TEXT");
}

TEST(LVSchema, UpdateAufSQLiteOhneTabellenpraefix) {
  EXPECT_EQ(kLVStilUpdate,
            "UPDATE Leistungsverzeichnis SET Leistungsverzeichnis.Linienfarbe = 0, "
            "Leistungsverzeichnis.Linienstärke = 1, Leistungsverzeichnis.Flächenfüllung = 0, "
            "Leistungsverzeichnis.Muster = 0, Leistungsverzeichnis.Füllfarbe = 16711680");
  EXPECT_EQ(SqliteDialekt(kLVStilUpdate),
            "UPDATE Leistungsverzeichnis SET Linienfarbe = 0, Linienstärke = 1, Flächenfüllung = 0, "
            "Muster = 0, Füllfarbe = 16711680");
  // Literals and longer names stay as they are.
  EXPECT_EQ(SqliteDialekt("UPDATE Leistungsverzeichnis SET KurzText = 'Leistungsverzeichnis.x''Leistungsverzeichnis.'"),
            "UPDATE Leistungsverzeichnis SET KurzText = 'Leistungsverzeichnis.x''Leistungsverzeichnis.'");
  EXPECT_EQ(SqliteDialekt("SELECT AltLeistungsverzeichnis.a, Leistungsverzeichnis.b"),
            "SELECT AltLeistungsverzeichnis.a, b");
}

}  // namespace
}  // namespace kolm::quantities
