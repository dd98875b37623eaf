// What an element is given, the host reads; it is told once, when it stands, and not when nothing changed.

#include <type_traits>

#include "counting_view.h"
#include "framework/value_visitors.h"
#include "testing/case_name.h"
#include "testing/host_double/host_double.h"
#include "toolkit/button_box.h"
#include "toolkit/docker.h"
#include "toolkit/dropdown.h"
#include "toolkit/input.h"
#include "toolkit/labeled_element.h"
#include "toolkit/layouts.h"
#include "toolkit/modal_dialog.h"
#include "toolkit/multiline_output.h"
#include "toolkit/numeric_input.h"
#include "toolkit/tool.h"
#include "toolkit/toolbar.h"

namespace ox::toolkit {
namespace {

/// Sets what is `expected` twice; the host reads it when it is told, which is once.
template <class Element, class Set, class Get, class Value>
void expect_told_once(Element&& element, Set set, Get get, const Value& expected) {
    counting_view view;
    view.on_change = [&] { EXPECT_EQ(get(element), expected); };
    element.attach_view(view.pointer());
    EXPECT_NE(get(element), expected) << "nothing to change";
    set(element);
    set(element);
    EXPECT_EQ(view.changes, 1);
    EXPECT_EQ(get(element), expected);
}

struct setter_case {
    const char* name;
    void (*run)();
};

template <class Element>
int picture_of(Element& element) {
    struct counter : bitmap_visitor_impl {
        int pictures = 0;
        void visit(custom_pointer) override { ++pictures; }
    } seen;
    element.visit_image(make_pointer<bitmap_visitor_impl>(seen));
    return seen.pictures;
}

/// Every text that an element hands over.
template <class Visit>
std::wstring texts(Visit visit) {
    struct collector : string_visitor_impl {
        std::wstring all;
        void visit(const wchar_t* text) override { all += text, all += L';'; }
    } seen;
    visit(make_pointer<string_visitor_impl>(seen));
    return seen.all;
}

constexpr std::int32_t crs_id = 9566;  // "ID" in every language
const std::wstring crs_text = L"ID;";

#define SETTER(name, element, set, get, expected)                                      \
    setter_case {                                                                      \
        name, [] {                                                                     \
            expect_told_once(                                                          \
                element, [](auto& e) { set; }, [](auto& e) { return get; }, expected); \
        }                                                                              \
    }
#define TEXT(operation) texts([&](custom_pointer v) { e.operation(v); })

TEST_CASES(
    Setters, TellOnce, setter_case,
    SETTER("ButtonHint", button(0), e.set_hint(crs_id), TEXT(visit_hint), crs_text),
    SETTER("ButtonImage", button(0), e.set_image(5), picture_of(e), 1),
    SETTER("ButtonChecked", button(0), e.set_checked(true), e.checked(), true),
    SETTER("ButtonFlag2", button(0), e.set_flag_2(true), e.flag_2(), true),
    SETTER("ButtonFlag4", button(0), e.set_flag_4(true), e.flag_4(), true),
    SETTER("ButtonEnabled", button(0), e.set_enabled(false), e.enabled(), false),
    SETTER("InputText", input(), e.set_text(L"typed"), e.text(), L"typed"),
    SETTER("InputFlag2", input(), e.set_flag_2(true), e.flag_2(), true),
    SETTER("InputFlag3", input(), e.set_flag_3(true), e.flag_3(), true),
    SETTER("InputValue", input(), e.set_value(3), e.value(), 3u),
    SETTER("InputSelection", input(), e.set_text_selection(make_pointer<input_impl>(e)),
           e.text_selection().table, table_of<input_impl>()),
    SETTER("NumberCaption", floating_input(), e.set_caption(crs_id), TEXT(visit_caption), crs_text),
    SETTER("NumberLimits", floating_input(), e.set_limits(1, 2), std::pair(e.minimum(), e.maximum()),
           std::pair(1.0, 2.0)),
    SETTER("NumberInItsLimits", floating_input(), e.show(3, 2, 4),
           (std::array{e.value(), e.minimum(), e.maximum()}), (std::array{3.0, 2.0, 4.0})),
    SETTER("NoNumber", floating_input(), e.show(std::numeric_limits<double>::quiet_NaN()),
           std::isnan(e.value()), true),
    SETTER("DropdownText", dropdown(), e.set_text(L"none"), TEXT(visit_text), L"none;"),
    SETTER("DropdownValue", dropdown(), e.set_value(3), e.value(), 3u),
    SETTER("DropdownEnabled", dropdown(), e.set_enabled(false), e.enabled(), false),
    SETTER("DropdownItems", dropdown(), e.set_items({L"one", L"two"}, 1),
           std::pair(e.item_count(), e.current()), std::pair(2u, 1u)),
    SETTER("DropdownWithoutCurrent", dropdown(), e.set_items({L"one"}, 100),
           std::pair(e.item_count(), e.current()), std::pair(1u, 0xFFFFFFFFu)),
    SETTER("OutputText", multiline_output(), e.set_text(L"a\nb"), TEXT(visit_text), L"a\nb;"),
    SETTER("OutputCaption", multiline_output(), e.set_caption(crs_id), TEXT(visit_caption), crs_text),
    SETTER("OutputFirstValue", multiline_output(), e.set_first_value(3), e.first_value(), 3u),
    SETTER("OutputSecondValue", multiline_output(), e.set_second_value(3), e.second_value(), 3u),
    SETTER("ToolLongText", action_tool(0, 0, 0), e.set_long_text(crs_id), TEXT(visit_long_text), crs_text),
    SETTER("ToolExtraTexts", action_tool(0, 0, 0), e.set_extra_texts({crs_id, crs_id}),
           TEXT(visit_extra_texts), crs_text + crs_text),
    SETTER("ToolEnabled", action_tool(0, 0, 0), e.set_enabled(false), e.enabled(), false),
    SETTER("ToolChecked", action_tool(0, 0, 0), e.set_checked(true), e.checked(), true),
    SETTER("GroupSecondText", (groupbox<1, 1>(0)), e.set_second_text(crs_id), TEXT(visit_second_text),
           crs_text),
    SETTER("GroupFlag", (groupbox<1, 1>(0)), e.set_flag(false), e.flag(), false),
    SETTER("GridValue", (grid_layout<1, 2>()), e.set_layout_value(3), e.layout_value(), 3u),
    SETTER("GridRowValue", (grid_layout<1, 2>()), e.set_row_value(0, 3), e.row_value(0), 3u),
    SETTER("GridColumnValue", (grid_layout<1, 2>()), e.set_column_value(1, 3), e.column_value(1), 3u),
    SETTER("GridColumnShown", (grid_layout<1, 2>()), e.set_column_shown(1, false), e.column_shown(1), false),
    SETTER("GridRow", (grid_layout<2, 1>()), e.set_row_shown(1, false),
           std::pair(e.row_shown(0), e.row_shown(1)), std::pair(true, false)),
    SETTER("GridRows", (grid_layout<3, 1>()), e.set_rows_shown({false, true, false}),
           (std::array{e.row_shown(0), e.row_shown(1), e.row_shown(2)}), (std::array{false, true, false})),
    SETTER("Stack", stack_layout<2>(), e.set_current(1), e.current(), 1u)) {
    c.run();
}

TEST(Grid, TellsOfWhatIsPutIntoIt) {
    grid_layout<1, 1> grid;
    label first, second;
    counting_view view;
    grid.attach_view(view.pointer());
    for (label* each : {&first, &first, &second}) grid.put(0, 0, *each);
    EXPECT_EQ(view.changes, 2);
    button_layout buttons;
    buttons.attach_view(view.pointer());
    buttons.add(0, 1);
    EXPECT_EQ(view.changes, 3);
}

TEST(ButtonBox, TellsBothViewsOnce) {
    button_box box(commands(command::apply));
    counting_view first, second;
    box.attach_first_view(first.pointer());
    box.attach_second_view(second.pointer());
    for (int i = 0; i < 2; ++i) box.set_default_index(0);
    for (int i = 0; i < 2; ++i) box.set_enabled(command::apply, false);
    box.append(0, 4133);
    EXPECT_EQ(box.default_index(), 0);
    EXPECT_TRUE(first.changes == 3 && second.changes == 3) << first.changes << ' ' << second.changes;
}

TEST(DropdownEx, TellsNothingWhenItsItemsOnlyStandForOtherValues) {
    dropdownex<unsigned> list;
    list.set_items({{L"seven", 7}, {L"nine", 9}}, 9u);
    counting_view view;
    list.attach_view(view.pointer());
    list.set_items({{L"seven", 17}, {L"nine", 19}}, 19u);
    EXPECT_EQ(list.current_value(), 19u);
    EXPECT_EQ(view.changes, 0);
}

TEST(InOneStep, TellsOnceAtTheOutermostEnd) {
    floating_input number;
    counting_view view;
    number.attach_view(view.pointer());
    {
        const in_one_step outer(number);
        if (const in_one_step inner(number); true) number.show(1);
        number.set_decimals(2);
        EXPECT_EQ(view.changes, 0);
    }
    EXPECT_EQ(view.changes, 1);
}

struct widget {
    grid_layout<1, 1> root;
    grid_layout_impl& element() { return root; }
};

TEST(Docker, CarriesItsFlag) {
    docker<widget> dialog(0);
    EXPECT_TRUE(dialog.flag());
    dialog.set_flag(false);
    EXPECT_FALSE(dialog.flag());
}

struct no_tools final : with_tools {
    void visit_tools(const tools_visitor&) override {}
};
// The host points at them, and they at its views.
template <class... Elements>
constexpr bool all_stay_where_they_are =
    !(... || (std::is_move_constructible_v<Elements> || std::is_move_assignable_v<Elements>));
static_assert(
    all_stay_where_they_are<
        button, button_layout, button_box, dropdown, dropdownex<unsigned>, floating_input, grid_layout<1, 1>,
        groupbox<1, 1>, input, label, labeled_element<input>, multiline_output, stack_layout<2>, action_tool,
        toolbar<no_tools, toolbar_impl, void>, docker<no_tools>, util::detail::modal_dialog<nullptr>>);

}  // namespace
}  // namespace ox::toolkit
