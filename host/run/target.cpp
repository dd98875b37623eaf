#include "run/target.h"

#include <unistd.h>

#include <algorithm>

#include "base/text.h"
#include "geodesy/crs.h"
#include "geodesy/crs_import.h"
#include "geodesy/projection_files.h"
#include "run/failure.h"

namespace oxhost::run {

namespace {

namespace fs = std::filesystem;

target from_file(const std::string& given, const std::string& extension) {
    std::error_code ignored;
    if (!fs::exists(given, ignored)) throw failure(trouble::unreadable, given + ": no such file");
    if (!fs::is_regular_file(given, ignored) || access(given.c_str(), R_OK) != 0)
        throw failure(trouble::unreadable, given + ": cannot be read");
    return {given, extension == ".pj4" ? load_pj4(given) : load_prj(given), fs::path(given)};
}

target from_text(const std::string& given) {
    std::string text = given;
    std::ranges::replace_if(
        text, [](char c) { return c == '\n' || c == '\r' || c == '\t'; }, ' ');
    if (trimmed(text).empty())
        throw failure(trouble::refused, "the target is empty; \"none\" resets a projection");
    if (auto known = import_crs(text)) return {given, std::move(*known), {}};
    const std::string reason = text.find("proj=") != text.npos ? crs_of(text)->error : "";
    throw failure(trouble::refused,
                  '"' + given + "\": no projection that PROJ knows" + (reason.empty() ? "" : ": " + reason));
}

}  // namespace

target read_target(const std::string& given) {
    if (given == "none") return {given, {}, {}};
    const std::string extension = lower(fs::path(given).extension().string());
    const bool file = extension == ".pj4" || extension == ".prj";
    target read = file ? from_file(given, extension) : from_text(given);
    if (const auto system = crs_of(read.proj4); !system->valid())
        throw failure(trouble::refused, (file ? given + ": " : "") + '"' + read.proj4 +
                                            "\": PROJ refuses it: " + system->error);
    return read;
}

fs::path file_of(const target& wanted, const temporary_folder& folder) {
    if (wanted.file) return *wanted.file;
    const fs::path file = folder / "target.pj4";
    save_pj4(file.string(), wanted.proj4);
    return file;
}

}  // namespace oxhost::run
