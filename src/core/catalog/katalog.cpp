#include "core/catalog/katalog.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <string_view>
#include <vector>

#include "core/catalog/katalog_hilfen.h"
#include "core/io/codepage.h"
#include "core/io/files.h"
#include "core/tables/werte_format.h"
#include "forms/utf8.h"
#include "points/numbers/numbers.h"

namespace kolm::core {

namespace fs = std::filesystem;
using katalog_hilfen::Ordner;

namespace {

// A catalogue holds a few kilobytes; a bigger file is read only this far.
constexpr std::size_t kMaxKatalog = 4u << 20;
// Files larger than this are not copied: they could not be held in memory.

std::string KatalogPfad(const Zustand& z, const char* name) { return Ordner(z.ProjektVerzeichnis) + name; }

std::optional<std::string> TextLesen(const std::string& pfad) {
  if (!io::FileExists(pfad)) return std::nullopt;
  auto bytes = io::ReadFile(pfad, kMaxKatalog);
  if (!bytes) return std::nullopt;
  return io::Cp1252ToUtf8(*bytes);
}

// Strictly newer; a missing file or an unreadable time is never newer.
bool Neuer(const std::string& a, const std::string& b) {
  std::error_code ea, eb;
  const auto ta = fs::last_write_time(a, ea);
  const auto tb = fs::last_write_time(b, eb);
  return !ea && !eb && ta > tb;
}

std::optional<double> Zahl(std::string_view text) { return numbers::ValGeprueft(text); }

std::optional<Integer> Ganzzahl(std::string_view text) {
  const auto x = Zahl(text);
  if (!x) return std::nullopt;
  return numbers::CInt(*x);
}

// ---- The seven (or eight) values of a row -------------------------------------

std::string TextWert(WerteLeser& l) {
  const auto v = l.Naechster();
  return v ? std::string(*v) : std::string();
}

double StationierungWert(WerteLeser& l) {
  const auto v = l.Naechster();
  if (!v) return 0;
  return Zahl(*v).value_or(0);
}

Flag FlagWert(WerteLeser& l, Flag global) {
  const auto v = l.Naechster();
  if (!v) return global;
  return Ganzzahl(*v).value_or(global);
}

void ErsteSiebenLesen(WerteLeser& l, Tabelle& t, const Zustand& z) {
  t.TablName = TextWert(l);
  t.Stationierung = StationierungWert(l);
  t.Dateiname = TextWert(l);
  t.PktDateiName = TextWert(l);
  t.M31 = FlagWert(l, z.M31);
  t.Dritte = FlagWert(l, z.Dritte);
  t.Polar = FlagWert(l, z.Polar);
}

// ---- The eighth line of "Tabelle2.ini" ------------------------------------------

void GlobaleAnsicht(Tabelle& t, const TabellenAnsicht& g) {
  t.Massstab = g.Massstab;
  t.Vergleichsebene = g.Vergleichsebene;
  t.XMitte = g.XMitte;
  t.YMitte = g.YMitte;
  t.XOffset = g.XOffset;
  t.VergleichsebeneSichtbar = g.VergleichsebeneSichtbar;
  t.YOffset = g.YOffset;
  t.YAchseSichtbar = g.YAchseSichtbar;
  t.Rasterabstand = g.Rasterabstand;
  t.Achsenbeschriftung = g.Achsenbeschriftung;
  t.GitterFarbIndex = g.GitterFarbIndex;
  t.GitterSchriftFarbIndex = g.GitterSchriftFarbIndex;
  t.Gitterstil = g.Gitterstil;
  t.Massstabtyp = g.Massstabtyp;
  t.LogoSichtbar = g.LogoSichtbar;
}

// A line written as one quoted string is read as its content.
std::string_view OhneAnfuehrung(std::string_view zeile) {
  if (!zeile.empty() && zeile.front() == '"') {
    zeile.remove_prefix(1);
    if (!zeile.empty() && zeile.back() == '"') zeile.remove_suffix(1);
  }
  return zeile;
}

std::vector<std::string_view> AnKommas(std::string_view text) {
  std::vector<std::string_view> teile;
  for (;;) {
    const std::size_t k = text.find(',');
    teile.push_back(text.substr(0, k));
    if (k == std::string_view::npos) break;
    text.remove_prefix(k + 1);
  }
  return teile;
}

void AchteZeileLesen(WerteLeser& l, Tabelle& t, Zustand& z) {
  const auto zeile = l.Zeile();
  if (!zeile || forms::utf8::Length(*zeile) < 10) {
    // The old form: Falschdrehend alone, the view fields are the globals.
    t.Falschdrehend = zeile ? Ganzzahl(OhneAnfuehrung(*zeile)).value_or(z.Falschdrehend) : z.Falschdrehend;
    z.AnsichtInZeile(t);
    return;
  }
  GlobaleAnsicht(t, z.Ansicht);
  const auto teile = AnKommas(OhneAnfuehrung(*zeile));
  const auto teil = [&teile](std::size_t i) -> std::optional<std::string_view> {
    if (i < teile.size()) return teile[i];
    return std::nullopt;
  };
  const auto ganz = [&](std::size_t i, Integer& feld) {
    if (const auto v = teil(i))
      if (const auto g = Ganzzahl(*v)) feld = *g;
  };
  const auto reell = [&](std::size_t i, double& feld) {
    if (const auto v = teil(i))
      if (const auto x = Zahl(*v)) feld = *x;
  };
  t.Falschdrehend = z.Falschdrehend;
  ganz(0, t.Falschdrehend);
  reell(1, t.Massstab);
  reell(2, t.Vergleichsebene);
  reell(3, t.XMitte);
  reell(4, t.YMitte);
  reell(5, t.XOffset);
  ganz(6, t.VergleichsebeneSichtbar);
  reell(7, t.YOffset);
  ganz(8, t.YAchseSichtbar);
  reell(9, t.Rasterabstand);
  ganz(10, t.Achsenbeschriftung);
  ganz(11, t.GitterFarbIndex);
  ganz(12, t.GitterSchriftFarbIndex);
  ganz(13, t.Gitterstil);
  ganz(14, t.Massstabtyp);
  ganz(15, t.LogoSichtbar);
  if (t.Rasterabstand == 0) t.Rasterabstand = 10;
}

// ---- Writing ---------------------------------------------------------------------

// A text as the format can hold it: a line end would shift every later row
// and a double quote end the text early, so the text ends at a line end and
// a double quote becomes a single one.
std::string Schreibbar(std::string_view text) {
  std::string s(text.substr(0, text.find_first_of("\r\n")));
  std::replace(s.begin(), s.end(), '"', '\'');
  return s;
}

bool ZeileZuSchreiben(const Tabelle& t) { return !numbers::IstLeer(Schreibbar(t.TablName)); }

void ErsteSiebenSchreiben(std::string& s, const Tabelle& t) {
  TextWertAnhaengen(s, Schreibbar(t.TablName));
  ZahlWertAnhaengen(s, t.Stationierung);
  TextWertAnhaengen(s, Schreibbar(t.Dateiname));
  TextWertAnhaengen(s, Schreibbar(t.PktDateiName));
  ZahlWertAnhaengen(s, t.M31);
  ZahlWertAnhaengen(s, t.Dritte);
  ZahlWertAnhaengen(s, t.Polar);
}

std::string AchteZeile(const Tabelle& t) {
  const double werte[] = {static_cast<double>(t.Falschdrehend),
                          t.Massstab,
                          t.Vergleichsebene,
                          t.XMitte,
                          t.YMitte,
                          t.XOffset,
                          static_cast<double>(t.VergleichsebeneSichtbar),
                          t.YOffset,
                          static_cast<double>(t.YAchseSichtbar),
                          t.Rasterabstand,
                          static_cast<double>(t.Achsenbeschriftung),
                          static_cast<double>(t.GitterFarbIndex),
                          static_cast<double>(t.GitterSchriftFarbIndex),
                          static_cast<double>(t.Gitterstil),
                          static_cast<double>(t.Massstabtyp),
                          static_cast<double>(t.LogoSichtbar)};
  std::string zeile;
  for (double w : werte) {
    if (!zeile.empty()) zeile += ',';
    zeile += numbers::ZahlAlsText(w, ".");
  }
  return zeile;
}

// ---- Sorting ---------------------------------------------------------------------

// True when a belongs after b.
bool Nachher(const Tabelle& a, const Tabelle& b, std::size_t buchstaben) {
  const std::u32string na = katalog_hilfen::Zeichen(a.TablName);
  const std::u32string nb = katalog_hilfen::Zeichen(b.TablName);
  const std::u32string_view pa = std::u32string_view(na).substr(0, buchstaben);
  const std::u32string_view pb = std::u32string_view(nb).substr(0, buchstaben);
  const int vorn = katalog_hilfen::VergleichOhneGrossKlein(pa, pb);
  if (vorn != 0) return vorn > 0;
  if (a.Stationierung != b.Stationierung) return a.Stationierung > b.Stationierung;
  return na > nb;
}

}  // namespace

forms::Message KeinKatalogMeldung(const std::string& verzeichnis) {
  forms::Message m;
  m.text = "Im Verzeichnis " + verzeichnis + " existiert keine Datei " + KatalogDateiAlt + "!";
  m.title = forms::ProgrammName;
  m.icon = forms::Icon::Exclamation;
  return m;
}

bool KatalogLesen(KatalogKontext& k) {
  Zustand& z = k.zustand;
  const std::string alt = KatalogPfad(z, KatalogDateiAlt);
  const std::string neu = KatalogPfad(z, KatalogDateiNeu);
  if (!io::FileExists(neu) && io::FileExists(alt)) io::CopyFileAtomically(alt, neu);
  const auto textAlt = Neuer(alt, neu) ? TextLesen(alt) : std::nullopt;
  const bool altIstNeuer = textAlt.has_value();
  const auto textNeu = TextLesen(neu);
  if (!textNeu) {
    if (!k.startLaeuft && k.meldungen) k.meldungen->show(KeinKatalogMeldung(z.ProjektVerzeichnis));
    z.TabellenLeeren();
    return false;
  }
  WerteLeser leserNeu(*textNeu);
  WerteLeser leserAlt(altIstNeuer ? std::string_view(*textAlt) : std::string_view());
  for (Tabelle& t : z.Tabellen) {
    ErsteSiebenLesen(leserNeu, t, z);
    AchteZeileLesen(leserNeu, t, z);
    if (altIstNeuer) {
      ErsteSiebenLesen(leserAlt, t, z);
      t.Falschdrehend = FlagWert(leserAlt, z.Falschdrehend);
    }
  }
  return true;
}

std::string KatalogAltBytes(const Zustand& z) {
  std::string s;
  for (const Tabelle& t : z.Tabellen) {
    if (!ZeileZuSchreiben(t)) continue;
    ErsteSiebenSchreiben(s, t);
    ZahlWertAnhaengen(s, t.Falschdrehend);
  }
  return io::Utf8ToCp1252(s);
}

std::string KatalogNeuBytes(const Zustand& z) {
  std::string s;
  for (const Tabelle& t : z.Tabellen) {
    if (!ZeileZuSchreiben(t)) continue;
    ErsteSiebenSchreiben(s, t);
    s += AchteZeile(t);
    s += "\r\n";
  }
  return io::Utf8ToCp1252(s);
}

bool KatalogSchreiben(KatalogKontext& k) {
  const Zustand& z = k.zustand;
  // The older form first, so that the newer one is never the older file.
  const bool alt = io::WriteFileAtomically(KatalogPfad(z, KatalogDateiAlt), KatalogAltBytes(z));
  const bool neu = io::WriteFileAtomically(KatalogPfad(z, KatalogDateiNeu), KatalogNeuBytes(z));
  return alt && neu;
}

bool ZeileBenannt(const Tabelle& t) { return !numbers::IstLeer(t.TablName); }

void TabellenSortieren(Zustand& z, int buchstaben) {
  const Tabelle* aktiv = z.AktiveZeile();
  const std::string gemerkt = aktiv && ZeileBenannt(*aktiv) ? aktiv->TablName : std::string();

  std::vector<Tabelle>& t = z.Tabellen;
  std::size_t belegt = 0;
  for (std::size_t i = 0; i < t.size(); ++i) {
    if (!ZeileBenannt(t[i])) continue;
    if (i != belegt) {
      t[belegt] = std::move(t[i]);
      z.TabellenZeileLeeren(static_cast<int>(i));
    }
    ++belegt;
  }

  const std::size_t n = static_cast<std::size_t>(std::max(buchstaben, 0));
  for (bool getauscht = true; getauscht;) {
    getauscht = false;
    for (std::size_t i = 0; i + 1 < belegt; ++i) {
      if (Nachher(t[i], t[i + 1], n)) {
        std::swap(t[i], t[i + 1]);
        getauscht = true;
      }
    }
  }

  z.AktiveTabelle = -1;
  if (gemerkt.empty()) return;
  for (std::size_t i = 0; i < belegt; ++i) {
    if (t[i].TablName == gemerkt) {
      z.AktiveTabelle = static_cast<Integer>(i);
      return;
    }
  }
}


}  // namespace kolm::core
