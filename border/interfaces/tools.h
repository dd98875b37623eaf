#pragma once
/// Commands in toolbars and context menus. [ui]

#include <cstdint>

#include "border/binding.h"

namespace ox {

/// [module implements]
struct action_tool_impl : binding<action_tool_impl, action_tool> {
    virtual void visit_image(custom_pointer /*bitmap_visitor*/) {}
    /// Further texts, one call of the visitor each.
    virtual void visit_extra_texts(custom_pointer /*string_visitor*/) {}
    virtual void visit_caption(custom_pointer /*string_visitor*/) {}
    virtual void visit_hint(custom_pointer /*string_visitor*/) {}
    virtual std::int32_t reserved() { return -1; }
    virtual void visit_long_text(custom_pointer /*string_visitor*/) {}
    virtual bool enabled() { return true; }
    virtual bool checked() { return true; }
    virtual void click() {}
    /// An empty view detaches the tool from its menu.
    virtual void attach_view(custom_pointer /*view*/) {}

    using table = operations<&action_tool_impl::visit_image, &action_tool_impl::visit_extra_texts,
                             &action_tool_impl::visit_caption, &action_tool_impl::visit_hint,
                             &action_tool_impl::reserved, &action_tool_impl::visit_long_text,
                             &action_tool_impl::enabled, &action_tool_impl::checked, &action_tool_impl::click,
                             &action_tool_impl::attach_view>;
};

/// A group of tools. [module implements]
struct tool_set_impl : binding<tool_set_impl, tool_set> {
    virtual void visit_tools(custom_pointer /*tool_set_visitor*/) {}
    virtual void attach_view(custom_pointer /*view*/) {}
    using table = operations<&tool_set_impl::visit_tools, &tool_set_impl::attach_view>;
};

/// Receives the tool sets of a toolbar or menu, and the tools of a set. [host implements]
struct tool_set_visitor_impl : binding<tool_set_visitor_impl, tool_set_visitor> {
    virtual void visit_tool_set(custom_pointer /*tool_set*/) {}
    virtual void visit_action_tool(const wchar_t* /*id*/, custom_pointer /*action_tool*/) {}
    /// The kinds of tool that this module does not build.
    virtual std::size_t other() { return 0; }
    using table = operations<&tool_set_visitor_impl::visit_tool_set, until<&tool_set_visitor_impl::other, 7>,
                             &tool_set_visitor_impl::visit_action_tool>;  // 7
};

/// [module implements]
struct toolbar_impl : binding<toolbar_impl, toolbar> {
    virtual void visit_tool_sets(custom_pointer /*tool_set_visitor*/) {}
    virtual void attach_view(custom_pointer /*view*/) {}
    using table = operations<&toolbar_impl::visit_tool_sets, &toolbar_impl::attach_view>;
};

/// [module implements]
struct context_menu_impl : binding<context_menu_impl, context_menu> {
    virtual void visit_tool_sets(custom_pointer /*tool_set_visitor*/) {}
    virtual std::size_t reserved() { return 0; }
    virtual void attach_view(custom_pointer /*view*/) {}
    using table = operations<&context_menu_impl::visit_tool_sets, &context_menu_impl::reserved,
                             &context_menu_impl::attach_view>;
};

struct context_menu_visitor_impl : binding<context_menu_visitor_impl, context_menu_visitor> {
    virtual void visit(custom_pointer /*context_menu*/) {}
    using table = operations<&context_menu_visitor_impl::visit>;
};

}  // namespace ox
