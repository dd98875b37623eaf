// The projection dialog over a small catalogue: what a text is taken for, and what comes back.

#include "projection/projection_dialog.h"
#include "element_tree.h"
#include "framework/value_visitors.h"
#include "small_catalogue.h"
#include "support/encodings.h"
#include "testing/case_name.h"

namespace ox {
namespace {

#define TAIL L" +lon_wrap=45 +no_defs"
TEST_CASES_F(Dialog, Texts, ComeBackNormalised, case_of<const wchar_t*>, {"Undefined", L"", L""},
             {"Unknown", L"+proj=nowhere +ellps=krass", L""},
             {"Geographic", L"+proj=latlong +datum=WGS84", L"+proj=longlat +datum=WGS84 +ellps=WGS84" TAIL},
             {"GeographicCustomDatum", L"+proj=longlat +ellps=krass +towgs84=1,2,3",
              L"+proj=longlat +towgs84=1,2,3,0,0,0,0 +ellps=krass" TAIL},
             {"UtmNorth", L"+proj=utm +zone=40 +datum=WGS84",
              L"+proj=utm +zone=40 +datum=WGS84 +ellps=WGS84 +units=m" TAIL},
             {"UtmSouth", L"+proj=UTM +zone=40 +south +ellps=WGS84",
              L"+proj=utm +zone=40 +south +datum=WGS84 +ellps=WGS84 +units=m" TAIL},
             {"UtmOfAnUnknownZone", L"+proj=utm +zone=17 +ellps=WGS84", L""},
             {"ZonalByParameters",
              L"+proj=tmerc +lat_0=0 +lon_0=45 +k=1 +x_0=8500000 +y_0=0 +ellps=krass "
              L"+towgs84=24,-123,-94,0,0,0,0",
              L"+proj=tmerc +lon_0=45 +lat_0=0 +x_0=8500000 +y_0=0 +k_0=1 "
              L"+towgs84=24,-123,-94,0,0,0,0 +ellps=krass +units=m" TAIL},
             {"WithoutItsDatumItIsUsual",
              L"+proj=tmerc +lat_0=0 +lon_0=45 +k=1 +x_0=8500000 +y_0=0 +ellps=krass",
              L"+proj=tmerc +lon_0=45 +lat_0=0 +x_0=8500000 +y_0=0 +k_0=1 "
              L"+towgs84=0,0,0,0,0,0,0 +ellps=krass +units=m" TAIL},
             {"UnusedParametersGo", L"+proj=lcc +lat_1=10 +lat_2=20 +alpha=5 +ellps=WGS84",
              L"+proj=lcc +lon_0=0 +lat_0=0 +x_0=0 +y_0=0 +lat_1=10 +lat_2=20 +datum=WGS84 "
              L"+ellps=WGS84 +units=m" TAIL},
             {"AxesWithoutCode", L"+proj=longlat +a=6370000 +b=6350000",
              L"+proj=longlat +towgs84=0,0,0,0,0,0,0 +a=6370000 +b=6350000" TAIL},
             {"UnknownEllipsoidIsWgs84", L"+proj=longlat +ellps=nobody",
              L"+proj=longlat +datum=WGS84 +ellps=WGS84" TAIL}) {
    write_catalogue();
    dialog::projection projection;
    projection.set_text(c.given);
    const std::wstring result = projection.text();
    EXPECT_EQ(result, c.expected);
    projection.set_text(result);
    EXPECT_EQ(projection.text(), result) << "no fixed point";
}

TEST_F(Dialog, OpensOnWhateverStandsInTheFolder) {
    const fs::path tables = folder_ / "prj_def";
    const auto open_on = [&](const char* what) {
        SCOPED_TRACE(what);
        dialog::projection projection;
        projection.set_text(L"+proj=utm +zone=40 +ellps=WGS84");
        EXPECT_EQ(projection.text(), L"");
        projection.set_text(L"+proj=longlat +ellps=krass");
        EXPECT_EQ(projection.text(), L"+proj=longlat +towgs84=0,0,0,0,0,0,0" TAIL);
    };
    open_on("no tables");
    for (const char* name : {"pj_ellps.dbf", "pj_datum.dbf", "pj_proj1.dbf", "pj_proj2.dbf"})
        write_table(tables / name, std::vector<std::string>{"NAME"}, {"NAME=wrong"});
    open_on("other columns");
    for (const auto& entry : fs::directory_iterator(tables)) fs::resize_file(entry, 20);
    open_on("cut");
    EXPECT_TRUE(host().errors.empty() && host().messages.empty());
}

// ---- As the user sees it: the model and the groups ----

TEST_F(Dialog, ChoicesFollowTheCatalogue) {
    write_catalogue();
    dialog::projection_model model;
    model.classify("+proj=longlat +datum=WGS84");
    model.set_type(dialog::projection_type::zonal);
    element::proj_params group(model);
    group.show_type();
    EXPECT_EQ(group.zone(), 7);
    model.choose_zone(8);
    EXPECT_EQ(model.current()->lon_0.value, 45);
    model.choose_projection(4);  // UTM South
    EXPECT_EQ(model.compose(group.values(), 40),
              "+proj=utm +zone=40 +south +datum=WGS84 +ellps=WGS84 +units=m +lon_wrap=45 +no_defs");
    model.choose_datum(2);
    EXPECT_EQ(model.ellipsoid()->code, "krass");
    model.choose_datum(0);  // a custom datum that is not said yet
    EXPECT_EQ(model.compose(group.values(), 40),
              "+proj=utm +zone=40 +south +ellps=krass +units=m +lon_wrap=45 +no_defs");
    model.set_datum_values({24, -123, -94, 0, 0, 0, 0});
    EXPECT_EQ(model.datum()->name, "Pulkovo");
    model.set_datum_values({24, -123, -95, 0, 0, 0, 0});
    EXPECT_EQ(model.datum()->name, "<Custom>");
}

TEST_F(Dialog, ARecordWhoseNameBothHemispheresCarryStaysCurrent) {
    write_catalogue();
    std::vector<std::string> zones{zone(7, 39)};
    for (const bool south : {false, true})
        for (const int number : {39, 40}) zones.push_back(utm(number, south, "UTM"));
    write_table(folder_ / "prj_def/pj_proj2.dbf", projection_columns, zones);
    for (const char* text : {"+proj=utm +zone=40 +ellps=WGS84", "+proj=utm +zone=40 +south +ellps=WGS84"}) {
        SCOPED_TRACE(text);
        dialog::projection_model model;
        model.classify(text);
        element::proj_params group(model);
        group.show_text();
        const Tox_pj_proj* given = model.current();
        const element_tree tree(group.content());
        const custom_pointer names = tree.find("choice").element;
        EXPECT_EQ(call<&dropdown_impl::item_count>(names), 2u);
        for (const custom_pointer choice : {names, tree.find("choice", 1).element}) {
            const std::uint32_t shown = call<&dropdown_impl::current>(choice);
            EXPECT_NE(shown, dropdown_impl::no_item);
            call<&dropdown_impl::select>(choice, shown);  // the user chooses what is shown
            EXPECT_EQ(model.current(), given);
        }
        call<&dropdown_impl::select>(names, 0u);
        EXPECT_EQ(model.current()->name, "GK");
    }
}

TEST_F(Dialog, GridsAreKeptOnlyByATextWithoutProjection) {
    write_catalogue();
    for (const bool kept : {false, true}) {
        dialog::projection_model model;
        model.classify(std::string(kept ? "" : "+proj=longlat ") + "+nadgrids=x.gsb");
        model.set_type(dialog::projection_type::geographic);
        EXPECT_EQ(model.compose({}, 0).find("+nadgrids=x.gsb") != std::string::npos, kept);
    }
}

TEST_F(Dialog, FavouritesFollowTheText) {
    write_catalogue();
    const std::wstring geographic = L"+proj=longlat +datum=WGS84 +ellps=WGS84" TAIL;
    host().favourites = {{L"other", L"+proj=longlat"}, {L"mine", geographic}, {L"twin", geographic}};
    {
        dialog::favourites_model favourites;
        std::wstring text;
        favourites.current_text = [&] { return text; };
        favourites.apply_text = [&](const std::wstring& pj4) { text = pj4, favourites.reselect(); };
        favourites.append();  // nothing to add
        EXPECT_EQ(favourites.count(), 3);
        text = geographic;
        favourites.reselect();
        EXPECT_EQ(favourites.selected(), 1);
        favourites.choose(0);
        EXPECT_EQ(text, L"+proj=longlat");
        text = L"+proj=LONGLAT";
        favourites.append();
        EXPECT_EQ(favourites.selected(), 3);
        EXPECT_EQ(favourites.caption(3), L"short: +proj=LONGLAT");
        favourites.rename(3, L"new");
        favourites.choose(2);
        favourites.remove_selected();  // the twin of index 1, which the text selected
        favourites.remove_selected();
    }
    EXPECT_EQ(host().log, (std::vector<std::string>{"delete favourite 1", "delete favourite -1"}));
    ASSERT_EQ(host().favourites.size(), 3u);
    EXPECT_EQ(host().favourites[2].caption, L"new");
}

/// The list of favourites as the host sees it.
struct favourites_seen : outline_column_visitor_impl {
    explicit favourites_seen(dialog::favourites_model& model) : area(model) {
        for (std::uint32_t i = 0; i < call<&outline_impl::column_count>(table) + 1; ++i)
            call<&outline_impl::visit_column>(table, i, make_pointer<outline_column_visitor_impl>(*this));
    }
    void visit_bitmap_column(custom_pointer column, const wchar_t* id) override {
        picture = column, ids += id;
    }
    void visit_string_column(custom_pointer column, const wchar_t* id) override {
        caption = column, ids += id;
    }

