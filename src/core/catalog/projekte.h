#pragma once
// Projects as folders: the list of known projects in "Kolm.ini", what makes
// a folder a project and its name, and which files a copy of a project
// takes along.
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/state/zustand.h"
#include "forms/services.h"

namespace kolm::core {

inline constexpr const char* ProjektDatei = "Kolmproj.ini";
inline constexpr const char* LVDatei = "LV.MDB";

// ---- Known projects ----------------------------------------------------------

struct BekannteProjekte {
  bool dateiGefunden = false;
  // Entries in file order, as spelled there.
  std::vector<std::string> namen;
  // When the file is missing: "Initialisierungsdatei '...' konnte nicht
  // gefunden werden!" (title "Kolm").
  std::optional<forms::Message> meldung;
};

// Reads the file as text, line by line: from a line "[Projects]" (blanks
// around it ignored, the name without regard to case) to the next line
// starting with "[", each line's text before its first "=" is an entry,
// blanks trimmed. Lines without "=", with nothing before it or starting
// with ";" give none. A second such section adds its entries too.
BekannteProjekte BekannteProjekteLesen(const std::string& iniPfad);

// ---- Project identity --------------------------------------------------------

// A folder is a project exactly when "Kolmproj.ini" is in it (that exact
// name). Backslashes in the folder stand for the platform separator; a
// missing trailing separator is added.
bool IstProjektOrdner(std::string_view ordner);
// Key Name of section "Project" of its "Kolmproj.ini" (a buffer of 40, as
// the settings read texts); "Unbekanntes Projekt" when the key is missing.
std::string ProjektNameIn(std::string_view ordner);

// The label of ProjektÖffnen for a chosen folder.
struct ProjektOrdnerInfo {
  bool istProjekt = false;  // OK is enabled exactly then
  std::string name;
  std::string text;  // "Projekt '...' öffnen" or "Kein Projekt in diesem Verzeichnis vorhanden!"
};
ProjektOrdnerInfo ProjektOrdnerPruefen(std::string_view ordner);

// ---- Copying a project -------------------------------------------------------

struct KopierSchritt {
  std::string datei;   // the file name alone
  std::string quelle;  // full path in the project folder
  std::string ziel;    // full path in the target folder
  // "Kopiere " + datei + " [" + source folder + "] nach [" + target
  // folder + "]"; empty for the four project files, which are copied while
  // "Projekt ... erstellen" is shown.
  std::string text;
};

// The files a copy of the project in `quellOrdner` to `zielOrdner` takes, in
// order: "Kolmproj.ini", "Tabellen.ini", "Tabelle2.ini", "LV.MDB" where
// present; then for each row 0 .. 500 with a Dateiname every file of the
// folder whose name starts with Dateiname, then likewise with PktDateiName
// (when not blank). Names start alike without regard to ASCII case, since
// projects made on Windows may spell a stem otherwise than its files; files
// of one row come in name order. Each file is listed once, at its first
// occurrence. Folders are not copied.
std::vector<KopierSchritt> ProjektKopieDateien(const Zustand& z, std::string_view quellOrdner,
                                               std::string_view zielOrdner);

}  // namespace kolm::core
