#include "project/project.h"

#include <utility>

#include "project/addition.h"
#include "project/columns.h"
#include "project/schema.h"
#include "project/store.h"

namespace oxhost {

namespace {

namespace fs = std::filesystem;

void check(sqlite::connection& db, const fs::path& file) {
    if (const std::string reason = reason_to_refuse(db); !reason.empty()) refuse(file, reason);
}

/// A check that leaves no trace: the file is opened for reading only. A change that was cut off in its
/// middle can only be undone, and the file judged, by opening it for writing.
sqlite::connection open_checked(const fs::path& file, open_mode mode) {
    sqlite::connection db(fs::absolute(file), SQLITE_OPEN_READONLY);
    try {
        db.run("BEGIN");
        check(db, file);
    } catch (const sqlite::error& e) {
        if (mode != open_mode::read_write || e.code != SQLITE_READONLY_ROLLBACK) throw;
    }
    return db;
}

sqlite::connection private_copy(sqlite::connection& source) {
    sqlite::connection copy({}, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    copy.copy_from(source);
    copy.run("PRAGMA journal_mode=MEMORY; PRAGMA synchronous=OFF");
    return copy;
}

}  // namespace

std::string name_of(const scene& named) {
    return words("сцена ", "scene ") + std::to_string(named.index) + " \"" + named.caption + '"';
}

project::project(std::unique_ptr<store> opened) : store_(std::move(opened)) { store_->load(*this); }

project::~project() {
    try {
        close();
    } catch (const project_error&) {  // the log stays beside the file, complete
    }
}

std::unique_ptr<project> project::create(const fs::path& file) {
    if (fs::exists(file)) refuse(file, in_language("уже существует", "already exists"));
    auto made = std::make_unique<store>();
    made->file = file;
    made->mode = open_mode::read_write;
    try {
        made->db = {fs::absolute(file), SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE};
        made->created = true;
        made->lock();
        create_schema(made->db);
        return std::unique_ptr<project>(new project(std::move(made)));
    } catch (const sqlite::error& e) {
        std::error_code ignored;
        if (made && made->created) fs::remove(file, ignored);
        refuse(file, words("не удалось создать: ", "cannot be created: ") + explain(e));
    }
}

std::unique_ptr<project> project::open(const fs::path& file, open_mode mode) {
    std::error_code ignored;
    if (!fs::exists(file, ignored)) refuse(file, in_language("нет такого файла", "no such file"));
    if (!fs::is_regular_file(file, ignored)) refuse(file, in_language("не файл", "is not a file"));
    auto opened = std::make_unique<store>();
    opened->file = file;
    opened->mode = mode;
    try {
        opened->db = open_checked(file, mode);
        if (mode == open_mode::read_write) {
            opened->db = {fs::absolute(file), SQLITE_OPEN_READWRITE};
            if (sqlite3_db_readonly(opened->db.get(), "main") == 1)
                refuse(file, in_language("запись невозможна", "cannot be written"));
            opened->lock();
            check(opened->db, file);
        } else if (mode == open_mode::scratch) {
            opened->db = private_copy(opened->db);
        }
        return std::unique_ptr<project>(new project(std::move(opened)));
    } catch (const sqlite::error& e) {
        refuse(file, explain(e));
    }
}

std::unique_ptr<project> project::scratch_copy() {
    if (!store_->db.get()) refuse(path(), in_language("закрыт", "is closed"));
    auto copied = std::make_unique<store>();
    copied->file = path();
    copied->mode = open_mode::scratch;
    try {
        copied->db = private_copy(store_->db);
        return std::unique_ptr<project>(new project(std::move(copied)));
    } catch (const sqlite::error& e) {
        refuse(path(), explain(e));
    }
}

void project::close() { store_->close(); }

void project::discard() {
    store_->discarded = true;
    store_->close();
    if (store_->created) fs::remove(store_->file);
}

const fs::path& project::path() const { return store_->file; }
open_mode project::mode() const { return store_->mode; }
const std::deque<scene>& project::scenes() const { return store_->scenes; }
scene* project::at(std::size_t index) { return index < size() ? &store_->scenes[index] : nullptr; }

// ---- reading

section_line project::read_line(const scene& subject) {
    section_line line;
    try {
        if (store_->read_blob(subject)) decode_line(store_->buffer, line);
    } catch (const sqlite::error& e) {
        refuse(subject, words("линия не читается: ", "line cannot be read: ") + explain(e));
    } catch (const blob_error& e) {
        refuse(subject, e.what());
    }
    return line;
}

const std::vector<field>& project::fields() const { return store_->fields; }

std::vector<field_value> project::read_values(const scene& subject) {
    std::vector<field_value> values;
    if (fields().empty()) return values;
    try {
        if (!store_->db.get()) refuse(path(), in_language("закрыт", "is closed"));
        const sqlite::statement& row = store_->select_attributes(subject);
        for (std::size_t i = 0; i < fields().size(); ++i)
            values.push_back(read_value(row, static_cast<int>(i)));
        store_->read_attributes.reset();
    } catch (const sqlite::error& e) {
        refuse(subject, words("атрибуты не читаются: ", "attributes cannot be read: ") + explain(e));
    }
    return values;
}

const section_line* project::lend_line(scene& subject) {
    if (store_->open.subject == &subject && store_->open.line) return &*store_->open.line;
    if (!subject.line) return nullptr;
    auto found = store_->lent.find(&subject);
    if (found == store_->lent.end()) found = store_->lent.emplace(&subject, read_line(subject)).first;
    return &found->second;
}

const std::string& project::proj4(const scene& subject) const {
    return store_->open.subject == &subject && store_->open.text ? *store_->open.text : subject.proj4;
}

// ---- changing

void project::begin_update(scene& subject) {
    bracket& open = store_->open;
    if (open.subject == &subject) {
        ++open.depth;
        return;
    }
    if (open.subject) {
        open.depth = 1;
        end_update(*open.subject);
    }
    open.subject = &subject;
    open.depth = 1;
}

void project::set_line(scene& subject, const section_line& line) {
    if (store_->open.subject != &subject)
        store_->write(subject, &line, nullptr);
    else if (!store_->open.abandoned)
        store_->open.line = line;
}

void project::set_proj4(scene& subject, std::string text) {
    if (store_->open.subject != &subject)
        store_->write(subject, nullptr, &text);
    else if (!store_->open.abandoned)
        store_->open.text = std::move(text);
}

void project::end_update(scene& subject) {
    if (store_->open.subject != &subject || --store_->open.depth > 0) return;
    const bracket done = std::exchange(store_->open, {});
    store_->lent.erase(&subject);
    store_->write(subject, done.line ? &*done.line : nullptr, done.text ? &*done.text : nullptr);
}

scene* project::updated_scene() const { return store_->open.subject; }

void project::abandon_update(scene& subject) {
    bracket& open = store_->open;
    if (open.subject != &subject) return;
    open.abandoned = true;
    open.line.reset();
    open.text.reset();
}

project::written project::last_written() const { return store_->last; }

void project::append(std::span<const new_scene> added) {
    addition scenes(*this);
    for (const new_scene& each : added) scenes.add(each);
    scenes.commit();
}

// ---- the one that is served

namespace {

project* current = nullptr;

}  // namespace

project* current_project() { return current; }
void set_current_project(project* opened) { current = opened; }

}  // namespace oxhost
