#include "geodesy/reprojector.h"

#include "base/language.h"
#include "base/numbers.h"
#include "geodesy/way_back.h"

namespace oxhost {
namespace {

reprojection_rules& rules() {
    static reprojection_rules only;
    return only;
}

image_source& images() {
    static image_source only;
    return only;
}

std::string missed_by(double metres, double tolerance) {
    if (!std::isfinite(metres))
        return words("не возвращается из целевой проекции на своё место",
                     "does not come back from the target projection to its place");
    const std::string size = number_text(metres < 10 ? std::round(metres * 1000) / 1000 : std::round(metres));
    const std::string allowed = number_text(tolerance);
    return words(
        "возвращается из целевой проекции в " + size + " м от своего места (допуск " + allowed + " м)",
        "comes back from the target projection " + size + " m from its place (allowed: " + allowed + " m)");
}

}  // namespace

const reprojection_rules& current_rules() { return rules(); }
void use_rules(const reprojection_rules& wanted) { rules() = wanted; }

void use_images(image_source source) { images() = std::move(source); }

std::optional<std::string> refusal_of_target(std::string_view proj4) {
    if (current_rules().one_way || has_inverse(proj4)) return {};
    const std::string text(proj4);
    return words(
        "проекция \"" + text + "\" не имеет обратной: вернуть линии из неё нельзя (--one-way допускает это)",
        "projection \"" + text +
            "\" has no inverse: lines cannot be brought back from it (--one-way allows that)");
}

reprojected_line reproject(section_line& line, const transformation& way) {
    reprojected_line done;
    polyline result = line.xy;
    std::optional<polyline> returned;
    if (auto image = images() ? images()(line.xy, way) : std::nullopt) {
        done.failure = way.accept(result, std::move(image->places));
        returned = std::move(image->returned);
    } else {
        done.failure = way.apply(result);
    }
    if (done.failure) return done;
    const reprojection_rules& wanted = current_rules();
    if (way.has_return()) {
        const auto [vertex, metres] =
            test_return(line.xy, result, way, wanted.return_tolerance, std::move(returned));
        done.return_error = metres;
        if (!(metres <= wanted.return_tolerance)) {
            done.failure = {vertex, line.xy[vertex], missed_by(metres, wanted.return_tolerance)};
            return done;
        }
    }
    if (wanted.densify > 0) done.added_vertices = densify(line, way, wanted.densify);
    if (done.added_vertices == 0) {
        line.xy = std::move(result);
    } else {
        done.failure = way.apply(line.xy);
    }
    return done;
}

}  // namespace oxhost
