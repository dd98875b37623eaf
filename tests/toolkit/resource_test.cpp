// Texts and pictures by id: languages, localizer, the host's own resources.

#include "framework/local_factory.h"
#include "framework/referent.h"
#include "framework/value_visitors.h"
#include "resources/text.h"
#include "testing/case_name.h"
#include "testing/host_double/host_double.h"
#include "toolkit/view.h"

namespace ox {
namespace {

using host_double::host;

struct text_case {
    const char* name;
    int language;
    std::int32_t id;
    const wchar_t* text;  ///< null: not found
};

TEST_CASES(Texts, AreFound, text_case, {"Russian", 0, 10, L"Перепроецирование сцен разрезов"},
           {"English", 50000, 10, L"Batch Project Sections"},
           {"UnknownLanguageFallsBack", 77000, 10, L"Перепроецирование сцен разрезов"},
           {"LineBreaks", 0, 14,
            L"Вы не указали целевую проекцию.\nПри выполнении у выбранных сцен профилей проекция "
            L"будет сброшена.\nПродолжить?"},
           {"Unknown", 50000, 12345, nullptr}, {"UnknownOfTheHost", 50000, -12345, nullptr}) {
    host_double::reset();
    host().language = c.language;
    std::wstring text = L"untouched";
    stdwstring_visitor visitor(text);
    EXPECT_EQ(resource::visit_string(c.id, make_pointer<string_visitor_impl>(visitor)), c.text != nullptr);
    EXPECT_EQ(text, c.text ? c.text : L"untouched");
}

TEST(HostTexts, ComeFromTheBasicModuleInItsLanguage) {
    host_double::reset();
    EXPECT_EQ(resource::string(basic_text::accept), L"Apply");
    host().language = 0;
    EXPECT_EQ(resource::string(basic_text::accept), L"Применить");
}

TEST(HostTexts, OneMayBeLookedUpWhileAnotherIsVisited) {
    struct curious final : string_visitor_impl {
        std::wstring text;
        void visit(const wchar_t* visited) override {
            EXPECT_FALSE(resource::string(basic_text::close).empty());
            text = visited;
        }
    } visitor;
    host_double::reset();
    EXPECT_TRUE(resource::visit_string(basic_text::accept, make_pointer<string_visitor_impl>(visitor)));
    EXPECT_EQ(visitor.text, L"Apply");
}

struct image_sink : thrice_interleaved_bytes_visitor_impl {
    std::vector<std::int32_t> shape;
    void visit(std::int32_t rows, std::int32_t stride, std::int32_t, std::int32_t, std::int32_t channels,
               std::int32_t, const std::uint8_t* data) override {
        if (data) shape = {rows, stride, channels};
    }
};

TEST(Pictures, ArriveTopRowFirst) {
    for (const auto id : {+picture::favourite, +picture::select_all}) {
        image_sink plain, keyed;
        toolkit::bitmap(id).visit_pixels(make_pointer<thrice_interleaved_bytes_visitor_impl>(plain));
        resource::visit_bitmap(id, resource::colour_key::first_pixel,
                               make_pointer<thrice_interleaved_bytes_visitor_impl>(keyed));
        EXPECT_EQ(plain.shape, (std::vector{16, -64, 3})) << id;
        EXPECT_EQ(keyed.shape.at(2), 4) << id;
    }
}

struct french final : util::referent<localizer_impl> {
    french() : obj(custom_pointer{}) {}
    bool visit_string(std::uint32_t id, custom_pointer visitor) override {
        if (id > 11) return false;
        call<&string_visitor_impl::visit>(visitor, id == 10 ? L"Projeter les coupes" : nullptr);
        return true;
    }
};

TEST(Localizer, TakesOverOwnTextsOnlyWhileItLives) {
    host_double::reset();
    detail::local_factory_impl client;
    ref<ox::localizer, 0> localizer(make_pointer<localizer_impl>(*new french));
    client.visit_localizer(localizer.get());
    EXPECT_EQ(resource::string(10), L"Projeter les coupes");
    EXPECT_EQ(resource::string(11), L"");  // a null text is an empty one
    EXPECT_EQ(resource::string(12), L"");  // its answer is final
    EXPECT_FALSE(resource::string(basic_text::accept).empty());
    localizer.reset();
    EXPECT_EQ(resource::string(10), L"Batch Project Sections");
}

}  // namespace
}  // namespace ox
