#pragma once
// The road of the demo project: bypass of Musterdorf, section 1, stations
// 0+000 to 0+080. Terrain, design cross-section, pavement layers and the
// earthworks figures of each station, and the plan that goes with them.
// Only numbers here; writing them into a project is the business of
// projekt.cpp.
#include <string>
#include <vector>

namespace kolm::demo {

// ---- Standard cross-section (metres) -----------------------------------------
constexpr double kHalbeFahrbahn = 3.75;  // two lanes, 7.50 together
constexpr double kQuerneigung = 0.025;   // roof profile, either side of the crown
constexpr double kBankett = 1.50;
constexpr double kBankettNeigung = 0.12;
constexpr double kBoeschung = 1.5;       // 1 : 1.5, embankment and cut alike
constexpr double kGrabenTiefe = 0.80;    // ditch bottom below the verge edge
constexpr double kGrabenSohle = 0.50;
constexpr double kDeckschicht = 0.04;    // asphalt surface course
constexpr double kAsphalt = 0.14;        // surface and base course (10 cm)
constexpr double kOberbau = 0.64;        // asphalt on 50 cm frost protection layer
constexpr double kFssOben = 4.25;        // half widths of the frost protection layer
constexpr double kFssUnten = 4.75;
constexpr double kOberboden = 0.20;

constexpr int kAnzahlProfile = 5;
constexpr double kProfilAbstand = 20.0;

// Designations of the points, by their index in Kurzbezeichnungen.
enum Bezeichnung : int {
  kPkt = 0,
  kGelaende,
  kAchse,
  kFahrbahnrand,
  kBankettkante,
  kBoeschungsfuss,
  kBoeschungskopf,
  kGrabensohle,
  kAsphaltgrenze,
  kFrostschutz,
  kPlanum,
  kOberbodenSohle,
  kSchnittpunkt,
  kFestpunkt,
  kAnzahlBezeichnungen
};
// The texts of the designations, in the order above.
const std::vector<std::string>& BezeichnungsTexte();

struct Pkt {
  int nr = 0;
  double x = 0, y = 0;  // offset from the axis (right positive) and height
  int bez = kPkt;
};

// Height of the design crown (the gradient) at a station in metres.
double Gradiente(double station);
// The ground as a surveyor would record it, at a station and an offset.
double Gelaende(double station, double abstand);

// One cross-section. Point numbers: 1 .. 99 ground, 100 .. 199 design line,
// 200 .. 299 layer boundaries, all from left to right.
struct Querprofil {
  double station = 0;  // metres
  double gradiente = 0;
  std::vector<Pkt> gelaende;     // 1 ..
  std::vector<Pkt> entwurf;      // 101 .., slope end to slope end
  std::vector<Pkt> deckUK;       // 200 .. 202: surface course / base course
  std::vector<Pkt> asphaltUK;    // 210 .. 214: base course / frost protection layer
  std::vector<Pkt> planum;       // 220 .. 224: formation, slope to slope
  std::vector<Pkt> oberbodenUK;  // 230 ..: stripped ground, 20 cm below the terrain
  std::vector<Pkt> schnitte;     // 290 ..: formation crossing the stripped ground
  bool auftragLinks = false, auftragRechts = false;
  // Embankment toes with the point of the stripped ground below them.
  std::vector<std::pair<int, int>> abtragsKanten;

  // Figures for the quantities, as chains of point numbers.
  std::vector<int> oberbodenBreite;  // terrain from slope end to slope end
  std::vector<int> deckschicht;      // along the road surface
  std::vector<int> tragschicht;      // along the top of the base course
  std::vector<int> frostschutz;      // closed outline of the layer
  std::vector<std::vector<int>> abtrag, auftrag;  // closed outlines

  std::vector<Pkt> AllePunkte() const;
  // The design point at offset x exactly (the carriageway edges, the crown).
  const Pkt& EntwurfBei(double x) const;
};

// Computes the section at `station` (metres). Throws std::runtime_error when
// the terrain and the design do not meet as a section needs.
Querprofil QuerprofilBerechnen(double station);

// Station text as on plans: "0+040".
std::string StationsText(double station);

// ---- Plan --------------------------------------------------------------------
// Gauss-Krüger coordinates: easting (Y), northing (X) and height.
struct PlanPunkt {
  int nr = 0;
  double rechts = 0, hoch = 0, hoehe = 0;
  int bez = kPkt;
};

struct Lageplan {
  std::vector<PlanPunkt> achse;           // 1 .. 5, one a station
  std::vector<PlanPunkt> randLinks;       // 11 .., carriageway edges
  std::vector<PlanPunkt> randRechts;      // 21 ..
  std::vector<PlanPunkt> boeschungLinks;  // 31 .., slope toes and tops
  std::vector<PlanPunkt> boeschungRechts; // 41 ..
  std::vector<PlanPunkt> festpunkte;      // 901 ..
  std::vector<PlanPunkt> AllePunkte() const;
};

// Axis start and bearing; position of (station, offset right of the axis).
void AchsPunkt(double station, double abstand, double& rechts, double& hoch);
// Bearing of the axis in radians, from grid north toward east.
double AchsRichtung();

Lageplan LageplanBerechnen(const std::vector<Querprofil>& profile);

// Rounded to whole millimetres / centimetres, as the numbers are handed out.
double Mm(double x);
double Cm(double x);

}  // namespace kolm::demo
