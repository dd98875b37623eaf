#include "geodesy/shift_fit.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <vector>

namespace oxhost {
namespace {

constexpr std::size_t unknowns = 7;
constexpr double tolerance = 0.002;  // metres
constexpr double arc_second = M_PI / 180 / 3600;
const ellipsoid wgs84_shape{{}, 6378137, 298.257223563};

using vector3 = std::array<double, 3>;
using parameters = std::array<double, unknowns>;
using row = std::array<double, unknowns + 1>;

double radians(double degrees) { return degrees * M_PI / 180; }

/// Geocentric coordinates of a place at height 0.
vector3 geocentric(const ellipsoid& shape, point at) {
    const double f = shape.rf == 0 ? 0 : 1 / shape.rf;
    const double e2 = f * (2 - f);
    const double sine = std::sin(radians(at.y)), cosine = std::cos(radians(at.y));
    const double n = shape.a / std::sqrt(1 - e2 * sine * sine);
    return {n * cosine * std::cos(radians(at.x)), n * cosine * std::sin(radians(at.x)), n * (1 - e2) * sine};
}

double dot(const vector3& a, const vector3& b) { return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]; }

/// One equation for the shift along `direction` from `before` to `after`: of the translation in metres, the
/// rotations in micro-radians and the scale difference in millionths. Position vector rotations:
/// after = translation + (1 + scale) before + rotation x before.
row equation(const vector3& direction, const vector3& before, const vector3& after) {
    const auto& [x, y, z] = before;
    const auto& [u, v, w] = direction;
    const vector3 change{after[0] - x, after[1] - y, after[2] - z};
    return {u,
            v,
            w,
            (w * y - v * z) * 1e-6,
            (u * z - w * x) * 1e-6,
            (v * x - u * y) * 1e-6,
            dot(direction, before) * 1e-6,
            dot(direction, change)};
}

/// Two equations for each place; heights are not known and do not enter.
std::optional<std::vector<row>> equations(const ellipsoid& shape,
                                          const std::function<point(point)>& to_wgs84) {
    std::vector<row> rows;
    for (int latitude = -60; latitude <= 60; latitude += 15) {
        for (int longitude = -180; longitude < 180; longitude += 30) {
            const point at{longitude + 7.0, latitude + 3.0};
            const point moved = to_wgs84(at);
            if (!is_finite(moved)) return {};
            const vector3 before = geocentric(shape, at);
            const vector3 after = geocentric(wgs84_shape, moved);
            const double l = radians(moved.x), b = radians(moved.y);
            const vector3 east{-std::sin(l), std::cos(l), 0};
            const vector3 north{-std::sin(b) * std::cos(l), -std::sin(b) * std::sin(l), std::cos(b)};
            rows.push_back(equation(east, before, after));
            rows.push_back(equation(north, before, after));
        }
    }
    return rows;
}

/// Least squares, by the normal equations and elimination.
parameters solve(const std::vector<row>& rows) {
    std::array<row, unknowns> normal{};
    for (const row& each : rows)
        for (std::size_t i = 0; i < unknowns; ++i)
            for (std::size_t j = 0; j <= unknowns; ++j) normal[i][j] += each[i] * each[j];
    for (std::size_t i = 0; i < unknowns; ++i) {
        const auto pivot =
            std::max_element(normal.begin() + static_cast<std::ptrdiff_t>(i), normal.end(),
                             [i](const row& a, const row& b) { return std::abs(a[i]) < std::abs(b[i]); });
        std::swap(normal[i], *pivot);
        for (std::size_t k = 0; k < unknowns; ++k) {
            if (k == i) continue;
            const double factor = normal[k][i] / normal[i][i];
            for (std::size_t j = i; j <= unknowns; ++j) normal[k][j] -= factor * normal[i][j];
        }
    }
    parameters solution{};
    for (std::size_t i = 0; i < unknowns; ++i) solution[i] = normal[i][unknowns] / normal[i][i];
    return solution;
}

double rounded(double value, double per_unit) { return std::round(value * per_unit) / per_unit; }

}  // namespace

std::optional<towgs84> fitted_shift(const ellipsoid& shape, const std::function<point(point)>& to_wgs84) {
    const auto rows = equations(shape, to_wgs84);
    if (!rows) return {};
    const auto fits = [&](const parameters& shift) {
        return std::ranges::all_of(*rows, [&](const row& each) {
            const double along = std::inner_product(shift.begin(), shift.end(), each.begin(), 0.0);
            return std::abs(along - each[unknowns]) < tolerance;
        });
    };
    if (fits(parameters{})) return towgs84(unknowns);
    const parameters found = solve(*rows);
    if (!fits(found)) return {};
    const double scale = 1 + found[6] * 1e-6;
    towgs84 shift(unknowns);
    for (std::size_t i = 0; i < 3; ++i) {
        shift[i] = rounded(found[i], 1e4);
        shift[i + 3] = rounded(found[i + 3] * 1e-6 / scale / arc_second, 1e6);
    }
    shift[6] = rounded(found[6], 1e6);
    return shift;
}

}  // namespace oxhost
