// Deleting a table: which of its files go, when the point file stays, and
// what becomes of its row.
#include "core/catalog/tabellen_eingabe.h"

#include "katalog_testhilfen.h"

namespace kolm::core {
namespace {

using namespace katalogtest;

const std::vector<std::string> kEndungen = {".ver", ".bog", ".ber", ".pkt", ".bes", ".pic", ".jpg", "_000.bmp"};

void DateienAnlegen(const Ordner& o, const std::string& stamm) {
  for (const std::string& e : kEndungen) o.schreiben(stamm + e, "x");
}

TEST(TabelleLoeschen, RemovesConnectionsArcsCalculationsAndPointsAndKeepsTheRest) {
  Umgebung u;
  u.z().Polar = Wahr;
  DateienAnlegen(u.ordner, "P1");
  DateienAnlegen(u.ordner, "P10");
  u.zeile(4) = Zeile("Profil 1", 3, "P1", "P1");
  u.zeile(5) = Zeile("Profil 10", 3, "P10", "P10");
  const TabellenLoeschung plan = TabelleLoeschen(u.z(), 4, &u.dienste.messages);
  EXPECT_FALSE(plan.meldung);
  EXPECT_TRUE(u.meldungen().empty());
  std::vector<std::string> erwartet = {"P1.bes", "P1.jpg", "P1.pic", "P1_000.bmp"};
  for (const std::string& e : kEndungen) erwartet.push_back("P10" + e);
  std::sort(erwartet.begin(), erwartet.end());
  EXPECT_EQ(u.ordner.dateien(), erwartet);
  EXPECT_EQ(u.zeile(4).TablName, "");
  EXPECT_EQ(u.zeile(4).Dateiname, "");
  EXPECT_EQ(u.zeile(4).Stationierung, 0);
  EXPECT_EQ(u.zeile(4).Polar, Wahr) << "cleared by the clearing rule";
  EXPECT_EQ(u.zeile(5).TablName, "Profil 10");
}

TEST(TabelleLoeschen, OneTableOfADoppelprofilKeepsThePointFile) {
  Umgebung u;
  DateienAnlegen(u.ordner, "A");
  u.zeile(0) = Zeile("Links", 0, "A", "GEMEIN");
  u.zeile(1) = Zeile("Rechts", 0, "B", "GEMEIN");
  u.ordner.schreiben("GEMEIN.pkt", "punkte");
  const TabellenLoeschung plan = TabelleLoeschen(u.z(), 0, &u.dienste.messages);
  ASSERT_TRUE(plan.meldung);
  ASSERT_EQ(u.meldungen().size(), 1u);
  EXPECT_EQ(u.meldungen()[0].message.text,
            "Die Punkte-Tabelle in der Datei 'GEMEIN' wird noch von mindestens einer weiteren Tabelle benutzt und "
            "wird daher nicht gelöscht!");
  EXPECT_TRUE(u.ordner.gibt("GEMEIN.pkt"));
  EXPECT_FALSE(u.ordner.gibt("A.ver"));
  EXPECT_TRUE(u.ordner.gibt("A.pkt")) << "not this table's point file";

  // The second table, now alone with it, takes the point file along.
  TabelleLoeschen(u.z(), 1, &u.dienste.messages);
  EXPECT_FALSE(u.ordner.gibt("GEMEIN.pkt"));
  EXPECT_EQ(u.meldungen().size(), 1u);
}

TEST(TabelleLoeschen, BlankStemsAndBlankRowsNameNoFile) {
  Umgebung u;
  for (const char* e : {".ver", ".bog", ".ber", ".pkt"}) u.ordner.schreiben(e, "x");
  u.zeile(0) = Zeile("Ohne Dateien");
  u.zeile(1) = Zeile("", 0, "", "P");  // a cleared row does not share
  u.zeile(2) = Zeile("Punkte", 0, "", "P");
  EXPECT_TRUE(TabelleLoeschenPlanen(u.z(), 0).dateien.empty());
  const TabellenLoeschung plan = TabelleLoeschenPlanen(u.z(), 2);
  EXPECT_EQ(plan.dateien, std::vector<std::string>{u.ordner.verzeichnis() + "P.pkt"});
  EXPECT_FALSE(plan.meldung);
  TabelleLoeschen(u.z(), 0, &u.dienste.messages);
  EXPECT_EQ(u.ordner.dateien().size(), 4u);
  EXPECT_TRUE(TabelleLoeschenPlanen(u.z(), -1).dateien.empty());
  EXPECT_TRUE(TabelleLoeschenPlanen(u.z(), 501).dateien.empty());
  TabelleLoeschen(u.z(), 501, nullptr);
}

TEST(TabelleLoeschen, MissingFilesAreNoFailure) {
  Umgebung u;
  u.zeile(0) = Zeile("Nie gespeichert", 0, "NIE", "NIE");
  const TabellenLoeschung plan = TabelleLoeschen(u.z(), 0, nullptr);
  EXPECT_EQ(plan.dateien.size(), 4u);
  EXPECT_EQ(u.zeile(0).TablName, "");
}

}  // namespace
}  // namespace kolm::core
