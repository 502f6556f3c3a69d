#include "quantities/lv/lv_schema.h"

#include <array>
#include <cctype>

#include "core/io/files.h"

namespace kolm::quantities {

namespace {

// Datum is ISO text "yyyy-mm-dd hh:mm:ss" in local time: readable in any
// SQLite tool, ordered as text, understood by SQLite's date functions, and
// exact to the second without the rounding of a day-fraction number.
constexpr std::array<LVSpalte, 16> kSpalten{{
    {"LVNr", "TEXT", ""},
    {"MLVNr", "TEXT", ""},
    {"KurzText", "TEXT", ""},
    {"KurzBez", "TEXT", ""},
    {"Einheit", "TEXT", ""},
    {"Lohn", "REAL", ""},
    {"Sonstiges", "REAL", ""},
    {"Einheitspreis", "REAL", ""},
    {"EndAusmaß", "REAL", ""},
    {"GesamtPreis", "REAL", ""},
    {"Datum", "TEXT", ""},
    {"Linienfarbe", "INTEGER", "0"},
    {"Linienstärke", "INTEGER", "1"},
    {"Flächenfüllung", "INTEGER", "0"},
    {"Muster", "INTEGER", "0"},
    {"Füllfarbe", "INTEGER", "16711680"},
}};

constexpr size_t kErsteStilSpalte = 11;

std::string Bezeichner(std::string_view name) {
  std::string out = "\"";
  for (char c : name) {
    if (c == '"') out += '"';
    out += c;
  }
  return out + "\"";
}

}  // namespace

const std::string_view kLVStilUpdate =
    "UPDATE Leistungsverzeichnis SET Leistungsverzeichnis.Linienfarbe = 0, "
    "Leistungsverzeichnis.Linienstärke = 1, Leistungsverzeichnis.Flächenfüllung = 0, "
    "Leistungsverzeichnis.Muster = 0, Leistungsverzeichnis.Füllfarbe = 16711680";

std::span<const LVSpalte> LVSpalten() { return kSpalten; }

std::span<const LVSpalte> LVStilSpalten() {
  return std::span<const LVSpalte>(kSpalten).subspan(kErsteStilSpalte);
}

std::string LVSpaltenDefinition(const LVSpalte& spalte) {
  std::string out = Bezeichner(spalte.name) + " " + std::string(spalte.typ);
  if (!spalte.vorgabe.empty()) out += " DEFAULT " + std::string(spalte.vorgabe);
  return out;
}

bool LVSchemaAnlegen(Database& db) {
  std::string sql = "CREATE TABLE " + Bezeichner(kLVTabelle) + " (";
  for (size_t i = 0; i < kSpalten.size(); ++i) {
    if (i) sql += ", ";
    sql += LVSpaltenDefinition(kSpalten[i]);
  }
  sql += ");\nCREATE INDEX " + Bezeichner(kLVIndex) + " ON " + Bezeichner(kLVTabelle) + " (" +
         Bezeichner("LVNr") + ");\n";
  sql += "PRAGMA user_version = " + std::to_string(kLVSchemaVersion) + ";";
  if (!db.execute("BEGIN")) return false;
  if (!db.execute(sql)) {
    db.execute("ROLLBACK");
    return false;
  }
  return db.execute("COMMIT");
}

bool LVMusterErzeugen(const std::string& pfad) {
  // Built in memory and written by the one atomic writer, so a failure
  // leaves no half-made file and no journal behind.
  Database db;
  if (!db.open(":memory:", Database::Access::Create) || !LVSchemaAnlegen(db)) return false;
  const std::string bytes = db.serialize();
  if (bytes.empty()) return false;
  return core::io::WriteFileAtomically(pfad, bytes);
}

std::string SqliteDialekt(std::string_view sql) {
  constexpr std::string_view praefix = "Leistungsverzeichnis.";
  std::string out;
  out.reserve(sql.size());
  bool imLiteral = false;
  for (size_t i = 0; i < sql.size();) {
    if (sql[i] == '\'') {
      imLiteral = !imLiteral;  // a doubled quote toggles twice
      out += sql[i++];
      continue;
    }
    const bool wortanfang = i == 0 || !(std::isalnum(static_cast<unsigned char>(sql[i - 1])) ||
                                        sql[i - 1] == '_' || sql[i - 1] == '.');
    if (!imLiteral && wortanfang && sql.compare(i, praefix.size(), praefix) == 0) {
      i += praefix.size();
      continue;
    }
    out += sql[i++];
  }
  return out;
}

}  // namespace kolm::quantities
