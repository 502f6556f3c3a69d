#pragma once
// Reading and writing the settings files "Kolm.ini" (program) and
// "Kolmproj.ini" (project). Each file is loaded once and saved once per call.
//
// How the start-up uses it:
//   EinstellungenLesen(k) runs every step: ProgrammEinstellungenLesen, then
//   k.projektAufloesen (the start-up's choice of the project: it sets
//   ProjektName, ProjektVerzeichnis and ProjektIni), then
//   ProjektEinstellungenLesen. Without projektAufloesen the project that
//   Zustand names already stays, as when a project is opened.
//   The parts may also be called one by one.
//
// Numbers read from the files
// - Integer keys are read as integers; a value outside the field's range
//   leaves the field as it was.
// - Text keys holding a measure (FontSize, GrafikFontSize, "Maßstab",
//   Vergleichsebene, XOffset, YMitte, XMitte, Rasterabstand, StandardDistanz,
//   the variables, the colour and correction values) are read by the
//   comma-tolerant ZahlLesen, so "0,25" typed by hand is 0.25. Text keys
//   holding a flag or a count (FontBold .. SchraffurWin95, GrafikFontBold,
//   GrafikFontItalic, "Kreise Emulieren", AnzahlPunkte) by the plain Val.
//   A flag is true when its number is not 0 and is kept as -1.
//
// Numbers written to "Kolmproj.ini": integers and flags by NummernFormat,
// "Maßstab" and Rasterabstand by ErgebnisFormat, the variables by
// StandardFormat; the other measures and the correction values in the
// general number form with "." (nothing is lost). "Kolm.ini" takes its
// integers in the general number form, independent of a project's format.
// The decimal character is "." whatever the locale.
//
// Defaults of the list sections where a key is missing:
// - "Linien Farben" and "Punkt Farben": entries 0 .. 15 are the colours of
//   StandardFarben(), the others empty (colour 0, no name).
// - "Korrekturen": value 0, name " (kein)".
// - "Punkt-Kurzbezeichnungen": entry 0 "Pkt.", the others blank; every
//   Darstellung and Beschriftung 0; Standard 0.
// - "Variables": 0.
#include <functional>
#include <string>
#include <vector>

#include "core/records/records.h"
#include "core/state/zustand.h"
#include "forms/services.h"

namespace kolm::core {

// getenv, passed in so the rules on the environment can be tested.
using UmgebungsLeser = std::function<const char*(const char*)>;

// Path of "Kolm.ini": the file named by KOLM_INI when set and not empty, else
// $XDG_CONFIG_HOME/Kolm/Kolm.ini when that is an absolute path, else
// $HOME/.config/Kolm/Kolm.ini; "Kolm.ini" in the current folder when not even
// HOME is known.
std::string KolmIniPfad(const UmgebungsLeser& umgebung);

// ProjektVerzeichnis (ending in a separator) + "Kolmproj.ini".
std::string ProjektIniPfad(const std::string& projektVerzeichnis);

// The message of a failed write, once per file.
std::string IniFehlerMeldung(const std::string& datei);
inline constexpr const char* IniFehlerTitel = "Kolm";

// A named colour of the default lists: Farbe is an RGB value with red in
// the low byte (red is 255).
struct StandardFarbe {
  Long Farbe;
  const char* Name;
};
// "Schwarz", "Rot", "Grün", "Blau", "Gelb", "Magenta", "Cyan", "Grau",
// "Hellgrau", "Dunkelrot", "Hellgrün", "Dunkelblau", "Orange", "Braun",
// "Violett", "Weiß": entries 0 .. 15 of both colour lists until the project
// says otherwise.
const std::vector<StandardFarbe>& StandardFarben();

// What "Kolm.ini" tells about the projects, for the start-up to resolve.
struct ProjektEintrag {
  std::string Name;
  std::string Verzeichnis;
};
struct ProgrammEinstellungen {
  std::string LetztesProjekt;        // "last project", Name; "Demo Projekt" when missing
  // Its entry of "projects"; ProgrammVerzeichnis when it has none.
  std::string LetztesVerzeichnis;
  std::vector<ProjektEintrag> Projekte;  // "projects", in file order
};

// What the settings reach besides the state. Every hook and service may be
// missing.
struct EinstellungsKontext {
  Zustand& zustand;
  // getenv for KolmIniPfad; std::getenv when empty.
  UmgebungsLeser umgebung;
  forms::MessageService* meldungen = nullptr;
  forms::BusyCursor* busy = nullptr;
  // Applies WindowState and, when it is 0, Left .. Height to Main.
  std::function<void(const Einstellungen&)> hauptfensterAnwenden;
  // Applies the skin of the name read.
  std::function<void(const std::string& skinName)> skinAnwenden;
  // The start-up's resolution of the project (last project, its folder, the
  // message when that is missing); sets ProjektName, ProjektVerzeichnis and
  // ProjektIni of the state.
  std::function<void(Zustand&, const ProgrammEinstellungen&)> projektAufloesen;
  // Selects the entry of ComboWinkelEinheit; WinkelFaktor is already set.
  std::function<void(int winkeleinheit)> winkeleinheitAnwenden;

  explicit EinstellungsKontext(Zustand& z) : zustand(z) {}
  EinstellungsKontext(Zustand& z, const forms::Services& s)
      : zustand(z), meldungen(s.messages), busy(s.busy) {}
};

// All steps of reading both files: Laden set while it runs, IniFehler
// cleared, the busy cursor shown.
void EinstellungenLesen(EinstellungsKontext& k);

// Sets ProgrammIni from the environment and reads "Kolm.ini": section "kolm"
// (ProgramDir, WindowState, and Left .. Height while WindowState is 0),
// Intervall, SkinName, the last project and the projects. Applies the window
// state of Main and the skin through the hooks.
ProgrammEinstellungen ProgrammEinstellungenLesen(EinstellungsKontext& k);

// Reads ProjektIni (a missing file or an empty name gives every default):
// every key, the caption offsets of new points, the list sections, the
// angle unit, AnzahlPunkte with the resizing of Punkte.
void ProjektEinstellungenLesen(EinstellungsKontext& k);

// Writes both files, each loaded once and saved once; a failed file shows
// IniFehlerMeldung once and clears IniFehler. True when both were written.
// "last project" takes ProjektName (LetztesProjekt when no project is open).
// "Kolm.ini" keeps every other section (the window positions, "projects")
// and its folder is made when missing; "Kolmproj.ini" is made when the
// project has none. Without a ProjektIni only "Kolm.ini" is written.
bool EinstellungenSchreiben(EinstellungsKontext& k);

// The two halves, without message: true when the file now holds the
// settings; false sets IniFehler.
bool ProgrammEinstellungenSchreiben(EinstellungsKontext& k);
bool ProjektEinstellungenSchreiben(EinstellungsKontext& k);

}  // namespace kolm::core
