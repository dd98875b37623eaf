#include "oxcheck/stage/lent.h"
#include "oxcheck/tree/element.h"

namespace oxcheck {

namespace {

/// Receives one element in the slot of its kind.
struct element_sink final : ox::element_visitor_impl, lent_object {
    using interface = ox::element_visitor_impl;
    std::vector<element> all;

    template <class I>
    void add(custom_pointer pointer) {
        if (!late("an element visitor")) all.push_back(make_element<I>(pointer));
    }
#define OX_ELEMENT(words, slot, caption) \
    void words(custom_pointer p) override { add<ox::words##_impl>(p); }
#include "border/element_kinds.inc"
#undef OX_ELEMENT
};

class walker {
public:
    std::vector<element> found;

    void add(const element& each) {
        found.push_back(each);
        const custom_pointer p = each.pointer;
        if (each.is<ox::grid_layout_impl>()) add_cells(p);
        if (each.is<ox::stack_layout_impl>()) add_pages(p);
        if (each.is<ox::groupbox_impl>())
            add_visited([p](custom_pointer v) { ox::call<&ox::groupbox_impl::visit_content>(p, v); });
        if (each.is<ox::toolbar_impl>()) add_tools(p);
        if (each.is<ox::outline_impl>()) add_outline(found.size() - 1);
        if (each.is<ox::button_impl>()) add_menu(p);
    }

private:
    template <class Visit>
    void add_visited(Visit visit) {
        lending<element_sink> sink;
        visit(sink.pointer());
        for (const element& each : sink->all) add(each);
    }

    void add_cells(custom_pointer grid) {
        const std::int32_t columns = ox::call<&ox::grid_layout_impl::column_count>(grid);
        const std::int32_t rows = ox::call<&ox::grid_layout_impl::row_count>(grid);
        for (std::int32_t row = 0; row < rows; ++row)
            for (std::int32_t column = 0; column < columns; ++column)
                for (const element& each : cell_of(grid, column, row)) add(each);
    }

    void add_pages(custom_pointer stack) {
        const std::uint32_t pages = ox::call<&ox::stack_layout_impl::child_count>(stack);
        for (std::uint32_t i = 0; i < pages; ++i)
            add_visited(
                [=](custom_pointer v) { ox::call<&ox::stack_layout_impl::visit_child>(stack, i, v); });
    }

    void add_tools(custom_pointer toolbar) {
        lending<tool_sink> bar;
        ox::call<&ox::toolbar_impl::visit_tool_sets>(toolbar, bar.pointer());
        for (const received& set : bar->sets) {
            found.push_back(make_element<ox::tool_set_impl>(set.pointer));
            lending<tool_sink> sink;
            ox::call<&ox::tool_set_impl::visit_tools>(set.pointer, sink.pointer());
            for (const received& tool : sink->tools)
                found.push_back({name_of<ox::action_tool_impl>(), tool.pointer, tool.id});
        }
    }

    void add_outline(std::size_t index) {
        const custom_pointer outline = found[index].outline = found[index].pointer;
        lending<checks_sink> checks;
        ox::call<&ox::outline_impl::visit_checks>(outline, checks.pointer());
        for (const received& each : checks->all)
            found.push_back({name_of<ox::outline_checks_impl>(), each.pointer, {}, outline});
        const std::uint32_t count = ox::call<&ox::outline_impl::column_count>(outline);
        for (std::uint32_t i = 0; i < count; ++i)
            for (const element& each : column_of(outline, i)) found.push_back(each);
    }

