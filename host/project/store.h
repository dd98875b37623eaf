#pragma once
/// The open file behind a project; only project's own sources include this.

#include <unordered_map>

#include "base/language.h"
#include "project/gis_layers.h"
#include "project/project.h"
#include "project/sqlite.h"
#include "project/undo_log.h"

namespace oxhost {

/// What went wrong, as the end of a line that begins with a file's name.
std::string explain(const sqlite::error& e);

[[noreturn]] void refuse(const std::filesystem::path& file, std::string_view reason);
[[noreturn]] void refuse(const scene& concerned, std::string_view reason);

/// What one scene has been given since its bracket was opened.
struct bracket {
    scene* subject = nullptr;
    int depth = 0;
    bool abandoned = false;
    std::optional<section_line> line;
    std::optional<std::string> text;
};

struct project::store {
    std::filesystem::path file;
    open_mode mode = open_mode::read_only;
    bool created = false;
    bool logging = false;  ///< the write-ahead log is on
    bool changed = false;
    bool discarded = false;
    sqlite::connection db;
    std::deque<scene> scenes;
    std::vector<field> fields;
    bracket open;
    written last;
    std::unordered_map<const scene*, section_line> lent;
    std::vector<std::byte> buffer;
    undo_log runs{db};
    gis_layers layers{db};
    sqlite::statement read_geometry;
    sqlite::statement read_attributes;
    std::size_t attributes_selected = 0;  ///< how many fields `read_attributes` has
    sqlite::statement write_line;
    sqlite::statement write_text;
    sqlite::statement write_both;

    void load(project& owner);
    void lock();
    void prepare_writing();
    bool read_blob(const scene& subject);
    std::int64_t digest_with(const scene& subject, const section_line* line, const std::string* text);
    const sqlite::statement& select_attributes(const scene& subject);
    void write(scene& subject, const section_line* line, const std::string* text);
    scene* scene_of_row(std::int64_t row);  ///< null when there is none
    /// Is there a scene of the run that nothing else has changed since?
    bool can_take_back(const past_run& run);
    undone take_back(const past_run& run, later_changes others);
    void close();
};

}  // namespace oxhost
