// Controls as the host sees them: through their tables.

#include "counting_view.h"
#include "testing/case_name.h"
#include "toolkit/button_box.h"
#include "toolkit/dropdown.h"
#include "toolkit/input.h"
#include "toolkit/labeled_element.h"
#include "toolkit/numeric_input.h"

namespace ox::toolkit {
namespace {

TEST(Views, OnlyTheLastOneHearsAndOnlyOfRealChanges) {
    labeled_element<input> element(0);
    counting_view first, second, caption;
    element.attach_view(first.pointer());
    element.attach_view(second.pointer());
    element.caption_label().attach_view(caption.pointer());
    element.set_enabled(false);
    element.set_enabled(false);
    EXPECT_TRUE(first.changes == 0 && second.changes == 1 && caption.changes == 1);
    EXPECT_FALSE(element.caption_label().enabled());
    element.attach_view({});
    element.set_enabled(true);
    EXPECT_EQ(second.changes, 1);
}

struct click_case {
    const char* name;
    std::uint32_t kind;
    bool has_apply, has_help, has_command;
    const char* calls;
    bool closes;
};

TEST_CASES(ButtonBox, Clicks, click_case, {"Apply", 2, true, true, true, "apply", true},
           {"ApplyWithout", 2, false, false, true, "command", true},
           {"Yes", 32, true, false, false, "apply", true}, {"Close", 8, true, true, true, "", true},
           {"No", 64, true, true, true, "", true}, {"Help", 16, true, true, true, "help", false},
           {"HelpWithout", 16, false, false, true, "command", true},
           {"HelpWithNobody", 16, false, false, false, "", false},
           {"Own", 4133, true, true, true, "command", true}) {
    std::string calls;
    button_box box;
    box.append(0, c.kind);
    if (c.has_apply) box.on_apply = [&] { return calls += "apply", true; };
    if (c.has_help) box.on_help = [&] { calls += "help"; };
    if (c.has_command) box.on_command = [&](std::uint32_t) { return calls += "command", true; };
    EXPECT_EQ(box.click(0), c.closes);
    EXPECT_EQ(calls, c.calls);
    EXPECT_TRUE(box.click(-1));
}

TEST(ButtonBox, AMaskGivesItsButtonsInOrder) {
    button_box box(26);
    EXPECT_EQ(box.count(), 3);
    EXPECT_TRUE(box.click(1));   // 8 closes
    EXPECT_FALSE(box.click(2));  // 16, no help set
    EXPECT_EQ(box.default_index(), -1);
}

TEST(NumericInput, ARefusedValueLeavesTheOldOne) {
    floating_input number(4, 1.5);
    number.on_change = [&](double proposed) {
        EXPECT_EQ(number.value(), proposed);
        return proposed < 10;
    };
    EXPECT_TRUE(number.set_value(2));
    EXPECT_FALSE(number.set_value(11));
    EXPECT_EQ(number.value(), 2);
}

TEST(Dropdown, SpeaksOfNothingCurrentWhereAValueIsUnknown) {
    dropdownex<unsigned> list;
    list.set_items({{L"seven", 7}, {L"nine", 9}}, 9u);
    EXPECT_EQ(list.current(), 1u);
    list.set_current_value(8u);
    EXPECT_EQ(list.current(), 0xFFFFFFFFu);
    EXPECT_FALSE(list.current_value());
}
}  // namespace
}  // namespace ox::toolkit
