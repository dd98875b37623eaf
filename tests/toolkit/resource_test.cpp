// Texts and pictures by id: languages, localizer, the host's own resources.

#include <gtest/gtest.h>

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

class Texts : public testing::TestWithParam<text_case> {
protected:
    void SetUp() override { host_double::reset(); }
};

TEST_P(Texts, AreFound) {
    host().language = GetParam().language;
    std::wstring text = L"untouched";
    stdwstring_visitor visitor(text);
    EXPECT_EQ(resource::visit_string(GetParam().id, make_pointer<string_visitor_impl>(visitor)),
              GetParam().text != nullptr);
    EXPECT_EQ(text, GetParam().text ? GetParam().text : L"untouched");
}

INSTANTIATE_TEST_SUITE_P(
    Ids, Texts,
    testing::Values(text_case{"Russian", 0, 10, L"Перепроецирование сцен разрезов"},
                    text_case{"English", 50000, 10, L"Batch Project Sections"},
                    text_case{"UnknownLanguageFallsBack", 77000, 10, L"Перепроецирование сцен разрезов"},
                    text_case{
                        "LineBreaks", 0, 14,
                        L"Вы не указали целевую проекцию.\nПри выполнении у выбранных сцен профилей проекция "
                        L"будет сброшена.\nПродолжить?"},
                    text_case{"Unknown", 50000, 12345, nullptr},
                    text_case{"UnknownOfTheHost", 50000, -12345, nullptr}),
    case_name);

TEST(HostTexts, ComeFromTheBasicModuleInItsLanguage) {
    host_double::reset();
    const std::wstring english = resource::string(basic_text::accept);
    host().language = 0;
    const std::wstring russian = resource::string(basic_text::accept);
    EXPECT_FALSE(english.empty());
    EXPECT_FALSE(russian.empty());
    EXPECT_NE(english, russian);
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
    std::int32_t rows = 0, row_stride = 0, columns = 0, channels = 0;
    void visit(std::int32_t r, std::int32_t stride, std::int32_t c, std::int32_t, std::int32_t n,
               std::int32_t, const std::uint8_t* data) override {
        rows = r, row_stride = stride, columns = c, channels = n;
        ASSERT_NE(data, nullptr);
    }
};

TEST(Pictures, ArriveTopRowFirst) {
    for (const auto id : {+picture::favourite, +picture::select_all}) {
        image_sink sink;
        toolkit::bitmap(id).visit_pixels(make_pointer<thrice_interleaved_bytes_visitor_impl>(sink));
        EXPECT_EQ(sink.rows, 16) << id;
        EXPECT_EQ(sink.row_stride, -64) << id;
        EXPECT_EQ(sink.channels, 3) << id;
        resource::visit_bitmap(id, resource::colour_key::first_pixel,
                               make_pointer<thrice_interleaved_bytes_visitor_impl>(sink));
        EXPECT_EQ(sink.channels, 4) << id;
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
