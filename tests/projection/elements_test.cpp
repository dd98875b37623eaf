// Projection files, the CRS dialog, the proj4 input, and the dialogs that they open.

#include <functional>

#include "element_tree.h"
#include "framework/value_visitors.h"
#include "projection/crs_dialog.h"
#include "projection/proj4_input.h"
#include "projection/projection_files.h"
#include "testing/case_name.h"
#include "testing/host_double/host_double.h"
#include "toolkit/modal_dialog.h"

namespace ox {
namespace {

using host_double::host;

/// The host's dialogs, attached to the places where the module looks for them.
struct dialogs : dialog_host_impl {
    std::wstring path;             ///< answer to the file dialog; empty cancels
    bool cancels_by_null = false;  ///< instead of not answering at all
    std::function<bool(custom_pointer docker, custom_pointer buttons)> user;

    void ask_file(std::int32_t, const wchar_t* filter, custom_pointer visitor) override {
        EXPECT_TRUE(std::wstring(filter).ends_with(L"(*.prj)|*.prj"));
        if (!path.empty() || cancels_by_null)
            call<&string_visitor_impl::visit>(visitor, path.empty() ? nullptr : path.c_str());
    }
    bool show_modal(custom_pointer docker, custom_pointer buttons) override {
        return user && user(docker, buttons);
    }

