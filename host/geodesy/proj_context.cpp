#include "geodesy/proj_context.h"

#include <string_view>
#include <utility>

namespace oxhost {
namespace {

std::string& complaint() {
    static std::string text;
    return text;
}

/// PROJ reports from the inside out, and the first line says what is wrong with a value.
void keep_complaint(void*, int level, const char* text) {
    if (level == PJ_LOG_ERROR && text && complaint().empty()) complaint() = text;
}

PJ_CONTEXT* open_context() {
    PJ_CONTEXT* context = proj_context_create();
    proj_log_func(context, nullptr, keep_complaint);
    proj_context_set_enable_network(context, 0);
    proj_context_use_proj4_init_rules(context, 1);
    return context;
}

}  // namespace

PJ_CONTEXT* proj_context() {
    // Never destroyed: prepared objects that other statics keep refer to it until the process ends.
    static PJ_CONTEXT* const context = open_context();
    return context;
}

pj_factory_ptr operation_factory() {
    pj_factory_ptr factory(proj_create_operation_factory_context(proj_context(), nullptr));
    proj_operation_factory_context_set_spatial_criterion(proj_context(), factory.get(),
                                                         PROJ_SPATIAL_CRITERION_PARTIAL_INTERSECTION);
    proj_operation_factory_context_set_grid_availability_use(proj_context(), factory.get(),
                                                             PROJ_GRID_AVAILABILITY_IGNORED);
    return factory;
}

std::string take_proj_complaint() {
    std::string text = std::exchange(complaint(), {});
    // "proj_create: Error 1027 (Invalid value for an argument): utm: Invalid value for zone"
    const auto number = text.find("Error ");
    const auto end = number == text.npos ? text.npos : text.find("): ", number);
    if (end != text.npos) text.erase(0, end + 3);
    for (const std::string_view noise : {"pj_init_ctx: ", "proj_create: "}) {
        if (text.starts_with(noise)) text.erase(0, noise.size());
    }
    return text;
}

proj_versions versions_of_proj() {
    proj_versions versions{proj_info().version, {}};
    if (const char* epsg = proj_context_get_database_metadata(proj_context(), "EPSG.VERSION")) {
        versions.database = std::string("EPSG ") + epsg;
    }
    return versions;
}

}  // namespace oxhost
