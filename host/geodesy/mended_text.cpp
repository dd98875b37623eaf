#include "geodesy/mended_text.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/memo.h"
#include "base/numbers.h"
#include "base/text.h"
#include "geodesy/crs.h"

namespace oxhost {
namespace {

constexpr std::array<const char*, 8> shape_keys{"ellps", "a", "b", "R", "rf", "f", "es", "e"};

/// The name of the ellipsoid that PROJ puts a named datum on; empty for a name that it does not know.
const std::string& own_ellipsoid_of(const std::string& datum) {
    static memo<std::string> known(256);
    return known.of(datum, [&]() -> std::string {
        const pj_ptr object(proj_create(proj_context(), ("+proj=longlat +datum=" + datum).c_str()));
        take_proj_complaint();
        if (!object) return {};
        return proj4_text(proj_pj_info(object.get()).definition).value("ellps").value_or("");
    });
}

ellipsoid shape_of(const proj4_text& keys) {
    proj4_text probe("+proj=longlat +no_defs +type=crs");
    for (const char* key : shape_keys)
        if (const auto value = keys.value(key)) probe.set(key, *value, "no_defs");
    const pj_ptr object(proj_create(proj_context(), probe.str().c_str()));
    take_proj_complaint();
    return object ? ellipsoid_of(object.get()) : ellipsoid{};
}

bool mend_ellipsoid(proj4_text& text) {
    const auto datum = text.value("datum");
    const bool shaped = std::ranges::any_of(shape_keys, [&](const char* key) { return text.has(key); });
    if (!datum || !shaped) return false;
    const std::string& own = own_ellipsoid_of(*datum);
    if (own.empty() || text.value("ellps") == own) return false;
    const ellipsoid given = shape_of(text);
    const ellipsoid wanted = shape_of(proj4_text("+ellps=" + own));
    if (std::abs(given.a - wanted.a) < 1e-3 && std::abs(given.rf - wanted.rf) < 1e-6) return false;
    if (!text.has("ellps")) text.set("ellps", own, "no_defs");
    text.set("ellps", own);
    for (const char* key : shape_keys)
        if (std::string_view(key) != "ellps") text.remove(key);
    return true;
}

/// One number or several with commas between; nothing where no number has a "+" in its exponent.
std::optional<std::string> without_exponents(std::string_view value) {
    if (lower(value).find("e+") == std::string::npos) return {};
    std::string written;
    for (bool last = false; !last;) {
        const auto comma = value.find(',');
        last = comma == value.npos;
        const auto number = parse_number(value.substr(0, comma));
        if (!number) return {};
        std::string digits = number_text(*number);
        std::erase(digits, '+');  // of an exponent beyond fifteen digits
        append_item(written, digits, ",");
        if (!last) value.remove_prefix(comma + 1);
    }
    return written;
}

bool mend_values(proj4_text& text) {
    bool changed = false;
    const auto tokens = text.tokens();
    for (const auto& [key, value] : tokens) {
        if (!value) continue;
        if (const auto plain = without_exponents(*value)) {
            text.set(key, *plain);
            changed = true;
        }
        if (key == "proj" && (*value == "lonlat" || *value == "latlon" || *value == "latlong")) {
            text.set(key, "longlat");
            changed = true;
        }
    }
    return changed;
}

}  // namespace

std::string mended(std::string_view proj4) {
    proj4_text text(proj4);
    const bool values = mend_values(text);
    const bool shape = mend_ellipsoid(text);
    return values || shape ? text.str() : std::string(trimmed(proj4));
}

std::string joined_lines(std::string_view text) {
    std::string joined;
    while (!text.empty()) {
        const auto end = text.find_first_of("\r\n");
        std::string_view line = text.substr(0, end);
        text.remove_prefix(end == text.npos ? text.size() : end + 1);
        for (auto mark = line.find('#'); mark != line.npos; mark = line.find('#', mark + 1)) {
            if (mark > 0 && blanks.find(line[mark - 1]) == blanks.npos) continue;  // within a value
            line = line.substr(0, mark);
            break;
        }
        line = trimmed(line);
        if (!line.empty()) append_item(joined, line, " ");
    }
    return joined;
}

}  // namespace oxhost
