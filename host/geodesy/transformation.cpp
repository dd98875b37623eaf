#include "geodesy/transformation.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "base/language.h"
#include "base/memo.h"
#include "geodesy/published_shifts.h"

namespace oxhost {
namespace {

[[noreturn]] void refuse(const crs& system, std::string_view side) {
    throw std::invalid_argument(std::string(side) + " \"" + system.text + "\": " + system.error);
}

void transform(PJ* pipeline, std::span<point> line, PJ_DIRECTION direction = PJ_FWD) {
    if (line.empty()) return;
    constexpr std::size_t stride = sizeof(point);
    proj_errno_reset(pipeline);
    proj_trans_generic(pipeline, direction, &line[0].x, stride, line.size(), &line[0].y, stride, line.size(),
                       nullptr, 0, 0, nullptr, 0, 0);
}

pj_ptr unbound(const PJ* system) {
    return pj_ptr(proj_get_type(system) == PJ_TYPE_BOUND_CRS ? proj_get_source_crs(proj_context(), system)
                                                             : proj_clone(proj_context(), system));
}

/// Asked of the projection alone: a pair with several operations does not tell.
bool judge_inverse(const crs& system) {
    if (!system.valid() || system.geographic) return true;
    const pj_ptr base = geographic_base(system.object.get());
    const pj_ptr way(proj_create_crs_to_crs_from_pj(proj_context(), base.get(),
                                                    unbound(system.object.get()).get(), nullptr, nullptr));
    return !way || proj_pj_info(way.get()).has_inverse != 0;
}

/// Of several operations PROJ describes none before the first place is transformed.
bool has_one_operation(PJ* pipeline) {
    const char* described = proj_pj_info(pipeline).definition;
    return described && std::string_view(described) != "unavailable until proj_trans is called";
}

/// Within 180 degrees of the centre; a longitude on the seam stays.
double wrap(double longitude, double centre) {
    const double offset = longitude - centre;
    if (std::abs(offset) <= 180 + 1e-10) return longitude;
    return centre + offset - 360 * std::floor((offset + 180) / 360);
}

/// What is published about a side's shift.
struct publication {
    std::string label;               ///< name and code, where the numbers belong to one set only
    std::optional<double> accuracy;  ///< metres; the worst of those that have these numbers
};

publication find_publication(const crs& system) {
    publication found;
    const auto canonical = system.tokens.canonical();
    const auto text = canonical.find("towgs84");
    if (text == canonical.end()) return found;
    const auto shift = proj4_text("towgs84=" + text->second).shift().value_or(towgs84(7));
    if (std::ranges::all_of(shift, [](double value) { return value == 0; })) {
        // WGS 84 itself, or one of the many datums that are taken as equal to it
        if (canonical.contains("ellps") && canonical.at("ellps") == "WGS84") found.accuracy = 0;
        return found;
    }
    bool several = false;
    for (const auto& published : publications_of(shift, ellipsoid_of(system.object.get()))) {
        const std::string label = published.name + " (" + published.code + ')';
        several = several || (!found.label.empty() && found.label != label);
        found.label = label;
        if (published.accuracy) found.accuracy = std::max(found.accuracy.value_or(0), *published.accuracy);
    }
    if (several) found.label.clear();
    return found;
}

const publication& publication_of(const crs& system) {
    static memo<publication> kept(256);
    return kept.of(system.text, [&] { return find_publication(system); });
}

}  // namespace

std::shared_ptr<const transformation> transformation::between(std::string_view source,
                                                              std::string_view target) {
    static memo<std::shared_ptr<const transformation>> kept(256);
    return kept.of(source, target, [&] { return prepare(source, target); });
}

std::shared_ptr<const transformation> transformation::prepare(std::string_view source,
                                                              std::string_view target) {
    const std::shared_ptr<transformation> made(new transformation);
    made->source_ = crs_of(source);
    made->target_ = crs_of(target);
    if (!made->source_->valid())
        refuse(*made->source_, in_language("исходная проекция", "source projection"));
    if (!made->target_->valid()) refuse(*made->target_, in_language("целевая проекция", "target projection"));
    made->needed_ = !equal(source, target);
    made->has_return_ = has_inverse(target);
    take_proj_complaint();
    const pj_ptr pipeline(proj_create_crs_to_crs_from_pj(proj_context(), made->source_->object.get(),
                                                         made->target_->object.get(), nullptr, nullptr));
    if (pipeline) made->pipeline_.reset(proj_normalize_for_visualization(proj_context(), pipeline.get()));
    if (!made->pipeline_) {
        const std::string pair = '"' + made->source_->text + "\" → \"" + made->target_->text + '"';
        throw std::invalid_argument(words("нет пути ", "no transformation ") + pair + " (" +
                                    take_proj_complaint() + ')');
    }
    made->single_operation_ = has_one_operation(made->pipeline_.get());
    return made;
}

std::optional<vertex_failure> transformation::apply(polyline& line) const {
    polyline image = line;
    transform(pipeline_.get(), image);
    return accept(line, std::move(image));
}

std::optional<vertex_failure> transformation::accept(polyline& line, polyline result) const {
    bool good = true;
    for (const point& at : result) good = good && is_finite(at);
    // The longitude/latitude steps of PROJ take any number for a latitude.
    if (source_->geographic) {
        for (const point& at : line) good = good && std::abs(at.y) <= 90;
    }
    if (!good) return first_failure(line, result);
    if (target_->lon_wrap) {
        for (point& at : result) at.x = wrap(at.x, *target_->lon_wrap);
    }
    line = std::move(result);
    return {};
}

std::optional<vertex_failure> transformation::first_failure(const polyline& before,
                                                            const polyline& after) const {
    const auto failure_at = [&](std::size_t i, std::string_view reason) {
        return vertex_failure{i, before[i], std::string(reason)};
    };
    for (std::size_t i = 0; i < before.size(); ++i) {
        if (!is_finite(before[i]))
            return failure_at(i, in_language("координаты не являются конечными числами",
                                             "coordinates are not finite numbers"));
        if (source_->geographic && std::abs(before[i].y) > 90) {
            return failure_at(i, in_language("широта больше 90 градусов", "latitude is beyond 90 degrees"));
        }
        if (is_finite(after[i])) continue;
        polyline alone{before[i]};
        take_proj_complaint();
        transform(pipeline_.get(), alone);
        const int code = proj_errno(pipeline_.get());
        std::string reason(in_language("нет места в целевой проекции", "no place in the target projection"));
        const char* of_proj = code ? proj_context_errno_string(proj_context(), code) : nullptr;
        if (of_proj && *of_proj) reason.append(" (").append(of_proj).append(")");
        return failure_at(i, reason);
    }
    return {};
}

void transformation::bring_back(polyline& line) const { transform(pipeline_.get(), line, PJ_INV); }

std::optional<transformation::lane> transformation::lane::of(const transformation& way) {
    lane made;
    made.context_.reset(proj_context_create());
    proj_log_func(made.context_.get(), nullptr, [](void*, int, const char*) {});
    proj_context_set_enable_network(made.context_.get(), 0);
    made.pipeline_.reset(proj_clone(made.context_.get(), way.pipeline_.get()));
    if (!made.pipeline_) return {};
    return made;
}

void transformation::lane::transform(std::span<point> line) const {
    oxhost::transform(pipeline_.get(), line);
}
void transformation::lane::bring_back(std::span<point> line) const {
    oxhost::transform(pipeline_.get(), line, PJ_INV);
}

operation_info transformation::describe() const {
    const pj_ptr used(proj_trans_get_last_used_operation(pipeline_.get()));
    const PJ_PROJ_INFO info = proj_pj_info(used ? used.get() : pipeline_.get());
    operation_info operation;
    operation.name = info.description ? info.description : "";
    operation.definition = info.definition ? info.definition : "";
    const publication source = publication_of(*source_);  // a copy: the next one may displace it
    const publication& target = publication_of(*target_);
    operation.source_shift = source.label;
    operation.target_shift = target.label;
    if (info.accuracy >= 0) {
        operation.accuracy = info.accuracy;
    } else if (source.accuracy && target.accuracy) {
        operation.accuracy = *source.accuracy + *target.accuracy;
    }
    return operation;
}

operation_info transformation::operation() const {
    if (!single_operation_) return describe();
    if (!described_) described_ = describe();
    return *described_;
}

bool has_inverse(std::string_view proj4) {
    static memo<bool> judged(256);
    return judged.of(proj4, [&] { return judge_inverse(*crs_of(proj4)); });
}

}  // namespace oxhost
