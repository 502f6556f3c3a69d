#pragma once
// The values of the settings files "Kolm.ini" and "Kolmproj.ini" that have no
// other home in the state. Zustand holds one Einstellungen; the values that
// the tables and the graphic use directly live in Zustand itself:
//   Intervall, AktiveTabelle, AnzahlPunkte, WinkelFaktor, StandardDistanz,
//   StandardAusrichtung, StandardPunktFarbe, StandardLinienFarbe,
//   StandardKurzBezeichnung, the colour lists, Kurzbezeichnungen,
//   Korrekturen, Variablen, and the "Grafik Defaults" Massstab ..
//   Massstabtyp, LogoSichtbar (as Zustand::Ansicht; the key "XOffset" holds
//   Ansicht.YOffset).
#include <string>

#include "core/records/records.h"

namespace kolm::core {

struct Einstellungen {
  // ---- "Kolm.ini" -------------------------------------------------------------
  std::string ProgramDir;  // as stored; the start-up decides what a blank means
  // State of Main: 0 normal, 1 minimised, 2 maximised. Left .. Height are
  // Main's position, read and written only while WindowState is 0; the
  // shell keeps them current.
  Integer WindowState = 0;
  Long Left = 0, Top = 0, Width = 0, Height = 0;
  std::string SkinName;
  std::string LetztesProjekt = "Demo Projekt";  // "last project", Name

  // ---- "Kolmproj.ini" ---------------------------------------------------------
  // The name the project file gives its project ("Project", Name); the start
  // shows it for a project given on the command line.
  std::string ProjektTitel = "Projekt";

  std::string StandardFormat = "#######0.000###";
  std::string ErgebnisFormat = "#######0.000";
  std::string NummernFormat = "###0";
  std::string StationierungsFormat = "#####0.000000";
  std::string WaehrungsFormat = "#0.00";
  std::string AusgabeFormat = "0.000";

  std::string GrafikPrinter;
  std::string TabellenPrinter;
  std::string Font = "Arial";
  double FontSize = 12;
  Flag FontBold = Falsch;
  Flag FontItalic = Falsch;
  Flag RahmenDrucken = Wahr;
  Flag MitLVDrucken = Falsch;
  Flag MitLVDruckenLinks = Falsch;
  Flag MitLVDruckenRechts = Falsch;
  Flag SchraffurWin95 = Falsch;

  std::string GrafikFont = "Arial";
  double GrafikFontSize = 8;
  Flag GrafikFontBold = Falsch;
  Flag GrafikFontItalic = Falsch;
  Flag KreiseEmulieren = Wahr;
  Integer LogoRahmenSichtbar = 0;
  std::string LogoDateiname;
  Integer LogoBreiteInCm = 4;
  Integer LogoHoeheInCm = 1;

  Integer PunktAlsKreis = 1;
  Integer PunktAlsPunkt = 0;

  std::string LV;  // last used position list
  // Entry of ComboWinkelEinheit: 0 "Neugrad", 1 "Altgrad", 2 "Radiant".
  Integer Winkeleinheit = 0;

  // Set by every failed write to a settings file; the writer reports it once
  // per file and clears it.
  bool IniFehler = false;
};

}  // namespace kolm::core
