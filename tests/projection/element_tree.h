#pragma once
/// The elements below one as a host finds them.

#include <stdexcept>
#include <string_view>
#include <vector>

#include "border/interfaces/controls.h"
#include "border/interfaces/layouts.h"
#include "border/interfaces/outlines.h"
#include "border/interfaces/tools.h"

namespace ox {

/// In the order of the tree.
struct element_tree final : element_visitor_impl {
    struct node {
        const char* kind;
        custom_pointer element;
        void (*attach)(custom_pointer element, custom_pointer view);  ///< null for a table
    };
    std::vector<node> all;

    explicit element_tree(custom_pointer grid) { element_tree::grid_layout(grid); }
    explicit element_tree(grid_layout_impl& grid) : element_tree(make_pointer<grid_layout_impl>(grid)) {}

#define OX_ELEMENT(words, slot, caption) \
    void words(custom_pointer element) override { add<words##_impl>(caption, element); }
#include "border/element_kinds.inc"
#undef OX_ELEMENT

    /// Number `index` of a kind.
    const node& find(std::string_view kind, int index = 0) const {
        for (const node& each : all)
            if (each.kind == kind && index-- == 0) return each;
        throw std::out_of_range("no such element");
    }

private:
    template <class Impl>
    void add(const char* kind, custom_pointer element) {
        all.push_back({kind, element, nullptr});
        if constexpr (!std::is_same_v<Impl, outline_impl>)
            all.back().attach = [](custom_pointer e, custom_pointer view) {
                call<&Impl::attach_view>(e, view);
            };
        const custom_pointer self = make_pointer<element_visitor_impl>(*this);
        if constexpr (std::is_same_v<Impl, grid_layout_impl>) {
            const int columns = call<&Impl::column_count>(element);
            for (int i = 0; i < columns * call<&Impl::row_count>(element); ++i)
                call<&Impl::visit_cell>(element, i % columns, i / columns, self);
        } else if constexpr (std::is_same_v<Impl, stack_layout_impl>) {
            for (std::uint32_t i = 0; i < call<&Impl::child_count>(element); ++i)
                call<&Impl::visit_child>(element, i, self);
        } else if constexpr (std::is_same_v<Impl, groupbox_impl>) {
            call<&Impl::visit_content>(element, self);
        }
    }
};

}  // namespace ox
