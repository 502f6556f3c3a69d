#include "core/catalog/projekte.h"

#include <algorithm>
#include <filesystem>
#include <set>

#include "core/catalog/katalog.h"
#include "core/catalog/katalog_hilfen.h"
#include "core/io/codepage.h"
#include "core/io/files.h"
#include "core/profile/profile.h"
#include "points/numbers/numbers.h"

namespace kolm::core {

namespace fs = std::filesystem;
using katalog_hilfen::Ordner;

namespace {

// "Kolm.ini" is small; a bigger file is read only this far.
constexpr std::size_t kMaxIni = 4u << 20;

std::string_view Getrimmt(std::string_view s) {
  while (!s.empty() && (s.front() == ' ' || s.front() == '\t')) s.remove_prefix(1);
  while (!s.empty() && (s.back() == ' ' || s.back() == '\t')) s.remove_suffix(1);
  return s;
}

bool GleichOhneGrossKlein(std::string_view a, std::string_view b) {
  return katalog_hilfen::VergleichOhneGrossKlein(katalog_hilfen::Zeichen(a), katalog_hilfen::Zeichen(b)) == 0;
}

char AsciiKlein(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool BeginntMit(std::string_view name, std::string_view stamm) {
  if (name.size() < stamm.size()) return false;
  for (std::size_t i = 0; i < stamm.size(); ++i)
    if (AsciiKlein(name[i]) != AsciiKlein(stamm[i])) return false;
  return true;
}

// The regular files of a folder, by name.
std::vector<std::string> Dateien(const std::string& ordner) {
  std::vector<std::string> namen;
  std::error_code ec;
  fs::directory_iterator it(ordner.empty() ? std::string(".") : ordner, ec);
  for (; !ec && it != fs::directory_iterator(); it.increment(ec)) {
    std::error_code ef;
    if (it->is_regular_file(ef)) namen.push_back(it->path().filename().string());
  }
  std::sort(namen.begin(), namen.end());
  return namen;
}

}  // namespace

// ---- Known projects ---------------------------------------------------------------------

BekannteProjekte BekannteProjekteLesen(const std::string& iniPfad) {
  BekannteProjekte b;
  const auto bytes = io::FileExists(iniPfad) ? io::ReadFile(iniPfad, kMaxIni) : std::nullopt;
  if (!bytes) {
    forms::Message m;
    m.text = "Initialisierungsdatei '" + iniPfad + "' konnte nicht gefunden werden!";
    m.title = "Kolm";
    m.icon = forms::Icon::Exclamation;
    b.meldung = m;
    return b;
  }
  b.dateiGefunden = true;
  const std::string text = io::Cp1252ToUtf8(*bytes);
  bool drin = false;
  std::size_t pos = 0;
  while (pos < text.size()) {
    std::size_t ende = text.find('\n', pos);
    if (ende == std::string::npos) ende = text.size();
    std::string_view zeile(text.data() + pos, ende - pos);
    pos = ende + 1;
    if (!zeile.empty() && zeile.back() == '\r') zeile.remove_suffix(1);
    const std::string_view t = Getrimmt(zeile);
    if (!t.empty() && t.front() == '[') {
      drin = GleichOhneGrossKlein(t, "[Projects]");
      continue;
    }
    if (!drin || t.empty() || t.front() == ';') continue;
    const std::size_t gleich = t.find('=');
    if (gleich == std::string_view::npos) continue;
    const std::string_view name = Getrimmt(t.substr(0, gleich));
    if (!name.empty()) b.namen.emplace_back(name);
  }
  return b;
}

// ---- Project identity --------------------------------------------------------------------

bool IstProjektOrdner(std::string_view ordner) {
  std::error_code ec;
  return fs::is_regular_file(Ordner(ordner) + ProjektDatei, ec);
}

std::string ProjektNameIn(std::string_view ordner) {
  return profile::ReadString(Ordner(ordner) + ProjektDatei, "Project", "Name", "Unbekanntes Projekt",
                             profile::kSettingsBuffer);
}

ProjektOrdnerInfo ProjektOrdnerPruefen(std::string_view ordner) {
  ProjektOrdnerInfo info;
  info.istProjekt = IstProjektOrdner(ordner);
  if (!info.istProjekt) {
    info.text = "Kein Projekt in diesem Verzeichnis vorhanden!";
    return info;
  }
  info.name = ProjektNameIn(ordner);
  info.text = "Projekt '" + info.name + "' öffnen";
  return info;
}

// ---- Copying a project -------------------------------------------------------------------

std::vector<KopierSchritt> ProjektKopieDateien(const Zustand& z, std::string_view quellOrdner,
                                               std::string_view zielOrdner) {
  const std::string quelle = Ordner(quellOrdner);
  const std::string ziel = Ordner(zielOrdner);
  std::vector<KopierSchritt> schritte;
  std::set<std::string> schon;
  const auto dazu = [&](const std::string& datei, bool mitText) {
    if (!schon.insert(datei).second) return;
    KopierSchritt s{datei, quelle + datei, ziel + datei, {}};
    if (mitText) s.text = "Kopiere " + datei + " [" + quelle + "] nach [" + ziel + "]";
    schritte.push_back(std::move(s));
  };

  const std::vector<std::string> dateien = Dateien(quelle);
  for (const char* fest : {ProjektDatei, KatalogDateiAlt, KatalogDateiNeu, LVDatei})
    if (std::find(dateien.begin(), dateien.end(), fest) != dateien.end()) dazu(fest, false);

  const auto passende = [&](const std::string& stamm) {
    if (numbers::IstLeer(stamm)) return;
    for (const std::string& datei : dateien)
      if (BeginntMit(datei, stamm)) dazu(datei, true);
  };
  for (const Tabelle& t : z.Tabellen) {
    if (numbers::IstLeer(t.Dateiname)) continue;
    passende(t.Dateiname);
    passende(t.PktDateiName);
  }
  return schritte;
}

}  // namespace kolm::core
