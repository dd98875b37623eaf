#include "geodesy/measure.h"

#include <geodesic.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>
#include <stdexcept>

#include "base/language.h"
#include "base/memo.h"
#include "geodesy/crs.h"
#include "geodesy/transformation.h"

namespace oxhost {
namespace {

constexpr std::string_view wgs84_text = "+proj=longlat +datum=WGS84 +no_defs";

class geodesics {
public:
    geodesics(double a, double rf) : a_(a), e2_(rf == 0 ? 0 : (2 - 1 / rf) / rf) {
        geod_init(&model_, a, rf == 0 ? 0 : 1 / rf);
    }

    /// Short ones by the radii of curvature at the middle latitude: relative error below 1e-9.
    double distance(point a, point b) const {
        const double across = std::remainder(b.x - a.x, 360), up = b.y - a.y, middle = (a.y + b.y) / 2;
        if (std::abs(across) < short_degrees && std::abs(up) < short_degrees && std::abs(middle) < 80) {
            constexpr double radian = std::numbers::pi / 180;
            const double sine = std::sin(middle * radian), w2 = 1 - e2_ * sine * sine;
            const double normal = a_ / std::sqrt(w2), meridional = normal * (1 - e2_) / w2;
            const double x = normal * std::sqrt(1 - sine * sine) * across * radian,
                         y = meridional * up * radian;
            return std::sqrt(x * x + y * y);
        }
        double metres = 0;
        geod_inverse(&model_, a.y, a.x, b.y, b.x, &metres, nullptr, nullptr);
        return metres;
    }

private:
    static constexpr double short_degrees = 0.01;

    geod_geodesic model_{};
    double a_, e2_;
};

/// The shape that a text puts its coordinates on, with the text's own latitude and longitude: the way
/// back through the projection only.
struct own_ellipsoid {
    explicit own_ellipsoid(std::string_view proj4)
        : system(crs_of(proj4)), shape(system->valid() ? ellipsoid_of(system->object.get()) : ellipsoid{}) {
        if (!system->valid())
            throw std::invalid_argument(words("проекция", "projection") + " \"" + system->text +
                                        "\": " + system->error);
        const pj_ptr base = geographic_base(system->object.get());
        const pj_ptr plain(proj_get_type(system->object.get()) == PJ_TYPE_BOUND_CRS
                               ? proj_get_source_crs(proj_context(), system->object.get())
                               : proj_clone(proj_context(), system->object.get()));
        const pj_ptr way(
            proj_create_crs_to_crs_from_pj(proj_context(), plain.get(), base.get(), nullptr, nullptr));
        if (way) to_base.reset(proj_normalize_for_visualization(proj_context(), way.get()));
        const pj_ptr meridian(proj_get_prime_meridian(proj_context(), base.get()));
        double in_radians = 1;
        if (meridian && proj_prime_meridian_get_parameters(proj_context(), meridian.get(), &prime_meridian,
                                                           &in_radians, nullptr))
            prime_meridian *= in_radians * 180 / std::numbers::pi;
    }

    /// From Greenwich, whatever meridian the text counts from.
    /// Lent until the next call; the last line is remembered, since reports ask several measures of one.
    const std::optional<polyline>& longitudes_latitudes(const polyline& line) const {
        if (line == placed && places) return places;
        placed = line;
        places.reset();
        lengths.reset();
        if (!to_base) return places;
        polyline result = line;
        if (!result.empty()) {
            constexpr std::size_t stride = sizeof(point);
            proj_trans_generic(to_base.get(), PJ_FWD, &result[0].x, stride, result.size(), &result[0].y,
                               stride, result.size(), nullptr, 0, 0, nullptr, 0, 0);
        }
        for (point& at : result) {
            at.x += prime_meridian;
            if (!is_finite(at) || std::abs(at.y) > 90) return places;
        }
        return places = std::move(result);
    }

    /// Of the segments along the ellipsoid, in metres; null where the line has no place. Lent likewise:
    /// finding geodesics takes most of a report's time.
    const std::vector<double>* segment_lengths(const polyline& line) const {
        const auto& along = longitudes_latitudes(line);
        if (!along) return nullptr;
        if (lengths) return &*lengths;
        const geodesics ground(shape.a, shape.rf);
        lengths.emplace();
        for (std::size_t i = 1; i < along->size(); ++i)
            lengths->push_back(ground.distance((*along)[i - 1], (*along)[i]));
        return &*lengths;
    }

