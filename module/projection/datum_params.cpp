#include "projection/datum_params.h"

#include "resources/text.h"
#include "support/encodings.h"

namespace ox::element {

namespace {

using item = toolkit::dropdownex<unsigned int>::item;

constexpr double parameter_decimals = 6;

template <class List>
void append_items(std::vector<item>& items, const List& list) {
    for (std::size_t i = 0; i < list.size(); ++i) items.push_back({system_to_wide(list[i].name), list[i].id});
}

/// 0 for a sphere, as tables have it.
double inverse_flattening(const Tox_pj_ellps& ellipsoid) {
    if (ellipsoid.has_rf) return ellipsoid.rf;
    return ellipsoid.has_b && ellipsoid.a != ellipsoid.b ? ellipsoid.a / (ellipsoid.a - ellipsoid.b) : 0;
}

}  // namespace

datum_params::datum_params(dialog::projection_model& model)
    : groupbox(text::datum),
      model_(model),
      parameters_(text::datum_parameters),
      title_(text::transformation_to_wgs84),
      columns_{toolkit::label(text::axis_x), toolkit::label(text::axis_y), toolkit::label(text::axis_z)},
      rows_{toolkit::label(text::shift), toolkit::label(text::rotate), toolkit::label(text::datum_scale)},
      note_(text::position_vector_note) {
    for (std::int32_t i = 0; i < 3; ++i) {
        const auto axis = static_cast<std::size_t>(i);
        table_.put(i + 1, 0, columns_[axis]);
        table_.put(0, i + 1, rows_[axis]);
        table_.put(i + 1, 1, numbers_[axis]);
        table_.put(i + 1, 2, numbers_[axis + 3]);
        table_.set_column_expands(i + 1);
    }
    table_.put(1, 3, numbers_[6]);
    parameters_.content().put(0, 0, title_);
    parameters_.content().put(0, 1, table_);
    parameters_.content().put(0, 2, note_);
    content().put(0, 0, datum_);
    content().put(0, 1, parameters_);

    datum_.on_select = [this](std::uint32_t) { datum_chosen(); };
    for (toolkit::floating_input& number : numbers_) {
        number.set_decimals(parameter_decimals);
        number.on_change = [this](double) { return numbers_edited(); };
    }
    std::vector<item> items{{utf8_to_wide(dialog::projection_model::custom_datum_name), 0}};
    append_items(items, model_.datums());
    datum_.set_items(std::move(items), std::nullopt);
}

void datum_params::show() {
    show_choice();
    if (!model_.datum()) return;
    const auto towgs84 = model_.datum()->towgs84();
    for (std::size_t i = 0; i < numbers_.size(); ++i) numbers_[i].show(towgs84[i]);
}

void datum_params::show_choice() { datum_.set_current_value(model_.datum() ? model_.datum()->id : 0); }

void datum_params::datum_chosen() {
    const auto id = datum_.current_value();
    if (!id) return;
    model_.choose_datum(*id);
    show();
    on_choice();
}

bool datum_params::numbers_edited() {
    std::array<double, 7> towgs84{};
    for (std::size_t i = 0; i < numbers_.size(); ++i) towgs84[i] = numbers_[i].value();
    model_.set_datum_values(towgs84);
    show_choice();
    on_choice();
    return true;
}

ellipsoid_params::ellipsoid_params(dialog::projection_model& model)
    : groupbox(text::spheroid),
      model_(model),
      ellipsoid_(text::spheroid_name),
      semimajor_axis_(text::semimajor_axis),
      inverse_flattening_(text::inverse_flattening, 9) {
    put_labeled(content(), 0, 0, ellipsoid_);
    put_labeled(content(), 0, 1, semimajor_axis_);
    put_labeled(content(), 0, 2, inverse_flattening_);
    content().set_column_expands(1);
    semimajor_axis_.set_read_only(true);
    inverse_flattening_.set_read_only(true);

    ellipsoid_.on_select = [this](std::uint32_t) {
        const auto id = ellipsoid_.current_value();
        if (!id) return;
        model_.choose_ellipsoid(*id);
        show_axes();
        on_choice();
    };
    std::vector<item> items;
    append_items(items, model_.ellipsoids());
    ellipsoid_.set_items(std::move(items), std::nullopt);
}

void ellipsoid_params::show() {
    const Tox_pj_ellps* ellipsoid = model_.ellipsoid();
    ellipsoid_.set_current_value(ellipsoid ? std::optional(ellipsoid->id) : std::nullopt);
    show_axes();
}

void ellipsoid_params::show_axes() {
    const Tox_pj_ellps* ellipsoid = model_.ellipsoid();
    semimajor_axis_.show(ellipsoid ? ellipsoid->a : 0);
    inverse_flattening_.show(ellipsoid ? inverse_flattening(*ellipsoid) : 0);
}

}  // namespace ox::element
