#include "border/host_api/oxk_scn_2d.h"

#include "testing/host_double/host_double.h"

using host_double::are_given;
using host_double::host;
using host_double::scene;

namespace {
scene& scene_of(void* handle) { return *static_cast<scene*>(handle); }
auto& scenes(void* collection) { return *static_cast<std::vector<std::unique_ptr<scene>>*>(collection); }
}  // namespace

std::uint32_t ox_scns_2d_get_size(void* collection) {
    return are_given(__func__, {collection}) ? static_cast<std::uint32_t>(scenes(collection).size()) : 0;
}
void* ox_scns_2d_get(void* collection, std::uint32_t index) {
    if (!are_given(__func__, {collection})) return nullptr;
    return scenes(collection).at(index).get();
}
void ox_scn_2d_get_wcaption(void* handle, void* adapter) {
    if (are_given(__func__, {handle, adapter})) host().deliver(adapter, scene_of(handle).caption);
}
void* ox_scn_2d_get_prf_data_ptr(void* handle) {
    if (!are_given(__func__, {handle})) return nullptr;
    return scene_of(handle).has_data && !host().scene_refuses("profile data") ? handle : nullptr;
}
bool ox_prf_data_get_is_profil(void* data) {
    return are_given(__func__, {data}) && scene_of(data).profile && !host().scene_refuses("scene");
}
void ox_prf_data_get_prj4string(void* data, void* adapter) {
    if (are_given(__func__, {data, adapter})) host().deliver(adapter, scene_of(data).pj4);
}
void ox_prf_data_set_prj4string(void* data, const wchar_t* proj4) {
    if (!are_given(__func__, {data, proj4})) return;
    host().log.push_back("text " + host_double::narrow(scene_of(data).caption));
    scene_of(data).pj4 = proj4;
}
void* ox_prf_data_get_pv_ptr(void* data) {
    return are_given(__func__, {data}) && scene_of(data).has_line ? &scene_of(data).pv : nullptr;
}
void ox_prf_data_set_pv(void* data, void* pv) {
    if (!are_given(__func__, {data, pv})) return;
    host().log.push_back("line " + host_double::narrow(scene_of(data).caption));
    scene_of(data).pv = *static_cast<host_double::line*>(pv);
}
