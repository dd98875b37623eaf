#include "project/store.h"

#include "base/text.h"
#include "project/columns.h"
#include "project/schema.h"

namespace oxhost {

namespace {

/// Pages of the log after which it is folded back on the way: each time waits for the disk, and 32 MB of log
/// are a fair price for fewer waits.
constexpr auto log_settings = "PRAGMA synchronous=NORMAL; PRAGMA wal_autocheckpoint=8000";

}  // namespace

std::string explain(const sqlite::error& e) {
    const auto say = [](std::string_view russian, std::string_view english) {
        return words(russian, english);
    };
    if (e.code == SQLITE_READONLY_ROLLBACK)
        return say("остался посреди изменения; открытие для записи отменит его",
                   "was left in the middle of a change, which opening it for writing undoes");
    switch (e.primary()) {
        case SQLITE_NOTADB:
            return say("не база данных SQLite", "is no SQLite database");
        case SQLITE_CORRUPT:
            return say("повреждён", "is damaged") + " (" + e.what() + ")";
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            return say("открыт в другой программе", "is open in another program");
        case SQLITE_READONLY:
        case SQLITE_PERM:
            return say("запись невозможна", "cannot be written");
        case SQLITE_FULL:
            return say("на диске нет места", "no space left on the disk");
        case SQLITE_CANTOPEN:
            return say("не открывается", "cannot be opened");
        default:
            return say("отказ SQLite", "SQLite refuses") + " (" + e.what() + ")";
    }
}

void refuse(const std::filesystem::path& file, std::string_view reason) {
    throw project_error(file.string() + ": " + std::string(reason));
}

void refuse(const scene& concerned, std::string_view reason) {
    refuse(concerned.owner->path(), name_of(concerned) + ": " + std::string(reason));
}

void project::store::load(project& owner) {
    register_envelope_functions(db);
    fields = read_fields(db);
    sqlite::statement rows(db, "SELECT fid, caption, profile, proj4, geom FROM scenes ORDER BY fid");
    while (rows.step()) {
        scene& row = scenes.emplace_back(scene{.owner = &owner,
                                               .index = scenes.size(),
                                               .row = rows.integer(0),
                                               .caption = rows.text(1),
                                               .profile = rows.integer(2) != 0,
                                               .proj4 = rows.text(3),
                                               .line = std::nullopt});
        try {
            if (!rows.is_null(4)) row.line = summarize_blob(rows.blob(4));
        } catch (const blob_error& e) {
            refuse(row, e.what());
        }
    }
    layers.load();
    read_geometry = {db, "SELECT geom FROM scenes WHERE fid=?1"};
    write_line = {db, "UPDATE scenes SET geom=?2 WHERE fid=?1"};
    write_text = {db, "UPDATE scenes SET proj4=?3 WHERE fid=?1"};
    write_both = {db, "UPDATE scenes SET geom=?2, proj4=?3 WHERE fid=?1"};
}

/// Takes the lock that is held until the file is closed, without writing a byte.
void project::store::lock() {
    db.run("PRAGMA locking_mode=EXCLUSIVE; BEGIN EXCLUSIVE; COMMIT");
    logging = db.ask("PRAGMA journal_mode") == "wal";  // left on by a killed process
    if (logging) db.run(log_settings);
}

void project::store::prepare_writing() {
    if (!db.get()) refuse(file, in_language("закрыт", "is closed"));
    if (mode == open_mode::read_only)
        refuse(file, in_language("открыт только для чтения", "is open for reading only"));
    if (mode == open_mode::scratch || logging) return;
    read_geometry.reset();  // the journal mode only changes while no statement runs
    if (db.ask("PRAGMA journal_mode=WAL") != "wal")
        refuse(file, in_language("журнал записи не включается", "cannot keep a write-ahead log"));
    logging = true;
    db.run(log_settings);
}

/// The stored geometry in `buffer`; false when there is none.
bool project::store::read_blob(const scene& subject) {
    if (!db.get()) refuse(file, in_language("закрыт", "is closed"));
    read_geometry.bind(1, subject.row);
    const bool found = read_geometry.step() && !read_geometry.is_null(0);
    if (found) {
        const auto blob = read_geometry.blob(0);
        buffer.assign(blob.begin(), blob.end());
    }
    read_geometry.reset();
    return found;
}

/// The scene's row of attributes, until read_attributes is reset.
const sqlite::statement& project::store::select_attributes(const scene& subject) {
    if (attributes_selected != fields.size()) {
        std::string columns;
        for (const field& each : fields) append_item(columns, as_identifier(each.name));
        read_attributes = {db, "SELECT " + columns + " FROM scenes WHERE fid=?1"};
        attributes_selected = fields.size();
    }
    read_attributes.bind(1, subject.row).step();
    return read_attributes;
}

/// Of the scene with a new line or text, or as the file has it.
std::int64_t project::store::digest_with(const scene& subject, const section_line* line,
                                         const std::string* text) {
    section_line stored;
    if (!line && subject.line && read_blob(subject)) {
        decode_line(buffer, stored);
        line = &stored;
    }
    return digest_of(line, text ? *text : subject.proj4);
}

void project::store::write(scene& subject, const section_line* line, const std::string* text) {
    last = {};
    if (!line && !text) return;
    try {
        prepare_writing();
        std::optional<sqlite::transaction> together;  // a lone update needs none
        if (runs.writes() || layers.published()) together.emplace(db);
        if (runs.writes()) runs.note(subject.row, digest_with(subject, line, text));
        layers.withdraw();
        sqlite::statement& update = line && text ? write_both : line ? write_line : write_text;
        update.bind(1, subject.row);
        if (line) {
            encode_line(*line, buffer);
            update.bind(2, std::span<const std::byte>(buffer));
        }
        if (text) update.bind(3, *text);
        update.run();
        if (together) together->commit();
    } catch (const blob_error& e) {
        refuse(subject, e.what());
    } catch (const sqlite::error& e) {
        refuse(subject, words("не удалось сохранить: ", "cannot be stored: ") + explain(e));
    }
    runs.noted();
    layers.withdrawn();
    changed = true;
    last = {.line = line != nullptr, .text = text != nullptr};
    lent.erase(&subject);
    if (line) subject.line = summarize(*line);
    if (text) subject.proj4 = *text;
}

void project::store::close() {
    if (!db.get()) return;
    open = {};
    lent.clear();
    std::string failure;
    std::error_code ignored;
    const auto release_statements = [&] {
        for (sqlite::statement* each :
             {&read_geometry, &read_attributes, &write_line, &write_text, &write_both})
            *each = {};
        runs.close();
    };
    const auto stays = [] {
        return std::string(
            in_language("изменения остались в журнале рядом с ним", "its changes stay in the log beside it"));
    };
    try {
        if (mode == open_mode::read_write && !discarded) layers.publish(scenes, changed, file);
        release_statements();
        if (logging && db.ask("PRAGMA journal_mode=DELETE") != "delete")
            failure = stays();
        else if (logging)  // a reader of the log that a killed process left has left this one
            std::filesystem::remove(file.string() + "-shm", ignored);
    } catch (const sqlite::error& e) {
        failure = stays() + ": " + explain(e);
    }
    release_statements();
    db.close();
    if (!failure.empty()) refuse(file, failure);
}

}  // namespace oxhost
