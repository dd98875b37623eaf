// The host functions of oxk_proj4_d2, as simple as can be: a coordinate system is its text, reprojecting
// moves each vertex by a fixed way, there are no projection files and no favourites.

#include <stdlib.h>
#include <wchar.h>

#include "border/c/ox_host_functions.h"
#include "c_host/basic.h"
#include "c_host/project.h"

static const double shift_x = 1000, shift_y = 2000;

static const wchar_t* or_empty(const wchar_t* text) { return text ? text : L""; }

bool ox_pj4_equal_w(const wchar_t* a, const wchar_t* b) { return wcscmp(or_empty(a), or_empty(b)) == 0; }

void ox_pj4_get_text_w(const wchar_t* proj4, void* adapter) { deliver_to_adapter(proj4, adapter); }
void ox_pj4_get_short_text_w(const wchar_t* proj4, void* adapter) { deliver_to_adapter(proj4, adapter); }

void ox_pj4_import_crs(const wchar_t* identifier, void* adapter) {
    if (wcscmp(or_empty(identifier), L"EPSG:4326") == 0)
        deliver_to_adapter(L"+proj=longlat +datum=WGS84", adapter);
}

// ---- The reprojector ------------------------------------------------------------------------------------

struct reprojector {
    bool needed;
};

void* ox_rpj_d2_create(void) { return calloc(1, sizeof(struct reprojector)); }

bool ox_rpj_d2_init_w(void* rpj, const wchar_t* source, const wchar_t* target) {
    static const wchar_t begin[] = L"+proj=";
    const size_t length = sizeof begin / sizeof *begin - 1;
    ((struct reprojector*)rpj)->needed = !ox_pj4_equal_w(source, target);
    return wcsncmp(or_empty(source), begin, length) == 0 && wcsncmp(or_empty(target), begin, length) == 0;
}

bool ox_rpj_d2_rpj_is_needed(void* rpj) { return ((struct reprojector*)rpj)->needed; }

bool ox_rpj_d2_apply_pv(void* rpj, void* pv) {
    const struct polyline* line = pv;
    if (!((struct reprojector*)rpj)->needed) return true;
    for (size_t i = 0; i < line->count; ++i) {
        line->vertices[i].x += shift_x;
        line->vertices[i].y += shift_y;
    }
    return true;
}

void ox_rpj_d2_destroy(void* rpj) { free(rpj); }

// ---- Files ----------------------------------------------------------------------------------------------

void ox_pj4_load_simple_w(const wchar_t* path, void* adapter) { (void)path, (void)adapter; }
void ox_pj4_import_esri(const wchar_t* path, void* adapter) { (void)path, (void)adapter; }
void ox_pj4_save_simple_w(const wchar_t* path, const wchar_t* proj4) { (void)path, (void)proj4; }
void ox_pj4_export_esri_prj(const wchar_t* proj4, const wchar_t* path) { (void)proj4, (void)path; }

// ---- Favourites: a list that stays empty ----------------------------------------------------------------

static int no_favourites;

void* ox_pj4_fav_list_create(void) { return &no_favourites; }
void ox_pj4_fav_list_deserialize(void* list) { (void)list; }
void ox_pj4_fav_list_serialize(void* list) { (void)list; }
void ox_pj4_fav_list_destroy(void* list) { (void)list; }

int32_t ox_pj4_fav_list_get_count(void* list) {
    (void)list;
    return 0;
}

void ox_pj4_fav_add_item(void* list, const wchar_t* caption, const wchar_t* proj4) {
    (void)list, (void)caption, (void)proj4;
}
void ox_pj4_fav_del_item(void* list, int32_t index) { (void)list, (void)index; }
void ox_pj4_fav_get_caption(void* list, int32_t index, void* adapter) {
    (void)list, (void)index, (void)adapter;
}
void ox_pj4_fav_set_caption(void* list, int32_t index, const wchar_t* caption) {
    (void)list, (void)index, (void)caption;
}
void ox_pj4_fav_get_pj4str(void* list, int32_t index, void* adapter) {
    (void)list, (void)index, (void)adapter;
}
