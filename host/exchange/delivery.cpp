#include "exchange/delivery.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <utility>
#include <vector>

#include "base/language.h"
#include "exchange/exchange.h"
#include "exchange/formats.h"

namespace oxhost {

namespace {

namespace fs = std::filesystem;

/// So that a power cut after the renaming leaves the new content, not an empty file.
void flush_to_disk(const fs::path& file) {
    const int handle = open(file.c_str(), O_RDONLY | O_CLOEXEC);
    if (handle < 0) return;
    fsync(handle);
    close(handle);
}

/// Renamings that can be taken back.
class moves {
public:
    void move(const fs::path& from, const fs::path& to) {
        fs::rename(from, to);
        done_.emplace_back(from, to);
    }
    /// The last one first; false when a file could not be brought back.
    bool take_back() {
        bool complete = true;
        for (; !done_.empty(); done_.pop_back()) {
            std::error_code failed;
            fs::rename(done_.back().second, done_.back().first, failed);
            complete &= !failed;
        }
        return complete;
    }

private:
    std::vector<std::pair<fs::path, fs::path>> done_;
};

bool is_there(const fs::path& file) { return fs::exists(fs::symlink_status(file)); }

}  // namespace

fs::path workshop_for(const fs::path& out) {
    const fs::path folder =
        is_stream(out) ? fs::temp_directory_path() : fs::absolute(behind_links(out)).parent_path();
    return folder / ".oxhost-export-XXXXXX";
}

void deliver(const temporary_folder& made, const fs::path& out, bool overwrite) {
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(made.path())) files.push_back(entry.path());
    if (is_stream(out)) return copy_into_stream(files.front(), out);
    for (const fs::path& each : files) flush_to_disk(each);
    const std::vector<fs::path> old = files_of(out);
    if (!overwrite && std::ranges::any_of(old, is_there))
        throw exchange_error(out.string() + words(": появился за это время", ": has appeared meanwhile"));
    if (old.size() == 1) return fs::rename(files.front(), behind_links(out));
    temporary_folder aside(workshop_for(out));
    moves all;
    try {
        for (const fs::path& each : old)
            if (is_there(each)) all.move(each, aside / each.filename());
        for (const fs::path& each : files) all.move(each, fs::path(out).replace_filename(each.filename()));
    } catch (const fs::filesystem_error& e) {
        if (all.take_back()) throw;
        throw exchange_error(
            out.string() + words(": замена не удалась: ", ": cannot be replaced: ") + e.code().message() +
            words("; прежние файлы лежат в ", "; the old files are in ") + aside.keep().string());
    }
}

}  // namespace oxhost
