#include "Database.h"

#include <sqlite3.h>

namespace Tessel {

namespace {

// How long a commit waits for somebody who reads.
constexpr int WAIT_MILLISECONDS = 60'000;

[[noreturn]] void throwError(sqlite3* handle) {
  throw DatabaseError(std::string(sqlite3_db_filename(handle, "main")) + ": " + sqlite3_errmsg(handle));
}

}  // namespace

void Statement::Finalize::operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }

void Statement::check(int result) const {
  if (result != SQLITE_OK) throwError(sqlite3_db_handle(statement_.get()));
}

void Statement::bind(int index, std::int64_t value) { check(sqlite3_bind_int64(statement_.get(), index, value)); }

void Statement::bind(int index, std::string_view text) {
  // Without a pointer it would be NULL.
  const char* data = text.empty() ? "" : text.data();
  check(sqlite3_bind_text64(statement_.get(), index, data, text.size(), SQLITE_STATIC, SQLITE_UTF8));
}

void Statement::bindNull(int index) { check(sqlite3_bind_null(statement_.get(), index)); }

void Statement::run() {
  sqlite3_step(statement_.get());
  check(sqlite3_reset(statement_.get()));
}

void Database::Close::operator()(sqlite3* handle) const { sqlite3_close(handle); }

Database::Database(const std::string& file) {
  sqlite3* handle = nullptr;
  const int result = sqlite3_open_v2(file.c_str(), &handle, SQLITE_OPEN_READWRITE, nullptr);
  handle_.reset(handle);
  if (result != SQLITE_OK) throw DatabaseError(file + ": " + sqlite3_errstr(result));
  sqlite3_busy_timeout(handle, WAIT_MILLISECONDS);
}

void Database::execute(const std::string& sql) {
  if (sqlite3_exec(handle_.get(), sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) throwError(handle_.get());
}

Statement Database::prepare(const std::string& sql) {
  sqlite3_stmt* statement = nullptr;
  if (sqlite3_prepare_v2(handle_.get(), sql.c_str(), static_cast<int>(sql.size()), &statement, nullptr) != SQLITE_OK)
    throwError(handle_.get());
  return Statement(statement);
}

}  // namespace Tessel
