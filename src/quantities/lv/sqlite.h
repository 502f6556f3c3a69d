#pragma once
// A small owner of the SQLite C API for the bill-of-quantities database.
// Nothing here throws: every failure comes back as a value, and the text of
// the last error stays readable on the connection. Texts are UTF-8.
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace kolm::quantities {

// A prepared statement. Columns and parameters count as SQLite counts them:
// parameters from 1, columns from 0.
class Statement {
 public:
  enum class Step { Row, Done, Error };

  Statement() = default;
  ~Statement();
  Statement(Statement&& other) noexcept;
  Statement& operator=(Statement&& other) noexcept;
  Statement(const Statement&) = delete;
  Statement& operator=(const Statement&) = delete;

  // False when preparing failed; every other call is then harmless.
  bool valid() const { return stmt_ != nullptr; }
  explicit operator bool() const { return valid(); }

  bool bind(int index, std::string_view text);
  bool bind(int index, const char* text) { return bind(index, std::string_view(text)); }
  bool bind(int index, std::int64_t value);
  bool bind(int index, int value) { return bind(index, static_cast<std::int64_t>(value)); }
  bool bind(int index, double value);
  bool bindNull(int index);

  Step step();
  // Steps until the statement is done; false on any error.
  bool run();
  // Ready to run again with the same or new bindings.
  void reset();

  int columnCount() const;
  std::string columnName(int column) const;
  bool isNull(int column) const;
  // A NULL reads as the empty text, 0 or 0.0.
  std::string text(int column) const;
  std::int64_t integer(int column) const;
  double real(int column) const;

  // The connection's message about the last failed call.
  std::string error() const;

 private:
  friend class Database;
  explicit Statement(sqlite3_stmt* stmt) : stmt_(stmt) {}
  sqlite3_stmt* stmt_ = nullptr;
};

// One connection, closed by its owner's end. Open never creates a file
// unless asked to, so a lookup cannot leave an empty database behind.
class Database {
 public:
  enum class Access { ReadOnly, ReadWrite, Create };
  static constexpr int kDefaultBusyMs = 2000;

  Database() = default;
  ~Database();
  Database(Database&& other) noexcept;
  Database& operator=(Database&& other) noexcept;
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;

  // ":memory:" opens a database in memory. False when the file cannot be
  // opened; a file that is no database opens and fails at its first use.
  bool open(const std::string& path, Access access, int busyMs = kDefaultBusyMs);
  void close();
  bool isOpen() const { return db_ != nullptr; }

  // An invalid statement when the text does not compile; error() tells why.
  Statement prepare(std::string_view sql);
  // Runs one or more statements that return no rows of interest.
  bool execute(std::string_view sql);

  // PRAGMA user_version; nothing when it cannot be read.
  std::optional<int> userVersion();
  bool setUserVersion(int version);
  // PRAGMA quick_check says "ok".
  bool intact();
  // The table exists and has a column of that name (ASCII letters compared
  // without regard to case, as SQLite compares identifiers).
  bool hasTable(std::string_view table);
  bool hasColumn(std::string_view table, std::string_view column);

  // The whole database as file bytes (empty when that fails).
  std::string serialize();

  std::int64_t lastInsertRowid() const;
  int errorCode() const { return errorCode_; }
  const std::string& error() const { return error_; }

 private:
  void remember(int code);
  sqlite3* db_ = nullptr;
  int errorCode_ = 0;
  std::string error_;
};

// Compares identifiers as SQLite does: ASCII letters without regard to case,
// every other byte exactly.
bool SameIdentifier(std::string_view a, std::string_view b);

}  // namespace kolm::quantities
