#include "core/tables/tabellen_dateien.h"

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <filesystem>
#include <optional>
#include <vector>

#include "core/io/codepage.h"
#include "core/io/files.h"
#include "core/tables/satzformat.h"
#include "core/tables/werte_format.h"
#include "core/tables/zahlen.h"
#include "points/numbers/numbers.h"

namespace kolm::core {

namespace {

constexpr char kTrenner = std::filesystem::path::preferred_separator;

std::string Plattformpfad(std::string_view text) {
  std::string s(text);
  std::replace(s.begin(), s.end(), '\\', kTrenner);
  return s;
}

bool HatTrenner(std::string_view stamm) {
  return stamm.find('\\') != std::string_view::npos || stamm.find('/') != std::string_view::npos;
}

void Status(TabellenKontext& k, const std::string& text) {
  if (k.status) k.status->show(text);
}

// The file's bytes, nothing when it is missing or cannot be opened.
std::optional<std::string> DateiInhalt(const std::string& pfad) {
  if (!io::FileExists(pfad)) return std::nullopt;
  return io::ReadFile(pfad, MaxTabellenDatei);
}

std::string Dezimal(const TabellenKontext& k) {
  return k.dezimalzeichen.empty() ? numbers::SystemDezimalzeichen() : k.dezimalzeichen;
}

// ---- Conversions that keep the field as it was when the text does not fit
// (a failed statement is skipped) ------------------------------------------

void AlsDouble(std::optional<double> wert, double& feld) {
  if (wert) feld = *wert;
}
void AlsInteger(std::optional<double> wert, Integer& feld) {
  if (!wert) return;
  if (const auto i = numbers::CInt(*wert)) feld = *i;
}
void AlsLong(std::optional<double> wert, Long& feld) {
  if (!wert) return;
  if (const auto l = numbers::CLng(*wert)) feld = *l;
}
void AlsSingle(std::optional<double> wert, Single& feld) {
  if (wert && std::fabs(*wert) <= FLT_MAX) feld = static_cast<Single>(*wert);
}

std::optional<double> Plain(std::optional<std::string_view> text) {
  if (!text) return std::nullopt;
  return numbers::ValGeprueft(*text);
}

}  // namespace

// ---- File names ----------------------------------------------------------------

std::string TabellenDatei(const Zustand& z, std::string_view stamm, std::string_view endung) {
  return Plattformpfad(z.ProjektVerzeichnis) + Plattformpfad(stamm) + std::string(endung);
}

std::string BeschriftungsDatei(const Zustand& z, std::string_view stamm) {
  if (HatTrenner(stamm)) return Plattformpfad(stamm) + ".bes";
  return TabellenDatei(z, stamm, ".bes");
}

std::string BildDatei(const Zustand& z, std::string_view stamm, int slot, const FesterText<3>& endung) {
  // Blanks and NULs that fill the suffix are not part of a file name.
  std::string suffix = endung.Text();
  while (!suffix.empty() && (suffix.back() == ' ' || suffix.back() == '\0')) suffix.pop_back();
  std::string name = "_";
  name += numbers::Format(slot, "000");
  name += '.';
  name += suffix;
  return TabellenDatei(z, stamm, name);
}

bool TestStamm(std::string_view stamm) {
  if (stamm.size() != 4) return false;
  std::string gross(stamm);
  for (char& c : gross)
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  return gross == "TEST";
}

// ---- Readers ---------------------------------------------------------------------

namespace {

// Hands each whole record of a file of fixed-length records to f, in order,
// while f asks for more; the short tail of a damaged file is no record.
template <class F>
void JederSatz(std::string_view daten, std::size_t laenge, F f) {
  for (std::size_t pos = 0; pos + laenge <= daten.size(); pos += laenge)
    if (!f(daten.substr(pos, laenge))) return;
}

}  // namespace

void LesePunkte(TabellenKontext& k, std::string_view stamm) {
  Zustand& z = k.zustand;
  Status(k, "Punkte-Tabelle lesen...");
  forms::BusyGuard busy(k.busy);
  z.PunkteLeeren();
  const auto daten = DateiInhalt(TabellenDatei(z, stamm, ".pkt"));
  if (!daten) {
    if (k.meldungen) {
      forms::Message m;
      m.text = "Datei " + std::string(stamm) + " kann nicht geöffnet werden!";
      k.meldungen->show(m);
    }
    return;
  }
  const int hoechste = std::min<int>(z.AnzahlPunkte, static_cast<int>(z.Punkte.size()) - 1);
  int zuletzt = -1;
  JederSatz(*daten, PunktSatzLaenge, [&](std::string_view satz) {
    const Punkt p = PunktAusSatz(satz);
    // Only a rising sequence of numbers is taken.
    if (p.Nummer > zuletzt && p.Nummer <= hoechste) {
      z.Punkte[static_cast<std::size_t>(p.Nummer)] = p;
      zuletzt = p.Nummer;
    }
    return true;
  });
}

void LeseVerbindungen(TabellenKontext& k, std::string_view stamm) {
  Zustand& z = k.zustand;
  Status(k, "Verbindungen lesen...");
  forms::BusyGuard busy(k.busy);
  z.VerbindungenLeeren();
  const auto daten = DateiInhalt(TabellenDatei(z, stamm, ".ver"));
  if (!daten) return;
  int zaehler = 0;
  JederSatz(*daten, VerbindungSatzLaenge, [&](std::string_view satz) {
    const Verbindung v = VerbindungAusSatz(satz);
    if (v.Von != v.Nach) z.Verbindungen[static_cast<std::size_t>(zaehler++)] = v;
    return zaehler < AnzahlVerbindungen;
  });
  z.NaechsteFreieVerbindung = static_cast<Integer>(zaehler);
}

void LeseBoegen(TabellenKontext& k, std::string_view stamm) {
  Zustand& z = k.zustand;
  Status(k, "Kreisbögen lesen...");
  forms::BusyGuard busy(k.busy);
  z.BoegenLeeren();
  const auto daten = DateiInhalt(TabellenDatei(z, stamm, ".bog"));
  if (!daten) return;
  JederSatz(*daten, BogenSatzLaenge, [&](std::string_view satz) {
    const Bogen b = BogenAusSatz(satz);
    if (b.Nummer >= 0 && b.Nummer < AnzahlBoegen) z.Boegen[static_cast<std::size_t>(b.Nummer)] = b;
    return true;
  });
}

void LeseBilder(TabellenKontext& k, std::string_view stamm) {
  Zustand& z = k.zustand;
  Status(k, "Hintergrundbilder einlesen...");
  forms::BusyGuard busy(k.busy);
  z.HintergrundbilderLeeren();
  const auto daten = DateiInhalt(TabellenDatei(z, stamm, ".pic"));
  if (!daten) return;
  int slot = 0;
  JederSatz(*daten, BildSatzLaenge, [&](std::string_view satz) {
    z.Hintergrundbilder[static_cast<std::size_t>(slot++)] = BildAusSatz(satz);
    return slot < AnzahlBilder;
  });
  z.NaechstesFreiesBild = AnzahlBilder;
  for (int n = AnzahlBilder - 1; n >= 0; --n)
    if (z.Hintergrundbilder[static_cast<std::size_t>(n)].Breite == 0) z.NaechstesFreiesBild = static_cast<Integer>(n);
  for (int n = 0; n < AnzahlBilder; ++n) {
    const Hintergrundbild& h = z.Hintergrundbilder[static_cast<std::size_t>(n)];
    forms::Image& bild = z.BildSpeicher[static_cast<std::size_t>(n)];
    bild = forms::Image{};
    if (h.Breite == 0 || !k.bilder) continue;
    const std::string datei = BildDatei(z, stamm, n, h.Endung);
    if (!io::FileExists(datei)) continue;
    if (auto gelesen = k.bilder->read(datei)) bild = std::move(*gelesen);
  }
}

void LeseBerechnungen(TabellenKontext& k, std::string_view stamm) {
  Zustand& z = k.zustand;
  Status(k, "Berechnungen lesen...");
  forms::BusyGuard busy(k.busy);
  z.BerechnungenLeeren();
  const auto daten = DateiInhalt(TabellenDatei(z, stamm, ".ber"));
  if (!daten) return;
  const std::string text = io::Cp1252ToUtf8(*daten);
  WerteLeser leser(text);
  // Values past the end of the file keep the cleared record's values.
  for (Berechnung& b : z.Berechnungen) {
    if (leser.AmEnde()) break;
    if (const auto lv = leser.Naechster()) b.LVNr = LVNummer::Links(*lv);
    AlsDouble(Plain(leser.Naechster()), b.Ergebnis);
    AlsInteger(Plain(leser.Naechster()), b.Flaeche);
    AlsLong(Plain(leser.Naechster()), b.Farbe);
    for (Integer& i : b.KorrekturIndex) AlsInteger(Plain(leser.Naechster()), i);
    Integer anzahl = 0;
    AlsInteger(Plain(leser.Naechster()), anzahl);
    b.Anzahl = std::clamp<Integer>(anzahl, 0, MaxElemente);
    // All announced values are taken from the file, those past 500 dropped.
    for (int i = 0; i < anzahl; ++i) {
      const auto wert = leser.Naechster();
      if (!wert) break;
      if (i < MaxElemente) AlsInteger(numbers::ValGeprueft(*wert), b.Element[static_cast<std::size_t>(i)]);
    }
  }
}

void LeseBeschriftungen(TabellenKontext& k, std::string_view stamm) {
  Zustand& z = k.zustand;
  Status(k, "Beschriftungen lesen...");
  forms::BusyGuard busy(k.busy);
  z.BeschriftungenLeeren();
  const auto daten = DateiInhalt(BeschriftungsDatei(z, stamm));
  if (!daten) return;
  const std::string text = io::Cp1252ToUtf8(*daten);
  const std::string_view alles(text);
  std::vector<std::string_view> spalten;
  std::size_t anfang = 0;
  while (anfang <= alles.size()) {
    std::size_t ende = alles.find('\r', anfang);
    if (ende == std::string_view::npos) ende = alles.size();
    std::string_view zeile = alles.substr(anfang, ende - anfang);
    anfang = ende + 1;
    while (!zeile.empty() && (zeile.front() == '\r' || zeile.front() == '\n')) zeile.remove_prefix(1);
    while (!zeile.empty() && (zeile.back() == '\r' || zeile.back() == '\n')) zeile.remove_suffix(1);
    if (zeile.empty()) continue;

    spalten.clear();
    for (std::size_t s = 0;;) {
      const std::size_t semikolon = zeile.find(';', s);
      if (semikolon == std::string_view::npos) {
        spalten.push_back(zeile.substr(s));
        break;
      }
      spalten.push_back(zeile.substr(s, semikolon - s));
      s = semikolon + 1;
    }
    // A line whose first column names no slot is left out.
    const auto slot = numbers::CInt(numbers::Val(spalten[0]));
    if (!slot || *slot < 0 || *slot >= AnzahlBeschriftungen) continue;
    Beschriftung& b = z.Beschriftungen[static_cast<std::size_t>(*slot)];
    const std::size_t n = std::min<std::size_t>(spalten.size(), 13);
    for (std::size_t i = 1; i < n; ++i) {
      const std::string_view s = spalten[i];
      switch (i) {
        case 1: b.Text = std::string(s); break;
        case 2: AlsDouble(numbers::ZahlLesenGeprueft(s), b.A); break;
        case 3: AlsDouble(numbers::ZahlLesenGeprueft(s), b.B); break;
        case 4: AlsInteger(numbers::ZahlLesenGeprueft(s), b.Winkel); break;
        case 5: AlsLong(numbers::ValGeprueft(s), b.Farbe); break;
        case 6: b.Schrift = std::string(s); break;
        case 7: AlsSingle(numbers::ValGeprueft(s), b.Groesse); break;
        case 8: AlsInteger(numbers::ValGeprueft(s), b.Fett); break;
        case 9: AlsInteger(numbers::ValGeprueft(s), b.Kursiv); break;
        case 10: AlsInteger(numbers::ValGeprueft(s), b.Unterstrichen); break;
        case 11: AlsDouble(numbers::ValGeprueft(s), b.Massstab); break;
        case 12: AlsInteger(numbers::ValGeprueft(s), b.BezugsPunkt); break;
        default: break;
      }
    }
  }
}

// ---- Writers -------------------------------------------------------------------

bool SchreibePunkte(TabellenKontext& k, std::string_view stamm) {
  if (TestStamm(stamm)) return false;
  Zustand& z = k.zustand;
  std::string bytes;
  const int hoechste = std::min<int>(z.AnzahlPunkte, static_cast<int>(z.Punkte.size()) - 1);
  bytes.reserve(static_cast<std::size_t>(hoechste + 1) * PunktSatzLaenge);
  for (int n = 0; n <= hoechste; ++n) {
    Punkt& p = z.Punkte[static_cast<std::size_t>(n)];
    p.Nummer = static_cast<Integer>(n);
    if (!z.PunktLeer(n)) PunktSatzAnhaengen(bytes, p);
  }
  return io::WriteFileAtomically(TabellenDatei(z, stamm, ".pkt"), bytes);
}

bool SchreibeVerbindungen(TabellenKontext& k, std::string_view stamm) {
  if (TestStamm(stamm)) return false;
  Zustand& z = k.zustand;
  std::string bytes;
  for (const Verbindung& v : z.Verbindungen)
    if (v.Von >= 0 && v.Nach >= 0) VerbindungSatzAnhaengen(bytes, v);
  return io::WriteFileAtomically(TabellenDatei(z, stamm, ".ver"), bytes);
}

bool SchreibeBoegen(TabellenKontext& k, std::string_view stamm) {
  if (TestStamm(stamm)) return false;
  Zustand& z = k.zustand;
  std::string bytes;
  for (int n = 0; n < AnzahlBoegen; ++n) {
    Bogen& b = z.Boegen[static_cast<std::size_t>(n)];
    if (b.Radius == 0) continue;
    b.Nummer = static_cast<Integer>(n);
    BogenSatzAnhaengen(bytes, b);
  }
  return io::WriteFileAtomically(TabellenDatei(z, stamm, ".bog"), bytes);
}

bool SchreibeBilder(TabellenKontext& k, std::string_view stamm) {
  if (TestStamm(stamm)) return false;
  Zustand& z = k.zustand;
  std::string bytes;
  for (const Hintergrundbild& h : z.Hintergrundbilder) BildSatzAnhaengen(bytes, h);
  return io::WriteFileAtomically(TabellenDatei(z, stamm, ".pic"), bytes);
}

bool SchreibeBerechnungen(TabellenKontext& k, std::string_view stamm) {
  if (TestStamm(stamm)) return false;
  Zustand& z = k.zustand;
  std::string text;
  const auto zahl = [&text](double x) { ZahlWertAnhaengen(text, x); };
  for (const Berechnung& b : z.Berechnungen) {
    if (b.LVNr.IstLeer()) continue;
    TextWertAnhaengen(text, b.LVNr.Text());
    zahl(b.Ergebnis);
    zahl(b.Flaeche);
    zahl(b.Farbe);
    for (Integer i : b.KorrekturIndex) zahl(i);
    zahl(b.Anzahl);
    const int n = std::clamp<int>(b.Anzahl, 0, MaxElemente);
    for (int i = 0; i < n; ++i) zahl(b.Element[static_cast<std::size_t>(i)]);
  }
  return io::WriteFileAtomically(TabellenDatei(z, stamm, ".ber"), io::Utf8ToCp1252(text));
}

bool SchreibeBeschriftungen(TabellenKontext& k, std::string_view stamm) {
  if (TestStamm(stamm)) return false;
  Zustand& z = k.zustand;
  const std::string dez = Dezimal(k);
  std::string text;
  const auto feld = [&text](const std::string& s) {
    text += s;
    text += ';';
  };
  for (int n = 0; n < AnzahlBeschriftungen; ++n) {
    const Beschriftung& b = z.Beschriftungen[static_cast<std::size_t>(n)];
    if (b.Text.empty()) continue;
    feld(std::to_string(n));
    feld(b.Text);
    feld(numbers::ZahlAlsText(b.A, dez));
    feld(numbers::ZahlAlsText(b.B, dez));
    feld(std::to_string(b.Winkel));
    feld(std::to_string(b.Farbe));
    feld(b.Schrift);
    feld(tabellen_zahlen::SingleAlsText(b.Groesse, dez));
    feld(std::to_string(b.Fett));
    feld(std::to_string(b.Kursiv));
    feld(std::to_string(b.Unterstrichen));
    feld(numbers::ZahlAlsText(b.Massstab, dez));
    feld(std::to_string(b.BezugsPunkt));
    text += "\r\n";
  }
  return io::WriteFileAtomically(BeschriftungsDatei(z, stamm), io::Utf8ToCp1252(text));
}

// ---- The active table ---------------------------------------------------------------

void TabelleSpeichern(TabellenKontext& k) {
  Zustand& z = k.zustand;
  if (z.AktiveTabelle < 0 || z.AktiveTabelle > 499) return;
  Tabelle* zeile = z.AktiveZeile();
  if (!zeile || numbers::IstLeer(zeile->TablName)) return;
  // Copies: a writer must not see a stem change under its feet.
  const std::string datei = zeile->Dateiname;
  const std::string pktDatei = zeile->PktDateiName;
  if (!numbers::IstLeer(datei)) {
    Status(k, "Berechnung speichern...");
    SchreibeBerechnungen(k, datei);
    Status(k, "Verbindungen speichern...");
    SchreibeVerbindungen(k, datei);
    Status(k, "Kreisbögen speichern...");
    SchreibeBoegen(k, datei);
    Status(k, "Beschriftung speichern...");
    SchreibeBeschriftungen(k, datei);
    Status(k, "Hintergrundbilder speichern...");
    SchreibeBilder(k, datei);
  }
  Status(k, "Punkte speichern...");
  if (!numbers::IstLeer(pktDatei)) {
    SchreibePunkte(k, pktDatei);
    Status(k, "Punkte-Tabelle gespeichert");
  }
  z.TabelleGeaendert = Falsch;
  z.AnsichtInZeile(*zeile);
  if (k.vorschau && !numbers::IstLeer(datei)) k.vorschau(TabellenDatei(z, datei, ""));
}

void TabellenDateienLesen(TabellenKontext& k) {
  Zustand& z = k.zustand;
  const Tabelle* zeile = z.AktiveZeile();
  if (!zeile || numbers::IstLeer(zeile->TablName)) return;
  const std::string datei = zeile->Dateiname;
  const std::string pktDatei = zeile->PktDateiName;
  if (!numbers::IstLeer(datei)) {
    LeseBerechnungen(k, datei);
    LeseVerbindungen(k, datei);
    LeseBoegen(k, datei);
    LeseBeschriftungen(k, datei);
    LeseBilder(k, datei);
  }
  if (!numbers::IstLeer(pktDatei)) LesePunkte(k, pktDatei);
  z.BoegenAufraeumen();
}

}  // namespace kolm::core
