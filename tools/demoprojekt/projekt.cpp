#include "projekt.h"

#include <cmath>
#include <cstdio>
#include <filesystem>
#include <stdexcept>

#include "core/catalog/katalog.h"
#include "core/catalog/tabellen_eingabe.h"
#include "core/settings/einstellungen_datei.h"
#include "core/tables/tabellen_dateien.h"
#include "quantities/lv/lv_schema.h"

namespace kolm::demo {

using core::Berechnung;
using core::Beschriftung;
using core::Punkt;
using core::StilPacken;
using core::Tabelle;
using core::Verbindung;
using core::Zustand;

namespace {

// RGB values, red in the low byte, as the colour lists hold them.
constexpr core::Long kSchwarz = 0;
constexpr core::Long kRot = 255;
constexpr core::Long kGruen = 32768;
constexpr core::Long kBlau = 16711680;
constexpr core::Long kGrau = 8421504;
constexpr core::Long kDunkelblau = 8388608;
constexpr core::Long kOrange = 33023;
constexpr core::Long kBraun = 16512;
constexpr core::Long Rgb(int r, int g, int b) { return r + 256 * g + 65536 * b; }

// Line width index 1 draws two pixels; dashed lines need width index 0.
const core::Long kStilGelaende = StilPacken(kBraun, 0, 0);
const core::Long kStilEntwurf = StilPacken(kRot, 1, 0);
const core::Long kStilAsphalt = StilPacken(kBlau, 0, 0);
const core::Long kStilFrostschutz = StilPacken(kGruen, 0, 0);
const core::Long kStilOberboden = StilPacken(kBraun, 0, 1);
const core::Long kStilAchse = StilPacken(kRot, 0, 3);
const core::Long kStilRand = StilPacken(kSchwarz, 1, 0);
const core::Long kStilBoeschung = StilPacken(kBraun, 0, 0);
const core::Long kStilProfilspur = StilPacken(kGrau, 0, 2);

void Fordern(bool ok, const std::string& was) {
  if (!ok) throw std::runtime_error(was);
}

std::string MitTrenner(std::string ordner) {
  if (ordner.empty() || ordner.back() != std::filesystem::path::preferred_separator)
    ordner += std::filesystem::path::preferred_separator;
  return ordner;
}

core::Long PunktFarbe(int bez) {
  switch (bez) {
    case kGelaende:
    case kOberbodenSohle: return kBraun;
    case kAsphaltgrenze: return kBlau;
    case kFrostschutz:
    case kPlanum: return kGruen;
    case kSchnittpunkt: return kGrau;
    case kFestpunkt: return kSchwarz;
    default: return kRot;
  }
}

void PunktSetzen(Zustand& z, int nr, double a, double b, double c, int bez) {
  Fordern(nr > 0 && nr < z.AnzahlPunkte, "Punktnummer außerhalb der Tabelle");
  Punkt& p = z.Punkte[static_cast<std::size_t>(nr)];
  Fordern(z.PunktLeer(nr), "Punkt " + std::to_string(nr) + " doppelt vergeben");
  p.A = a;
  p.B = b;
  p.C = c;
  p.KurzBez = static_cast<core::Integer>(bez);
  p.Farbe = PunktFarbe(bez);
}

// Straight connections along a chain of point numbers.
void Linie(Zustand& z, const std::vector<int>& nummern, core::Long stil) {
  for (std::size_t i = 1; i < nummern.size(); ++i) {
    Verbindung v;
    v.Von = static_cast<core::Integer>(nummern[i - 1]);
    v.Nach = static_cast<core::Integer>(nummern[i]);
    v.Stil = stil;
    Fordern(z.VerbindungBelegen(v) >= 0, "keine Verbindung mehr frei");
  }
}

std::vector<int> Nummern(const std::vector<Pkt>& punkte) {
  std::vector<int> n;
  for (const Pkt& p : punkte) n.push_back(p.nr);
  return n;
}

// The labels a new table begins with: name, scale and, for a section, its
// stationing; in the upper left corner of the window, one under the other.
void StartBeschriftungen(Zustand& z, bool mitStationierung) {
  const char* texte[] = {"\\T", "Maßstab 1 : \\M", "Stationierung km \\S"};
  const int anzahl = mitStationierung ? 3 : 2;
  for (int i = 0; i < anzahl; ++i) {
    Beschriftung& b = z.Beschriftungen[static_cast<std::size_t>(i)];
    b.Text = texte[i];
    b.A = 1.0;
    b.B = -0.5 * (i + 1);
    b.Winkel = 0;
    b.Farbe = kSchwarz;
    b.Schrift = z.Einstellungen.GrafikFont;
    b.Groesse = static_cast<core::Single>(z.Einstellungen.GrafikFontSize);
    b.Fett = core::Wahr;
    b.Kursiv = core::Falsch;
    b.Unterstrichen = core::Falsch;
    b.Massstab = 0;
    b.BezugsPunkt = 1;
  }
}

void BerechnungHinzufuegen(Zustand& z, Menge menge, const std::vector<int>& kette, bool flaeche) {
  int slot = 0;
  while (slot < core::AnzahlBerechnungen && !z.Berechnungen[static_cast<std::size_t>(slot)].LVNr.IstLeer()) ++slot;
  Fordern(slot < core::AnzahlBerechnungen, "keine Berechnung mehr frei");
  Fordern(kette.size() >= 2 && kette.size() <= static_cast<std::size_t>(core::MaxElemente), "Berechnung ohne Punkte");
  const quantities::LVPosition& pos = LVPositionen()[static_cast<std::size_t>(menge)];
  Berechnung& b = z.Berechnungen[static_cast<std::size_t>(slot)];
  b.LVNr = core::LVNummer::Links(quantities::LVNrAusrichten(pos.lvnr));
  b.Flaeche = core::AlsFlag(flaeche);
  b.Farbe = static_cast<core::Long>(pos.linienfarbe);
  b.Anzahl = static_cast<core::Integer>(kette.size());
  for (std::size_t i = 0; i < kette.size(); ++i) b.Element[i] = static_cast<core::Integer>(kette[i]);
  b.Ergebnis = KettenErgebnis(z, b);
}

struct Anlage {
  std::string name;
  double km = 0;
  std::string pktStamm;  // empty: the stem of the name
  bool m31 = false, dritte = false;
  bool punkteGemeinsam = false;
};

// Takes a row as NeueTabelle does: the same checks, the stem from the name,
// the first blank row. The row becomes the active table, with empty tables.
int TabelleAnlegen(Zustand& z, const Anlage& a) {
  core::TabellenEingabe e;
  e.TablName = a.name;
  char km[32];
  std::snprintf(km, sizeof km, "%.3f", a.km);
  e.Stationierung = km;
  e.Dateiname = core::DateinameAusName(a.name);
  e.PktDateiName = a.pktStamm.empty() ? e.Dateiname : a.pktStamm;
  e.KoordinatenSystem = core::KoordinatenSystemEintrag(a.m31, false);
  e.Dritte = a.dritte;
  e.Polar = false;
  const core::TabellenPruefung p = core::TabellenEingabePruefen(z, e, core::TabellenDialog::Neu, -1, ".");
  for (const core::TabellenBefund& b : p.befunde)
    Fordern(a.punkteGemeinsam && b.art == core::TabellenBefund::Art::PunkteGemeinsam &&
                z.Tabellen[static_cast<std::size_t>(b.zeile)].Stationierung == p.stationierung,
            "Tabelle " + a.name + ": " + b.meldung.text);
  Fordern(p.zeile >= 0, "kein Platz für Tabelle " + a.name);
  Fordern(a.punkteGemeinsam == !p.befunde.empty(), "Tabelle " + a.name + " teilt ihre Punkte nicht");
  Tabelle& zeile = z.Tabellen[static_cast<std::size_t>(p.zeile)];
  core::ZeileFuellen(zeile, e, p.stationierung);
  z.AktiveTabelle = static_cast<core::Integer>(p.zeile);
  z.M31 = zeile.M31;
  z.Dritte = zeile.Dritte;
  z.Polar = zeile.Polar;
  z.Falschdrehend = zeile.Falschdrehend;
  z.TabellenInhaltLeeren();
  return p.zeile;
}

void ProfilAnsicht(Tabelle& t) {
  t.Massstab = 100;
  t.Ueberhoehung = 1;
  t.Vergleichsebene = 236;
  t.VergleichsebeneSichtbar = 1;
  t.XOffset = 0;
  t.YOffset = 0;
  t.YAchseSichtbar = 1;
  t.Rasterabstand = 1;
  t.XMitte = 0;
  t.YMitte = 0;
}

// Saves the active table as the program does and keeps what it holds.
TabellenInhalt Speichern(Zustand& z, core::TabellenKontext& k) {
  Tabelle& zeile = *z.AktiveZeile();
  z.AnsichtAusZeile(zeile);
  z.TabelleGeaendert = core::Wahr;
  core::TabelleSpeichern(k);
  const std::string stamm = zeile.Dateiname;
  for (const char* endung : {".pkt", ".ver", ".bog", ".ber", ".bes", ".pic"}) {
    const std::string datei = core::TabellenDatei(z, endung == std::string(".pkt") ? zeile.PktDateiName : stamm, endung);
    Fordern(std::filesystem::exists(datei), datei + " wurde nicht geschrieben");
  }
  TabellenInhalt t;
  t.zeile = zeile;
  for (int n = 0; n <= z.AnzahlPunkte; ++n)
    if (!z.PunktLeer(n)) t.punkte.push_back(z.Punkte[static_cast<std::size_t>(n)]);
  for (const Verbindung& v : z.Verbindungen)
    if (v.Von >= 0 && v.Nach >= 0) t.verbindungen.push_back(v);
  for (const Beschriftung& b : z.Beschriftungen)
    if (!b.Text.empty()) t.beschriftungen.push_back(b);
  for (const Berechnung& b : z.Berechnungen)
    if (!b.LVNr.IstLeer()) t.berechnungen.push_back(b);
  return t;
}

void ProfilPunkte(Zustand& z, const Querprofil& q) {
  for (const Pkt& p : q.AllePunkte()) PunktSetzen(z, p.nr, p.x, p.y, 0, p.bez);
}

// Design, pavement layers and formation: the lines of the planning.
void EntwurfsLinien(Zustand& z, const Querprofil& q) {
  Linie(z, Nummern(q.entwurf), kStilEntwurf);
  Linie(z, Nummern(q.deckUK), kStilAsphalt);
  const std::vector<int> fss = Nummern(q.asphaltUK);
  Linie(z, fss, kStilFrostschutz);
  Linie(z, Nummern(q.planum), kStilFrostschutz);
  // Edges of the asphalt and of the frost protection layer.
  const int randL = q.EntwurfBei(-kHalbeFahrbahn).nr;
  const int randR = q.EntwurfBei(kHalbeFahrbahn).nr;
  Linie(z, {randL, q.deckUK.front().nr, fss[1]}, kStilAsphalt);
  Linie(z, {randR, q.deckUK.back().nr, fss[3]}, kStilAsphalt);
  Linie(z, {fss.front(), 221}, kStilFrostschutz);
  Linie(z, {fss.back(), 223}, kStilFrostschutz);
}

void ProfilInhalt(Zustand& z, const Querprofil& q) {
  ProfilPunkte(z, q);
  Linie(z, Nummern(q.gelaende), kStilGelaende);
  EntwurfsLinien(z, q);
  Linie(z, Nummern(q.oberbodenUK), kStilOberboden);
  for (const auto& [fuss, sohle] : q.abtragsKanten) Linie(z, {fuss, sohle}, kStilOberboden);
  StartBeschriftungen(z, true);

  BerechnungHinzufuegen(z, kMengeOberboden, q.oberbodenBreite, false);
  for (const auto& kette : q.abtrag) BerechnungHinzufuegen(z, kMengeAbtrag, kette, true);
  for (const auto& kette : q.auftrag) BerechnungHinzufuegen(z, kMengeAuftrag, kette, true);
  BerechnungHinzufuegen(z, kMengeFrostschutz, q.frostschutz, true);
  BerechnungHinzufuegen(z, kMengeTragschicht, q.tragschicht, false);
  BerechnungHinzufuegen(z, kMengeDeckschicht, q.deckschicht, false);
}

void PlanInhalt(Zustand& z, const Lageplan& plan, const std::vector<Querprofil>& profile) {
  for (const PlanPunkt& p : plan.AllePunkte()) PunktSetzen(z, p.nr, p.rechts, p.hoch, p.hoehe, p.bez);
  auto nummern = [](const std::vector<PlanPunkt>& punkte) {
    std::vector<int> n;
    for (const PlanPunkt& p : punkte) n.push_back(p.nr);
    return n;
  };
  Linie(z, nummern(plan.achse), kStilAchse);
  Linie(z, nummern(plan.randLinks), kStilRand);
  Linie(z, nummern(plan.randRechts), kStilRand);
  Linie(z, nummern(plan.boeschungLinks), kStilBoeschung);
  Linie(z, nummern(plan.boeschungRechts), kStilBoeschung);
  for (std::size_t i = 0; i < plan.achse.size(); ++i)
    Linie(z, {plan.boeschungLinks[i].nr, plan.boeschungRechts[i].nr}, kStilProfilspur);

  StartBeschriftungen(z, false);
  // The stations beside the axis, 3 m to its left; a label tied to point n
  // stores -(n + 1).
  const double t = AchsRichtung();
  for (std::size_t i = 0; i < plan.achse.size(); ++i) {
    Beschriftung& b = z.Beschriftungen[2 + i];
    b.Text = StationsText(profile[i].station);
    b.A = Mm(-3 * std::cos(t));
    b.B = Mm(3 * std::sin(t));
    b.Farbe = kRot;
    b.Schrift = z.Einstellungen.GrafikFont;
    b.Groesse = static_cast<core::Single>(z.Einstellungen.GrafikFontSize);
    b.BezugsPunkt = static_cast<core::Integer>(-(plan.achse[i].nr + 1));
  }
}

}  // namespace

const std::vector<quantities::LVPosition>& LVPositionen() {
  static const std::vector<quantities::LVPosition> positionen = [] {
    auto pos = [](const char* lvnr, const char* mlvnr, const char* text, const char* kurz, const char* einheit,
                  double lohn, double sonstiges, core::Long linie, int staerke, bool fuellen, core::Long fuellfarbe) {
      quantities::LVPosition p;
      p.lvnr = lvnr;
      p.mlvnr = mlvnr;
      p.kurzText = text;
      p.kurzBez = kurz;
      p.einheit = einheit;
      p.lohn = lohn;
      p.sonstiges = sonstiges;
      p.einheitspreis = std::round((lohn + sonstiges) * 100) / 100;
      p.linienfarbe = linie;
      p.linienstaerke = staerke;
      p.flaechenfuellung = fuellen;
      p.muster = 0;
      p.fuellfarbe = fuellfarbe;
      return p;
    };
    // In the order of Menge.
    return std::vector<quantities::LVPosition>{
        pos("01.01.0010", "01.01", "Oberboden abtragen, 20 cm, seitlich lagern", "OB", "m²", 1.10, 1.30, kBraun, 3,
            false, quantities::kFuellfarbeVorgabe),
        pos("01.02.0010", "01.02", "Boden lösen, laden, fördern", "AB", "m³", 3.20, 4.60, kOrange, 1, true,
            Rgb(255, 210, 150)),
        pos("01.02.0020", "01.02", "Damm schütten, lagenweise verdichten", "DA", "m³", 2.40, 4.10, kGruen, 1, true,
            Rgb(200, 235, 170)),
        pos("02.01.0010", "02.01", "Frostschutzschicht 0/32 herstellen, 50 cm", "FS", "m³", 6.50, 25.50, kDunkelblau, 1,
            true, Rgb(210, 220, 245)),
        pos("02.02.0010", "02.02", "Asphalttragschicht AC 22 TS, 10 cm", "AT", "m²", 3.80, 20.70, kBlau, 3, false,
            quantities::kFuellfarbeVorgabe),
        pos("02.02.0020", "02.02", "Asphaltdeckschicht AC 11 DS, 4 cm", "AD", "m²", 3.10, 12.80, Rgb(64, 64, 64), 3,
            false, quantities::kFuellfarbeVorgabe),
    };
  }();
  return positionen;
}

double KettenErgebnis(const Zustand& z, const Berechnung& b) {
  double laenge = 0, flaeche2 = 0;
  for (int i = 1; i <= b.Anzahl; ++i) {
    // For an area the chain closes back to its first point.
    if (i == b.Anzahl && !core::IstWahr(b.Flaeche)) break;
    const Punkt& p = z.Punkte.at(static_cast<std::size_t>(b.Element[static_cast<std::size_t>(i - 1)]));
    const Punkt& q = z.Punkte.at(static_cast<std::size_t>(b.Element[static_cast<std::size_t>(i % b.Anzahl)]));
    laenge += std::sqrt((q.A - p.A) * (q.A - p.A) + (q.B - p.B) * (q.B - p.B));
    flaeche2 += (q.A + p.A) * (q.B - p.B) / 2;
  }
  return core::IstWahr(b.Flaeche) ? std::fabs(flaeche2) : laenge;
}

DemoModell DemoErzeugen(const std::string& ordner) {
  DemoModell m;
  Zustand z;
  z.ProjektVerzeichnis = MitTrenner(ordner);
  // Every setting at the value a new project starts with.
  core::EinstellungsKontext ek(z);
  z.ProjektIni.clear();
  core::ProjektEinstellungenLesen(ek);
  z.ProjektIni = core::ProjektIniPfad(z.ProjektVerzeichnis);
  z.ProjektName = kProjektName;
  z.Einstellungen.ProjektTitel = kProjektName;
  const std::vector<std::string>& texte = BezeichnungsTexte();
  for (std::size_t i = 0; i < texte.size(); ++i) z.Kurzbezeichnungen[i].Text = texte[i];
  core::Kurzbezeichnung& fest = z.Kurzbezeichnungen[kFestpunkt];
  fest.Darstellung = 6;   // cross in a circle
  fest.Beschriftung = 1;  // point number

  const std::string lv = quantities::LVDatei(z.ProjektVerzeichnis);
  Fordern(quantities::LVMusterErzeugen(lv), lv + " konnte nicht angelegt werden");
  for (const quantities::LVPosition& p : LVPositionen())
    Fordern(quantities::LVPositionHinzufuegen(z.ProjektVerzeichnis, p), "LV-Position " + p.lvnr + " nicht gespeichert");

  core::TabellenKontext tk(z);
  tk.dezimalzeichen = ".";
  for (int i = 0; i < kAnzahlProfile; ++i) m.profile.push_back(QuerprofilBerechnen(i * kProfilAbstand));

  for (const Querprofil& q : m.profile) {
    const std::string name = "Profil " + StationsText(q.station);
    Anlage profil;
    profil.name = name;
    profil.km = q.station / 1000;
    Tabelle& zeile = z.Tabellen[static_cast<std::size_t>(TabelleAnlegen(z, profil))];
    ProfilAnsicht(zeile);
    ProfilInhalt(z, q);
    m.tabellen.push_back(Speichern(z, tk));

    if (q.station == 2 * kProfilAbstand) {
      // The planning on the same points: a Doppelprofil.
      const std::string pkt = zeile.PktDateiName;
      Anlage a;
      a.name = name + " Planung";
      a.km = q.station / 1000;
      a.pktStamm = pkt;
      a.punkteGemeinsam = true;
      Tabelle& planung = z.Tabellen[static_cast<std::size_t>(TabelleAnlegen(z, a))];
      ProfilAnsicht(planung);
      core::LesePunkte(tk, pkt);
      EntwurfsLinien(z, q);
      StartBeschriftungen(z, true);
      m.doppelprofil = static_cast<int>(m.tabellen.size());
      m.tabellen.push_back(Speichern(z, tk));
    }
  }

  m.plan = LageplanBerechnen(m.profile);
  Anlage lageplan;
  lageplan.name = "Lageplan";
  lageplan.m31 = true;
  lageplan.dritte = true;
  Tabelle& plan = z.Tabellen[static_cast<std::size_t>(TabelleAnlegen(z, lageplan))];
  double minR = 1e308, maxR = -1e308, minH = 1e308, maxH = -1e308;
  for (const PlanPunkt& p : m.plan.AllePunkte()) {
    minR = std::min(minR, p.rechts);
    maxR = std::max(maxR, p.rechts);
    minH = std::min(minH, p.hoch);
    maxH = std::max(maxH, p.hoch);
  }
  plan.Massstab = 1000;
  plan.Ueberhoehung = 1;
  plan.YMitte = std::round((minR + maxR) / 2);
  plan.XMitte = std::round((minH + maxH) / 2);
  plan.Rasterabstand = 50;
  plan.Gitterstil = 1;  // crosses
  plan.Achsenbeschriftung = 1;
  plan.Vergleichsebene = 0;
  PlanInhalt(z, m.plan, m.profile);
  m.lageplan = static_cast<int>(m.tabellen.size());
  m.tabellen.push_back(Speichern(z, tk));

  // The program opens the first section; its view is the project's.
  z.AktiveTabelle = 0;
  z.AnsichtAusZeile(z.Tabellen[0]);
  core::KatalogKontext kk(z);
  Fordern(core::KatalogSchreiben(kk), "Katalog konnte nicht geschrieben werden");
  Fordern(core::ProjektEinstellungenSchreiben(ek), z.ProjektIni + " konnte nicht geschrieben werden");
  return m;
}

}  // namespace kolm::demo
