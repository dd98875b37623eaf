#pragma once

#include <functional>
#include <string>

#include "border/interfaces/controls.h"
#include "toolkit/view.h"

namespace ox::toolkit {

/// A line of text. `on_change` is asked when the user has finished typing, and answers whether the text
/// is accepted.
class input : public with_view<input_impl> {
public:
    explicit input(std::int32_t caption = 0) : caption_(caption) {}

    void visit_text(custom_pointer string_visitor) override {
        call<&string_visitor_impl::visit>(string_visitor, text_.c_str());
    }
    void visit_caption(custom_pointer string_visitor) override { visit_text_of(caption_, string_visitor); }
    bool enabled() override { return enabled_; }
    bool flag_2() override { return flag_2_; }
    bool flag_3() override { return flag_3_; }
    std::uint32_t value() override { return value_; }
    custom_pointer text_selection() override { return text_selection_; }
    void set_text(const wchar_t* text) override { update(text_, std::wstring(text ? text : L"")); }
    bool commit() override { return !on_change || on_change(text_); }

    const std::wstring& text() const { return text_; }
    void set_enabled(bool enabled) { update(enabled_, enabled); }

    std::function<bool(const std::wstring& text)> on_change;

private:
    std::wstring text_;
    std::int32_t caption_;
    custom_pointer text_selection_{};  ///< "ox_text_selection_interface_0", empty when there is none
    bool enabled_ = true;
    bool flag_2_ = false;
    bool flag_3_ = false;
    std::uint32_t value_ = 0;
};

}  // namespace ox::toolkit
