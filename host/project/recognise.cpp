#include "project/recognise.h"

#include "base/language.h"
#include "project/schema.h"
#include "project/store.h"

namespace oxhost {

namespace {

namespace fs = std::filesystem;

/// Through SQLite only: to open the file otherwise, and to close it, would end the locks that SQLite holds.
bool holds_scenes(const fs::path& file) try {
    std::error_code ignored;
    if (!fs::is_regular_file(file, ignored)) return false;
    sqlite::connection db(fs::absolute(file), SQLITE_OPEN_READONLY);
    return reason_to_refuse(db).empty();
} catch (const sqlite::error& e) {
    if (e.primary() == SQLITE_NOTADB) return false;
    refuse(file, words("неясно, не проект ли это: ", "may be a project: ") + explain(e));
}

}  // namespace

bool is_project(const fs::path& file) {
    if (holds_scenes(file)) return true;
    const std::string name = file.string();
    for (const std::string_view log : {"-wal", "-shm", "-journal"})
        if (name.ends_with(log) && holds_scenes(name.substr(0, name.size() - log.size()))) return true;
    return false;
}

}  // namespace oxhost
