#pragma once
/// What a bundle hands out, as pointers with a known kind, and the walk that finds all of it behind a dialog.

#include <optional>
#include <string>
#include <type_traits>
#include <vector>

#include "border/call.h"
#include "border/interfaces/controls.h"
#include "border/interfaces/dialogs.h"
#include "border/interfaces/layouts.h"
#include "border/interfaces/lifetime.h"
#include "border/interfaces/outlines.h"
#include "border/interfaces/services.h"
#include "border/interfaces/tools.h"

namespace oxcheck {

using ox::custom_pointer;

/// Every interface of which a bundle may hand out objects; one call of `use` per list.
template <class Use>
constexpr void with_all_kinds(Use&& use) {
    use.template operator()<
#define OX_ELEMENT(words, slot, caption) ox::words##_impl,
#include "border/element_kinds.inc"
#undef OX_ELEMENT
        ox::docker_impl, ox::button_box_impl, ox::outline_checks_impl, ox::string_outline_column_impl,
        ox::bitmap_outline_column_impl, ox::context_menu_impl, ox::tool_set_impl, ox::action_tool_impl,
        ox::utility_service_impl, ox::modal_dialog_service_impl, ox::utility_impl, ox::modal_dialog_impl,
        ox::service_factory_impl, ox::referent_impl>();
}

/// Name of the interface that a binding class binds.
template <class I, class Tag>
Tag tag_of(const ox::binding<I, Tag>*);
template <class I>
constexpr const char* name_of() {
    return decltype(tag_of(static_cast<const I*>(nullptr)))::name.c_str();
}

struct element {
    const char* interface;  ///< one of the names of `with_all_kinds`
    custom_pointer pointer;
    std::wstring id;           ///< of tools and columns
    custom_pointer outline{};  ///< of an outline's parts, and the outline itself
    bool in_menu = false;      ///< a tool made for the host, which ends it by attaching an empty view

    template <class I>
    bool is() const {
        return interface == name_of<I>();
    }
};

template <class I>
element make_element(custom_pointer pointer) {
    return {name_of<I>(), pointer, {}};
}

/// Calls `use.operator()<I>()` for the binding class of the element.
template <class Use>
void with_kind_of(const element& each, Use&& use) {
    with_all_kinds([&]<class... I>() { ((each.is<I>() ? use.template operator()<I>() : void()), ...); });
}

/// Everything behind a dialog: the docker, its tree in reading order, the button box. Tools of menus are left
/// out, as they are made anew each time a menu opens.
std::vector<element> walk(custom_pointer docker, custom_pointer button_box);

/// The tools that a menu makes for the host when it opens.
std::vector<element> menu_tools(custom_pointer context_menu);

/// The tools of a menu while it is open.
class open_menu {
public:
    explicit open_menu(custom_pointer context_menu) : tools_(menu_tools(context_menu)) {}
    ~open_menu();  ///< detaches them, which ends them
    open_menu(const open_menu&) = delete;
    open_menu& operator=(const open_menu&) = delete;
    const std::vector<element>& tools() const { return tools_; }

private:
    std::vector<element> tools_;
};

/// What stands in a cell of a grid: one element, or nothing.
std::vector<element> cell_of(custom_pointer grid, std::int32_t column, std::int32_t row);

/// What an outline shows in place of a column: one, as a rule.
std::vector<element> column_of(custom_pointer outline, std::uint32_t index);

/// The row that is an outline's current one, if there is any.
std::optional<std::uint32_t> current_row_of(custom_pointer outline);

/// Attaches a view to an element of a kind that has one; a button box has two.
void attach_views(const element& each, custom_pointer view, custom_pointer second_of_box);

/// The captions and hints that an element shows, without the content that users change.
std::vector<std::wstring> captions_of(const element& each);

/// Number of rows of the outline that the element belongs to; 0 of any other.
std::uint32_t rows_of(const element& each);

}  // namespace oxcheck
