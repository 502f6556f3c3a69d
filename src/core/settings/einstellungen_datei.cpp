#include "core/settings/einstellungen_datei.h"
#include "points/numbers/konstanten.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <optional>

#include "core/profile/profile.h"
#include "points/numbers/numbers.h"

namespace kolm::core {

namespace {

namespace fs = std::filesystem;
using profile::ProfileFile;

constexpr std::size_t kPuffer = profile::kSettingsBuffer;
constexpr std::size_t kSkinPuffer = 250;
constexpr std::size_t kProjektPuffer = 100;

constexpr const char* kKolm = "kolm";
constexpr const char* kAuto = "Automatisch Speichern";
constexpr const char* kSkin = "Skin";
constexpr const char* kLetztes = "last project";
constexpr const char* kProjekte = "projects";
constexpr const char* kProject = "Project";
constexpr const char* kFormats = "Formats";
constexpr const char* kPrinter = "Printer";
constexpr const char* kGrafik = "Grafik Defaults";
constexpr const char* kPunktdarstellung = "Punktdarstellung";
constexpr const char* kDefaults = "Defaults";
constexpr const char* kTabelle = "Tabelle";
constexpr const char* kLinienFarben = "Linien Farben";
constexpr const char* kPunktFarben = "Punkt Farben";
constexpr const char* kVariablen = "Variables";
constexpr const char* kKorrekturen = "Korrekturen";
constexpr const char* kKurzBez = "Punkt-Kurzbezeichnungen";
constexpr const char* kDarstellung = "Punkt-Darstellung";
constexpr const char* kBeschriftung = "Punkt-Beschriftung";

std::string Allgemein(double x) { return numbers::ZahlAlsText(x, "."); }

std::string Nummer(const Einstellungen& e, double x) { return numbers::ZahlText(x, e.NummernFormat); }

// Colour and correction entries: the number before the first blank, the
// name after it. A 0 whose text does not begin with "0" marks an empty entry.
struct WertUndName {
  double Wert = 0;
  std::string Name;
};
WertUndName Zerlegen(const std::string& text) {
  const std::size_t blank = text.find(' ');
  WertUndName r;
  r.Wert = numbers::ZahlLesen(text.substr(0, blank));
  if (blank != std::string::npos) r.Name = text.substr(blank + 1);
  if (r.Wert == 0 && (text.empty() || text.front() != '0')) r.Name.clear();
  return r;
}

// Reads the keys of one loaded file.
class Leser {
 public:
  explicit Leser(const ProfileFile& p) : p_(p) {}

  std::string Text(const char* abschnitt, const std::string& schluessel, const std::string& standard,
                   std::size_t puffer = kPuffer) const {
    return p_.GetString(abschnitt, schluessel, standard, puffer);
  }
  // (text) keys holding a measure: comma-tolerant.
  double Mass(const char* abschnitt, const std::string& schluessel, const char* standard) const {
    return numbers::ZahlLesen(Text(abschnitt, schluessel, standard));
  }
  // (text) keys holding a count or flag: plain parse.
  double Anzahl(const char* abschnitt, const std::string& schluessel, const char* standard) const {
    return numbers::Val(Text(abschnitt, schluessel, standard));
  }
  Flag Schalter(const char* abschnitt, const std::string& schluessel, const char* standard) const {
    return AlsFlag(Anzahl(abschnitt, schluessel, standard) != 0);
  }
  std::int32_t Ganz(const char* abschnitt, const std::string& schluessel, std::int32_t standard) const {
    return p_.GetInt(abschnitt, schluessel, standard);
  }
  // An integer key into a 16-bit field; a value beyond it leaves the field.
  void Ganz(const char* abschnitt, const std::string& schluessel, std::int32_t standard, Integer& ziel) const {
    if (auto v = numbers::CInt(Ganz(abschnitt, schluessel, standard))) ziel = *v;
  }

