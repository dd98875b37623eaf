#include "run/request.h"

#include <unistd.h>

#include <algorithm>

#include "base/language.h"
#include "base/text.h"
#include "geodesy/crs.h"
#include "geodesy/crs_import.h"
#include "geodesy/projection_files.h"

namespace oxhost::run {

namespace {

namespace fs = std::filesystem;

target from_file(const std::string& given, const std::string& extension) {
    std::error_code ignored;
    if (!fs::exists(given, ignored))
        throw failure(trouble::unreadable,
                      given + std::string(in_language(": нет такого файла", ": no such file")));
    if (!fs::is_regular_file(given, ignored) || access(given.c_str(), R_OK) != 0)
        throw failure(trouble::unreadable,
                      given + std::string(in_language(": не читается", ": cannot be read")));
    return {given, extension == ".pj4" ? load_pj4(given) : load_prj(given), fs::path(given)};
}

target from_text(const std::string& given) {
    std::string text = given;
    std::ranges::replace_if(
        text, [](char c) { return c == '\n' || c == '\r' || c == '\t'; }, ' ');
    text = trimmed(text);
    if (text.empty())
        throw failure(trouble::refused,
                      std::string(in_language("целевая проекция пуста; сбросить проекцию: \"none\"",
                                              "the target is empty; \"none\" resets a projection")));
    if (text.find_first_not_of("0123456789") == text.npos) text.insert(0, "EPSG:");
    if (auto known = import_crs(text)) return {given, std::move(*known), {}};
    const std::string reason = text.find("proj=") != text.npos ? crs_of(text)->error : "";
    throw failure(trouble::refused, '"' + given + "\": " +
                                        std::string(in_language("PROJ не знает такой проекции",
                                                                "no projection that PROJ knows")) +
                                        (reason.empty() ? "" : " (" + reason + ')'));
}

}  // namespace

target read_target(const std::string& given) {
    if (given == "none") return {given, {}, {}};
    const std::string extension = lower(fs::path(given).extension().string());
    const bool file = extension == ".pj4" || extension == ".prj";
    target read = file ? from_file(given, extension) : from_text(given);
    if (const auto system = crs_of(read.proj4); !system->valid())
        throw failure(trouble::refused,
                      (file ? given + ": " : "") + '"' + read.proj4 +
                          "\": " + std::string(in_language("PROJ отвергает этот текст", "PROJ refuses it")) +
                          " (" + system->error + ')');
    return read;
}

fs::path file_of(const target& wanted, const temporary_folder& folder) {
    if (wanted.file) return *wanted.file;
    const fs::path file = folder / "target.pj4";
    save_pj4(file.string(), wanted.proj4);
    return file;
}

namespace {

bool can_be_read(const std::filesystem::path& file) {
    try {
        project::open(file, open_mode::read_only);
        return true;
    } catch (const project_error&) {
        return false;
    }
}

}  // namespace

std::unique_ptr<project> open_project(const std::filesystem::path& file, open_mode mode) try {
    return project::open(file, mode);
} catch (const project_error& error) {
    const bool only_writing_fails = mode == open_mode::read_write && can_be_read(file);
    throw failure(only_writing_fails ? trouble::refused : trouble::unreadable, error.what());
}

}  // namespace oxhost::run
