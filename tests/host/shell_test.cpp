/// The shell in this process, over the real plug-in and a small project.

#include <dlfcn.h>
#include <gtest/gtest.h>

#include "base/language.h"
#include "headless/scripted_user.h"
#include "oxhost_run.h"
#include "project/project.h"
#include "shell/bundle_host.h"

namespace {

using namespace oxhost_test;
using namespace oxhost::shell;
using oxhost::headless::dialog_hands;
using oxhost::headless::impossible;

constexpr auto utility = "oxk_scn2d_prf_reproj";

class Shell : public testing::Test {
protected:
    Shell() {
        oxhost::choose_language(oxhost::language::english);
        box_.make_project({{"A", gauss_kruger_10, {{10400000, 6200000}, {10410000, 6210000}}},
                           {"B", "", {{1, 2}, {3, 4}}},
                           {"C", utm40, {{400000, 6200000}, {410000, 6210000}}},
                           {"D", gauss_kruger_10, {{10400000, 6200000}, {10410000, 6210000}}}});
        project_ = oxhost::project::open(box_.path("p.gpkg"), oxhost::open_mode::scratch);
        oxhost::set_current_project(project_.get());
    }
    ~Shell() override { oxhost::set_current_project(nullptr); }

    /// Opens the utility's dialog and lets `act` work in it; afterwards nothing of the plug-in is left.
    void in_utility(oxhost::headless::scripted_user::act act) {
        user_.in_dialog(utility, std::move(act));
        bundle_host(OXHOST_BUNDLE, user_).run(utility);
        EXPECT_FALSE(dlopen(OXHOST_BUNDLE, RTLD_LAZY | RTLD_NOLOAD)) << "still mapped";
    }

    sandbox box_;
    std::unique_ptr<oxhost::project> project_;
    oxhost::headless::scripted_user user_;
};

TEST_F(Shell, FindsTheSixFactoriesAndTheUtility) {
    for (int load = 0; load < 2; ++load) {  // the file is left and mapped again
        bundle_host host(OXHOST_BUNDLE, user_);
        EXPECT_EQ(host.factory_keys(), (std::vector<std::string>{"", "ox.host/utility", "", "", "", ""}));
        ASSERT_EQ(host.utilities().size(), 1u);
        EXPECT_EQ(host.utilities()[0].id, utility);
        EXPECT_EQ(host.caption(host.utilities()[0]), "Batch Project Sections");
        EXPECT_THROW(host.run("another"), bundle_error);
    }
}

TEST_F(Shell, ShowsTheUtilityAsNodes) {
    in_utility([](dialog_hands& in) {
        EXPECT_EQ(in.dialog().caption(), "Batch Project Sections");
        table_model& rows = *in.only(node_kind::outline).rows();
        ASSERT_EQ(rows.row_count(), 4u);
        const auto text = rows.column_of("oxk_scn2d_prf_reproj_projection_column");
        EXPECT_EQ(rows.columns()[0].caption, "Sections");
        EXPECT_EQ(rows.text(2, 0), "C");
        EXPECT_EQ(rows.text(2, text), utm40);
        EXPECT_EQ(rows.text(1, text), "");
        EXPECT_TRUE(rows.sorts_after(3, 0, 0));
        const node_state& tool = in.tool("oxk_scn2d_prf_reproj_invert_tool").state();
        EXPECT_EQ(tool.caption, "Invert Selection");
        EXPECT_FALSE(in.tool("oxk_scn2d_prf_reproj_invert_tool").image().empty());
        ASSERT_EQ(in.dialog().buttons().size(), 2u);
        EXPECT_EQ(in.dialog().buttons()[0].role, button_role::accept);
        EXPECT_EQ(in.dialog().buttons()[1].role, button_role::reject);
        // distinct projections of the scenes, then the entry for none
        EXPECT_EQ(in.menu_entries(in.menu_button()),
                  (std::vector<std::string>{gauss_kruger_10, utm40, "Projection not defined"}));
    });
}

TEST_F(Shell, HearsOfChangesThroughItsViews) {
    in_utility([](dialog_hands& in) {
        table_model& rows = *in.only(node_kind::outline).rows();
        int refreshes = 0;
        rows.on_refresh = [&] { ++refreshes; };
        rows.select(0, true);
        rows.select(3, true);
        rows.check(0, true);  // stands for the selection
        EXPECT_TRUE(rows.checked(3));
        EXPECT_FALSE(rows.checked(1));
        EXPECT_EQ(refreshes, 1);

        node& description = in.only(node_kind::multiline_output);
        const std::string before = description.state().text;
        in.choose_entry(in.menu_button(), 1);
        EXPECT_NE(description.state().text, before);
        EXPECT_EQ(refreshes, 2);
        EXPECT_TRUE(rows.highlighted(0, 0) && rows.highlighted(1, 0) && !rows.highlighted(2, 0));
    });
}

TEST_F(Shell, ServesDialogsOverDialogs) {
    std::vector<std::string> seen;
    user_.in_dialog("ox_common_projection_crs_dialog", [&](dialog_hands& in) {
        seen.push_back(in.dialog().caption());
        EXPECT_THROW(in.press(button_role::accept), impossible) << "off until a code is known";
        in.type("ID", " 4326 ");
        in.press(button_role::accept);
    });
    user_.in_dialog("ox_common_projection_dialog", [&](dialog_hands& in) {
        seen.push_back(in.dialog().caption());
        EXPECT_FALSE(in.find(node_kind::dropdown, "Type").state().items.empty());
        EXPECT_THROW(in.control("Zone"), impossible) << "nothing of it is shown yet";
        in.click("EPSG");
        EXPECT_EQ(in.control("Type").state().text, "Geographic");
        in.press(button_role::accept);
    });
    in_utility([&](dialog_hands& in) {
        node& description = in.only(node_kind::multiline_output);
        const std::string before = description.state().text;
        in.click("Projection");
        EXPECT_NE(description.state().text, before);
    });
    EXPECT_EQ(seen, (std::vector<std::string>{"Coordinate Reference System", "Select EPSG"}));
}

/// What a user throws comes out of `run`, through the plug-in's calls, and the plug-in stays usable.
TEST_F(Shell, CarriesTheUsersErrorsOut) {
    EXPECT_THROW(in_utility([](dialog_hands& in) { in.click("Polish"); }), impossible);
    EXPECT_THROW(in_utility([](dialog_hands& in) { in.click("Projection"); }), impossible)
        << "nobody knows the dialog over it";
    in_utility([](dialog_hands& in) { in.press(button_role::reject); });
}

}  // namespace