    void add_menu(custom_pointer button) {
        lending<menu_sink> sink;
        ox::call<&ox::button_impl::visit_menu>(button, sink.pointer());
        for (const received& menu : sink->all) {
            found.push_back(make_element<ox::context_menu_impl>(menu.pointer));
            lending<tool_sink> sets;
            ox::call<&ox::context_menu_impl::visit_tool_sets>(menu.pointer, sets.pointer());
            for (const received& set : sets->sets)
                found.push_back(make_element<ox::tool_set_impl>(set.pointer));
        }
    }
};

template <auto Visit>
void add_text(std::vector<std::wstring>& texts, custom_pointer p) {
    texts.push_back(read_text([p](custom_pointer v) { ox::call<Visit>(p, v); }));
}

}  // namespace

std::vector<element> walk(custom_pointer docker, custom_pointer button_box) {
    walker found;
    found.add(make_element<ox::docker_impl>(docker));
    found.add(make_element<ox::grid_layout_impl>(ox::call<&ox::docker_impl::element>(docker)));
    found.add(make_element<ox::button_box_impl>(button_box));
    return found.found;
}

std::vector<element> cell_of(custom_pointer grid, std::int32_t column, std::int32_t row) {
    lending<element_sink> sink;
    ox::call<&ox::grid_layout_impl::visit_cell>(grid, column, row, sink.pointer());
    return sink->all;
}

std::vector<element> column_of(custom_pointer outline, std::uint32_t index) {
    lending<column_sink> sink;
    ox::call<&ox::outline_impl::visit_column>(outline, index, sink.pointer());
    std::vector<element> columns;
    for (const received& each : sink->strings)
        columns.push_back({name_of<ox::string_outline_column_impl>(), each.pointer, each.id, outline});
    for (const received& each : sink->bitmaps)
        columns.push_back({name_of<ox::bitmap_outline_column_impl>(), each.pointer, each.id, outline});
    return columns;
}

std::optional<std::uint32_t> current_row_of(custom_pointer outline) {
    lending<item_sink> sink;
    ox::call<&ox::outline_impl::visit_current_item>(outline, sink.pointer());
    return sink->row;
}

std::vector<element> menu_tools(custom_pointer context_menu) {
    std::vector<element> tools;
    lending<tool_sink> sink;
    ox::call<&ox::context_menu_impl::visit_tool_sets>(context_menu, sink.pointer());
    for (const received& set : sink->sets)
        ox::call<&ox::tool_set_impl::visit_tools>(set.pointer, sink.pointer());
    for (const received& tool : sink->tools)
        tools.push_back({name_of<ox::action_tool_impl>(), tool.pointer, tool.id, {}, true});
    return tools;
}

open_menu::~open_menu() {
    for (const element& tool : tools_)
        ox::call<&ox::action_tool_impl::attach_view>(tool.pointer, custom_pointer{});
}

void attach_views(const element& each, custom_pointer view, custom_pointer second_of_box) {
    with_kind_of(each, [&]<class I>() {
        if constexpr (requires { &I::attach_view; }) ox::call<&I::attach_view>(each.pointer, view);
        if constexpr (std::is_same_v<I, ox::button_box_impl>) {
            ox::call<&I::attach_first_view>(each.pointer, view);
            ox::call<&I::attach_second_view>(each.pointer, second_of_box);
        }
    });
}

std::vector<std::wstring> captions_of(const element& each) {
    std::vector<std::wstring> texts;
    const custom_pointer p = each.pointer;
    if (each.is<ox::docker_impl>()) add_text<&ox::docker_impl::visit_caption>(texts, p);
    if (each.is<ox::groupbox_impl>()) {
        add_text<&ox::groupbox_impl::visit_caption>(texts, p);
        add_text<&ox::groupbox_impl::visit_second_text>(texts, p);
    }
    if (each.is<ox::label_impl>()) add_text<&ox::label_impl::visit_caption>(texts, p);
    if (each.is<ox::button_impl>()) {
        add_text<&ox::button_impl::visit_caption>(texts, p);
        add_text<&ox::button_impl::visit_hint>(texts, p);
    }
    if (each.is<ox::input_impl>()) add_text<&ox::input_impl::visit_caption>(texts, p);
    if (each.is<ox::floating_input_impl>()) add_text<&ox::floating_input_impl::visit_caption>(texts, p);
    if (each.is<ox::multiline_output_impl>()) add_text<&ox::multiline_output_impl::visit_caption>(texts, p);
    if (each.is<ox::action_tool_impl>() && !each.in_menu) {
        add_text<&ox::action_tool_impl::visit_caption>(texts, p);
        add_text<&ox::action_tool_impl::visit_hint>(texts, p);
        add_text<&ox::action_tool_impl::visit_long_text>(texts, p);
    }
    if (each.is<ox::string_outline_column_impl>())
        add_text<&ox::string_outline_column_impl::visit_caption>(texts, p);
    if (each.is<ox::bitmap_outline_column_impl>())
        add_text<&ox::bitmap_outline_column_impl::visit_caption>(texts, p);
    return texts;
}

std::uint32_t rows_of(const element& each) {
    return ox::call<&ox::outline_impl::child_count>(each.outline, custom_pointer{});
}

}  // namespace oxcheck
