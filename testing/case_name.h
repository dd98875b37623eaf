#pragma once
/// Names the cases of a parameterised test by their member `name`.

#include <gtest/gtest.h>

#include <string>

struct case_name_of {
    template <class Case>
    std::string operator()(const testing::TestParamInfo<Case>& tested) const {
        return tested.param.name;
    }
};
inline constexpr case_name_of case_name;
