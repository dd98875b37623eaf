#include "geodesy/warnings.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/numbers.h"
#include "geodesy/crs.h"
#include "geodesy/measure.h"
#include "geodesy/published_shifts.h"
#include "geodesy/transformation.h"

namespace oxhost {
namespace {

class advisor {
public:
    explicit advisor(language wanted) : russian_(wanted == language::russian) {}

    std::string say(const std::string& english, const std::string& russian) const {
        return russian_ ? russian : english;
    }

    void about_keys(const crs& system, std::vector<std::string>& lines) const {
        if (!system.tokens.has("proj")) return;  // no proj4 text at all
        for (const auto& token : system.tokens.tokens()) {
            if (is_known_key(token.key)) continue;
            lines.push_back(say("PROJ does not know the key \"+" + token.key + "\" and ignores it",
                                "PROJ не знает ключ \"+" + token.key + "\" и пропускает его"));
        }
    }

    void about_rotations(const crs& system, std::vector<std::string>& lines) const {
        const auto shift = system.tokens.shift();
        if (!shift || std::all_of(shift->begin() + 3, shift->begin() + 6, [](double r) { return r == 0; }))
            return;
        const auto& published = published_shifts(ellipsoid_of(system.object.get()));
        const auto as_published = [&](const auto& each) { return same_shift(*shift, each.values); };
        if (std::ranges::any_of(published, as_published)) return;
        for (const auto& each : published) {
            if (!rotations_reversed(*shift, each.values)) continue;
            const std::string set = each.name + " (" + each.code + ')';
            lines.push_back(
                say("the towgs84 rotations are those of " + set +
                        " with the opposite signs: coordinate frame convention instead of position vector",
                    "повороты towgs84 совпадают с " + set +
                        " с обратными знаками: соглашение coordinate frame вместо position vector"));
            return;
        }
    }

    void about_missing_shift(const crs& system, std::optional<point> near,
                             std::vector<std::string>& lines) const {
        const ellipsoid shape = ellipsoid_of(system.object.get());
        if (has_datum(system) || is_wgs84_like(shape)) return;
        const point place = near.value_or(origin(system));
        const auto metres = missing_shift(system, shape, place);
        if (!metres) {
            lines.push_back(say("no datum shift: positions are off by an unknown amount",
                                "нет перехода к датуму WGS 84: величина ошибки неизвестна"));
            return;
        }
        const std::string size = number_text(std::round(*metres));
        lines.push_back(say("no datum shift: off by about " + size + " m here",
                            "нет перехода к датуму WGS 84: ошибка здесь около " + size + " м"));
    }

    void about_distortion(const crs& source, const crs& target, const polyline& line,
                          std::vector<std::string>& lines) const {
        polyline drawn = line;
        if (const auto failure = transformation::between(source.text, target.text)->apply(drawn)) {
            const std::string vertex = std::to_string(failure->vertex);
            lines.push_back(say("the line cannot be drawn there: vertex " + vertex + ": " + failure->reason,
                                "линию нельзя в ней изобразить: вершина " + vertex + ": " + failure->reason));
            return;
        }
        const auto distortion = length_distortion(drawn, target.text);
        if (!distortion || *distortion <= 0.01) return;
        const double share =
            *distortion < 0.1 ? std::round(1000 * *distortion) / 10 : std::round(100 * *distortion);
        lines.push_back(
            say("the line lies outside its sensible area: lengths are off by " + number_text(share) + " %",
                "линия лежит вне её разумной области: длины искажены на " + number_text(share) + " %"));
    }

private:
    static bool is_wgs84_like(const ellipsoid& shape) {
        // GRS 80 differs by 0.1 mm in the minor axis
        return std::abs(shape.a - 6378137) < 1e-3 && std::abs(shape.rf - 298.2572) < 1e-3;
    }

    static point origin(const crs& system) {
        const auto number = [&](const char* key) { return system.tokens.number(key).value_or(0); };
        point place{number("lon_0"), number("lat_0")};
        if (system.tokens.has("zone")) place.x = 6 * number("zone") - 183;
        // A projection that counts from the equator is used where its country lies; the middle
        // latitudes stand for that.
        if (place.y == 0) place.y = system.tokens.has("lat_1") ? number("lat_1") : 45;
        return place;
    }

    /// How far a place moves when its longitude and latitude on this ellipsoid are read as WGS 84's, by
    /// the shift that is most used there: the middle one of those published for the place.
    static std::optional<double> missing_shift(const crs& system, const ellipsoid& shape, point place) {
        std::vector<double> distances;
        for (const auto& shift : published_shifts(shape)) {
            if (!shift.current || !shift.covers(place)) continue;
            proj4_text text("+proj=longlat +no_defs");
            const std::string ellps = system.tokens.value("ellps").value_or("");
            if (ellps.empty()) {
                text.set("a", number_text(shape.a), "no_defs");
                text.set("rf", number_text(shape.rf), "no_defs");
            } else {
                text.set("ellps", ellps, "no_defs");
            }
            text.set_shift(shift.values);
            if (const auto moved = to_wgs84({place}, text.str())) {
                distances.push_back(ground_distance(place, moved->front()));
            }
        }
        if (distances.empty()) return {};
        std::ranges::nth_element(distances,
                                 distances.begin() + static_cast<std::ptrdiff_t>(distances.size() / 2));
        return distances[distances.size() / 2];
    }

    bool russian_;
};

std::optional<point> middle_place(const polyline& line, const crs& system) {
    if (line.empty() || !system.valid()) return {};
    const auto placed = to_wgs84({line[line.size() / 2]}, system.text);
    return placed ? std::optional(placed->front()) : std::nullopt;
}

bool same_ellipsoid(const crs& a, const crs& b) {
    const ellipsoid first = ellipsoid_of(a.object.get());
    const ellipsoid second = ellipsoid_of(b.object.get());
    return std::abs(first.a - second.a) < 1e-3 && std::abs(first.rf - second.rf) < 1e-6;
}

}  // namespace

std::vector<std::string> warnings_for(std::string_view proj4, language wanted, std::optional<point> near) {
    std::vector<std::string> lines;
    const auto system = crs_of(proj4);
    const advisor advice(wanted);
    advice.about_keys(*system, lines);
    if (!system->valid()) return lines;
    advice.about_missing_shift(*system, near, lines);
    advice.about_rotations(*system, lines);
    return lines;
}

std::vector<std::string> warnings_for(std::string_view source, std::string_view target, const polyline& line,
                                      language wanted) {
    const advisor advice(wanted);
    const auto from = crs_of(source);
    const auto to = crs_of(target);
    const auto near = middle_place(line, *from);
    const bool no_shift_needed =
        from->valid() && to->valid() && !has_datum(*from) && !has_datum(*to) && same_ellipsoid(*from, *to);
    std::vector<std::string> lines;
    const auto add_side = [&](const crs& system, const std::string& side, bool is_target) {
        std::vector<std::string> own;
        advice.about_keys(system, own);
        if (system.valid()) {
            if (!no_shift_needed) advice.about_missing_shift(system, near, own);
            advice.about_rotations(system, own);
        }
        if (is_target && from->valid() && to->valid()) advice.about_distortion(*from, *to, line, own);
        for (const auto& each : own) lines.push_back(side + ": " + each);
    };
    add_side(*from, advice.say("source", "исходная проекция"), false);
    if (source != target) add_side(*to, advice.say("target", "целевая проекция"), true);
    return lines;
}

}  // namespace oxhost
