/// Host and plug-in call a parameter by the same Russian words: users read both side by side.

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "geodesy/description_words.h"
#include "projection/parameter_rows.h"

namespace catalogue_test {
namespace {

const std::map<std::int32_t, std::string> captions{
#define OX_TEXT(symbol, id, russian, english) {id, russian},
#include "resources/texts.inc"
#undef OX_TEXT
};

TEST(CatalogueWords, OfTheHostFollowTheDialogs) {
    const ox::Tox_proj4_params params;
    for (const auto& row : ox::parameter_rows) {
        const auto key = (params.*row.parameter).name();
        const auto terms = oxhost::parameter_terms();
        const auto term =
            std::ranges::find(terms, key, [](const oxhost::parameter_term& each) { return each.words.key; });
        ASSERT_NE(term, terms.end()) << key;
        // the caption without its capital and the point of an abbreviation
        std::string stem = captions.at(row.label).substr(2);
        if (stem.ends_with('.')) stem.pop_back();
        EXPECT_NE(term->words.russian.find(stem), std::string_view::npos)
            << key << ": " << term->words.russian;
    }
}

}  // namespace
}  // namespace catalogue_test