    bool has_picture(custom_pointer item) {
        struct counter : bitmap_visitor_impl {
            int count = 0;
            void visit(custom_pointer) override { ++count; }
        } pictures;
        call<&bitmap_outline_column_impl::visit_cell_image>(picture, item,
                                                            make_pointer<bitmap_visitor_impl>(pictures));
        return pictures.count > 0;
    }
    std::wstring text(custom_pointer item) {
        return read_text(
            [&](custom_pointer v) { call<&string_outline_column_impl::visit_cell_text>(caption, item, v); });
    }

    element::proj_favorites area;
    custom_pointer picture{}, caption{}, table = element_tree(area).find("table").element;
    std::wstring ids;
};

TEST_F(Dialog, AHostMayHaveNoFavouritesList) {
    host().makes_favourites = false;
    dialog::favourites_model model;
    model.current_text = [] { return std::wstring(L"+proj=longlat"); };
    favourites_seen seen(model);
    EXPECT_EQ(seen.text({}), L"");
    model.append();
    model.rename(0, L"new");
    model.remove_selected();
    model.choose(0);
    EXPECT_EQ(model.selected(), -1);
    EXPECT_TRUE(host().given_null.empty());
}

TEST_F(Dialog, WhereThereIsNoFavouriteStandsAnEmptyRow) {
    for (const bool any : {false, true}) {
        if (any) host().favourites = {{L"one", L"+proj=longlat"}};
        dialog::favourites_model model;
        model.current_text = [] { return std::wstring(); };
        model.apply_text = [](const std::wstring& pj4) { FAIL() << wide_to_utf8(pj4); };
        favourites_seen seen(model);
        toolkit::outline_table_item_index beyond(any ? 1 : 0);
        for (const custom_pointer item : {custom_pointer{}, make_pointer<outline_item_index_impl>(beyond)}) {
            const bool there = any && !item;  // the root is row 0
            EXPECT_EQ(seen.text(item), there ? L"one" : L"");
            EXPECT_EQ(seen.has_picture(item), there);
            EXPECT_EQ(call<&string_outline_column_impl::cell_is_editable>(seen.caption, item), there);
            if (there) continue;
            call<&string_outline_column_impl::set_cell_text>(seen.caption, item, L"renamed");
            call<&outline_impl::set_current_item>(seen.table, item);
            EXPECT_FALSE(call<&outline_impl::is_selected>(seen.table, item));
            EXPECT_EQ(model.selected(), -1);
        }
    }
    EXPECT_EQ(host().favourites[0].caption, L"one");
}

TEST_F(Dialog, TheFavouritesTellOfEachActionOnce) {
    struct counting_view : outline_view_slots {
        std::string told;
        void refresh() override { told += "rows "; }
        void selection_changed() override { told += "selection "; }
    } view;
    host().favourites = {{L"one", L"+proj=longlat"}, {L"two", L"+proj=utm"}};
    dialog::favourites_model model;
    std::wstring text = L"+proj=lcc";
    model.current_text = [&] { return text; };
    model.apply_text = [&](const std::wstring& pj4) { text = pj4, model.reselect(); };
    favourites_seen seen(model);
    EXPECT_EQ(seen.ids, L"oxk_proj_favorite_outline_bitmap_columnoxk_proj_favorite_outline_text_column");
    call<&outline_impl::attach_view>(seen.table, make_pointer<outline_view_slots>(view));
    const auto told_by = [&](auto act) {
        view.told.clear();
        act();
        return view.told;
    };
    toolkit::outline_table_item_index second(1);
    const custom_pointer item = make_pointer<outline_item_index_impl>(second);
    EXPECT_EQ(told_by([&] { model.append(); }), "rows selection ");
    EXPECT_EQ(told_by([&] { call<&outline_impl::set_current_item>(seen.table, item); }), "selection ");
    const auto rename = [&] {
        call<&string_outline_column_impl::set_cell_text>(seen.caption, item, nullptr);
    };
    EXPECT_EQ(told_by(rename), "rows ");
    EXPECT_EQ(model.caption(1), L"");
    EXPECT_EQ(told_by([&] { model.remove_selected(); }), "rows selection ");
    EXPECT_EQ(told_by([&] { model.remove_selected(); }), "rows ");  // nothing was selected
    text.clear();
    EXPECT_EQ(told_by([&] { model.append(); }), "selection ");
}

}  // namespace
}  // namespace ox
