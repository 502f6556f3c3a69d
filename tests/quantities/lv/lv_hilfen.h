#pragma once
// Shared pieces of the LV database tests: a folder of their own, and a look
// into a database file through the plain SQLite C API, independent of the
// code under test.
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <stdlib.h>

#include <algorithm>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

#include "core/io/files.h"
#include "support/test_ordner.h"

namespace kolm::quantities::testhilfen {

namespace fs = std::filesystem;

struct Ordner : ::kolm::testhilfen::TestOrdner {
  Ordner() : TestOrdner("lv") {}
};

// Rows of a query as texts; NULL reads as "<NULL>". A failure gives one row
// holding "<FEHLER>" and SQLite's message.
using Zeilen = std::vector<std::vector<std::string>>;

inline Zeilen Abfrage(const std::string& datei, const std::string& sql) {
  sqlite3* db = nullptr;
  Zeilen zeilen;
  if (sqlite3_open_v2(datei.c_str(), &db, SQLITE_OPEN_READONLY, nullptr) != SQLITE_OK) {
    sqlite3_close(db);
    return {{"<FEHLER>", "open"}};
  }
  sqlite3_stmt* st = nullptr;
  if (sqlite3_prepare_v2(db, sql.c_str(), -1, &st, nullptr) != SQLITE_OK) {
    zeilen = {{"<FEHLER>", sqlite3_errmsg(db)}};
    sqlite3_close(db);
    return zeilen;
  }
  int rc;
  while ((rc = sqlite3_step(st)) == SQLITE_ROW) {
    std::vector<std::string> zeile;
    for (int i = 0; i < sqlite3_column_count(st); ++i) {
      const auto* t = sqlite3_column_text(st, i);
      zeile.push_back(t ? std::string(reinterpret_cast<const char*>(t)) : "<NULL>");
    }
    zeilen.push_back(std::move(zeile));
  }
  if (rc != SQLITE_DONE) zeilen = {{"<FEHLER>", sqlite3_errmsg(db)}};
  sqlite3_finalize(st);
  sqlite3_close(db);
  return zeilen;
}

// Runs statements that change the file; false with the message on failure.
inline ::testing::AssertionResult Ausfuehren(const std::string& datei, const std::string& sql) {
  sqlite3* db = nullptr;
  if (sqlite3_open_v2(datei.c_str(), &db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr) != SQLITE_OK) {
    sqlite3_close(db);
    return ::testing::AssertionFailure() << "open " << datei;
  }
  char* fehler = nullptr;
  const int rc = sqlite3_exec(db, sql.c_str(), nullptr, nullptr, &fehler);
  std::string text = fehler ? fehler : "";
  sqlite3_free(fehler);
  sqlite3_close(db);
  if (rc != SQLITE_OK) return ::testing::AssertionFailure() << text;
  return ::testing::AssertionSuccess();
}

// name|type|notnull|dflt_value|pk of each column, as PRAGMA table_info gives.
inline Zeilen Spalten(const std::string& datei) {
  return Abfrage(datei, "SELECT name, type, \"notnull\", dflt_value, pk FROM pragma_table_info('Leistungsverzeichnis')");
}

inline std::string Zufallsbytes(size_t n, unsigned samen) {
  std::mt19937 zufall(samen);
  std::string bytes(n, '\0');
  for (char& c : bytes) c = static_cast<char>(zufall() & 0xFF);
  return bytes;
}

// The header of an Access (Jet 4) file followed by arbitrary bytes.
inline std::string JetDatei() {
  std::string bytes("\x00\x01\x00\x00Standard Jet DB", 19);
  bytes += std::string("\x00\x01\x00\x00", 4);
  bytes += Zufallsbytes(4096 - bytes.size(), 7);
  return bytes;
}

// A database of the older schema: every column but the five style columns.
inline const char* kAltesSchema =
    "CREATE TABLE Leistungsverzeichnis (LVNr TEXT, MLVNr TEXT, KurzText TEXT, KurzBez TEXT, Einheit TEXT, "
    "Lohn REAL, Sonstiges REAL, Einheitspreis REAL, \"EndAusmaß\" REAL, GesamtPreis REAL, Datum TEXT);"
    "CREATE INDEX LVNr ON Leistungsverzeichnis (LVNr);";

}  // namespace kolm::quantities::testhilfen
