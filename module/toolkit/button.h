#pragma once

#include "border/interfaces/controls.h"
#include "border/interfaces/tools.h"
#include "toolkit/callback.h"
#include "toolkit/view.h"

namespace ox::toolkit {

/// A push button, with an optional menu that drops down from it.
class button final : public with_enabled<button_impl> {
public:
    explicit button(std::int32_t caption, callback<void()> on_click = {})
        : caption_(caption), on_click_(std::move(on_click)) {}

    void visit_image(custom_pointer bitmap_visitor) override { visit_picture_of(image_, bitmap_visitor); }
    void visit_caption(custom_pointer string_visitor) override { visit_text_of(caption_, string_visitor); }
    void visit_hint(custom_pointer string_visitor) override { visit_text_of(hint_, string_visitor); }
    void visit_menu(custom_pointer context_menu_visitor) override {
        if (menu_)
            call<&context_menu_visitor_impl::visit>(context_menu_visitor,
                                                    make_pointer<context_menu_impl>(*menu_));
    }
    bool flag_2() override { return flag_2_; }
    bool checked() override { return checked_; }
    bool flag_4() override { return flag_4_; }
    /// Every click inverts `checked`, also of plain buttons, which do not show it.
    void click() override {
        checked_ = !checked_;
        on_click_();
    }

    void set_on_click(callback<void()> on_click) { on_click_ = std::move(on_click); }
    void set_image(std::int32_t image) { update(image_, image); }
    void set_hint(std::int32_t hint) { update(hint_, hint); }
    void set_menu(context_menu_impl* menu) { update(menu_, menu); }  ///< not owned
    void set_checked(bool checked) { update(checked_, checked); }
    void set_flag_2(bool flag) { update(flag_2_, flag); }
    void set_flag_4(bool flag) { update(flag_4_, flag); }

private:
    std::int32_t caption_;
    std::int32_t hint_ = 0;
    std::int32_t image_ = 0;
    bool flag_2_ = false;
    bool checked_ = false;
    bool flag_4_ = false;
    callback<void()> on_click_;
    context_menu_impl* menu_ = nullptr;
};

}  // namespace ox::toolkit
