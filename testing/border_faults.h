#pragma once
/// In every test program an exception that ends at the border fails the test in which it does, unless the
/// test expects it.

#include <string>
#include <vector>

namespace testing_border {

/// Takes the faults for as long as it lives: "ox_label_interface_2, slot 1: inside".
class expected_faults {
public:
    expected_faults();
    ~expected_faults();
    expected_faults(const expected_faults&) = delete;
    expected_faults& operator=(const expected_faults&) = delete;

    std::vector<std::string> seen;
};

}  // namespace testing_border
