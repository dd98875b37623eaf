// The binary convention, from inside and from a neighbour made by hand.

#include <gtest/gtest.h>

#include <set>
#include <stdexcept>

#include "border/call.h"
#include "border/interfaces/controls.h"
#include "border/interfaces/dialogs.h"
#include "border/interfaces/layouts.h"
#include "border/interfaces/lifetime.h"
#include "border/interfaces/outlines.h"
#include "border/interfaces/plain.h"
#include "border/interfaces/services.h"
#include "border/interfaces/tools.h"
#include "border/interfaces/values.h"
#include "border/polymorphic.h"
#include "testing/border_faults.h"

namespace ox {
namespace {

TEST(Vocabulary, EveryNameIsWrittenOnce) {
    std::set<std::string_view> names;
#define OX_BOUND(words, version) names.insert(words::name.view());
#define OX_PLAIN(words, version) OX_BOUND(words, version)
#define OX_ASKED(words, version) OX_BOUND(words, version)
#include "border/interface_names.inc"
#undef OX_ASKED
#undef OX_PLAIN
#undef OX_BOUND
    EXPECT_EQ(names.size(), 297u);
    EXPECT_TRUE(names.contains("ox_label_interface_2"));
    EXPECT_TRUE(names.contains("ox_outline_interface_32"));
    EXPECT_TRUE(names.contains("ox_modal_dialog_service_visitor_interface_102"));
}

// Number of operations after `polymorphic`: what a host built apart counts on.
static_assert(action_tool_impl::table::count == 10 && bitmap_impl::table::count == 3);
static_assert(bitmap_outline_column_impl::table::count == 15 && button_box_impl::table::count == 8);
static_assert(button_impl::table::count == 10 && context_menu_impl::table::count == 3);
static_assert(docker_impl::table::count == 6 && dropdown_impl::table::count == 9);
static_assert(floating_input_impl::table::count == 12 && grid_layout_impl::table::count == 13);
static_assert(groupbox_impl::table::count == 5 && input_impl::table::count == 10);
static_assert(label_impl::table::count == 3 && localizer_client_impl::table::count == 1);
static_assert(masked_bitmap_impl::table::count == 4 && modal_dialog_impl::table::count == 1);
static_assert(modal_dialog_service_impl::table::count == 2 && multiline_output_impl::table::count == 8);
static_assert(outline_checks_impl::table::count == 4 && outline_impl::table::count == 35);
static_assert(outline_item_index_impl::table::count == 3 && referent_impl::table::count == 4);
static_assert(referrer_impl::table::count == 2 && service_factory_impl::table::count == 1);
static_assert(service_visitor_impl::table::count == 0 && stack_layout_impl::table::count == 4);
static_assert(string_outline_column_impl::table::count == 21 && tool_set_impl::table::count == 2);
static_assert(toolbar_impl::table::count == 2 && utility_impl::table::count == 7);
static_assert(utility_service_impl::table::count == 2 && element_visitor_impl::table::count == 26);

TEST(Cast, FindsExactlyItsOwnNameAndVersion) {
    label_impl label;
    const custom_pointer p = make_pointer(label);
    EXPECT_EQ(cast_from<ox::label>(p), p);
    EXPECT_EQ(cast_from<ox::button>(p), custom_pointer{});
    const void* table = &label;
    void* object = &label;
    const custom_pointer polymorphic = polymorphic_of(p);
    detail::query_entry(polymorphic.table, polymorphic.object, "ox_label_interface_1", &table, &object);
    EXPECT_EQ(table, nullptr);
    EXPECT_EQ(object, nullptr);
}

TEST(Cast, PointersThatLackAWordAreNeverCalled) {
    label_impl label;
    for (const custom_pointer p : {custom_pointer{}, custom_pointer{table_of<label_impl>(), nullptr},
                                   custom_pointer{nullptr, &label}}) {
        EXPECT_EQ(cast_from<ox::label>(p), custom_pointer{});
        EXPECT_FALSE(call<&label_impl::enabled>(p));
    }
}

struct composite : polymorphic<label_impl>, polymorphic<button_impl> {};

TEST(Composite, EachPartFindsTheOther) {
    composite both;
    const custom_pointer label = make_pointer<label_impl>(both);
    const custom_pointer button = make_pointer<button_impl>(both);
    EXPECT_EQ(cast_from<ox::button>(label), button);
    EXPECT_EQ(cast_from<ox::label>(button), label);
    EXPECT_EQ(cast_from<ox::input>(button), custom_pointer{});
    EXPECT_NE(label, button);
    EXPECT_EQ(label < button, label.table < button.table);
}

struct two_interfaces : label_impl, button_impl {};

TEST(Composite, PlainBasesDoNotFindEachOther) {
    two_interfaces both;
    EXPECT_EQ(cast_from<ox::button>(make_pointer<label_impl>(both)), custom_pointer{});
    EXPECT_EQ(cast_from<ox::button>(make_pointer<button_impl>(both)), make_pointer<button_impl>(both));
}

struct thrower : label_impl {
    bool enabled() override { throw std::runtime_error("inside"); }
    custom_pointer polymorphic() override { throw std::runtime_error("inside"); }
};

TEST(Border, NoExceptionLeavesATable) {
    testing_border::expected_faults faults;
    thrower label;
    EXPECT_FALSE(call<&label_impl::enabled>(make_pointer<label_impl>(label)));
    EXPECT_EQ(polymorphic_of(make_pointer<label_impl>(label)), custom_pointer{});
    EXPECT_EQ(faults.seen, (std::vector<std::string>{"ox_label_interface_2, slot 1: inside",
                                                     "ox_label_interface_2, slot 0: inside"}));
}

// ---- A neighbour that was built apart: a label as an array of plain functions ----

struct foreign_label {
    int visited = 0;
};

custom_pointer foreign_polymorphic(const void*, void* object);
bool foreign_enabled(const void*, void*) { return true; }
void foreign_caption(const void*, void* object, custom_pointer visitor) {
    ++static_cast<foreign_label*>(object)->visited;
    using visit = void (*)(const void*, void*, const wchar_t*);
    reinterpret_cast<visit>(static_cast<void* const*>(visitor.table)[1])(visitor.table, visitor.object,
                                                                         L"foreign");
}
void* const foreign_table[] = {reinterpret_cast<void*>(&foreign_polymorphic),
                               reinterpret_cast<void*>(&foreign_enabled),
                               reinterpret_cast<void*>(&foreign_caption)};
void foreign_query(const void*, void* object, const char* name, const void** table, void** out) {
    *table = nullptr;
    *out = nullptr;
    if (std::string_view(name) != "ox_label_interface_2") return;
    *table = foreign_table;
    *out = object;
}
void* const foreign_polymorphic_table[] = {reinterpret_cast<void*>(&foreign_query)};
custom_pointer foreign_polymorphic(const void*, void* object) { return {foreign_polymorphic_table, object}; }

struct text_sink : string_visitor_impl {
    std::wstring text;
    void visit(const wchar_t* given) override { text = given; }
};

TEST(Border, SpeaksToATableMadeElsewhere) {
    foreign_label object;
    const custom_pointer label{foreign_table, &object};
    text_sink sink;
    EXPECT_TRUE(call<&label_impl::enabled>(label));
    call<&label_impl::visit_caption>(label, make_pointer<string_visitor_impl>(sink));
    EXPECT_EQ(sink.text, L"foreign");
    EXPECT_EQ(cast_from<ox::label>(label), label);
    EXPECT_EQ(unwrap<label_impl>(label), nullptr);
    label_impl own;
    EXPECT_EQ(unwrap<label_impl>(make_pointer(own)), &own);
}

}  // namespace
}  // namespace ox
