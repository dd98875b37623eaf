#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>

#include "border/host_api/oxk_entity.h"
#include "border/host_api/oxk_prg.h"
#include "border/host_api/oxk_prj.h"
#include "border/host_api/oxk_scn_2d.h"
#include "session/border.h"
#include "session/journal.h"
#include "workspace.h"

namespace project_test {
namespace {

/// A text as a module receives it.
std::wstring read(void (*getter)(void*, void*), void* handle) {
    std::wstring text = L"(nothing delivered)";
    string_adapter adapter{nullptr, [](const wchar_t* t, void* to) { *static_cast<std::wstring*>(to) = t; },
                           &text};
    getter(handle, &adapter);
    return text;
}

class HostModules : public Store {
protected:
    void SetUp() override {
        set_current_project(opened_.get());
        journal::instance().clear();
    }
    void TearDown() override { set_current_project(nullptr); }
    static void* scene_at(std::uint32_t index) {
        return ox_scns_2d_get(ox_prj_get_scns_2d_ptr(ox_prj_get_instance()), index);
    }

    std::unique_ptr<project> opened_ = open_project();
};

TEST_F(HostModules, ServeTheProject) {
    EXPECT_EQ(ox_scns_2d_get_size(ox_prj_get_scns_2d_ptr(ox_prj_get_instance())), 4U);
    EXPECT_EQ(read(ox_scn_2d_get_wcaption, scene_at(0)), L"Разрез I");
    void* data = ox_scn_2d_get_prf_data_ptr(scene_at(0));
    EXPECT_TRUE(ox_prf_data_get_is_profil(data));
    EXPECT_EQ(read(ox_prf_data_get_prj4string, data), L"+proj=utm +zone=40");
    EXPECT_FALSE(ox_prf_data_get_is_profil(ox_scn_2d_get_prf_data_ptr(scene_at(1))));
    EXPECT_EQ(ox_scn_2d_get_prf_data_ptr(scene_at(2)), nullptr) << "a scene without line has no profile data";
}

TEST_F(HostModules, TolerateNullsAndWrongIndexes) {
    EXPECT_EQ(scene_at(4), nullptr);
    set_current_project(nullptr);
    EXPECT_EQ(ox_scns_2d_get_size(ox_prj_get_scns_2d_ptr(ox_prj_get_instance())), 0U);
    EXPECT_EQ(scene_at(0), nullptr);
    EXPECT_EQ(read(ox_scn_2d_get_wcaption, nullptr), L"(nothing delivered)");
    EXPECT_EQ(read(ox_prf_data_get_prj4string, nullptr), L"(nothing delivered)");
    EXPECT_EQ(ox_scn_2d_get_prf_data_ptr(nullptr), nullptr);
    EXPECT_FALSE(ox_prf_data_get_is_profil(nullptr));
    EXPECT_EQ(ox_prf_data_get_pv_ptr(nullptr), nullptr);
    ox_prf_data_set_prj4string(nullptr, L"x");
    ox_prf_data_set_pv(nullptr, nullptr);
    ox_prf_data_set_pv(opened_->at(0), nullptr);
    ox_scn_2d_get_wcaption(opened_->at(0), nullptr);
    ox_prf_data_get_prj4string(opened_->at(0), nullptr);
    ox_scn_begin_update(nullptr);
    ox_scn_end_update(nullptr);
    ox_pv_d2_assign(nullptr, nullptr);
    ox_pv_d2_destroy(nullptr);
    EXPECT_EQ(journal::instance().updates().size(), 0U);
    ox_prf_data_set_prj4string(opened_->at(0), nullptr);
    EXPECT_EQ(opened_->at(0)->proj4, "") << "a null text is an empty one";
    section_line filled(polyline{{1, 2}});
    ox_pv_d2_assign(&filled, nullptr);
    EXPECT_TRUE(filled.xy.empty());
}

TEST_F(HostModules, BracketCopiesTheLineAndIsRecorded) {
    void* data = scene_at(1);
    ox_scn_begin_update(data);
    void* copy = ox_pv_d2_create();
    ox_pv_d2_assign(copy, ox_prf_data_get_pv_ptr(data));
    static_cast<section_line*>(copy)->xy.front() = {-1, -2};
    ox_prf_data_set_pv(data, copy);
    static_cast<section_line*>(copy)->xy.clear();
    ox_prf_data_set_prj4string(data, L"новая");
    ox_pv_d2_destroy(copy);
    ox_scn_end_update(data);
    EXPECT_EQ(opened_->read_line(*opened_->at(1)), (polyline{{-1, -2}, {3, 4}, {5, 6}}));
    EXPECT_EQ(opened_->at(1)->proj4, "новая");
    ASSERT_EQ(journal::instance().updates().size(), 1U);
    const scene_update& record = journal::instance().updates().front();
    EXPECT_TRUE(record.scene == 1 && record.line_stored && record.text_stored && !record.store_failure);
    EXPECT_EQ(journal::instance().current(), nullptr);
}

TEST_F(HostModules, RefusedStoreIsRecordedAndLeavesTheScene) {
    opened_ = nullptr;
    opened_ = open_project(open_mode::read_only);
    set_current_project(opened_.get());
    void* data = scene_at(0);
    ox_scn_begin_update(data);
    ox_prf_data_set_prj4string(data, L"new");
    ox_scn_end_update(data);
    ox_prf_data_set_prj4string(data, L"outside a bracket");
    EXPECT_EQ(read(ox_prf_data_get_prj4string, data), L"+proj=utm +zone=40");
    ASSERT_EQ(journal::instance().updates().size(), 2U);
    for (const scene_update& record : journal::instance().updates()) {
        EXPECT_FALSE(record.text_stored);
        EXPECT_EQ(record.store_failure, file_ + ": is open for reading only");
    }
}

TEST_F(HostModules, UnreadableLineIsNotReplacedByAnEmptyOne) {
    opened_->close();  // from here on no vertex can be read
    void* data = scene_at(0);
    ox_scn_begin_update(data);
    void* copy = ox_pv_d2_create();
    ox_pv_d2_assign(copy, ox_prf_data_get_pv_ptr(data));
    ox_prf_data_set_pv(data, copy);
    ox_pv_d2_destroy(copy);
    ox_scn_end_update(data);
    EXPECT_TRUE(journal::instance().updates().front().store_failure);
    expect_stored(sample_scenes);
}

}  // namespace
}  // namespace project_test
