// LVAktualisieren: current files stay untouched, older SQLite files get the
// style columns, Access files are kept as LV_ALT.MDB, damaged files are left
// alone.
#include "forms/scripted.h"
#include "quantities/lv/lv_datenbank.h"
#include "quantities/lv/lv_schema.h"

#include "lv_hilfen.h"

namespace kolm::quantities {
namespace {

using testhilfen::Abfrage;
using testhilfen::Ausfuehren;
using testhilfen::Ordner;
using testhilfen::Zeilen;

struct Aktualisieren : ::testing::Test {
  Ordner projekt;
  forms::RecordingStatus status;
  std::string lv() const { return projekt.datei("LV.MDB"); }
};

TEST_F(Aktualisieren, OhneLVGeschiehtNichts) {
  EXPECT_TRUE(LVAktualisieren(projekt.verzeichnis(), &status));
  EXPECT_TRUE(projekt.dateien().empty());
  EXPECT_TRUE(status.history().empty());
}

TEST_F(Aktualisieren, AktuellesLVBleibtByteFuerByte) {
  ASSERT_TRUE(LVMusterErzeugen(lv()));
  ASSERT_TRUE(Ausfuehren(lv(), "INSERT INTO Leistungsverzeichnis (LVNr, Linienfarbe, Füllfarbe) "
                               "VALUES ('           7', 255, 65280)"));
  const std::string vorher = projekt.lesen("LV.MDB");
  EXPECT_TRUE(LVAktualisieren(projekt.verzeichnis(), &status));
  EXPECT_EQ(projekt.lesen("LV.MDB"), vorher);
  EXPECT_EQ(projekt.dateien(), (std::vector<std::string>{"LV.MDB"}));
  EXPECT_TRUE(status.history().empty());
}

TEST_F(Aktualisieren, VorhandeneStilspalteInAndererSchreibweiseGenuegt) {
  ASSERT_TRUE(Ausfuehren(lv(), std::string(testhilfen::kAltesSchema) +
                                   "ALTER TABLE Leistungsverzeichnis ADD COLUMN LINIENFARBE INTEGER;"
                                   "INSERT INTO Leistungsverzeichnis (LVNr, LINIENFARBE) VALUES ('1', 99);"));
  const std::string vorher = projekt.lesen("LV.MDB");
  EXPECT_TRUE(LVAktualisieren(projekt.verzeichnis()));
  EXPECT_EQ(projekt.lesen("LV.MDB"), vorher);
}

TEST_F(Aktualisieren, AeltereSQLiteDateiBekommtDieStilspalten) {
  ASSERT_TRUE(Ausfuehren(lv(), std::string(testhilfen::kAltesSchema) +
                                   "INSERT INTO Leistungsverzeichnis VALUES ('          12', '', 'Aushub', 'AH', "
                                   "'m³', 1.5, 2, 3.25, 10, 32.5, '2023-11-02 08:15:00');"
                                   "INSERT INTO Leistungsverzeichnis (LVNr, KurzText) VALUES ('          13', 'Füllung');"));
  EXPECT_TRUE(LVAktualisieren(projekt.verzeichnis(), &status));

  // The table now has exactly the columns of a new template, in its order
  // and with its defaults.
  Ordner vergleich;
  ASSERT_TRUE(LVMusterErzeugen(vergleich.datei("LV.MDB")));
  EXPECT_EQ(testhilfen::Spalten(lv()), testhilfen::Spalten(vergleich.datei("LV.MDB")));
  EXPECT_EQ(Abfrage(lv(), "PRAGMA user_version"), (Zeilen{{"1"}}));
  // Every row has the style values; the rest of each row is unchanged.
  EXPECT_EQ(Abfrage(lv(), "SELECT * FROM Leistungsverzeichnis ORDER BY rowid"),
            (Zeilen{{"          12", "", "Aushub", "AH", "m³", "1.5", "2.0", "3.25", "10.0", "32.5",
                     "2023-11-02 08:15:00", "0", "1", "0", "0", "16711680"},
                    {"          13", "<NULL>", "Füllung", "<NULL>", "<NULL>", "<NULL>", "<NULL>", "<NULL>",
                     "<NULL>", "<NULL>", "<NULL>", "0", "1", "0", "0", "16711680"}}));
  EXPECT_EQ(Abfrage(lv(), "SELECT name FROM pragma_index_info('LVNr')"), (Zeilen{{"LVNr"}}));
  EXPECT_EQ(Abfrage(lv(), "PRAGMA integrity_check"), (Zeilen{{"ok"}}));
  EXPECT_EQ(projekt.dateien(), (std::vector<std::string>{"LV.MDB"}));

  // A second run finds the columns and leaves the file alone.
  const std::string danach = projekt.lesen("LV.MDB");
  EXPECT_TRUE(LVAktualisieren(projekt.verzeichnis()));
  EXPECT_EQ(projekt.lesen("LV.MDB"), danach);
}

TEST_F(Aktualisieren, TeilweiseVorhandeneStilspaltenWerdenErgaenzt) {
  // Muster is there already (with a value), Linienfarbe is not.
  ASSERT_TRUE(Ausfuehren(lv(), std::string(testhilfen::kAltesSchema) +
                                   "ALTER TABLE Leistungsverzeichnis ADD COLUMN Muster INTEGER;"
                                   "INSERT INTO Leistungsverzeichnis (LVNr, Muster) VALUES ('1', 5);"));
  EXPECT_TRUE(LVAktualisieren(projekt.verzeichnis()));
  EXPECT_EQ(Abfrage(lv(), "SELECT name FROM pragma_table_info('Leistungsverzeichnis') WHERE cid >= 11"),
            (Zeilen{{"Muster"}, {"Linienfarbe"}, {"Linienstärke"}, {"Flächenfüllung"}, {"Füllfarbe"}}));
  EXPECT_EQ(Abfrage(lv(), "SELECT Linienfarbe, Linienstärke, Flächenfüllung, Muster, Füllfarbe "
                          "FROM Leistungsverzeichnis"),
            (Zeilen{{"0", "1", "0", "0", "16711680"}}));
}

TEST_F(Aktualisieren, ScheiterndesUpdateLaesstDieDateiWieSieWar) {
  // The columns go in, then the UPDATE fails: all of it is undone.
  ASSERT_TRUE(Ausfuehren(lv(), std::string(testhilfen::kAltesSchema) +
                                   "INSERT INTO Leistungsverzeichnis (LVNr) VALUES ('1');"
                                   "CREATE TRIGGER sperre BEFORE UPDATE ON Leistungsverzeichnis "
                                   "BEGIN SELECT RAISE(ABORT, 'gesperrt'); END;"));
  const std::string vorher = projekt.lesen("LV.MDB");
  EXPECT_FALSE(LVAktualisieren(projekt.verzeichnis(), &status));
  EXPECT_EQ(projekt.lesen("LV.MDB"), vorher);
  EXPECT_EQ(projekt.dateien(), (std::vector<std::string>{"LV.MDB"}));
  EXPECT_EQ(Abfrage(lv(), "SELECT count(*) FROM pragma_table_info('Leistungsverzeichnis')"), (Zeilen{{"11"}}));
}

TEST_F(Aktualisieren, AccessDateiWirdGesichertUndErsetzt) {
  const std::string jet = testhilfen::JetDatei();
  projekt.schreiben("LV.MDB", jet);
  EXPECT_TRUE(LVAktualisieren(projekt.verzeichnis(), &status));
  EXPECT_EQ(projekt.dateien(), (std::vector<std::string>{"LV.MDB", "LV_ALT.MDB"}));
  EXPECT_EQ(projekt.lesen("LV_ALT.MDB"), jet);
  Ordner vergleich;
  ASSERT_TRUE(LVMusterErzeugen(vergleich.datei("LV.MDB")));
  EXPECT_EQ(projekt.lesen("LV.MDB"), vergleich.lesen("LV.MDB"));  // the empty current schema
  ASSERT_EQ(status.history().size(), 1u);
  EXPECT_EQ(status.text(),
            "Das Leistungsverzeichnis im alten Access-Format wurde als LV_ALT.MDB gesichert und durch ein "
            "leeres ersetzt.");

  // An older LV_ALT.MDB is replaced by the newer safety copy.
  std::string ace("\x00\x01\x00\x00Standard ACE DB", 19);
  ace += "Rest";
  projekt.schreiben("LV.MDB", ace);
  EXPECT_TRUE(LVAktualisieren(projekt.verzeichnis()));
  EXPECT_EQ(projekt.lesen("LV_ALT.MDB"), ace);
  EXPECT_EQ(Abfrage(lv(), "PRAGMA user_version"), (Zeilen{{"1"}}));
}

TEST_F(Aktualisieren, AccessDateiBleibtWennDieSicherungMisslingt) {
  const std::string jet = testhilfen::JetDatei();
  projekt.schreiben("LV.MDB", jet);
  std::filesystem::create_directory(projekt.pfad / "LV_ALT.MDB");
  EXPECT_FALSE(LVAktualisieren(projekt.verzeichnis(), &status));
  EXPECT_EQ(projekt.lesen("LV.MDB"), jet);
  EXPECT_TRUE(std::filesystem::is_directory(projekt.pfad / "LV_ALT.MDB"));
  EXPECT_EQ(projekt.dateien(), (std::vector<std::string>{"LV.MDB", "LV_ALT.MDB"}));
  EXPECT_TRUE(status.history().empty());
}

TEST_F(Aktualisieren, BeschaedigteDateienBleibenUnberuehrt) {
  // A valid older file, cut off in the middle of its table.
  Ordner quelle;
  std::string sql = testhilfen::kAltesSchema;
  for (int i = 0; i < 400; ++i) {
    sql += "INSERT INTO Leistungsverzeichnis (LVNr, KurzText) VALUES ('" + std::to_string(i) +
           "', 'Eine Position mit einem längeren Kurztext');";
  }
  ASSERT_TRUE(Ausfuehren(quelle.datei("voll.db"), sql));
  const std::string voll = quelle.lesen("voll.db");
  ASSERT_GT(voll.size(), 3u * 4096);

  std::string ohneTabelle;
  {
    ASSERT_TRUE(Ausfuehren(quelle.datei("andere.db"), "CREATE TABLE Positionen (LVNr TEXT);"));
    ohneTabelle = quelle.lesen("andere.db");
  }
  std::string kopfKaputt = voll;
  kopfKaputt[0] = 'X';

  const std::vector<std::pair<std::string, std::string>> faelle = {
      {"leer", ""},
      {"zufall", testhilfen::Zufallsbytes(5000, 1)},
      {"abgeschnitten", voll.substr(0, voll.size() / 2)},
      {"nur Kopf", voll.substr(0, 100)},
      {"Kopf kaputt", kopfKaputt},
      {"ohne Tabelle", ohneTabelle},
      {"Jet-Kopf zu kurz", std::string("\x00\x01\x00\x00Standard Jet", 16)},
  };
  for (const auto& [name, bytes] : faelle) {
    SCOPED_TRACE(name);
    projekt.schreiben("LV.MDB", bytes);
    EXPECT_FALSE(LVAktualisieren(projekt.verzeichnis(), &status));
    EXPECT_EQ(projekt.lesen("LV.MDB"), bytes);
    EXPECT_EQ(projekt.dateien(), (std::vector<std::string>{"LV.MDB"}));
  }
  EXPECT_TRUE(status.history().empty());
}

TEST_F(Aktualisieren, ZerstoerteSeiteImAktuellenLVWirdGemeldet) {
  ASSERT_TRUE(LVMusterErzeugen(lv()));
  std::string sql = "BEGIN;";
  for (int i = 0; i < 300; ++i) {
    sql += "INSERT INTO Leistungsverzeichnis (LVNr, KurzText) VALUES ('" + std::to_string(i) +
           "', 'Eine Position mit einem längeren Kurztext');";
  }
  ASSERT_TRUE(Ausfuehren(lv(), sql + "COMMIT;"));
  std::string bytes = projekt.lesen("LV.MDB");
  ASSERT_GT(bytes.size(), 6u * 4096);
  // Page 5 holds rows; the schema on page 1 still reads.
  bytes.replace(4 * 4096, 4096, testhilfen::Zufallsbytes(4096, 4));
  projekt.schreiben("LV.MDB", bytes);
  ASSERT_EQ(Abfrage(lv(), "SELECT count(*) FROM sqlite_schema"), (Zeilen{{"2"}}));

  EXPECT_FALSE(LVAktualisieren(projekt.verzeichnis(), &status));
  EXPECT_EQ(projekt.lesen("LV.MDB"), bytes);
  EXPECT_EQ(projekt.dateien(), (std::vector<std::string>{"LV.MDB"}));
}

TEST(LVAccessErkennung, NurDerVolleKopf) {
  Ordner o;
  o.schreiben("jet", testhilfen::JetDatei());
  o.schreiben("genau", std::string("\x00\x01\x00\x00Standard Jet DB", 19));
  o.schreiben("kurz", std::string("\x00\x01\x00\x00Standard Jet D", 18));
  o.schreiben("sqlite", std::string("SQLite format 3\0", 16) + std::string(100, '\0'));
  o.schreiben("anders", std::string("\x00\x02\x00\x00Standard Jet DB", 19));
  o.schreiben("leer", "");
  EXPECT_TRUE(LVAccessDatei(o.datei("jet")));
  EXPECT_TRUE(LVAccessDatei(o.datei("genau")));
  EXPECT_FALSE(LVAccessDatei(o.datei("kurz")));
  EXPECT_FALSE(LVAccessDatei(o.datei("sqlite")));
  EXPECT_FALSE(LVAccessDatei(o.datei("anders")));
  EXPECT_FALSE(LVAccessDatei(o.datei("leer")));
  EXPECT_FALSE(LVAccessDatei(o.datei("fehlt")));
}

}  // namespace
}  // namespace kolm::quantities
