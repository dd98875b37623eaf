#include "prf_reproj/reprojection_run.h"

#include <memory>

#include "border/host_api/oxk_entity.h"
#include "border/host_api/oxk_msgs.h"
#include "border/host_api/oxk_prg.h"
#include "border/host_api/oxk_proj4_d2.h"
#include "border/host_api/oxk_scn_2d.h"
#include "platform/platform.h"
#include "resources/text.h"
#include "toolkit/resource_lookup.h"

namespace ox::prf_reproj {

namespace {

/// Owner of a host object; null is no object.
template <void (*Destroy)(void*)>
struct destroyer {
    void operator()(void* object) const { Destroy(object); }
};
using polyline = std::unique_ptr<void, destroyer<&ox_pv_d2_destroy>>;
using reprojector = std::unique_ptr<void, destroyer<&ox_rpj_d2_destroy>>;
using progress_guard = std::unique_ptr<void, destroyer<&ox_progress_destroy>>;

/// The bracket around the changes to one scene, in hosts that have one.
class update_bracket {
public:
    explicit update_bracket(void* scene) : scene_(scene) { notify("ox_scn_begin_update"); }
    ~update_bracket() { notify("ox_scn_end_update"); }
    update_bracket(const update_bracket&) = delete;
    update_bracket& operator=(const update_bracket&) = delete;

private:
    void notify(const char* function) const {
        if (const auto call = platform::host_function<void(void*)>("oxk_entity", function)) call(scene_);
    }

    void* scene_;
};

bool confirmed(reproj_check_state state) {
    switch (state) {
        case reproj_check_state::target_empty:
            return ask_yes_no(text::ask_reset);
        case reproj_check_state::scene_without_projection:
            return ask_yes_no(text::ask_assign);
        case reproj_check_state::ok:
            break;
    }
    return true;
}

}  // namespace

void show_message(std::int32_t text_id) { ox_show_wmessage(resource::string(text_id).c_str()); }
void show_error(std::int32_t text_id) { ox_show_werror(resource::string(text_id).c_str()); }
bool ask_yes_no(std::int32_t text_id) { return ox_yesno_wmessage(resource::string(text_id).c_str()); }

bool run_reprojection(prf_list& list) {
    const prf_reproj_job job = list.make_job();
    reproj_check_state state{};
    if (!check(job, state)) {
        show_error(text::bad_settings);
        return false;
    }
    if (!confirmed(state)) return false;
    const bool done = reproject_all(job);
    list.rebuild(current_scenes());
    if (done)
        show_message(text::reprojection_complete);
    else
        show_error(text::reprojection_error);
    return false;
}

bool check(const prf_reproj_job& job, reproj_check_state& state) {
    state = reproj_check_state::ok;
    for (void* scene : job.scenes) {
        void* data = profile_data(scene);
        if (!data) return false;
        if (projection_of(data).empty()) state = reproj_check_state::scene_without_projection;
    }
    if (job.target_pj4.empty()) state = reproj_check_state::target_empty;
    return !job.scenes.empty();
}

bool reproject_all(const prf_reproj_job& job) {
    const progress_guard progress(ox_progress_create(0));
    const auto count = static_cast<double>(job.scenes.size());
    for (std::size_t i = 0; i < job.scenes.size(); ++i) {
        if (progress) ox_progress_report(progress.get(), static_cast<double>(i) / count);
        if (!reproject_scene(job.scenes[i], job.target_pj4)) return false;
    }
    return true;
}

bool reproject_scene(void* scene, const std::wstring& target_pj4) {
    void* data = profile_data(scene);
    if (!data) return false;
    const update_bracket bracket(scene);
    const std::wstring source_pj4 = projection_of(data);
    if (source_pj4.empty() || target_pj4.empty()) {
        ox_prf_data_set_prj4string(data, target_pj4.c_str());
        return true;
    }
    const reprojector rpj(ox_rpj_d2_create());
    if (!rpj || !ox_rpj_d2_init_w(rpj.get(), source_pj4.c_str(), target_pj4.c_str())) return false;
    if (!ox_rpj_d2_rpj_is_needed(rpj.get())) return true;
    const void* section_line = ox_prf_data_get_pv_ptr(data);
    if (!section_line) return false;
    const polyline line(ox_pv_d2_create());  // the scene's own line is never transformed in place
    if (!line) return false;
    ox_pv_d2_assign(line.get(), section_line);
    if (!ox_rpj_d2_apply_pv(rpj.get(), line.get())) return false;
    ox_prf_data_set_pv(data, line.get());
    ox_prf_data_set_prj4string(data, target_pj4.c_str());
    return true;
}

}  // namespace ox::prf_reproj
