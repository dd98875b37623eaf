#include "geodesy/guess.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <set>

#include "geodesy/crs.h"
#include "geodesy/crs_import.h"
#include "geodesy/epsg_systems.h"
#include "geodesy/measure.h"

namespace oxhost {
namespace {

/// What belongs to the lines of known projection.
struct kinship {
    std::set<std::string> codes, datums, ellipsoids;

    explicit kinship(const std::vector<std::string>& texts) {
        constexpr std::size_t most_looked_at = 8;  // to recognise a text takes up to a tenth of a second
        for (const std::string& text : std::set(texts.begin(), texts.end())) {
            if (codes.size() >= most_looked_at) break;
            const auto keys = crs_of(text)->tokens.canonical();
            if (const auto shape = keys.find("ellps"); shape != keys.end()) ellipsoids.insert(shape->second);
            if (const auto code = epsg_code(text)) codes.insert(*code);
        }
        for (const epsg_system& each : epsg_systems())
            if (codes.contains(each.code)) datums.insert(each.datum());
    }
    double bonus(const epsg_system& system) const {
        return (codes.contains(system.code) ? 1.5 : 0) + (datums.contains(system.datum()) ? 1 : 0) +
               (ellipsoids.contains(system.ellipsoid) ? 0.5 : 0);
    }
};

/// How seldom data come in a system of such a name: what stands for another realisation of its datum, another
/// order of axes, a definition for one railway or map, or was never more than a stopgap.
double rarity(const epsg_system& system) {
    struct mark {
        std::string_view part;
        double penalty;
    };
    static constexpr std::array marks{
        mark{"WGS 72", 1.5},      mark{"emulation", 2.0}, mark{"Unknown datum", 2.0},
        mark{"Unspecified", 2.0}, mark{"-IRF", 1.5},      mark{"Snake", 1.5},
        mark{"(N-E)", 1.0},       mark{"(E-N)", 1.0},     mark{"(zN)", 1.0},
        mark{"(N-zE)", 1.0},      mark{"(zE-N)", 1.0},    mark{"(deg)", 1.0},
        mark{"NSRS2007", 0.5},    mark{"CORS96", 0.8},    mark{"(HARN", 0.4},
        mark{"(2011)", 0.3},      mark{"(PA11)", 0.5},    mark{"(MA11)", 0.5},
        mark{")v", 0.8},          mark{"(FBN)", 0.8},     mark{"BLM", 0.8},
        mark{"Ferro", 1.0},       mark{"Arctic", 1.0},    mark{"(CRS", 0.8},
        mark{"SIRGAS 1995", 0.5}, mark{"(96)", 0.4},      mark{"ITRF", 1.0},
        mark{"WGS 84 (", 1.0}};
    double penalty = system.deprecated ? 4 : 0;
    for (const auto& [part, each] : marks)
        if (system.name.find(part) != std::string::npos) penalty += each;
    const bool common = system.geographic || system.method.starts_with("Transverse Mercator") ||
                        system.method.starts_with("Lambert Conic Conformal");
    if (!common) penalty += 0.3;
    static constexpr std::array usual{"WGS 84",      "ETRS89", "NAD83",   "NAD27", "ED50",
                                      "SIRGAS 2000", "SAD69",  "GDA2020", "GDA94", "JGD2011",
                                      "JGD2000",     "Tokyo",  "CGCS2000"};
    if (std::ranges::find(usual, system.datum()) != usual.end()) penalty -= 0.4;
    if (system.datum() == "WGS 84") penalty -= system.geographic ? 1.5 : 0.2;
    return penalty;
}

/// Square degrees.
double size_of(const geographic_area& area) {
    const double width = area.east - area.west + (area.east < area.west ? 360 : 0);
    return std::max(0.1, width * (area.north - area.south));
}

bool covers(geographic_area area, point place, double margin) {
    area.south -= margin;
    area.north += margin;
    if (area.east - area.west + 2 * margin < 360) {
        area.west -= margin;
        area.east += margin;
    }
    return area.covers(place) || area.covers({place.x + 360, place.y}) ||
           area.covers({place.x - 360, place.y});
}

/// The middle vertex, then up to 16 over the whole line.
polyline sample(const polyline& line) {
    constexpr std::size_t most = 16;
    polyline chosen{line[line.size() / 2]};
    const std::size_t count = std::min(most, line.size());
    for (std::size_t i = 0; i < count; ++i)
        chosen.push_back(line[count == 1 ? 0 : i * (line.size() - 1) / (count - 1)]);
    return chosen;
}

std::optional<double> nearest(const polyline& places, point place) {
    std::optional<double> least;
    for (const point& each : places) {
        const double distance = ground_distance(each, place);
        if (!least || distance < *least) least = distance;
    }
    return least;
}

/// The less the better; nothing where the line falls outside of the area of use.
std::optional<double> badness(const epsg_system& system, const polyline& vertices, const guess_hints& hints,
                              const kinship& relatives) {
    constexpr double margin = 0.5;  // degrees; surveys cross the border of their zone
    const auto middle = system.place(vertices.front());
    if (!middle || !covers(system.area, *middle, margin)) return {};
    double outside = 0;
    for (const point& vertex : vertices) {
        const auto place = system.place(vertex);
        if (!place || !covers(system.area, *place, 2 * margin)) return {};
        if (!covers(system.area, *place, 0)) outside += 1 / static_cast<double>(vertices.size());
    }
    if (outside == 1) return {};
    double bad = rarity(system) - relatives.bonus(system) + 2 * outside;
    if (const auto distance = nearest(hints.near, *middle))
        bad += 1.2 * std::log2(1 + std::pow(*distance / 150e3, 2));
    if (!system.geographic) bad += 0.3 * std::log10(size_of(system.area));
    bad += std::min(5.0, std::log2(1 + system.distortion(*middle) / 0.005));
    return bad;
}

}  // namespace

std::vector<system_guess> guess_systems(const polyline& line, const guess_hints& hints, std::size_t count) {
    std::vector<system_guess> guesses;
    if (line.empty() || !std::ranges::all_of(line, is_finite)) return guesses;
    const polyline vertices = sample(line);
    const kinship relatives(hints.texts);
    struct ranked {
        double bad;
        const epsg_system* system;
    };
    std::vector<ranked> ranking;
    for (const epsg_system& each : epsg_systems())
        if (const auto bad = badness(each, vertices, hints, relatives)) ranking.push_back({*bad, &each});
    take_proj_complaint();
    std::ranges::stable_sort(ranking, {}, &ranked::bad);
    for (const auto& [bad, system] : ranking) {
        if (guesses.size() >= count) break;
        const auto text = import_crs(system->code);
        const auto places = text ? to_wgs84({vertices.front()}, *text) : std::nullopt;
        if (!places) continue;
        guesses.push_back({system->code, system->name, system->words, system->deprecated, *text,
                           places->front(), nearest(hints.near, places->front())});
    }
    return guesses;
}

}  // namespace oxhost
