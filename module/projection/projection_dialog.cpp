#include "projection/projection_dialog.h"

#include "projection/crs_dialog.h"
#include "projection/projection_files.h"
#include "support/encodings.h"
#include "toolkit/docker.h"
#include "toolkit/modal_dialog.h"

namespace ox::dialog {

namespace {

enum command_id : std::uint32_t { save_command = 4133, load_command = 4134, epsg_command = 4135 };

constexpr std::int32_t details_row = 1;  // of the main grid: everything below type and buttons

/// The item index is the type.
constexpr std::int32_t type_captions[] = {text::type_undefined, text::type_geographic, text::type_usual,
                                          text::type_zonal};

}  // namespace

projection::projection() {
    build();
    std::vector<std::wstring> types;
    for (const std::int32_t each : type_captions) types.push_back(resource::string(each));
    type_.set_items(std::move(types), static_cast<std::uint32_t>(model_.type()));

    favourites_.current_text = [this] { return text(); };
    favourites_.apply_text = [this](const std::wstring& pj4) { set_text(pj4); };
    type_.on_select = [this](std::uint32_t index) { type_chosen(index); };
    parameters_.on_choice = [this] { favourites_.reselect(); };
    datum_.on_choice = [this] { ellipsoid_.show(); };
    buttons_.add(text::save, save_command);
    buttons_.add(text::load, load_command);
    buttons_.add(text::epsg, epsg_command);
    buttons_.on_command = [this](std::uint32_t chosen) { command(chosen); };
    set_text({});
}

void projection::build() {
    put_labeled(type_row_, 0, 0, type_);
    type_row_.set_column_expands(1);
    parameter_pages_.put(0, parameters_);
    parameter_pages_.put(1, no_parameters_);
    datum_column_.put(0, 0, datum_);
    datum_column_.put(0, 1, ellipsoid_);

    main_.put(0, 0, type_row_);
    main_.put(1, 0, buttons_);
    main_.put(0, details_row, parameter_pages_);
    main_.put(1, details_row, datum_column_);
    main_.set_row_expands(details_row);
    main_.set_column_expands(0);

    root_.put(0, 0, favourites_area_);
    root_.put(1, 0, main_);
    root_.set_row_expands(0);
    root_.set_column_expands(1);
}

void projection::set_text(const std::wstring& pj4) {
    model_.classify(wide_to_utf8(pj4));
    type_.set_current(static_cast<std::uint32_t>(model_.type()));
    parameters_.show_text();
    ellipsoid_.show();
    datum_.show();
    show_parts();
    favourites_.reselect();
}

std::wstring projection::text() {
    return utf8_to_wide(model_.compose(parameters_.values(), parameters_.zone()));
}

void projection::type_chosen(std::uint32_t index) {
    if (index >= std::size(type_captions)) return;
    model_.set_type(static_cast<projection_type>(index));
    parameters_.show_type();
    show_parts();
    favourites_.reselect();
}

void projection::show_parts() {
    parameter_pages_.set_current(model_.type() == projection_type::geographic ? 1 : 0);
    main_.set_row_shown(details_row, model_.type() != projection_type::undefined);
}

void projection::command(std::uint32_t chosen) {
    switch (chosen) {
        case save_command:
            if (const auto path = ask_save_projection_file(); !path.empty())
                save_projection_file(path, text());
            break;
        case load_command:
            if (const auto path = ask_open_projection_file(); !path.empty())
                set_text(load_projection_file(path));
            break;
        case epsg_command:
            if (const auto pj4 = ask_crs()) set_text(*pj4);
            break;
        default:
            break;
    }
}

std::optional<std::wstring> edit_projection(const std::wstring& pj4) {
    projection dialog;
    dialog.set_text(pj4);
    toolkit::button_box buttons(toolkit::commands(toolkit::command::apply, toolkit::command::close));
    buttons.on_apply = [] { return true; };
    toolkit::detail::dialog_docker docker(dialog);
    if (!util::show_modal<projection::id>(docker, buttons)) return std::nullopt;
    return dialog.text();
}

}  // namespace ox::dialog
