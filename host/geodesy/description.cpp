#include "geodesy/description.h"

#include <cmath>

#include "base/numbers.h"
#include "base/text.h"
#include "geodesy/crs.h"
#include "geodesy/description_words.h"

namespace oxhost {
namespace {

class describer {
public:
    describer(const crs& system, language wanted)
        : system_(system), tokens_(system.tokens), wanted_(wanted) {}

    crs_facts facts() const { return {projection(), parameters(), ellipsoid_text(), datum(), units()}; }

    /// The number of a six-degree Gauss-Krueger zone whose number leads the easting.
    std::optional<int> gauss_kruger_zone() const {
        if (tokens_.value("proj") != "tmerc" || scale() != 1 || tokens_.number("lat_0").value_or(0) != 0)
            return {};
        const double zone = (tokens_.number("x_0").value_or(0) - 500000) / 1e6;
        if (zone < 1 || zone > 60 || zone != std::floor(zone)) return {};
        const double meridian = zone <= 30 ? 6 * zone - 3 : 6 * zone - 363;
        if (tokens_.number("lon_0").value_or(0) != meridian) return {};
        return static_cast<int>(zone);
    }

    std::string brief() const {
        std::string text = projection();
        const auto meridian = tokens_.value("lon_0");
        if (!system_.geographic && !gauss_kruger_zone() && meridian) text += ", " + *meridian + "°";
        const auto datum_name = tokens_.value("datum");
        return text + ", " + (datum_name ? *datum_name : ellipsoid_name());
    }

private:
    std::string say(std::string_view english, std::string_view russian) const {
        return std::string(wanted_ == language::russian ? russian : english);
    }

    double scale() const { return tokens_.number("k_0").value_or(tokens_.number("k").value_or(1)); }

    std::string projection() const {
        const std::string key = tokens_.value("proj").value_or("");
        if (key == "utm") {
            return say("UTM, zone ", "UTM, зона ") + tokens_.value("zone").value_or("?") +
                   (tokens_.has("south") ? say(" south", " юг") : say(" north", " север"));
        }
        if (const auto zone = gauss_kruger_zone()) {
            return say("Gauss-Krüger, zone ", "Гаусса – Крюгера, зона ") + std::to_string(*zone);
        }
        if (key.empty()) return tokens_.value("init").value_or("");
        return projection_name(key, wanted_);
    }

    std::string parameters() const {
        std::string text;
        for (const auto& [words, angle, length] : parameter_terms()) {
            const auto value = tokens_.value(words.key);
            if (!value || (words.key == "k" && tokens_.has("k_0"))) continue;
            if (!text.empty()) text += ", ";
            text += std::string(word(words, wanted_)) + ' ' + *value;
            if (angle) text += "°";
            if (length) text += say(" m", " м");
        }
        return text;
    }

    std::string ellipsoid_name() const {
        if (const auto key = tokens_.value("ellps")) {
            if (const term* known = ellipsoid_term(*key)) return std::string(word(*known, wanted_));
        }
        const std::string name = ellipsoid_of(system_.object.get()).name;
        return name.empty() || name == "unknown" ? say("own ellipsoid", "свой эллипсоид") : name;
    }

    std::string ellipsoid_text() const {
        const ellipsoid shape = ellipsoid_of(system_.object.get());
        std::string text = ellipsoid_name() + " (a = " + number_text(shape.a) + say(" m", " м");
        if (shape.rf != 0) {
            text += ", 1/f = " + number_text(std::round(shape.rf * 1e9) / 1e9);
        } else {
            text += say(", a sphere", ", сфера");
        }
        return text + ')';
    }

    std::string datum() const {
        const auto name = tokens_.value("datum");
        if (const auto shift = tokens_.value("towgs84")) {
            return (name ? *name + ", " : "") + say("shift to WGS 84: ", "переход к WGS 84: ") + *shift;
        }
        if (const auto grids = tokens_.value("nadgrids"))
            return say("shift grids ", "сетки сдвигов ") + *grids;
        if (name) return *name;
        if (const auto code = tokens_.value("init")) return say("as in ", "как в ") + *code;
        return say("none: no shift to WGS 84 is known", "не задан: переход к WGS 84 неизвестен");
    }

    std::string units() const {
        if (system_.geographic) return say("degrees", "градусы");
        const std::string key = tokens_.value("units").value_or("m");
        if (system_.metres_per_unit == 1) return std::string(word(*unit_term("m"), wanted_));
        if (const term* known = unit_term(key)) return std::string(word(*known, wanted_));
        return say("units of ", "единицы по ") + number_text(system_.metres_per_unit) + say(" m", " м");
    }

    const crs& system_;
    const proj4_text& tokens_;
    language wanted_;
};

std::string undefined(language wanted) {
    return wanted == language::russian ? "Проекция не определена" : "Projection is not defined";
}

std::string refused(const crs& system, language wanted) {
    return (wanted == language::russian ? "Неверная проекция: " : "Invalid projection: ") + system.error;
}

void add_line(std::string& text, std::string_view label, const std::string& value) {
    if (value.empty()) return;
    if (!text.empty()) text += '\n';
    text.append(label).append(": ").append(value);
}

}  // namespace

crs_facts facts_of(std::string_view proj4, language wanted) {
    const auto system = crs_of(proj4);
    return system->valid() ? describer(*system, wanted).facts() : crs_facts{};
}

std::string describe(std::string_view proj4, language wanted) {
    const auto system = crs_of(proj4);
    if (system->tokens.empty()) return undefined(wanted);
    if (!system->valid()) return refused(*system, wanted) + '\n' + system->text;
    const crs_facts facts = describer(*system, wanted).facts();
    const bool russian = wanted == language::russian;
    std::string text;
    add_line(text, russian ? "Проекция" : "Projection", facts.projection);
    add_line(text, russian ? "Параметры" : "Parameters", facts.parameters);
    add_line(text, russian ? "Эллипсоид" : "Ellipsoid", facts.ellipsoid);
    add_line(text, russian ? "Датум" : "Datum", facts.datum);
    add_line(text, russian ? "Единицы" : "Units", facts.units);
    return text;
}

std::string short_description(std::string_view proj4, language wanted) {
    const auto system = crs_of(proj4);
    if (system->tokens.empty()) return undefined(wanted);
    return system->valid() ? describer(*system, wanted).brief() : refused(*system, wanted);
}

}  // namespace oxhost
