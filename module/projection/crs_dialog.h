#pragma once
/// The small dialog that turns an EPSG code, or any identifier the host knows, into a proj4 text. [ui]

#include <optional>
#include <string>

#include "projection/proj4_input.h"
#include "resources/text.h"
#include "toolkit/button_box.h"
#include "toolkit/input.h"
#include "toolkit/labeled_element.h"
#include "toolkit/layouts.h"

namespace ox::dialog {

inline constexpr wchar_t projection_crs_id[] = L"ox_common_projection_crs_dialog";

class projection_crs {
public:
    static constexpr const wchar_t* id = projection_crs_id;
    static constexpr std::int32_t caption = text::crs_dialog;

    /// The dialog enables the accepting button of `buttons` while there is a result.
    explicit projection_crs(toolkit::button_box& buttons);

    toolkit::grid_layout<2, 1>& element() { return root_; }
    /// Empty until an identifier is known to the host.
    const std::wstring& text() const { return text_; }

private:
    bool identifier_changed(const std::wstring& typed);

    std::wstring text_;
    toolkit::button_box& buttons_;
    toolkit::labeled_element<toolkit::input> identifier_{text::crs_id};
    element::proj4_output output_;
    toolkit::grid_layout<1, 2> identifier_row_;
    toolkit::grid_layout<2, 1> root_;
};

/// What the host is asked for: an integer becomes an EPSG code, anything else stays, blanks trimmed.
std::wstring crs_identifier(const std::wstring& typed);

/// Shows the dialog; the proj4 text when the user confirms.
std::optional<std::wstring> ask_crs();

}  // namespace ox::dialog
