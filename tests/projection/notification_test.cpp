// What the projection dialog tells the host: an element whose appearance changed, once, when it is complete.

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <sstream>

#include "framework/value_visitors.h"
#include "projection/projection_dialog.h"
#include "small_catalogue.h"
#include "support/encodings.h"
#include "testing/case_name.h"

namespace ox {
namespace {

/// Everything that a host draws of an element.
std::string appearance(const char* kind, custom_pointer element) {
    std::ostringstream out;
    const auto text = [&](auto&& visit) { out << wide_to_utf8(read_text(visit)) << ';'; };
    const std::string_view of(kind);
    if (of == "choice") {
        const auto count = call<&dropdown_impl::item_count>(element);
        out << call<&dropdown_impl::current>(element) << ' ' << call<&dropdown_impl::enabled>(element) << ':';
        for (std::uint32_t i = 0; i < count; ++i)
            text([&](custom_pointer v) { call<&dropdown_impl::visit_item>(element, i, v); });
    } else if (of == "number") {
        for (const double number :
             {call<&floating_input_impl::value>(element), call<&floating_input_impl::minimum>(element),
              call<&floating_input_impl::maximum>(element), call<&floating_input_impl::decimals>(element)})
            out << number << ' ';
        out << call<&floating_input_impl::read_only>(element);
    } else if (of == "grid") {
        for (int i = 0; i < call<&grid_layout_impl::row_count>(element); ++i)
            out << call<&grid_layout_impl::row_shown>(element, i);
    } else if (of == "stack") {
        out << call<&stack_layout_impl::current>(element);
    }
    return out.str();
}

/// One element as a host keeps it.
struct drawn final : element_view_slots {
    drawn(const char* its_kind, custom_pointer its_element) : kind(its_kind), element(its_element) {}
    void changed() override {
        ++told;
        seen = appearance(kind, element);
    }
    const char* kind;
    custom_pointer element;
    std::string seen = appearance(kind, element);  ///< when it was told last
    int told = 0;
};

/// Walks the tree and attaches a view to each of its elements; tables have rules of their own.
struct drawing_host final : element_visitor_impl {
    std::deque<drawn> all;

#define OX_ELEMENT(words, slot, caption) \
    void words(custom_pointer element) override { draw<words##_impl>(caption, element); }
#include "border/element_kinds.inc"
#undef OX_ELEMENT

    /// Number `index` of a kind, in the order of the tree.
    drawn& find(std::string_view kind, int index) {
        for (drawn& each : all)
            if (each.kind == kind && index-- == 0) return each;
        throw std::out_of_range("no such element");
    }
    void choose(int choice, std::uint32_t item) {
        drawn& at = find("choice", choice);
        call<&dropdown_impl::select>(at.element, item);
        if (at.told == 0) at.seen = appearance(at.kind, at.element);  // the host knows what it chose
    }
    void enter(int number, double value) {
        call<&floating_input_impl::set_value>(find("number", number).element, value);
    }

private:
    template <class Impl>
    void draw(const char* kind, custom_pointer element) {
        const custom_pointer self = make_pointer<element_visitor_impl>(*this);
        if constexpr (!std::is_same_v<Impl, outline_impl>)
            call<&Impl::attach_view>(element,
                                     make_pointer<element_view_slots>(all.emplace_back(kind, element)));
        if constexpr (std::is_same_v<Impl, grid_layout_impl>) {
            const int columns = call<&Impl::column_count>(element);
            for (int i = 0; i < columns * call<&Impl::row_count>(element); ++i)
                call<&Impl::visit_cell>(element, i % columns, i / columns, self);
        } else if constexpr (std::is_same_v<Impl, stack_layout_impl>) {
            for (std::uint32_t i = 0; i < call<&Impl::child_count>(element); ++i)
                call<&Impl::visit_child>(element, i, self);
        } else if constexpr (std::is_same_v<Impl, groupbox_impl>) {
            call<&Impl::visit_content>(element, self);
        }
    }
};

enum choice { type, projection, zone_number, datum, ellipsoid };
constexpr int first_shift = 10;  // the ten parameters stand before the seven of the datum

struct action_case {
    const char* name;
    const wchar_t* shown;  ///< when the user begins
    std::function<void(dialog::projection&, drawing_host&)> act;
};

class Notifications : public Dialog, public testing::WithParamInterface<action_case> {};

TEST_P(Notifications, AreOnePerElementThatChanged) {
    write_catalogue();
    dialog::projection dialog;
    dialog.set_text(GetParam().shown);
    drawing_host host;
    host.grid_layout(make_pointer<grid_layout_impl>(dialog.element()));
    std::vector<std::string> before;
    for (const drawn& each : host.all) before.push_back(each.seen);
    GetParam().act(dialog, host);
    std::map<std::string, int> index;
    for (std::size_t i = 0; i < host.all.size(); ++i) {
        const drawn& each = host.all[i];
        SCOPED_TRACE(std::string(each.kind) + ' ' + std::to_string(index[each.kind]++));
        EXPECT_EQ(each.seen, appearance(each.kind, each.element)) << "what the host draws";
        EXPECT_TRUE(each.told == 0 || each.seen != before[i]) << "told of nothing: " << each.seen;
        EXPECT_LE(each.told, 1);
    }
}

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

INSTANTIATE_TEST_SUITE_P(
    Actions, Notifications,
    testing::Values(
        action_case{"TypeZonal", usual, choose(type, 3)},
        action_case{"TypeGeographic", usual, choose(type, 1)},
        action_case{"TypeUndefined", gk, choose(type, 0)}, action_case{"SameType", gk, choose(type, 3)},
        action_case{"Projection", usual, choose(projection, 1)},
        action_case{"SameProjection", usual, choose(projection, 0)},
        action_case{"ZonalProjection", gk, choose(projection, 1)},
        action_case{"Zone", gk, choose(zone_number, 0)}, action_case{"SameZone", gk, choose(zone_number, 1)},
        action_case{"Datum", usual, choose(datum, 2)}, action_case{"CustomDatum", usual, choose(datum, 0)},
        action_case{"Shift", usual, enter(first_shift, 24)},
        action_case{"Ellipsoid", usual, choose(ellipsoid, 2)}, action_case{"Meridian", usual, enter(0, 30)},
        action_case{"SameText", usual, set(usual)},
        action_case{"SameTextWithoutNumber", no_number, set(no_number)},
        action_case{"UsualText", usual, set(L"+proj=lcc +lat_1=10 +lat_2=20 +x_0=7")},
        action_case{"ZonalText", usual, set(gk)}, action_case{"NoText", utm_north, set(L"")},
        action_case{"GeographicText", gk, set(L"+proj=longlat +a=6370000 +b=6350000")}),
    case_name);

}  // namespace
}  // namespace ox
