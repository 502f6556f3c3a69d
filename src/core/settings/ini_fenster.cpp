#include "core/settings/ini_fenster.h"

#include <algorithm>
#include <array>
#include <climits>
#include <filesystem>

#include "core/profile/profile.h"
#include "forms/names.h"
#include "points/numbers/numbers.h"

namespace kolm::core {

namespace {

using profile::ProfileFile;

bool EinerVon(std::string_view dialog, std::initializer_list<const char*> namen) {
  const std::string key = forms::NameKey(dialog);
  return std::any_of(namen.begin(), namen.end(), [&](const char* n) { return forms::NameKey(n) == key; });
}

// A key's number, or nothing when the key is missing: only a missing key
// yields both defaults.
std::optional<int> Zahl(const ProfileFile& p, const std::string& abschnitt, const char* schluessel) {
  const std::int32_t a = p.GetInt(abschnitt, schluessel, INT32_MIN);
  const std::int32_t b = p.GetInt(abschnitt, schluessel, INT32_MAX);
  if (a == INT32_MIN && b == INT32_MAX) return std::nullopt;
  return a;
}

// Moves [pos, pos + size) into [anfang, anfang + laenge).
int Einpassen(int pos, int size, int anfang, int laenge) {
  const long long rechts = static_cast<long long>(pos) + std::max(size, 0);
  long long p = pos;
  if (rechts > static_cast<long long>(anfang) + laenge) p = static_cast<long long>(anfang) + laenge - std::max(size, 0);
  if (p < anfang) p = anfang;
  return static_cast<int>(p);
}

}  // namespace

bool BleibtAufBildschirm(std::string_view dialog) {
  return EinerVon(dialog,
                  {"Berechnen", "Berechnungen", "LVTabelle", "MassenErgebnis", "GrafikKontrolle", "SkizzeKoorHelp"});
}

bool StartetInDerEcke(std::string_view dialog) {
  return !EinerVon(dialog, {"LVTabelle", "GrafikKontrolle", "SkizzeKoorHelp"});
}

forms::WindowPlacement AufBildschirm(forms::WindowPlacement platz, const Fensterflaeche& bildschirm) {
  const int breite = platz.width == -1 ? 0 : platz.width;
  const int hoehe = platz.height == -1 ? 0 : platz.height;
  if (platz.left != -1) platz.left = Einpassen(platz.left, breite, bildschirm.left, bildschirm.width);
  if (platz.top != -1) platz.top = Einpassen(platz.top, hoehe, bildschirm.top, bildschirm.height);
  return platz;
}

void IniFenster::setArt(std::string_view dialog, int art) { art_[forms::NameKey(dialog)] = art; }

std::optional<forms::WindowPlacement> IniFenster::FensterLesen(std::string_view dialog, int art) {
  const ProfileFile p = ProfileFile::Load(zustand_.ProgrammIni);
  const std::string abschnitt(dialog);
  forms::WindowPlacement platz;
  const std::optional<int> left = Zahl(p, abschnitt, "Left");
  const std::optional<int> top = Zahl(p, abschnitt, "Top");
  if (left) platz.left = *left;
  if (top) platz.top = *top;
  bool gefunden = left || top;
  if (art == 2) {
    if (auto w = Zahl(p, abschnitt, "Width")) platz.width = *w, gefunden = true;
    if (auto h = Zahl(p, abschnitt, "Height")) platz.height = *h, gefunden = true;
  }

  if (!left && !top) {
    if (!StartetInDerEcke(dialog)) return gefunden ? std::optional(platz) : std::nullopt;
    const std::optional<Fensterflaeche> haupt = haupt_ ? haupt_() : std::nullopt;
    platz.left = haupt ? haupt->left : 0;
    platz.top = haupt ? haupt->top : 0;
    return platz;
  }
  if (BleibtAufBildschirm(dialog) && bildschirm_)
    if (const std::optional<Fensterflaeche> schirm = bildschirm_()) platz = AufBildschirm(platz, *schirm);
  return platz;
}

void IniFenster::FensterSchreiben(std::string_view dialog, const forms::WindowPlacement& platz) {
  const bool leer = platz.left == -1 && platz.top == -1 && platz.width == -1 && platz.height == -1;
  if (!leer) {
    const std::string& pfad = zustand_.ProgrammIni;
    ProfileFile p = ProfileFile::Load(pfad);
    const std::string abschnitt(dialog);
    bool ok = true;
    const std::array<std::pair<const char*, int>, 4> werte = {
        {{"Left", platz.left}, {"Top", platz.top}, {"Width", platz.width}, {"Height", platz.height}}};
    for (const auto& [schluessel, wert] : werte)
      ok = p.WriteString(abschnitt, schluessel, numbers::ZahlAlsText(wert, ".")) && ok;
    if (p.modified() || p.state() != ProfileFile::State::Complete) {
      const std::filesystem::path ordner = std::filesystem::path(pfad).parent_path();
      std::error_code ec;
      if (!ordner.empty()) std::filesystem::create_directories(ordner, ec);
      ok = p.Save(pfad) && ok;
    }
    if (!ok) zustand_.Einstellungen.IniFehler = true;
  }
  if (nachSchreiben_) nachSchreiben_();
}

std::optional<forms::WindowPlacement> IniFenster::read(const std::string& formName) {
  auto it = art_.find(forms::NameKey(formName));
  return FensterLesen(formName, it == art_.end() ? 2 : it->second);
}

void IniFenster::write(const std::string& formName, const forms::WindowPlacement& placement) {
  FensterSchreiben(formName, placement);
}

}  // namespace kolm::core
