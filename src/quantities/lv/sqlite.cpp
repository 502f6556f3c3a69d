#include "quantities/lv/sqlite.h"

#include <sqlite3.h>

#include <climits>
#include <utility>

namespace kolm::quantities {

// ---- Statement ----------------------------------------------------------------

Statement::~Statement() { sqlite3_finalize(stmt_); }

Statement::Statement(Statement&& other) noexcept : stmt_(std::exchange(other.stmt_, nullptr)) {}

Statement& Statement::operator=(Statement&& other) noexcept {
  if (this != &other) {
    sqlite3_finalize(stmt_);
    stmt_ = std::exchange(other.stmt_, nullptr);
  }
  return *this;
}

bool Statement::bind(int index, std::string_view text) {
  if (!stmt_) return false;
  // SQLite takes an int length; a longer text is refused rather than cut.
  if (text.size() > static_cast<size_t>(INT_MAX)) return false;
  return sqlite3_bind_text(stmt_, index, text.data(), static_cast<int>(text.size()), SQLITE_TRANSIENT) ==
         SQLITE_OK;
}

bool Statement::bind(int index, std::int64_t value) {
  return stmt_ && sqlite3_bind_int64(stmt_, index, value) == SQLITE_OK;
}

bool Statement::bind(int index, double value) {
  return stmt_ && sqlite3_bind_double(stmt_, index, value) == SQLITE_OK;
}

bool Statement::bindNull(int index) { return stmt_ && sqlite3_bind_null(stmt_, index) == SQLITE_OK; }

Statement::Step Statement::step() {
  if (!stmt_) return Step::Error;
  switch (sqlite3_step(stmt_)) {
    case SQLITE_ROW: return Step::Row;
    case SQLITE_DONE: return Step::Done;
    default: return Step::Error;
  }
}

bool Statement::run() {
  for (;;) {
    switch (step()) {
      case Step::Row: continue;
      case Step::Done: return true;
      case Step::Error: return false;
    }
  }
}

void Statement::reset() {
  if (!stmt_) return;
  sqlite3_reset(stmt_);
  sqlite3_clear_bindings(stmt_);
}

int Statement::columnCount() const { return stmt_ ? sqlite3_column_count(stmt_) : 0; }

std::string Statement::columnName(int column) const {
  const char* name = stmt_ ? sqlite3_column_name(stmt_, column) : nullptr;
  return name ? std::string(name) : std::string();
}

bool Statement::isNull(int column) const {
  return !stmt_ || sqlite3_column_type(stmt_, column) == SQLITE_NULL;
}

std::string Statement::text(int column) const {
  if (!stmt_) return {};
  const auto* bytes = sqlite3_column_text(stmt_, column);
  const int size = sqlite3_column_bytes(stmt_, column);
  if (!bytes || size <= 0) return {};
  return std::string(reinterpret_cast<const char*>(bytes), static_cast<size_t>(size));
}

std::int64_t Statement::integer(int column) const { return stmt_ ? sqlite3_column_int64(stmt_, column) : 0; }

double Statement::real(int column) const { return stmt_ ? sqlite3_column_double(stmt_, column) : 0.0; }

std::string Statement::error() const {
  sqlite3* db = stmt_ ? sqlite3_db_handle(stmt_) : nullptr;
  return db ? std::string(sqlite3_errmsg(db)) : std::string("keine Anweisung");
}

// ---- Database -----------------------------------------------------------------

Database::~Database() { close(); }

Database::Database(Database&& other) noexcept
    : db_(std::exchange(other.db_, nullptr)), errorCode_(other.errorCode_), error_(std::move(other.error_)) {}

Database& Database::operator=(Database&& other) noexcept {
  if (this != &other) {
    close();
    db_ = std::exchange(other.db_, nullptr);
    errorCode_ = other.errorCode_;
    error_ = std::move(other.error_);
  }
  return *this;
}

void Database::remember(int code) {
  errorCode_ = code;
  if (code == SQLITE_OK) {
    error_.clear();
  } else if (db_ && sqlite3_errcode(db_) == code) {
    error_ = sqlite3_errmsg(db_);
  } else {
    error_ = sqlite3_errstr(code);
  }
}

bool Database::open(const std::string& path, Access access, int busyMs) {
  close();
  int flags = 0;
  switch (access) {
    case Access::ReadOnly: flags |= SQLITE_OPEN_READONLY; break;
    case Access::ReadWrite: flags |= SQLITE_OPEN_READWRITE; break;
    case Access::Create: flags |= SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE; break;
  }
  sqlite3* db = nullptr;
  const int rc = sqlite3_open_v2(path.c_str(), &db, flags, nullptr);
  if (rc != SQLITE_OK) {
    errorCode_ = rc;
    error_ = db ? sqlite3_errmsg(db) : sqlite3_errstr(rc);
    sqlite3_close_v2(db);  // a handle is returned even on failure
    return false;
  }
  db_ = db;
  sqlite3_extended_result_codes(db_, 0);
  sqlite3_busy_timeout(db_, busyMs);
  // A database can come from anywhere (a project handed over, a copy taken
  // over by the user): its schema may not run functions with side effects,
  // and no statement may write into the file's structures directly.
  sqlite3_db_config(db_, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
  sqlite3_db_config(db_, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
  remember(SQLITE_OK);
  return true;
}

void Database::close() {
  // close_v2 waits for statements still alive instead of failing.
  if (db_) sqlite3_close_v2(db_);
  db_ = nullptr;
}

Statement Database::prepare(std::string_view sql) {
  if (!db_) {
    remember(SQLITE_MISUSE);
    return Statement();
  }
  if (sql.size() > static_cast<size_t>(INT_MAX)) {
    remember(SQLITE_TOOBIG);
    return Statement();
  }
  sqlite3_stmt* stmt = nullptr;
  const int rc = sqlite3_prepare_v2(db_, sql.data(), static_cast<int>(sql.size()), &stmt, nullptr);
  remember(rc);
  if (rc != SQLITE_OK) {
    sqlite3_finalize(stmt);
    return Statement();
  }
  if (!stmt) {  // only blanks or a comment
    remember(SQLITE_MISUSE);
    error_ = "leere Anweisung";
  }
  return Statement(stmt);
}

bool Database::execute(std::string_view sql) {
  if (!db_) {
    remember(SQLITE_MISUSE);
    return false;
  }
  const std::string text(sql);  // exec wants a terminated text
  const int rc = sqlite3_exec(db_, text.c_str(), nullptr, nullptr, nullptr);
  remember(rc);
  return rc == SQLITE_OK;
}

std::optional<int> Database::userVersion() {
  Statement s = prepare("PRAGMA user_version");
  if (!s || s.step() != Statement::Step::Row) return std::nullopt;
  return static_cast<int>(s.integer(0));
}

bool Database::setUserVersion(int version) {
  // A pragma takes no parameter; the number is formatted here.
  return execute("PRAGMA user_version = " + std::to_string(version));
}

bool Database::intact() {
  Statement s = prepare("PRAGMA quick_check");
  if (!s) return false;
  bool ok = false, first = true;
  for (;;) {
    const Statement::Step st = s.step();
    if (st == Statement::Step::Done) break;
    if (st == Statement::Step::Error) {
      remember(sqlite3_errcode(db_));
      return false;
    }
    ok = first && s.text(0) == "ok";
    first = false;
  }
  return ok;
}

bool Database::hasTable(std::string_view table) {
  Statement s = prepare("SELECT name FROM sqlite_schema WHERE type = 'table'");
  if (!s) return false;
  while (s.step() == Statement::Step::Row) {
    if (SameIdentifier(s.text(0), table)) return true;
  }
  return false;
}

bool Database::hasColumn(std::string_view table, std::string_view column) {
  Statement s = prepare("SELECT name FROM pragma_table_info(?1)");
  if (!s || !s.bind(1, table)) return false;
  while (s.step() == Statement::Step::Row) {
    if (SameIdentifier(s.text(0), column)) return true;
  }
  return false;
}

std::string Database::serialize() {
  if (!db_) return {};
  sqlite3_int64 size = 0;
  unsigned char* bytes = sqlite3_serialize(db_, "main", &size, 0);
  if (!bytes) return {};
  std::string out(reinterpret_cast<const char*>(bytes), static_cast<size_t>(size));
  sqlite3_free(bytes);
  return out;
}

std::int64_t Database::lastInsertRowid() const { return db_ ? sqlite3_last_insert_rowid(db_) : 0; }

bool SameIdentifier(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (size_t i = 0; i < a.size(); ++i) {
    auto fold = [](unsigned char c) { return (c >= 'A' && c <= 'Z') ? static_cast<unsigned char>(c + 32) : c; };
    if (fold(static_cast<unsigned char>(a[i])) != fold(static_cast<unsigned char>(b[i]))) return false;
  }
  return true;
}

}  // namespace kolm::quantities
