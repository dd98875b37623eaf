// Callbacks and views that end or change the element that calls them.

#include <functional>
#include <memory>

#include "counting_view.h"
#include "testing/case_name.h"
#include "toolkit/button_box.h"
#include "toolkit/dropdown.h"
#include "toolkit/input.h"
#include "toolkit/labeled_element.h"
#include "toolkit/numeric_input.h"
#include "toolkit/tool.h"

namespace ox::toolkit {
namespace {

/// An element that can be deleted.
template <class Element>
struct whole final : Element {
    using Element::Element;
};

enum class meanwhile { element_ends, callback_is_unset };

/// Sets a callback of a new element that ends the element or unsets itself, and causes it to be called.
template <class Element, class Set, class Cause>
void expect_survival(meanwhile what, Element* element, Set set, Cause cause) {
    int calls = 0;
    auto life = std::make_shared<int>();
    const std::weak_ptr<int> seen = life;
    set(*element, [=, &calls, life = std::move(life)](auto&&...) {
        const std::weak_ptr<int> watch = seen;
        ++calls;
        if (what == meanwhile::element_ends)
            delete element;
        else
            set(*element, nullptr);
        EXPECT_FALSE(watch.expired()) << "the callback ended while it ran";
        return true;
    });
    cause(*element);
    EXPECT_EQ(calls, 1);
    EXPECT_TRUE(seen.expired());
    if (what == meanwhile::element_ends) return;
    cause(*element);
    EXPECT_EQ(calls, 1);
    delete element;
}

struct callback_case {
    const char* name;
    void (*run)(meanwhile);
};

#define CALLBACK(name, element, set, cause)                                               \
    callback_case {                                                                       \
        name, [](meanwhile what) {                                                        \
            expect_survival(                                                              \
                what, new element, [](auto& e, auto f) { set; }, [](auto& e) { cause; }); \
        }                                                                                 \
    }
TEST_CASES(Callbacks, MayEndTheirElementOrUnsetThemselves, callback_case,
           CALLBACK("Button", button(0), e.set_on_click(f), e.click()),
           CALLBACK("LayoutAccept", button_layout, e.on_accept = f, e.add(0, 1).click()),
           CALLBACK("LayoutCommand", button_layout, e.on_command = f, e.add(0, 8).click()),
           CALLBACK("BoxApply", button_box(commands(command::apply)), e.on_apply = f, e.click(0)),
           CALLBACK("BoxHelp", button_box(commands(command::help)), e.on_help = f, e.click(0)),
           CALLBACK("BoxCommand", button_box(commands(command::yes)), e.on_command = f, e.click(0)),
           CALLBACK("Dropdown", whole<dropdown>, e.on_select = f, e.select(1)),
           CALLBACK("Number", whole<floating_input>, e.on_change = f, e.set_value(3)),
           CALLBACK("Input", whole<input>, e.on_change = f, e.commit()),
           CALLBACK("Tool", whole<action_tool>(0, 0, 0), e.on_click = f, e.click())) {
    for (const meanwhile what : {meanwhile::element_ends, meanwhile::callback_is_unset}) c.run(what);
}

TEST(ButtonLayout, EndedByOneCallbackCallsNoOther) {
    auto* layout = new button_layout;
    int commands = 0;
    layout->on_accept = [&] { delete layout; };
    layout->on_command = [&](std::uint32_t) { ++commands; };
    layout->add(0, 1).click();
    EXPECT_EQ(commands, 0);
}

TEST(NumericInput, EndedWhileItRefusesIsNotTouched) {
    auto* number = new whole<floating_input>;
    number->on_change = [&](double) { return delete number, false; };
    EXPECT_FALSE(number->set_value(3));
}

TEST(Input, MayChangeItsTextWhileItIsAsked) {
    input line;
    line.set_text(std::wstring(100, L'a').c_str());
    line.on_change = [&](const std::wstring& text) {
        line.set_text(L"b");
        EXPECT_EQ(text, std::wstring(100, L'a'));
        return true;
    };
    EXPECT_TRUE(line.commit());
}

// ---- Views ----

TEST(LabeledElement, EndedByItsViewTellsNoOther) {
    auto* element = new labeled_element<input>(0);
    counting_view own, caption;
    own.on_change = [&] {
        EXPECT_FALSE(element->caption_label().enabled());  // both are grey before either view hears of it
        delete element;
    };
    element->attach_view(own.pointer());
    element->caption_label().attach_view(caption.pointer());
    element->set_enabled(false);
    EXPECT_EQ(own.changes, 1);
    EXPECT_EQ(caption.changes, 0);
}

TEST(LabeledElement, TellsTheViewThatIsAttachedThen) {
    labeled_element<floating_input> element(0);
    counting_view own, old, caption;
    own.on_change = [&] { element.caption_label().attach_view(caption.pointer()); };
    element.attach_view(own.pointer());
    element.caption_label().attach_view(old.pointer());
    element.set_enabled(false);
    EXPECT_EQ(old.changes, 0);
    EXPECT_EQ(caption.changes, 1);
}

TEST(ButtonBox, EndedByItsFirstViewDoesNotTellTheSecond) {
    auto* box = new button_box(commands(command::apply));
    counting_view first, second;
    first.on_change = [&] { delete box; };
    box->attach_first_view(first.pointer());
    box->attach_second_view(second.pointer());
    box->set_enabled(command::apply, false);
    EXPECT_EQ(second.changes, 0);
}

TEST(NumericInput, TellsOfAnAnswerOnceAndWhenItStands) {
    for (const bool accepted : {false, true}) {
        const double stands = accepted ? 7 : 1;
        floating_input number(4, 1);
        counting_view view;
        view.on_change = [&] { EXPECT_EQ(number.value(), stands); };
        number.attach_view(view.pointer());
        number.on_change = [&](double) {
            number.show(7);  // a value of the program's own instead of the proposed one
            number.set_enabled(false);
            return accepted;
        };
        EXPECT_EQ(number.set_value(3), accepted);
        EXPECT_EQ(number.value(), stands);
        EXPECT_EQ(view.changes, 1);
    }
}

}  // namespace
}  // namespace ox::toolkit
