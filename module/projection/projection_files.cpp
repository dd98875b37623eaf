#include "projection/projection_files.h"

#include "border/host_api/oxk_proj4_d2.h"
#include "framework/value_visitors.h"
#include "resources/text.h"
#include "support/string_adapter.h"
#include "toolkit/modal_dialog.h"
#include "toolkit/resource_lookup.h"

namespace ox {

namespace {

enum class format { unknown, pj4, prj };

format format_of(const std::wstring& path) {
    const auto name = path.find_last_of(L"/\\") + 1;  // npos + 1 is 0: a bare name
    const auto dot = path.rfind(L'.');
    if (dot == std::wstring::npos || dot < name) return format::unknown;
    std::wstring extension = path.substr(dot);
    for (wchar_t& c : extension)
        if (c >= L'A' && c <= L'Z') c = static_cast<wchar_t>(c - L'A' + L'a');
    return extension == L".pj4" ? format::pj4 : extension == L".prj" ? format::prj : format::unknown;
}

std::wstring ask_file(std::int32_t mode) {
    const std::wstring filter = resource::string(text::projection_file_filter);
    return read_text([&](custom_pointer path_visitor) {
        call<&dialog_host_impl::ask_file>(util::dialog_host<nullptr>(), mode, filter.c_str(), path_visitor);
    });
}

}  // namespace

std::wstring ask_open_projection_file() { return ask_file(dialog_host_impl::open_file); }
std::wstring ask_save_projection_file() { return ask_file(dialog_host_impl::save_file); }

std::wstring load_projection_file(const std::wstring& path) {
    return adapted_text([&, kind = format_of(path)](void* adapter) {
        if (kind == format::pj4) ox_pj4_load_simple_w(path.c_str(), adapter);
        if (kind == format::prj) ox_pj4_import_esri(path.c_str(), adapter);
    });
}

void save_projection_file(const std::wstring& path, const std::wstring& pj4) {
    const format kind = format_of(path);
    if (kind == format::pj4) ox_pj4_save_simple_w(path.c_str(), pj4.c_str());
    if (kind == format::prj) ox_pj4_export_esri_prj(pj4.c_str(), path.c_str());
}

}  // namespace ox
