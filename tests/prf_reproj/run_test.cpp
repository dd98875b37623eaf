// The list of profile scenes and the run over it, against the recording host.

#include <algorithm>

#include "framework/value_visitors.h"
#include "prf_reproj/profile_list.h"
#include "prf_reproj/profile_table.h"
#include "prf_reproj/reprojection_run.h"
#include "prf_reproj/widget.h"
#include "testing/case_name.h"
#include "testing/host_double/host_double.h"

namespace ox::prf_reproj {
namespace {

using host_double::host;
using strings = std::vector<std::string>;
using texts = std::vector<std::wstring>;

constexpr const wchar_t* utm = L"+proj=utm +zone=40";
constexpr const wchar_t* longlat = L"+proj=longlat";
const host_double::line original{{1, 2}, {3, 4}};
const host_double::line moved{{101, 202}, {103, 204}};

class Run : public testing::Test {
protected:
    void SetUp() override {
        host_double::reset();
        list.on_changed = [this] { ++changes; };
    }
    void TearDown() override {
        EXPECT_EQ(host().alive(), 0);
        EXPECT_EQ(host().given_null, strings{});
    }

    void add(std::initializer_list<const wchar_t*> captions, const wchar_t* pj4) {
        for (const wchar_t* caption : captions) host().add(caption, pj4);
        list.rebuild(current_scenes());
    }
    void list_all(const std::wstring& target) {
        list.rebuild(current_scenes());
        list.set_target(target);
        for (prf_row& row : list.rows) row.checked = true;
    }
    bool run() {
        host().log.clear();
        return run_reprojection(list);
    }
    int checked() const { return static_cast<int>(std::ranges::count(list.rows, true, &prf_row::checked)); }

