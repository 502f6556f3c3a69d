// Damaged catalogue files: none may crash or hang the reader, and the
// catalogue keeps its 501 rows whatever it was given.
#include <random>

#include "katalog_testhilfen.h"

namespace kolm::core {
namespace {

using namespace katalogtest;

std::string AltZeile(const std::string& name, int i) {
  return "\"" + name + "\"\r\n" + std::to_string(i) + "\r\n\"D" + std::to_string(i) + "\"\r\n\"P\"\r\n0\r\n0\r\n0\r\n";
}

void LesenUeberlebt(Umgebung& u, const std::string& bytes, const std::string& wo) {
  u.ordner.schreiben("Tabelle2.ini", bytes);
  KatalogLesen(u.kontext);
  ASSERT_EQ(u.z().Tabellen.size(), 501u) << wo;
  for (const Tabelle& t : u.z().Tabellen) {
    ASSERT_NE(t.Rasterabstand, 0) << wo;
  }
}

TEST(KatalogRobust, AThousandRowsFillTheFirst501AndLeaveTheRest) {
  Umgebung u;
  std::string bytes;
  for (int i = 0; i < 1000; ++i) bytes += AltZeile("T" + std::to_string(i), i) + "0,100,0,0,0,0,1,0,1,10,0,8,8,3,1,0\r\n";
  LesenUeberlebt(u, bytes, "1000");
  EXPECT_EQ(u.zeile(0).TablName, "T0");
  EXPECT_EQ(u.zeile(500).TablName, "T500");
  EXPECT_EQ(u.zeile(500).Dateiname, "D500");
  EXPECT_EQ(u.zeile(500).Stationierung, 500);
}

TEST(KatalogRobust, GarbageInTheEighthLineReadsAsNumbersNeverAsACrash) {
  Umgebung u;
  u.z().Falschdrehend = Wahr;
  LesenUeberlebt(u,
                 AltZeile("A", 1) + "das ist kein Zahlenformat, gar nicht\r\n" + AltZeile("B", 2) +
                     "1E+400,99999999,,,;;;,-,.,\x01\x02,,,,,,,,,,,,,,\r\n" + AltZeile("C", 3) +
                     "0,100,0,0,0,0,1,0,1,10,0,8,8,3,1,0\r\n",
                 "Müll");
  // Text reads as the number 0; a value beyond the range keeps the global one.
  EXPECT_EQ(u.zeile(0).Falschdrehend, Falsch);
  EXPECT_EQ(u.zeile(0).Rasterabstand, 10);
  EXPECT_EQ(u.zeile(1).Falschdrehend, Wahr);
  EXPECT_EQ(u.zeile(1).Massstab, 99999999);
  EXPECT_EQ(u.zeile(2).TablName, "C") << "later rows stay in step";
  EXPECT_EQ(u.zeile(2).Stationierung, 3);
}

TEST(KatalogRobust, OddFilesLoadWithoutCrash) {
  const std::vector<std::pair<std::string, std::string>> faelle = {
      {"leer", ""},
      {"nur Zeilenenden", std::string(5000, '\n')},
      {"nur Kommas", std::string(5000, ',')},
      {"offenes Anfuehrungszeichen", "\"ohne Ende"},
      {"keine Zeilenenden", std::string(100000, 'x')},
      {"NUL", std::string(3000, '\0')},
      {"Anfuehrungszeichen", std::string(3000, '"')},
      {"abgeschnitten", AltZeile("A", 1).substr(0, 13)},
  };
  for (const auto& [wo, bytes] : faelle) {
    Umgebung u;
    LesenUeberlebt(u, bytes, wo);
  }
}

TEST(KatalogRobust, RandomBytesLoadWithoutCrash) {
  std::mt19937 zufall(1234);
  for (int runde = 0; runde < 40; ++runde) {
    Umgebung u;
    std::string bytes(static_cast<size_t>(zufall() % 20000), '\0');
    for (char& c : bytes) {
      // Plenty of the characters the format gives meaning to.
      const unsigned r = zufall() % 16;
      c = r == 0 ? '\r' : r == 1 ? '\n' : r == 2 ? ',' : r == 3 ? '"' : static_cast<char>(zufall());
    }
    LesenUeberlebt(u, bytes, "Runde " + std::to_string(runde));
    // Whatever was read, the files written from it read back to the same
    // catalogue: a second write gives the same bytes.
    ASSERT_TRUE(KatalogSchreiben(u.kontext));
    const std::string alt = u.ordner.lesen("Tabellen.ini");
    const std::string neu = u.ordner.lesen("Tabelle2.ini");
    u.ordner.zeit("Tabellen.ini", 0);
    u.ordner.zeit("Tabelle2.ini", 0);
    ASSERT_TRUE(KatalogLesen(u.kontext));
    ASSERT_TRUE(KatalogSchreiben(u.kontext));
    EXPECT_EQ(u.ordner.lesen("Tabellen.ini"), alt) << runde;
    EXPECT_EQ(u.ordner.lesen("Tabelle2.ini"), neu) << runde;
  }
}

TEST(KatalogRobust, AFolderInPlaceOfAFileIsAMissingCatalogue) {
  Umgebung u;
  fs::create_directory(u.ordner.pfad / "Tabelle2.ini");
  EXPECT_FALSE(KatalogLesen(u.kontext));
  ASSERT_EQ(u.meldungen().size(), 1u);

  // A newer "Tabellen.ini" that cannot be read does not empty the catalogue.
  Umgebung v;
  v.ordner.schreiben("Tabelle2.ini", AltZeile("Bleibt", 1) + "0\r\n");
  fs::create_directory(v.ordner.pfad / "Tabellen.ini");
  v.ordner.zeit("Tabelle2.ini", 0);
  v.ordner.zeit("Tabellen.ini", 10);
  EXPECT_TRUE(KatalogLesen(v.kontext));
  EXPECT_EQ(v.zeile(0).TablName, "Bleibt");
}

}  // namespace
}  // namespace kolm::core
