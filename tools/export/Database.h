#pragma once
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace Tessel {

/// A database that cannot be opened or written.
class DatabaseError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A statement of SQL with values to be filled in, counted from 1. All operations throw `DatabaseError`.
class Statement {
 public:
  explicit Statement(sqlite3_stmt* statement) : statement_(statement) {}

  void bind(int index, std::int64_t value);
  /// The text, in UTF-8, is to stay until `run` has returned.
  void bind(int index, std::string_view text);
  void bindNull(int index);
  /// Runs it, for no result. The values stay bound.
  void run();

 private:
  struct Finalize {
    void operator()(sqlite3_stmt* statement) const;
  };

  void check(int result) const;

  std::unique_ptr<sqlite3_stmt, Finalize> statement_;
};

/// An SQLite database in a file, open for writing. Outlives its statements.
class Database {
 public:
  /// An empty file becomes an empty database. Throws `DatabaseError`, as all below.
  explicit Database(const std::string& file);

  void execute(const std::string& sql);
  Statement prepare(const std::string& sql);

 private:
  struct Close {
    void operator()(sqlite3* handle) const;
  };

  std::unique_ptr<sqlite3, Close> handle_;
};

}  // namespace Tessel
