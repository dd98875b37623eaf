#pragma once

#include <cstdlib>

/// ANSI code page that the test was started in.
inline unsigned expected_code_page() {
    const char* page = std::getenv("OX_TEST_CODE_PAGE");
    return page ? static_cast<unsigned>(std::atoi(page)) : 0;
}
