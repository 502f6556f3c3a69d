// Sorting the catalogue: gaps closed, neighbours ordered by the first
// letters, then the stationing, then the whole name; the active table kept.
#include "katalog_testhilfen.h"

namespace kolm::core {
namespace {

using namespace katalogtest;

TEST(TabellenSortieren, NamedRowsMoveUpAndTheirOldRowsAreCleared) {
  Umgebung u;
  u.z().Dritte = Wahr;
  u.zeile(3) = Zeile("A", 1, "A", "PA");
  u.zeile(10) = Zeile("B", 2, "B", "PB");
  u.zeile(500) = Zeile("C", 3, "C", "PC");
  u.zeile(500).M31 = Wahr;
  u.zeile(500).Massstab = 250;
  TabellenSortieren(u.z(), 1);
  EXPECT_EQ(Namen(u.z(), 4), (std::vector<std::string>{"A", "B", "C", ""}));
  EXPECT_EQ(u.zeile(2).PktDateiName, "PC");
  EXPECT_EQ(u.zeile(2).M31, Wahr);
  EXPECT_EQ(u.zeile(2).Massstab, 250);
  for (int n : {3, 10, 500}) {
    EXPECT_EQ(u.zeile(n).TablName, "") << n;
    EXPECT_EQ(u.zeile(n).Dateiname, "") << n;
    EXPECT_EQ(u.zeile(n).Stationierung, 0) << n;
    EXPECT_EQ(u.zeile(n).Dritte, Wahr) << "the global flag, row " << n;
  }
}

TEST(TabellenSortieren, FirstLettersWithoutRegardToCaseThenStationingThenTheWholeName) {
  const struct {
    int buchstaben;
    std::vector<std::pair<std::string, double>> zeilen;  // name and stationing, row by row
    std::vector<std::string> sortiert;
  } faelle[] = {
      // No letters: the stationing decides, then the name.
      {0, {{"Zeta", 0.5}, {"Profil 2", 1.25}, {"alpha", 2}, {"Profil 10", 1.25}, {"Beta", -1}},
       {"Beta", "Zeta", "Profil 10", "Profil 2", "alpha"}},
      // "ab" is shorter than three letters and comes first; "äbc" and "Äbc"
      // have equal letters and go by stationing.
      {3, {{"ABD 1", 1}, {"Abc 1", 9}, {"abc 2", 5}, {"äbc", 0}, {"Äbc", 1}, {"ab", 7}},
       {"ab", "abc 2", "Abc 1", "ABD 1", "äbc", "Äbc"}},
      // Equal letters and stationing: the whole name, exactly.
      {6, {{"profil b", 1}, {"Profil B", 1}, {"Profil a", 1}}, {"Profil B", "Profil a", "profil b"}},
      // A negative count is none, a large one the whole name.
      {-5, {{"B", 1}, {"A", 2}}, {"B", "A"}},
      {40, {{"B", 1}, {"A", 2}}, {"A", "B"}},
  };
  for (const auto& f : faelle) {
    SCOPED_TRACE(f.buchstaben);
    Umgebung u;
    for (std::size_t i = 0; i < f.zeilen.size(); ++i)
      u.zeile(static_cast<int>(i)) = Zeile(f.zeilen[i].first, f.zeilen[i].second);
    TabellenSortieren(u.z(), f.buchstaben);
    EXPECT_EQ(Namen(u.z(), static_cast<int>(f.sortiert.size())), f.sortiert);
  }
}

TEST(TabellenSortieren, TheActiveTableFollowsItsName) {
  Umgebung u;
  u.zeile(7) = Zeile("C");
  u.zeile(8) = Zeile("A");
  u.zeile(9) = Zeile("B");
  u.z().AktiveTabelle = 7;
  TabellenSortieren(u.z(), 1);
  EXPECT_EQ(u.z().AktiveTabelle, 2);

  // A blank active row or none at all leaves no table active.
  u.z().AktiveTabelle = 400;
  TabellenSortieren(u.z(), 1);
  EXPECT_EQ(u.z().AktiveTabelle, -1);
  TabellenSortieren(u.z(), 1);
  EXPECT_EQ(u.z().AktiveTabelle, -1);
}

TEST(TabellenSortieren, AFullCatalogueInReverseOrderIsSorted) {
  Umgebung u;
  for (int i = 0; i < 501; ++i) u.zeile(i) = Zeile("T", 500 - i);
  u.zeile(0).TablName = "T erste";
  u.z().AktiveTabelle = 0;
  TabellenSortieren(u.z(), 1);
  for (int i = 0; i < 501; ++i) ASSERT_EQ(u.zeile(i).Stationierung, i);
  EXPECT_EQ(u.z().AktiveTabelle, 500);
}

}  // namespace
}  // namespace kolm::core
