#pragma once
/// A menu of two entries. One that the host has given a view is the host's; the others end with the menu.

#include <list>

#include "toolkit/tool.h"
#include "toolkit/toolbar.h"

namespace broken {

using ox::custom_pointer;

class menu_entries final : public ox::toolkit::with_view<ox::tool_set_impl> {
public:
    menu_entries() = default;
    menu_entries(const menu_entries&) = delete;
    menu_entries& operator=(const menu_entries&) = delete;
    ~menu_entries();
    void visit_tools(custom_pointer tool_set_visitor) override;

private:
    class entry final : public ox::toolkit::action_tool {
    public:
        entry(menu_entries& menu, std::int32_t caption)
            : ox::toolkit::action_tool(0, caption, caption), menu_(&menu) {}
        void visit_extra_texts(custom_pointer string_visitor) override;
        void attach_view(custom_pointer view) override;

    private:
        menu_entries* menu_;  ///< null for an entry of the host's
    };

    std::list<entry*> own_;
};

using menu = ox::toolkit::toolbar<menu_entries, ox::context_menu_impl>;

}  // namespace broken
