#pragma once
/// Inside the library that needs GDAL: the two directions behind the exchange interface, and its reports.

#include <filesystem>
#include <string>
#include <vector>

#include "exchange/exchange.h"

namespace oxhost {

import_report import_file(const std::filesystem::path& source, const import_options& options,
                          scene_taker& taker);
std::vector<std::string> export_to_file(const export_order& order);

/// GDAL reports through a handler of the process; while a guard lives, it keeps the reports to itself.
class gdal_guard {
public:
    gdal_guard();
    ~gdal_guard();
    gdal_guard(const gdal_guard&) = delete;
    gdal_guard& operator=(const gdal_guard&) = delete;

    /// Whether GDAL reported an error, not just a warning, since the guard was made.
    bool failed() const { return !kept_.failure.empty(); }
    /// The first warning, and how many more there were; empty without one.
    std::string warnings() const;
    /// Throws exchange_error: file, what we say, what GDAL said first.
    [[noreturn]] void refuse(const std::filesystem::path& file, const std::string& what) const;

    struct reports {
        std::string failure;  ///< the first one: later ones follow from it
        std::string warning;  ///< the first one
        std::size_t warnings = 0;
    };

private:
    reports kept_;
};

}  // namespace oxhost
