#include "menu.h"

#include <stdexcept>

#include "fault.h"
#include "resources/text.h"

namespace broken {

menu_entries::~menu_entries() {
    for (const entry* each : own_) delete each;
}

void menu_entries::visit_tools(custom_pointer tool_set_visitor) {
    if (!tool_set_visitor) return;
    for (const std::int32_t caption : {ox::text::load, ox::text::save}) {
        own_.push_back(new entry(*this, caption));
        ox::call<&ox::tool_set_visitor_impl::visit_action_tool>(
            tool_set_visitor, L"entry", ox::make_pointer<ox::action_tool_impl>(*own_.back()));
    }
}

void menu_entries::entry::visit_extra_texts(custom_pointer string_visitor) {
    if (is(fault::throws_inside) && string_visitor) throw std::runtime_error("inside");
}

void menu_entries::entry::attach_view(custom_pointer view) {
    ox::toolkit::action_tool::attach_view(view);
    if (menu_ && !(view && is(fault::ends_menu_entries))) {
        menu_->own_.remove(this);
        menu_ = nullptr;
    }
    if (!view) delete this;
}

}  // namespace broken
