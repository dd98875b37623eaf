#include "shell/dialogs.h"

#include <utility>

#include "shell/host_strings.h"
#include "shell/values.h"

namespace oxhost::shell {

namespace {

button_role role_of(const std::string& caption) {
    if (caption == text_of(host_string::apply) || caption == text_of(host_string::yes))
        return button_role::accept;
    if (caption == text_of(host_string::close) || caption == text_of(host_string::no))
        return button_role::reject;
    return caption == text_of(host_string::help) ? button_role::help : button_role::other;
}

}  // namespace

open_dialog::open_dialog(std::string id, ox::custom_pointer docker, ox::custom_pointer button_box)
    : id_(std::move(id)),
      docker_(docker),
      button_box_(button_box),
      root_(std::make_unique<node>(node_kind::grid_layout, ox::call<&ox::docker_impl::element>(docker))) {
    ox::call<&ox::button_box_impl::attach_first_view>(button_box_,
                                                      ox::make_pointer<ox::element_view_slots>(*this));
}

open_dialog::~open_dialog() {
    ox::call<&ox::button_box_impl::attach_first_view>(button_box_, ox::custom_pointer{});
}

std::string open_dialog::caption() const { return read_utf8<&ox::docker_impl::visit_caption>(docker_); }

std::vector<dialog_button> open_dialog::buttons() const {
    std::vector<dialog_button> buttons;
    const std::int32_t count = ox::call<&ox::button_box_impl::count>(button_box_);
    const std::int32_t preferred = ox::call<&ox::button_box_impl::default_index>(button_box_);
    for (std::int32_t i = 0; i < count; ++i) {
        std::string caption = read_utf8<&ox::button_box_impl::visit_caption>(button_box_, i);
        button_role role = role_of(caption);
        if (role == button_role::other && i == preferred) role = button_role::accept;
        buttons.push_back(
            {std::move(caption), ox::call<&ox::button_box_impl::enabled>(button_box_, i), role});
    }
    return buttons;
}

bool open_dialog::press(std::size_t index) {
    const auto all = buttons();
    if (index >= all.size() || !all[index].enabled) return false;
    const bool closes = ox::call<&ox::button_box_impl::click>(button_box_, static_cast<std::int32_t>(index));
    if (closes) accepted_ = all[index].role == button_role::accept;
    return closes;
}

void open_dialog::changed() {
    if (on_buttons_changed) on_buttons_changed();
}

class dialog_desk::place final : public ox::dialog_host_impl {
public:
    place(dialog_desk& desk, std::string id) : desk_(desk), id_(std::move(id)) {}

    void ask_file(std::int32_t mode, const wchar_t* filter, ox::custom_pointer string_visitor) override {
        desk_.ask_file({mode == save_file, to_utf8(filter)}, string_visitor);
    }
    bool show_modal(ox::custom_pointer docker, ox::custom_pointer button_box) override {
        return desk_.show(id_, docker, button_box);
    }

private:
    dialog_desk& desk_;
    std::string id_;
};

ox::custom_pointer dialog_desk::host_of(const std::string& dialog_id) {
    auto& found = places_[dialog_id];
    if (!found) found = std::make_shared<place>(*this, dialog_id);
    return ox::make_pointer<ox::dialog_host_impl>(*found);
}

void dialog_desk::rethrow() {
    if (failure_) std::rethrow_exception(std::exchange(failure_, nullptr));
}

bool dialog_desk::show(const std::string& id, ox::custom_pointer docker, ox::custom_pointer button_box) {
    if (failure_ || !docker) return false;
    open_dialog dialog(id, docker, button_box);
    open_.push_back(&dialog);
    try {
        user_.serve(dialog);
    } catch (...) {
        dialog.dismiss();
        failure_ = std::current_exception();
    }
    open_.pop_back();
    return dialog.accepted();
}

void dialog_desk::ask_file(const file_question& question, ox::custom_pointer string_visitor) {
    if (failure_) return;
    try {
        if (const auto chosen = user_.choose_file(question))
            ox::call<&ox::string_visitor_impl::visit>(string_visitor, to_wide(chosen->string()).c_str());
    } catch (...) {
        failure_ = std::current_exception();
    }
}

}  // namespace oxhost::shell
