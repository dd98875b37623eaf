#pragma once
/// Names a case of a test table by its `name`.

#include <gtest/gtest.h>

inline constexpr auto case_name = [](const auto& test) { return std::string(test.param.name); };
