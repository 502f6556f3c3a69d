#include "core/state/zustand.h"
#include "points/numbers/konstanten.h"

#include <algorithm>

namespace kolm::core {

namespace {

template <typename T>
bool InBereich(long long n, const std::vector<T>& v) {
  return n >= 0 && n < static_cast<long long>(v.size());
}

void Senken(Integer& cursor, int n) {
  if (n < cursor) cursor = static_cast<Integer>(n);
}

// Used entries of a record's Element list, whatever Anzahl holds.
int BenutzteElemente(const Berechnung& b) { return std::clamp<int>(b.Anzahl, 0, MaxElemente); }
}  // namespace

void RichtungsVersatz(int ausrichtung, double d, Single& dx, Single& dy) {
  static constexpr int kRichtung[9][2] = {{0, 0}, {0, 1}, {1, 1}, {1, 0}, {1, -1},
                                          {0, -1}, {-1, -1}, {-1, 0}, {-1, 1}};
  if (ausrichtung < 0 || ausrichtung > 8) return;
  dx = static_cast<Single>(kRichtung[ausrichtung][0] * d);
  dy = static_cast<Single>(kRichtung[ausrichtung][1] * d);
}

int AnzahlPunkteBegrenzen(long long anzahl) {
  return static_cast<int>(std::clamp<long long>(anzahl, MinAnzahlPunkte, MaxAnzahlPunkte));
}

Zustand::Zustand()
    : Punkte(MinAnzahlPunkte + 1),
      Verbindungen(AnzahlVerbindungen),
      Boegen(AnzahlBoegen),
      Beschriftungen(AnzahlBeschriftungen),
      Berechnungen(AnzahlBerechnungen),
      Hintergrundbilder(AnzahlBilder),
      Tabellen(AnzahlTabellen),
      Kurzbezeichnungen(AnzahlKurzbezeichnungen),
      Korrekturen(AnzahlKorrekturen),
      BildSpeicher(AnzahlBilder),
      PunktFarben(AnzahlPunktFarben),
      LinienFarben(AnzahlLinienFarben),
      WinkelFaktor(numbers::WinkelFaktorFuer(0)) {
  StandardVersatzBerechnen();
  AllesLeeren();
  KurzbezeichnungenLeeren();
  VariablenLeeren();
}

// ---- Points -----------------------------------------------------------------

void Zustand::PunkteDimensionieren(long long anzahl) {
  const int neu = AnzahlPunkteBegrenzen(anzahl);
  const int alt = static_cast<int>(Punkte.size());
  AnzahlPunkte = neu;
  Punkte.resize(static_cast<size_t>(neu) + 1);
  for (int n = alt; n <= neu; ++n) PunktLoeschen(n);
}

bool Zustand::PunktLeer(long long nummer) const {
  if (nummer < 0 || nummer > AnzahlPunkte || !InBereich(nummer, Punkte)) return false;
  const Punkt& p = Punkte[static_cast<size_t>(nummer)];
  return p.A == 0 && p.B == 0 && p.C == 0;
}

void Zustand::PunktLoeschen(int n) {
  if (!InBereich(n, Punkte)) return;
  Punkt& p = Punkte[static_cast<size_t>(n)];
  p = Punkt{};
  p.Nummer = static_cast<Integer>(n);
  p.KurzBez = StandardKurzBezWert();
  p.TextDx = StandardTextDx;
  p.TextDy = StandardTextDy;
  p.Farbe = StandardPunktFarbWert();
  Senken(NaechsterFreierPunkt, n);
}

void Zustand::PunkteLeeren() {
  for (int n = 0; n < static_cast<int>(Punkte.size()); ++n) PunktLoeschen(n);
}

// ---- Connections --------------------------------------------------------------

void Zustand::VerbindungLoeschen(int n) {
  if (!InBereich(n, Verbindungen)) return;
  Verbindung& v = Verbindungen[static_cast<size_t>(n)];
  v = Verbindung{};
  v.Stil = StandardLinienFarbWert();
  Senken(NaechsteFreieVerbindung, n);
}

void Zustand::VerbindungenLeeren() {
  for (int n = 0; n < AnzahlVerbindungen; ++n) VerbindungLoeschen(n);
}

int Zustand::VerbindungsSlot() const {
  const int c = NaechsteFreieVerbindung;
  return (c < 0 || c >= AnzahlVerbindungen - 1) ? -1 : c;
}

void Zustand::VerbindungsCursorWeiter() {
  int c = std::max<int>(NaechsteFreieVerbindung, 0);
  while (c < AnzahlVerbindungen && Verbindungen[static_cast<size_t>(c)].Von >= 0) ++c;
  NaechsteFreieVerbindung = static_cast<Integer>(c);
}

int Zustand::VerbindungBelegen(const Verbindung& v) {
  const int slot = VerbindungsSlot();
  if (slot < 0 || v.Von < 0 || v.Nach < 0) return -1;
  Verbindungen[static_cast<size_t>(slot)] = v;
  VerbindungsCursorWeiter();
  return slot;
}

// ---- Arcs ---------------------------------------------------------------------

void Zustand::BogenLoeschen(int n) {
  if (n < 1 || n >= AnzahlBoegen) return;
  Boegen[static_cast<size_t>(n)] = Bogen{};
  Boegen[static_cast<size_t>(n)].Nummer = static_cast<Integer>(n);
  Senken(NaechsterFreierBogen, n);
}

void Zustand::BoegenLeeren() {
  for (int n = 1; n < AnzahlBoegen; ++n) BogenLoeschen(n);
}

int Zustand::BogenSlot() {
  if (NaechsterFreierBogen == 0) NaechsterFreierBogen = 1;
  const int c = NaechsterFreierBogen;
  return (c < 1 || c >= AnzahlBoegen - 1) ? -1 : c;
}

void Zustand::BogenCursorWeiter() {
  int c = std::max<int>(NaechsterFreierBogen, 1);
  while (c < AnzahlBoegen - 1 && Boegen[static_cast<size_t>(c)].Radius != 0) ++c;
  NaechsterFreierBogen = static_cast<Integer>(c);
}

int Zustand::BogenBelegen(Bogen b) {
  const int slot = BogenSlot();
  if (slot < 0) return -1;
  b.Nummer = static_cast<Integer>(slot);
  Boegen[static_cast<size_t>(slot)] = b;
  BogenCursorWeiter();
  return slot;
}

void Zustand::BoegenAufraeumen() {
  std::array<bool, AnzahlBoegen> benutzt{};
  for (const Berechnung& b : Berechnungen) {
    if (b.LVNr.IstLeer()) continue;
    for (int i = 0; i < BenutzteElemente(b); ++i) {
      const int e = b.Element[static_cast<size_t>(i)];
      if (e < 0 && -e < AnzahlBoegen) benutzt[static_cast<size_t>(-e)] = true;
    }
  }
  NaechsterFreierBogen = AnzahlBoegen - 1;
  for (int n = 1; n < AnzahlBoegen; ++n) {
    if (Boegen[static_cast<size_t>(n)].Radius != 0 && !benutzt[static_cast<size_t>(n)]) BogenLoeschen(n);
    if (Boegen[static_cast<size_t>(n)].Radius == 0) Senken(NaechsterFreierBogen, n);
  }
}

// ---- Labels, calculations, images -------------------------------------------

void Zustand::BeschriftungLoeschen(int n) {
  if (InBereich(n, Beschriftungen)) Beschriftungen[static_cast<size_t>(n)] = Beschriftung{};
}

void Zustand::BeschriftungenLeeren() {
  for (Beschriftung& b : Beschriftungen) b = Beschriftung{};
}

void Zustand::BerechnungLoeschen(int n) {
  if (!InBereich(n, Berechnungen)) return;
  Berechnung& b = Berechnungen[static_cast<size_t>(n)];
  for (int i = 0; i < BenutzteElemente(b); ++i)
    if (b.Element[static_cast<size_t>(i)] < 0) BogenLoeschen(-b.Element[static_cast<size_t>(i)]);
  const Flag flaeche = b.Flaeche;
  b = Berechnung{};
  b.Flaeche = flaeche;
}

void Zustand::BerechnungenLeeren() {
  for (Berechnung& b : Berechnungen) b = Berechnung{};
}

void Zustand::HintergrundbildLoeschen(int n) {
  if (!InBereich(n, Hintergrundbilder)) return;
  Hintergrundbilder[static_cast<size_t>(n)] = Hintergrundbild{};
  BildSpeicher[static_cast<size_t>(n)] = forms::Image{};
  Senken(NaechstesFreiesBild, n);
}

void Zustand::HintergrundbilderLeeren() {
  for (int n = 0; n < AnzahlBilder; ++n) HintergrundbildLoeschen(n);
}

int Zustand::BildSlot() const {
  return (NaechstesFreiesBild < 0 || NaechstesFreiesBild >= AnzahlBilder) ? -1 : NaechstesFreiesBild;
}

void Zustand::BildCursorWeiter() {
  int c = std::max<int>(NaechstesFreiesBild, 0);
  while (c < AnzahlBilder && Hintergrundbilder[static_cast<size_t>(c)].Breite != 0) ++c;
  NaechstesFreiesBild = static_cast<Integer>(c);
}

// ---- Catalogue, corrections, designations -------------------------------------

void Zustand::TabellenZeileLeeren(int n) {
  if (!InBereich(n, Tabellen)) return;
  Tabelle& t = Tabellen[static_cast<size_t>(n)];
  t.TablName.clear();
  t.Dateiname.clear();
  t.PktDateiName.clear();
  t.Stationierung = 0;
  t.M31 = M31;
  t.Polar = Polar;
  t.Dritte = Dritte;
  t.Falschdrehend = Falschdrehend;
}

void Zustand::TabellenLeeren() {
  for (int n = 0; n < AnzahlTabellen; ++n) TabellenZeileLeeren(n);
}

void Zustand::KorrekturenLeeren() {
  for (Korrektur& k : Korrekturen) k = Korrektur{};
}

void Zustand::KurzbezeichnungenLeeren() {
  for (Kurzbezeichnung& k : Kurzbezeichnungen) k = Kurzbezeichnung{};
}

void Zustand::VariablenLeeren() { Variablen.fill(0); }

void Zustand::AllesLeeren() {
  TabellenLeeren();
  PunkteLeeren();
  BoegenLeeren();
  KorrekturenLeeren();
  VerbindungenLeeren();
  BerechnungenLeeren();
  BeschriftungenLeeren();
  HintergrundbilderLeeren();
}

void Zustand::TabellenInhaltLeeren() {
  PunkteLeeren();
  BoegenLeeren();
  VerbindungenLeeren();
  BerechnungenLeeren();
  BeschriftungenLeeren();
  HintergrundbilderLeeren();
}

// ---- View values ----------------------------------------------------------------

void Zustand::StandardVersatzBerechnen() {
  RichtungsVersatz(StandardAusrichtung, StandardDistanz, StandardTextDx, StandardTextDy);
}

void Zustand::AnsichtAusZeile(const Tabelle& zeile) {
  Ansicht = static_cast<const TabellenAnsicht&>(zeile);
  if (Ansicht.Rasterabstand == 0) Ansicht.Rasterabstand = 10;
}

void Zustand::AnsichtInZeile(Tabelle& zeile) {
  if (Ansicht.Rasterabstand == 0) Ansicht.Rasterabstand = 10;
  zeile.Massstab = Ansicht.Massstab;
  zeile.Vergleichsebene = Ansicht.Vergleichsebene;
  zeile.XMitte = Ansicht.XMitte;
  zeile.YMitte = Ansicht.YMitte;
  zeile.XOffset = Ansicht.XOffset;
  zeile.VergleichsebeneSichtbar = Ansicht.VergleichsebeneSichtbar;
  zeile.YOffset = Ansicht.YOffset;
  zeile.YAchseSichtbar = Ansicht.YAchseSichtbar;
  zeile.Rasterabstand = Ansicht.Rasterabstand;
  zeile.Achsenbeschriftung = Ansicht.Achsenbeschriftung;
  zeile.GitterFarbIndex = Ansicht.GitterFarbIndex;
  zeile.GitterSchriftFarbIndex = Ansicht.GitterSchriftFarbIndex;
  zeile.Gitterstil = Ansicht.Gitterstil;
  zeile.Massstabtyp = Ansicht.Massstabtyp;
  zeile.LogoSichtbar = Ansicht.LogoSichtbar;
}

Tabelle* Zustand::AktiveZeile() {
  return InBereich(AktiveTabelle, Tabellen) ? &Tabellen[static_cast<size_t>(AktiveTabelle)] : nullptr;
}

int Zustand::VariablenIndex(char buchstabe) {
  if (buchstabe >= 'A' && buchstabe <= 'Z') return buchstabe - 'A';
  if (buchstabe >= 'a' && buchstabe <= 'z') return buchstabe - 'a';
  return -1;
}

Integer Zustand::StandardKurzBezWert() const {
  return (StandardKurzBezeichnung < 0 || StandardKurzBezeichnung >= AnzahlKurzbezeichnungen) ? 0
                                                                                             : StandardKurzBezeichnung;
}

Long Zustand::StandardPunktFarbWert() const {
  return InBereich(StandardPunktFarbe, PunktFarben) ? PunktFarben[static_cast<size_t>(StandardPunktFarbe)].Farbe : 0;
}

Long Zustand::StandardLinienFarbWert() const {
  return InBereich(StandardLinienFarbe, LinienFarben) ? LinienFarben[static_cast<size_t>(StandardLinienFarbe)].Farbe
                                                      : 0;
}

}  // namespace kolm::core
