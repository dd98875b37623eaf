#include "c_host/project.h"

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "border/c/ox_host_functions.h"
#include "c_common/text_reader.h"
#include "c_host/basic.h"
#include "c_host/print.h"

enum { scene_count = 3, line_length = 2 };

static struct scene scenes[scene_count];

static const struct {
    const wchar_t* caption;
    const wchar_t* proj4;
    struct vertex line[line_length];
} content[scene_count] = {
    {L"Seismic line 1", L"+proj=longlat +datum=WGS84", {{56.5, 60.25}, {57.5, 60.75}}},
    {L"Seismic line 2", L"+proj=utm +zone=40 +datum=WGS84", {{450000, 6650000}, {480000, 6700000}}},
    {L"Well section", L"", {{455000, 6655000}, {455500, 6690000}}},
};

void open_project(void) {
    for (size_t i = 0; i < scene_count; ++i) {
        struct vertex line[line_length];
        memcpy(line, content[i].line, sizeof line);
        const struct polyline lent = {line_length, line};
        scenes[i].caption = content[i].caption;
        scenes[i].proj4 = copy_text(content[i].proj4);
        copy_line(&scenes[i].line, &lent);
    }
}

void close_project(void) {
    for (size_t i = 0; i < scene_count; ++i) {
        free(scenes[i].proj4);
        free(scenes[i].line.vertices);
    }
    memset(scenes, 0, sizeof scenes);
}

void print_project(void) {
    puts("project:");
    for (const struct scene* each = scenes; each != scenes + scene_count; ++each) {
        printf("  ");
        print_quoted(each->caption);
        printf(" in ");
        print_quoted(each->proj4);
        for (size_t i = 0; i < each->line.count; ++i)
            printf(" (%.10g %.10g)", each->line.vertices[i].x, each->line.vertices[i].y);
        putchar('\n');
    }
}

void copy_line(struct polyline* to, const struct polyline* from) {
    const size_t count = from ? from->count : 0;
    struct vertex* copy = malloc((count + 1) * sizeof *copy);
    if (!copy) return;
    if (count > 0) memcpy(copy, from->vertices, count * sizeof *copy);
    free(to->vertices);
    to->vertices = copy;
    to->count = count;
}

// ---- oxk_prj --------------------------------------------------------------------------------------------

void* ox_prj_get_instance(void) { return scenes; }
void* ox_prj_get_scns_2d_ptr(void* project) { return project; }

// ---- oxk_scn_2d -----------------------------------------------------------------------------------------

uint32_t ox_scns_2d_get_size(void* collection) { return collection ? scene_count : 0; }

void* ox_scns_2d_get(void* collection, uint32_t index) {
    return collection && index < scene_count ? scenes + index : NULL;
}

void ox_scn_2d_get_wcaption(void* scene, void* adapter) {
    deliver_to_adapter(((struct scene*)scene)->caption, adapter);
}

void* ox_scn_2d_get_prf_data_ptr(void* scene) { return scene; }
bool ox_prf_data_get_is_profil(void* data) { return data != NULL; }

void ox_prf_data_get_prj4string(void* data, void* adapter) {
    deliver_to_adapter(((struct scene*)data)->proj4, adapter);
}

void ox_prf_data_set_prj4string(void* data, const wchar_t* proj4) {
    struct scene* scene = data;
    wchar_t* copy = copy_text(proj4);
    if (!copy) return;
    free(scene->proj4);
    scene->proj4 = copy;
}

void* ox_prf_data_get_pv_ptr(void* data) { return &((struct scene*)data)->line; }
void ox_prf_data_set_pv(void* data, void* pv) { copy_line(&((struct scene*)data)->line, pv); }

// ---- oxk_entity -----------------------------------------------------------------------------------------

void ox_scn_begin_update(void* scene) { ((struct scene*)scene)->changing = true; }
void ox_scn_end_update(void* scene) { ((struct scene*)scene)->changing = false; }

// ---- oxk_prg --------------------------------------------------------------------------------------------

void* ox_pv_d2_create(void) { return calloc(1, sizeof(struct polyline)); }
void ox_pv_d2_assign(void* destination, const void* source) { copy_line(destination, source); }

void ox_pv_d2_destroy(void* pv) {
    if (pv) free(((struct polyline*)pv)->vertices);
    free(pv);
}
