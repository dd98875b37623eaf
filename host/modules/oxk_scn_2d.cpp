#include "border/host_api/oxk_scn_2d.h"

#include "modules/scene_updates.h"
#include "session/border.h"

using namespace oxhost;

namespace {

project* as_project(void* collection) { return static_cast<project*>(collection); }

/// The handle of a scene is also that of its profile data.
scene* as_scene(void* handle) { return static_cast<scene*>(handle); }

}  // namespace

std::uint32_t ox_scns_2d_get_size(void* collection) {
    return collection ? static_cast<std::uint32_t>(as_project(collection)->size()) : 0;
}

void* ox_scns_2d_get(void* collection, std::uint32_t index) {
    return collection ? as_project(collection)->at(index) : nullptr;
}

void ox_scn_2d_get_wcaption(void* scene, void* adapter) {
    if (scene) at_border([=] { deliver(adapter, as_scene(scene)->caption); });
}

void* ox_scn_2d_get_prf_data_ptr(void* scene) {
    return scene && as_scene(scene)->line ? as_scene(scene) : nullptr;
}

bool ox_prf_data_get_is_profil(void* data) { return data && as_scene(data)->profile; }

void ox_prf_data_get_prj4string(void* data, void* adapter) {
    if (data) at_border([=] { deliver(adapter, as_scene(data)->owner->proj4(*as_scene(data))); });
}

void ox_prf_data_set_prj4string(void* data, const wchar_t* proj4) {
    at_border([=] { store_text(as_scene(data), proj4); });
}

void* ox_prf_data_get_pv_ptr(void* data) {
    return at_border([=] { return const_cast<section_line*>(lend_line(as_scene(data))); });
}

void ox_prf_data_set_pv(void* data, void* pv) {
    at_border([=] { store_line(as_scene(data), static_cast<const section_line*>(pv)); });
}
