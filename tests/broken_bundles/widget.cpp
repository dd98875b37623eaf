#include "widget.h"

namespace broken {

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
    if (is(fault::one_language))
        ox::call<visit>(string_visitor, L"Target");
    else
        ox::toolkit::visit_text_of(ox::text::destination_projection, string_visitor);
}

widget::widget() {
    target_.on_change = [this](const std::wstring&) {
        label_.changed();
        return true;
    };
    choice_.set_items({L"one", L"two"}, 0);
    root_.put(0, 0, label_);
    root_.put(0, 1, target_);
    root_.put(0, 2, choice_);
    root_.put(0, 3, button_);
}

bool widget::apply() {
    run(scenes_, target_.text());
    return false;
}

}  // namespace broken
