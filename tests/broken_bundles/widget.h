#pragma once
/// The dialog: a label and the target, a choice, the scenes, a button with a menu.

#include "fault.h"
#include "menu.h"
#include "resources/text.h"
#include "run.h"
#include "table.h"
#include "toolkit/button.h"
#include "toolkit/input.h"
#include "toolkit/layouts.h"

namespace broken {

using ox::custom_pointer;

/// Enabled while there is a target.
class caption_label final : public ox::label_impl {
public:
    caption_label();
    void query(const char* name, const void** table_out, void** object_out) override;
    custom_pointer polymorphic() override;
    bool enabled() override { return enabled_; }
    void visit_caption(custom_pointer string_visitor) override;
    void attach_view(custom_pointer view) override {
        if (!is(fault::keeps_first_view) || !view_) view_ = view;
    }

    void enable(bool enabled);
    custom_pointer pointer();

private:
    void changed() const { ox::call<&ox::element_view_slots::changed>(view_); }

    custom_pointer view_{};
    bool enabled_ = false;
    bool second_;  ///< has the other table
};

class target_input final : public ox::toolkit::input {
public:
    void set_text(const wchar_t* text) override;
    void visit_text(custom_pointer string_visitor) override;

private:
    const wchar_t* lent_ = nullptr;
};

class choice final : public ox::dropdown_impl {
public:
    std::uint32_t item_count() override { return 2; }
    void visit_item(std::uint32_t index, custom_pointer string_visitor) override {
        ox::call<&ox::string_visitor_impl::visit>(string_visitor, index == 0 ? L"one" : L"two");
    }
    std::uint32_t current() override { return is(fault::current_beyond) ? item_count() : current_; }
    void select(std::uint32_t index) override { current_ = index; }

private:
    std::uint32_t current_ = no_item;
};

class root final : public ox::toolkit::grid_layout<3, 2> {
public:
    explicit root(caption_label& label) : label_(label) {}
    void visit_cell(std::int32_t column, std::int32_t row, custom_pointer element_visitor) override {
        if (column == 0 && row == 0)
            ox::call<&ox::element_visitor_impl::label>(element_visitor, label_.pointer());
        else
            grid_layout::visit_cell(column, row, element_visitor);
    }

private:
    caption_label& label_;
};

class widget {
public:
    widget();
    root& element() { return root_; }
    bool apply();

private:
    std::vector<void*> scenes_ = profiles();
    caption_label label_;
    target_input target_;
    choice choice_;
    scene_table table_{scenes_};
    menu menu_;
    ox::toolkit::button button_{ox::text::load};
    root root_{label_};
};

}  // namespace broken
