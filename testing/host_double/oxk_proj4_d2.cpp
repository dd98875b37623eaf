#include "border/host_api/oxk_proj4_d2.h"

#include "testing/host_double/host_double.h"

using host_double::are_given;
using host_double::favourite;
using host_double::host;
using host_double::line;

namespace {

/// Texts that differ only in "+no_defs" are equal here.
std::wstring meaning(const wchar_t* proj4) {
    std::wstring text(proj4);
    const std::wstring tail = L" +no_defs";
    if (text.ends_with(tail)) text.resize(text.size() - tail.size());
    return text;
}

struct reprojector {
    bool needed = false;
};

using favourite_items = std::vector<favourite>;
favourite_items& items(void* list) {
    static favourite_items none;
    return are_given("ox_pj4_fav", {list}) ? *static_cast<favourite_items*>(list) : none;
}
favourite* item(void* list, std::int32_t index) {
    auto& all = items(list);
    return index >= 0 && static_cast<std::size_t>(index) < all.size() ? &all[static_cast<std::size_t>(index)]
                                                                      : nullptr;
}

void load(const char* function, const char* format, const wchar_t* path, void* adapter) {
    if (!are_given(function, {path, adapter})) return;
    host().log.push_back(std::string("load ") + format);
    if (const auto file = host().files.find(path); file != host().files.end())
        host().deliver(adapter, file->second);
}
void save(const char* function, const char* format, const wchar_t* path, const wchar_t* proj4) {
    if (!are_given(function, {path, proj4})) return;
    host().log.push_back(std::string("save ") + format);
    host().files[path] = proj4;
}

}  // namespace

bool ox_pj4_equal_w(const wchar_t* a, const wchar_t* b) {
    return are_given(__func__, {a, b}) && meaning(a) == meaning(b);
}
void ox_pj4_get_text_w(const wchar_t* proj4, void* adapter) {
    if (are_given(__func__, {proj4, adapter})) host().deliver(adapter, L"described: " + std::wstring(proj4));
}
void ox_pj4_get_short_text_w(const wchar_t* proj4, void* adapter) {
    if (are_given(__func__, {proj4, adapter})) host().deliver(adapter, L"short: " + std::wstring(proj4));
}
void ox_pj4_import_crs(const wchar_t* identifier, void* adapter) {
    if (!are_given(__func__, {identifier, adapter})) return;
    if (host().refuses("import " + host_double::narrow(identifier))) return;
    if (const auto known = host().crs.find(identifier); known != host().crs.end())
        host().deliver(adapter, known->second);
}
void ox_pj4_load_simple_w(const wchar_t* path, void* adapter) { load(__func__, "pj4", path, adapter); }
void ox_pj4_import_esri(const wchar_t* path, void* adapter) { load(__func__, "prj", path, adapter); }
void ox_pj4_save_simple_w(const wchar_t* path, const wchar_t* proj4) { save(__func__, "pj4", path, proj4); }
void ox_pj4_export_esri_prj(const wchar_t* proj4, const wchar_t* path) { save(__func__, "prj", path, proj4); }

void* ox_pj4_fav_list_create(void) {
    if (!host().makes_favourites) return nullptr;
    ++host().live["favourites"];
    return new favourite_items;
}
void ox_pj4_fav_list_deserialize(void* list) {
    if (are_given(__func__, {list})) items(list) = host().favourites;
}
void ox_pj4_fav_list_serialize(void* list) {
    if (are_given(__func__, {list})) host().favourites = items(list);
}
void ox_pj4_fav_list_destroy(void* list) {
    if (!are_given(__func__, {list})) return;
    --host().live["favourites"];
    delete static_cast<favourite_items*>(list);
}
std::int32_t ox_pj4_fav_list_get_count(void* list) {
    return are_given(__func__, {list}) ? static_cast<std::int32_t>(items(list).size()) : 0;
}
void ox_pj4_fav_add_item(void* list, const wchar_t* caption, const wchar_t* proj4) {
    if (are_given(__func__, {list, caption, proj4})) items(list).push_back({caption, proj4});
}
void ox_pj4_fav_del_item(void* list, std::int32_t index) {
    if (!are_given(__func__, {list})) return;
    host().log.push_back("delete favourite " + std::to_string(index));
    if (item(list, index)) items(list).erase(items(list).begin() + index);
}
void ox_pj4_fav_get_caption(void* list, std::int32_t index, void* adapter) {
    if (!are_given(__func__, {list, adapter})) return;
    if (const favourite* found = item(list, index)) host().deliver(adapter, found->caption);
}
void ox_pj4_fav_set_caption(void* list, std::int32_t index, const wchar_t* caption) {
    if (!are_given(__func__, {list, caption})) return;
    if (favourite* found = item(list, index)) found->caption = caption;
}
void ox_pj4_fav_get_pj4str(void* list, std::int32_t index, void* adapter) {
    if (!are_given(__func__, {list, adapter})) return;
    if (const favourite* found = item(list, index)) host().deliver(adapter, found->pj4);
}

void* ox_rpj_d2_create(void) {
    if (host().refuses("rpj")) return nullptr;
    ++host().live["rpj"];
    return new reprojector;
}
bool ox_rpj_d2_init_w(void* rpj, const wchar_t* source, const wchar_t* target) {
    if (!are_given(__func__, {rpj, source, target})) return false;
    static_cast<reprojector*>(rpj)->needed = !ox_pj4_equal_w(source, target);
    return !host().refuses("init");
}
bool ox_rpj_d2_rpj_is_needed(void* rpj) {
    return are_given(__func__, {rpj}) && static_cast<reprojector*>(rpj)->needed;
}
bool ox_rpj_d2_apply_pv(void* rpj, void* pv) {
    if (!are_given(__func__, {rpj, pv}) || host().refuses("apply")) return false;
    for (auto& [x, y] : *static_cast<line*>(pv)) x += host_double::shift_x, y += host_double::shift_y;
    return true;
}
void ox_rpj_d2_destroy(void* rpj) {
    if (!are_given(__func__, {rpj})) return;
    --host().live["rpj"];
    delete static_cast<reprojector*>(rpj);
}
