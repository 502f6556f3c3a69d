#include "core/catalog/tabellen_eingabe.h"

#include <algorithm>

#include "core/catalog/katalog.h"
#include "core/catalog/katalog_hilfen.h"
#include "core/io/files.h"
#include "core/tables/tabellen_dateien.h"
#include "forms/utf8.h"
#include "points/numbers/numbers.h"

namespace kolm::core {

using katalog_hilfen::IstAsciiBuchstabe;
using katalog_hilfen::IstZiffer;

namespace {

constexpr const char* kTitel = "Kolm";

forms::Message Meldung(std::string text, forms::Buttons knoepfe = forms::Buttons::OK,
                       forms::Icon symbol = forms::Icon::Exclamation, std::string titel = kTitel) {
  forms::Message m;
  m.text = std::move(text);
  m.title = std::move(titel);
  m.buttons = knoepfe;
  m.icon = symbol;
  return m;
}

TabellenBefund Befund(TabellenBefund::Art art, int zeile, forms::Message meldung) {
  TabellenBefund b;
  b.art = art;
  b.zeile = zeile;
  b.meldung = std::move(meldung);
  return b;
}

bool ZeileGueltig(const Zustand& z, int n) { return n >= 0 && n < static_cast<int>(z.Tabellen.size()); }

std::string OhneEndleerzeichen(std::string_view s) {
  while (!s.empty() && s.back() == ' ') s.remove_suffix(1);
  return std::string(s);
}

}  // namespace

// ---- Stems and names ---------------------------------------------------------------

std::string DateinameAusName(std::string_view name) {
  const std::u32string z = katalog_hilfen::Zeichen(name);
  std::u32string behalten;
  bool zifferGesehen = false;
  bool frueh = false;
  for (std::size_t i = z.size(); i-- > 0;) {
    const char32_t c = z[i];
    if (IstZiffer(c)) {
      behalten += c;
      zifferGesehen = true;
    } else if (IstAsciiBuchstabe(c)) {
      if (zifferGesehen) {
        frueh = true;
        break;
      }
      behalten += c;
    } else if (c == U'-' || c == U'_') {
      behalten += c;
    }
  }
  std::reverse(behalten.begin(), behalten.end());
  if (frueh) behalten.insert(behalten.begin(), z.front());
  return katalog_hilfen::Utf8(std::u32string_view(behalten).substr(0, MaxStammLaenge));
}

bool StammZeichenZulaessig(char32_t c) {
  return c < 32 || IstZiffer(c) || IstAsciiBuchstabe(c) || c == U'_' || c == U'-';
}

std::string StammFiltern(std::string_view text) {
  std::u32string ok;
  for (char32_t c : katalog_hilfen::Zeichen(text))
    if (c >= 32 && StammZeichenZulaessig(c)) ok += c;
  return katalog_hilfen::Utf8(ok);
}

std::string StammKuerzen(std::string_view stamm) {
  return std::string(stamm.substr(0, forms::utf8::ByteOffset(stamm, MaxStammLaenge)));
}

std::string NamensVorschlag(std::string_view name) {
  const std::string n = OhneEndleerzeichen(name);
  if (n.empty()) return "Profil 1";
  std::size_t anfang = n.size();
  while (anfang > 0 && n[anfang - 1] >= '0' && n[anfang - 1] <= '9') --anfang;
  if (anfang == n.size()) return n + " 2";
  const double zahl = numbers::Val(std::string_view(n).substr(anfang));
  return n.substr(0, anfang) + numbers::Format(zahl + 1, "#0");
}

std::string NamensVorschlag(const Zustand& z) {
  if (!ZeileGueltig(z, z.AktiveTabelle)) return "Profil 1";
  const Tabelle& t = z.Tabellen[static_cast<std::size_t>(z.AktiveTabelle)];
  if (!ZeileBenannt(t)) return "Profil 1";
  return NamensVorschlag(t.TablName);
}

int KoordinatenSystemEintrag(bool m31, bool falschdrehend) { return (m31 ? 1 : 0) + (falschdrehend ? 2 : 0); }
bool KoordinatenSystemM31(int eintrag) { return eintrag == 1 || eintrag == 3; }
bool KoordinatenSystemFalschdrehend(int eintrag) { return eintrag == 2 || eintrag == 3; }

// ---- Checks on OK --------------------------------------------------------------------

TabellenPruefung TabellenEingabePruefen(const Zustand& z, const TabellenEingabe& e, TabellenDialog dialog,
                                         int eigeneZeile, std::string_view dezimal) {
  using Art = TabellenBefund::Art;
  TabellenPruefung p;
  p.stationierung = numbers::ZahlLesen(e.Stationierung);
  const bool eigenschaften = dialog == TabellenDialog::Eigenschaften;
  if (!eigenschaften) eigeneZeile = -1;

  if (numbers::IstLeer(e.TablName)) {
    p.befunde.push_back(Befund(Art::NameLeer, -1, Meldung("Bitte geben Sie einen Namen für die Tabelle ein.")));
    return p;
  }

  const std::string datei = StammKuerzen(e.Dateiname);
  const std::string pkt = StammKuerzen(e.PktDateiName);
  bool pktPruefen = !numbers::IstLeer(pkt);
  if (eigenschaften && ZeileGueltig(z, eigeneZeile))
    pktPruefen = pktPruefen && pkt != z.Tabellen[static_cast<std::size_t>(eigeneZeile)].PktDateiName;
  const std::string dez(dezimal.empty() ? numbers::SystemDezimalzeichen() : std::string(dezimal));

  for (int n = 0; n < static_cast<int>(z.Tabellen.size()); ++n) {
    const Tabelle& t = z.Tabellen[static_cast<std::size_t>(n)];
    if (n == eigeneZeile || !ZeileBenannt(t)) continue;
    if (t.TablName == e.TablName) {
      p.befunde.push_back(
          Befund(Art::NameVergeben, n, Meldung(e.TablName + " existiert bereits! Wählen Sie bitte einen anderen Namen.")));
      return p;
    }
    if (!numbers::IstLeer(datei) && t.Dateiname == datei) {
      p.befunde.push_back(Befund(Art::DateinameVergeben, n,
                                 Meldung("Der Dateiname " + datei + " wird bereits von der Tabelle '" + t.TablName +
                                         "' verwendet! Wählen Sie bitte einen anderen Namen.")));
      return p;
    }
    if (pktPruefen && t.PktDateiName == pkt) {
      TabellenBefund b = Befund(Art::PunkteGemeinsam, n,
                                Meldung("Der Punkt-Dateiname " + pkt + " wird auch von der Tabelle '" + t.TablName +
                                            "' verwendet!\nWenn Sie OK wählen, dann werden die Punkte von beiden "
                                            "Tabellen verwendet. Dies entspricht im Tiefbau einem Doppelprofil.",
                                        forms::Buttons::OKCancel, forms::Icon::Question));
      b.stationierung = t.Stationierung;
      b.stationierungsFrage = Meldung("Soll die Stationierung " + numbers::ZahlAlsText(t.Stationierung, dez) +
                                          " aus Tabelle '" + t.TablName + "' übernommen werden?",
                                      forms::Buttons::YesNo, forms::Icon::Question);
      p.befunde.push_back(std::move(b));
    }
  }

  if (eigenschaften) {
    p.zeile = ZeileGueltig(z, eigeneZeile) ? eigeneZeile : -1;
    return p;
  }
  p.zeile = ErsteFreieZeile(z);
  if (p.zeile < 0)
    p.befunde.push_back(Befund(Art::KeinPlatz, -1,
                               Meldung("Es ist leider keine Platz mehr für eine neue Tabelle vorhanden!",
                                       forms::Buttons::OK, forms::Icon::Exclamation, "Kolm roars...")));
  return p;
}

TabellenEntscheidung TabellenPruefungAbarbeiten(const TabellenPruefung& p, forms::MessageService& meldungen) {
  TabellenEntscheidung e;
  e.stationierung = p.stationierung;
  for (const TabellenBefund& b : p.befunde) {
    if (b.art != TabellenBefund::Art::PunkteGemeinsam) {
      meldungen.show(b.meldung);
      return e;
    }
    if (meldungen.show(b.meldung) != forms::Answer::OK) return e;
    e.punkteGemeinsam = true;
    if (b.stationierung != e.stationierung && meldungen.show(b.stationierungsFrage) == forms::Answer::Yes)
      e.stationierung = b.stationierung;
  }
  if (p.zeile < 0) return e;
  e.weiter = true;
  e.zeile = p.zeile;
  return e;
}

void ZeileFuellen(Tabelle& zeile, const TabellenEingabe& e, double stationierung) {
  zeile.TablName = e.TablName;
  zeile.Stationierung = stationierung;
  zeile.Dateiname = StammKuerzen(e.Dateiname);
  zeile.PktDateiName = StammKuerzen(e.PktDateiName);
  zeile.M31 = AlsFlag(KoordinatenSystemM31(e.KoordinatenSystem));
  zeile.Falschdrehend = AlsFlag(KoordinatenSystemFalschdrehend(e.KoordinatenSystem));
  zeile.Dritte = AlsFlag(e.Dritte);
  zeile.Polar = AlsFlag(e.Polar);
}

int ErsteFreieZeile(const Zustand& z) {
  for (std::size_t n = 0; n < z.Tabellen.size(); ++n)
    if (!ZeileBenannt(z.Tabellen[n])) return static_cast<int>(n);
  return -1;
}

// ---- Deleting a table ------------------------------------------------------------------

forms::Message TabelleLoeschenFrage() {
  return Meldung("Mit der Tabelle werden auch alle zugehörigen Aufzeichnungen gelöscht.", forms::Buttons::OKCancel,
                 forms::Icon::Question, "Tabelle löschen");
}

TabellenLoeschung TabelleLoeschenPlanen(const Zustand& z, int zeile) {
  TabellenLoeschung plan;
  if (!ZeileGueltig(z, zeile)) return plan;
  const Tabelle& t = z.Tabellen[static_cast<std::size_t>(zeile)];
  if (!numbers::IstLeer(t.Dateiname))
    for (const char* endung : {".ver", ".bog", ".ber"}) plan.dateien.push_back(TabellenDatei(z, t.Dateiname, endung));
  if (numbers::IstLeer(t.PktDateiName)) return plan;
  for (int n = 0; n < static_cast<int>(z.Tabellen.size()); ++n) {
    const Tabelle& andere = z.Tabellen[static_cast<std::size_t>(n)];
    if (n != zeile && ZeileBenannt(andere) && andere.PktDateiName == t.PktDateiName) {
      plan.meldung = Meldung("Die Punkte-Tabelle in der Datei '" + t.PktDateiName +
                                 "' wird noch von mindestens einer weiteren Tabelle benutzt und wird daher nicht "
                                 "gelöscht!",
                             forms::Buttons::OK, forms::Icon::Information);
      return plan;
    }
  }
  plan.dateien.push_back(TabellenDatei(z, t.PktDateiName, ".pkt"));
  return plan;
}

TabellenLoeschung TabelleLoeschen(Zustand& z, int zeile, forms::MessageService* meldungen) {
  TabellenLoeschung plan = TabelleLoeschenPlanen(z, zeile);
  if (!ZeileGueltig(z, zeile)) return plan;
  for (const std::string& datei : plan.dateien)
    if (io::FileExists(datei)) io::RemoveFile(datei);
  if (plan.meldung && meldungen) meldungen->show(*plan.meldung);
  z.TabellenZeileLeeren(zeile);
  return plan;
}

}  // namespace kolm::core