    prf_list list;
    int changes = 0;
};

TEST_F(Run, ListsProfilesOnlyAndMarksTheDifferentOnes) {
    host().add(L"a", utm);
    host().add(L"no profile", utm).profile = false;
    host().add(L"no data", utm).has_data = false;
    host().add(L"b", L"");
    host().add(L"c", L"+proj=utm +zone=40 +no_defs");
    std::vector<projection_suggestion> suggested;
    list.on_suggestions = [&](auto suggestions) { suggested = suggestions; };
    list.rebuild(current_scenes());
    ASSERT_EQ(list.rows.size(), 3u);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(suggested, (std::vector<projection_suggestion>{
                             {utm, utm},
                             {L"+proj=utm +zone=40 +no_defs", L"+proj=utm +zone=40 +no_defs"},
                             {L"Projection not defined", L""}}));
    const auto differs = [&] {
        std::string marks;
        for (const prf_row& row : list.rows) marks += row.differs ? 'x' : '-';
        return marks;
    };
    EXPECT_EQ(differs(), "---");
    list.set_target(utm);
    EXPECT_EQ(differs(), "-x-");
    list.rows[0].checked = list.rows[0].selected = true;
    list.rebuild(current_scenes());
    EXPECT_EQ(list.target_pj4, utm);
    EXPECT_EQ(differs(), "-x-");
    EXPECT_FALSE(list.rows[0].checked || list.rows[0].selected);
}

TEST_F(Run, ReprojectsInOrderInsideEachScenesBracket) {
    add({L"a", L"b"}, longlat);
    list_all(utm);
    changes = 0;
    EXPECT_FALSE(run());
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(host().log,
              (strings{"progress 0", "begin a", "rpj", "init", "pv", "apply", "line a", "text a", "end a",
                       "begin b", "rpj", "init", "pv", "apply", "line b", "text b", "end b"}));
    EXPECT_EQ(host().progress, (std::vector<double>{0, 0.5}));
    EXPECT_EQ(host().scenes[1]->pv, moved);
    EXPECT_EQ(host().scenes[1]->pj4, utm);
    EXPECT_EQ(host().messages, texts{L"Reprojection complete"});
    EXPECT_TRUE(host().questions.empty() && host().errors.empty());
    EXPECT_EQ(checked(), 0);
    EXPECT_EQ(list.target_pj4, utm);
}

TEST_F(Run, AnEquivalentSceneKeepsItsLineAndItsOwnWords) {
    host().add(L"a", L"+proj=utm +zone=40 +no_defs");
    list_all(utm);
    run();
    EXPECT_EQ(host().scenes[0]->pj4, L"+proj=utm +zone=40 +no_defs");
    EXPECT_EQ(host().scenes[0]->pv, original);
    EXPECT_EQ(host().messages.size(), 1u);
}

struct question_case {
    const char* name;
    const wchar_t *first, *second, *target;
    bool answer;
    const wchar_t* question;  ///< its first words
    const wchar_t *first_after, *second_after;
};

TEST_CASES_F(Run, Questions, AreAskedBeforeAnythingChanges, question_case,
             {"ResetGoesFirst", longlat, L"", L"", true, L"You have not specified", L"", L""},
             {"AssignToTheOne", longlat, L"", utm, true, L"The selected profile scenes", utm, utm},
             {"NoChangesNothing", longlat, L"", L"", false, L"You have not specified", longlat, L""}) {
    host().add(L"a", c.first);
    host().add(L"b", c.second);
    host().answer = c.answer;
    list_all(c.target);
    host().on_question = [&] { EXPECT_TRUE(host().log.empty()); };
    run();
    ASSERT_EQ(host().questions.size(), 1u);
    EXPECT_TRUE(host().questions[0].starts_with(c.question));
    EXPECT_EQ(host().scenes[0]->pj4, c.first_after);
    EXPECT_EQ(host().scenes[1]->pj4, c.second_after);
    EXPECT_EQ(host().scenes[1]->pv, original);
    EXPECT_EQ(host().messages.size(), c.answer ? 1u : 0u);
    EXPECT_EQ(checked(), c.answer ? 0 : 2);
}

TEST_F(Run, RefusesWhatIsNoProfileOrNothingAtAll) {
    add({L"a", L"b"}, longlat);
    list_all(utm);
    host().scenes[1]->profile = false;
    run();
    for (prf_row& row : list.rows) row.checked = false;
    run();
    EXPECT_EQ(host().errors, (texts{L"Incorrect reprojection settings", L"Incorrect reprojection settings"}));
    EXPECT_TRUE(host().log.empty());
    EXPECT_EQ(list.rows.size(), 2u);
}

TEST_F(Run, WhateverTheHostRefusesTheRestStaysWhole) {
    // Three scenes; call number k that may refuse does. Progress may be missing, everything else stops the
    // run.
    for (std::size_t k = 1; k <= 13; ++k) {
        host_double::reset();
        add({L"a", L"b", L"c"}, longlat);
        list_all(utm);
        host().refuse = k;
        run();
        const std::size_t done = k == 1 ? 3 : (k - 2) / 4;
        for (std::size_t i = 0; i < 3; ++i) {
            EXPECT_EQ(host().scenes[i]->pv, i < done ? moved : original) << k;
            EXPECT_EQ(host().scenes[i]->pj4, i < done ? utm : longlat) << k;
        }
        EXPECT_EQ(host().errors, k == 1 ? texts{} : texts{L"Reprojection error"}) << k;
        EXPECT_EQ(host().messages.size(), k == 1 ? 1u : 0u) << k;
        EXPECT_EQ(checked(), 0) << k;
        EXPECT_EQ(host().alive(), 0) << k;
    }
}

TEST_F(Run, ASceneThatVanishesMeanwhileFailsOutsideABracket) {
    host().add(L"a", L"");
    list_all(utm);
    host().on_question = [] { host().scenes[0]->has_data = false; };
    run();
    EXPECT_EQ(host().errors, texts{L"Reprojection error"});
    EXPECT_FALSE(host().logged("begin a"));
}

TEST_F(Run, AHostWithoutAnOpenProjectHasNoScenes) {
    host().add(L"a", longlat);
    for (bool host_double::state::*missing :
         {&host_double::state::project_open, &host_double::state::project_has_scenes}) {
        list_all(utm);
        EXPECT_EQ(list.rows.size(), 1u);
        host().*missing = false;
        list_all(utm);
        EXPECT_TRUE(list.rows.empty());
        host().*missing = true;
    }
    host().scenes.push_back(nullptr);
    list_all(utm);
    EXPECT_EQ(list.rows.size(), 1u);
    host().makes_adapters = false;
    list_all(utm);
    EXPECT_EQ(list.rows[0].pj4, L"");
}

TEST_F(Run, AProfileWithoutALineFailsWhereALineIsToMove) {
    for (const wchar_t* caption : {L"a", L"b", L"c"})
        host().add(caption, longlat).has_line = *caption != L'b';
    list_all(utm);
    run();
    EXPECT_EQ(host().errors, texts{L"Reprojection error"});
    for (const std::size_t i : {0u, 1u, 2u}) EXPECT_EQ(host().scenes[i]->pj4, i == 0 ? utm : longlat) << i;

    list_all(L"");  // where only the texts are set it does not matter
    run();
    EXPECT_EQ(host().messages, texts{L"Reprojection complete"});
    EXPECT_EQ(host().scenes[1]->pj4, L"");
}

// ---- The table over the list ----

custom_pointer item(toolkit::outline_table_item_index&& index) {
    return make_pointer<outline_item_index_impl>(index);
}
#define ROW(n) item(toolkit::outline_table_item_index(n))

TEST_F(Run, ACheckBoxOfASelectedRowStandsForTheSelection) {
    add({L"a", L"b", L"c", L"d"}, utm);
    element::detail::prf_outline table(list);
    element::detail::prf_check checks(list);
    for (const unsigned row : {0u, 2u}) table.set_selected(ROW(row), true);
    changes = 0;
    checks.set_state(ROW(1), true);
    EXPECT_EQ(changes, 0);
    checks.set_state(ROW(2), true);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(checked(), 3);
    EXPECT_FALSE(checks.state(ROW(3)));
    EXPECT_TRUE(checks.state({}));  // the root counts as row 0
}

TEST_F(Run, WhereThereIsNoRowStandsAnEmptyOne) {
    for (const int rows : {0, 1}) {
        if (rows) host().add(L"a", longlat);
        list_all(utm);
        element::detail::prf_outline table(list);
        element::detail::prf_check checks(list);
        element::detail::prf_projection_column column(list);
        for (const bool root : {true, false}) {
            if (root && rows) continue;  // the root is row 0
            toolkit::outline_table_item_index beyond(rows ? 0xFFFFFFFF : 0);
            const custom_pointer item =
                root ? custom_pointer{} : make_pointer<outline_item_index_impl>(beyond);
            table.set_selected(item, true);
            table.set_current_item(item);
            checks.set_state(item, true);
            EXPECT_FALSE(table.is_selected(item) || checks.state(item));
            EXPECT_FALSE(column.highlight(item) || column.sorts_after(item, item));
            EXPECT_EQ(read_text([&](custom_pointer v) { column.visit_cell_text(item, v); }), L"");
            EXPECT_EQ(read_text([&](custom_pointer v) { column.visit_cell_hint(item, v); }), L"");
        }
    }
}

TEST_F(Run, ColumnsSortByCodeUnits) {
    // In the order in which they sort.
    add({L"", L"A", L"AB", L"a", L"Б"}, utm);
    element::detail::prf_name_column column(list);
    for (unsigned a = 0; a < 5; ++a)
        for (unsigned b = 0; b < 5; ++b) EXPECT_EQ(column.sorts_after(ROW(a), ROW(b)), a > b) << a << b;
}

TEST_F(Run, ToolsActOnTheCheckMarksOfAllRows) {
    add({L"a", L"b", L"c"}, utm);
    list.rows[1].selected = true;
    element::detail::prf_tools tools(list);
    struct clicker : tool_set_visitor_impl {
        std::wstring wanted;
        void visit_action_tool(const wchar_t* id, custom_pointer tool) override {
            if (id == wanted) call<&action_tool_impl::click>(tool);
        }
    } clicker;
    const auto click = [&](const wchar_t* id) {
        clicker.wanted = id;
        changes = 0;
        tools.visit_tools({make_pointer<tool_set_visitor_impl>(clicker), 0, nullptr});
        EXPECT_EQ(changes, 1);
        return checked();
    };
    EXPECT_EQ(click(L"oxk_scn2d_prf_reproj_select_tool"), 3);
    EXPECT_EQ(click(L"oxk_scn2d_prf_reproj_invert_tool"), 0);
    list.rows[0].checked = true;
    EXPECT_EQ(click(L"oxk_scn2d_prf_reproj_invert_tool"), 2);
    EXPECT_EQ(click(L"oxk_scn2d_prf_reproj_unselect_tool"), 0);
}

}  // namespace
}  // namespace ox::prf_reproj
