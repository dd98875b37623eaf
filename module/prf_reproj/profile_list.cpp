#include "prf_reproj/profile_list.h"

#include <set>

#include "border/host_api/oxk_prj.h"
#include "border/host_api/oxk_proj4_d2.h"
#include "border/host_api/oxk_scn_2d.h"
#include "resources/text.h"
#include "support/string_adapter.h"
#include "toolkit/resource_lookup.h"

namespace ox::prf_reproj {

void prf_list::fill(void* scene_collection) {
    rows.clear();
    const std::uint32_t count = scene_collection ? ox_scns_2d_get_size(scene_collection) : 0;
    for (std::uint32_t i = 0; i < count; ++i) {
        void* scene = ox_scns_2d_get(scene_collection, i);
        void* data = profile_data(scene);
        if (!data) continue;
        prf_row& row = rows.emplace_back();
        row.scene = scene;
        row.caption = adapted_text([&](void* adapter) { ox_scn_2d_get_wcaption(scene, adapter); });
        row.pj4 = projection_of(data);
        row.differs = differs(row.pj4);
    }
    notify();
}

void prf_list::rebuild(void* scene_collection) {
    fill(scene_collection);
    if (on_suggestions) on_suggestions(suggestions());
}

void prf_list::set_target(std::wstring pj4) {
    target_pj4 = std::move(pj4);
    for (prf_row& row : rows) row.differs = differs(row.pj4);
    notify();
}

prf_reproj_job prf_list::make_job() const {
    prf_reproj_job job{target_pj4, {}};
    for (const prf_row& row : rows)
        if (row.checked) job.scenes.push_back(row.scene);
    return job;
}

bool prf_list::differs(const std::wstring& pj4) const {
    return !target_pj4.empty() && !ox_pj4_equal_w(pj4.c_str(), target_pj4.c_str());
}

std::vector<projection_suggestion> prf_list::suggestions() const {
    std::vector<projection_suggestion> result;
    std::set<std::wstring> seen{std::wstring()};  // scenes without projection suggest nothing
    for (const prf_row& row : rows)
        if (seen.insert(row.pj4).second) result.emplace_back(row.pj4, row.pj4);
    result.emplace_back(resource::string(text::projection_not_defined), std::wstring());
    return result;
}

void* current_scenes() {
    void* project = ox_prj_get_instance();
    return project ? ox_prj_get_scns_2d_ptr(project) : nullptr;
}

void* profile_data(void* scene) {
    void* data = scene ? ox_scn_2d_get_prf_data_ptr(scene) : nullptr;
    return data && ox_prf_data_get_is_profil(data) ? data : nullptr;
}

std::wstring projection_of(void* data) {
    return adapted_text([data](void* adapter) { ox_prf_data_get_prj4string(data, adapter); });
}

}  // namespace ox::prf_reproj
