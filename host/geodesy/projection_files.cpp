#include "geodesy/projection_files.h"

#include <unistd.h>

#include <algorithm>
#include <optional>

#include "base/files.h"
#include "base/language.h"
#include "base/text.h"
#include "geodesy/crs.h"
#include "geodesy/crs_import.h"
#include "geodesy/mended_text.h"

namespace oxhost {
namespace {

constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";

std::string say(std::string_view russian, std::string_view english) { return words(russian, english); }

std::string companion_of(const std::string& path) { return path + ".pj4"; }

/// A file's text without byte order mark and surrounding blanks; empty when it is not text.
std::string text_in(const std::string& path) {
    const auto content = read_file(path);
    if (!content) throw file_error(path + ": " + say("нет такого файла", "no such file"));
    std::string text = *content;
    if (text.starts_with(byte_order_mark)) text.erase(0, byte_order_mark.size());
    const auto is_binary = [](unsigned char c) {
        return c < ' ' && blanks.find(static_cast<char>(c)) == blanks.npos;
    };
    if (std::ranges::any_of(text, is_binary)) return {};
    return std::string(trimmed(text));
}

bool is_proj4(std::string_view text) {
    const proj4_text tokens(text);
    return tokens.has("proj") || tokens.has("init");
}

/// The proj4 text of WKT in any of its dialects.
std::optional<std::string> from_wkt(const std::string& wkt) {
    if (wkt.find('[') == wkt.npos && wkt.find('(') == wkt.npos) return {};
    const pj_ptr system(proj_create_from_wkt(proj_context(), wkt.c_str(), nullptr, nullptr, nullptr));
    take_proj_complaint();
    if (!system || !proj_is_crs(system.get())) return {};
    return proj4_of(system.get());
}

std::string esri_wkt(const PJ* system) {
    const char* wkt = proj_as_wkt(proj_context(), system, PJ_WKT1_ESRI, nullptr);
    return wkt ? wkt : "";
}

/// ESRI's form of a text; that of the EPSG system where the text is one, since other software knows its
/// datum by that name.
std::string esri_text(const std::string& path, std::string_view proj4) {
    const auto system = crs_of(proj4);
    if (!system->valid())
        throw file_error(path + ": " + say("нет проекции для записи", "no projection to write") + " (" +
                         system->error + ')');
    std::string wkt;
    if (const auto code = epsg_code(proj4)) {
        const pj_ptr known(proj_create(proj_context(), code->c_str()));
        if (known) wkt = esri_wkt(known.get());
    }
    if (wkt.empty()) {
        const bool bound = proj_get_type(system->object.get()) == PJ_TYPE_BOUND_CRS;
        const pj_ptr plain(bound ? proj_get_source_crs(proj_context(), system->object.get())
                                 : proj_clone(proj_context(), system->object.get()));
        wkt = esri_wkt(plain.get());
    }
    const std::string reason = take_proj_complaint();
    if (wkt.empty())
        throw file_error(path + ": " + say("у проекции нет записи ESRI", "the projection has no ESRI form") +
                         " (" + reason + ')');
    return wkt;
}

std::optional<std::string> pj4_text(const std::string& path) {
    const std::string text = joined_lines(text_in(path));
    return is_proj4(text) ? std::optional(mended(text)) : std::nullopt;
}

/// The text in the companion, if that belongs to a `.prj` of this content.
std::optional<std::string> companion_text(const std::string& path, const std::string& content) {
    try {
        auto text = pj4_text(companion_of(path));
        if (text && esri_text(path, *text) == content) return text;
    } catch (const file_error&) {
        // unreadable, or a text without ESRI form: not what save_prj leaves
    }
    return {};
}

std::optional<std::string> prj_text(const std::string& path) {
    const std::string content = text_in(path);
    if (auto kept = companion_text(path, content)) return kept;
    return is_proj4(content) ? import_crs(joined_lines(content)) : from_wkt(content);
}

std::string required(const std::string& path, std::optional<std::string> text) {
    if (!text)
        throw file_error(path + ": " +
                         say("нет проекции, известной PROJ", "holds no projection that PROJ knows"));
    return *std::move(text);
}

}  // namespace

std::string load_pj4(const std::string& path) { return required(path, pj4_text(path)); }

std::string load_prj(const std::string& path) { return required(path, prj_text(path)); }

void save_pj4(const std::string& path, std::string_view proj4) {
    replace_file(path, proj4.empty() ? std::string() : std::string(proj4) + '\n');
}

void save_prj(const std::string& path, std::string_view proj4) {
    const std::string wkt = esri_text(path, proj4);
    // A shift is kept as numbers even where the WKT names its datum: another edition of the EPSG data set
    // may prefer another shift for it.
    const auto alone = from_wkt(wkt);
    const bool complete = alone && equal(*alone, proj4) && !proj4_text(proj4).has("towgs84");
    // The companion first: next to an old .prj it does not count, next to the new one it is needed.
    if (!complete) save_pj4(companion_of(path), proj4);
    replace_file(path, wkt);
    if (complete) unlink(companion_of(path).c_str());
}

}  // namespace oxhost
