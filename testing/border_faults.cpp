#include "testing/border_faults.h"

#include <gtest/gtest.h>

#include "border/fault.h"

namespace testing_border {

namespace {

expected_faults* taker = nullptr;

void hear(const ox::border_fault& fault) {
    const std::string line =
        std::string(fault.place) + ", slot " + std::to_string(fault.slot) + ": " + fault.what;
    if (taker)
        taker->seen.push_back(line);
    else
        ADD_FAILURE() << "an exception ended at the border of " << line;
}

[[maybe_unused]] const bool listening = (ox::on_border_fault = &hear, true);

}  // namespace

expected_faults::expected_faults() { taker = this; }
expected_faults::~expected_faults() { taker = nullptr; }

}  // namespace testing_border
