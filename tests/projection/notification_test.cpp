// What the projection dialog tells the host: an element whose appearance changed, once, when it is complete.

#include <algorithm>
#include <deque>
#include <functional>
#include <map>
#include <sstream>

#include "element_tree.h"
#include "framework/value_visitors.h"
#include "projection/projection_dialog.h"
#include "small_catalogue.h"
#include "support/encodings.h"
#include "testing/case_name.h"

namespace ox {
namespace {

/// Everything that a host draws of an element.
std::string appearance(std::string_view kind, custom_pointer element) {
    std::ostringstream out;
    if (kind == "choice") {
        const auto count = call<&dropdown_impl::item_count>(element);
        out << call<&dropdown_impl::current>(element) << ' ' << call<&dropdown_impl::enabled>(element) << ':';
        for (std::uint32_t i = 0; i < count; ++i)
            out << wide_to_utf8(read_text([&](custom_pointer v) {
                call<&dropdown_impl::visit_item>(element, i, v);
            })) << ';';
    } else if (kind == "number") {
        out << call<&floating_input_impl::value>(element) << ' '
            << call<&floating_input_impl::minimum>(element) << ' '
            << call<&floating_input_impl::maximum>(element) << ' '
            << call<&floating_input_impl::decimals>(element) << ' '
            << call<&floating_input_impl::read_only>(element);
    } else if (kind == "grid") {
        for (int i = 0; i < call<&grid_layout_impl::row_count>(element); ++i)
            out << call<&grid_layout_impl::row_shown>(element, i);
    } else if (kind == "stack") {
        out << call<&stack_layout_impl::current>(element);
    }
    return out.str();
}

/// One element as a host keeps it.
struct drawn final : element_view_slots {
    explicit drawn(const element_tree::node& its_node) : node(its_node) {
        if (node.attach) node.attach(node.element, make_pointer<element_view_slots>(*this));
    }
    void changed() override { ++told, seen = now(); }
    std::string now() const { return appearance(node.kind, node.element); }
    element_tree::node node;
    std::string seen = now();  ///< when it was told last
    int told = 0;
};

struct drawing_host final {
    explicit drawing_host(grid_layout_impl& root) : tree(root) {
        for (const auto& node : tree.all) all.emplace_back(node);
    }
    void choose(int choice, std::uint32_t item) {
        const custom_pointer element = tree.find("choice", choice).element;
        call<&dropdown_impl::select>(element, item);
        drawn& at = *std::ranges::find(all, element, [](const drawn& each) { return each.node.element; });
        if (at.told == 0) at.seen = at.now();  // the host knows what it chose
    }
    void enter(int number, double value) {
        call<&floating_input_impl::set_value>(tree.find("number", number).element, value);
    }

    element_tree tree;
    std::deque<drawn> all;
};

enum choice { type, projection, zone_number, datum, ellipsoid };
constexpr int first_shift = 10;  // the ten parameters stand before the seven of the datum

struct action_case {
    const char* name;
    const wchar_t* shown;  ///< when the user begins
    std::function<void(dialog::projection&, drawing_host&)> act;
};

auto choose(choice which, std::uint32_t item) {
    return [=](dialog::projection&, drawing_host& host) { host.choose(which, item); };
}
auto enter(int number, double value) {
    return [=](dialog::projection&, drawing_host& host) { host.enter(number, value); };
}
auto set(const wchar_t* text) {
    return [=](dialog::projection& dialog, drawing_host&) { dialog.set_text(text); };
}

constexpr const wchar_t* usual = L"+proj=tmerc +lon_0=45 +x_0=8500000 +ellps=WGS84";
constexpr const wchar_t* no_number = L"+proj=tmerc +lon_0=nan";
constexpr const wchar_t* utm_north = L"+proj=utm +zone=40 +datum=WGS84";
constexpr const wchar_t* gk =
    L"+proj=tmerc +lat_0=0 +lon_0=45 +k=1 +x_0=8500000 +y_0=0 +ellps=krass +towgs84=24,-123,-94,0,0,0,0";

TEST_CASES_F(Dialog, Notifications, AreOnePerElementThatChanged, action_case,
             {"TypeZonal", usual, choose(type, 3)}, {"TypeGeographic", usual, choose(type, 1)},
             {"TypeUndefined", gk, choose(type, 0)}, {"SameType", gk, choose(type, 3)},
             {"Projection", usual, choose(projection, 1)}, {"SameProjection", usual, choose(projection, 0)},
             {"ZonalProjection", gk, choose(projection, 1)}, {"Zone", gk, choose(zone_number, 0)},
             {"SameZone", gk, choose(zone_number, 1)}, {"Datum", usual, choose(datum, 2)},
             {"CustomDatum", usual, choose(datum, 0)}, {"Shift", usual, enter(first_shift, 24)},
             {"Ellipsoid", usual, choose(ellipsoid, 2)}, {"Meridian", usual, enter(0, 30)},
             {"SameText", usual, set(usual)}, {"SameTextWithoutNumber", no_number, set(no_number)},
             {"UsualText", usual, set(L"+proj=lcc +lat_1=10 +lat_2=20 +x_0=7")},
             {"ZonalText", usual, set(gk)}, {"NoText", utm_north, set(L"")},
             {"GeographicText", gk, set(L"+proj=longlat +a=6370000 +b=6350000")}) {
    write_catalogue();
    dialog::projection dialog;
    dialog.set_text(c.shown);
    drawing_host host(dialog.element());
    std::vector<std::string> before;
    for (const drawn& each : host.all) before.push_back(each.seen);
    c.act(dialog, host);
    std::map<std::string, int> index;
    for (std::size_t i = 0; i < host.all.size(); ++i) {
        const drawn& each = host.all[i];
        SCOPED_TRACE(each.node.kind + (' ' + std::to_string(index[each.node.kind]++)));
        EXPECT_EQ(each.seen, each.now()) << "what the host draws";
        EXPECT_TRUE(each.told == 0 || each.seen != before[i]) << "told of nothing: " << each.seen;
        EXPECT_LE(each.told, 1);
    }
}

}  // namespace
}  // namespace ox
