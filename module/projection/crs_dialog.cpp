#include "projection/crs_dialog.h"

#include <cerrno>
#include <cstdint>
#include <cwchar>
#include <limits>

#include "border/host_api/oxk_proj4_d2.h"
#include "support/string_adapter.h"
#include "toolkit/docker.h"
#include "toolkit/modal_dialog.h"

namespace ox::dialog {

namespace {

std::optional<std::int32_t> whole_number(const std::wstring& text) {
    if (text.empty()) return std::nullopt;
    wchar_t* end = nullptr;
    errno = 0;
    const long long number = std::wcstoll(text.c_str(), &end, 10);
    using limits = std::numeric_limits<std::int32_t>;
    if (end != text.c_str() + text.size() || errno == ERANGE || number < limits::min() ||
        number > limits::max())
        return std::nullopt;
    return static_cast<std::int32_t>(number);
}

}  // namespace

projection_crs::projection_crs(toolkit::button_box& buttons) : buttons_(buttons) {
    put_labeled(identifier_row_, 0, 0, identifier_);
    identifier_row_.set_column_expands(1);
    root_.put(0, 0, identifier_row_);
    root_.put(0, 1, output_);
    root_.set_column_expands(0);
    root_.set_row_expands(1);

    identifier_.on_change = [this](const std::wstring& typed) { return identifier_changed(typed); };
    buttons_.on_apply = [this] { return !text_.empty(); };
    buttons_.set_enabled(toolkit::command::apply, false);
}

bool projection_crs::identifier_changed(const std::wstring& typed) {
    const std::wstring identifier = crs_identifier(typed);
    text_ = adapted_text([&](void* adapter) { ox_pj4_import_crs(identifier.c_str(), adapter); });
    const bool known = !text_.empty();
    toolkit::button_box& buttons = buttons_;
    output_.set_text(text_);  // from here on the dialog may have ended
    buttons.set_enabled(toolkit::command::apply, known);
    return known;
}

std::wstring crs_identifier(const std::wstring& typed) {
    constexpr const wchar_t* blanks = L" \t\n\r\v\f";
    const auto first = typed.find_first_not_of(blanks);
    if (first == std::wstring::npos) return {};
    const std::wstring trimmed = typed.substr(first, typed.find_last_not_of(blanks) - first + 1);
    const auto code = whole_number(trimmed);
    return code ? L"EPSG:" + std::to_wstring(*code) : trimmed;
}

std::optional<std::wstring> ask_crs() {
    toolkit::button_box buttons(toolkit::commands(toolkit::command::apply, toolkit::command::close));
    projection_crs dialog(buttons);
    toolkit::detail::dialog_docker docker(dialog);
    if (!util::show_modal<projection_crs::id>(docker, buttons)) return std::nullopt;
    return dialog.text();
}

}  // namespace ox::dialog
