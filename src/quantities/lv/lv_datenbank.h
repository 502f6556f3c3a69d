#pragma once
// The bill-of-quantities database of a project: LV.MDB in the project
// folder, made from the template LVMuster.MDB of the program data. Every
// function opens the file for its own work and closes it again; none throws,
// and a missing or damaged file gives the outcome described at each.
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/services.h"
#include "points/numbers/date.h"

namespace kolm::quantities {

inline constexpr std::string_view kLVDateiname = "LV.MDB";
inline constexpr std::string_view kLVAltDateiname = "LV_ALT.MDB";
inline constexpr std::string_view kLVMusterDateiname = "LVMuster.MDB";

// Folder + file name; a separator is put between them when the folder lacks
// one at its end.
std::string LVDatei(const std::string& projektVerzeichnis);
std::string LVMusterDatei(const std::string& programmVerzeichnis);

// True when the file begins as an Access (Jet or ACE) database does.
bool LVAccessDatei(const std::string& pfad);

// ---- Template ---------------------------------------------------------------

enum class LVVorlage {
  Kopiert,          // LV.MDB is now a copy of the template
  Behalten,         // LV.MDB existed and the user kept it
  VorlageFehlt,     // the template is missing; the message was shown
  Fehlgeschlagen,   // copying failed; an LV.MDB that was there is intact
};

// Gives the project an LV.MDB from the template, asking before replacing one
// that exists. Without a message service no box is shown and an existing
// file is kept.
LVVorlage LVVorlageKopieren(const std::string& projektVerzeichnis, const std::string& programmVerzeichnis,
                            forms::MessageService* meldungen);

// ---- Upgrade ----------------------------------------------------------------

// Brings LV.MDB to the current schema. True when there is nothing to do (no
// file, or the style columns are there) or the upgrade succeeded:
// - an Access file is copied to LV_ALT.MDB and LV.MDB is replaced by an empty
//   database of the current schema (its rows are not carried over); the
//   status line says so;
// - an SQLite file without the column Linienfarbe gets the style columns
//   with their defaults, every row the style values, and the schema version.
// False for a file that is damaged or no bill-of-quantities database; it is
// left as it was. False also when a step failed; LV.MDB is then unchanged.
bool LVAktualisieren(const std::string& projektVerzeichnis, forms::StatusLine* status = nullptr);

// ---- Positions --------------------------------------------------------------

// The first 12 characters, right-aligned with blanks to 12.
std::string LVNrAusrichten(std::string_view lvnr);

// The KurzText of the row whose LVNr is exactly the first 12 characters of
// lvnr12; empty when LV.MDB or the row is missing or unreadable.
std::string LVKurzText(const std::string& projektVerzeichnis, std::string_view lvnr12);

struct LVListenEintrag {
  std::string lvnr, kurzText, kurzBez;  // NULL reads as empty
  bool operator==(const LVListenEintrag&) const = default;
};

// Every row by "SELECT LVNr, KurzText, KurzBez FROM Leistungsverzeichnis;",
// in the order the database gives. Nothing when LV.MDB is missing or cannot
// be read to the end.
std::optional<std::vector<LVListenEintrag>> LVListeLesen(const std::string& projektVerzeichnis);

struct LVPosition {
  std::string lvnr;
  std::string mlvnr;     // at most 12 characters are kept
  std::string kurzText;  // at most 50
  std::string kurzBez;   // at most 2
  std::optional<std::string> einheit;  // at most 10; nothing is NULL
  std::optional<double> lohn, sonstiges, einheitspreis, endAusmass, gesamtPreis;
  std::optional<numbers::Zeitpunkt> datum;
  std::int64_t linienfarbe = 0;
  int linienstaerke = 1;
  bool flaechenfuellung = false;
  int muster = 0;
  std::int64_t fuellfarbe = 16711680;
};

enum class LVNrForm {
  Ausrichten,  // as the editing dialog stores it
  WieGegeben,  // as the import of a position list stores it
};

// Adds one row to an existing LV.MDB. False when the file is missing or the
// row could not be written; nothing else changes then.
bool LVPositionHinzufuegen(const std::string& projektVerzeichnis, const LVPosition& position,
                           LVNrForm form = LVNrForm::Ausrichten);

// ---- Datum ------------------------------------------------------------------

// "yyyy-mm-dd hh:mm:ss", the stored form of Datum.
std::string LVDatumText(const numbers::Zeitpunkt& t);
// Nothing for a text that is not of that form or not a real time of day.
std::optional<numbers::Zeitpunkt> LVDatumLesen(std::string_view text);

}  // namespace kolm::quantities
