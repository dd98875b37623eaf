#pragma once

#include <string>

#include "border/interfaces/controls.h"
#include "toolkit/callback.h"
#include "toolkit/view.h"

namespace ox::toolkit {

/// A line of text. `on_change` is asked when the user has finished typing, and answers whether the text
/// is accepted.
class input : public with_enabled<input_impl> {
public:
    explicit input(std::int32_t caption = 0) : caption_(caption) {}

    void visit_text(custom_pointer string_visitor) override {
        call<&string_visitor_impl::visit>(string_visitor, text_.c_str());
    }
    void visit_caption(custom_pointer string_visitor) override { visit_text_of(caption_, string_visitor); }
    bool flag_2() override { return flag_2_; }
    bool flag_3() override { return flag_3_; }
    std::uint32_t value() override { return value_; }
    custom_pointer text_selection() override { return text_selection_; }
    void set_text(const wchar_t* text) override { update(text_, text ? text : L""); }
    bool commit() override {
        const std::wstring committed = text_;
        return !on_change || on_change(committed);
    }

    const std::wstring& text() const { return text_; }
    void set_flag_2(bool flag) { update(flag_2_, flag); }
    void set_flag_3(bool flag) { update(flag_3_, flag); }
    void set_value(std::uint32_t value) { update(value_, value); }
    /// "ox_text_selection_interface_0" of an object that outlives the input; empty for none.
    void set_text_selection(custom_pointer selection) { update(text_selection_, selection); }

    callback<bool(const std::wstring& text)> on_change;

private:
    std::wstring text_;
    std::int32_t caption_;
    custom_pointer text_selection_{};
    bool flag_2_ = false;
    bool flag_3_ = false;
    std::uint32_t value_ = 0;
};

}  // namespace ox::toolkit
