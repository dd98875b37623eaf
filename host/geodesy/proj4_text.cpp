#include "geodesy/proj4_text.h"

#include <algorithm>
#include <array>

#include "base/memo.h"
#include "base/numbers.h"
#include "base/text.h"
#include "geodesy/proj_context.h"

namespace oxhost {
namespace {

/// Keys that name no property of a 2D coordinate system: notation, wrapping, heights.
constexpr std::array<std::string_view, 10> without_effect{"no_defs",    "wktext",    "type",   "lon_wrap",
                                                          "geoidgrids", "geoid_crs", "vunits", "vto_meter",
                                                          "title",      "z_0"};

struct named_datum {
    std::string ellps;
    towgs84 shift;
};

/// PROJ's own table of datum names, asked through an object's expanded definition. Nothing for names it
/// does not know and for NAD27, which has grids only.
std::optional<named_datum> ask_datum(const std::string& name) {
    const std::string probe = "+proj=longlat +datum=" + name;
    const pj_ptr object(proj_create(proj_context(), probe.c_str()));
    if (!object) {
        take_proj_complaint();
        return {};
    }
    const proj4_text expanded(proj_pj_info(object.get()).definition);
    auto shift = expanded.shift();
    // PROJ has a grid for Potsdam; its published seven parameters: EPSG:1777, DHDN to WGS 84 (2).
    if (name == "potsdam") shift = towgs84{598.1, 73.7, 418.2, 0.202, 0.045, -2.455, 6.7};
    if (!shift) return {};
    return named_datum{expanded.value("ellps").value_or(""), *shift};
}

const std::optional<named_datum>& datum_definition(const std::string& name) {
    static memo<std::optional<named_datum>> known(256);
    return known.of(name, [&] { return ask_datum(name); });
}

std::string normal_value(const std::string& value) {
    const auto number = parse_number(value);
    return number ? number_text(*number) : value;
}

std::string shift_text(const towgs84& shift) {
    std::string text;
    for (const double value : shift) append_item(text, number_text(value), ",");
    return text;
}

void remove_default(std::map<std::string, std::string>& keys, const std::string& key,
                    std::string_view value) {
    const auto found = keys.find(key);
    if (found != keys.end() && found->second == value) keys.erase(found);
}

}  // namespace

proj4_text::proj4_text(std::string_view text) {
    while (true) {
        const auto start = text.find_first_not_of(blanks);
        if (start == text.npos) return;
        text.remove_prefix(start);
        auto word = text.substr(0, text.find_first_of(blanks));
        text.remove_prefix(word.size());
        if (word.starts_with('+')) word.remove_prefix(1);
        if (word.empty()) continue;
        const auto equals = word.find('=');
        if (equals == word.npos) {
            tokens_.push_back({std::string(word), {}});
        } else {
            tokens_.push_back({std::string(word.substr(0, equals)), std::string(word.substr(equals + 1))});
        }
    }
}

const proj4_text::token* proj4_text::find(std::string_view key) const {
    const auto found = std::ranges::find(tokens_, key, &token::key);
    return found == tokens_.end() ? nullptr : &*found;
}

std::optional<std::string> proj4_text::value(std::string_view key) const {
    const token* found = find(key);
    return found ? found->value : std::nullopt;
}

std::optional<double> proj4_text::number(std::string_view key) const {
    const auto text = value(key);
    return text ? parse_number(*text) : std::nullopt;
}

std::optional<towgs84> proj4_text::shift() const {
    const auto text = value("towgs84");
    if (!text) return {};
    towgs84 shift;
    std::string_view rest = *text;
    while (true) {
        const auto comma = rest.find(',');
        const auto number = parse_number(rest.substr(0, comma));
        if (!number) return {};
        shift.push_back(*number);
        if (comma == rest.npos) break;
        rest.remove_prefix(comma + 1);
    }
    if (shift.size() > 7) return {};
    shift.resize(7);
    return shift;
}

void proj4_text::remove(std::string_view key) {
    std::erase_if(tokens_, [key](const token& each) { return each.key == key; });
}

void proj4_text::set(std::string_view key, std::string_view value, std::string_view before) {
    token fresh{std::string(key), std::string(value)};
    auto place = std::ranges::find(tokens_, key, &token::key);
    if (place != tokens_.end()) {
        *place = std::move(fresh);
        return;
    }
    if (!before.empty()) place = std::ranges::find(tokens_, before, &token::key);
    tokens_.insert(place, std::move(fresh));
}

void proj4_text::set_shift(const towgs84& shift) {
    set("towgs84", shift_text(shift), has("units") ? "units" : "no_defs");
}

std::string proj4_text::str() const {
    std::string text;
    for (const auto& [key, value] : tokens_) {
        if (!text.empty()) text += ' ';
        text.append(1, '+').append(key);
        if (value) text.append(1, '=').append(*value);
    }
    return text;
}

std::map<std::string, std::string> proj4_text::canonical() const {
    std::map<std::string, std::string> keys;
    for (const auto& [key, value] : tokens_) {
        if (std::ranges::find(without_effect, key) != without_effect.end()) continue;
        keys.emplace(key == "k" ? "k_0" : key, normal_value(value.value_or("")));
    }
    if (const auto own = shift()) keys["towgs84"] = shift_text(*own);
    if (const auto name = value("datum")) {
        if (const auto datum = datum_definition(*name)) {
            keys.erase("datum");
            keys["ellps"] = datum->ellps;
            if (!keys.contains("nadgrids")) keys.emplace("towgs84", shift_text(datum->shift));
        }
    }
    auto& projection = keys["proj"];
    if (projection == "latlong" || projection == "latlon" || projection == "lonlat") projection = "longlat";
    if (projection != "krovak") {  // whose defaults are its country's
        for (const char* key : {"lat_0", "lon_0"}) remove_default(keys, key, "0");
        remove_default(keys, "k_0", "1");
    }
    for (const char* key : {"x_0", "y_0", "pm"}) remove_default(keys, key, "0");
    remove_default(keys, "pm", "greenwich");
    remove_default(keys, "units", "m");
    remove_default(keys, "to_meter", "1");
    remove_default(keys, "proj", "");
    return keys;
}

}  // namespace oxhost
