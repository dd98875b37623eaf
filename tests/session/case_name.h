#pragma once
/// Names a parameterised case by its own `name`.

#include <string>

inline constexpr auto case_name = [](const auto& info) { return std::string(info.param.name); };
