#pragma once
/// The controls that the host draws. [ui] [module implements]
/// 1. host reads what there is to draw   2. attaches its view, which is kept until another is attached
/// 3. is told of changes by the view, once per change, and reads again

#include <cstdint>

#include "border/binding.h"

namespace ox {

struct label_impl : binding<label_impl, label> {
    virtual bool enabled() { return true; }
    virtual void visit_caption(custom_pointer /*string_visitor*/) {}
    virtual void attach_view(custom_pointer /*view*/) {}

    using table = operations<&label_impl::enabled, &label_impl::visit_caption, &label_impl::attach_view>;
};

struct button_impl : binding<button_impl, button> {
    virtual void visit_image(custom_pointer /*bitmap_visitor*/) {}
    virtual void visit_caption(custom_pointer /*string_visitor*/) {}
    virtual void visit_hint(custom_pointer /*string_visitor*/) {}
    virtual void visit_menu(custom_pointer /*context_menu_visitor*/) {}
    virtual bool enabled() { return true; }
    virtual bool flag_2() { return false; }
    virtual bool checked() { return false; }
    virtual bool flag_4() { return false; }
    virtual void click() {}
    virtual void attach_view(custom_pointer /*view*/) {}

    using table = operations<&button_impl::visit_image, &button_impl::visit_caption, &button_impl::visit_hint,
                             &button_impl::visit_menu, &button_impl::enabled, &button_impl::flag_2,
                             &button_impl::checked, &button_impl::flag_4, &button_impl::click,
                             &button_impl::attach_view>;
};

struct input_impl : binding<input_impl, input> {
    virtual void visit_text(custom_pointer /*string_visitor*/) {}
    virtual void visit_caption(custom_pointer /*string_visitor*/) {}
    virtual bool enabled() { return true; }
    virtual bool flag_2() { return false; }
    virtual bool flag_3() { return false; }
    virtual std::uint32_t value() { return 0; }
    virtual custom_pointer text_selection() { return {}; }
    virtual void set_text(const wchar_t* /*text*/) {}
    /// 1. host sets the text as the user types   2. commits when the user has finished: was it accepted?
    virtual bool commit() { return false; }
    virtual void attach_view(custom_pointer /*view*/) {}

    using table =
        operations<&input_impl::visit_text, &input_impl::visit_caption, &input_impl::enabled,
                   &input_impl::flag_2, &input_impl::flag_3, &input_impl::value, &input_impl::text_selection,
                   &input_impl::set_text, &input_impl::commit, &input_impl::attach_view>;
};

struct floating_input_impl : binding<floating_input_impl, floating_input> {
    virtual double value() { return 0; }
    virtual double minimum() { return 0; }
    virtual double maximum() { return 0; }
    virtual double decimals() { return 0; }
    virtual void visit_caption(custom_pointer /*string_visitor*/) {}
    virtual bool enabled() { return true; }
    virtual bool read_only() { return false; }
    /// False when the value was refused; the old one then stands.
    virtual bool set_value(double /*proposed*/) { return false; }
    virtual std::size_t reserved() { return 0; }
    virtual void attach_view(custom_pointer /*view*/) {}

    using table = operations<&floating_input_impl::value, &floating_input_impl::minimum,
                             &floating_input_impl::maximum, &floating_input_impl::decimals,
                             &floating_input_impl::visit_caption, &floating_input_impl::enabled,
                             &floating_input_impl::read_only, &floating_input_impl::set_value,
                             until<&floating_input_impl::reserved, 12>, &floating_input_impl::attach_view>;
};

struct dropdown_impl : binding<dropdown_impl, dropdown> {
    /// Index of a drop-down in which nothing is current.
    static constexpr std::uint32_t no_item = 0xFFFFFFFF;

    virtual std::uint32_t item_count() { return 0; }
    virtual void visit_item(std::uint32_t /*index*/, custom_pointer /*string_visitor*/) {}
    virtual void reserved() {}
    virtual void visit_text(custom_pointer /*string_visitor*/) {}
    virtual std::uint32_t value() { return 0; }
    virtual bool enabled() { return true; }
    virtual std::uint32_t current() { return no_item; }
    virtual void select(std::uint32_t /*index*/) {}
    virtual void attach_view(custom_pointer /*view*/) {}

    using table = operations<&dropdown_impl::item_count, &dropdown_impl::visit_item, &dropdown_impl::reserved,
                             &dropdown_impl::visit_text, &dropdown_impl::value, &dropdown_impl::enabled,
                             &dropdown_impl::current, &dropdown_impl::select, &dropdown_impl::attach_view>;
};

struct multiline_output_impl : binding<multiline_output_impl, multiline_output> {
    virtual void visit_text(custom_pointer /*string_visitor*/) {}
    virtual void visit_caption(custom_pointer /*string_visitor*/) {}
    /// Copies the element's font into a font object of the host; false when it has none.
    virtual bool copy_font(void* /*destination_font*/) { return false; }
    virtual bool reserved() { return false; }
    virtual bool enabled() { return true; }
    virtual std::uint32_t first_value() { return 0; }
    virtual std::uint32_t second_value() { return 0; }
    virtual void attach_view(custom_pointer /*view*/) {}

    using table = operations<&multiline_output_impl::visit_text, &multiline_output_impl::visit_caption,
                             &multiline_output_impl::copy_font, &multiline_output_impl::reserved,
                             &multiline_output_impl::enabled, &multiline_output_impl::first_value,
                             &multiline_output_impl::second_value, &multiline_output_impl::attach_view>;
};

}  // namespace ox
