#pragma once

#include <functional>

#include "border/interfaces/controls.h"
#include "border/interfaces/tools.h"
#include "toolkit/view.h"

namespace ox::toolkit {

/// A push button, with an optional menu that drops down from it.
class button final : public with_view<button_impl> {
public:
    explicit button(std::int32_t caption, std::function<void()> on_click = {})
        : caption_(caption), on_click_(std::move(on_click)) {}

    void visit_image(custom_pointer bitmap_visitor) override { visit_picture_of(image_, bitmap_visitor); }
    void visit_caption(custom_pointer string_visitor) override { visit_text_of(caption_, string_visitor); }
    void visit_hint(custom_pointer string_visitor) override { visit_text_of(hint_, string_visitor); }
    void visit_menu(custom_pointer context_menu_visitor) override {
        if (menu_)
            call<&context_menu_visitor_impl::visit>(context_menu_visitor,
                                                    make_pointer<context_menu_impl>(*menu_));
    }
    bool enabled() override { return enabled_; }
    bool flag_2() override { return flag_2_; }
    bool checked() override { return checked_; }
    bool flag_4() override { return flag_4_; }
    /// Every click inverts `checked`, also of plain buttons, which do not show it.
    void click() override {
        checked_ = !checked_;
        if (on_click_) on_click_();
    }

    void set_on_click(std::function<void()> on_click) { on_click_ = std::move(on_click); }
    void set_menu(context_menu_impl* menu) { menu_ = menu; }  ///< not owned
    void set_enabled(bool enabled) { update(enabled_, enabled); }

private:
    std::int32_t caption_;
    std::int32_t hint_ = 0;
    std::int32_t image_ = 0;
    bool enabled_ = true;
    bool flag_2_ = false;
    bool checked_ = false;
    bool flag_4_ = false;
    std::function<void()> on_click_;
    context_menu_impl* menu_ = nullptr;
};

}  // namespace ox::toolkit