    dialogs() {
        attach(plain_);
        attach(crs_);
    }
    ~dialogs() { plain_.current = nullptr, crs_.current = nullptr; }

private:
    template <class Place>
    void attach(Place& place) {
        place.attach(make_pointer<dialog_host_impl>(*this));
        Place::current = &place;
    }
    util::detail::modal_dialog<nullptr> plain_;
    util::detail::modal_dialog<dialog::projection_crs::id> crs_;
};

class Elements : public testing::Test {
protected:
    void SetUp() override { host_double::reset(); }
    void TearDown() override { EXPECT_EQ(host().alive(), 0); }
};

using file_case = case_of<const wchar_t*, std::string>;  // expected: what it is loaded as; empty: not touched

TEST_CASES_F(Elements, Files, GoByTheExtension, file_case, {"UpperCase", L"C:\\data\\zone7.PJ4", "pj4"},
             {"Esri", L"/data/zone7.prj", "prj"}, {"DotInAFolder", L"C:\\data.pj4\\noext", ""},
             {"LastExtension", L"name.prj.bak", ""}, {"NoName", L".pj4", "pj4"}, {"None", L"noext", ""}) {
    const bool known = !c.expected.empty();
    host().files[c.given] = L"+proj=longlat";
    EXPECT_EQ(load_projection_file(c.given), known ? L"+proj=longlat" : L"");
    save_projection_file(c.given, L"+proj=utm");
    EXPECT_EQ(host().files[c.given], known ? L"+proj=utm" : L"+proj=longlat");
    using log = std::vector<std::string>;
    EXPECT_EQ(host().log, (known ? log{"load " + c.expected, "save " + c.expected} : log{}));
}

TEST_CASES(Identifiers, IntegersAreEpsgCodes, case_of<const wchar_t*>, {"Blanks", L"  4326\t", L"EPSG:4326"},
           {"Sign", L"+4326", L"EPSG:4326"}, {"LettersBehind", L"4326a", L"4326a"},
           {"WithAuthority", L" EPSG:3857\v", L"EPSG:3857"}, {"TooLarge", L"2147483648", L"2147483648"},
           {"Largest", L"2147483647", L"EPSG:2147483647"}, {"TwoSigns", L"+-5", L"+-5"},
           {"Empty", L" \n", L""}) {
    EXPECT_EQ(dialog::crs_identifier(c.given), c.expected);
}

std::wstring description_of(grid_layout_impl& element) {
    const custom_pointer output = element_tree(element).find("output").element;
    return read_text([&](custom_pointer v) { call<&multiline_output_impl::visit_text>(output, v); });
}

/// Presses button number `index` of the row below the description.
void press(element::proj4_input& input, int index) {
    call<&button_impl::click>(element_tree(input).find("button", index).element);
}

TEST_F(Elements, Proj4InputLoadsSavesAndDescribes) {
    dialogs host_dialogs;
    element::proj4_input input;
    int changes = 0;
    subscription heard(input.changed(), [&] { ++changes; });
    EXPECT_EQ(description_of(input), L"No projection is defined");
    press(input, 1);  // a cancelled file dialog
    host_dialogs.cancels_by_null = true;
    press(input, 1);
    host_dialogs.path = L"unknown.pj4";
    press(input, 1);  // nothing in it
    EXPECT_EQ(changes, 0);
    host().files[L"zone.pj4"] = L"+proj=utm +zone=40";
    host_dialogs.path = L"zone.pj4";
    press(input, 1);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(input.text(), L"+proj=utm +zone=40");
    EXPECT_EQ(description_of(input), L"described: +proj=utm +zone=40");
    host_dialogs.path = L"copy.prj";
    press(input, 0);
    EXPECT_EQ(host().files[L"copy.prj"], L"+proj=utm +zone=40");
}

using suggestion_menu = toolkit::toolbar<element::detail::proj4_input_toolset, context_menu_impl, void>;

std::wstring caption_of(custom_pointer tool) {
    return read_text([&](custom_pointer v) { call<&action_tool_impl::visit_caption>(tool, v); });
}

struct menu_seen : tool_set_visitor_impl {
    std::wstring texts;
    std::vector<custom_pointer> tools;
    explicit menu_seen(suggestion_menu& menu) {
        menu.visit_tool_sets(make_pointer<tool_set_visitor_impl>(*this));
    }
    void visit_tool_set(custom_pointer set) override {
        call<&tool_set_impl::visit_tools>(set, make_pointer<tool_set_visitor_impl>(*this));
    }
    void visit_action_tool(const wchar_t* id, custom_pointer tool) override {
        texts += std::wstring(id) + L": " + caption_of(tool) + L"; ";
        tools.push_back(tool);
    }
};

const std::vector<element::proj4_input::suggestion> two_suggestions{{L"Zone 40", L"+proj=utm +zone=40"},
                                                                    {L"None", L""}};

TEST_F(Elements, TheSuggestionMenuSetsTheText) {
    element::proj4_input input;
    input.set_suggestions(two_suggestions);
    suggestion_menu menu(input);
    menu_seen seen(menu);
    EXPECT_EQ(seen.texts,
              L"ox_common_proj4_input_menu_0: Zone 40; "
              L"ox_common_proj4_input_menu_1: None; ");
    call<&action_tool_impl::click>(seen.tools[0]);
    EXPECT_EQ(input.text(), L"+proj=utm +zone=40");
    call<&action_tool_impl::click>(seen.tools[1]);
    EXPECT_EQ(description_of(input),
              L"described: ");  // set, and empty
}

TEST_F(Elements, AMenuEntryWithAViewBelongsToTheHostAlsoAfterTheDialog) {
    for (const bool menu_ends_first : {true, false}) {
        element::proj4_input input;
        input.set_suggestions(two_suggestions);
        auto menu = std::make_unique<suggestion_menu>(input);
        const custom_pointer kept = menu_seen(*menu).tools[0];  // the other one ends with the menu
        element_view_slots view;
        call<&action_tool_impl::attach_view>(kept, make_pointer(view));
        if (menu_ends_first) {
            menu.reset();
            EXPECT_EQ(caption_of(kept), L"");
            call<&action_tool_impl::click>(kept);
            EXPECT_EQ(input.text(), L"");
        }
        call<&action_tool_impl::attach_view>(kept, custom_pointer{});  // which ends it
    }
}

TEST_F(Elements, AMenuMayEndWhileItsEntriesAreVisited) {
    element::proj4_input input;
    input.set_suggestions({{L"one", L"1"}, {L"two", L"2"}, {L"three", L"3"}});
    auto menu = std::make_unique<suggestion_menu>(input);
    struct ender : tool_set_visitor_impl {
        std::unique_ptr<suggestion_menu>* menu = nullptr;
        int visited = 0;
        void visit_action_tool(const wchar_t*, custom_pointer) override {
            if (++visited == 2) menu->reset();
        }
    } ends;
    ends.menu = &menu;
    menu->application().visit_tools(make_pointer<tool_set_visitor_impl>(ends));
    EXPECT_EQ(ends.visited, 2);
}

TEST_F(Elements, AnInputMayEndWhileItTellsOfItsText) {
    auto input = std::make_unique<element::proj4_input>();
    input->set_suggestions({{L"one", L"1"}});
    struct ender : element_view_slots {
        std::unique_ptr<element::proj4_input>* input = nullptr;
        void changed() override { input->reset(); }
    } ends;
    ends.input = &input;
    const auto output = element_tree(*input).find("output");
    output.attach(output.element, make_pointer<element_view_slots>(ends));
    input->choose_suggestion(0);
    EXPECT_FALSE(input);
}

TEST_F(Elements, TheCrsDialogClosesWithAResultOnly) {
    dialogs host_dialogs;
    host().crs[L"EPSG:32640"] = L"+proj=utm +zone=40";
    host_dialogs.user = [](custom_pointer docker, custom_pointer buttons) {
        const auto line = element_tree(call<&docker_impl::element>(docker)).find("input").element;
        const auto type = [&](const wchar_t* text) {
            call<&input_impl::set_text>(line, text);
            return call<&input_impl::commit>(line);
        };
        const auto apply_enabled = [&] { return call<&button_box_impl::enabled>(buttons, 0); };
        EXPECT_FALSE(apply_enabled());
        EXPECT_TRUE(type(L"32640"));
        EXPECT_TRUE(apply_enabled());
        EXPECT_FALSE(type(L"nowhere"));
        EXPECT_FALSE(apply_enabled());
        EXPECT_FALSE(call<&button_box_impl::click>(buttons, 0));
        type(L" 32640 ");
        return call<&button_box_impl::click>(buttons, 0);
    };
    EXPECT_EQ(dialog::ask_crs(), L"+proj=utm +zone=40");
    host_dialogs.user = nullptr;
    EXPECT_EQ(dialog::ask_crs(), std::nullopt);
}

}  // namespace
}  // namespace ox
