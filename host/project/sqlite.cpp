#include "project/sqlite.h"

namespace oxhost::sqlite {

std::string version() { return sqlite3_libversion(); }

namespace {

constexpr int wait_for_lock_ms = 1000;

[[noreturn]] void fail(sqlite3* db) { throw error(sqlite3_extended_errcode(db), sqlite3_errmsg(db)); }

}  // namespace

connection::connection(const std::filesystem::path& file, int flags) {
    sqlite3* opened = nullptr;
    const int result = sqlite3_open_v2(file.c_str(), &opened, flags, nullptr);
    db_.reset(opened);
    if (result != SQLITE_OK) throw error(result, opened ? sqlite3_errmsg(opened) : "out of memory");
    sqlite3_extended_result_codes(opened, 1);
    sqlite3_busy_timeout(opened, wait_for_lock_ms);
}

void connection::run(const char* sql) {
    if (sqlite3_exec(db_.get(), sql, nullptr, nullptr, nullptr) != SQLITE_OK) fail(db_.get());
}

std::string connection::ask(const char* sql) {
    statement question(*this, sql);
    return question.step() ? question.text(0) : std::string();
}

void connection::copy_from(connection& source) {
    sqlite3_backup* backup = sqlite3_backup_init(db_.get(), "main", source.get(), "main");
    if (!backup) fail(db_.get());
    sqlite3_backup_step(backup, -1);
    if (sqlite3_backup_finish(backup) != SQLITE_OK) fail(db_.get());
}

statement::statement(connection& db, std::string_view sql) {
    sqlite3_stmt* prepared = nullptr;
    const int result = sqlite3_prepare_v3(db.get(), sql.data(), static_cast<int>(sql.size()),
                                          SQLITE_PREPARE_PERSISTENT, &prepared, nullptr);
    statement_.reset(prepared);
    if (result != SQLITE_OK) fail(db.get());
}

void statement::check(int result) const {
    if (result != SQLITE_OK) fail(sqlite3_db_handle(statement_.get()));
}

statement& statement::bind(int parameter, std::int64_t value) {
    check(sqlite3_bind_int64(statement_.get(), parameter, value));
    return *this;
}

statement& statement::bind(int parameter, double value) {
    check(sqlite3_bind_double(statement_.get(), parameter, value));
    return *this;
}

statement& statement::bind(int parameter, std::string_view text) {
    const char* start = text.data() ? text.data() : "";
    check(sqlite3_bind_text64(statement_.get(), parameter, start, text.size(), SQLITE_STATIC, SQLITE_UTF8));
    return *this;
}

statement& statement::bind(int parameter, std::span<const std::byte> blob) {
    check(sqlite3_bind_blob64(statement_.get(), parameter, blob.data(), blob.size(), SQLITE_STATIC));
    return *this;
}

statement& statement::bind_null(int parameter) {
    check(sqlite3_bind_null(statement_.get(), parameter));
    return *this;
}

bool statement::step() {
    const int result = sqlite3_step(statement_.get());
    if (result == SQLITE_ROW) return true;
    if (result == SQLITE_DONE) {
        sqlite3_reset(statement_.get());
        return false;
    }
    sqlite3* db = sqlite3_db_handle(statement_.get());
    const error caught(sqlite3_extended_errcode(db), sqlite3_errmsg(db));
    sqlite3_reset(statement_.get());
    throw caught;
}

void statement::run() {
    while (step()) {
    }
}

void statement::reset() { sqlite3_reset(statement_.get()); }

std::string statement::text(int column) const {
    const auto* start = reinterpret_cast<const char*>(sqlite3_column_text(statement_.get(), column));
    return start
               ? std::string(start, static_cast<std::size_t>(sqlite3_column_bytes(statement_.get(), column)))
               : std::string();
}

std::span<const std::byte> statement::blob(int column) const {
    const auto* start = static_cast<const std::byte*>(sqlite3_column_blob(statement_.get(), column));
    return {start, static_cast<std::size_t>(sqlite3_column_bytes(statement_.get(), column))};
}

transaction::~transaction() {
    if (db_) sqlite3_exec(db_->get(), "ROLLBACK", nullptr, nullptr, nullptr);
}

void transaction::commit() {
    db_->run("COMMIT");
    db_ = nullptr;
}

}  // namespace oxhost::sqlite
