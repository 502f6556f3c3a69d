#include "strasse.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <numbers>
#include <stdexcept>

namespace kolm::demo {

namespace {

struct P2 {
  double x = 0, y = 0;
  int nr = 0;
};

// Values at 0+000, 0+020 .. 0+080, linear in between and beyond.
double Stuetzwerte(const double (&werte)[kAnzahlProfile], double station) {
  const double t = station / kProfilAbstand;
  const int i = std::clamp(static_cast<int>(std::floor(t)), 0, kAnzahlProfile - 2);
  return werte[i] + (werte[i + 1] - werte[i]) * (t - i);
}

// The valley floor at the start rises onto a hillside: embankment at
// 0+000 and 0+020, a side-hill section at 0+040, cut from 0+060 on.
constexpr double kGelaendeAchse[kAnzahlProfile] = {238.70, 239.00, 239.75, 240.65, 241.60};
constexpr double kHangneigung[kAnzahlProfile] = {0.045, 0.050, 0.055, 0.050, 0.045};

// Where the survey took its shots across the section, before the small
// differences from station to station.
constexpr double kAufnahme[] = {-20.0, -17.3, -14.6, -12.2, -9.8, -7.5, -5.1, -2.7, 0.0,
                                2.5,   4.8,   7.2,   9.7,   12.3, 14.9, 17.5, 20.0};

void Pruefen(bool bedingung, double station, const char* was) {
  if (bedingung) return;
  char text[200];
  std::snprintf(text, sizeof text, "Profil %s: %s", StationsText(station).c_str(), was);
  throw std::runtime_error(text);
}

// Height of a polyline (ascending x) at x.
double HoeheAuf(const std::vector<P2>& linie, double x) {
  if (linie.empty() || x < linie.front().x - 1e-9 || x > linie.back().x + 1e-9)
    throw std::runtime_error("Punkt außerhalb der Linie");
  for (std::size_t i = 1; i < linie.size(); ++i) {
    const P2& a = linie[i - 1];
    const P2& b = linie[i];
    if (x <= b.x) return b.x == a.x ? b.y : a.y + (b.y - a.y) * (x - a.x) / (b.x - a.x);
  }
  return linie.back().y;
}

// Where the straight line from `start`, going outward (richtung -1 to the
// left, +1 to the right) and rising `steigung` per metre, first meets the
// polyline. Throws when it never does within the line.
P2 StrahlSchnitt(const std::vector<P2>& linie, P2 start, int richtung, double steigung) {
  auto aufStrahl = [&](double x) { return P2{x, start.y + steigung * (x - start.x) * richtung}; };
  auto abstand = [&](double x) { return aufStrahl(x).y - HoeheAuf(linie, x); };
  double xa = start.x;
  double fa = abstand(xa);
  if (fa == 0) return start;
  std::vector<double> xs;
  for (const P2& p : linie)
    if ((p.x - start.x) * richtung > 0) xs.push_back(p.x);
  if (richtung < 0) std::reverse(xs.begin(), xs.end());
  for (double xb : xs) {
    const double fb = abstand(xb);
    // Both lines are straight between two vertices: solve there.
    if (fb == 0 || (fa > 0) != (fb > 0)) return aufStrahl(xa + (xb - xa) * fa / (fa - fb));
    xa = xb;
    fa = fb;
  }
  throw std::runtime_error("Böschung trifft das Gelände nicht innerhalb der Aufnahme");
}

// One side of the section, from the carriageway edge outward.
struct Seite {
  int richtung = 0;  // -1 left, +1 right
  bool auftrag = false;
  P2 rand, bankett, planumEnde, grabenInnen, grabenAussen, ende;
  P2 sohlenEnde;  // where the stripped ground ends: below the toe, or on the cut slope
};

Seite SeiteBerechnen(double station, double h, int r, const std::vector<P2>& gelaende,
                     const std::vector<P2>& sohle) {
  Seite s;
  s.richtung = r;
  s.rand = {r * kHalbeFahrbahn, Mm(h - kQuerneigung * kHalbeFahrbahn)};
  s.bankett = {r * (kHalbeFahrbahn + kBankett), Mm(s.rand.y - kBankett * kBankettNeigung)};
  // The formation runs on with the crossfall until it meets the slope line
  // from the verge edge.
  const double planumAbstand =
      (s.bankett.y - h + kOberbau + (kHalbeFahrbahn + kBankett) / kBoeschung) / (1 / kBoeschung - kQuerneigung);
  s.planumEnde = {r * Mm(planumAbstand), Mm(h - kOberbau - kQuerneigung * planumAbstand)};
  // Embankment where the formation edge stands above the terrain, cut with
  // a ditch below it otherwise.
  s.auftrag = HoeheAuf(gelaende, s.planumEnde.x) < s.planumEnde.y;
  if (s.auftrag) {
    Pruefen(HoeheAuf(gelaende, s.bankett.x) < s.bankett.y, station, "Bankett liegt unter dem Gelände");
    const P2 fuss = StrahlSchnitt(gelaende, s.bankett, r, -1 / kBoeschung);
    s.ende = {Mm(fuss.x), Mm(fuss.y)};
    Pruefen((s.ende.x - s.planumEnde.x) * r > 0.05, station, "Böschungsfuß liegt innerhalb des Planums");
    s.sohlenEnde = {s.ende.x, Mm(s.ende.y - kOberboden)};
  } else {
    const double innen = kHalbeFahrbahn + kBankett + kGrabenTiefe * kBoeschung;
    s.grabenInnen = {r * innen, Mm(s.bankett.y - kGrabenTiefe)};
    s.grabenAussen = {r * (innen + kGrabenSohle), s.grabenInnen.y};
    Pruefen(HoeheAuf(sohle, s.grabenAussen.x) > s.grabenAussen.y + 0.05, station, "Graben liegt über dem Gelände");
    const P2 kopf = StrahlSchnitt(gelaende, s.grabenAussen, r, 1 / kBoeschung);
    const P2 sohlenSchnitt = StrahlSchnitt(sohle, s.grabenAussen, r, 1 / kBoeschung);
    s.ende = {Mm(kopf.x), Mm(kopf.y)};
    s.sohlenEnde = {Mm(sohlenSchnitt.x), Mm(sohlenSchnitt.y)};
  }
  return s;
}

std::vector<P2> AlsLinie(const std::vector<Pkt>& punkte) {
  std::vector<P2> linie;
  for (const Pkt& p : punkte) linie.push_back({p.x, p.y, p.nr});
  return linie;
}

}  // namespace

const std::vector<std::string>& BezeichnungsTexte() {
  static const std::vector<std::string> texte = {
      "Pkt.",         "Gelände",     "Achse",   "Fahrbahnrand", "Bankett",  "Böschungsfuß", "Böschungskopf",
      "Grabensohle",  "Asphalt",     "Frostschutz", "Planum",   "Oberboden", "Schnittpunkt", "Festpunkt"};
  return texte;
}

double Mm(double x) { return std::round(x * 1000) / 1000; }
double Cm(double x) { return std::round(x * 100) / 100; }

double Gradiente(double station) { return 240.200 + 0.008 * station; }

double Gelaende(double station, double abstand) {
  // A cross fall toward the left with the small waves of a meadow; the
  // waves vanish on the axis, where the heights of kGelaendeAchse hold.
  return Stuetzwerte(kGelaendeAchse, station) + Stuetzwerte(kHangneigung, station) * abstand +
         0.09 * std::sin(0.31 * abstand + 0.045 * station) + 0.05 * std::sin(0.83 * abstand + 1.1 + 0.07 * station) -
         0.09 * std::sin(0.045 * station) - 0.05 * std::sin(1.1 + 0.07 * station);
}

std::string StationsText(double station) {
  const long meter = std::lround(station);
  char text[32];
  std::snprintf(text, sizeof text, "%ld+%03ld", meter / 1000, meter % 1000);
  return text;
}

std::vector<Pkt> Querprofil::AllePunkte() const {
  std::vector<Pkt> alle;
  for (const auto* liste : {&gelaende, &entwurf, &deckUK, &asphaltUK, &planum, &oberbodenUK, &schnitte})
    alle.insert(alle.end(), liste->begin(), liste->end());
  std::sort(alle.begin(), alle.end(), [](const Pkt& a, const Pkt& b) { return a.nr < b.nr; });
  return alle;
}

const Pkt& Querprofil::EntwurfBei(double x) const {
  for (const Pkt& p : entwurf)
    if (p.x == x) return p;
  throw std::runtime_error("Entwurfspunkt fehlt");
}

Querprofil QuerprofilBerechnen(double station) {
  Querprofil q;
  q.station = station;
  const double h = Mm(Gradiente(station));
  q.gradiente = h;

  // ---- Terrain: shots at irregular offsets, the axis and the ends fixed.
  const int anzahl = static_cast<int>(std::size(kAufnahme));
  for (int i = 0; i < anzahl; ++i) {
    double x = kAufnahme[i];
    if (i != 0 && i != anzahl - 1 && x != 0) x += 0.35 * std::sin(1.7 * i + 0.13 * station);
    x = Cm(x);
    q.gelaende.push_back({i + 1, x, Cm(Gelaende(station, x)), kGelaende});
  }
  const std::vector<P2> gelaende = AlsLinie(q.gelaende);
  std::vector<P2> sohle = gelaende;
  for (P2& p : sohle) p.y -= kOberboden;

  const Seite links = SeiteBerechnen(station, h, -1, gelaende, sohle);
  const Seite rechts = SeiteBerechnen(station, h, 1, gelaende, sohle);
  q.auftragLinks = links.auftrag;
  q.auftragRechts = rechts.auftrag;

  // ---- Design line, left slope end to right slope end.
  auto aussen = [](const Seite& s) {
    std::vector<Pkt> p = {{0, s.rand.x, s.rand.y, kFahrbahnrand}, {0, s.bankett.x, s.bankett.y, kBankettkante}};
    if (!s.auftrag) {
      p.push_back({0, s.grabenInnen.x, s.grabenInnen.y, kGrabensohle});
      p.push_back({0, s.grabenAussen.x, s.grabenAussen.y, kGrabensohle});
    }
    p.push_back({0, s.ende.x, s.ende.y, s.auftrag ? kBoeschungsfuss : kBoeschungskopf});
    return p;
  };
  std::vector<Pkt> l = aussen(links);
  q.entwurf.assign(l.rbegin(), l.rend());
  q.entwurf.push_back({0, 0.0, h, kAchse});
  for (const Pkt& p : aussen(rechts)) q.entwurf.push_back(p);
  for (std::size_t i = 0; i < q.entwurf.size(); ++i) q.entwurf[i].nr = 101 + static_cast<int>(i);
  auto nummerBei = [&q](double x) { return q.EntwurfBei(x).nr; };

  // ---- Pavement layers, parallel to the surface.
  auto schicht = [h](double x, double tiefe) { return Mm(h - kQuerneigung * std::fabs(x) - tiefe); };
  int nr = 200;
  for (double x : {-kHalbeFahrbahn, 0.0, kHalbeFahrbahn}) q.deckUK.push_back({nr++, x, schicht(x, kDeckschicht), kAsphaltgrenze});
  nr = 210;
  for (double x : {-kFssOben, -kHalbeFahrbahn, 0.0, kHalbeFahrbahn, kFssOben})
    q.asphaltUK.push_back({nr++, x, schicht(x, kAsphalt), kFrostschutz});
  q.planum.push_back({220, links.planumEnde.x, links.planumEnde.y, kPlanum});
  nr = 221;
  for (double x : {-kFssUnten, 0.0, kFssUnten}) q.planum.push_back({nr++, x, schicht(x, kOberbau), kPlanum});
  q.planum.push_back({224, rechts.planumEnde.x, rechts.planumEnde.y, kPlanum});

  // ---- Stripped ground between the slope ends.
  nr = 230;
  q.oberbodenUK.push_back({nr++, links.sohlenEnde.x, links.sohlenEnde.y, kOberbodenSohle});
  for (const Pkt& g : q.gelaende)
    if (g.x > links.sohlenEnde.x && g.x < rechts.sohlenEnde.x)
      q.oberbodenUK.push_back({nr++, g.x, Mm(g.y - kOberboden), kOberbodenSohle});
  q.oberbodenUK.push_back({nr++, rechts.sohlenEnde.x, rechts.sohlenEnde.y, kOberbodenSohle});
  Pruefen(nr <= 290, station, "zu viele Punkte der Oberbodensohle");
  const int sohleLinks = q.oberbodenUK.front().nr;
  const int sohleRechts = q.oberbodenUK.back().nr;
  if (links.auftrag) q.abtragsKanten.push_back({nummerBei(links.ende.x), sohleLinks});
  if (rechts.auftrag) q.abtragsKanten.push_back({nummerBei(rechts.ende.x), sohleRechts});

  // ---- Formation line of the earthworks: slope ends, ditches, formation.
  std::vector<P2> erd;
  if (links.auftrag) {
    erd.push_back({links.ende.x, links.ende.y, nummerBei(links.ende.x)});
  } else {
    erd.push_back({links.sohlenEnde.x, links.sohlenEnde.y, sohleLinks});
    erd.push_back({links.grabenAussen.x, links.grabenAussen.y, nummerBei(links.grabenAussen.x)});
    erd.push_back({links.grabenInnen.x, links.grabenInnen.y, nummerBei(links.grabenInnen.x)});
  }
  for (const Pkt& p : q.planum) erd.push_back({p.x, p.y, p.nr});
  if (rechts.auftrag) {
    erd.push_back({rechts.ende.x, rechts.ende.y, nummerBei(rechts.ende.x)});
  } else {
    erd.push_back({rechts.grabenInnen.x, rechts.grabenInnen.y, nummerBei(rechts.grabenInnen.x)});
    erd.push_back({rechts.grabenAussen.x, rechts.grabenAussen.y, nummerBei(rechts.grabenAussen.x)});
    erd.push_back({rechts.sohlenEnde.x, rechts.sohlenEnde.y, sohleRechts});
  }
  for (std::size_t i = 1; i < erd.size(); ++i) Pruefen(erd[i].x > erd[i - 1].x, station, "Erdplanum nicht steigend");
  const std::vector<P2> sohleLinie = AlsLinie(q.oberbodenUK);

  // ---- Cut and fill: where the formation line lies above the stripped
  // ground it is embankment, below it cut; crossings become points.
  std::vector<double> xs;
  for (const P2& p : erd) xs.push_back(p.x);
  for (const P2& p : sohleLinie) xs.push_back(p.x);
  std::sort(xs.begin(), xs.end());
  xs.erase(std::unique(xs.begin(), xs.end()), xs.end());
  auto differenz = [&](double x) { return HoeheAuf(erd, x) - HoeheAuf(sohleLinie, x); };
  struct Grenze {
    double x;
    int nr;  // crossing point; 0 at the ends of the section
  };
  std::vector<Grenze> grenzen = {{xs.front(), 0}};
  nr = 290;
  for (std::size_t i = 1; i < xs.size(); ++i) {
    const double da = differenz(xs[i - 1]);
    const double db = differenz(xs[i]);
    if (i + 1 < xs.size()) Pruefen(std::fabs(db) > 0.002, station, "Erdplanum berührt das Gelände");
    if (da * db < 0) {
      const double x = xs[i - 1] + (xs[i] - xs[i - 1]) * da / (da - db);
      q.schnitte.push_back({nr, Mm(x), Mm(HoeheAuf(erd, x)), kSchnittpunkt});
      grenzen.push_back({Mm(x), nr++});
    }
  }
  grenzen.push_back({xs.back(), 0});

  for (std::size_t g = 1; g < grenzen.size(); ++g) {
    const Grenze& a = grenzen[g - 1];
    const Grenze& b = grenzen[g];
    std::vector<P2> kette;
    // Along the formation line from left to right ...
    if (a.nr) kette.push_back({a.x, 0, a.nr});
    else kette.push_back(erd.front());
    for (const P2& p : erd)
      if (p.x > a.x && p.x < b.x) kette.push_back(p);
    if (b.nr) kette.push_back({b.x, 0, b.nr});
    else kette.push_back(erd.back());
    // ... and back along the stripped ground, each shared point once.
    if (!b.nr && sohleLinie.back().nr != erd.back().nr) kette.push_back(sohleLinie.back());
    for (auto it = sohleLinie.rbegin(); it != sohleLinie.rend(); ++it)
      if (it->x > a.x && it->x < b.x) kette.push_back(*it);
    if (!a.nr && sohleLinie.front().nr != erd.front().nr) kette.push_back(sohleLinie.front());

    std::vector<int> nummern;
    for (const P2& p : kette) nummern.push_back(p.nr);
    const bool damm = differenz((a.x + b.x) / 2) > 0;
    (damm ? q.auftrag : q.abtrag).push_back(nummern);
  }

  // ---- Chains of the other quantities.
  q.oberbodenBreite.push_back(nummerBei(links.ende.x));
  for (const Pkt& g : q.gelaende)
    if (g.x > links.ende.x && g.x < rechts.ende.x) q.oberbodenBreite.push_back(g.nr);
  q.oberbodenBreite.push_back(nummerBei(rechts.ende.x));
  q.deckschicht = {nummerBei(-kHalbeFahrbahn), nummerBei(0.0), nummerBei(kHalbeFahrbahn)};
  for (const Pkt& p : q.deckUK) q.tragschicht.push_back(p.nr);
  q.frostschutz = {210, 211, 212, 213, 214, 223, 222, 221};
  return q;
}

// ---- Plan ------------------------------------------------------------------------

double AchsRichtung() { return 68.4230 * std::numbers::pi / 200; }

void AchsPunkt(double station, double abstand, double& rechts, double& hoch) {
  constexpr double kRechtsAnfang = 4512346.218;
  constexpr double kHochAnfang = 5430781.534;
  const double t = AchsRichtung();
  rechts = kRechtsAnfang + station * std::sin(t) + abstand * std::cos(t);
  hoch = kHochAnfang + station * std::cos(t) - abstand * std::sin(t);
}

std::vector<PlanPunkt> Lageplan::AllePunkte() const {
  std::vector<PlanPunkt> alle;
  for (const auto* liste : {&achse, &randLinks, &randRechts, &boeschungLinks, &boeschungRechts, &festpunkte})
    alle.insert(alle.end(), liste->begin(), liste->end());
  std::sort(alle.begin(), alle.end(), [](const PlanPunkt& a, const PlanPunkt& b) { return a.nr < b.nr; });
  return alle;
}

Lageplan LageplanBerechnen(const std::vector<Querprofil>& profile) {
  Lageplan plan;
  auto punkt = [](int nr, double station, double abstand, double hoehe, int bez) {
    PlanPunkt p;
    p.nr = nr;
    AchsPunkt(station, abstand, p.rechts, p.hoch);
    p.rechts = Mm(p.rechts);
    p.hoch = Mm(p.hoch);
    p.hoehe = Mm(hoehe);
    p.bez = bez;
    return p;
  };
  for (std::size_t i = 0; i < profile.size(); ++i) {
    const Querprofil& q = profile[i];
    const int n = static_cast<int>(i);
    const Pkt& randL = q.EntwurfBei(-kHalbeFahrbahn);
    const Pkt& randR = q.EntwurfBei(kHalbeFahrbahn);
    plan.achse.push_back(punkt(1 + n, q.station, 0, q.gradiente, kAchse));
    plan.randLinks.push_back(punkt(11 + n, q.station, randL.x, randL.y, kFahrbahnrand));
    plan.randRechts.push_back(punkt(21 + n, q.station, randR.x, randR.y, kFahrbahnrand));
    plan.boeschungLinks.push_back(punkt(31 + n, q.station, q.entwurf.front().x, q.entwurf.front().y, q.entwurf.front().bez));
    plan.boeschungRechts.push_back(punkt(41 + n, q.station, q.entwurf.back().x, q.entwurf.back().y, q.entwurf.back().bez));
  }
  // Traverse points of the survey control, set off the works.
  const struct {
    int nr;
    double station, abstand;
  } fest[] = {{901, -32.4, -27.8}, {902, 18.6, 41.3}, {903, 61.2, -38.5}, {904, 112.7, 24.9}};
  for (const auto& f : fest) plan.festpunkte.push_back(punkt(f.nr, f.station, f.abstand, Gelaende(f.station, f.abstand), kFestpunkt));
  return plan;
}

}  // namespace kolm::demo
