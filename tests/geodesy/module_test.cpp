/// The C functions as the plug-in meets them.

#include <clocale>
#include <cmath>

#include "base/language.h"
#include "border/host_api/oxk_proj4_d2.h"
#include "session/border.h"
#include "session/journal.h"
#include "texts.h"

namespace oxhost {
namespace {

/// What a function delivers; "untouched" when it delivers nothing.
template <class Ask>
std::wstring delivered(Ask&& ask) {
    std::wstring text = L"untouched";
    string_adapter adapter{
        nullptr, [](const wchar_t* given, void* context) { *static_cast<std::wstring*>(context) = given; },
        &text};
    ask(&adapter);
    return text;
}

const wchar_t* const utm = L"+proj=utm +zone=37 +datum=WGS84 +lon_wrap=45 +no_defs";
const wchar_t* const longlat = L"+proj=longlat +datum=WGS84 +no_defs";
const wchar_t* const bad = L"+proj=utm +zone=99 +datum=WGS84";

TEST(Module, DeliversTextsInTheUsersLanguage) {
    choose_language(language::russian);
    EXPECT_EQ(delivered([](void* to) { ox_pj4_get_short_text_w(utm, to); }), L"UTM, зона 37 север, WGS84");
    EXPECT_EQ(delivered([](void* to) { ox_pj4_get_text_w(nullptr, to); }), L"Проекция не определена");
    choose_language(language::english);
    EXPECT_EQ(delivered([](void* to) { ox_pj4_get_text_w(L"", to); }), L"Projection is not defined");
    choose_language({});
    EXPECT_EQ(delivered([](void* to) { ox_pj4_import_crs(L"EPSG:4326", to); }), longlat);
    EXPECT_EQ(delivered([](void* to) { ox_pj4_import_crs(L"EPSG:0", to); }), L"untouched");
    ox_pj4_get_text_w(utm, nullptr);
}

TEST(Module, FilesTellTheirErrorsToTheHost) {
    const scratch_folder folder;
    const std::wstring good = to_wide(folder / "зона.prj"), none = to_wide(folder / "none/x.pj4");
    ox_pj4_export_esri_prj(utm, good.c_str());
    EXPECT_EQ(journal::instance().take_file_failure(), std::nullopt);
    const auto loaded = delivered([&](void* to) { ox_pj4_import_esri(good.c_str(), to); });
    EXPECT_TRUE(ox_pj4_equal_w(loaded.c_str(), utm));
    ox_pj4_save_simple_w(none.c_str(), utm);
    EXPECT_EQ(journal::instance().take_file_failure().value_or("").rfind(folder / "none/x.pj4: ", 0), 0U);
    EXPECT_EQ(journal::instance().take_file_failure(), std::nullopt) << "it was taken";
    EXPECT_EQ(delivered([&](void* to) { ox_pj4_load_simple_w(none.c_str(), to); }), L"untouched");
    EXPECT_EQ(journal::instance().take_file_failure(), folder / "none/x.pj4: no such file");
}

TEST(Module, ReprojectorWritesTheJournal) {
    auto& log = journal::instance();
    log.clear();
    log.begin(3);
    void* const rpj = ox_rpj_d2_create();
    polyline line{{39, 55}, {39, HUGE_VAL}};
    EXPECT_FALSE(ox_rpj_d2_apply_pv(rpj, &line)) << "before a pair of texts was set";
    EXPECT_FALSE(ox_rpj_d2_init_w(rpj, longlat, bad));
    EXPECT_FALSE(ox_rpj_d2_init_w(rpj, longlat, nullptr));
    ASSERT_TRUE(log.current()->setup_failure);
    EXPECT_TRUE(ox_rpj_d2_init_w(rpj, longlat, L"+proj=latlong +datum=WGS84 +lon_wrap=45"));
    EXPECT_FALSE(ox_rpj_d2_rpj_is_needed(rpj));
    ASSERT_TRUE(ox_rpj_d2_init_w(rpj, longlat, utm));
    EXPECT_TRUE(ox_rpj_d2_rpj_is_needed(rpj));
    EXPECT_FALSE(ox_rpj_d2_apply_pv(rpj, &line));
    ASSERT_TRUE(log.current()->transform_failure);
    EXPECT_EQ(log.current()->transform_failure->vertex, 1U);
    EXPECT_EQ(line[0], (point{39, 55}));
    line.pop_back();
    EXPECT_TRUE(ox_rpj_d2_apply_pv(rpj, &line));
    EXPECT_NEAR(line[0].x, 500000, 1e-6);
    ox_rpj_d2_destroy(rpj);
    ox_rpj_d2_destroy(nullptr);
    log.clear();
}

TEST(Module, BearsNulls) {
    EXPECT_TRUE(ox_pj4_equal_w(nullptr, nullptr));
    EXPECT_TRUE(ox_pj4_equal_w(nullptr, L""));
    EXPECT_FALSE(ox_pj4_equal_w(utm, nullptr));
    EXPECT_EQ(delivered([](void* to) { ox_pj4_import_crs(nullptr, to); }), L"untouched");
    for (const auto load : {ox_pj4_load_simple_w, ox_pj4_import_esri}) {
        EXPECT_EQ(delivered([&](void* to) { load(nullptr, to); }), L"untouched");
        EXPECT_TRUE(journal::instance().take_file_failure());
    }
    ox_pj4_save_simple_w(nullptr, nullptr);
    ox_pj4_export_esri_prj(nullptr, nullptr);
    EXPECT_TRUE(journal::instance().take_file_failure());
    EXPECT_EQ(ox_pj4_fav_list_get_count(nullptr), 0);
    ox_pj4_fav_list_deserialize(nullptr);
    ox_pj4_fav_list_serialize(nullptr);
    ox_pj4_fav_add_item(nullptr, nullptr, nullptr);
    ox_pj4_fav_del_item(nullptr, 0);
    ox_pj4_fav_set_caption(nullptr, 0, nullptr);
    for (const auto read : {ox_pj4_fav_get_caption, ox_pj4_fav_get_pj4str})
        EXPECT_EQ(delivered([&](void* to) { read(nullptr, 0, to); }), L"untouched");
    ox_pj4_fav_list_destroy(nullptr);
    EXPECT_FALSE(ox_rpj_d2_init_w(nullptr, utm, longlat));
    EXPECT_FALSE(ox_rpj_d2_rpj_is_needed(nullptr));
    polyline line{{39, 55}};
    EXPECT_FALSE(ox_rpj_d2_apply_pv(nullptr, &line));
    void* const rpj = ox_rpj_d2_create();
    ASSERT_TRUE(ox_rpj_d2_init_w(rpj, longlat, utm));
    EXPECT_FALSE(ox_rpj_d2_apply_pv(rpj, nullptr));
    ox_rpj_d2_destroy(rpj);
}

TEST(Module, FavouritesByIndex) {
    void* const list = ox_pj4_fav_list_create();
    ox_pj4_fav_add_item(list, L"одна", utm);
    ox_pj4_fav_del_item(list, -1);
    ox_pj4_fav_set_caption(list, 0, L"другая");
    ASSERT_EQ(ox_pj4_fav_list_get_count(list), 1);
    EXPECT_EQ(delivered([&](void* to) { ox_pj4_fav_get_caption(list, 0, to); }), L"другая");
    EXPECT_EQ(delivered([&](void* to) { ox_pj4_fav_get_pj4str(list, 0, to); }), utm);
    EXPECT_EQ(delivered([&](void* to) { ox_pj4_fav_get_pj4str(list, 1, to); }), L"untouched");
    ox_pj4_fav_list_destroy(list);
}

}  // namespace
}  // namespace oxhost
