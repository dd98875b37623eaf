#pragma once

#include <memory>
#include <string>

#include "border/host_api/oxk_basic.h"
#include "border/interfaces/controls.h"
#include "toolkit/view.h"

namespace ox::toolkit {

/// Text of several lines that the user reads.
class multiline_output final : public with_enabled<multiline_output_impl> {
public:
    void visit_text(custom_pointer string_visitor) override {
        call<&string_visitor_impl::visit>(string_visitor, text_.c_str());
    }
    void visit_caption(custom_pointer string_visitor) override { visit_text_of(caption_, string_visitor); }
    bool copy_font(void* destination_font) override {
        if (!font_) return false;
        ox_fnt_type_assign(destination_font, font_.get());
        return true;
    }
    std::uint32_t first_value() override { return first_value_; }
    std::uint32_t second_value() override { return second_value_; }
    /// Carried for the host, which has no slot to read it yet.
    std::uint32_t third_value() const { return third_value_; }

    void set_text(std::wstring text) { update(text_, std::move(text)); }
    void set_caption(std::int32_t caption) { update(caption_, caption); }
    void set_first_value(std::uint32_t value) { update(first_value_, value); }
    void set_second_value(std::uint32_t value) { update(second_value_, value); }
    void set_third_value(std::uint32_t value) { third_value_ = value; }
    /// Takes over a font object of the host; null for none.
    void set_font(void* font) {
        if (font == font_.get()) return;
        font_.reset(font);
        changed();
    }

private:
    struct destroy_font {
        void operator()(void* font) const { ox_fnt_type_destroy(font); }
    };

    std::wstring text_;
    std::int32_t caption_ = 0;
    std::uint32_t first_value_ = 20;
    std::uint32_t second_value_ = 7;
    std::uint32_t third_value_ = 0xFF000000;
    std::unique_ptr<void, destroy_font> font_;
};

}  // namespace ox::toolkit
