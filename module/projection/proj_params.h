#pragma once
/// The group "Projection": which projection, which zone, and its parameters. [ui]

#include <array>

#include "projection/projection_model.h"
#include "toolkit/dropdown.h"
#include "toolkit/labeled_element.h"
#include "toolkit/layouts.h"
#include "toolkit/numeric_input.h"

namespace ox::element {

class proj_params final : public toolkit::groupbox<4, 1> {
public:
    /// `model` outlives the group.
    explicit proj_params(dialog::projection_model& model);

    /// The user chose a projection or a zone.
    toolkit::callback<void()> on_choice;

    /// Offers the projections and zones of the current type, and shows the current record's parameters.
    void show_type();
    /// The same, with the numbers of the text that was classified last.
    void show_text();

    parameter_values values();
    std::int32_t zone() { return static_cast<std::int32_t>(zone_.current_value().value_or(0)); }

private:
    using labeled_number = toolkit::labeled_element<toolkit::floating_input>;
    using labeled_choice = toolkit::labeled_element<toolkit::dropdownex<unsigned int>>;

    enum class numbers { of_record, of_text };
    void show_all(numbers from);
    void show_projections();
    void show_zones();
    /// Which rows the current record asks for, with its limits and values.
    void show_parameters(numbers from);
    /// The number that a row is to show; none where it keeps the one it has.
    std::optional<double> number_of(const parameter_row& row, numbers from) const;
    bool zonal() const { return model_.type() == dialog::projection_type::zonal; }
    void projection_chosen();
    void zone_chosen();

    dialog::projection_model& model_;
    toolkit::dropdownex<unsigned int> projection_;
    labeled_choice zone_;
    toolkit::grid_layout<1, 2> zone_row_;
    std::array<labeled_number, parameter_rows.size()> inputs_;  ///< in the order of `parameter_rows`
    toolkit::grid_layout<10, 2> rows_;
};

}  // namespace ox::element
