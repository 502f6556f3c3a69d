// Polygonzug: the notes and worked traverses, open and adjusted, in degrees,
// a polar table, closed and of one leg; values from data/werte.py. The
// traverses in gon and under M31, open and adjusted, and the captions are
// covered end to end by the rechnen_polygonzug* macros.
#include "polygonzug_umgebung.h"

namespace kolm::calc::testing {
namespace {

TEST(PolygonzugTest, TheNotesExplainTheMeasuredValues) {
  PolygonzugUmgebung u;
  RechenDialog& d = u.oeffnen("MnuGerMittelnderPolygonzug", "Polygonzug");
  const std::pair<const char*, const char*> captions[] = {
      {"Punkt1", "Ausgangspunkt PA"}, {"Punkt2", "Endpunkt PE"}, {"CheckAusgleichen", "Aus&gleichen"},
      {"LabelGeschlossen", "(nicht für geschlossene Polygonzüge geeignet)"},
      {"Ergebnis", "Fehler bei Ausgleich:"},
      {"LabelBeschreibung",
       "Die gemessenen Werte werden immer unabhängig von der Stellung des Schalters 'Polar'  als (e, Phi)  "
       "interpretiert. Das Ergebnis wird dann in rechtwinkelligen Koordinaten an die Stelle der Meßwerte "
       "gespeichert. PA und PE können auch polar angegeben werden."},
      {"LabelMesswerte", "Die Punkte von 'Start' bis 'Ende' enthalten die gemessenen Strecken (e) und Winkel (Phi):"},
      {"LabelAusgleichen",
       "Wenn 'Ausgleichen' gewählt wird, dann wird der Polygonzug nach der Berechnung korrigiert, indem die "
       "Fehler DX und DY jeweils im Verhältnis der gemessenen Strecke e zur Gesamtlänge des Polygonzugs "
       "aufgeteilt werden."}};
  for (const auto& [name, text] : captions) {
    std::string shown = d.control(name).captionText();
    for (char& c : shown)
      if (c == '\n') c = ' ';  // the notes break at blanks
    EXPECT_EQ(shown, text) << name;
  }
  EXPECT_EQ(d.control("Label", 0).captionText(), "S&tart:");
  EXPECT_EQ(d.control("Label", 1).captionText(), "E&nde:");
}

struct Fall {
  const char* name;
  double faktor;
  bool polar;
  core::Punkt pa, pe;  // as the table holds them
  Schenkel legs;       // from point 101 on
  bool ausgleichen;
  std::vector<std::pair<double, double>> erwartet;
  const char *ergA, *ergB;  // the misclosure shown; nullptr: too small to tell
};

const Fall kFaelle[] = {
    {"Altgrad offen", kPi / 180, false, {0, 0, 1000, 2000}, {}, {{50, 30}, {40, 75}, {60, 140}}, false,
     {{1043.301270188, 2025.000000003}, {1053.654031985, 2063.637033056}, {1007.691365386, 2102.204289623}}, "", ""},
    {"Altgrad ausgeglichen", kPi / 180, false, {0, 0, 1000, 2000}, {0, 0, 1007.80, 2102.10},
     {{50, 30}, {40, 75}, {60, 140}}, true,
     {{1043.337481726, 2024.965236795}, {1053.719212754, 2063.574459283}, {1007.8, 2102.1}}, "0.109", "-0.104"},
    {"Polar: PA und PE als e, Phi", kPi / 200, true, {0, 0, 583.095189485, 34.404173920},
     {0, 0, 650.737012932, 47.550541763}, {{120.5, 12.5}, {98.25, 87.0}, {143.0, 160.25}, {75.75, 260.0}}, true,
     {{618.166687247, 323.527024707}, {638.075912354, 419.750864763}, {522.036009860, 503.371319105},
      {477.5, 442.1}}, "-0.065", "0.068"},
    {"geschlossen", kPi / 200, false, {0, 0, 100, 100}, {0, 0, 100, 100}, {{30, 0}, {40, 100}, {50, 259.0334}},
     true, {{130.000007389, 99.999994460}, {130.000017233, 139.999987073}, {100, 100}}, nullptr, nullptr},
    {"ein Schenkel auf PE", kPi / 200, false, {0, 0, 200, 300}, {0, 0, 205, 310}, {{11, 70}}, true,
     {{205, 310}}, "0.006", "0.199"},
};

TEST(PolygonzugTest, WorkedTraversesOverwriteTheLegsWithCoordinates) {
  for (const Fall& f : kFaelle) {
    SCOPED_TRACE(f.name);
    PolygonzugUmgebung u;
    u.zustand.WinkelFaktor = f.faktor;
    u.zustand.Polar = f.polar ? core::Wahr : core::Falsch;
    u.punkt(1, f.pa.A, f.pa.B);
    u.punkt(2, f.pe.A, f.pe.B);
    u.schenkel(101, f.legs);
    u.zustand.Punkte[101].C = 7.25;
    u.zustand.Punkte[101].KurzBez = 3;
    u.punkt(150, 1, 1);  // the highest used number: 151 is offered
    const int ende = 100 + static_cast<int>(f.legs.size());
    RechenDialog& d = u.rechnen("1", "2", "101", std::to_string(ende), f.ausgleichen);
    u.meldung(f.ausgleichen ? kAusgeglichen : kFliegend);
    for (size_t i = 0; i < f.erwartet.size(); ++i) {
      EXPECT_NEAR(u.p(101 + static_cast<int>(i)).A, f.erwartet[i].first, 1e-6) << i;
      EXPECT_NEAR(u.p(101 + static_cast<int>(i)).B, f.erwartet[i].second, 1e-6) << i;
    }
    EXPECT_EQ(u.p(101).C, 7.25) << "heights stay";
    EXPECT_EQ(u.p(101).KurzBez, 3) << "designations stay";
    EXPECT_EQ(u.p(100).A, 0) << "nothing before the range";
    EXPECT_EQ(u.p(ende + 1).A, 0) << "nothing after it";
    EXPECT_EQ(u.p(1).A, f.pa.A) << "PA stays";
    EXPECT_TRUE(u.zustand.TabelleGeaendert);
    if (f.ergA) {
      EXPECT_EQ(d.control("ErgA").captionText(), f.ergA);
    }
    if (f.ergB) {
      EXPECT_EQ(d.control("ErgB").captionText(), f.ergB);
    }
    EXPECT_EQ(d.control("PktNr").text(), f.ausgleichen ? "151" : "");
    EXPECT_EQ(d.activeControl(), &d.control(f.ausgleichen ? "PktNr" : "Schließen"));
    EXPECT_NEAR(d.Eingabe(0).A, f.pa.A, 1e-6) << "PA back in the table's form";
    EXPECT_NEAR(d.Eingabe(0).B, f.pa.B, 1e-6);
  }
}

TEST(PolygonzugTest, ThousandsOfLegsAreAdjustedInOneRun) {
  PolygonzugUmgebung u;
  u.zustand.PunkteDimensionieren(9999);
  u.schenkel(1, Schenkel(5000, {1.0, 0.0}));
  u.punkt(9000, 5000.5, 2);
  RechenDialog& d = u.rechnen("0", "9000", "1", "5000", true);
  u.meldung(kAusgeglichen);
  EXPECT_EQ(d.control("ErgA").captionText(), "0.500");
  const std::pair<int, std::pair<double, double>> stichproben[] = {
      {1, {1.0001, 0.0004}}, {2500, {2500.25, 1.0}}, {4999, {4999.4999, 1.9996}}, {5000, {5000.5, 2.0}}};
  for (const auto& [n, ab] : stichproben) {
    EXPECT_NEAR(u.p(n).A, ab.first, 1e-6) << n;
    EXPECT_NEAR(u.p(n).B, ab.second, 1e-6) << n;
  }
}

}  // namespace
}  // namespace kolm::calc::testing
