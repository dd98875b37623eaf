#pragma once
/// The tables in which a project keeps what its runs replaced; only project's own sources include this.
///
/// `ox_runs` has a row per run, `ox_undo` one per scene that it changed: the scene as it was before, and a
/// digest of what the run left. Both come with the first change of a first run.

#include <optional>
#include <string_view>
#include <vector>

#include "base/line.h"
#include "project/sqlite.h"
#include "project/undo.h"

namespace oxhost {

/// Tells a scene's line and text from any other. The bytes that store a line make no difference, its vertices
/// do: other programs may store a line anew. Kept in files, so it must stay what it is. Null: no line.
std::int64_t digest_of(const section_line* line, std::string_view proj4);

class undo_log {
public:
    explicit undo_log(sqlite::connection& db) : db_(db) {}  // `db` outlives the log

    void begin(run_goal goal, run_records records);
    /// Changes are to be noted: inside their transaction, before them. `after` is the digest of what is left.
    bool writes() const { return writes_; }
    void note(std::int64_t row, std::int64_t after);
    /// The transaction of the last note is committed.
    void noted() { started_ = run_ != 0; }
    /// The run that is going on, where it has changed something that is kept.
    std::int64_t run() const { return started_ ? run_ : 0; }
    /// Drops what is not to outlast the run, in a transaction of its own.
    void end();
    void abandon() { running_ = writes_ = started_ = false; }  ///< after all its records are dropped

    /// Newest first; only those with scenes.
    std::vector<past_run> runs();

    /// A scene as it was before a run.
    struct record {
        std::int64_t id, row, digest;
        std::string caption;
    };
    std::vector<record> records(std::int64_t run);
    struct content {
        std::string proj4;
        std::optional<std::vector<std::byte>> geometry;  ///< the blob as stored
    };
    content read(const record& kept);
    /// Drops what this run and later ones kept of a scene; runs without scenes go with remove_empty_runs.
    void drop(std::int64_t row, std::int64_t since_run);
    void remove_empty_runs();

    void close();

private:
    bool has_tables();
    void start();
    void forget_scenes_of_run();

    sqlite::connection& db_;
    run_goal goal_;
    run_records records_ = run_records::none;
    bool running_ = false;
    bool writes_ = false;
    bool started_ = false;  ///< the run's row is in the file
    bool forgot_ = false;   ///< records of earlier runs were dropped
    std::int64_t run_ = 0;
    sqlite::statement keep_, drop_;
};

}  // namespace oxhost
