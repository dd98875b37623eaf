#pragma once
/// Runs a test under a locale that writes numbers with a decimal comma.

#include <clocale>
#include <cstdlib>

struct numeric_locale {
    numeric_locale() {
#ifdef OX_TEST_LOCALES
        setenv("LOCPATH", OX_TEST_LOCALES, 1);
#endif
        for (const char* name : {"de_DE.UTF-8", "ru_RU.UTF-8", "ru_RU.CP1251", "fr_FR.UTF-8", "German"})
            if (std::setlocale(LC_NUMERIC, name)) break;
    }
    ~numeric_locale() { std::setlocale(LC_NUMERIC, "C"); }
    numeric_locale(const numeric_locale&) = delete;
    numeric_locale& operator=(const numeric_locale&) = delete;

    static bool is_set() { return *std::localeconv()->decimal_point == ','; }
};
