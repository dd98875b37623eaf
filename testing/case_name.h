#pragma once
/// Parameterised tests over a table of cases, which are named by their member `name`.

#include <gtest/gtest.h>

#include <string>

struct case_name_of {
    template <class Case>
    std::string operator()(const testing::TestParamInfo<Case>& tested) const {
        return tested.param.name;
    }
};
inline constexpr case_name_of case_name;

/// What is given, and what is expected of it.
template <class Given, class Expected = Given>
struct case_of {
    const char* name;
    Given given;
    Expected expected;
};

/// A test that runs once for each case, which its body calls `c`:
///     TEST_CASES(Suite, Test, case_type, {"First", 1}, {"Second", 2}) { EXPECT_GT(c.value, 0); }
/// `Suite` becomes a class. With _F it is derived from a fixture of its own.
#define TEST_CASES_F(fixture, suite, test, type, ...)                                    \
    struct suite : fixture, testing::WithParamInterface<type> {                          \
        void check(const type& c);                                                       \
    };                                                                                   \
    const type suite##_cases[] = {__VA_ARGS__};                                          \
    INSTANTIATE_TEST_SUITE_P(Cases, suite, testing::ValuesIn(suite##_cases), case_name); \
    TEST_P(suite, test) { check(GetParam()); }                                           \
    void suite::check(const type& c)
#define TEST_CASES(suite, test, type, ...) TEST_CASES_F(testing::Test, suite, test, type, __VA_ARGS__)
