// The SQLite owner: opening modes, bound parameters, texts, errors as
// values, and closing that always happens.
#include "quantities/lv/sqlite.h"

#include <chrono>

#include "lv_hilfen.h"

namespace kolm::quantities {
namespace {

using testhilfen::Abfrage;
using testhilfen::Ausfuehren;
using testhilfen::Ordner;
using testhilfen::Zeilen;

TEST(SqliteOeffnen, LesenUndSchreibenLegenKeineDateiAn) {
  Ordner o;
  Database db;
  EXPECT_FALSE(db.open(o.datei("fehlt.db"), Database::Access::ReadOnly));
  EXPECT_FALSE(db.isOpen());
  EXPECT_NE(db.errorCode(), 0);
  EXPECT_FALSE(db.error().empty());
  EXPECT_FALSE(db.open(o.datei("fehlt.db"), Database::Access::ReadWrite));
  EXPECT_FALSE(o.gibt("fehlt.db"));

  ASSERT_TRUE(db.open(o.datei("neu.db"), Database::Access::Create));
  EXPECT_TRUE(db.execute("CREATE TABLE t (a TEXT)"));
  db.close();
  EXPECT_FALSE(db.isOpen());
  EXPECT_EQ(Abfrage(o.datei("neu.db"), "SELECT name FROM sqlite_schema"), (Zeilen{{"t"}}));
}

TEST(SqliteOeffnen, NurLesenVerweigertSchreiben) {
  Ordner o;
  ASSERT_TRUE(Ausfuehren(o.datei("a.db"), "CREATE TABLE t (a TEXT); INSERT INTO t VALUES ('x');"));
  Database db;
  ASSERT_TRUE(db.open(o.datei("a.db"), Database::Access::ReadOnly));
  EXPECT_FALSE(db.execute("INSERT INTO t VALUES ('y')"));
  EXPECT_NE(db.error().find("readonly"), std::string::npos) << db.error();
  Statement s = db.prepare("SELECT a FROM t");
  ASSERT_TRUE(s);
  ASSERT_EQ(s.step(), Statement::Step::Row);
  EXPECT_EQ(s.text(0), "x");
  EXPECT_EQ(s.step(), Statement::Step::Done);
  EXPECT_EQ(Abfrage(o.datei("a.db"), "SELECT a FROM t"), (Zeilen{{"x"}}));
}

TEST(SqliteAnweisungen, GebundeneWerteKommenUnveraendertZurueck) {
  Database db;
  ASSERT_TRUE(db.open(":memory:", Database::Access::Create));
  ASSERT_TRUE(db.execute("CREATE TABLE t (a TEXT, b INTEGER, c REAL, d TEXT)"));
  Statement ein = db.prepare("INSERT INTO t VALUES (?1, ?2, ?3, ?4)");
  ASSERT_TRUE(ein);
  // Quotes and umlauts go in as data, never as SQL; an embedded zero byte too.
  const std::string text = std::string("O'Brien \"Fläche\" ß\0Rest", 25);
  EXPECT_TRUE(ein.bind(1, text));
  EXPECT_TRUE(ein.bind(2, std::int64_t{16711680}));
  EXPECT_TRUE(ein.bind(3, -0.125));
  EXPECT_TRUE(ein.bindNull(4));
  EXPECT_TRUE(ein.run());
  ein.reset();
  EXPECT_TRUE(ein.bind(1, "zweite"));
  EXPECT_TRUE(ein.bind(2, -1));
  EXPECT_TRUE(ein.run());  // unbound ?3 and ?4 are NULL after reset
  EXPECT_EQ(db.lastInsertRowid(), 2);

  Statement aus = db.prepare("SELECT a, b, c, d FROM t ORDER BY rowid");
  ASSERT_TRUE(aus);
  EXPECT_EQ(aus.columnCount(), 4);
  EXPECT_EQ(aus.columnName(3), "d");
  ASSERT_EQ(aus.step(), Statement::Step::Row);
  EXPECT_EQ(aus.text(0), text);
  EXPECT_EQ(aus.integer(1), 16711680);
  EXPECT_EQ(aus.real(2), -0.125);
  EXPECT_TRUE(aus.isNull(3));
  EXPECT_EQ(aus.text(3), "");
  ASSERT_EQ(aus.step(), Statement::Step::Row);
  EXPECT_EQ(aus.text(0), "zweite");
  EXPECT_EQ(aus.integer(1), -1);
  EXPECT_TRUE(aus.isNull(2));
  EXPECT_EQ(aus.real(2), 0.0);
  EXPECT_EQ(aus.step(), Statement::Step::Done);
}

TEST(SqliteFehler, KommenAlsWerteZurueck) {
  Database zu;
  EXPECT_FALSE(zu.prepare("SELECT 1"));
  EXPECT_FALSE(zu.execute("SELECT 1"));
  EXPECT_EQ(zu.userVersion(), std::nullopt);
  EXPECT_FALSE(zu.intact());
  EXPECT_EQ(zu.serialize(), "");

  Database db;
  ASSERT_TRUE(db.open(":memory:", Database::Access::Create));
  Statement falsch = db.prepare("SELEKT * FROM nirgends");
  EXPECT_FALSE(falsch);
  EXPECT_NE(db.error().find("syntax error"), std::string::npos) << db.error();
  // Every call on an invalid statement is harmless.
  EXPECT_FALSE(falsch.bind(1, "x"));
  EXPECT_EQ(falsch.step(), Statement::Step::Error);
  EXPECT_FALSE(falsch.run());
  EXPECT_EQ(falsch.text(0), "");
  EXPECT_TRUE(falsch.isNull(0));
  falsch.reset();

  EXPECT_FALSE(db.prepare("   -- nur ein Kommentar"));
  EXPECT_FALSE(db.execute("INSERT INTO nirgends VALUES (1)"));
  EXPECT_NE(db.error().find("no such table"), std::string::npos) << db.error();

  ASSERT_TRUE(db.execute("CREATE TABLE t (a INTEGER UNIQUE); INSERT INTO t VALUES (1);"));
  Statement doppelt = db.prepare("INSERT INTO t VALUES (1)");
  ASSERT_TRUE(doppelt);
  EXPECT_FALSE(doppelt.run());
  EXPECT_NE(doppelt.error().find("UNIQUE"), std::string::npos) << doppelt.error();
  EXPECT_FALSE(doppelt.bind(9, 1));  // no such parameter
}

TEST(SqliteFehler, BeschaedigteDateienStuerzenNicht) {
  Ordner o;
  o.schreiben("zufall.db", testhilfen::Zufallsbytes(8192, 3));
  o.schreiben("jet.db", testhilfen::JetDatei());
  for (const char* name : {"zufall.db", "jet.db"}) {
    SCOPED_TRACE(name);
    Database db;
    ASSERT_TRUE(db.open(o.datei(name), Database::Access::ReadWrite));  // SQLite reads lazily
    EXPECT_FALSE(db.prepare("SELECT * FROM sqlite_schema"));
    EXPECT_NE(db.error().find("not a database"), std::string::npos) << db.error();
    EXPECT_FALSE(db.intact());
    EXPECT_FALSE(db.hasTable("Leistungsverzeichnis"));
    EXPECT_FALSE(db.hasColumn("Leistungsverzeichnis", "LVNr"));
    EXPECT_EQ(db.userVersion(), std::nullopt);
  }
  EXPECT_EQ(o.lesen("zufall.db"), testhilfen::Zufallsbytes(8192, 3));
  EXPECT_EQ(o.lesen("jet.db"), testhilfen::JetDatei());
}

TEST(SqliteSchliessen, OffeneAenderungenVerfallenBeimEnde) {
  Ordner o;
  ASSERT_TRUE(Ausfuehren(o.datei("a.db"), "CREATE TABLE t (a TEXT);"));
  {
    Database db;
    ASSERT_TRUE(db.open(o.datei("a.db"), Database::Access::ReadWrite));
    ASSERT_TRUE(db.execute("BEGIN; INSERT INTO t VALUES ('halb');"));
    Statement offen = db.prepare("SELECT a FROM t");
    ASSERT_EQ(offen.step(), Statement::Step::Row);
    // Database goes first, the statement after it: the file must still be
    // closed and the transaction rolled back.
    Database weg = std::move(db);
    EXPECT_FALSE(db.isOpen());
    weg.close();
  }
  EXPECT_EQ(Abfrage(o.datei("a.db"), "SELECT count(*) FROM t"), (Zeilen{{"0"}}));
  EXPECT_FALSE(o.gibt("a.db-journal"));
  // No lock is left behind: a writer gets in at once.
  EXPECT_TRUE(Ausfuehren(o.datei("a.db"), "BEGIN EXCLUSIVE; INSERT INTO t VALUES ('z'); COMMIT;"));
}

TEST(SqliteSchliessen, BesetzteDateiGibtNachDerWartezeitAuf) {
  Ordner o;
  ASSERT_TRUE(Ausfuehren(o.datei("a.db"), "CREATE TABLE t (a TEXT);"));
  Database halter, wartender;
  ASSERT_TRUE(halter.open(o.datei("a.db"), Database::Access::ReadWrite));
  ASSERT_TRUE(halter.execute("BEGIN EXCLUSIVE; INSERT INTO t VALUES ('a');"));
  ASSERT_TRUE(wartender.open(o.datei("a.db"), Database::Access::ReadWrite, 100));
  const auto beginn = std::chrono::steady_clock::now();
  EXPECT_FALSE(wartender.execute("INSERT INTO t VALUES ('b')"));
  const auto dauer = std::chrono::steady_clock::now() - beginn;
  EXPECT_NE(wartender.error().find("locked"), std::string::npos) << wartender.error();
  EXPECT_GE(dauer, std::chrono::milliseconds(50));  // it waited, then gave up
  ASSERT_TRUE(halter.execute("COMMIT"));
  EXPECT_TRUE(wartender.execute("INSERT INTO t VALUES ('b')"));
  EXPECT_EQ(Abfrage(o.datei("a.db"), "SELECT a FROM t ORDER BY rowid"), (Zeilen{{"a"}, {"b"}}));
}

TEST(SqliteNamen, SpaltennamenOhneRuecksichtAufGrossKlein) {
  EXPECT_TRUE(SameIdentifier("Linienfarbe", "LinienFarbe"));
  EXPECT_TRUE(SameIdentifier("GesamtPreis", "Gesamtpreis"));
  EXPECT_TRUE(SameIdentifier("EndAusmaß", "EndausMaß"));
  EXPECT_FALSE(SameIdentifier("Flächenfüllung", "FLÄCHENFÜLLUNG"));  // as SQLite: umlauts exact
  EXPECT_FALSE(SameIdentifier("Muster", "Muste"));
  EXPECT_FALSE(SameIdentifier("Muster", "Musten"));

  Database db;
  ASSERT_TRUE(db.open(":memory:", Database::Access::Create));
  ASSERT_TRUE(db.execute("CREATE TABLE Leistungsverzeichnis (\"Linienstärke\" INTEGER, LVNr TEXT)"));
  EXPECT_TRUE(db.hasTable("LEISTUNGSVERZEICHNIS"));
  EXPECT_FALSE(db.hasTable("Leistung"));
  EXPECT_TRUE(db.hasColumn("Leistungsverzeichnis", "LinienStärke"));
  EXPECT_TRUE(db.hasColumn("leistungsverzeichnis", "lvnr"));
  // Umlauts are not folded, by SQLite neither.
  EXPECT_FALSE(db.hasColumn("Leistungsverzeichnis", "LINIENSTÄRKE"));
  EXPECT_FALSE(db.prepare("SELECT LINIENSTÄRKE FROM Leistungsverzeichnis"));
  EXPECT_TRUE(db.prepare("SELECT LINIENStärke FROM Leistungsverzeichnis"));
  EXPECT_FALSE(db.hasColumn("Leistungsverzeichnis", "Linienfarbe"));
  EXPECT_FALSE(db.hasColumn("Andere", "LVNr"));
}

}  // namespace
}  // namespace kolm::quantities
