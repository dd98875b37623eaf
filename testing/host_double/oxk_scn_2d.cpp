#include "border/host_api/oxk_scn_2d.h"

#include "testing/host_double/host_double.h"

using host_double::host;
using host_double::scene;

namespace {
scene& of(void* handle) { return *static_cast<scene*>(handle); }
auto& scenes(void* collection) { return *static_cast<std::vector<std::unique_ptr<scene>>*>(collection); }
}  // namespace

std::uint32_t ox_scns_2d_get_size(void* collection) {
    return host().is_null(collection, __func__) ? 0 : static_cast<std::uint32_t>(scenes(collection).size());
}
void* ox_scns_2d_get(void* collection, std::uint32_t index) { return scenes(collection)[index].get(); }
void ox_scn_2d_get_wcaption(void* handle, void* adapter) { host().deliver(adapter, of(handle).caption); }
void* ox_scn_2d_get_prf_data_ptr(void* handle) {
    if (host().is_null(handle, __func__)) return nullptr;
    return of(handle).has_data && !host().scene_refuses("profile data") ? handle : nullptr;
}
bool ox_prf_data_get_is_profil(void* data) { return of(data).profile && !host().scene_refuses("scene"); }
void ox_prf_data_get_prj4string(void* data, void* adapter) { host().deliver(adapter, of(data).pj4); }
void ox_prf_data_set_prj4string(void* data, const wchar_t* proj4) {
    host().log.push_back("text " + host_double::narrow(of(data).caption));
    of(data).pj4 = proj4;
}
void* ox_prf_data_get_pv_ptr(void* data) { return of(data).has_line ? &of(data).pv : nullptr; }
void ox_prf_data_set_pv(void* data, void* pv) {
    host().log.push_back("line " + host_double::narrow(of(data).caption));
    of(data).pv = *static_cast<host_double::line*>(pv);
}
