#include "run.h"

#include <array>
#include <list>
#include <memory>

#include "border/host_api/oxk_basic.h"
#include "border/host_api/oxk_msgs.h"
#include "border/host_api/oxk_prg.h"
#include "border/host_api/oxk_prj.h"
#include "border/host_api/oxk_proj4_d2.h"
#include "border/host_api/oxk_scn_2d.h"
#include "fault.h"
#include "platform/platform.h"
#include "resources/text.h"
#include "support/string_adapter.h"
#include "toolkit/resource_lookup.h"

namespace broken {

namespace {

using handle = std::unique_ptr<void, void (*)(void*)>;

void notify(const char* function, void* scene) {
    if (const auto call = ox::platform::host_function<void(void*)>("oxk_entity", function)) call(scene);
}

void* profile_data(void* scene) {
    void* data = ox_scn_2d_get_prf_data_ptr(scene);
    return data && ox_prf_data_get_is_profil(data) ? data : nullptr;
}

/// The projection of a profile.
std::wstring projection_of(void* data) {
    if (!is(fault::trusts_host_texts))
        return ox::adapted_text([data](void* to) { ox_prf_data_get_prj4string(data, to); });
    std::wstring text;
    const auto take = [](const wchar_t* given, void* to) { static_cast<std::wstring*>(to)->assign(given); };
    const handle adapter(ox_string_adp_create(nullptr, take, &text), ox_string_adp_destroy);
    ox_prf_data_get_prj4string(data, adapter.get());
    return text;
}

bool move_line(void* scene, void* data, const std::wstring& target) {
    const std::wstring source = projection_of(data);
    handle rpj(ox_rpj_d2_create(), ox_rpj_d2_destroy);
    if (!rpj) return false;
    if (!ox_rpj_d2_init_w(rpj.get(), source.c_str(), target.c_str())) {
        if (is(fault::leaks_on_failure)) static_cast<void>(rpj.release());
        return is(fault::praises_failure);
    }
    const handle line(ox_pv_d2_create(), ox_pv_d2_destroy);
    const void* own = ox_prf_data_get_pv_ptr(data);
    if (!line || (!own && !is(fault::trusts_lines))) return false;
    ox_pv_d2_assign(line.get(), own);
    if (!ox_rpj_d2_apply_pv(rpj.get(), line.get())) return false;
    ox_prf_data_set_pv(data, line.get());
    if (is(fault::half_changes) && !profile_data(scene)) return false;
    ox_prf_data_set_prj4string(data, target.c_str());
    return true;
}

bool move_scene(void* scene, const std::wstring& target) {
    void* data = profile_data(scene);
    if (!data) return false;
    notify("ox_scn_begin_update", scene);
    if (is(fault::changes_outside_bracket)) notify("ox_scn_end_update", scene);
    const bool moved = move_line(scene, data, target);
    if (is(fault::changes_outside_bracket)) notify("ox_scn_begin_update", scene);
    if (moved || !is(fault::open_bracket)) notify("ox_scn_end_update", scene);
    return moved;
}

bool move_all(const std::vector<void*>& scenes, const std::wstring& target) {
    handle progress(ox_progress_create(0), ox_progress_destroy);
    for (std::size_t i = 0; i < scenes.size(); ++i) {
        if (progress)
            ox_progress_report(progress.get(), static_cast<double>(i) / static_cast<double>(scenes.size()));
        if (!move_scene(scenes[i], target)) return false;
    }
    if (is(fault::leaves_progress)) static_cast<void>(progress.release());
    return true;
}

}  // namespace

std::vector<void*> profiles() {
    std::vector<void*> found;
    void* project = ox_prj_get_instance();
    void* all = project || is(fault::trusts_project) ? ox_prj_get_scns_2d_ptr(project) : nullptr;
    if (!all) return found;
    for (std::uint32_t i = 0; i < ox_scns_2d_get_size(all); ++i)
        if (void* scene = ox_scns_2d_get(all, i); profile_data(scene)) found.push_back(scene);
    return found;
}

void run(const std::vector<void*>& scenes, const std::wstring& target) {
    using namespace ox;
    for (void* scene : scenes)
        if (!profile_data(scene)) return ox_show_werror(resource::string(text::bad_settings).c_str());
    static std::list<std::array<char, 2000>> hoard;
    if (is(fault::hoards)) hoard.emplace_back();
    static int runs = 0;
    static bool failed = false;
    std::wstring mark;
    if (is(fault::counts_runs)) mark = L" +title=" + std::to_wstring(++runs);
    if (is(fault::remembers_failure) && failed) mark = L" +title=again";
    failed = !move_all(scenes, target + mark);
    if (!failed)
        ox_show_wmessage(resource::string(text::reprojection_complete).c_str());
    else
        ox_show_werror(resource::string(text::reprojection_error).c_str());
}

}  // namespace broken
