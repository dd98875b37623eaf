#pragma once
/// A project: 2D scenes with their section lines, stored in one GeoPackage file.
///
/// The table `scenes` has a row per scene: fid (order of the scenes), geom (LineString or NULL), caption,
/// profile, proj4; further columns are attributes. GIS programs open it as a layer of the projection that all
/// lines share, or see a layer more per projection.
///
/// Kill-safety and speed. The first change switches the file to SQLite's write-ahead log with
/// synchronous=NORMAL, and every update bracket is one transaction of its own: a
/// commit is an append to PROJECT-wal without waiting for the disk, so ten thousand brackets cost little
/// over one big update. A killed process leaves PROJECT-wal behind with all brackets committed so far;
/// whoever opens the project next reads through it. A power cut may lose the last brackets, never halves of
/// one. A clean close folds the log back and returns to journal_mode=DELETE: a single file remains. A
/// project that was opened for writing but not changed keeps every byte, unless its layers have to be set
/// right, which a killed process leaves to the next.
///
/// A project open for writing is locked exclusively, which also spares the log its shared-memory file;
/// others are told that it is in use. Vertices stay in the file and are read one line at a time.
///
/// Errors are project_error, one line that begins with the file. Single thread. [ui]

#include <cstddef>
#include <cstdint>
#include <deque>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

#include "base/line.h"
#include "project/fields.h"
#include "project/line_blob.h"
#include "project/undo.h"

namespace oxhost {

struct project_error : std::runtime_error {
    using runtime_error::runtime_error;
};

class project;

/// A scene in memory: all but its vertices. Its address is the scene handle, and the handle of its
/// profile data as well. Lives as long as the open project.
struct scene {
    project* owner;
    std::size_t index;  ///< position in the project, from 0
    std::int64_t row;   ///< primary key in the file
    std::string caption;
    bool profile;
    std::string proj4;                 ///< UTF-8; empty = no projection
    std::optional<line_summary> line;  ///< empty = no line, hence no profile data
};

/// `scene 3 "caption"`, as messages call it.
std::string name_of(const scene& named);

/// A scene to be added.
struct new_scene {
    std::string caption;
    bool profile = true;
    std::string proj4;
    std::optional<section_line> line;
    std::vector<field_value> values =
        {};  ///< for the fields that the addition was told; missing ones are null
};

enum class open_mode {
    read_write,
    read_only,  ///< not a byte changes; the scenes are those of the moment of opening
    scratch  ///< a private copy in a temporary file that vanishes: free to change, the project stays as it is
};

class project {
public:
    /// Makes an empty project; `file` must not exist. Open for writing afterwards.
    static std::unique_ptr<project> create(const std::filesystem::path& file);

    /// Refuses, without touching them: missing and unreadable files, files that are no SQLite database, no
    /// GeoPackage or no project, damaged ones, projects in use elsewhere.
    static std::unique_ptr<project> open(const std::filesystem::path& file, open_mode mode);

    /// A private copy of this project as its file has it now, as `scratch` opens one; also of one that is
    /// open for writing, which nobody else could read.
    std::unique_ptr<project> scratch_copy();

    ~project();  ///< closes; a failure to fold the log back loses nothing and is not reported
    project(const project&) = delete;
    project& operator=(const project&) = delete;

    /// Has the layers say what is true of the scenes, folds the log back, releases the file. Throws
    /// when that fails. Scenes stay readable as far as they are in memory.
    void close();
    /// Closes and deletes a project that `create` made: for a caller whose import failed.
    void discard();

    const std::filesystem::path& path() const;
    open_mode mode() const;

    const std::deque<scene>& scenes() const;
    std::size_t size() const { return scenes().size(); }
    scene* at(std::size_t index);  ///< null when out of range

    /// The stored line, decoded now; empty when there is none.
    section_line read_line(const scene& subject);
    /// Columns beyond the store's own, and a scene's values in their order.
    const std::vector<field>& fields() const;
    std::vector<field_value> read_values(const scene& subject);
    /// The current line, pending changes included; null when there is none. Lent until the scene's line
    /// changes or the bracket that reads it ends.
    const section_line* lend_line(scene& subject);
    /// The current projection text, pending changes included.
    const std::string& proj4(const scene& subject) const;

    /// Changes between begin_update and end_update reach the file together, at the end; outside a bracket
    /// each reaches it at once. Brackets of one scene nest. Beginning another scene ends the open bracket
    /// first. When the file refuses (disk full, read-only), end_update throws; memory then equals the file.
    void begin_update(scene& subject);
    void set_line(scene& subject, const section_line& line);
    void set_proj4(scene& subject, std::string text);
    void end_update(scene& subject);
    scene* updated_scene() const;  ///< whose bracket is open; null when none is
    /// Drops what the open bracket of the scene holds so far, and what it will be given yet.
    void abandon_update(scene& subject);
    /// What the last end_update or direct change wrote.
    struct written {
        bool line = false;
        bool text = false;
    };
    written last_written() const;

    /// Adds all scenes at the end, or none.
    void append(std::span<const new_scene> added);

    /// What is changed until end_run belongs to one run, which the file has from its first change on. Outside
    /// a run nothing is kept of what a change replaces.
    void begin_run(run_goal goal, run_records records);
    void end_run();
    /// Puts back all that the run has changed, ends it and leaves nothing of it; for one whose records are
    /// kept at least until its end.
    void roll_back_run();

    /// Newest first.
    std::vector<past_run> past_runs();
    /// Takes back the newest run of which something can be, in one transaction. Scenes that something else
    /// has changed since are left alone, unless they are to be overwritten, and the run then stays with them.
    /// Nothing when there is no run.
    std::optional<undone> undo(later_changes others);

private:
    friend class addition;
    struct store;
    explicit project(std::unique_ptr<store> opened);
    std::unique_ptr<store> store_;
};

/// The project that the host's modules serve; null when none is open. Not owned.
project* current_project();
void set_current_project(project* opened);

/// Has a project served for as long as it lives, and then again what was served before.
class served_project {
public:
    explicit served_project(project* opened) : before_(current_project()) { set_current_project(opened); }
    ~served_project() { set_current_project(before_); }
    served_project(const served_project&) = delete;
    served_project& operator=(const served_project&) = delete;

private:
    project* before_;
};

}  // namespace oxhost
