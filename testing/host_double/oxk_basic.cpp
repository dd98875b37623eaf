#include "border/host_api/oxk_basic.h"

#include "testing/host_double/host_double.h"

using host_double::are_given;
using host_double::host;

void* ox_string_adp_create(void (*narrow)(const char*, void*), void (*wide)(const wchar_t*, void*),
                           void* context) {
    if (!host().makes_adapters) return nullptr;
    ++host().live["adapter"];
    return new host_double::adapter{narrow, wide, context};
}
void ox_string_adp_destroy(void* adapter) {
    if (!are_given(__func__, {adapter})) return;
    --host().live["adapter"];
    delete static_cast<host_double::adapter*>(adapter);
}
int ox_res_get_lng(void) { return host().language; }
int ox_help_mngr_find_help_id(std::uint32_t help_id) { return static_cast<int>(help_id) + 1; }
void ox_help_mngr_show_help(int mode, int found_help_id) {
    host().log.push_back("help " + std::to_string(mode) + " " + std::to_string(found_help_id));
}
void ox_options_get_main_module_path(void* adapter) {
    if (are_given(__func__, {adapter})) host().deliver(adapter, host().executable);
}
void ox_fnt_type_assign(void* destination_font, const void* source_font) {
    if (!are_given(__func__, {destination_font, source_font})) return;
    *static_cast<int*>(destination_font) = *static_cast<const int*>(source_font);
}
void ox_fnt_type_destroy(void* font) {
    if (!are_given(__func__, {font})) return;
    --host().live["font"];
    delete static_cast<int*>(font);
}
