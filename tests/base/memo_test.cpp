#include "base/memo.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

using oxhost::memo;

TEST(Memo, AsksOncePerTextAndBeginsAfreshWhenFull) {
    memo<std::string> kept(3);
    int asked = 0;
    const auto answer = [&](const std::string& text) {
        return kept.of(text, [&] { return ++asked, '<' + text + '>'; });
    };
    for (int round = 0; round < 2; ++round)
        for (const char* text : {"a", "b", "c"}) EXPECT_EQ(answer(text), '<' + std::string(text) + '>');
    EXPECT_EQ(asked, 3);
    answer("d");
    EXPECT_EQ(asked, 4);
    answer("a");
    EXPECT_EQ(asked, 5) << "more than three were kept";
}

TEST(Memo, TellsPairsApart) {
    memo<int> kept(10);
    int asked = 0;
    for (const auto& [first, second] : {std::pair{"ab", "c"}, {"a", "bc"}, {"c", "ab"}, {"abc", ""}})
        EXPECT_EQ(kept.of(first, second, [&] { return ++asked; }), asked);
    EXPECT_EQ(asked, 4);
}

TEST(Memo, MayBeAskedWhileItMakesAndKeepsNoFailure) {
    memo<int> kept(10);
    const auto depth = [&](const auto& self, std::size_t letters) -> int {
        return kept.of(std::string(letters, 'x'), [&] { return letters ? 1 + self(self, letters - 1) : 0; });
    };
    EXPECT_EQ(depth(depth, 5), 5);
    EXPECT_EQ(depth(depth, 2), 2);
    EXPECT_THROW(kept.of("bad", []() -> int { throw std::runtime_error("no"); }), std::runtime_error);
    EXPECT_EQ(kept.of("bad", [] { return 7; }), 7);
}

}  // namespace
