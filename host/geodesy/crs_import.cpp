#include "geodesy/crs_import.h"

#include <algorithm>
#include <cmath>

#include <proj_experimental.h>

#include "base/text.h"
#include "geodesy/datum_way.h"
#include "geodesy/mended_text.h"
#include "geodesy/place.h"
#include "geodesy/published_shifts.h"

namespace oxhost {
namespace {

/// The horizontal, two-dimensional part of a CRS.
pj_ptr horizontal(const PJ* crs_object) {
    pj_ptr part(proj_get_type(crs_object) == PJ_TYPE_COMPOUND_CRS
                    ? proj_crs_get_sub_crs(proj_context(), crs_object, 0)
                    : proj_clone(proj_context(), crs_object));
    if (part && proj_get_type(part.get()) != PJ_TYPE_BOUND_CRS) {
        part.reset(proj_crs_demote_to_2D(proj_context(), nullptr, part.get()));
    }
    return part;
}

/// Of the datum, where no published area says where the system is used, for the surroundings of `near`.
std::optional<towgs84> datum_shift(const PJ* system, std::optional<point> near) {
    const bool is_local = near && !area_of(system) && !recognised(system);
    const geographic_area area = is_local ? around(*near) : area_of_use(system);
    const pj_ptr base = recognised_base(system);
    const pj_ptr operation = base ? published_operation(base.get(), area) : nullptr;
    return operation ? shift_of(operation.get()) : std::nullopt;
}

}  // namespace

std::optional<std::string> proj4_of(const PJ* crs_object, std::optional<point> near) {
    const pj_ptr system = horizontal(crs_object);
    if (!system) return {};
    const char* exported = proj_as_proj_string(proj_context(), system.get(), PJ_PROJ_5, nullptr);
    if (!exported) return {};
    proj4_text text{exported};
    text.remove("type");
    const bool bound = proj_get_type(system.get()) == PJ_TYPE_BOUND_CRS;
    if (!bound && !text.has("datum") && !text.has("nadgrids")) {
        if (const auto shift = datum_shift(system.get(), near)) text.set_shift(*shift);
    }
    const std::string result = text.str();
    if (!crs_of(result)->valid()) return {};
    return result;
}

pj_ptr horizontal_system(const std::string& name) {
    const pj_ptr system(proj_create(proj_context(), name.c_str()));
    take_proj_complaint();
    if (!system || !proj_is_crs(system.get())) return nullptr;
    // PROJ also takes the beginning of a name for the name.
    const bool spelled_out = name.find_first_of(":[{=") != name.npos;
    if (!spelled_out && lower(name) != lower(proj_get_name(system.get()))) return nullptr;
    return horizontal(system.get());
}

std::optional<std::string> import_crs(std::string_view identifier, std::optional<point> near) {
    const std::string name(trimmed(identifier));
    if (name.empty()) return {};
    const proj4_text tokens(name);
    if (tokens.has("proj")) {
        std::string text = mended(name);
        return crs_of(text)->valid() ? std::optional(std::move(text)) : std::nullopt;
    }
    const pj_ptr system = horizontal_system(name);
    if (!system) return {};
    return proj4_of(system.get(), near);
}

std::optional<std::string> epsg_code(std::string_view proj4) {
    const auto system = crs_of(proj4);
    if (!system->valid()) return {};
    PJ_CONTEXT* const context = proj_context();
    const pj_ptr unbound(proj_get_type(system->object.get()) == PJ_TYPE_BOUND_CRS
                             ? proj_get_source_crs(context, system->object.get())
                             : proj_clone(context, system->object.get()));
    const pj_list_ptr candidates(proj_identify(context, unbound.get(), "EPSG", nullptr, nullptr));
    const int count = candidates ? std::min(proj_list_get_count(candidates.get()), 100) : 0;
    take_proj_complaint();

    const auto own_shift = system->tokens.shift();
    proj4_text shiftless = system->tokens;
    shiftless.remove("towgs84");
    std::optional<std::string> by_published_shift;
    for (int i = 0; i < count; ++i) {
        const pj_ptr candidate(proj_list_get(context, candidates.get(), i));
        const char* number = proj_get_id_code(candidate.get(), 0);
        const auto text = proj4_of(candidate.get());
        if (!number || !text) continue;
        const std::string code = std::string("EPSG:") + number;
        if (equal(*text, proj4)) return code;
        if (!own_shift || by_published_shift) continue;
        proj4_text candidate_shiftless(*text);
        candidate_shiftless.remove("towgs84");
        if (!equal(candidate_shiftless.str(), shiftless.str())) continue;
        const auto shifts = published_shifts(candidate.get());
        const bool published = std::ranges::any_of(
            shifts, [&](const auto& shift) { return same_shift(shift.values, *own_shift); });
        if (published) by_published_shift = code;
    }
    return by_published_shift;
}

std::string exact_code(std::string_view proj4) {
    const auto code = epsg_code(proj4);
    const auto meant = code ? import_crs(*code) : std::nullopt;
    return meant && equal(*meant, proj4) ? *code : std::string();
}

}  // namespace oxhost
