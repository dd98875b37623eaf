#include "projection/proj_params.h"

#include <utility>

#include "resources/text.h"
#include "support/encodings.h"

namespace ox::element {

namespace {

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

    projection_.on_select = [this](std::uint32_t) { projection_chosen(); };
    zone_.on_select = [this](std::uint32_t) { zone_chosen(); };
}

void proj_params::show_type() { show_all(numbers::of_record); }

void proj_params::show_text() { show_all(numbers::of_text); }

void proj_params::show_all(numbers from) {
    show_projections();
    show_zones();
    show_parameters(from);
}

parameter_values proj_params::values() {
    parameter_values values{};
    for (std::size_t row = 0; row < inputs_.size(); ++row) values[row] = inputs_[row].value();
    return values;
}

void proj_params::show_projections() {
    const Tox_pj_proj_list& list = model_.projections();
    std::vector<item> items;
    const Tox_pj_proj* previous = nullptr;
    for (std::size_t i = 0; i < list.size(); ++i) {
        const Tox_pj_proj& record = list[i];
        // A zonal projection stands once in the list, for all its zones.
        if (zonal() && previous && dialog::same_name(previous->name, record.name)) continue;
        previous = &record;
        items.push_back(
            {system_to_wide(record.name), zonal() ? model_.zonal_record(record.name).id : record.id});
    }
    const Tox_pj_proj* current = model_.current();
    projection_.set_items(std::move(items), current ? std::optional(current->id) : std::nullopt);
}

void proj_params::show_zones() {
    const Tox_pj_proj* current = zonal() ? model_.current() : nullptr;
    std::vector<item> items;
    std::optional<unsigned int> zone;
    if (current) {
        const Tox_pj_proj_list& list = model_.projections();
        for (std::size_t i = 0; i < list.size(); ++i)
            if (dialog::same_name(list[i].name, current->name))
                items.push_back({zone_caption(list[i]), static_cast<std::uint32_t>(list[i].zone.value)});
        zone = static_cast<std::uint32_t>(current->zone.value);
    }
    zone_.set_items(std::move(items), zone);
    content().set_row_shown(zone_row, zone.has_value());
}

void proj_params::show_parameters(numbers from) {
    // What a number or a grid is told may change what is current, so each row asks anew.
    const auto slot_of_row = [this](std::size_t row) {
        return model_.current() ? model_.current()->*parameter_rows[row].slot : Tox_pj_dbl{};
    };
    for (std::size_t row = 0; row < inputs_.size(); ++row) {
        const Tox_pj_dbl slot = slot_of_row(row);
        labeled_number& input = inputs_[row];
        const toolkit::in_one_step step(input);
        input.set_read_only(zonal());
        input.show(number_of(parameter_rows[row], from).value_or(input.value()),
                   slot.has_min ? slot.min : labeled_number::lowest,
                   slot.has_max ? slot.max : labeled_number::highest);
    }
    std::array<bool, parameter_rows.size()> shown{};
    for (std::size_t row = 0; row < shown.size(); ++row) {
        const Tox_pj_dbl slot = slot_of_row(row);
        shown[row] = zonal() ? slot.used : slot.needs_input;
    }
    rows_.set_rows_shown(shown);
}

std::optional<double> proj_params::number_of(const parameter_row& row, numbers from) const {
    const Tox_pj_proj* current = model_.current();
    const Tox_pj_dbl slot = current ? current->*row.slot : Tox_pj_dbl{};
    if (from == numbers::of_text && current && !zonal()) {
        const auto given = (model_.params().*row.parameter).get();
        if (given || slot.used) return given.value_or(row.initial);
    }
    if (slot.has_value) return slot.value;
    return zonal() ? std::optional(row.initial) : std::nullopt;
}

void proj_params::projection_chosen() {
    const auto id = projection_.current_value();
    if (!id) return;
    model_.choose_projection(*id);
    show_zones();
    show_parameters(numbers::of_record);
    on_choice();
}

void proj_params::zone_chosen() {
    const auto zone = zone_.current_value();
    if (!zone) return;
    model_.choose_zone(static_cast<std::int32_t>(*zone));
    show_all(numbers::of_record);  // the items of the other zonal projections stand for that zone from now on
    on_choice();
}

}  // namespace ox::element
