#pragma once
// The catalogue of a project's tables in its two files: "Tabellen.ini", the
// older eight-lines-a-row form, and "Tabelle2.ini", which adds the view
// fields of each row in its eighth line. Both hold one value a line in the
// write format of ".ber", in Windows-1252 with CR LF.
#include <string>

#include "core/state/zustand.h"
#include "forms/services.h"

namespace kolm::core {

inline constexpr const char* KatalogDateiAlt = "Tabellen.ini";
inline constexpr const char* KatalogDateiNeu = "Tabelle2.ini";

// What reading and writing the catalogue reach.
struct KatalogKontext {
  Zustand& zustand;
  forms::MessageService* meldungen = nullptr;
  // While the program starts, a missing catalogue is not reported.
  bool startLaeuft = false;

  explicit KatalogKontext(Zustand& z) : zustand(z) {}
  KatalogKontext(Zustand& z, const forms::Services& s) : zustand(z), meldungen(s.messages) {}
};

// The message of a project folder without catalogue (title "Kolm").
forms::Message KeinKatalogMeldung(const std::string& verzeichnis);

// Reads rows 0 .. 500 from the files of ProjektVerzeichnis:
// - a missing "Tabelle2.ini" is first made as a copy of "Tabellen.ini";
// - without either file the catalogue is cleared and, unless the start is
//   in progress, KeinKatalogMeldung shown; the result is then false;
// - rows past the end of the file have empty texts, Stationierung 0 and the
//   global flags and view values;
// - an eighth line of 10 characters or more holds the sixteen values of
//   Falschdrehend and the view fields; a shorter one only Falschdrehend, the
//   view fields then take the global values;
// - when "Tabellen.ini" is newer than "Tabelle2.ini" (equal times keep the
//   latter), names, stems, Stationierung and flags come from it.
// Numbers are read by the plain parse, so text that is no number reads as
// 0; a value beyond the number range, or a position missing from the eighth
// line, keeps the global value (Stationierung: 0). A Rasterabstand of 0
// becomes 10.
bool KatalogLesen(KatalogKontext& k);

// Writes both files anew, "Tabellen.ini" first, each atomically, with the
// rows that have a name, packed. True when both were written. The format
// has no escapes: a text ends at a line break in it, and a double quote in
// it is written as a single quote.
bool KatalogSchreiben(KatalogKontext& k);

// The bytes KatalogSchreiben puts into the two files.
std::string KatalogAltBytes(const Zustand& z);
std::string KatalogNeuBytes(const Zustand& z);

// Sorts the catalogue: rows with a name are moved up over the blank ones,
// then neighbours are ordered by the first `buchstaben` characters of the
// name without regard to case, then by Stationierung, then by the whole
// name. AktiveTabelle then names the first row holding the name the active
// row had (-1 when it had none). `buchstaben` below 0 counts as 0.
void TabellenSortieren(Zustand& z, int buchstaben);

// A row in use: TablName is not blank.
bool ZeileBenannt(const Tabelle& t);


}  // namespace kolm::core
