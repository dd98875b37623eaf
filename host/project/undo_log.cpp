#include "project/undo_log.h"

#include <bit>
#include <utility>

#include "project/schema.h"

namespace oxhost {

namespace {

/// `id` is run and scene in one, see key_of: no index has to be kept up with each change.
constexpr const char* tables = R"sql(
CREATE TABLE IF NOT EXISTS ox_runs (
  id INTEGER PRIMARY KEY AUTOINCREMENT NOT NULL, started TEXT NOT NULL, target TEXT NOT NULL, proj4 TEXT NOT NULL);
CREATE TABLE IF NOT EXISTS ox_undo (
  id INTEGER PRIMARY KEY NOT NULL, digest INTEGER NOT NULL, caption TEXT NOT NULL, proj4 TEXT NOT NULL, geom BLOB);
)sql";

constexpr std::int64_t rows_of_a_run = std::int64_t{1} << 40;

std::int64_t key_of(std::int64_t run, std::int64_t row) {
    if (row < 0 || row >= rows_of_a_run) throw sqlite::error(SQLITE_RANGE, "fid out of range");
    return run * rows_of_a_run + row;
}

/// A change of a scene that the run has changed before leaves the first state and renews the digest.
constexpr auto keep_sql =
    "INSERT INTO ox_undo (id, digest, caption, proj4, geom)"
    " SELECT ?1, ?3, caption, proj4, geom FROM scenes WHERE fid=?2"
    " ON CONFLICT (id) DO UPDATE SET digest=excluded.digest";

class mixer {
public:
    void add(std::uint64_t word) {
        value_ = (value_ ^ word) * 0x9e3779b97f4a7c15;  // 2^64 / golden ratio: odd, its bits well spread
        value_ ^= value_ >> 29;
    }
    void add(const std::vector<double>& numbers) {
        add(numbers.size());
        for (const double each : numbers) add(std::bit_cast<std::uint64_t>(each));
    }
    std::int64_t value() const { return static_cast<std::int64_t>(value_); }

private:
    std::uint64_t value_ = 0;
};

}  // namespace

std::int64_t digest_of(const section_line* line, std::string_view proj4) {
    mixer mixed;
    for (const char letter : proj4) mixed.add(static_cast<unsigned char>(letter));
    if (!line) return mixed.value();
    mixed.add(line->xy.size() + 256);  // no letter
    for (const auto& [x, y] : line->xy) {
        mixed.add(std::bit_cast<std::uint64_t>(x));
        mixed.add(std::bit_cast<std::uint64_t>(y));
    }
    mixed.add(line->z);
    mixed.add(line->m);
    return mixed.value();
}

// ---- one run

void undo_log::begin(run_goal goal, run_records records) {
    goal_ = std::move(goal);
    records_ = records;
    running_ = true;
    writes_ = records != run_records::none || has_tables();
    started_ = forgot_ = false;
    run_ = 0;
}

void undo_log::start() {
    db_.run(tables);
    register_own_table(db_, "ox_runs");
    register_own_table(db_, "ox_undo");
    sqlite::statement added(db_,
                            "INSERT INTO ox_runs (started, target, proj4)"
                            " VALUES (strftime('%Y-%m-%dT%H:%M:%SZ', 'now'), ?1, ?2)");
    added.bind(1, goal_.given).bind(2, goal_.proj4).run();
    run_ = sqlite3_last_insert_rowid(db_.get());
    keep_ = {db_, keep_sql};
}

void undo_log::note(std::int64_t row, std::int64_t after) {
    if (records_ == run_records::none) {
        drop(row, 0);
        forgot_ = true;
        return;
    }
    if (!started_) start();
    keep_.bind(1, key_of(run_, row)).bind(2, row).bind(3, after).run();
}

void undo_log::end() {
    if (!std::exchange(running_, false)) return;
    writes_ = false;
    const bool drops_its_own = records_ == run_records::until_end && started_;
    if (!drops_its_own && !forgot_) return;
    sqlite::transaction change(db_);
    if (drops_its_own) forget_scenes_of_run();
    remove_empty_runs();
    change.commit();
}

void undo_log::forget_scenes_of_run() {
    for (const record& each : records(run_)) drop(each.row, 0);
}

// ---- all of them

bool undo_log::has_tables() {
    return db_.ask("SELECT count(*) FROM sqlite_master WHERE name IN ('ox_runs', 'ox_undo')") == "2";
}

std::vector<past_run> undo_log::runs() {
    std::vector<past_run> found;
    if (!has_tables()) return found;
    sqlite::statement rows(db_,
                           "SELECT ox_runs.id, started, target, ox_runs.proj4, count(*) FROM ox_undo JOIN"
                           " ox_runs ON ox_runs.id = ox_undo.id / 1099511627776"  // rows_of_a_run
                           " GROUP BY ox_runs.id ORDER BY ox_runs.id DESC");
    while (rows.step())
        found.push_back({.id = rows.integer(0),
                         .started = rows.text(1),
                         .goal = {rows.text(2), rows.text(3)},
                         .scenes = static_cast<std::size_t>(rows.integer(4))});
    return found;
}

std::vector<undo_log::record> undo_log::records(std::int64_t run) {
    std::vector<record> found;
    sqlite::statement rows(db_, "SELECT id, digest, caption FROM ox_undo WHERE id>=?1 AND id<?2 ORDER BY id");
    rows.bind(1, key_of(run, 0)).bind(2, key_of(run + 1, 0));
    while (rows.step())
        found.push_back({rows.integer(0), rows.integer(0) % rows_of_a_run, rows.integer(1), rows.text(2)});
    return found;
}

undo_log::content undo_log::read(const record& kept) {
    sqlite::statement row(db_, "SELECT proj4, geom FROM ox_undo WHERE id=?1");
    row.bind(1, kept.id).step();
    content found{row.text(0), std::nullopt};
    if (!row.is_null(1)) {
        const auto blob = row.blob(1);
        found.geometry.emplace(blob.begin(), blob.end());
    }
    return found;
}

void undo_log::drop(std::int64_t row, std::int64_t since_run) {
    if (!drop_)
        drop_ = {db_,
                 "DELETE FROM ox_undo WHERE id IN (SELECT id*1099511627776+?1 FROM ox_runs WHERE id>=?2)"};
    drop_.bind(1, row).bind(2, since_run).run();
}

void undo_log::remove_empty_runs() {
    db_.run(
        "DELETE FROM ox_runs WHERE NOT EXISTS (SELECT 1 FROM ox_undo WHERE ox_undo.id >= "
        "ox_runs.id*1099511627776 AND ox_undo.id < (ox_runs.id+1)*1099511627776)");
}

void undo_log::close() {
    keep_ = {};
    drop_ = {};
}

}  // namespace oxhost
