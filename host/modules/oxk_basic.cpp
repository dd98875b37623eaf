#include "border/host_api/oxk_basic.h"

#include <filesystem>
#include <string>

#include "base/language.h"
#include "session/border.h"
#include "session/messages.h"

using namespace oxhost;

namespace {

constexpr int english_offset = 50000;

/// What the host's font handles point at. Made with new by the host part that hands a font out; ended by its
/// owner through this module.
struct font_type {
    std::string family;  ///< UTF-8; empty for the view's own
    double points = 0;   ///< 0 for the view's own
    bool bold = false;
    bool italic = false;
};

}  // namespace

void* ox_string_adp_create(void (*narrow)(const char*, void*), void (*wide)(const wchar_t*, void*),
                           void* context) {
    return at_border([&] { return new string_adapter{narrow, wide, context}; });
}

void ox_string_adp_destroy(void* adapter) { delete static_cast<string_adapter*>(adapter); }

int ox_res_get_lng() { return current_language() == language::russian ? 0 : english_offset; }

/// Topics have no other number than their help id.
int ox_help_mngr_find_help_id(std::uint32_t help_id) { return static_cast<int>(help_id); }

void ox_help_mngr_show_help(int, int found_help_id) {
    at_border([&] {
        std::string line(in_language("Раздел справки ", "Help topic "));
        messages::instance().inform(line += std::to_string(found_help_id));
    });
}

/// As narrow text where the adapter takes it: a path's bytes are in the locale's character set, which need
/// not be UTF-8.
void ox_options_get_main_module_path(void* adapter) {
    at_border([&] {
        const auto* target = static_cast<const string_adapter*>(adapter);
        const auto path = std::filesystem::read_symlink("/proc/self/exe");
        if (target && target->narrow)
            target->narrow(path.c_str(), target->context);
        else
            deliver(adapter, path.string());
    });
}

void ox_fnt_type_assign(void* destination_font, const void* source_font) {
    if (!destination_font || !source_font) return;
    at_border(
        [&] { *static_cast<font_type*>(destination_font) = *static_cast<const font_type*>(source_font); });
}

void ox_fnt_type_destroy(void* font) { delete static_cast<font_type*>(font); }
