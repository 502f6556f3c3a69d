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

TEST(TabellenSortieren, WithNoLettersTheStationingDecidesThenTheName) {
  Umgebung u;
  u.zeile(0) = Zeile("Zeta", 0.5);
  u.zeile(1) = Zeile("Profil 2", 1.25);
  u.zeile(2) = Zeile("alpha", 2);
  u.zeile(4) = Zeile("Profil 10", 1.25);
  u.zeile(5) = Zeile("Beta", -1);
  TabellenSortieren(u.z(), 0);
  EXPECT_EQ(Namen(u.z(), 5), (std::vector<std::string>{"Beta", "Zeta", "Profil 10", "Profil 2", "alpha"}));
}

TEST(TabellenSortieren, TheFirstLettersCompareWithoutRegardToCase) {
  Umgebung u;
  u.zeile(0) = Zeile("ABD 1", 1);
  u.zeile(1) = Zeile("Abc 1", 9);
  u.zeile(2) = Zeile("abc 2", 5);
  u.zeile(3) = Zeile("äbc", 0);
  u.zeile(4) = Zeile("Äbc", 1);
  u.zeile(5) = Zeile("ab", 7);
  TabellenSortieren(u.z(), 3);
  // "ab" is shorter than three letters and comes first; "äbc" and "Äbc" have
  // equal letters and go by stationing.
  EXPECT_EQ(Namen(u.z(), 6), (std::vector<std::string>{"ab", "abc 2", "Abc 1", "ABD 1", "äbc", "Äbc"}));
}

TEST(TabellenSortieren, TheWholeNameComparesExactlyWhenLettersAndStationingAreEqual) {
  Umgebung u;
  u.zeile(0) = Zeile("profil b", 1);
  u.zeile(1) = Zeile("Profil B", 1);
  u.zeile(2) = Zeile("Profil a", 1);
  TabellenSortieren(u.z(), 6);
  EXPECT_EQ(Namen(u.z(), 3), (std::vector<std::string>{"Profil B", "Profil a", "profil b"}));
}

TEST(TabellenSortieren, NegativeLetterCountsCountAsNoneAndLargeOnesAsTheWholeName) {
  Umgebung u;
  u.zeile(0) = Zeile("B", 1);
  u.zeile(1) = Zeile("A", 2);
  TabellenSortieren(u.z(), -5);
  EXPECT_EQ(Namen(u.z(), 2), (std::vector<std::string>{"B", "A"}));
  TabellenSortieren(u.z(), 40);
  EXPECT_EQ(Namen(u.z(), 2), (std::vector<std::string>{"A", "B"}));
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
