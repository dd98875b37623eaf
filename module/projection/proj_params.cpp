#include "projection/proj_params.h"

#include <utility>

#include "resources/text.h"
#include "support/encodings.h"

namespace ox::element {

namespace {

using dialog::projection_type;
using item = toolkit::dropdownex<unsigned int>::item;

constexpr std::int32_t zone_row = 1;

template <class Element, class Make, std::size_t... Row>
std::array<Element, sizeof...(Row)> make_rows(Make make, std::index_sequence<Row...>) {
    return {make(parameter_rows[Row])...};
}

std::wstring zone_caption(const Tox_pj_proj& record) {
    return record.zone_n.text.empty() ? std::to_wstring(record.zone.value)
                                      : system_to_wide(record.zone_n.text);
}

}  // namespace

proj_params::proj_params(dialog::projection_model& model)
    : groupbox(text::projection),
      model_(model),
      zone_(text::zone),
      inputs_(make_rows<labeled_number>(
          [](const parameter_row& row) { return labeled_number(row.label, row.decimals, row.initial); },
          std::make_index_sequence<parameter_rows.size()>())) {
    put_labeled(zone_row_, 0, 0, zone_);
    zone_row_.set_column_expands(1);
    for (std::size_t row = 0; row < inputs_.size(); ++row)
        put_labeled(rows_, 0, static_cast<std::int32_t>(row), inputs_[row]);
    rows_.set_column_expands(1);

    content().put(0, 0, projection_);
    content().put(0, zone_row, zone_row_);
    content().put(0, 2, rows_);
    content().set_row_expands(3);
    content().set_column_expands(0);

    projection_.on_select = [this](std::uint32_t index) { projection_chosen(index); };
    zone_.on_select = [this](std::uint32_t index) { zone_chosen(index); };
}

void proj_params::show_type() {
    show_projections();
    show_zones();
    for (labeled_number& input : inputs_) input.set_read_only(model_.type() == projection_type::zonal);
    show_parameters();
}

void proj_params::show_text_values() {
    if (model_.type() == projection_type::zonal || !model_.current()) return;
    for (std::size_t row = 0; row < inputs_.size(); ++row) {
        const auto value = (model_.params().*parameter_rows[row].parameter).get();
        if (value || (model_.current()->*parameter_rows[row].slot).used)
            inputs_[row].show(value.value_or(parameter_rows[row].initial));
    }
}

parameter_values proj_params::values() {
    parameter_values values{};
    for (std::size_t row = 0; row < inputs_.size(); ++row) values[row] = inputs_[row].value();
    return values;
}

void proj_params::show_projections() {
    const Tox_pj_proj_list& list = model_.projections();
    const bool zonal = model_.type() == projection_type::zonal;
    std::vector<item> items;
    const Tox_pj_proj* previous = nullptr;
    for (std::size_t i = 0; i < list.size(); ++i) {
        const Tox_pj_proj& record = list[i];
        // A zonal projection stands once in the list, for all its zones.
        if (zonal && previous && dialog::same_name(previous->name, record.name)) continue;
        previous = &record;
        items.push_back(
            {system_to_wide(record.name), zonal ? model_.zonal_record(record.name).id : record.id});
    }
    projection_.set_items(std::move(items));
    const Tox_pj_proj* current = model_.current();
    projection_.set_current_value(current ? std::optional(current->id) : std::nullopt);
}

void proj_params::show_zones() {
    const Tox_pj_proj* current = model_.current();
    const bool zonal = model_.type() == projection_type::zonal && current;
    content().set_row_shown(zone_row, zonal);
    std::vector<item> items;
    const Tox_pj_proj_list& list = model_.projections();
    for (std::size_t i = 0; zonal && i < list.size(); ++i)
        if (dialog::same_name(list[i].name, current->name))
            items.push_back({zone_caption(list[i]), static_cast<std::uint32_t>(list[i].zone.value)});
    zone_.set_items(std::move(items));
    zone_.set_current_value(zonal ? std::optional(static_cast<std::uint32_t>(current->zone.value))
                                  : std::nullopt);
}

void proj_params::show_parameters() {
    const Tox_pj_proj* current = model_.current();
    const bool zonal = model_.type() == projection_type::zonal;
    for (std::size_t row = 0; row < inputs_.size(); ++row) {
        const Tox_pj_dbl slot = current ? current->*parameter_rows[row].slot : Tox_pj_dbl{};
        labeled_number& input = inputs_[row];
        rows_.set_row_shown(static_cast<std::int32_t>(row), zonal ? slot.used : slot.needs_input);
        input.set_limits(slot.has_min ? slot.min : labeled_number::lowest,
                         slot.has_max ? slot.max : labeled_number::highest);
        if (slot.has_value)
            input.show(slot.value);
        else if (zonal)
            input.show(parameter_rows[row].initial);
    }
}

void proj_params::projection_chosen(std::uint32_t) {
    const auto id = projection_.current_value();
    if (!id) return;
    model_.choose_projection(*id);
    show_zones();
    show_parameters();
    if (on_choice) on_choice();
}

void proj_params::zone_chosen(std::uint32_t) {
    const auto zone = zone_.current_value();
    if (!zone) return;
    model_.choose_zone(static_cast<std::int32_t>(*zone));
    show_projections();  // the items of the other zonal projections stand for the same zone from now on
    show_zones();
    show_parameters();
    if (on_choice) on_choice();
}

}  // namespace ox::element
