// Reads the written project back through the program's readers: the files
// must hold what was meant, and the road must be built by its rules.
#include <algorithm>
#include <cctype>
#include <cmath>
#include <filesystem>
#include <set>
#include <stdexcept>

#include "core/catalog/katalog.h"
#include "core/catalog/projekte.h"
#include "core/settings/einstellungen_datei.h"
#include "core/tables/tabellen_dateien.h"
#include "projekt.h"

namespace kolm::demo {

using core::Punkt;
using core::Tabelle;
using core::Zustand;

namespace {

constexpr double kToleranz = 0.0015;  // coordinates are handed out in millimetres

void Fordern(bool ok, const std::string& was) {
  if (!ok) throw std::runtime_error(was);
}

bool Nahe(double a, double b, double toleranz = kToleranz) { return std::fabs(a - b) <= toleranz; }

struct P2 {
  double x, y;
};
using Linie = std::vector<P2>;

// The used points with numbers from `von` to `bis`, in number order.
Linie Punkte(const Zustand& z, int von, int bis) {
  Linie l;
  for (int n = von; n <= bis; ++n)
    if (!z.PunktLeer(n)) l.push_back({z.Punkte[static_cast<std::size_t>(n)].A, z.Punkte[static_cast<std::size_t>(n)].B});
  return l;
}

double HoeheAuf(const Linie& l, double x) {
  Fordern(!l.empty() && x >= l.front().x - 1e-9 && x <= l.back().x + 1e-9, "Stelle außerhalb der Linie");
  for (std::size_t i = 1; i < l.size(); ++i)
    if (x <= l[i].x) return l[i - 1].y + (l[i].y - l[i - 1].y) * (x - l[i - 1].x) / (l[i].x - l[i - 1].x);
  return l.back().y;
}

void Steigend(const Linie& l, const std::string& was) {
  for (std::size_t i = 1; i < l.size(); ++i) Fordern(l[i].x > l[i - 1].x, was + ": Punkte nicht von links nach rechts");
}

bool PunktePassen(const Punkt& a, const Punkt& b) {
  return a.Nummer == b.Nummer && a.KurzBez == b.KurzBez && a.A == b.A && a.B == b.B && a.C == b.C &&
         a.TextDx == b.TextDx && a.TextDy == b.TextDy && a.Farbe == b.Farbe;
}

// Points, connections, labels and calculations read back as written.
void InhaltPruefen(const Zustand& z, const TabellenInhalt& soll, const std::string& tab) {
  std::vector<Punkt> punkte;
  for (int n = 0; n <= z.AnzahlPunkte; ++n)
    if (!z.PunktLeer(n)) punkte.push_back(z.Punkte[static_cast<std::size_t>(n)]);
  Fordern(punkte.size() == soll.punkte.size(), tab + "Anzahl der Punkte");
  for (std::size_t i = 0; i < punkte.size(); ++i)
    Fordern(PunktePassen(punkte[i], soll.punkte[i]), tab + "Punkt " + std::to_string(soll.punkte[i].Nummer));

  std::size_t v = 0;
  for (const core::Verbindung& ist : z.Verbindungen) {
    if (ist.Von < 0 || ist.Nach < 0) continue;
    Fordern(v < soll.verbindungen.size(), tab + "zu viele Verbindungen");
    const core::Verbindung& s = soll.verbindungen[v++];
    Fordern(ist.Von == s.Von && ist.Nach == s.Nach && ist.Stil == s.Stil && ist.Radius == 0, tab + "Verbindung");
    Fordern(!z.PunktLeer(ist.Von) && !z.PunktLeer(ist.Nach), tab + "Verbindung zu einem leeren Punkt");
  }
  Fordern(v == soll.verbindungen.size(), tab + "Anzahl der Verbindungen");

  std::size_t b = 0;
  for (const core::Beschriftung& ist : z.Beschriftungen) {
    if (ist.Text.empty()) continue;
    Fordern(b < soll.beschriftungen.size(), tab + "zu viele Beschriftungen");
    const core::Beschriftung& s = soll.beschriftungen[b++];
    Fordern(ist.Text == s.Text && ist.A == s.A && ist.B == s.B && ist.Farbe == s.Farbe && ist.Schrift == s.Schrift &&
                ist.Groesse == s.Groesse && ist.Fett == s.Fett && ist.Massstab == s.Massstab &&
                ist.BezugsPunkt == s.BezugsPunkt,
            tab + "Beschriftung '" + s.Text + "'");
  }
  Fordern(b == soll.beschriftungen.size(), tab + "Anzahl der Beschriftungen");

  std::size_t r = 0;
  for (const core::Berechnung& ist : z.Berechnungen) {
    if (ist.LVNr.IstLeer()) continue;
    Fordern(r < soll.berechnungen.size(), tab + "zu viele Berechnungen");
    const core::Berechnung& s = soll.berechnungen[r++];
    Fordern(ist.LVNr == s.LVNr && ist.Flaeche == s.Flaeche && ist.Anzahl == s.Anzahl && ist.Element == s.Element &&
                ist.Farbe == s.Farbe && ist.KorrekturIndex == s.KorrekturIndex,
            tab + "Berechnung " + s.LVNr.Text());
    for (int i = 0; i < ist.Anzahl; ++i)
      Fordern(!z.PunktLeer(ist.Element[static_cast<std::size_t>(i)]), tab + "Berechnung über einen leeren Punkt");
    // The stored result is what the calculation gives for these points.
    Fordern(ist.Ergebnis > 0 && Nahe(ist.Ergebnis, KettenErgebnis(z, ist), 1e-9), tab + "Ergebnis " + s.LVNr.Text());
  }
  Fordern(r == soll.berechnungen.size(), tab + "Anzahl der Berechnungen");
}

// The rules of the cross-section, from the points alone.
void ProfilPruefen(const Zustand& z, const std::string& tab, bool mitMengen) {
  const Linie gelaende = Punkte(z, 1, 99);
  const Linie entwurf = Punkte(z, 101, 199);
  const Linie deck = Punkte(z, 200, 209);
  const Linie fss = Punkte(z, 210, 219);
  const Linie planum = Punkte(z, 220, 229);
  const Linie sohle = Punkte(z, 230, 289);
  Fordern(gelaende.size() >= 12 && gelaende.size() <= 20, tab + "Anzahl der Geländepunkte");
  Fordern(gelaende.front().x == -20 && gelaende.back().x == 20, tab + "Aufnahmebreite");
  for (const Linie* l : {&gelaende, &entwurf, &deck, &fss, &planum, &sohle}) Steigend(*l, tab);
  for (const P2& p : gelaende) Fordern(p.y > 235 && p.y < 245, tab + "Geländehöhe");
  Fordern(deck.size() == 3 && fss.size() == 5 && planum.size() == 5, tab + "Schichtpunkte");

  // Carriageway: roof profile of 2.5 % either side of the crown.
  const double h = HoeheAuf(entwurf, 0);
  for (const P2& p : entwurf)
    if (std::fabs(p.x) <= kHalbeFahrbahn) Fordern(Nahe(p.y, h - kQuerneigung * std::fabs(p.x)), tab + "Querneigung");
  // Verges of 1.50 m at 12 %, then slopes of 1 : 1.5 and flat ditch bottoms.
  for (std::size_t i = 1; i < entwurf.size(); ++i) {
    const P2& a = entwurf[i - 1];
    const P2& b = entwurf[i];
    const double mitte = std::fabs((a.x + b.x) / 2);
    const double neigung = std::fabs((b.y - a.y) / (b.x - a.x));
    if (mitte < kHalbeFahrbahn) continue;
    if (mitte < kHalbeFahrbahn + kBankett)
      Fordern(Nahe(b.x - a.x, kBankett) && Nahe(neigung, kBankettNeigung, 0.002), tab + "Bankett");
    else
      Fordern(Nahe(neigung, 1 / kBoeschung, 0.004) || (neigung == 0 && Nahe(b.x - a.x, kGrabenSohle)),
              tab + "Böschung oder Graben");
  }
  // The slopes meet the terrain.
  for (const P2& ende : {entwurf.front(), entwurf.back()})
    Fordern(Nahe(ende.y, HoeheAuf(gelaende, ende.x)), tab + "Böschung endet nicht im Gelände");

  // Layers parallel to the surface: 4 cm surface course, 10 cm base
  // course, 50 cm frost protection layer, the formation below it.
  auto unter = [&](double x, double tiefe) { return h - kQuerneigung * std::fabs(x) - tiefe; };
  for (const P2& p : deck) Fordern(Nahe(p.y, unter(p.x, kDeckschicht)), tab + "Deckschicht");
  for (const P2& p : fss) Fordern(Nahe(p.y, unter(p.x, kAsphalt)), tab + "Tragschicht");
  for (const P2& p : planum) Fordern(Nahe(p.y, unter(p.x, kOberbau), 0.002), tab + "Planum");
  Fordern(Nahe(planum.front().y, HoeheAuf(entwurf, planum.front().x), 0.002) &&
              Nahe(planum.back().y, HoeheAuf(entwurf, planum.back().x), 0.002),
          tab + "Planum endet nicht an der Böschung");
  Fordern(fss.front().x == -kFssOben && fss.back().x == kFssOben && planum[1].x == -kFssUnten && planum[3].x == kFssUnten,
          tab + "Breite der Frostschutzschicht");

  // Topsoil: 20 cm below the terrain, from slope end to slope end.
  for (const P2& p : sohle) Fordern(Nahe(p.y, HoeheAuf(gelaende, p.x) - kOberboden, 0.002), tab + "Oberbodenabtrag");
  for (const P2& ende : {sohle.front(), sohle.back()}) {
    const bool unterFuss = Nahe(ende.x, entwurf.front().x, 1e-9) || Nahe(ende.x, entwurf.back().x, 1e-9);
    Fordern(unterFuss || Nahe(ende.y, HoeheAuf(entwurf, ende.x), 0.002), tab + "Oberbodenabtrag endet frei");
  }

  if (!mitMengen) return;
  // Cut and fill figures together cover exactly the space between the
  // stripped ground and the formation line (formation under the road, the
  // design line beyond it).
  auto erdplanum = [&](double x) {
    return (x >= planum.front().x && x <= planum.back().x) ? HoeheAuf(planum, x) : HoeheAuf(entwurf, x);
  };
  double sollFlaeche = 0;
  const int schritte = 20000;
  const double breite = (sohle.back().x - sohle.front().x) / schritte;
  for (int i = 0; i < schritte; ++i) {
    const double x = sohle.front().x + (i + 0.5) * breite;
    sollFlaeche += std::fabs(erdplanum(x) - HoeheAuf(sohle, x)) * breite;
  }
  const std::string abtrag = quantities::LVNrAusrichten(LVPositionen()[kMengeAbtrag].lvnr);
  const std::string auftrag = quantities::LVNrAusrichten(LVPositionen()[kMengeAuftrag].lvnr);
  double erdFlaeche = 0;
  for (const core::Berechnung& b : z.Berechnungen)
    if (b.LVNr.Text() == abtrag || b.LVNr.Text() == auftrag) erdFlaeche += b.Ergebnis;
  Fordern(Nahe(erdFlaeche, sollFlaeche, 0.01 + 0.001 * sollFlaeche), tab + "Abtrag und Auftrag decken den Erdkörper nicht");
}

void PlanPruefen(const Zustand& z, const DemoModell& m, const std::string& tab) {
  auto punkt = [&](int nr) -> const Punkt& {
    Fordern(!z.PunktLeer(nr), tab + "Punkt " + std::to_string(nr) + " fehlt");
    return z.Punkte[static_cast<std::size_t>(nr)];
  };
  auto abstand = [](const Punkt& a, const Punkt& b) { return std::hypot(b.A - a.A, b.B - a.B); };
  for (int i = 0; i < kAnzahlProfile; ++i) {
    const Querprofil& q = m.profile[static_cast<std::size_t>(i)];
    const Punkt& achse = punkt(1 + i);
    Fordern(achse.A > 4.5e6 && achse.A < 4.53e6 && achse.B > 5.42e6 && achse.B < 5.44e6, tab + "Gauß-Krüger-Bereich");
    Fordern(achse.C == q.gradiente, tab + "Höhe der Achse");
    if (i > 0) Fordern(Nahe(abstand(punkt(i), achse), kProfilAbstand, 0.002), tab + "Profilabstand");
    const Punkt* daneben[] = {&punkt(11 + i), &punkt(21 + i), &punkt(31 + i), &punkt(41 + i)};
    const Pkt* imProfil[] = {&q.EntwurfBei(-kHalbeFahrbahn), &q.EntwurfBei(kHalbeFahrbahn), &q.entwurf.front(),
                             &q.entwurf.back()};
    for (int k = 0; k < 4; ++k) {
      // Same offset and height as in the section, on the same side: right of
      // the axis in the direction of stationing.
      const Punkt& p = *daneben[k];
      Fordern(Nahe(abstand(achse, p), std::fabs(imProfil[k]->x), 0.002) && p.C == imProfil[k]->y, tab + "Lage zum Profil");
      const double t = AchsRichtung();
      const double rechtsVon = (p.A - achse.A) * std::cos(t) - (p.B - achse.B) * std::sin(t);
      Fordern((rechtsVon > 0) == (imProfil[k]->x > 0), tab + "Seite zur Achse");
    }
  }
  for (int nr : {901, 902, 903, 904}) Fordern(punkt(nr).KurzBez == kFestpunkt, tab + "Festpunkt");
}

}  // namespace

void DemoPruefen(const std::string& ordner, const DemoModell& m) {
  Zustand z;
  z.ProjektVerzeichnis = ordner;
  if (z.ProjektVerzeichnis.back() != std::filesystem::path::preferred_separator)
    z.ProjektVerzeichnis += std::filesystem::path::preferred_separator;
  z.ProjektIni = core::ProjektIniPfad(z.ProjektVerzeichnis);
  core::EinstellungsKontext ek(z);
  core::ProjektEinstellungenLesen(ek);
  Fordern(core::ProjektNameIn(ordner) == kProjektName, "Projektname in Kolmproj.ini");
  Fordern(z.AktiveTabelle == 0, "Aktive Tabelle");
  for (std::size_t i = 0; i < BezeichnungsTexte().size(); ++i)
    Fordern(z.Kurzbezeichnungen[i].Text == BezeichnungsTexte()[i], "Kurzbezeichnung " + BezeichnungsTexte()[i]);

  core::KatalogKontext kk(z);
  Fordern(core::KatalogLesen(kk), "Katalog nicht lesbar");
  std::set<std::string> staemme;
  for (std::size_t i = 0; i < static_cast<std::size_t>(core::AnzahlTabellen); ++i) {
    const Tabelle& ist = z.Tabellen[i];
    if (i >= m.tabellen.size()) {
      Fordern(!core::ZeileBenannt(ist), "überzählige Tabelle im Katalog");
      continue;
    }
    const Tabelle& soll = m.tabellen[i].zeile;
    const std::string tab = "Tabelle '" + soll.TablName + "': ";
    Fordern(ist.TablName == soll.TablName && ist.Stationierung == soll.Stationierung && ist.Dateiname == soll.Dateiname &&
                ist.PktDateiName == soll.PktDateiName && ist.M31 == soll.M31 && ist.Dritte == soll.Dritte &&
                ist.Polar == soll.Polar && ist.Falschdrehend == soll.Falschdrehend,
            tab + "Katalogzeile");
    Fordern(ist.Massstab == soll.Massstab && ist.Vergleichsebene == soll.Vergleichsebene && ist.XMitte == soll.XMitte &&
                ist.YMitte == soll.YMitte && ist.Rasterabstand == soll.Rasterabstand && ist.Gitterstil == soll.Gitterstil &&
                ist.Achsenbeschriftung == soll.Achsenbeschriftung,
            tab + "Ansicht im Katalog");
    for (const std::string& stamm : {ist.Dateiname, ist.PktDateiName})
      Fordern(!stamm.empty() && stamm.size() <= 8 &&
                  std::all_of(stamm.begin(), stamm.end(),
                              [](char c) { return std::isalnum(static_cast<unsigned char>(c)) || c == '-' || c == '_'; }),
              tab + "Dateiname " + stamm);
    Fordern(staemme.insert(ist.Dateiname).second, tab + "Dateiname doppelt");
  }

  // Exactly one Doppelprofil: the planning shares the points of 0+040.
  const Tabelle& planung = z.Tabellen[static_cast<std::size_t>(m.doppelprofil)];
  for (int i = 0; i < static_cast<int>(m.tabellen.size()); ++i) {
    const bool gemeinsam = z.Tabellen[static_cast<std::size_t>(i)].PktDateiName == planung.PktDateiName;
    Fordern(gemeinsam == (i == m.doppelprofil || i == m.doppelprofil - 1), "Doppelprofil teilt die Punktdatei nicht");
  }
  Fordern(planung.Stationierung == z.Tabellen[static_cast<std::size_t>(m.doppelprofil - 1)].Stationierung,
          "Doppelprofil auf anderer Station");

  const auto lv = quantities::LVListeLesen(z.ProjektVerzeichnis);
  Fordern(lv && lv->size() == LVPositionen().size(), "LV.MDB nicht lesbar oder unvollständig");
  for (const quantities::LVPosition& p : LVPositionen()) {
    const quantities::LVListenEintrag soll{quantities::LVNrAusrichten(p.lvnr), p.kurzText, p.kurzBez};
    Fordern(std::find(lv->begin(), lv->end(), soll) != lv->end(), "LV-Position " + p.lvnr);
  }

  for (int i = 0; i < static_cast<int>(m.tabellen.size()); ++i) {
    const Tabelle& zeile = z.Tabellen[static_cast<std::size_t>(i)];
    const std::string tab = "Tabelle '" + zeile.TablName + "': ";
    z.AktiveTabelle = static_cast<core::Integer>(i);
    z.M31 = zeile.M31;
    z.Dritte = zeile.Dritte;
    z.Polar = zeile.Polar;
    z.Falschdrehend = zeile.Falschdrehend;
    core::TabellenKontext tk(z);
    core::TabellenDateienLesen(tk);
    InhaltPruefen(z, m.tabellen[static_cast<std::size_t>(i)], tab);
    for (const core::Berechnung& b : z.Berechnungen) {
      if (b.LVNr.IstLeer()) continue;
      Fordern(!quantities::LVKurzText(z.ProjektVerzeichnis, b.LVNr.Text()).empty(), tab + "Berechnung ohne LV-Position");
    }
    if (i == m.lageplan) {
      PlanPruefen(z, m, tab);
    } else if (i == m.doppelprofil) {
      // Only the planning: no terrain and no topsoil lines.
      for (const core::Verbindung& v : z.Verbindungen)
        if (v.Von >= 0) Fordern(v.Von >= 100 && v.Nach >= 100 && v.Von < 230 && v.Nach < 230, tab + "Geländelinie");
      ProfilPruefen(z, tab, false);
    } else {
      ProfilPruefen(z, tab, true);
    }
  }
}

}  // namespace kolm::demo
