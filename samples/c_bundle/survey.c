#include "c_bundle/survey.h"

#include <stdlib.h>

#include "border/c/ox_host_functions.h"
#include "c_bundle/adapted_text.h"

static void look_at(void* scene, const wchar_t* projection, struct survey* found) {
    void* data = scene ? ox_scn_2d_get_prf_data_ptr(scene) : NULL;
    if (!data || !ox_prf_data_get_is_profil(data)) return;
    wchar_t* own = adapted_text(ox_prf_data_get_prj4string, data);
    ++found->profiles;
    if (!own || !*own)
        ++found->without_projection;
    else if (ox_pj4_equal_w(own, projection))
        ++found->in_that_projection;
    free(own);
}

struct survey survey_scenes(const wchar_t* projection) {
    struct survey found = {0, 0, 0};
    void* project = ox_prj_get_instance();
    void* scenes = project ? ox_prj_get_scns_2d_ptr(project) : NULL;
    const uint32_t count = scenes ? ox_scns_2d_get_size(scenes) : 0;
    for (uint32_t i = 0; i < count; ++i) look_at(ox_scns_2d_get(scenes, i), projection, &found);
    return found;
}
