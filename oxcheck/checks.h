#pragma once
/// The groups of checks; each lists its own.

#include <span>

#include "oxcheck/check.h"

namespace oxcheck {

std::span<const check> load_checks();
std::span<const check> entry_checks();
std::span<const check> factory_checks();
std::span<const check> pointer_checks();
std::span<const check> referent_checks();
std::span<const check> element_checks();
std::span<const check> text_checks();
std::span<const check> run_checks();
std::span<const check> fault_checks();

}  // namespace oxcheck