    std::shared_ptr<const crs> system;
    ellipsoid shape;
    pj_ptr to_base;
    double prime_meridian = 0;  ///< degrees
    mutable polyline placed;
    mutable std::optional<polyline> places;
    mutable std::optional<std::vector<double>> lengths;
};

const own_ellipsoid& own_ellipsoid_of(std::string_view proj4) {
    static memo<own_ellipsoid> kept(64);
    return kept.of(proj4, [&] { return own_ellipsoid(proj4); });
}

double largest_distance(const polyline& a, const polyline& b) {
    double largest = 0;
    for (std::size_t i = 0; i < a.size(); ++i) largest = std::max(largest, ground_distance(a[i], b[i]));
    return largest;
}

}  // namespace

double ground_distance(point a, point b) {
    static const geodesics wgs84(6378137, 298.257223563);
    return wgs84.distance(a, b);
}

std::optional<double> geodesic_length(const polyline& line, std::string_view proj4) {
    const auto* lengths = own_ellipsoid_of(proj4).segment_lengths(line);
    if (!lengths) return {};
    return std::accumulate(lengths->begin(), lengths->end(), 0.0);
}

std::optional<double> planar_length(const polyline& line, std::string_view proj4) {
    const crs& system = *own_ellipsoid_of(proj4).system;
    if (system.geographic) return {};
    double metres = 0;
    for (std::size_t i = 1; i < line.size(); ++i)
        metres += std::hypot(line[i].x - line[i - 1].x, line[i].y - line[i - 1].y) * system.metres_per_unit;
    return metres;
}

std::optional<polyline> to_wgs84(const polyline& line, std::string_view proj4) {
    polyline result = line;
    if (transformation::between(proj4, wgs84_text)->apply(result)) return {};
    return result;
}

std::optional<line_shift> shift_between(const polyline& before, std::string_view source,
                                        const polyline& after, std::string_view target) {
    if (before.size() != after.size()) return {};
    const auto ground_before = to_wgs84(before, source);
    const auto ground_after = to_wgs84(after, target);
    const auto own_before = own_ellipsoid_of(source).longitudes_latitudes(before);
    const auto own_after = own_ellipsoid_of(target).longitudes_latitudes(after);
    if (!ground_before || !ground_after || !own_before || !own_after) return {};
    return line_shift{largest_distance(*ground_before, *ground_after),
                      largest_distance(*own_before, *own_after)};
}

std::optional<number_shift> shift_of_numbers(const polyline& before, std::string_view source,
                                             const polyline& after, std::string_view target) {
    if (before.size() != after.size()) return {};
    const auto from = own_ellipsoid_of(source).longitudes_latitudes(before);
    const auto to = own_ellipsoid_of(target).longitudes_latitudes(after);
    if (!from || !to) return {};
    number_shift largest;
    geod_geodesic wgs84;
    geod_init(&wgs84, 6378137, 1 / 298.257223563);
    for (std::size_t i = 0; i < from->size(); ++i) {
        const point &a = (*from)[i], &b = (*to)[i];
        number_shift moved;
        geod_inverse(&wgs84, a.y, a.x, b.y, b.x, &moved.metres, &moved.azimuth, nullptr);
        if (moved.metres > largest.metres) largest = moved;
    }
    largest.azimuth = std::fmod(largest.azimuth + 360, 360);
    return largest;
}

std::optional<double> length_distortion(const polyline& line, std::string_view proj4) {
    const own_ellipsoid& own = own_ellipsoid_of(proj4);
    const auto* lengths = own.segment_lengths(line);
    if (!lengths) return {};
    if (own.system->geographic) return 0;
    double worst = 0;
    for (std::size_t i = 1; i < line.size(); ++i) {
        const double metres = (*lengths)[i - 1];
        if (metres < 0.1) continue;  // rounding would speak, not the projection
        const double drawn =
            std::hypot(line[i].x - line[i - 1].x, line[i].y - line[i - 1].y) * own.system->metres_per_unit;
        worst = std::max(worst, std::abs(drawn / metres - 1));
    }
    return worst;
}

}  // namespace oxhost
