// The binary convention, from inside and from a neighbour made by hand.

#include <gtest/gtest.h>

#include <stdexcept>

#include "border/call.h"
#include "border/interfaces/controls.h"
#include "border/interfaces/values.h"
#include "border/polymorphic.h"
#include "testing/border_faults.h"

namespace ox {
namespace {

TEST(Cast, FindsExactlyItsOwnNameAndVersion) {
    label_impl label;
    const custom_pointer p = make_pointer(label);
    EXPECT_EQ(cast_from<ox::label>(p), p);
    EXPECT_EQ(cast_from<ox::button>(p), custom_pointer{});
    const void* table = &label;
    void* object = &label;
    const custom_pointer polymorphic = polymorphic_of(p);
    detail::query_entry(polymorphic.table, polymorphic.object, "ox_label_interface_1", &table, &object);
    EXPECT_TRUE(!table && !object);
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
struct two_interfaces : label_impl, button_impl {};

TEST(Composite, PolymorphicPartsFindEachOtherAndPlainBasesDoNot) {
    composite both;
    const custom_pointer label = make_pointer<label_impl>(both), button = make_pointer<button_impl>(both);
    EXPECT_EQ(cast_from<ox::button>(label), button);
    EXPECT_EQ(cast_from<ox::label>(button), label);
    EXPECT_EQ(cast_from<ox::input>(button), custom_pointer{});
    EXPECT_NE(label, button);
    EXPECT_EQ(label < button, label.table < button.table);

    two_interfaces plain;
    EXPECT_EQ(cast_from<ox::button>(make_pointer<label_impl>(plain)), custom_pointer{});
    EXPECT_EQ(cast_from<ox::button>(make_pointer<button_impl>(plain)), make_pointer<button_impl>(plain));
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

custom_pointer foreign_polymorphic(const void*, void* object);
bool foreign_enabled(const void*, void*) { return true; }
void foreign_caption(const void*, void*, custom_pointer visitor) {
    using visit = void (*)(const void*, void*, const wchar_t*);
    reinterpret_cast<visit>(static_cast<void* const*>(visitor.table)[1])(visitor.table, visitor.object,
                                                                         L"foreign");
}
void* const foreign_table[] = {reinterpret_cast<void*>(&foreign_polymorphic),
                               reinterpret_cast<void*>(&foreign_enabled),
                               reinterpret_cast<void*>(&foreign_caption)};
void foreign_query(const void*, void* object, const char* name, const void** table, void** out) {
    const bool known = std::string_view(name) == "ox_label_interface_2";
    *table = known ? foreign_table : nullptr;
    *out = known ? object : nullptr;
}
void* const foreign_polymorphic_table[] = {reinterpret_cast<void*>(&foreign_query)};
custom_pointer foreign_polymorphic(const void*, void* object) { return {foreign_polymorphic_table, object}; }

struct text_sink : string_visitor_impl {
    std::wstring text;
    void visit(const wchar_t* given) override { text = given; }
};

TEST(Border, SpeaksToATableMadeElsewhere) {
    int object = 0;
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
