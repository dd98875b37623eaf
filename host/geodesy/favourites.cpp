#include "geodesy/favourites.h"

#include <fcntl.h>
#include <pwd.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <filesystem>

#include <nlohmann/json.hpp>

#include "base/files.h"
#include "base/language.h"

namespace oxhost {
namespace {

std::string configuration_folder() {
    const auto variable = [](const char* name) -> std::string {
        const char* value = std::getenv(name);
        return value ? value : "";
    };
    if (const auto own = variable("OXHOST_CONFIG"); !own.empty()) return own;
    if (const auto user = variable("XDG_CONFIG_HOME"); !user.empty()) return user + "/oxhost";
    std::string home = variable("HOME");
    if (home.empty()) {
        const passwd* const account = getpwuid(getuid());
        if (account && account->pw_dir) home = account->pw_dir;
    }
    return home + "/.config/oxhost";
}

std::string said(std::string_view russian, std::string_view english) { return words(russian, english); }

/// Where a chain of links leads, to a file that need not exist.
std::filesystem::path link_target(std::filesystem::path file) {
    constexpr int longest_chain = 40;  // the system's own limit
    std::error_code error;
    for (int i = 0; i < longest_chain; ++i) {
        const auto next = std::filesystem::read_symlink(file, error);
        if (error) break;
        file = next.is_absolute() ? next : file.parent_path() / next;
    }
    return file;
}

/// Held by one writer at a time, among all processes: a lock on the folder, which leaves no file behind.
/// Where the file system has no such locks, writers still read again what they change.
class writer_lock {
public:
    explicit writer_lock(const std::filesystem::path& folder)
        : handle_(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
        while (handle_ >= 0 && flock(handle_, LOCK_EX) != 0 && errno == EINTR) continue;
    }
    writer_lock(const writer_lock&) = delete;
    writer_lock& operator=(const writer_lock&) = delete;
    ~writer_lock() {
        if (handle_ >= 0) close(handle_);
    }

private:
    int handle_;
};

std::vector<favourite> parse(const std::string& content) {
    std::vector<favourite> items;
    const auto document = nlohmann::json::parse(content);
    for (const auto& entry : document.at("favourites")) {
        items.push_back({entry.at("caption").get<std::string>(), entry.at("proj4").get<std::string>()});
    }
    return items;
}

/// Answers the new name.
std::string put_aside(const std::string& path) {
    std::string aside;
    for (int number = 1; aside.empty() || std::filesystem::exists(aside); ++number) {
        aside = path + ".damaged-" + std::to_string(number);
    }
    std::error_code error;
    std::filesystem::rename(path, aside, error);
    if (error)
        throw file_error(
            path +
            said(": файл повреждён, и его нельзя переименовать: ", ": damaged and cannot be put aside: ") +
            error.message());
    return aside;
}

/// What the file holds, and what is to be said of it. Throws file_error.
std::pair<std::vector<favourite>, std::optional<std::string>> stored_list() {
    const std::string path = favourites_path();
    const auto content = read_file(path, std::size_t{16} << 20);
    if (!content) return {};
    try {
        return {parse(*content), std::nullopt};
    } catch (const nlohmann::json::exception& damage) {
        return {{},
                path +
                    said(": избранные проекции повреждены, файл сохранён как ",
                         ": damaged favourites, kept as ") +
                    put_aside(link_target(path).string()) + " (" + damage.what() + ')'};
    }
}

}  // namespace

std::string favourites_path() { return configuration_folder() + "/favourites.json"; }

std::optional<std::string> favourite_list::load() {
    take({});
    unreadable_ = false;
    try {
        auto [items, complaint] = stored_list();
        take(std::move(items));
        return complaint;
    } catch (const file_error& error) {
        unreadable_ = true;
        return error.what();
    }
}

void favourite_list::save() {
    if (!is_changed()) return;
    const std::string path = favourites_path();
    if (unreadable_)
        throw file_error(path + said(": файл не удалось прочитать, поэтому он не заменяется",
                                     ": could not be read before, so it is not replaced"));
    std::error_code ignored;  // the write says what is wrong
    std::filesystem::create_directories(configuration_folder(), ignored);
    const auto file = link_target(path);
    const writer_lock lock(file.parent_path());
    auto items = applied_to(stored_list().first);
    nlohmann::ordered_json list = nlohmann::ordered_json::array();
    for (const auto& [caption, proj4] : items) list.push_back({{"caption", caption}, {"proj4", proj4}});
    replace_file(file, nlohmann::ordered_json{{"favourites", list}}.dump(2) + '\n');
    take(std::move(items));
}

bool favourite_list::is_changed() const {
    return !removed_.empty() ||
           std::ranges::any_of(items_, [](const entry& each) { return each.stored != each.now; });
}

std::vector<favourite> favourite_list::applied_to(std::vector<favourite> others) const {
    for (const favourite& gone : removed_)
        if (const auto place = std::ranges::find(others, gone); place != others.end()) others.erase(place);
    for (const auto& [now, stored] : items_) {
        if (stored == now) continue;
        const auto place = stored ? std::ranges::find(others, *stored) : others.end();
        // one that another writer removed or renamed meanwhile comes back under its name here
        place != others.end() ? void(*place = now) : others.push_back(now);
    }
    return others;
}

void favourite_list::take(std::vector<favourite> stored) {
    items_.clear();
    removed_.clear();
    for (favourite& each : stored) items_.push_back({each, each});
}

const favourite* favourite_list::at(std::int32_t index) const {
    return index >= 0 && index < count() ? &items_[static_cast<std::size_t>(index)].now : nullptr;
}

void favourite_list::remove(std::int32_t index) {
    if (!at(index)) return;
    const auto place = items_.begin() + index;
    if (place->stored) removed_.push_back(*std::move(place->stored));
    items_.erase(place);
}

void favourite_list::rename(std::int32_t index, std::string caption) {
    if (at(index)) items_[static_cast<std::size_t>(index)].now.caption = std::move(caption);
}

}  // namespace oxhost
