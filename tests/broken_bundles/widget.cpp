#include "widget.h"

#include <cstring>

#include "framework/local_factory.h"

namespace broken {

caption_label::caption_label() {
    static int labels = 0;
    second_ = is(fault::second_table) && ++labels % 2 == 0;
}

custom_pointer caption_label::pointer() {
    static const auto copy = ox::detail::table<ox::label_impl>;
    return {second_ ? &copy : ox::table_of<ox::label_impl>(), static_cast<ox::label_impl*>(this)};
}

void caption_label::query(const char* name, const void** table_out, void** object_out) {
    const bool label = std::strncmp(name, "ox_label_interface_", 19) == 0;
    if (is(fault::denies_its_name) && label) return;
    label_impl::query(is(fault::answers_any_version) && label ? ox::label::name.c_str() : name, table_out,
                      object_out);
    if (*table_out) *table_out = pointer().table;
}

custom_pointer caption_label::polymorphic() {
    return is(fault::no_polymorphic) ? custom_pointer{} : label_impl::polymorphic();
}

void caption_label::visit_caption(custom_pointer string_visitor) {
    constexpr auto visit = &ox::string_visitor_impl::visit;
    static custom_pointer kept{};
    if (is(fault::keeps_visitor)) {
        ox::call<visit>(kept, L"too late");
        kept = string_visitor;
    }
    if (is(fault::trusts_visitors)) {
        using slot = void (*)(const void*, void*, const wchar_t*);
        static_cast<const slot*>(string_visitor.table)[1](string_visitor.table, string_visitor.object, L"");
    }
    if (is(fault::asks_for_host_texts))
        ox::call<&ox::localizer_impl::visit_string>(ox::current_localizer(), std::uint32_t{0},
                                                    string_visitor);
    if (is(fault::one_language))
        ox::call<visit>(string_visitor, L"Target");
    else
        ox::toolkit::visit_text_of(ox::text::destination_projection, string_visitor);
}

void caption_label::enable(bool enabled) {
    if (enabled == enabled_ && !is(fault::notifies_idly)) return;
    if (is(fault::notifies_early)) changed();
    enabled_ = enabled;
    if (!is(fault::notifies_early)) changed();
    if (is(fault::notifies_twice)) changed();
}

void target_input::set_text(const wchar_t* text) {
    lent_ = text;
    const std::wstring copied = text || is(fault::trusts_texts) ? text : L"";
    input::set_text(copied.c_str());
}

void target_input::visit_text(custom_pointer string_visitor) {
    if (is(fault::keeps_text) && lent_)
        ox::call<&ox::string_visitor_impl::visit>(string_visitor, lent_);
    else
        input::visit_text(string_visitor);
}

widget::widget() {
    target_.on_change = [this](const std::wstring& text) {
        label_.enable(!text.empty());
        return true;
    };
    button_.set_menu(&menu_);
    root_.put(1, 0, target_);
    root_.put(1, 1, choice_);
    root_.put(0, 2, table_);
    root_.put(1, 2, button_);
}

bool widget::apply() {
    run(scenes_, target_.text());
    return false;
}

}  // namespace broken
