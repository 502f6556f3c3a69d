// Setting out an arc: the point at arc length B from the arc's start around
// the centre (KreisAbsteckB), and x, y of a point on the arc with the chord
// S as the first axis (KreisAbsteckXYS). Worked values from data/werte.py.
// Captions, storing, M31 and a polar table in gon are covered end to end by
// the rechnen_kreisabsteckung macro; a polar table in degrees by the
// rounding test.
#include <string>

#include "calc/frame/menue_umgebung.h"

namespace kolm::calc::testing {
namespace {

// M (1000, 2000) as point 1, the arc's start (1030, 2040) as point 2: r = 50.
RechenDialog& MitB(MenueUmgebung& u, const std::string& b, const char* ba = "2") {
  u.punkt(1, 1000, 2000, 7);
  u.punkt(2, 1030, 2040, 8);
  RechenDialog& d = u.oeffnen("MnuKreisAbsteckungB", "KreisAbsteckB");
  d.control("PP1Nr").setText("1");
  d.control("PP2Nr").setText(ba);
  d.control("Param", 0).setText(b);
  d.control("Berechnen").click();
  return d;
}

TEST(KreisAbsteckB, ThePointOnTheCircleTurnedByTheSignedArc) {
  struct Fall {
    const char* b;
    double a, bb;
  };
  // -25 turns back; 100 is more than a quarter turn, with a comma.
  for (const Fall& f : {Fall{"25", 1045.504498401, 2020.720536317}, Fall{"-25", 1007.150455313, 2049.486068634},
                        Fall{"100,0", 1023.887491977, 1956.075203733}}) {
    SCOPED_TRACE(f.b);
    MenueUmgebung u;
    RechenDialog& d = MitB(u, f.b);
    EXPECT_TRUE(u.meldungen().empty());
    EXPECT_NEAR(d.Ergebnis().A, f.a, 1e-6);
    EXPECT_NEAR(d.Ergebnis().B, f.bb, 1e-6);
    EXPECT_EQ(d.Ergebnis().C, 0) << "no height is calculated";
    EXPECT_NEAR(std::hypot(d.Ergebnis().A - 1000, d.Ergebnis().B - 2000), 50, 1e-9) << "on the circle";
  }
}

TEST(KreisAbsteckB, AZeroOrEmptyArcOrACentreOnTheStartIsRefusedAndTheFieldsStay) {
  for (const auto& [b, ba] : {std::pair{"0", "2"}, {"", "2"}, {"25", "1"}}) {
    SCOPED_TRACE(std::string(b) + "/" + ba);
    MenueUmgebung u;
    RechenDialog& d = MitB(u, "25");
    d.control("Param", 0).setText(b);
    d.control("PP2Nr").setText(ba);
    d.control("Berechnen").click();
    u.meldung("Ungültige Parameter!");
    EXPECT_EQ(d.control("ErgA").captionText(), "1045.504");
  }
}

// ---- x, y, s

RechenDialog& MitXYS(MenueUmgebung& u, const std::string& r, const std::string& s, const std::string& b) {
  RechenDialog& d = u.oeffnen("MnuKreisAbsteckungXYS", "KreisAbsteckXYS");
  d.control("Param", 0).setText(r);
  d.control("Param", 1).setText(s);
  d.control("Param", 2).setText(b);
  d.control("Berechnen").click();
  return d;
}

TEST(KreisAbsteckXYS, XAlongTheChordAndYTowardTheArc) {
  struct Fall {
    const char* name;
    const char *r, *s, *b, *x, *y;
    double faktor = kGon;
    bool polarM31 = false;
  };
  // A negative radius mirrors the arc below the chord; B still walks from
  // the start toward the chord's end, and a negative B backward from it.
  const Fall faelle[] = {
      {"R 50", "50", "60", "20", "17.944904", "8.52499"},
      {"R 200", "200", "80", "30", "29.732931", "3.777115"},
      {"negative arc", "50", "60", "-10", "-7.348771", "-6.757417"},
      {"negative radius", "-50", "60", "20", "17.944904", "-8.52499"},
      {"both negative", "-50", "60", "-20", "-13.208564", "14.840111"},
      {"a chord longer than the diameter is not refused", "10", "30", "5", "4.794255", "-1.224174"},
      {"degrees, a polar M31 table do not matter", "50", "60", "20", "17.944904", "8.52499", kGrad, true},
  };
  for (const Fall& f : faelle) {
    SCOPED_TRACE(f.name);
    MenueUmgebung u;
    u.zustand.WinkelFaktor = f.faktor;
    u.zustand.Polar = u.zustand.M31 = f.polarM31 ? core::Wahr : core::Falsch;
    RechenDialog& d = MitXYS(u, f.r, f.s, f.b);
    EXPECT_TRUE(u.meldungen().empty());
    EXPECT_EQ(d.control("Erg", 0).captionText(), f.x);
    EXPECT_EQ(d.control("Erg", 1).captionText(), f.y);
  }
  // The whole arc ends at the chord's end.
  MenueUmgebung u;
  RechenDialog& d = MitXYS(u, "50", "60", "64.350110879");
  EXPECT_NEAR(MenueUmgebung::zahl(d.control("Erg", 0)), 60, 1e-6);
  EXPECT_NEAR(MenueUmgebung::zahl(d.control("Erg", 1)), 0, 1e-6);
  EXPECT_EQ(d.find("PktNr"), nullptr) << "no point to store";
}

TEST(KreisAbsteckXYS, AnyZeroValueIsRefusedAndTheResultsStay) {
  MenueUmgebung u;
  RechenDialog& d = MitXYS(u, "50", "60", "20");
  for (int i = 0; i < 3; ++i) {
    const std::string vorher = d.control("Param", i).text();
    d.control("Param", i).setText(i == 1 ? "" : "0");
    d.control("Berechnen").click();
    ASSERT_EQ(u.meldungen().size(), static_cast<size_t>(i + 1));
    EXPECT_EQ(u.meldungen()[i].message.text, "Ungültige Parameter!");
    EXPECT_EQ(u.meldungen()[i].message.title, "Kreisbogenabsteckung mit x, y, s");
    EXPECT_EQ(d.control("Erg", 0).captionText(), "17.944904");
    d.control("Param", i).setText(vorher);
  }
}

}  // namespace
}  // namespace kolm::calc::testing
