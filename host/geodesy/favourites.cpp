#include "geodesy/favourites.h"

#include <cstdlib>
#include <filesystem>

#include <nlohmann/json.hpp>

#include "base/files.h"

namespace oxhost {
namespace {

std::string configuration_folder() {
    const auto variable = [](const char* name) -> std::string {
        const char* value = std::getenv(name);
        return value ? value : "";
    };
    if (const auto own = variable("OXHOST_CONFIG"); !own.empty()) return own;
    if (const auto user = variable("XDG_CONFIG_HOME"); !user.empty()) return user + "/oxhost";
    return variable("HOME") + "/.config/oxhost";
}

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
    if (error) throw file_error(path + ": damaged and cannot be put aside: " + error.message());
    return aside;
}

}  // namespace

std::string favourites_path() { return configuration_folder() + "/favourites.json"; }

std::optional<std::string> favourite_list::load() {
    items_.clear();
    stored_.clear();
    unreadable_ = false;
    const std::string path = favourites_path();
    try {
        const auto content = read_file(path, std::size_t{16} << 20);
        if (!content) return {};
        try {
            items_ = parse(*content);
        } catch (const nlohmann::json::exception& damage) {
            return path + ": damaged favourites, kept as " + put_aside(path) + " (" + damage.what() + ')';
        }
    } catch (const file_error& error) {
        unreadable_ = true;
        return error.what();
    }
    stored_ = items_;
    return {};
}

void favourite_list::save() {
    if (items_ == stored_) return;
    const std::string path = favourites_path();
    if (unreadable_) throw file_error(path + ": could not be read before, so it is not replaced");
    nlohmann::ordered_json list = nlohmann::ordered_json::array();
    for (const auto& [caption, proj4] : items_) list.push_back({{"caption", caption}, {"proj4", proj4}});
    std::error_code ignored;  // the write says what is wrong
    std::filesystem::create_directories(configuration_folder(), ignored);
    replace_file(path, nlohmann::ordered_json{{"favourites", list}}.dump(2) + '\n');
    stored_ = items_;
}

const favourite* favourite_list::at(std::int32_t index) const {
    return index >= 0 && index < count() ? &items_[static_cast<std::size_t>(index)] : nullptr;
}

void favourite_list::remove(std::int32_t index) {
    if (at(index)) items_.erase(items_.begin() + index);
}

void favourite_list::rename(std::int32_t index, std::string caption) {
    if (at(index)) items_[static_cast<std::size_t>(index)].caption = std::move(caption);
}

}  // namespace oxhost
