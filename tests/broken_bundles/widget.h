#pragma once
/// The dialog: a label, the target, a choice and a button.

#include <cstring>

#include "fault.h"
#include "resources/text.h"
#include "run.h"
#include "toolkit/button.h"
#include "toolkit/dropdown.h"
#include "toolkit/input.h"
#include "toolkit/layouts.h"

namespace broken {

using ox::custom_pointer;

class caption_label final : public ox::toolkit::with_view<ox::label_impl> {
public:
    using with_view::changed;

    void query(const char* name, const void** table_out, void** object_out) override {
        const bool label = std::strncmp(name, "ox_label_interface_", 19) == 0;
        with_view::query(is(fault::answers_any_version) && label ? ox::label::name.c_str() : name, table_out,
                         object_out);
    }
    void visit_caption(custom_pointer string_visitor) override;
    void attach_view(custom_pointer view) override {
        if (!is(fault::keeps_first_view) || !this->view()) with_view::attach_view(view);
    }
};

class target_input final : public ox::toolkit::input {
public:
    void set_text(const wchar_t* text) override {
        lent_ = text;
        input::set_text(text);
    }
    void visit_text(custom_pointer string_visitor) override {
        if (is(fault::keeps_text) && lent_)
            ox::call<&ox::string_visitor_impl::visit>(string_visitor, lent_);
        else
            input::visit_text(string_visitor);
    }

private:
    const wchar_t* lent_ = nullptr;
};

class widget {
public:
    widget();
    ox::toolkit::grid_layout<4, 1>& element() { return root_; }
    bool apply();

private:
    std::vector<void*> scenes_ = profiles();
    caption_label label_;
    target_input target_;
    ox::toolkit::dropdown choice_;
    ox::toolkit::button button_{ox::text::load};
    ox::toolkit::grid_layout<4, 1> root_;
};

}  // namespace broken
