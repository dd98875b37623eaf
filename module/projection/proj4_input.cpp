#include "projection/proj4_input.h"

#include "border/host_api/oxk_proj4_d2.h"
#include "projection/projection_dialog.h"
#include "projection/projection_files.h"
#include "resources/text.h"
#include "support/string_adapter.h"

namespace ox::element {

namespace detail {

proj4_input_toolset::menu_action::menu_action(proj4_input_toolset& menu, std::size_t index)
    : toolkit::action_tool(picture::none, text::none, text::none), menu_(&menu), index_(index) {
    menu.live_.insert(this);
}

proj4_input_toolset::menu_action::~menu_action() {
    if (menu_) menu_->live_.erase(this);
}

void proj4_input_toolset::menu_action::visit_caption(custom_pointer string_visitor) {
    if (!menu_) return;
    const auto& suggestions = menu_->owner_.suggestions();
    if (index_ < suggestions.size())
        call<&string_visitor_impl::visit>(string_visitor, suggestions[index_].first.c_str());
}

void proj4_input_toolset::menu_action::click() {
    if (menu_) menu_->owner_.choose_suggestion(index_);
}

void proj4_input_toolset::menu_action::menu_ends() {
    if (view())
        menu_ = nullptr;
    else
        delete this;
}

proj4_input_toolset::~proj4_input_toolset() {
    for (menu_action* each : std::exchange(live_, {})) each->menu_ends();
}

void proj4_input_toolset::visit_tools(custom_pointer tool_set_visitor) {
    if (!tool_set_visitor) return;
    const toolkit::life::watch alive(own_life());
    for (std::size_t i = 0; alive && i < owner_.suggestions().size(); ++i) {
        auto* action = new toolkit::reattachable<menu_action>(*this, i);  // `live_` knows it
        const std::wstring id = L"ox_common_proj4_input_menu_" + std::to_wstring(i);
        call<&tool_set_visitor_impl::visit_action_tool>(tool_set_visitor, id.c_str(),
                                                        make_pointer<action_tool_impl>(*action));
    }
}

}  // namespace detail

proj4_input::proj4_input()
    : save_(text::save, [this] { save(); }),
      load_(text::load, [this] { load(); }),
      dialog_(basic_text::projection_dialog, [this] { edit(); }),
      suggest_(basic_text::suggestions),
      menu_(*this) {
    buttons_.put(0, 0, save_);
    buttons_.put(1, 0, load_);
    buttons_.put(2, 0, dialog_);
    buttons_.put(3, 0, suggest_);
    buttons_.set_column_expands(4);
    suggest_.set_menu(&menu_);

    put(0, 0, description_);
    put(0, 1, buttons_);
    set_column_expands(0);
    set_row_expands(0);
    describe();
}

const std::wstring& proj4_input::text() const {
    static const std::wstring unset;
    return text_ ? *text_ : unset;
}

void proj4_input::set_text(std::optional<std::wstring> pj4) {
    text_ = std::move(pj4);
    describe();
}

void proj4_input::choose_suggestion(std::size_t index) {
    if (index < suggestions_.size()) user_sets(suggestions_[index].second);
}

void proj4_input::save() const {
    if (const std::wstring path = ask_save_projection_file(); !path.empty())
        save_projection_file(path, text());
}

void proj4_input::load() {
    const toolkit::life::watch alive(own_life());
    const std::wstring path = ask_open_projection_file();
    if (!alive || path.empty()) return;
    if (std::wstring pj4 = load_projection_file(path); !pj4.empty()) user_sets(std::move(pj4));
}

void proj4_input::edit() {
    const toolkit::life::watch alive(own_life());
    if (auto pj4 = dialog::edit_projection(text()); alive && pj4) user_sets(*std::move(pj4));
}

void proj4_input::user_sets(std::wstring pj4) {
    const toolkit::life::watch alive(own_life());
    set_text(std::move(pj4));
    if (alive) changed_.fire();
}

void proj4_input::describe() {
    description_.set_text(text_ ? describe_proj4(*text_) : resource::string(basic_text::no_projection));
}

proj4_output::proj4_output() {
    put(0, 0, description_);
    set_column_expands(0);
    set_row_expands(0);
}

void proj4_output::set_text(const std::wstring& pj4) { description_.set_text(describe_proj4(pj4)); }

std::wstring describe_proj4(const std::wstring& pj4) {
    return adapted_text([&](void* adapter) { ox_pj4_get_text_w(pj4.c_str(), adapter); });
}

}  // namespace ox::element
