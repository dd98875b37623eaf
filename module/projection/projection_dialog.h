#pragma once
/// The dialog in which the user composes a projection: favourites, type, projection with its parameters,
/// datum, ellipsoid. [ui]

#include <optional>
#include <string>

#include "projection/datum_params.h"
#include "projection/favourites.h"
#include "projection/proj_params.h"
#include "projection/projection_model.h"
#include "resources/text.h"
#include "toolkit/button_layout.h"

namespace ox::dialog {

inline constexpr wchar_t projection_id[] = L"ox_common_projection_dialog";

class projection {
public:
    static constexpr const wchar_t* id = projection_id;
    static constexpr std::int32_t caption = text::projection_dialog;

    /// Reads the catalogue and the favourites; the favourites are written back when the dialog ends.
    projection();

    toolkit::grid_layout<1, 2>& element() { return root_; }

    /// Classifies a proj4 text and shows it; an empty one is the undefined type.
    void set_text(const std::wstring& pj4);
    /// The proj4 text of what is shown.
    std::wstring text();

private:
    void build();
    void type_chosen(std::uint32_t index);
    /// The parts that only show for some types.
    void show_parts();
    void command(std::uint32_t chosen);

    projection_model model_;
    favourites_model favourites_;

    element::proj_favorites favourites_area_{favourites_};
    toolkit::labeled_element<toolkit::dropdown> type_{text::type};
    toolkit::button_layout buttons_;
    element::proj_params parameters_{model_};
    element::datum_params datum_{model_};
    element::ellipsoid_params ellipsoid_{model_};

    toolkit::grid_layout<1, 2> type_row_;
    toolkit::grid_layout<1, 1> no_parameters_;  ///< the page for geographic coordinates
    toolkit::stack_layout<2> parameter_pages_;
    toolkit::grid_layout<2, 1> datum_column_;
    toolkit::grid_layout<2, 2> main_;
    toolkit::grid_layout<1, 2> root_;
};

/// Shows the dialog on a proj4 text; the result, which may be empty, when the user confirms.
std::optional<std::wstring> edit_projection(const std::wstring& pj4);

}  // namespace ox::dialog
