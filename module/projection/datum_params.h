#pragma once
/// The groups "Datum" and "Spheroid" of the projection dialog. [ui]

#include <array>

#include "projection/projection_model.h"
#include "toolkit/dropdown.h"
#include "toolkit/label.h"
#include "toolkit/labeled_element.h"
#include "toolkit/layouts.h"
#include "toolkit/numeric_input.h"

namespace ox::element {

/// The datum and its seven parameters, which the user may edit: an edit looks for the datum that the
/// numbers belong to, and makes a custom one where there is none.
class datum_params final : public toolkit::groupbox<2, 1> {
public:
    explicit datum_params(dialog::projection_model& model);

    /// The user chose a datum or edited its numbers.
    toolkit::callback<void()> on_choice;

    void show();

private:
    void datum_chosen();
    bool numbers_edited();
    void show_choice();

    dialog::projection_model& model_;
    toolkit::dropdownex<unsigned int> datum_;
    toolkit::groupbox<3, 1> parameters_;
    toolkit::label title_;
    toolkit::grid_layout<4, 4> table_;
    std::array<toolkit::label, 3> columns_;
    std::array<toolkit::label, 3> rows_;
    std::array<toolkit::floating_input, 7> numbers_;  ///< in the order of the proj4 parameter "towgs84"
    toolkit::label note_;
};

/// The ellipsoid with its axes, for reading only.
class ellipsoid_params final : public toolkit::groupbox<3, 2> {
public:
    explicit ellipsoid_params(dialog::projection_model& model);

    toolkit::callback<void()> on_choice;  ///< the user chose an ellipsoid

    void show();

private:
    void show_axes();

    dialog::projection_model& model_;
    toolkit::labeled_element<toolkit::dropdownex<unsigned int>> ellipsoid_;
    toolkit::labeled_element<toolkit::floating_input> semimajor_axis_;
    toolkit::labeled_element<toolkit::floating_input> inverse_flattening_;
};

}  // namespace ox::element
