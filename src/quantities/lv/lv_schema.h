#pragma once
// The schema of the bill-of-quantities database LV.MDB: one table
// Leistungsverzeichnis with the index LVNr, kept as an SQLite file.
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "quantities/lv/sqlite.h"

namespace kolm::quantities {

inline constexpr std::string_view kLVTabelle = "Leistungsverzeichnis";
inline constexpr std::string_view kLVIndex = "LVNr";

// PRAGMA user_version of the schema below. 0 stands for a file made before
// the version was kept; its columns tell what it holds.
inline constexpr int kLVSchemaVersion = 1;

inline constexpr std::int64_t kLinienfarbeVorgabe = 0;
inline constexpr int kLinienstaerkeVorgabe = 1;
inline constexpr int kMusterVorgabe = 0;
inline constexpr std::int64_t kFuellfarbeVorgabe = 16711680;  // blue, red in the low byte

// Boolean columns hold 0 and -1, the values of the classic True and False.
inline constexpr int kWahr = -1;

struct LVSpalte {
  std::string_view name;  // as stored, umlauts included
  std::string_view typ;
  std::string_view vorgabe;  // DEFAULT value; empty: none
};

// All columns in their order.
std::span<const LVSpalte> LVSpalten();
// The five style columns that an older database lacks, in the order the
// upgrade adds them.
std::span<const LVSpalte> LVStilSpalten();

// "name" TYPE [DEFAULT v], the same text for CREATE and ALTER TABLE.
std::string LVSpaltenDefinition(const LVSpalte& spalte);

// Creates table and index in an empty database and sets user_version.
bool LVSchemaAnlegen(Database& db);

// Writes the empty template to pfad, replacing a file there atomically.
// False when it could not be written; a file already there is then intact.
bool LVMusterErzeugen(const std::string& pfad);

// The statement of the upgrade as the program sends it, word for word.
extern const std::string_view kLVStilUpdate;

// SQLite refuses a table prefix on the columns of an UPDATE's SET list
// ("SET Leistungsverzeichnis.Muster = 0"). The prefix "Leistungsverzeichnis."
// is dropped outside quoted literals; nothing else changes.
std::string SqliteDialekt(std::string_view sql);

}  // namespace kolm::quantities