 private:
  const ProfileFile& p_;
};

// Writes into one loaded file and notes a refused key.
class Schreiber {
 public:
  explicit Schreiber(ProfileFile& p) : p_(p) {}
  void Text(const char* abschnitt, const std::string& schluessel, const std::string& wert) {
    if (!p_.WriteString(abschnitt, schluessel, wert)) ok_ = false;
  }
  bool ok() const { return ok_; }

 private:
  ProfileFile& p_;
  bool ok_ = true;
};

// Saves when something changed; a file that could not be read whole is
// never written over.
bool Speichern(const ProfileFile& p, const std::string& pfad) {
  if (!p.modified() && p.state() == ProfileFile::State::Complete) return true;
  return p.Save(pfad);
}

std::string FarbText(Long farbe, const char* name) { return Allgemein(farbe) + " " + name; }

void FarbenLesen(const Leser& l, const Einstellungen& e, const char* abschnitt, std::vector<FarbEintrag>& liste) {
  const auto& standard = StandardFarben();
  for (std::size_t i = 0; i < liste.size(); ++i) {
    const std::string vorgabe =
        i < standard.size() ? FarbText(standard[i].Farbe, standard[i].Name) : std::string();
    const WertUndName w = Zerlegen(l.Text(abschnitt, "Eintrag " + Nummer(e, static_cast<double>(i)), vorgabe));
    if (auto farbe = numbers::CLng(w.Wert)) liste[i].Farbe = *farbe;
    liste[i].Name = w.Name;
  }
}

void FarbenSchreiben(Schreiber& s, const Einstellungen& e, const char* abschnitt,
                     const std::vector<FarbEintrag>& liste) {
  for (std::size_t i = 0; i < liste.size(); ++i)
    s.Text(abschnitt, "Eintrag " + Nummer(e, static_cast<double>(i)),
           Nummer(e, liste[i].Farbe) + " " + liste[i].Name);
}

void FehlerMelden(EinstellungsKontext& k, const std::string& datei) {
  Einstellungen& e = k.zustand.Einstellungen;
  if (!e.IniFehler) return;
  e.IniFehler = false;
  if (!k.meldungen) return;
  forms::Message m;
  m.text = IniFehlerMeldung(datei);
  m.title = IniFehlerTitel;
  m.icon = forms::Icon::Exclamation;
  k.meldungen->show(m);
}

}  // namespace

// ---- Paths --------------------------------------------------------------------

std::string KolmIniPfad(const UmgebungsLeser& umgebung) {
  auto wert = [&](const char* name) -> std::string {
    const char* v = umgebung ? umgebung(name) : nullptr;
    return v ? std::string(v) : std::string();
  };
  if (std::string v = wert("KOLM_INI"); !v.empty()) return v;
  // A relative XDG_CONFIG_HOME is invalid by its own rules and ignored.
  if (std::string v = wert("XDG_CONFIG_HOME"); !v.empty() && fs::path(v).is_absolute())
    return (fs::path(v) / "Kolm" / "Kolm.ini").string();
  if (std::string v = wert("HOME"); !v.empty()) return (fs::path(v) / ".config" / "Kolm" / "Kolm.ini").string();
  return "Kolm.ini";
}

std::string ProjektIniPfad(const std::string& projektVerzeichnis) {
  std::string pfad = projektVerzeichnis;
  if (!pfad.empty() && pfad.back() != '/' && pfad.back() != '\\') pfad += '/';
  return pfad + "Kolmproj.ini";
}

std::string IniFehlerMeldung(const std::string& datei) {
  return "Beim schreiben in " + datei + " traten Fehler auf!";
}

const std::vector<StandardFarbe>& StandardFarben() {
  // RGB with red in the low byte: red + 256 * green + 65536 * blue.
  static const std::vector<StandardFarbe> farben = {
      {0, "Schwarz"},          {255, "Rot"},          {32768, "Grün"},        {16711680, "Blau"},
      {65535, "Gelb"},         {16711935, "Magenta"}, {16776960, "Cyan"},     {8421504, "Grau"},
      {12632256, "Hellgrau"},  {128, "Dunkelrot"},    {65280, "Hellgrün"},    {8388608, "Dunkelblau"},
      {33023, "Orange"},       {16512, "Braun"},      {8388736, "Violett"},   {16777215, "Weiß"},
  };
  return farben;
}

// ---- Reading --------------------------------------------------------------------

void EinstellungenLesen(EinstellungsKontext& k) {
  Zustand& z = k.zustand;
  forms::BusyGuard sanduhr(k.busy);
  z.Laden = Wahr;
  z.Einstellungen.IniFehler = false;
  const ProgrammEinstellungen programm = ProgrammEinstellungenLesen(k);
  if (k.projektAufloesen) k.projektAufloesen(z, programm);
  ProjektEinstellungenLesen(k);
  z.Laden = Falsch;
}

ProgrammEinstellungen ProgrammEinstellungenLesen(EinstellungsKontext& k) {
  Zustand& z = k.zustand;
  Einstellungen& e = z.Einstellungen;
  z.ProgrammIni = KolmIniPfad(k.umgebung ? k.umgebung : UmgebungsLeser([](const char* n) { return std::getenv(n); }));
  const ProfileFile p = ProfileFile::Load(z.ProgrammIni);
  const Leser l(p);

  e.ProgramDir = l.Text(kKolm, "ProgramDir", "");
  l.Ganz(kKolm, "WindowState", 0, e.WindowState);
  if (e.WindowState == 0) {
    e.Left = l.Ganz(kKolm, "Left", e.Left);
    e.Top = l.Ganz(kKolm, "Top", e.Top);
    e.Width = l.Ganz(kKolm, "Width", e.Width);
    e.Height = l.Ganz(kKolm, "Height", e.Height);
  }
  if (k.hauptfensterAnwenden) k.hauptfensterAnwenden(e);

  l.Ganz(kAuto, "Intervall", 0, z.Intervall);

  e.SkinName = l.Text(kSkin, "SkinName", "", kSkinPuffer);
  if (k.skinAnwenden) k.skinAnwenden(e.SkinName);

  ProgrammEinstellungen r;
  e.LetztesProjekt = r.LetztesProjekt = l.Text(kLetztes, "Name", "Demo Projekt");
  r.LetztesVerzeichnis = l.Text(kProjekte, r.LetztesProjekt, z.ProgrammVerzeichnis, kProjektPuffer);
  for (const std::string& name : p.KeyNames(kProjekte))
    r.Projekte.push_back({name, l.Text(kProjekte, name, z.ProgrammVerzeichnis, kProjektPuffer)});
  return r;
}

void ProjektEinstellungenLesen(EinstellungsKontext& k) {
  Zustand& z = k.zustand;
  Einstellungen& e = z.Einstellungen;
  TabellenAnsicht& a = z.Ansicht;
  const ProfileFile p = z.ProjektIni.empty() ? ProfileFile() : ProfileFile::Load(z.ProjektIni);
  const Leser l(p);

  e.ProjektTitel = l.Text(kProject, "Name", "Projekt");

  e.StandardFormat = l.Text(kFormats, "StandardFormat", "#######0.000###");
  e.ErgebnisFormat = l.Text(kFormats, "ErgebnisFormat", "#######0.000");
  e.NummernFormat = l.Text(kFormats, "NummernFormat", "###0");
  e.StationierungsFormat = l.Text(kFormats, "StationierungsFormat", "#####0.000000");
  e.WaehrungsFormat = l.Text(kFormats, "WährungsFormat", "#0.00");
  e.AusgabeFormat = l.Text(kFormats, "AusgabeFormat", "0.000");

  e.GrafikPrinter = l.Text(kPrinter, "GrafikPrinter", "");
  e.TabellenPrinter = l.Text(kPrinter, "TabellenPrinter", "");
  e.Font = l.Text(kPrinter, "Font", "Arial");
  e.FontSize = l.Mass(kPrinter, "FontSize", "12");
  e.FontBold = l.Schalter(kPrinter, "FontBold", "0");
  e.FontItalic = l.Schalter(kPrinter, "FontItalic", "0");
  e.RahmenDrucken = l.Schalter(kPrinter, "Rahmen Drucken", "-1");
  // These two key texts differ from the writer's on purpose (trailing blank).
  e.MitLVDrucken = l.Schalter(kPrinter, "MitLVDrucken", "0");
  e.MitLVDruckenLinks = l.Schalter(kPrinter, "MitLVDruckenLinks ", "0");
  e.MitLVDruckenRechts = l.Schalter(kPrinter, "MitLVDruckenRechts", "0");
  e.SchraffurWin95 = l.Schalter(kPrinter, "SchraffurWin95", "0");

  e.GrafikFont = l.Text(kGrafik, "GrafikFont", "Arial");
  e.GrafikFontSize = l.Mass(kGrafik, "GrafikFontSize", "8");
  e.GrafikFontBold = l.Schalter(kGrafik, "GrafikFontBold", "0");
  e.GrafikFontItalic = l.Schalter(kGrafik, "GrafikFontItalic", "0");
  e.KreiseEmulieren = l.Schalter(kGrafik, "Kreise Emulieren", "-1");
  a.Massstab = l.Mass(kGrafik, "Maßstab", "100");
  a.Vergleichsebene = l.Mass(kGrafik, "Vergleichsebene", "0");
  a.YOffset = l.Mass(kGrafik, "XOffset", "0");
  l.Ganz(kGrafik, "Vergleichsebene sichtbar", 1, a.VergleichsebeneSichtbar);
  l.Ganz(kGrafik, "Y-Achse sichtbar", 1, a.YAchseSichtbar);
  a.YMitte = l.Mass(kGrafik, "YMitte", "0");
  a.XMitte = l.Mass(kGrafik, "XMitte", "0");
  a.Rasterabstand = l.Mass(kGrafik, "Rasterabstand", "10");
  if (a.Rasterabstand == 0) a.Rasterabstand = 10;
  l.Ganz(kGrafik, "Achsenbeschriftung", 0, a.Achsenbeschriftung);
  l.Ganz(kGrafik, "Gitterstil", 3, a.Gitterstil);
  l.Ganz(kGrafik, "GitterFarbIndex", 8, a.GitterFarbIndex);
  l.Ganz(kGrafik, "GitterSchriftFarbIndex", 8, a.GitterSchriftFarbIndex);
  l.Ganz(kGrafik, "StandardAusrichtung", 2, z.StandardAusrichtung);
  z.StandardDistanz = l.Mass(kGrafik, "StandardDistanz", "0.1");
  if (z.StandardDistanz <= 0) z.StandardDistanz = 0.1;
  l.Ganz(kGrafik, "StandardPunktFarbe", 0, z.StandardPunktFarbe);
  l.Ganz(kGrafik, "StandardLinienFarbe", 0, z.StandardLinienFarbe);
  l.Ganz(kGrafik, "Maßstabtyp", 1, a.Massstabtyp);
  l.Ganz(kGrafik, "Logo sichtbar", 0, a.LogoSichtbar);
  l.Ganz(kGrafik, "Logo Rahmen sichtbar", 0, e.LogoRahmenSichtbar);
  e.LogoDateiname = l.Text(kGrafik, "Logo Dateiname", "");
  l.Ganz(kGrafik, "Logo Breite in cm", 4, e.LogoBreiteInCm);
  l.Ganz(kGrafik, "Logo Höhe in cm", 1, e.LogoHoeheInCm);

  l.Ganz(kPunktdarstellung, "PunktAlsKreis", 1, e.PunktAlsKreis);
  l.Ganz(kPunktdarstellung, "PunktAlsPunkt", 0, e.PunktAlsPunkt);

  l.Ganz(kDefaults, "Aktive Tabelle", -1, z.AktiveTabelle);
  e.LV = l.Text(kDefaults, "LV", "");
  const std::int32_t winkeleinheit = l.Ganz(kDefaults, "Winkeleinheit", 0);

  z.StandardVersatzBerechnen();

  // The key names follow NummernFormat as just read.
  FarbenLesen(l, e, kLinienFarben, z.LinienFarben);
  FarbenLesen(l, e, kPunktFarben, z.PunktFarben);
  for (int i = 0; i < AnzahlVariablen; ++i)
    z.Variablen[static_cast<std::size_t>(i)] = l.Mass(kVariablen, std::string(1, static_cast<char>('A' + i)), "0");
  for (std::size_t i = 0; i < z.Korrekturen.size(); ++i) {
    // Two blanks: the name of a missing entry is " (kein)".
    const WertUndName w = Zerlegen(l.Text(kKorrekturen, "Korrektur " + Nummer(e, static_cast<double>(i)), "0  (kein)"));
    z.Korrekturen[i].Wert = w.Wert;
    z.Korrekturen[i].Name = w.Name;
  }
  for (std::size_t i = 0; i < z.Kurzbezeichnungen.size(); ++i)
    z.Kurzbezeichnungen[i].Text =
        l.Text(kKurzBez, "Bezeichnung " + Nummer(e, static_cast<double>(i)), i == 0 ? "Pkt." : "");
  const std::int32_t standard = l.Ganz(kKurzBez, "Standard", 0);
  z.StandardKurzBezeichnung = static_cast<Integer>(standard >= 0 && standard < AnzahlKurzbezeichnungen ? standard : 0);
  for (std::size_t i = 0; i < z.Kurzbezeichnungen.size(); ++i)
    l.Ganz(kDarstellung, "Bezeichnung " + Nummer(e, static_cast<double>(i)), 0, z.Kurzbezeichnungen[i].Darstellung);
  for (std::size_t i = 0; i < z.Kurzbezeichnungen.size(); ++i)
    l.Ganz(kBeschriftung, "Bezeichnung " + Nummer(e, static_cast<double>(i)), 0, z.Kurzbezeichnungen[i].Beschriftung);

  // An entry the angle unit list does not have leaves the unit as it was.
  if (winkeleinheit >= 0 && winkeleinheit <= 2) e.Winkeleinheit = static_cast<Integer>(winkeleinheit);
  z.WinkelFaktor = numbers::WinkelFaktorFuer(e.Winkeleinheit);
  if (k.winkeleinheitAnwenden) k.winkeleinheitAnwenden(e.Winkeleinheit);

  // Rounded as an Integer takes it, clamped before any conversion.
  const double anzahl = numbers::RundeHalbGerade(l.Anzahl(kTabelle, "AnzahlPunkte", "999"));
  z.PunkteDimensionieren(static_cast<long long>(std::clamp<double>(anzahl, MinAnzahlPunkte, MaxAnzahlPunkte)));
}

// ---- Writing --------------------------------------------------------------------

bool EinstellungenSchreiben(EinstellungsKontext& k) {
  Zustand& z = k.zustand;
  z.Einstellungen.IniFehler = false;
  const bool programm = ProgrammEinstellungenSchreiben(k);
  FehlerMelden(k, z.ProgrammIni);
  const bool projekt = ProjektEinstellungenSchreiben(k);
  FehlerMelden(k, z.ProjektIni);
  return programm && projekt;
}

bool ProgrammEinstellungenSchreiben(EinstellungsKontext& k) {
  Zustand& z = k.zustand;
  Einstellungen& e = z.Einstellungen;
  ProfileFile p = ProfileFile::Load(z.ProgrammIni);
  Schreiber s(p);
  s.Text(kKolm, "ProgramDir", e.ProgramDir);
  s.Text(kKolm, "WindowState", Allgemein(e.WindowState));
  if (e.WindowState == 0) {
    s.Text(kKolm, "Left", Allgemein(e.Left));
    s.Text(kKolm, "Top", Allgemein(e.Top));
    s.Text(kKolm, "Width", Allgemein(e.Width));
    s.Text(kKolm, "Height", Allgemein(e.Height));
  }
  s.Text(kAuto, "Intervall", Allgemein(z.Intervall));
  // The project open now is the one to come back to.
  if (!z.ProjektName.empty()) e.LetztesProjekt = z.ProjektName;
  s.Text(kLetztes, "Name", e.LetztesProjekt);
  s.Text(kSkin, "SkinName", e.SkinName);

  const fs::path ordner = fs::path(z.ProgrammIni).parent_path();
  std::error_code ec;
  if (!ordner.empty()) fs::create_directories(ordner, ec);
  // The keys that were taken are saved even when one was refused.
  const bool gespeichert = Speichern(p, z.ProgrammIni);
  const bool ok = s.ok() && gespeichert;
  if (!ok) e.IniFehler = true;
  return ok;
}

bool ProjektEinstellungenSchreiben(EinstellungsKontext& k) {
  Zustand& z = k.zustand;
  Einstellungen& e = z.Einstellungen;
  const TabellenAnsicht& a = z.Ansicht;
  if (z.ProjektIni.empty()) return true;
  ProfileFile p = ProfileFile::Load(z.ProjektIni);
  Schreiber s(p);
  auto nummer = [&](double x) { return Nummer(e, x); };

  s.Text(kProject, "Name", e.ProjektTitel);

  s.Text(kFormats, "StandardFormat", e.StandardFormat);
  s.Text(kFormats, "ErgebnisFormat", e.ErgebnisFormat);
  s.Text(kFormats, "NummernFormat", e.NummernFormat);
  s.Text(kFormats, "StationierungsFormat", e.StationierungsFormat);
  s.Text(kFormats, "WährungsFormat", e.WaehrungsFormat);
  s.Text(kFormats, "AusgabeFormat", e.AusgabeFormat);

  s.Text(kPrinter, "GrafikPrinter", e.GrafikPrinter);
  s.Text(kPrinter, "TabellenPrinter", e.TabellenPrinter);
  s.Text(kPrinter, "Font", e.Font);
  s.Text(kPrinter, "FontSize", Allgemein(e.FontSize));
  s.Text(kPrinter, "FontBold", nummer(e.FontBold));
  s.Text(kPrinter, "FontItalic", nummer(e.FontItalic));
  s.Text(kPrinter, "Rahmen Drucken", nummer(e.RahmenDrucken));
  // These two key texts differ from the reader's on purpose (trailing blank).
  s.Text(kPrinter, "MitLVDrucken ", nummer(e.MitLVDrucken));
  s.Text(kPrinter, "MitLVDruckenLinks", nummer(e.MitLVDruckenLinks));
  s.Text(kPrinter, "MitLVDruckenRechts", nummer(e.MitLVDruckenRechts));
  s.Text(kPrinter, "SchraffurWin95", nummer(e.SchraffurWin95));

  s.Text(kGrafik, "GrafikFont", e.GrafikFont);
  s.Text(kGrafik, "GrafikFontSize", Allgemein(e.GrafikFontSize));
  s.Text(kGrafik, "GrafikFontBold", nummer(e.GrafikFontBold));
  s.Text(kGrafik, "GrafikFontItalic", nummer(e.GrafikFontItalic));
  s.Text(kGrafik, "Kreise Emulieren", nummer(e.KreiseEmulieren));
  s.Text(kGrafik, "Maßstab", numbers::ZahlText(a.Massstab, e.ErgebnisFormat));
  s.Text(kGrafik, "Vergleichsebene", Allgemein(a.Vergleichsebene));
  s.Text(kGrafik, "XOffset", Allgemein(a.YOffset));
  s.Text(kGrafik, "Vergleichsebene sichtbar", nummer(a.VergleichsebeneSichtbar));
  s.Text(kGrafik, "Y-Achse sichtbar", nummer(a.YAchseSichtbar));
  s.Text(kGrafik, "YMitte", Allgemein(a.YMitte));
  s.Text(kGrafik, "XMitte", Allgemein(a.XMitte));
  s.Text(kGrafik, "Rasterabstand", numbers::ZahlText(a.Rasterabstand, e.ErgebnisFormat));
  s.Text(kGrafik, "Achsenbeschriftung", nummer(a.Achsenbeschriftung));
  s.Text(kGrafik, "Gitterstil", nummer(a.Gitterstil));
  s.Text(kGrafik, "GitterFarbIndex", nummer(a.GitterFarbIndex));
  s.Text(kGrafik, "GitterSchriftFarbIndex", nummer(a.GitterSchriftFarbIndex));
  s.Text(kGrafik, "StandardAusrichtung", nummer(z.StandardAusrichtung));
  s.Text(kGrafik, "StandardDistanz", Allgemein(z.StandardDistanz));
  s.Text(kGrafik, "StandardPunktFarbe", nummer(z.StandardPunktFarbe));
  s.Text(kGrafik, "StandardLinienFarbe", nummer(z.StandardLinienFarbe));
  s.Text(kGrafik, "Maßstabtyp", nummer(a.Massstabtyp));
  s.Text(kGrafik, "Logo sichtbar", nummer(a.LogoSichtbar));
  s.Text(kGrafik, "Logo Rahmen sichtbar", nummer(e.LogoRahmenSichtbar));
  s.Text(kGrafik, "Logo Dateiname", e.LogoDateiname);
  s.Text(kGrafik, "Logo Breite in cm", nummer(e.LogoBreiteInCm));
  s.Text(kGrafik, "Logo Höhe in cm", nummer(e.LogoHoeheInCm));

  s.Text(kPunktdarstellung, "PunktAlsKreis", nummer(e.PunktAlsKreis));
  s.Text(kPunktdarstellung, "PunktAlsPunkt", nummer(e.PunktAlsPunkt));

  s.Text(kDefaults, "Aktive Tabelle", nummer(z.AktiveTabelle));
  s.Text(kDefaults, "LV", e.LV);
  s.Text(kDefaults, "Winkeleinheit", nummer(e.Winkeleinheit));

  s.Text(kTabelle, "AnzahlPunkte", nummer(z.AnzahlPunkte));

  FarbenSchreiben(s, e, kLinienFarben, z.LinienFarben);
  FarbenSchreiben(s, e, kPunktFarben, z.PunktFarben);
  for (int i = 0; i < AnzahlVariablen; ++i)
    s.Text(kVariablen, std::string(1, static_cast<char>('A' + i)),
           numbers::ZahlText(z.Variablen[static_cast<std::size_t>(i)], e.StandardFormat));
  for (std::size_t i = 0; i < z.Korrekturen.size(); ++i)
    s.Text(kKorrekturen, "Korrektur " + nummer(static_cast<double>(i)),
           Allgemein(z.Korrekturen[i].Wert) + " " + z.Korrekturen[i].Name);
  for (std::size_t i = 0; i < z.Kurzbezeichnungen.size(); ++i)
    s.Text(kKurzBez, "Bezeichnung " + nummer(static_cast<double>(i)), z.Kurzbezeichnungen[i].Text);
  s.Text(kKurzBez, "Standard", nummer(z.StandardKurzBezeichnung));
  for (std::size_t i = 0; i < z.Kurzbezeichnungen.size(); ++i)
    s.Text(kDarstellung, "Bezeichnung " + nummer(static_cast<double>(i)), nummer(z.Kurzbezeichnungen[i].Darstellung));
  for (std::size_t i = 0; i < z.Kurzbezeichnungen.size(); ++i)
    s.Text(kBeschriftung, "Bezeichnung " + nummer(static_cast<double>(i)),
           nummer(z.Kurzbezeichnungen[i].Beschriftung));

  const bool gespeichert = Speichern(p, z.ProjektIni);
  const bool ok = s.ok() && gespeichert;
  if (!ok) e.IniFehler = true;
  return ok;
}

}  // namespace kolm::core
