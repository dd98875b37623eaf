#pragma once
/// SQLite's C interface with owners and exceptions; as much of it as the project store uses.

#include <sqlite3.h>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

namespace oxhost::sqlite {

/// Of the library, such as "3.40.1".
std::string version();

struct error : std::runtime_error {
    error(int result, const char* message) : std::runtime_error(message), code(result) {}
    int code;  ///< SQLite's extended result code
    int primary() const { return code & 0xff; }
};

struct closer {
    void operator()(sqlite3* db) const { sqlite3_close_v2(db); }
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};

class connection {
public:
    connection() = default;
    /// `file` empty: a private database in a temporary file. Waits up to a second for another's lock.
    connection(const std::filesystem::path& file, int flags);

    sqlite3* get() const { return db_.get(); }
    void run(const char* sql);
    /// First column of the first row as text; empty when there is no row.
    std::string ask(const char* sql);
    void copy_from(connection& source);  ///< replaces the whole content
    void close() { db_.reset(); }

private:
    std::unique_ptr<sqlite3, closer> db_;
};

/// A prepared statement. Bound texts and blobs are lent: they must live until the next `reset`.
class statement {
public:
    statement() = default;
    statement(connection& db, std::string_view sql);

    statement& bind(int parameter, std::int64_t value);
    statement& bind(int parameter, double value);
    statement& bind(int parameter, std::string_view text);
    statement& bind(int parameter, std::span<const std::byte> blob);
    statement& bind_null(int parameter);

    /// True while there is a row. The statement resets itself after its last row and before it throws.
    bool step();
    void run();  ///< for statements that give no rows
    void reset();
    explicit operator bool() const { return statement_ != nullptr; }

    std::int64_t integer(int column) const { return sqlite3_column_int64(statement_.get(), column); }
    double real(int column) const { return sqlite3_column_double(statement_.get(), column); }
    std::string text(int column) const;
    int type(int column) const { return sqlite3_column_type(statement_.get(), column); }
    bool is_null(int column) const { return type(column) == SQLITE_NULL; }
    std::span<const std::byte> blob(int column) const;  ///< until the next step

private:
    void check(int result) const;
    std::unique_ptr<sqlite3_stmt, closer> statement_;
};

/// Rolls back unless committed.
class transaction {
public:
    explicit transaction(connection& db) : db_(&db) { db.run("BEGIN IMMEDIATE"); }
    ~transaction();
    transaction(const transaction&) = delete;
    transaction& operator=(const transaction&) = delete;
    void commit();

private:
    connection* db_;
};

}  // namespace oxhost::sqlite
